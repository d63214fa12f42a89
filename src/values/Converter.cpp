#include "values/Converter.h"

namespace tw {

double SGToPlato(double sg) {
    return 1262.45 * sg - 668.96 - 776.43 * sg * sg + 182.94 * sg * sg * sg;
}

double PlatoToSG(double plato) {
    return 1 + 0.0038661 * plato + 1.3488e-5 * plato * plato + 4.3074e-8 * plato * plato * plato;
}

}  // namespace tw

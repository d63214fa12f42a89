#include "values/Converter.h"

#include <cmath>

namespace tw {

// The powers are computed first, as the formula is written: 1.050 gives 12.3743425, which is on an edge of
// rounding, and another order of the factors would fall below it.
double SGToPlato(double sg) {
    return 1262.45 * sg - 668.96 - 776.43 * std::pow(sg, 2) + 182.94 * std::pow(sg, 3);
}

double PlatoToSG(double plato) {
    return 1 + 0.0038661 * plato + 1.3488e-5 * plato * plato + 4.3074e-8 * plato * plato * plato;
}

}  // namespace tw

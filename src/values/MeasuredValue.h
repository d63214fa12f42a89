// A quantity as the brewer typed it, beside the number it means.
#pragma once

#include <string>

namespace tw {

struct MeasuredValue {
    std::string text;  // kept verbatim and shown as it stands
    double value = 0;  // in the canonical unit of its kind; 0 when text is empty
};

}  // namespace tw

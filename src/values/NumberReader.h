// One pass over a text that may be a number: what kind it is, and its value.
#pragma once

#include <string_view>

namespace tw {

enum class Numeric { No, Whole, Real };

struct NumericText {
    Numeric kind = Numeric::No;
    double value = 0;  // a plain number, no unit
};
// Whole for an optional "-" and digits; Real when the text holds a "." too (and at least one digit); No for
// anything else. Raises "Overflow" for digits beyond the range of a double; digits too small for it are zero.
NumericText ReadNumeric(std::string_view text);

}  // namespace tw

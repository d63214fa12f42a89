// Reads a text that may be a number in one pass: which kind it is, and its value.
#pragma once

#include <string_view>

namespace tw {

enum class Numeric { No, Whole, Real };

struct NumericText {
    Numeric kind = Numeric::No;
    double value = 0;  // a plain number, no unit
};
// Returns Whole for an optional "-" and digits; Real if the text holds a "." too, and at least one digit; No
// for anything else. A number too small for a double is zero. Raises "Overflow" for one that is too large.
NumericText ReadNumeric(std::string_view text);

}  // namespace tw

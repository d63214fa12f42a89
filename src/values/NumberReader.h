// One pass over a text that may be a number: what kind it is, and its value.
#pragma once

#include <string_view>

namespace tw {

enum class Numeric { No, Whole, Real };

// Whole for an optional "-" and digits; Real when the text holds a "." too (and at least one digit); No for
// anything else, and value is untouched then. Raises "Overflow" for digits beyond the range of a double;
// digits too small for it are zero.
Numeric ReadNumeric(std::string_view text, double& value);

}  // namespace tw

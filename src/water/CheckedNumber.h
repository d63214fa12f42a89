// The check of Finite (platform/Error.h) in line, for loops in which a call would count.
#pragma once

#include <cmath>

#include "platform/Error.h"

namespace tw {

// value itself, in any unit; raises "Overflow" when it is infinite or NaN.
inline double CheckedNumber(double value) {
    if (!std::isfinite(value)) RaiseOverflow();
    return value;
}

}  // namespace tw

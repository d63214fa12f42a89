// The check of Finite (platform/Error.h) inline, for loops in which a call would cost too much.
#pragma once

#include <cmath>

#include "platform/Error.h"

namespace tw {

// Returns value, which may be in any unit. Raises "Overflow" if it is infinite or NaN.
inline double CheckedNumber(double value) {
    if (!std::isfinite(value)) RaiseOverflow();
    return value;
}

}  // namespace tw

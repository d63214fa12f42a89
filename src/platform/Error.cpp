#include "platform/Error.h"

#include <cmath>

namespace tw {

void RaiseDivisionByZero() {
    throw Error("Arithmetic", "Division by zero", kDivisionByZeroNumber);
}

void RaiseOverflow() {
    throw Error("Arithmetic", "Overflow", kOverflowNumber);
}

double Divide(double numerator, double denominator) {
    if (denominator == 0.0) RaiseDivisionByZero();
    return Finite(numerator / denominator);
}

double Finite(double value) {
    if (!std::isfinite(value)) RaiseOverflow();
    return value;
}

}  // namespace tw

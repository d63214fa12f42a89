// Arithmetic for the parts of the plain calculation.
#pragma once

#include <cmath>

#include "PlainRecipe.h"
#include "values/NumberText.h"

namespace tw::test {

// An arithmetic error: everything is restored from the copy.
struct Fault {};

inline double Sound(double value) {
    if (!std::isfinite(value)) throw Fault{};
    return value;
}
inline double Over(double a, double b) {
    if (b == 0) throw Fault{};
    return Sound(a / b);
}

inline void SetNumber(PlainCell& cell, double number) {
    cell.number = Sound(number);
    cell.text = NumberText(number);
}
inline void Blank(PlainCell& cell) {
    cell.text.clear();
    cell.number = 0;
    cell.kind = ' ';
}
inline void SetMaybe(PlainCell& cell, const std::optional<double>& number) {
    if (number)
        SetNumber(cell, *number);
    else
        Blank(cell);
}

}  // namespace tw::test

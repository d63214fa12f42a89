// Converts a quantity to all units of its kind: the arithmetic of the unit converter.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// The kinds of quantity, in the order of the converter's list.
enum class QuantityKind : int { Weight, Volume, Gravity, Temperature, Pressure };
inline constexpr int kQuantityKinds = 5;

// Returns "Mass/Weight", "Volume", "Gravity", "Temperature" or "Pressure".
std::string_view KindName(QuantityKind kind);

// Returns the units of a kind in the order of their boxes. A name on several lines has line feeds between
// them, such as "Degrees\nPlato".
std::span<const std::string_view> UnitsOf(QuantityKind kind);
// Returns the name of a unit on one line, its lines joined by a blank.
std::string UnitName(std::string_view unit);

// Converts value, which may be in any unit of the kind, to all of them, and returns the results in the order
// of UnitsOf; from is the index of its own unit, whose result is value itself. Each is converted directly, so
// that two ways round may differ in the last digits: weights, volumes and pressures by the rounded factors of
// values/Converter.h, temperatures by their definitions (0 C = 32 F = 273.15 K), gravities by the two fits of
// values/Converter.h, which are valid to about 30 degrees Plato. No range is checked: a negative weight is
// converted like any other number. Raises "Overflow" for a result beyond the range of a double. REQUIRES:
// from is an index into UnitsOf(kind).
std::vector<double> ConvertToAllUnits(QuantityKind kind, int from, double value);

}  // namespace tw

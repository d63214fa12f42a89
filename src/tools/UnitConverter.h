// One quantity in all units of its kind: the arithmetic of the unit converter.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// The kinds of quantity in the order of the converter's list.
enum class QuantityKind : int { Weight, Volume, Gravity, Temperature, Pressure };
inline constexpr int kQuantityKinds = 5;

// "Mass/Weight", "Volume", "Gravity", "Temperature", "Pressure".
std::string_view KindName(QuantityKind kind);

// The units of a kind in the order of their boxes. A name that stands on several lines has line feeds
// between them, such as "Degrees\nPlato".
std::span<const std::string_view> UnitsOf(QuantityKind kind);
// A unit's name on one line, its lines joined by a blank.
std::string UnitName(std::string_view unit);

// value, which may be in any unit of the kind (from says which), in every unit of that kind, in the order of
// UnitsOf; the entry of its own
// unit is value itself. Each is converted directly, so that two ways round may differ in the last digits:
// weights, volumes and pressures by the rounded factors of values/Converter.h, temperatures by their
// definitions (0 C = 32 F = 273.15 K), gravities by the two fits of values/Converter.h, which hold to about
// 30 degrees Plato and go on above. No range is checked: a negative weight is converted as any other number.
// Raises "Overflow" for a result beyond the range of a double. REQUIRES: from is an index into UnitsOf(kind).
std::vector<double> ConvertToAllUnits(QuantityKind kind, int from, double value);

}  // namespace tw

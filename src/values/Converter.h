// Conversions between quantities that are not a plain factor, and the factors that the whole program agrees
// on. The factors are rounded as they stand and do not agree with one another to the last digit (16 * 28.35
// is 453.6): each path keeps its own, on purpose. Gallons, quarts, pints, cups, fluid ounces and spoons are
// US measures of volume; ounces and pounds are avoirdupois weights.
#pragma once

namespace tw {

inline constexpr double kQuartsPerGallon = 4;
inline constexpr double kPintsPerGallon = 8;
inline constexpr double kCupsPerGallon = 16;
inline constexpr double kFluidOuncesPerGallon = 128;
inline constexpr double kTablespoonsPerGallon = 256;
inline constexpr double kTeaspoonsPerGallon = 768;
inline constexpr double kLitersPerGallon = 3.785;
inline constexpr double kMillilitersPerGallon = 3785;
inline constexpr double kOuncesPerPound = 16;
inline constexpr double kGramsPerPound = 453.59;
inline constexpr double kGramsPerOunce = 28.35;
inline constexpr double kOuncesPerKilogram = 35.274;
inline constexpr double kKilopascalsPerPsi = 6.894757;
inline constexpr double kPascalsPerPsi = 6894.757;
inline constexpr double kPsiPerAtmosphere = 14.6959;
inline constexpr double kKelvinOffset = 273.15;  // kelvins at 0 degrees Celsius

// Degrees Plato of a specific gravity, where water is 1: a cubic fit. Not the exact inverse of PlatoToSG, and
// not corrected to be.
double SGToPlato(double sg);
// Specific gravity of degrees Plato: a cubic fit of its own; exactly 1 at 0.
double PlatoToSG(double plato);

}  // namespace tw

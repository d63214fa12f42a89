// Conversions between quantities that are not a plain factor, and the factors that the whole program agrees
// on. The factors are rounded as written and do not agree with one another to the last digit (16 * 28.35 is
// 453.6): none is derived from another, so every conversion keeps its figures. Gallons, quarts, pints, cups,
// fluid ounces and spoons are US measures of volume; ounces and pounds are avoirdupois weights.
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

// Returns the degrees Plato of a specific gravity, where water is 1: the cubic fit of the extract tables that
// Michael Hall gives ("Brew by the Numbers", Zymurgy, Summer 1995), its constant term rounded. Valid to about
// 30 degrees Plato; nothing is limited outside. Not the exact inverse of PlatoToSG, and not corrected to be.
double SGToPlato(double sg);
// Returns the specific gravity of degrees Plato: the cubic fit in the other direction (same article), its
// constant term rounded, so that 0 is exactly 1. Valid to about 30 degrees Plato; nothing is limited outside.
double PlatoToSG(double plato);

}  // namespace tw

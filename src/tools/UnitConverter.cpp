#include "tools/UnitConverter.h"

#include <algorithm>
#include <cassert>

#include "platform/Error.h"
#include "values/Converter.h"

namespace tw {
namespace {

constexpr std::string_view kKindNames[kQuantityKinds] = {"Mass/Weight", "Volume", "Gravity", "Temperature",
                                                         "Pressure"};

constexpr std::string_view kWeightUnits[] = {"Pounds", "Ounces", "Kilograms", "Grams"};
constexpr std::string_view kVolumeUnits[] = {"Gallons",   "Quarts",       "Pints",
                                             "Cups",      "Fluid Ounces", "Tablespoons",
                                             "Teaspoons", "Liters",       "Milliliters"};
constexpr std::string_view kGravityUnits[] = {"Specific Gravity", "Degrees Plato"};
constexpr std::string_view kTemperatureUnits[] = {"Degrees\nFahrenheit", "Degrees\nCelsius\n(Centigrade)",
                                                  "Kelvin"};
constexpr std::string_view kPressureUnits[] = {"Pounds per\nSquare Inch", "Atmospheres", "Kilopascals",
                                               "Pascals"};

// A number is multiplied by "times" and divided by "by", so that a factor is used as it is written.
struct Factor {
    double times = 1;
    double by = 1;
};

double Scale(double value, const Factor& factor) {
    return value * factor.times / factor.by;
}

// From the unit of the row to that of the column. Every pair keeps its own factor.
constexpr Factor kWeightFactors[4][4] = {
    {{}, {kOuncesPerPound}, {kGramsPerPound, 1000}, {kGramsPerPound}},
    {{1, kOuncesPerPound}, {}, {1, kOuncesPerKilogram}, {kGramsPerOunce}},
    {{1000, kGramsPerPound}, {kOuncesPerKilogram}, {}, {1000}},
    {{1, kGramsPerPound}, {1, kGramsPerOunce}, {1, 1000}, {}},
};

constexpr double kUnitsPerGallon[] = {1,
                                      kQuartsPerGallon,
                                      kPintsPerGallon,
                                      kCupsPerGallon,
                                      kFluidOuncesPerGallon,
                                      kTablespoonsPerGallon,
                                      kTeaspoonsPerGallon,
                                      kLitersPerGallon,
                                      kMillilitersPerGallon};

// From psi.
constexpr Factor kPressureFactors[] = {{}, {1, kPsiPerAtmosphere}, {kKilopascalsPerPsi}, {kPascalsPerPsi}};

double ConvertTemperature(int from, int to, double value) {
    constexpr int kFahrenheit = 0, kKelvin = 2;
    const double celsius = from == kFahrenheit ? (value - 32) * 5 / 9
                           : from == kKelvin   ? value - kKelvinOffset
                                               : value;
    if (to == kFahrenheit) return celsius * 9 / 5 + 32;
    return to == kKelvin ? celsius + kKelvinOffset : celsius;
}

// REQUIRES: from and to are different units.
double Convert(QuantityKind kind, int from, int to, double value) {
    switch (kind) {
        case QuantityKind::Weight:
            return Scale(value, kWeightFactors[from][to]);
        case QuantityKind::Volume:
            return value * kUnitsPerGallon[to] / kUnitsPerGallon[from];
        case QuantityKind::Gravity:
            return from == 0 ? SGToPlato(value) : PlatoToSG(value);
        case QuantityKind::Temperature:
            return ConvertTemperature(from, to, value);
        case QuantityKind::Pressure:
            break;
    }
    const Factor& own = kPressureFactors[from];
    return Scale(Scale(value, {own.by, own.times}), kPressureFactors[to]);
}

}  // namespace

std::string_view KindName(QuantityKind kind) {
    return kKindNames[static_cast<int>(kind)];
}

std::span<const std::string_view> UnitsOf(QuantityKind kind) {
    switch (kind) {
        case QuantityKind::Weight:
            return kWeightUnits;
        case QuantityKind::Volume:
            return kVolumeUnits;
        case QuantityKind::Gravity:
            return kGravityUnits;
        case QuantityKind::Temperature:
            return kTemperatureUnits;
        case QuantityKind::Pressure:
            break;
    }
    return kPressureUnits;
}

std::string UnitName(std::string_view unit) {
    std::string name(unit);
    std::ranges::replace(name, '\n', ' ');
    return name;
}

std::vector<double> ConvertToAllUnits(QuantityKind kind, int from, double value) {
    const int count = static_cast<int>(UnitsOf(kind).size());
    assert(from >= 0 && from < count);
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int to = 0; to < count; ++to)
        values.push_back(to == from ? value : Finite(Convert(kind, from, to, value)));
    return values;
}

}  // namespace tw

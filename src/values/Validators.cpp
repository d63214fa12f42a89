// The validators: the upper layer of QuantityParsers. Each tries its units in a fixed order, which decides
// what an ambiguous word means there, and converts to the canonical unit.
#include <span>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"
#include "values/UnitReader.h"

namespace tw {
namespace {

// The canonical number is number * multiply / divide, in this order.
struct Conversion {
    Unit unit;
    double multiply;
    double divide;
};

std::optional<double> Convert(const UnitReader& reader, std::span<const Conversion> conversions) {
    if (!reader.HasNumber()) return std::nullopt;
    for (const Conversion& conversion : conversions)
        if (reader.Names(conversion.unit))
            return Finite(reader.Number() * conversion.multiply / conversion.divide);
    return std::nullopt;
}

constexpr Conversion kVolumes[] = {{Unit::Gallons, 1, 1},
                                   {Unit::Quarts, 1, kQuartsPerGallon},
                                   {Unit::Pints, 1, kPintsPerGallon},
                                   {Unit::Cups, 1, kCupsPerGallon},
                                   {Unit::FluidOunces, 1, kFluidOuncesPerGallon},
                                   {Unit::Tablespoons, 1, kTablespoonsPerGallon},
                                   {Unit::Teaspoons, 1, kTeaspoonsPerGallon},
                                   {Unit::Liters, 1, kLitersPerGallon},
                                   {Unit::Milliliters, 1, kMillilitersPerGallon}};

std::optional<double> ReadGallons(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (const auto gallons = Convert(reader, kVolumes)) return gallons;
    // Fluid ounces with an "FL" before their word cannot be mistaken for another volume, so they come last.
    if (!reader.HasNumber() || !reader.NamesFluid(Unit::FluidOunces)) return std::nullopt;
    return reader.Number() / kFluidOuncesPerGallon;
}

std::optional<double> ReadGravity(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return std::nullopt;
    if (reader.Names(Unit::SG)) return reader.Number();
    if (!reader.NamesDegree(Unit::Plato)) return std::nullopt;
    return Finite(PlatoToSG(reader.Number()));
}

// Weights: pounds are tried first or last, since ounces may follow their word.
constexpr double kGramsPerKilogram = 1000;

std::optional<double> ReadPounds(std::string_view text) {
    if (const auto pounds = ParsePounds(text)) return pounds;
    static constexpr Conversion kOthers[] = {{Unit::Ounces, 1, kOuncesPerPound},
                                             {Unit::Kilograms, kGramsPerKilogram, kGramsPerPound},
                                             {Unit::Grams, 1, kGramsPerPound}};
    return Convert(UnitReader(text, NumberForm::Mixed), kOthers);
}

std::optional<double> ReadGrams(std::string_view text) {
    static constexpr Conversion kOthers[] = {
        {Unit::Grams, 1, 1}, {Unit::Kilograms, kGramsPerKilogram, 1}, {Unit::Ounces, kGramsPerOunce, 1}};
    if (const auto grams = Convert(UnitReader(text, NumberForm::Mixed), kOthers)) return grams;
    const std::optional<double> pounds = ParsePounds(text);
    if (!pounds) return std::nullopt;
    return Finite(*pounds * kGramsPerPound);
}

std::optional<double> ReadMinutes(std::string_view text) {
    if (const auto minutes = ParseMinutes(text)) return minutes;
    if (const auto hours = ParseHours(text)) return Finite(*hours * 60);
    const std::optional<double> seconds = ParseSeconds(text);
    if (!seconds) return std::nullopt;
    return *seconds / 60;
}

std::optional<double> ReadFahrenheit(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return std::nullopt;
    const double number = reader.Number();
    if (reader.NamesDegree(Unit::Fahrenheit)) return number;
    if (reader.NamesDegree(Unit::Celsius)) return Finite(number * 9 / 5 + 32);
    if (reader.Names(Unit::Kelvin)) return Finite((number - kKelvinOffset) * 9 / 5 + 32);
    return std::nullopt;
}

std::optional<double> ReadPSI(std::string_view text) {
    static constexpr Conversion kPressures[] = {{Unit::PSI, 1, 1},
                                                {Unit::KPa, 1, kKilopascalsPerPsi},
                                                {Unit::Pa, 1, kPascalsPerPsi},
                                                {Unit::Atm, kPsiPerAtmosphere, 1}};
    return Convert(UnitReader(text, NumberForm::Real), kPressures);
}

// A typed volume or gravity of zero is refused, since no batch has one, although an empty text is zero and
// passes. A zero weight, time or pressure passes.
bool IsAboveZero(double value) {
    return value > 0;
}
bool IsNotNegative(double value) {
    return value >= 0;
}
bool IsPercentage(double value) {
    return value >= 0 && value <= 100;
}
bool IsReasonableTemperature(double fahrenheit) {
    return fahrenheit >= 0 && fahrenheit <= 212;
}

// What the validators differ in.
struct Quantity {
    Parser read;
    bool (*inRange)(double);
    std::string_view notUnderstood;
    std::string_view outOfRange;
    std::string_view examples;
};

Reading<double> Validate(const Quantity& quantity, std::string_view text) {
    if (IsBlank(text)) return 0.0;
    const std::optional<double> read = quantity.read(text);
    if (read && quantity.inRange(*read)) return *read;
    return Refusal{kInvalidEntry, std::string(read ? quantity.outOfRange : quantity.notUnderstood),
                   ForExample(quantity.examples)};
}

constexpr std::string_view kValidWeight = "Please enter a valid weight";
constexpr std::string_view kPositiveWeight = "Please enter a positive weight";

constexpr Quantity kVolume{ReadGallons, IsAboveZero, "Please enter a valid volume",
                           "Please enter a positive volume", "5 gal, 20 L, 2 1/2 qt"};
constexpr Quantity kGravity{ReadGravity, IsAboveZero, "Please enter a valid gravity",
                            "Please enter a positive gravity", "1.050, 12.5 P"};
constexpr Quantity kPercent{ParsePercent, IsPercentage, "Please enter a valid percentage",
                            "Please enter a percentage (0 to 100)", "72, 5.5%"};
constexpr Quantity kPounds{ReadPounds, IsNotNegative, kValidWeight, kPositiveWeight,
                           "9 lb 4 oz, 4.2 kg, 300 g"};
constexpr Quantity kGrams{ReadGrams, IsNotNegative, kValidWeight, kPositiveWeight, "4 g, 0.2 oz"};
constexpr Quantity kOunces{ParseOuncesAnyUnit, IsNotNegative, kValidWeight, kPositiveWeight, "3/4 oz, 28 g"};
constexpr Quantity kTime{ReadMinutes, IsNotNegative, "Please enter a valid length of time",
                         "Please enter a positive time", "60 min, 1.5 h"};
constexpr Quantity kTemperature{ReadFahrenheit, IsReasonableTemperature, "Please enter a valid temperature",
                                "Please enter a reasonable temperature", "68 F, 20 C"};
constexpr Quantity kPressure{ReadPSI, IsNotNegative, "Please enter a valid pressure",
                             "Please enter a positive pressure", "12 psi, 83 kPa"};

}  // namespace

std::optional<double> ParseOuncesAnyUnit(std::string_view text) {
    if (IsBlank(text)) return 0.0;
    const UnitReader reader(text, NumberForm::Mixed);
    static constexpr Conversion kPlainOunces[] = {{Unit::Ounces, 1, 1}};
    if (const auto ounces = Convert(reader, kPlainOunces)) return ounces;
    if (const auto pounds = ParsePounds(text)) return Finite(*pounds * kOuncesPerPound);
    static constexpr Conversion kOthers[] = {{Unit::Grams, 1, kGramsPerOunce},
                                             {Unit::Kilograms, kOuncesPerKilogram, 1}};
    return Convert(reader, kOthers);
}

Reading<double> ValidateVolume(std::string_view text) {
    return Validate(kVolume, text);
}
Reading<double> ValidateGravity(std::string_view text) {
    return Validate(kGravity, text);
}
Reading<double> ValidatePercent(std::string_view text) {
    return Validate(kPercent, text);
}
Reading<double> ValidatePounds(std::string_view text) {
    return Validate(kPounds, text);
}
Reading<double> ValidateGrams(std::string_view text) {
    return Validate(kGrams, text);
}
Reading<double> ValidateOunces(std::string_view text) {
    return Validate(kOunces, text);
}
Reading<double> ValidateMinutes(std::string_view text) {
    return Validate(kTime, text);
}
Reading<double> ValidateTemperature(std::string_view text) {
    return Validate(kTemperature, text);
}
Reading<double> ValidatePressure(std::string_view text) {
    return Validate(kPressure, text);
}

}  // namespace tw

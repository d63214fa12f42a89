// The validators: the upper layer of ParserValidater. Each tries its units in a fixed order, which settles
// what a word of two meanings means here, and converts to the canonical unit.
#include <span>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/ParserValidater.h"
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

bool Convert(const UnitReader& reader, std::span<const Conversion> conversions, double& value) {
    if (!reader.HasNumber()) return false;
    for (const Conversion& conversion : conversions) {
        if (!reader.Names(conversion.unit)) continue;
        value = Finite(reader.Number() * conversion.multiply / conversion.divide);
        return true;
    }
    return false;
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

bool ReadGallons(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (Convert(reader, kVolumes, value)) return true;
    // Fluid ounces with an "FL" before their word collide with no other volume's words, so they can come
    // last.
    if (!reader.HasNumber() || !reader.NamesFluid(Unit::FluidOunces)) return false;
    value = reader.Number() / kFluidOuncesPerGallon;
    return true;
}

bool ReadGravity(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return false;
    if (reader.Names(Unit::SG)) {
        value = reader.Number();
        return true;
    }
    if (!reader.NamesDegree(Unit::Plato)) return false;
    value = Finite(PlatoToSG(reader.Number()));
    return true;
}

// Weights: pounds come first or last, since behind their word ounces may follow.
constexpr double kGramsPerKilogram = 1000;

bool ReadPounds(std::string_view text, double& value) {
    if (ParsePounds(text, value)) return true;
    static constexpr Conversion kOthers[] = {{Unit::Ounces, 1, kOuncesPerPound},
                                             {Unit::Kilograms, kGramsPerKilogram, kGramsPerPound},
                                             {Unit::Grams, 1, kGramsPerPound}};
    return Convert(UnitReader(text, NumberForm::Mixed), kOthers, value);
}

bool ReadGrams(std::string_view text, double& value) {
    static constexpr Conversion kOthers[] = {
        {Unit::Grams, 1, 1}, {Unit::Kilograms, kGramsPerKilogram, 1}, {Unit::Ounces, kGramsPerOunce, 1}};
    if (Convert(UnitReader(text, NumberForm::Mixed), kOthers, value)) return true;
    double pounds = 0;
    if (!ParsePounds(text, pounds)) return false;
    value = Finite(pounds * kGramsPerPound);
    return true;
}

bool ReadMinutes(std::string_view text, double& value) {
    if (ParseMinutes(text, value)) return true;
    double number = 0;
    if (ParseHours(text, number)) {
        value = Finite(number * 60);
        return true;
    }
    if (!ParseSeconds(text, number)) return false;
    value = number / 60;
    return true;
}

bool ReadFahrenheit(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return false;
    const double number = reader.Number();
    if (reader.NamesDegree(Unit::Fahrenheit))
        value = number;
    else if (reader.NamesDegree(Unit::Celsius))
        value = Finite(number * 9 / 5 + 32);
    else if (reader.Names(Unit::Kelvin))
        value = Finite((number - kKelvinOffset) * 9 / 5 + 32);
    else
        return false;
    return true;
}

bool ReadPSI(std::string_view text, double& value) {
    static constexpr Conversion kPressures[] = {{Unit::PSI, 1, 1},
                                                {Unit::KPa, 1, kKilopascalsPerPsi},
                                                {Unit::Pa, 1, kPascalsPerPsi},
                                                {Unit::Atm, kPsiPerAtmosphere, 1}};
    return Convert(UnitReader(text, NumberForm::Real), kPressures, value);
}

// A zero volume or gravity is refused when typed, although an empty text gives zero and passes; a zero
// weight, time or pressure passes. The difference is intended.
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
};

bool Validate(const Quantity& quantity, std::string_view text, double& value, MessagePort* messages) {
    if (IsBlank(text)) {
        value = 0;
        return true;
    }
    double read = 0;
    const bool understood = quantity.read(text, read);
    if (understood && quantity.inRange(read)) {
        value = read;
        return true;
    }
    if (messages)
        messages->ShowMessage(kInvalidEntry, understood ? quantity.outOfRange : quantity.notUnderstood);
    return false;
}

constexpr std::string_view kValidWeight = "Please enter a valid weight";
constexpr std::string_view kPositiveWeight = "Please enter a positive weight";

constexpr Quantity kVolume{ReadGallons, IsAboveZero, "Please enter a valid volume",
                           "Please enter a positive volume"};
constexpr Quantity kGravity{ReadGravity, IsAboveZero, "Please enter a valid gravity",
                            "Please enter a positive gravity"};
constexpr Quantity kPercent{ParsePercent, IsPercentage, "Please enter a valid percentage",
                            "Please enter a percentage (0 to 100)"};
constexpr Quantity kPounds{ReadPounds, IsNotNegative, kValidWeight, kPositiveWeight};
constexpr Quantity kGrams{ReadGrams, IsNotNegative, kValidWeight, kPositiveWeight};
constexpr Quantity kOunces{ParseOuncesAnyUnit, IsNotNegative, kValidWeight, kPositiveWeight};
constexpr Quantity kTime{ReadMinutes, IsNotNegative, "Please enter a valid length of time",
                         "Please enter a positive time"};
constexpr Quantity kTemperature{ReadFahrenheit, IsReasonableTemperature, "Please enter a valid temperature",
                                "Please enter a reasonable temperature"};
constexpr Quantity kPressure{ReadPSI, IsNotNegative, "Please enter a valid pressure",
                             "Please enter a positive pressure"};

}  // namespace

bool ParseOuncesAnyUnit(std::string_view text, double& ounces) {
    if (IsBlank(text)) {
        ounces = 0;
        return true;
    }
    const UnitReader reader(text, NumberForm::Mixed);
    static constexpr Conversion kPlainOunces[] = {{Unit::Ounces, 1, 1}};
    if (Convert(reader, kPlainOunces, ounces)) return true;
    double pounds = 0;
    if (ParsePounds(text, pounds)) {
        ounces = Finite(pounds * kOuncesPerPound);
        return true;
    }
    static constexpr Conversion kOthers[] = {{Unit::Grams, 1, kGramsPerOunce},
                                             {Unit::Kilograms, kOuncesPerKilogram, 1}};
    return Convert(reader, kOthers, ounces);
}

bool ValidateVolume(std::string_view text, double& gallons, MessagePort* messages) {
    return Validate(kVolume, text, gallons, messages);
}
bool ValidateGravity(std::string_view text, double& sg, MessagePort* messages) {
    return Validate(kGravity, text, sg, messages);
}
bool ValidatePercent(std::string_view text, double& percent, MessagePort* messages) {
    return Validate(kPercent, text, percent, messages);
}
bool ValidatePounds(std::string_view text, double& pounds, MessagePort* messages) {
    return Validate(kPounds, text, pounds, messages);
}
bool ValidateGrams(std::string_view text, double& grams, MessagePort* messages) {
    return Validate(kGrams, text, grams, messages);
}
bool ValidateOunces(std::string_view text, double& ounces, MessagePort* messages) {
    return Validate(kOunces, text, ounces, messages);
}
bool ValidateMinutes(std::string_view text, double& minutes, MessagePort* messages) {
    return Validate(kTime, text, minutes, messages);
}
bool ValidateTemperature(std::string_view text, double& fahrenheit, MessagePort* messages) {
    return Validate(kTemperature, text, fahrenheit, messages);
}
bool ValidatePressure(std::string_view text, double& psi, MessagePort* messages) {
    return Validate(kPressure, text, psi, messages);
}

}  // namespace tw

// The unit parsers: the middle layer of ParserValidater.
#include "platform/Error.h"
#include "values/Converter.h"
#include "values/ParserValidater.h"
#include "values/UnitReader.h"

namespace tw {
namespace {

bool ParseUnit(std::string_view text, NumberForm form, Unit unit, double& value) {
    const UnitReader reader(text, form);
    if (!reader.HasNumber() || !reader.Names(unit)) return false;
    value = reader.Number();
    return true;
}

bool ParseMixedUnit(std::string_view text, Unit unit, double& value) {
    return ParseUnit(text, NumberForm::Mixed, unit, value);
}

bool ParseRealUnit(std::string_view text, Unit unit, double& value) {
    return ParseUnit(text, NumberForm::Real, unit, value);
}

bool ParseDegreeUnit(std::string_view text, Unit unit, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber() || !reader.NamesDegree(unit)) return false;
    value = reader.Number();
    return true;
}

// A ":" part behind a time: if rest begins with a colon, adds the number behind it, divided by divisor, to
// value and cuts both off rest. False when there is a colon without a number behind it.
bool TakeColonPart(std::string_view& rest, double divisor, double& value) {
    if (rest.empty() || rest.front() != ':') return true;
    rest.remove_prefix(1);
    const std::string_view token = GetToken(rest);
    double part = 0;
    if (!ParseMixedNumber(token, rest, part)) return false;
    value = Finite(value + part / divisor);
    return true;
}

}  // namespace

bool ParseSG(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::SG, value);
}
bool ParsePlato(std::string_view text, double& value) {
    return ParseDegreeUnit(text, Unit::Plato, value);
}

bool ParseGallons(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Gallons, value);
}
bool ParseQuarts(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Quarts, value);
}
bool ParsePints(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Pints, value);
}
bool ParseCups(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Cups, value);
}

bool ParseFluidOunces(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber() || !reader.NamesFluid(Unit::FluidOunces)) return false;
    value = reader.Number();
    return true;
}

bool ParseTablespoons(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Tablespoons, value);
}
bool ParseTeaspoons(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Teaspoons, value);
}
bool ParseLiters(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Liters, value);
}
bool ParseMilliliters(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Milliliters, value);
}

// "2 LB 3 OZ": behind a pound word, ounces may follow, with or without their word.
bool ParsePounds(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return false;
    double pounds = reader.Number();
    std::string_view rest = reader.Rest();
    if (!rest.empty()) {
        const std::string_view word = GetToken(rest);
        if (word.empty() || !UnitsOf(word).Has(Unit::Pounds)) return false;
    }
    if (!rest.empty()) {
        double ounces = 0;
        if (!ParseOunces(rest, ounces)) return false;
        pounds = Finite(pounds + ounces / kOuncesPerPound);
    }
    value = pounds;
    return true;
}

bool ParseOunces(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Ounces, value);
}
bool ParseGrams(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Grams, value);
}
bool ParseKilograms(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Kilograms, value);
}

bool ParsePercent(std::string_view text, double& value) {
    return ParseRealUnit(text, Unit::Percent, value);
}
bool ParseAAU(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::AAU, value);
}
bool ParseIBU(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::IBU, value);
}
bool ParseCO2Volumes(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::CO2Volumes, value);
}

bool ParseMinutes(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return false;
    double minutes = reader.Number();
    std::string_view rest = reader.Rest();
    if (!TakeColonPart(rest, 60, minutes) || !UnitsOf(rest).Has(Unit::Minutes)) return false;
    value = minutes;
    return true;
}

bool ParseHours(std::string_view text, double& value) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return false;
    double hours = reader.Number();
    std::string_view rest = reader.Rest();
    if (!TakeColonPart(rest, 60, hours) || !TakeColonPart(rest, 3600, hours)) return false;
    if (!UnitsOf(rest).Has(Unit::Hours)) return false;
    value = hours;
    return true;
}

bool ParseSeconds(std::string_view text, double& value) {
    return ParseRealUnit(text, Unit::Seconds, value);
}

bool ParseFahrenheit(std::string_view text, double& value) {
    return ParseDegreeUnit(text, Unit::Fahrenheit, value);
}
bool ParseCelsius(std::string_view text, double& value) {
    return ParseDegreeUnit(text, Unit::Celsius, value);
}
bool ParseKelvin(std::string_view text, double& value) {
    return ParseMixedUnit(text, Unit::Kelvin, value);
}

bool ParsePSI(std::string_view text, double& value) {
    return ParseRealUnit(text, Unit::PSI, value);
}
bool ParseKPa(std::string_view text, double& value) {
    return ParseRealUnit(text, Unit::KPa, value);
}
bool ParsePa(std::string_view text, double& value) {
    return ParseRealUnit(text, Unit::Pa, value);
}
bool ParseAtm(std::string_view text, double& value) {
    return ParseRealUnit(text, Unit::Atm, value);
}

}  // namespace tw

// The unit parsers: the middle layer of QuantityParsers.
#include "platform/Error.h"
#include "values/Converter.h"
#include "values/QuantityParsers.h"
#include "values/UnitReader.h"

namespace tw {
namespace {

std::optional<double> ParseUnit(std::string_view text, NumberForm form, Unit unit) {
    const UnitReader reader(text, form);
    if (!reader.HasNumber() || !reader.Names(unit)) return std::nullopt;
    return reader.Number();
}

std::optional<double> ParseMixedUnit(std::string_view text, Unit unit) {
    return ParseUnit(text, NumberForm::Mixed, unit);
}

std::optional<double> ParseRealUnit(std::string_view text, Unit unit) {
    return ParseUnit(text, NumberForm::Real, unit);
}

std::optional<double> ParseDegreeUnit(std::string_view text, Unit unit) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber() || !reader.NamesDegree(unit)) return std::nullopt;
    return reader.Number();
}

// Returns time with the ":" part that may follow it: if rest begins with a colon, adds the number behind it,
// divided by divisor, and cuts both off rest. Returns nothing for a colon without a number behind it.
std::optional<double> WithColonPart(double time, std::string_view& rest, double divisor) {
    if (rest.empty() || rest.front() != ':') return time;
    rest.remove_prefix(1);
    const std::string_view token = GetToken(rest);
    const std::optional<double> part = ParseMixedNumber(token, rest);
    if (!part) return std::nullopt;
    return Finite(time + *part / divisor);
}

}  // namespace

std::optional<double> ParseSG(std::string_view text) {
    return ParseMixedUnit(text, Unit::SG);
}
std::optional<double> ParsePlato(std::string_view text) {
    return ParseDegreeUnit(text, Unit::Plato);
}

std::optional<double> ParseGallons(std::string_view text) {
    return ParseMixedUnit(text, Unit::Gallons);
}
std::optional<double> ParseQuarts(std::string_view text) {
    return ParseMixedUnit(text, Unit::Quarts);
}
std::optional<double> ParsePints(std::string_view text) {
    return ParseMixedUnit(text, Unit::Pints);
}
std::optional<double> ParseCups(std::string_view text) {
    return ParseMixedUnit(text, Unit::Cups);
}

std::optional<double> ParseFluidOunces(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber() || !reader.NamesFluid(Unit::FluidOunces)) return std::nullopt;
    return reader.Number();
}

std::optional<double> ParseTablespoons(std::string_view text) {
    return ParseMixedUnit(text, Unit::Tablespoons);
}
std::optional<double> ParseTeaspoons(std::string_view text) {
    return ParseMixedUnit(text, Unit::Teaspoons);
}
std::optional<double> ParseLiters(std::string_view text) {
    return ParseMixedUnit(text, Unit::Liters);
}
std::optional<double> ParseMilliliters(std::string_view text) {
    return ParseMixedUnit(text, Unit::Milliliters);
}

// "2 LB 3 OZ": behind a pound word, ounces may follow, with or without their word.
std::optional<double> ParsePounds(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return std::nullopt;
    double pounds = reader.Number();
    std::string_view rest = reader.Rest();
    if (!rest.empty()) {
        const std::string_view word = GetToken(rest);
        if (word.empty() || !UnitsOf(word).Has(Unit::Pounds)) return std::nullopt;
    }
    if (!rest.empty()) {
        const std::optional<double> ounces = ParseOunces(rest);
        if (!ounces) return std::nullopt;
        pounds = Finite(pounds + *ounces / kOuncesPerPound);
    }
    return pounds;
}

std::optional<double> ParseOunces(std::string_view text) {
    return ParseMixedUnit(text, Unit::Ounces);
}
std::optional<double> ParseGrams(std::string_view text) {
    return ParseMixedUnit(text, Unit::Grams);
}
std::optional<double> ParseKilograms(std::string_view text) {
    return ParseMixedUnit(text, Unit::Kilograms);
}

std::optional<double> ParsePercent(std::string_view text) {
    return ParseRealUnit(text, Unit::Percent);
}
std::optional<double> ParseAAU(std::string_view text) {
    return ParseMixedUnit(text, Unit::AAU);
}
std::optional<double> ParseIBU(std::string_view text) {
    return ParseMixedUnit(text, Unit::IBU);
}
std::optional<double> ParseCO2Volumes(std::string_view text) {
    return ParseMixedUnit(text, Unit::CO2Volumes);
}

std::optional<double> ParseMinutes(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return std::nullopt;
    std::string_view rest = reader.Rest();
    const std::optional<double> minutes = WithColonPart(reader.Number(), rest, 60);
    return minutes && UnitsOf(rest).Has(Unit::Minutes) ? minutes : std::nullopt;
}

std::optional<double> ParseHours(std::string_view text) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber()) return std::nullopt;
    std::string_view rest = reader.Rest();
    std::optional<double> hours = WithColonPart(reader.Number(), rest, 60);
    if (hours) hours = WithColonPart(*hours, rest, 3600);
    return hours && UnitsOf(rest).Has(Unit::Hours) ? hours : std::nullopt;
}

std::optional<double> ParseSeconds(std::string_view text) {
    return ParseRealUnit(text, Unit::Seconds);
}

std::optional<double> ParseFahrenheit(std::string_view text) {
    return ParseDegreeUnit(text, Unit::Fahrenheit);
}
std::optional<double> ParseCelsius(std::string_view text) {
    return ParseDegreeUnit(text, Unit::Celsius);
}
std::optional<double> ParseKelvin(std::string_view text) {
    return ParseMixedUnit(text, Unit::Kelvin);
}

std::optional<double> ParsePSI(std::string_view text) {
    return ParseRealUnit(text, Unit::PSI);
}
std::optional<double> ParseKPa(std::string_view text) {
    return ParseRealUnit(text, Unit::KPa);
}
std::optional<double> ParsePa(std::string_view text) {
    return ParseRealUnit(text, Unit::Pa);
}
std::optional<double> ParseAtm(std::string_view text) {
    return ParseRealUnit(text, Unit::Atm);
}

}  // namespace tw

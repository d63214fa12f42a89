// From typed text to numbers, in three layers: a tokeniser, one small parser for each unit, and one validator
// for each kind of quantity that tries the unit parsers in a fixed order, converts to the canonical unit,
// checks the range and reports. No state; no document is touched.
//
// None raises, except that a fraction with a zero denominator ("1/0") raises "Division by zero" and digits
// beyond the range of a double raise "Overflow".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "values/Reading.h"

namespace tw {

// Cuts the first token off text and leaves the rest there. See the implementation for what ends a token.
std::string_view GetToken(std::string_view& text);

// Each returns nothing for a text that it does not read.

// The number, if text as a whole is numeric; no unit.
std::optional<double> ParseReal(std::string_view text);
// The number, if text as a whole is numeric and holds no "."; no unit.
std::optional<double> ParseWholeNumber(std::string_view text);
// a/b, both whole numbers, no unit. Raises "Division by zero" for b = 0.
std::optional<double> ParseFraction(std::string_view text);
// token a number without a unit, with an optional fraction at the front of rest, which is cut off then.
std::optional<double> ParseMixedNumber(std::string_view token, std::string_view& rest);

// Unit parsers: the whole text must be a number and one of the parser's unit words. The value is in the unit
// that the parser names, without conversion or range check.
std::optional<double> ParseSG(std::string_view text);
std::optional<double> ParsePlato(std::string_view text);
std::optional<double> ParseGallons(std::string_view text);
std::optional<double> ParseQuarts(std::string_view text);
std::optional<double> ParsePints(std::string_view text);
std::optional<double> ParseCups(std::string_view text);
std::optional<double> ParseFluidOunces(std::string_view text);
std::optional<double> ParseTablespoons(std::string_view text);
std::optional<double> ParseTeaspoons(std::string_view text);
std::optional<double> ParseLiters(std::string_view text);
std::optional<double> ParseMilliliters(std::string_view text);
std::optional<double> ParsePounds(std::string_view text);
std::optional<double> ParseOunces(std::string_view text);
std::optional<double> ParseGrams(std::string_view text);
std::optional<double> ParseKilograms(std::string_view text);
std::optional<double> ParsePercent(std::string_view text);
std::optional<double> ParseAAU(std::string_view text);
std::optional<double> ParseIBU(std::string_view text);
std::optional<double> ParseCO2Volumes(std::string_view text);
std::optional<double> ParseMinutes(std::string_view text);
std::optional<double> ParseHours(std::string_view text);
std::optional<double> ParseSeconds(std::string_view text);
std::optional<double> ParseFahrenheit(std::string_view text);
std::optional<double> ParseCelsius(std::string_view text);
std::optional<double> ParseKelvin(std::string_view text);
std::optional<double> ParsePSI(std::string_view text);
std::optional<double> ParseKPa(std::string_view text);
std::optional<double> ParsePa(std::string_view text);
std::optional<double> ParseAtm(std::string_view text);

// Ounces from any weight unit, without a message or a range check. A blank text is 0, as for the validators.
std::optional<double> ParseOuncesAnyUnit(std::string_view text);

// Validators. A blank text is 0 and accepted. A refusal has the title kInvalidEntry.
Reading<double> ValidateVolume(std::string_view text);       // gallons
Reading<double> ValidateGravity(std::string_view text);      // specific gravity
Reading<double> ValidatePercent(std::string_view text);      // percent, 0 to 100
Reading<double> ValidatePounds(std::string_view text);       // pounds
Reading<double> ValidateGrams(std::string_view text);        // grams
Reading<double> ValidateOunces(std::string_view text);       // ounces
Reading<double> ValidateMinutes(std::string_view text);      // minutes
Reading<double> ValidateTemperature(std::string_view text);  // degrees Fahrenheit, 0 to 212
Reading<double> ValidatePressure(std::string_view text);     // psi

// The parsers and validators by their names, for the console and the fuzzers; nullptr for an unknown name.
// The numbers may be in any unit: each is in that of its function.
using Parser = std::optional<double> (*)(std::string_view);
using Validator = Reading<double> (*)(std::string_view);
Parser FindParser(std::string_view name);
Validator FindValidator(std::string_view name);

}  // namespace tw

// From typed text to numbers, in three layers: a tokeniser, one small parser for each unit, and one validator
// for each kind of quantity that tries the unit parsers in a fixed order, converts to the canonical unit,
// checks the range and reports. No state; no document is touched.
//
// They raise nothing but "Division by zero" for a fraction with a zero denominator ("1/0") and "Overflow" for
// digits beyond the range of a double.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "values/Reading.h"

namespace tw {

// Cuts the first token off text, with the blanks that follow it, and returns it: a number or a fraction, or a
// word. A leading "~" and everything from the first "(" on are dropped from text before.
std::string_view GetToken(std::string_view& text);

// Each returns nothing for a text that it cannot read.

// The number, without a unit, if the whole of text is numeric.
std::optional<double> ParseReal(std::string_view text);
// The number, without a unit, if the whole of text is numeric and holds no ".".
std::optional<double> ParseWholeNumber(std::string_view text);
// The quotient a/b of two whole numbers, without a unit. Raises "Division by zero" for b = 0.
std::optional<double> ParseFraction(std::string_view text);
// The number, without a unit, of a numeric token; if it is whole, with the fraction at the front of rest if
// there is one, which is cut off rest. A token may also be a fraction by itself.
std::optional<double> ParseMixedNumber(std::string_view token, std::string_view& rest);

// Unit parsers: the whole text must be a number and one of the parser's unit words. The number returned is in
// the unit that the parser's name says, not converted and of any size.
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

// The ounces of a weight in any unit of weight, of any size. A blank text is 0, as for the validators.
std::optional<double> ParseOuncesAnyUnit(std::string_view text);

// Validators. A blank text is accepted as 0. A refusal has the title kInvalidEntry.
Reading<double> ValidateVolume(std::string_view text);       // gallons, above 0
Reading<double> ValidateGravity(std::string_view text);      // specific gravity, above 0
Reading<double> ValidatePercent(std::string_view text);      // percent, 0 to 100
Reading<double> ValidatePounds(std::string_view text);       // pounds, not negative
Reading<double> ValidateGrams(std::string_view text);        // grams, not negative
Reading<double> ValidateOunces(std::string_view text);       // ounces, not negative
Reading<double> ValidateMinutes(std::string_view text);      // minutes, not negative
Reading<double> ValidateTemperature(std::string_view text);  // degrees Fahrenheit, 0 to 212
Reading<double> ValidatePressure(std::string_view text);     // psi, not negative

// The parsers and validators by name, for the console and the fuzzers; nullptr for an unknown name. Each may
// be for a number in any unit: that of the function found.
using Parser = std::optional<double> (*)(std::string_view);
using Validator = Reading<double> (*)(std::string_view);
Parser FindParser(std::string_view name);
Validator FindValidator(std::string_view name);

}  // namespace tw

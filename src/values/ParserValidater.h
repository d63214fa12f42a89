// From typed text to numbers, in three layers: a tokeniser, one small parser for each unit, and one validator
// for each kind of quantity that tries the unit parsers in a fixed order, converts to the canonical unit,
// checks the range and reports. No state; no document is touched.
//
// Every parser and validator writes its number only when it accepts; none raises, except that a fraction with
// a zero denominator ("1/0") raises "Division by zero" and digits beyond the range of a double raise
// "Overflow".
#pragma once

#include <string>
#include <string_view>

#include "platform/Ports.h"

namespace tw {

// Cuts the first token off text and leaves the rest there. See the implementation for what ends a token.
std::string_view GetToken(std::string_view& text);

// True if text as a whole is numeric.
bool ParseReal(std::string_view text, double& value);
// True if numeric and holding no ".".
bool ParseWholeNumber(std::string_view text, double& value);
// a/b, both whole numbers. Raises "Division by zero" for b = 0.
bool ParseFraction(std::string_view text, double& value);
// token a number, with an optional fraction at the front of rest, which is cut off then.
bool ParseMixedNumber(std::string_view token, std::string_view& rest, double& value);

// Unit parsers: the whole text must be a number and one of the parser's unit words. The value is in the unit
// that the parser names, without conversion or range check.
bool ParseSG(std::string_view text, double& value);
bool ParsePlato(std::string_view text, double& value);
bool ParseGallons(std::string_view text, double& value);
bool ParseQuarts(std::string_view text, double& value);
bool ParsePints(std::string_view text, double& value);
bool ParseCups(std::string_view text, double& value);
bool ParseFluidOunces(std::string_view text, double& value);
bool ParseTablespoons(std::string_view text, double& value);
bool ParseTeaspoons(std::string_view text, double& value);
bool ParseLiters(std::string_view text, double& value);
bool ParseMilliliters(std::string_view text, double& value);
bool ParsePounds(std::string_view text, double& value);
bool ParseOunces(std::string_view text, double& value);
bool ParseGrams(std::string_view text, double& value);
bool ParseKilograms(std::string_view text, double& value);
bool ParsePercent(std::string_view text, double& value);
bool ParseAAU(std::string_view text, double& value);
bool ParseIBU(std::string_view text, double& value);
bool ParseCO2Volumes(std::string_view text, double& value);
bool ParseMinutes(std::string_view text, double& value);
bool ParseHours(std::string_view text, double& value);
bool ParseSeconds(std::string_view text, double& value);
bool ParseFahrenheit(std::string_view text, double& value);
bool ParseCelsius(std::string_view text, double& value);
bool ParseKelvin(std::string_view text, double& value);
bool ParsePSI(std::string_view text, double& value);
bool ParseKPa(std::string_view text, double& value);
bool ParsePa(std::string_view text, double& value);
bool ParseAtm(std::string_view text, double& value);

// Ounces from any weight unit, without a message or a range check. A blank text is 0, as for the validators.
bool ParseOuncesAnyUnit(std::string_view text, double& ounces);

inline constexpr std::string_view kInvalidEntry = "Invalid Entry";

// Validators. A blank text is 0 and accepted. A refusal is reported in a box titled "Invalid Entry" through
// messages; nullptr makes the call quiet. value is in the canonical unit and is written only on success.
bool ValidateVolume(std::string_view text, double& gallons, MessagePort* messages);
bool ValidateGravity(std::string_view text, double& sg, MessagePort* messages);
bool ValidatePercent(std::string_view text, double& percent, MessagePort* messages);
bool ValidatePounds(std::string_view text, double& pounds, MessagePort* messages);
bool ValidateGrams(std::string_view text, double& grams, MessagePort* messages);
bool ValidateOunces(std::string_view text, double& ounces, MessagePort* messages);
bool ValidateMinutes(std::string_view text, double& minutes, MessagePort* messages);
bool ValidateTemperature(std::string_view text, double& fahrenheit, MessagePort* messages);
bool ValidatePressure(std::string_view text, double& psi, MessagePort* messages);

// The parsers and validators by their names, for the console and the fuzzers; nullptr for an unknown name.
using Parser = bool (*)(std::string_view, double&);
using Validator = bool (*)(std::string_view, double&, MessagePort*);
Parser FindParser(std::string_view name);
Validator FindValidator(std::string_view name);

}  // namespace tw

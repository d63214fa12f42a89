#include "values/FrameTranscription.h"

#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <set>
#include <vector>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/Text.h"

namespace tw::test {
namespace {

using Words = std::set<std::string>;

std::string TrimLeft(std::string text) {
    while (!text.empty() && text[0] == ' ') text.erase(0, 1);
    return text;
}

std::string TrimRight(std::string text) {
    while (!text.empty() && text[text.size() - 1] == ' ') text.erase(text.size() - 1);
    return text;
}

std::string TrimBoth(const std::string& text) {
    return TrimRight(TrimLeft(text));
}

bool PlainNumeric(const std::string& text, double& value) {
    int digits = 0;
    int points = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (std::string("0123456789").find(text[i]) != std::string::npos)
            ++digits;
        else if (text[i] == '.')
            ++points;
        else if (text[i] != '-' || i != 0)
            return false;
    }
    if (digits == 0 || points > 1) return false;
    value = Finite(std::strtod(text.c_str(), nullptr));
    return true;
}

bool PlainWhole(const std::string& text, double& value) {
    return text.find('.') == std::string::npos && PlainNumeric(text, value);
}

bool PlainFraction(const std::string& text, double& value) {
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos) return false;
    double a = 0;
    double b = 0;
    if (!PlainWhole(text.substr(0, slash), a)) return false;
    if (!PlainWhole(text.substr(slash + 1), b)) return false;
    if (b == 0) RaiseDivisionByZero();
    value = a / b;
    return true;
}

bool PlainMixed(const std::string& token, std::string& rest, double& value) {
    if (PlainWhole(token, value)) {
        std::string copy = rest;
        const std::string next = PlainGetToken(copy);
        double fraction = 0;
        if (PlainFraction(next, fraction)) {
            value = Finite(value + fraction);
            rest = copy;
        }
        return true;
    }
    if (PlainNumeric(token, value)) return true;
    return PlainFraction(token, value);
}

// Removes an optional word from the front of rest; puts back any other word that the tokeniser has removed.
void DropOptionalWord(std::string& rest, const Words& optional) {
    const std::string word = PlainGetToken(rest);
    if (!optional.count(word)) rest = TrimRight(word + " " + rest);
}

const Words kDegree{"\u00B0", "DEG", "DEG.", "DEGREE", "DEGREES"};
const Words kFluid{"FL", "FL.", "FLUID"};
const Words kNone;

struct Frame {
    bool real;
    bool emptyUnit;
    Words optional;
    Words units;
};

bool RunFrame(const Frame& frame, const std::string& typed, double& value) {
    std::string text = TrimBoth(Upper(typed));
    const std::string token = PlainGetToken(text);
    if (frame.real ? !PlainNumeric(token, value) : !PlainMixed(token, text, value)) return false;
    if (!frame.optional.empty()) DropOptionalWord(text, frame.optional);
    return text.empty() ? frame.emptyUnit : frame.units.count(text) > 0;
}

const std::map<std::string, Frame> kFrames{
    {"ParseSG", {false, true, kNone, {"SG"}}},
    {"ParsePlato", {false, false, kDegree, {"P", "P.", "PL", "PL.", "PLATO"}}},
    {"ParseGallons", {false, true, kNone, {"G", "G.", "GAL", "GAL.", "GALS", "GALS.", "GALLON", "GALLONS"}}},
    {"ParseQuarts", {false, false, kNone, {"Q", "Q.", "QT", "QT.", "QTS", "QTS.", "QUART", "QUARTS"}}},
    {"ParsePints", {false, false, kNone, {"P", "P.", "PT", "PT.", "PTS", "PTS.", "PINT", "PINTS"}}},
    {"ParseCups", {false, false, kNone, {"C", "C.", "CUP", "CUPS"}}},
    {"ParseFluidOunces", {false, false, kFluid, {"O", "O.", "OZ", "OZ.", "OUNCE", "OUNCES"}}},
    {"ParseTablespoons",
     {false, false, kNone, {"TBSP", "TBSP.", "TBSPS", "TBSPS.", "TABLESPOON", "TABLESPOONS"}}},
    {"ParseTeaspoons", {false, false, kNone, {"TSP", "TSP.", "TSPS", "TSPS.", "TEASPOON", "TEASPOONS"}}},
    {"ParseLiters", {false, false, kNone, {"L", "L.", "LITER", "LITERS"}}},
    {"ParseMilliliters", {false, false, kNone, {"ML", "ML.", "MILLILITER", "MILLILITERS"}}},
    {"ParseOunces", {false, true, kNone, {"O", "O.", "OZ", "OZ.", "OUNCE", "OUNCES"}}},
    {"ParseGrams", {false, true, kNone, {"G", "G.", "GRAM", "GRAMS"}}},
    {"ParseKilograms",
     {false,
      false,
      kNone,
      {"KG", "KG.", "KILOGRAM", "KILOGRAMS", "K", "K.", "KILO", "KILO.", "KILOS", "KILOS."}}},
    {"ParsePercent", {true, true, kNone, {"%"}}},
    {"ParseAAU",
     {false,
      false,
      kNone,
      {"AU", "AU.", "AUS", "AUS.", "AA", "AA.", "AAS", "AAS.", "AAU", "AAU.", "AAUS", "AAUS."}}},
    {"ParseIBU", {false, true, kNone, {"IBU", "IBU.", "IBUS", "IBUS.", "BU", "BU.", "BUS", "BUS."}}},
    {"ParseCO2Volumes",
     {false,
      true,
      kNone,
      {"CO2", "VOL", "VOLS", "VOL.", "VOLS.", "VOL CO2", "VOL.CO2", "VOL. CO2", "VOLS CO2", "VOLS.CO2",
       "VOLS. CO2"}}},
    {"ParseSeconds", {true, false, kNone, {"S", "S.", "SEC", "SEC.", "SECS", "SECS.", "SECOND", "SECONDS"}}},
    {"ParseFahrenheit", {false, true, kDegree, {"F", "F.", "FAHRENHEIT"}}},
    {"ParseCelsius", {false, false, kDegree, {"C", "C.", "CELSIUS", "CENTIGRADE"}}},
    {"ParseKelvin", {false, false, kNone, {"K", "K.", "KELVIN", "KELVINS"}}},
    {"ParsePSI", {true, true, kNone, {"PSI", "PSI."}}},
    {"ParseKPa", {true, false, kNone, {"KPA", "KPA.", "KPAS", "KPAS.", "KILOPASCAL", "KILOPASCALS"}}},
    {"ParsePa", {true, false, kNone, {"PA", "PA.", "PAS", "PAS.", "PASCAL", "PASCALS"}}},
    {"ParseAtm", {true, false, kNone, {"ATM", "ATM.", "ATMS", "ATMS.", "ATMOSPHERE", "ATMOSPHERES"}}},
};

const Words kPoundWords{"LB", "LB.", "LBS", "LBS.", "POUND", "POUNDS"};
const Words kMinuteWords{"M", "M.", "MIN", "MIN.", "MS", "MS.", "MINS", "MINS.", "MINUTE", "MINUTES", ""};
const Words kHourWords{"H", "H.", "HR", "HR.", "HRS", "HRS.", "HS", "HS.", "HOUR", "HOURS"};

bool PlainPounds(const std::string& typed, double& value) {
    std::string text = TrimBoth(Upper(typed));
    const std::string token = PlainGetToken(text);
    if (!PlainMixed(token, text, value)) return false;
    if (text.empty()) return true;
    if (!kPoundWords.count(PlainGetToken(text))) return false;
    if (text.empty()) return true;
    double ounces = 0;
    if (!RunFrame(kFrames.at("ParseOunces"), text, ounces)) return false;
    value = Finite(value + ounces / 16);
    return true;
}

// Reads minutes with one part after a colon, or hours with two.
bool PlainTime(const std::string& typed, int parts, const Words& units, double& value) {
    std::string text = TrimBoth(Upper(typed));
    std::string token = PlainGetToken(text);
    if (!PlainMixed(token, text, value)) return false;
    double divisor = 60;
    for (int part = 0; part < parts && !text.empty() && text[0] == ':'; ++part, divisor *= 60) {
        text = text.substr(1);
        token = PlainGetToken(text);
        double behind = 0;
        if (!PlainMixed(token, text, behind)) return false;
        value = Finite(value + behind / divisor);
    }
    return units.count(text) > 0;
}

bool Parse(const std::string& name, const std::string& text, double& value) {
    if (name == "ParsePounds") return PlainPounds(text, value);
    if (name == "ParseMinutes") return PlainTime(text, 1, kMinuteWords, value);
    if (name == "ParseHours") return PlainTime(text, 2, kHourWords, value);
    return RunFrame(kFrames.at(name), text, value);
}

struct Step {
    std::string parser;
    std::function<double(double)> convert;
};

struct PlainValidator {
    std::vector<Step> steps;
    std::string notUnderstood;
    std::function<bool(double)> refused;
    std::string outOfRange;
};

double Same(double v) {
    return v;
}

const std::map<std::string, PlainValidator> kValidators{
    {"ValidateVolume",
     {{{"ParseGallons", Same},
       {"ParseQuarts", [](double v) { return v / 4; }},
       {"ParsePints", [](double v) { return v / 8; }},
       {"ParseCups", [](double v) { return v / 16; }},
       {"ParseFluidOunces", [](double v) { return v / 128; }},
       {"ParseTablespoons", [](double v) { return v / 256; }},
       {"ParseTeaspoons", [](double v) { return v / 768; }},
       {"ParseLiters", [](double v) { return v / 3.785; }},
       {"ParseMilliliters", [](double v) { return v / 3785; }}},
      "Please enter a valid volume",
      [](double v) { return v <= 0; },
      "Please enter a positive volume"}},
    {"ValidateGravity",
     {{{"ParseSG", Same}, {"ParsePlato", PlatoToSG}},
      "Please enter a valid gravity",
      [](double v) { return v <= 0; },
      "Please enter a positive gravity"}},
    {"ValidatePercent",
     {{{"ParsePercent", Same}},
      "Please enter a valid percentage",
      [](double v) { return v < 0 || v > 100; },
      "Please enter a percentage (0 to 100)"}},
    {"ValidatePounds",
     {{{"ParsePounds", Same},
       {"ParseOunces", [](double v) { return v / 16; }},
       {"ParseKilograms", [](double v) { return v * 1000 / 453.59; }},
       {"ParseGrams", [](double v) { return v / 453.59; }}},
      "Please enter a valid weight",
      [](double v) { return v < 0; },
      "Please enter a positive weight"}},
    {"ValidateGrams",
     {{{"ParseGrams", Same},
       {"ParseKilograms", [](double v) { return v * 1000; }},
       {"ParseOunces", [](double v) { return v * 28.35; }},
       {"ParsePounds", [](double v) { return v * 453.59; }}},
      "Please enter a valid weight",
      [](double v) { return v < 0; },
      "Please enter a positive weight"}},
    {"ValidateOunces",
     {{{"ParseOunces", Same},
       {"ParsePounds", [](double v) { return v * 16; }},
       {"ParseGrams", [](double v) { return v / 28.35; }},
       {"ParseKilograms", [](double v) { return v * 35.274; }}},
      "Please enter a valid weight",
      [](double v) { return v < 0; },
      "Please enter a positive weight"}},
    {"ValidateMinutes",
     {{{"ParseMinutes", Same},
       {"ParseHours", [](double v) { return v * 60; }},
       {"ParseSeconds", [](double v) { return v / 60; }}},
      "Please enter a valid length of time",
      [](double v) { return v < 0; },
      "Please enter a positive time"}},
    {"ValidateTemperature",
     {{{"ParseFahrenheit", Same},
       {"ParseCelsius", [](double v) { return v * 9 / 5 + 32; }},
       {"ParseKelvin", [](double v) { return (v - 273.15) * 9 / 5 + 32; }}},
      "Please enter a valid temperature",
      [](double v) { return v < 0 || v > 212; },
      "Please enter a reasonable temperature"}},
    {"ValidatePressure",
     {{{"ParsePSI", Same},
       {"ParseKPa", [](double v) { return v / 6.894757; }},
       {"ParsePa", [](double v) { return v / 6894.757; }},
       {"ParseAtm", [](double v) { return v * 14.6959; }}},
      "Please enter a valid pressure",
      [](double v) { return v < 0; },
      "Please enter a positive pressure"}},
};

template <typename Call>
Outcome Caught(Call call) {
    try {
        return call();
    } catch (const Error& error) {
        return {error.Number() == kDivisionByZeroNumber ? 'd' : 'o', 0, ""};
    }
}

}  // namespace

std::string PlainGetToken(std::string& text) {
    if (text.empty()) return "";
    std::string first = text.substr(0, 1);
    if (first == "~") {
        text = TrimBoth(text.substr(1));
        first = text.substr(0, 1);
    }
    const std::size_t bracket = text.find('(');
    if (bracket != std::string::npos) text = TrimBoth(text.substr(0, bracket));

    std::size_t end = text.size();
    if (!first.empty() && std::string("0123456789.-").find(first) != std::string::npos) {
        for (std::size_t i = 1; i < text.size(); ++i) {
            if (std::string("0123456789./").find(text[i]) == std::string::npos) {
                end = i;
                break;
            }
        }
    } else {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == ' ' || text[i] == '\t') {
                end = i;
                break;
            }
            if (text[i] == '.') {
                end = i + 1;
                break;
            }
        }
    }
    std::string token = text.substr(0, end);
    text = TrimLeft(text.substr(end));
    return token;
}

Outcome PlainParse(const std::string& name, const std::string& text) {
    return Caught([&]() -> Outcome {
        double value = 0;
        if (!Parse(name, text, value)) return {'n', 0, ""};
        return {'y', value, ""};
    });
}

Outcome PlainValidate(const std::string& name, const std::string& text) {
    const PlainValidator& validator = kValidators.at(name);
    return Caught([&]() -> Outcome {
        if (TrimBoth(text).empty()) return {'y', 0, ""};
        for (const Step& step : validator.steps) {
            double value = 0;
            if (!Parse(step.parser, text, value)) continue;
            value = Finite(step.convert(value));
            if (validator.refused(value)) return {'n', 0, "Invalid Entry|" + validator.outOfRange};
            return {'y', value, ""};
        }
        return {'n', 0, "Invalid Entry|" + validator.notUnderstood};
    });
}

}  // namespace tw::test

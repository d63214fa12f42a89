// Reads any text as the entry of a quantity field. Each parser and validator raises nothing but an Error of
// the program, accepts only finite numbers, and gives a reason when it refuses. The first eight bytes, read
// as a double, are converted to text and back to the same number.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "platform/Error.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace {

using namespace tw;

constexpr double kUntouched = -98765.25;

void Require(bool holds) {
    if (!holds) std::abort();
}

enum class Outcome { Accepted, Refused, Raised };

template <typename Call>
Outcome Run(Call call, double& value) {
    value = kUntouched;
    try {
        if (call(value)) {
            Require(std::isfinite(value));
            return Outcome::Accepted;
        }
    } catch (const Error& error) {
        Require(error.Number() == kDivisionByZeroNumber || error.Number() == kOverflowNumber);
        Require(value == kUntouched);
        return Outcome::Raised;
    }
    Require(value == kUntouched);
    return Outcome::Refused;
}

void CheckNumberText(double value) {
    const std::string text = NumberText(value);
    Require(ReadNumber(text) == value);
    const RoundedQuantity rounded = FormatQuantity(value, 3);
    Require(rounded.text == NumberText(rounded.value));
    for (const std::string_view pattern : {"0", "0.#0", "#.0", "0.0% abv", "000000000000.000000000000"})
        Require(!FormatNumber(value, pattern).empty());
}

void CheckParser(Parser parser, std::string_view text) {
    double value = 0;
    const auto parse = [&](double& v) {
        const std::optional<double> read = parser(text);
        v = read.value_or(v);
        return read.has_value();
    };
    if (Run(parse, value) == Outcome::Accepted) CheckNumberText(value);
}

void CheckValidator(Validator validator, std::string_view text) {
    double value = 0;
    const auto validate = [&](double& v) {
        const Reading<double> read = validator(text);
        if (!read) Require(!read.Why().text.empty());
        v = read.ValueOr(v);
        return read.Accepted();
    };
    const Outcome outcome = Run(validate, value);
    if (IsBlank(text)) Require(outcome == Outcome::Accepted && value == 0);
}

void CheckTokens(std::string_view text) {
    // Every token removes something from the text, except that of a leading tilde, bracket or tab, so the
    // text ends after at most as many tokens as it has bytes.
    for (std::size_t i = 0; i <= text.size(); ++i) {
        const std::size_t before = text.size();
        const std::string_view token = GetToken(text);
        Require(token.size() + text.size() <= before);
    }
}

constexpr Parser kParsers[] = {
    ParseReal,    ParseWholeNumber, ParseFraction,     ParseSG,          ParsePlato,       ParseGallons,
    ParseQuarts,  ParsePints,       ParseCups,         ParseFluidOunces, ParseTablespoons, ParseTeaspoons,
    ParseLiters,  ParseMilliliters, ParsePounds,       ParseOunces,      ParseGrams,       ParseKilograms,
    ParsePercent, ParseAAU,         ParseIBU,          ParseCO2Volumes,  ParseMinutes,     ParseHours,
    ParseSeconds, ParseFahrenheit,  ParseCelsius,      ParseKelvin,      ParsePSI,         ParseKPa,
    ParsePa,      ParseAtm,         ParseOuncesAnyUnit};

constexpr Validator kValidators[] = {ValidateVolume,  ValidateGravity,     ValidatePercent,
                                     ValidatePounds,  ValidateGrams,       ValidateOunces,
                                     ValidateMinutes, ValidateTemperature, ValidatePressure};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const Parser parser : kParsers) CheckParser(parser, text);
    for (const Validator validator : kValidators) CheckValidator(validator, text);
    CheckTokens(text);
    Require(CodePointCount(text) <= text.size() && CodePointCount(Upper(text)) == CodePointCount(text));
    Require(SameName(text, Upper(text)));
    if (size >= sizeof(double)) {
        double bits = 0;
        std::memcpy(&bits, data, sizeof bits);
        if (std::isfinite(bits)) CheckNumberText(bits);
    }
    return 0;
}

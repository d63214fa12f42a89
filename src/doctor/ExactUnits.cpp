#include "doctor/ExactUnits.h"

#include <span>

#include "exchange/AsciiCase.h"
#include "platform/Error.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr ExactUnit kWeights[] = {
    {"KG", "kg", 1},
    {"KGS", "kg", 1},
    {"KILOGRAM", "kg", 1},
    {"KILOGRAMS", "kg", 1},
    {"G", "g", 0.001},
    {"GR", "g", 0.001},
    {"GRAM", "g", 0.001},
    {"GRAMS", "g", 0.001},
    {"MG", "mg", 0.000001},
    {"LB", "lb", kKilogramsPerPound},
    {"LBS", "lb", kKilogramsPerPound},
    {"POUND", "lb", kKilogramsPerPound},
    {"POUNDS", "lb", kKilogramsPerPound},
    {"OZ", "oz", kKilogramsPerOunce},
    {"OUNCE", "oz", kKilogramsPerOunce},
    {"OUNCES", "oz", kKilogramsPerOunce},
};

constexpr ExactUnit kVolumes[] = {
    {"L", "L", 1},
    {"LITER", "L", 1},
    {"LITERS", "L", 1},
    {"LITRE", "L", 1},
    {"LITRES", "L", 1},
    {"ML", "ml", 0.001},
    {"GAL", "gal", kLitresPerGallon},
    {"GALS", "gal", kLitresPerGallon},
    {"GALLON", "gal", kLitresPerGallon},
    {"GALLONS", "gal", kLitresPerGallon},
    {"QT", "qt", kLitresPerGallon / 4},
    {"QTS", "qt", kLitresPerGallon / 4},
    {"QUART", "qt", kLitresPerGallon / 4},
    {"QUARTS", "qt", kLitresPerGallon / 4},
    {"PT", "pt", kLitresPerGallon / 8},
    {"PINT", "pt", kLitresPerGallon / 8},
    {"PINTS", "pt", kLitresPerGallon / 8},
    {"CUP", "cup", kLitresPerGallon / 16},
    {"CUPS", "cup", kLitresPerGallon / 16},
    {"FLOZ", "floz", kLitresPerGallon / 128},
    {"TBSP", "tbsp", kLitresPerGallon / 256},
    {"TSP", "tsp", kLitresPerGallon / 768},
};

// In minutes.
constexpr ExactUnit kTimes[] = {
    {"MIN", "min", 1},        {"MINS", "min", 1},        {"MINUTE", "min", 1},   {"MINUTES", "min", 1},
    {"H", "h", 60},           {"HR", "h", 60},           {"HRS", "h", 60},       {"HOUR", "h", 60},
    {"HOURS", "h", 60},       {"DAY", "days", 1440},     {"DAYS", "days", 1440}, {"D", "days", 1440},
    {"WEEK", "weeks", 10080}, {"WEEKS", "weeks", 10080},
};

using Units = std::span<const ExactUnit>;

const ExactUnit* Find(Units units, std::string_view word) {
    if (word.ends_with('.')) word.remove_suffix(1);
    for (const ExactUnit& unit : units)
        if (EqualAscii(unit.written, word)) return &unit;
    return nullptr;
}

// Returns the next number of the text, which is cut off.
std::optional<double> CutNumber(std::string_view& text) {
    try {
        const std::string_view token = GetToken(text);
        return token.empty() ? std::nullopt : ParseMixedNumber(token, text);
    } catch (const Error&) {
        return std::nullopt;
    }
}

// Returns the sum of numbers, each with its unit.
std::optional<double> SumIn(std::string_view text, Units units) {
    double sum = 0;
    text = Trim(text);
    if (text.empty()) return std::nullopt;
    while (!text.empty()) {
        const std::optional<double> number = CutNumber(text);
        const ExactUnit* const unit = number ? Find(units, GetToken(text)) : nullptr;
        if (!unit) return std::nullopt;
        sum += *number * unit->size;
    }
    return sum;
}

}  // namespace

const ExactUnit* WeightUnit(std::string_view word) {
    return Find(kWeights, word);
}

const ExactUnit* VolumeUnit(std::string_view word) {
    return Find(kVolumes, word);
}

std::string_view UnitWordOf(std::string_view amount) {
    std::string_view word = Trim(amount);
    if (word.ends_with('.')) word.remove_suffix(1);
    const std::size_t before = word.find_last_of("0123456789 ./");
    if (before != std::string_view::npos) word.remove_prefix(before + 1);
    return word;
}

std::optional<double> KilogramsIn(std::string_view text) {
    return SumIn(text, kWeights);
}

std::optional<double> LitresIn(std::string_view text) {
    return SumIn(text, kVolumes);
}

std::optional<double> MinutesIn(std::string_view text) {
    if (const auto minutes = SumIn(text, kTimes)) return minutes;
    std::string_view rest = Trim(text);
    const std::optional<double> number = CutNumber(rest);
    return rest.empty() ? number : std::nullopt;
}

std::optional<ForeignAmount> AmountIn(std::string_view text) {
    const std::string written(Trim(text));
    if (const auto kilograms = KilogramsIn(text))
        return ForeignAmount{ForeignAmount::Of::Mass, *kilograms, written};
    if (const auto litres = LitresIn(text)) return ForeignAmount{ForeignAmount::Of::Volume, *litres, written};
    std::string_view rest = written;
    const std::optional<double> pieces = CutNumber(rest);
    if (!pieces || *pieces < 0) return std::nullopt;
    return ForeignAmount{ForeignAmount::Of::Pieces, *pieces, written};
}

}  // namespace tw

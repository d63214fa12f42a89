#include "values/ScaledText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"
#include "values/UnitReader.h"

namespace tw {
namespace {

// A unit that the text may name, and the decimals to which its amounts are rounded.
struct UnitRounding {
    Unit unit;
    int decimals;
};

// In the order in which the validators try them: it decides what "g", "oz" or "p" is.
constexpr UnitRounding kVolumes[] = {{Unit::Gallons, 2},   {Unit::Quarts, 2},      {Unit::Pints, 2},
                                     {Unit::Cups, 2},      {Unit::FluidOunces, 2}, {Unit::Tablespoons, 2},
                                     {Unit::Teaspoons, 2}, {Unit::Liters, 2},      {Unit::Milliliters, 1}};
constexpr UnitRounding kPounds[] = {
    {Unit::Pounds, 2}, {Unit::Ounces, 2}, {Unit::Kilograms, 3}, {Unit::Grams, 1}};
constexpr UnitRounding kOunces[] = {
    {Unit::Ounces, 2}, {Unit::Pounds, 2}, {Unit::Grams, 1}, {Unit::Kilograms, 3}};
constexpr UnitRounding kGrams[] = {
    {Unit::Grams, 3}, {Unit::Kilograms, 3}, {Unit::Ounces, 2}, {Unit::Pounds, 2}};
constexpr UnitRounding kHopAmounts[] = {{Unit::Ounces, 2},    {Unit::Pounds, 2}, {Unit::Grams, 1},
                                        {Unit::Kilograms, 3}, {Unit::AAU, 2},    {Unit::IBU, 2}};
constexpr UnitRounding kPressures[] = {{Unit::PSI, 2}, {Unit::KPa, 1}, {Unit::Pa, 1}, {Unit::Atm, 3}};

constexpr int kCompoundOunceDecimals = 1;
constexpr int kMostDecimals = 9;

std::span<const UnitRounding> UnitsFor(AmountKind kind) {
    switch (kind) {
        case AmountKind::Volume:
            return kVolumes;
        case AmountKind::Pounds:
            return kPounds;
        case AmountKind::Ounces:
            return kOunces;
        case AmountKind::Grams:
            return kGrams;
        case AmountKind::HopAmount:
            return kHopAmounts;
        case AmountKind::Pressure:
            break;
    }
    return kPressures;
}

// A text taken apart: what stands before the number, the number, and the unit behind it with the blanks
// between.
struct TypedAmount {
    std::string_view before;
    double number = 0;
    std::string_view behind;
};

std::optional<TypedAmount> TakeApart(std::string_view text) {
    // As for GetToken, the text ends at a remark in brackets.
    const std::string_view all = text.substr(0, text.find('('));
    std::string_view rest = Trim(text);
    const std::string_view token = GetToken(rest);
    const std::optional<double> number = ParseMixedNumber(token, rest);
    if (!number) return std::nullopt;
    const auto begin = static_cast<std::size_t>(token.data() - text.data());
    const std::string_view unit = Trim(rest);
    if (unit.empty()) return TypedAmount{text.substr(0, begin), *number, {}};
    const auto unitBegin = static_cast<std::size_t>(unit.data() - text.data());
    const std::size_t end = all.find_last_not_of(' ', unitBegin - 1) + 1;
    return TypedAmount{text.substr(0, begin), *number, text.substr(end, unitBegin + unit.size() - end)};
}

// Rounds to that many decimals, or to as many more as the amount needs in order not to vanish.
RoundedQuantity Rounded(double amount, int decimals) {
    RoundedQuantity rounded = FormatQuantity(amount, decimals);
    while (rounded.value == 0 && amount > 0 && decimals < kMostDecimals)
        rounded = FormatQuantity(amount, ++decimals);
    return rounded;
}

// Returns the unit behind a number that has become another one, as English wants it. Only words that are
// spelled out have a plural of their own.
std::string InNumber(std::string_view behind, double before, double now) {
    static constexpr std::array<std::string_view, 13> kWords{
        "gallon", "quart", "pint", "cup",  "ounce",    "tablespoon", "teaspoon",
        "liter",  "pound", "gram", "kilo", "kilogram", "milliliter"};
    const bool wasOne = before == 1, isOne = now == 1;
    std::string text(behind);
    if (wasOne == isOne) return text;
    const std::string_view last = behind.substr(behind.find_last_of(' ') + 1);
    const std::string lower = Lower(last);
    for (const std::string_view word : kWords) {
        if (wasOne && lower == word) return text + (last.back() >= 'a' ? 's' : 'S');
        if (isOne && lower == std::string(word) + "s") return text.substr(0, text.size() - 1);
    }
    return text;
}

// "2 lb 3 oz", with or without the word of the ounces. Nothing for any other text.
std::optional<std::string> ScaledPoundsAndOunces(std::string_view text, double factor) {
    const std::optional<TypedAmount> pounds = TakeApart(text);
    if (!pounds) return std::nullopt;
    std::string_view rest = Trim(pounds->behind);
    const std::string_view word = GetToken(rest);
    if (rest.empty() || !UnitsOf(UpperText(word).View()).Has(Unit::Pounds)) return std::nullopt;
    const std::optional<TypedAmount> ounces = TakeApart(rest);
    if (!ounces || !ParseOunces(rest)) return std::nullopt;
    const double all = Finite((pounds->number * kOuncesPerPound + ounces->number) * factor);
    double wholePounds = std::floor(all / kOuncesPerPound);
    const double behind = std::max(all - wholePounds * kOuncesPerPound, 0.0);
    RoundedQuantity left = wholePounds > 0 ? FormatQuantity(behind, kCompoundOunceDecimals)
                                           : Rounded(behind, kCompoundOunceDecimals);
    if (left.value >= kOuncesPerPound) {
        wholePounds += 1;
        left = {0, "0"};
    }
    const std::string_view poundWord =
        pounds->behind.substr(0, static_cast<std::size_t>(rest.data() - pounds->behind.data()));
    const std::size_t wordEnd = poundWord.find_last_not_of(' ') + 1;
    std::string scaled(pounds->before);
    scaled += NumberText(wholePounds);
    scaled += InNumber(poundWord.substr(0, wordEnd), pounds->number, wholePounds);
    scaled += poundWord.substr(wordEnd);
    scaled += ounces->before;
    scaled += left.text;
    return scaled + InNumber(ounces->behind, ounces->number, left.value);
}

}  // namespace

std::optional<std::string> ScaledText(std::string_view text, double factor, AmountKind kind) {
    const UnitReader reader(text, NumberForm::Mixed);
    if (!reader.HasNumber() || reader.Number() < 0) return std::nullopt;
    for (const auto& [unit, decimals] : UnitsFor(kind)) {
        const bool named = unit == Unit::FluidOunces ? reader.NamesFluid(unit) : reader.Names(unit);
        if (!named) continue;
        const std::optional<TypedAmount> typed = TakeApart(text);
        if (!typed) return std::nullopt;
        const RoundedQuantity scaled = Rounded(Finite(typed->number * factor), decimals);
        std::string whole(typed->before);
        whole += scaled.text;
        return whole + InNumber(typed->behind, typed->number, scaled.value);
    }
    if (kind == AmountKind::Volume || kind == AmountKind::Pressure) return std::nullopt;
    return ScaledPoundsAndOunces(text, factor);
}

}  // namespace tw

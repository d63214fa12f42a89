#include "doctor/ExactUnits.h"

#include "exchange/AsciiCase.h"
#include "platform/Error.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns the next number of the text, which is cut off.
std::optional<double> CutNumber(std::string_view& text) {
    try {
        const std::string_view token = GetToken(text);
        return token.empty() ? std::nullopt : ParseMixedNumber(token, text);
    } catch (const Error&) {
        return std::nullopt;
    }
}

// Returns the next unit of the text, which is cut off. "fl oz" has two words.
std::string CutUnit(std::string_view& text) {
    std::string unit(GetToken(text));
    if (EqualAscii(Trim(unit), "fl") || EqualAscii(Trim(unit), "fl."))
        unit.append(" ").append(GetToken(text));
    return unit;
}

// Returns the sum of numbers, each with its unit.
std::optional<double> SumIn(std::string_view text, UnitKind kind) {
    double sum = 0;
    text = Trim(text);
    if (text.empty()) return std::nullopt;
    while (!text.empty()) {
        const std::optional<double> number = CutNumber(text);
        const ForeignUnit* const unit = number ? FindUnit(kind, CutUnit(text)) : nullptr;
        if (!unit) return std::nullopt;
        sum += unit->ToBase(*number);
    }
    return sum;
}

}  // namespace

std::string_view UnitWordOf(std::string_view amount) {
    std::string_view word = Trim(amount);
    if (word.ends_with('.')) word.remove_suffix(1);
    const std::size_t before = word.find_last_of("0123456789 ./");
    if (before == std::string_view::npos) return word;
    const std::string_view last = word.substr(before + 1);
    // "fl oz" has two words.
    if (const std::string_view front = Trim(word.substr(0, before));
        word[before] == ' ' && front.size() >= 2 && EqualAscii(front.substr(front.size() - 2), "fl"))
        return word.substr(front.size() - 2);
    return last;
}

std::optional<double> KilogramsIn(std::string_view text) {
    return SumIn(text, UnitKind::Mass);
}

std::optional<double> LitresIn(std::string_view text) {
    return SumIn(text, UnitKind::Volume);
}

std::optional<double> MinutesIn(std::string_view text) {
    if (const auto minutes = SumIn(text, UnitKind::Time)) return minutes;
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

#include "document/BriefCell.h"

#include <cmath>
#include <optional>
#include <string_view>

#include "platform/Error.h"
#include "record/CellRules.h"
#include "record/RecipeRecord.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/UnitReader.h"

namespace tw {
namespace {

constexpr int kScaleDecimals = 1;
constexpr double kLeastOnScale = 0.05;  // grams
constexpr double kManyPpm = 10;
constexpr int kFewPpmDecimals = 1;

bool IsIon(const Grid& grid, int row, int col) {
    if (grid.Id() == GridId::Treatment) return RuleOf(grid, col).takes == CellTakes::Computed;
    return grid.Id() == GridId::Water && row >= WaterRow::Needed && col >= WaterCol::FirstIon;
}

// Returns the number rounded to two digits, for a number below 0.1.
std::string TwoDigits(double number) {
    int decimals = 2;
    for (double next = number; next < 0.1 && decimals < 9; next *= 10) ++decimals;
    return FormatQuantity(number, decimals).text;
}

// A weight with a unit other than grams is told in that unit.
std::string BriefGrams(const std::string& text) {
    const UnitReader reader(text, NumberForm::Mixed);
    std::string_view rest = text;
    const std::string_view token = GetToken(rest);
    if (!reader.HasNumber() || !reader.Names(Unit::Grams) || !ParseReal(token)) return text;
    const double grams = reader.Number();
    const std::string brief =
        grams < kLeastOnScale ? TwoDigits(grams) : FormatQuantity(grams, kScaleDecimals).text;
    if (brief.size() >= token.size()) return text;
    return brief + text.substr(static_cast<std::size_t>(token.data() - text.data()) + token.size());
}

std::string BriefPpm(const std::string& text) {
    const std::optional<double> ppm = ParseReal(text);
    if (!ppm) return text;
    return std::abs(*ppm) < kManyPpm ? FormatQuantity(*ppm, kFewPpmDecimals).text : FormatNumber(*ppm, "0");
}

}  // namespace

std::string BriefCell(const Grid& grid, int row, int col) {
    std::string shown = grid.Shown(row, col);
    if (!grid.IsDataRow(row)) return shown;
    try {
        if (grid.Id() == GridId::Treatment && RuleOf(grid, col).takes == CellTakes::Grams)
            return BriefGrams(shown);
        if (IsIon(grid, row, col)) return BriefPpm(shown);
    } catch (const Error&) {
        // A number that cannot be read is shown as it is.
    }
    return shown;
}

}  // namespace tw

#include "record/Entries.h"

#include <optional>
#include <string>

#include "platform/Error.h"
#include "record/CellRules.h"
#include "record/FieldRules.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

Refusal Refused(std::string text, std::string_view examples) {
    return {kInvalidEntry, std::move(text), ForExample(examples)};
}

Reading<CellValue> AsCell(const Reading<double>& read) {
    if (!read) return read.Why();
    return CellValue::Of(*read);
}

// kind is the word for the number in the messages.
Reading<CellValue> ReadPlainNumber(std::string_view text, std::string_view kind) {
    const std::optional<double> number = ParseReal(text);
    constexpr std::string_view kExamples = "36, 1.5";
    if (!number) return Refused("Please enter a valid " + std::string(kind) + " value", kExamples);
    if (*number < 0) return Refused("Please enter a positive " + std::string(kind) + " value", kExamples);
    return CellValue::Of(*number);
}

// The refusal has no message: the editor offers no word outside the list, so none is expected.
Reading<CellValue> ReadHopForm(std::string_view text) {
    for (std::size_t i = 0; i < kHopForms.size(); ++i)
        if (SameName(text, kHopForms[i].name)) return CellValue::Of(static_cast<double>(i));
    return Refusal{};
}

constexpr std::string_view kHopAmounts = "1 oz, 28 g, 8 AAU, 20 IBU";

Reading<CellValue> ReadHopAmount(std::string_view text) {
    using Kind = CellValue::Kind;
    const auto notNegative = [](Kind kind, double number, std::string_view word) -> Reading<CellValue> {
        if (number < 0) return Refused("Please enter a positive " + std::string(word), kHopAmounts);
        return CellValue{kind, number};
    };
    if (const auto ounces = ParseOuncesAnyUnit(text)) return notNegative(Kind::Number, *ounces, "weight");
    if (const auto units = ParseAAU(text)) return notNegative(Kind::AlphaAcidUnits, *units, "AAU value");
    if (const auto units = ParseIBU(text)) return notNegative(Kind::BitternessUnits, *units, "IBU value");
    return Refused("Please enter a valid hopping unit (weight, AAUs, or IBUs)", kHopAmounts);
}

Reading<double> ReadMultiplier(std::string_view text) {
    if (IsBlank(text)) return 1.0;
    const std::optional<double> number = ParseReal(text);
    constexpr std::string_view kExamples = "1, 0.9";
    if (!number) return Refused("Please enter a valid decimal number", kExamples);
    if (*number < 0) return Refused("Please enter a positive decimal number", kExamples);
    return *number;
}

}  // namespace

Reading<double> ReadEntry(const TextBox& box, std::string_view text) {
    switch (RuleOf(box).takes) {
        case FieldTakes::Gallons:
            return ValidateVolume(text);
        case FieldTakes::Percent:
            return ValidatePercent(text);
        case FieldTakes::SpecificGravity:
            return ValidateGravity(text);
        case FieldTakes::Fahrenheit:
            return ValidateTemperature(text);
        case FieldTakes::Multiplier:
            return ReadMultiplier(text);
        case FieldTakes::FreeText:
            break;
    }
    return box.Value();
}

Reading<CellValue> ReadEntry(const Grid& grid, int row, int col, std::string_view text) {
    if (IsBlank(text)) return CellValue{};
    const CellRule& rule = RuleOf(grid, col);
    switch (rule.takes) {
        case CellTakes::Pounds:
            return AsCell(ValidatePounds(text));
        case CellTakes::Ounces:
            return AsCell(ValidateOunces(text));
        case CellTakes::Grams:
            return AsCell(ValidateGrams(text));
        case CellTakes::Percent:
            return AsCell(ValidatePercent(text));
        case CellTakes::Minutes:
            // The time of a dry-hopped row is free text without a number, for example "5 days in the keg".
            if (grid.Checked(row, HopCol::DryHopped)) return CellValue{};
            return AsCell(ValidateMinutes(text));
        case CellTakes::HopAmount:
            return ReadHopAmount(text);
        case CellTakes::HopForm:
            return ReadHopForm(text);
        case CellTakes::PlainNumber:
            return ReadPlainNumber(text, rule.numberWord);
        case CellTakes::KegPsi:
            return AsCell(ValidatePressure(text));
        case CellTakes::RowLabel:
        case CellTakes::Computed:
        case CellTakes::AnyText:
        case CellTakes::YesNo:
            break;
    }
    return CellValue{};
}

std::optional<double> NumberTold(const TextBox& box, std::string_view text) {
    try {
        const Reading<double> read = ReadEntry(box, text);
        if (read) return *read;
    } catch (const Error&) {
        // A text with an arithmetic fault has no number, like a text that is refused.
    }
    return std::nullopt;
}

std::optional<CellValue> NumberTold(const Grid& grid, int row, int col, std::string_view text) {
    try {
        const Reading<CellValue> read = ReadEntry(grid, row, col, text);
        if (read) return *read;
    } catch (const Error&) {
        // No number, as in the function above.
    }
    return std::nullopt;
}

void MarkOwnNumber(Grid& grid, int row, int col) {
    const Cell& cell = grid.At(row, col);
    grid.SetOwnNumber(row, col, NumberTold(grid, row, col, cell.text).value_or(CellValue{}) != cell.value);
}

void MarkOwnNumbers(RecipeRecord& record) {
    // A text that cannot be read, such as a volume that was rounded to "0 gal.", tells no number at all.
    for (TextBox* const box : record.TextBoxes())
        box->SetOwnNumber(NumberTold(*box, box->Committed()) != box->Value());
    for (Grid* const grid : record.Grids())
        for (int row = Grid::FixedRows(); row < grid->EndOfData(); ++row)
            for (int col = 0; col < grid->Cols(); ++col)
                if (!grid->IsReadOnly(row, col) && !grid->IsCheckBox(row, col))
                    MarkOwnNumber(*grid, row, col);
}

}  // namespace tw

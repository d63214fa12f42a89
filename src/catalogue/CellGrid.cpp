#include "catalogue/CellGrid.h"

#include <algorithm>

#include "calc/BeerColor.h"
#include "catalogue/CellReader.h"
#include "platform/Error.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns the number of a text that is not blank; nullopt, after a message, if the text is refused.
std::optional<double> ReadAloud(const RangeRow& row, std::string_view text, MessagePort& messages) {
    try {
        const Reading<double> value = ReadCell(row, text);
        if (value) return *value;
        ShowRefusal(messages, value.Why());
    } catch (const Error& error) {
        messages.ShowMessage("Error", error.WithNumber());
    }
    return std::nullopt;
}

}  // namespace

CellGrid::CellGrid(std::span<const RangeRow> rows) : rows_(rows) {
    Clear();
}

std::string CellGrid::NameOf(int row, int col) {
    return "gridInfo(" + std::to_string(row) + "," + std::to_string(col) + ")";
}

void CellGrid::Clear() {
    cells_.assign(rows_.size() * static_cast<std::size_t>(Cols()), Cell());
}

void CellGrid::Load(int row, int col, double value) {
    Cell& cell = At(row, col);
    cell.value = Finite(value);
    cell.text = cell.goodText = NumberText(*cell.value);
}

bool CellGrid::Type(int row, int col, std::string_view text) {
    Cell& cell = At(row, col);
    if (cell.text == text) return false;
    cell.text = text;
    return true;
}

bool CellGrid::Leave(int row, int col, MessagePort& messages) {
    Cell& cell = At(row, col);
    // Unchanged text is not read again, so that the stored number keeps all its digits.
    if (cell.text == cell.goodText) return true;
    const bool blank = IsBlank(cell.text);
    const std::optional<double> value = blank ? std::nullopt : ReadAloud(Quantity(row), cell.text, messages);
    if (!blank && !value) {
        cell.text = cell.goodText;
        return false;
    }
    cell.value = value;
    cell.goodText = cell.text;
    return true;
}

std::string CellGrid::RangeHint() const {
    for (int row = 0; Cols() > 1 && row < Rows(); ++row) {
        const std::optional<double> low = Value(row, 0), high = Value(row, 1);
        if (low && high && *low > *high)
            return std::string(Quantity(row).caption) + ": the low value is above the high one.";
    }
    return {};
}

std::optional<double> CellGrid::ColorHcu() const {
    for (int row = 0; row < Rows(); ++row) {
        const RangeRow::Color color = Quantity(row).color;
        if (color == RangeRow::Color::None) continue;
        const std::optional<double> low = Value(row, 0), high = Value(row, 1);
        if (!low && !high) return std::nullopt;
        const double middle = std::max(0.0, (low ? *low : *high) / 2 + (high ? *high : *low) / 2);
        // A malt is shown as the wort of one pound in one gallon, whose HCU equals its degrees Lovibond.
        return color == RangeRow::Color::Srm ? SRMToHCU(middle) : middle;
    }
    return std::nullopt;
}

}  // namespace tw

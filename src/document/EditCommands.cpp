#include "document/EditCommands.h"

#include <algorithm>
#include <utility>

#include "record/CellRules.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kPasteFailed = "Paste Failed";
constexpr std::string_view kChecked = "Yes";
constexpr std::string_view kUnchecked = "No";

// Converts line ends of every kind to "\r\n", as in the notes.
std::string NotesLines(std::string_view text) {
    std::string lines = ReplaceAll(text, "\r\n", "\n");
    std::ranges::replace(lines, '\r', '\n');
    return ReplaceAll(lines, "\n", "\r\n");
}

// Joins the lines with spaces, for a box of one line.
std::string OneLine(std::string_view text) {
    std::string lines = ReplaceAll(text, "\r\n", "\n");
    std::ranges::replace(lines, '\r', '\n');
    while (lines.ends_with('\n')) lines.pop_back();
    std::ranges::replace(lines, '\n', ' ');
    return lines;
}

bool HasCells(const Grid* grid) {
    return grid && grid->Rows() > Grid::FixedRows();
}

std::string CellCopy(const Grid& grid, int row, int col) {
    if (!grid.IsCheckBox(row, col)) return grid.Text(row, col);
    return std::string(grid.Checked(row, col) ? kChecked : kUnchecked);
}

bool MeansChecked(std::string_view text) {
    return text == kChecked || ReadNumber(text) == 1;
}

// Returns the cell of the block for a position in the target, which the block fills repeatedly.
const std::string& BlockCell(const ClipboardBlock& block, int row, int col) {
    const auto& line = block[static_cast<std::size_t>(row) % block.size()];
    return line[static_cast<std::size_t>(col) % line.size()];
}

int Height(const ClipboardBlock& block) {
    return static_cast<int>(block.size());
}

int Width(const ClipboardBlock& block) {
    return static_cast<int>(block.front().size());
}

// Returns the range that a paste fills: a selection of one row or column grows to the size of the block,
// within the limits of the grid.
GridRange TargetOf(const Grid& grid, const ClipboardBlock& block) {
    GridRange target = grid.Selection();
    if (target.Rows() == 1) target.row2 = std::min(grid.Rows(), target.row1 + Height(block)) - 1;
    if (target.Cols() == 1) target.col2 = std::min(grid.Cols(), target.col1 + Width(block)) - 1;
    return target;
}

// Returns what a column takes, as a word for messages.
std::string_view WordFor(CellTakes takes) {
    switch (takes) {
        case CellTakes::Pounds:
        case CellTakes::Ounces:
        case CellTakes::Grams:
            return "a weight";
        case CellTakes::Percent:
            return "a percentage";
        case CellTakes::Minutes:
            return "a length of time";
        case CellTakes::HopAmount:
            return "a weight, AAUs or IBUs";
        case CellTakes::HopForm:
            return "a form of hops";
        case CellTakes::KegPsi:
            return "a possible pressure";
        default:
            return "a possible number";
    }
}

// Names the cell that refuses a paste: "Row 3, Amount: 'abc' is not a weight".
Refusal PasteRefusal(const Grid& grid, int row, int col, std::string_view text) {
    const CellRule& rule = RuleOf(grid, col);
    const std::string_view column = rule.header.substr(0, rule.header.find(" ("));
    std::string advice = "Row " + std::to_string(row) + ", ";
    advice.append(column).append(": '").append(text).append("' is not ").append(WordFor(rule.takes));
    return {kPasteFailed, "The clipboard contains data which are not valid entries for this grid",
            std::move(advice)};
}

template <class Visit>
bool EveryCell(const GridRange& range, Visit visit) {
    for (int row = range.row1; row <= range.row2; ++row)
        for (int col = range.col1; col <= range.col2; ++col)
            if (!visit(row, col)) return false;
    return true;
}

}  // namespace

void EditCommands::SelectAll() {
    if (TextBox* const box = focus_.Box()) box->Select({0, static_cast<int>(CodePointCount(box->Text()))});
    Grid* const grid = focus_.FocusedGrid();
    if (!grid || !focus_.FlushEdits()) return;
    focus_.SelectCells(*grid, {Grid::FixedRows(), 0, grid->Rows() - 1, grid->Cols() - 1});
}

void EditCommands::Copy() {
    const TextBox* const box = focus_.Box();
    if (box && box->Selection().length > 0) recipe_.platform.clipboard.SetText(SelectedText(*box));
    if (!HasCells(focus_.FocusedGrid()) || !focus_.FlushEdits()) return;
    CopyCells(*focus_.FocusedGrid());
}

void EditCommands::CopyCells(const Grid& grid) {
    const GridRange range = grid.Selection();
    ClipboardBlock block;
    const auto copyRow = [&](int row) {
        auto& line = block.emplace_back();
        for (int col = range.col1; col <= range.col2; ++col) line.push_back(CellCopy(grid, row, col));
    };
    if (recipe_.host.CopyHeaders() && range.Cols() == grid.Cols())
        for (int row = 0; row < Grid::FixedRows(); ++row) copyRow(row);
    for (int row = range.row1; row <= range.row2; ++row) copyRow(row);
    recipe_.platform.clipboard.SetText(JoinBlock(block));
}

void EditCommands::Clear() {
    if (TextBox* const box = focus_.Box()) fields_.Replace(*box, box->Selection(), {}, ChangeType::Delete);
    Grid* const grid = focus_.FocusedGrid();
    if (!HasCells(grid) || !focus_.FlushEdits()) return;
    const ClipboardBlock nothing(1, std::vector<std::string>(1));
    ApplyBlock(*grid, grid->Selection(), nothing, ChangeType::Delete);
}

void EditCommands::Cut() {
    if (focus_.Box() ? focus_.Box()->Computed() : !HasCells(focus_.FocusedGrid())) return;
    if (focus_.FocusedGrid() && !focus_.FlushEdits()) return;
    OneStep step(recipe_, ChangeType::Cut);
    Copy();
    Clear();
    step.Keep();
}

void EditCommands::Paste() {
    if (!recipe_.platform.clipboard.HasText()) return;
    const std::string text = recipe_.platform.clipboard.Text();
    if (TextBox* const box = focus_.Box()) {
        const bool lines = box->Id() == FieldId::Notes;
        fields_.Replace(*box, box->Selection(), lines ? NotesLines(text) : OneLine(text), ChangeType::Paste);
    }
    Grid* const grid = focus_.FocusedGrid();
    if (!HasCells(grid) || !focus_.FlushEdits()) return;
    const ClipboardBlock block = SplitBlock(text);
    const GridRange target = TargetOf(*grid, block);
    if (CanPaste(*grid, target, block)) ApplyBlock(*grid, target, block, ChangeType::Paste);
}

bool EditCommands::CanPaste(const Grid& grid, const GridRange& target, const ClipboardBlock& block) {
    const bool fits = target.Rows() % Height(block) == 0 && target.Cols() % Width(block) == 0;
    if (!fits && !recipe_.host.PasteMismatchSize()) {
        recipe_.Tell(kPasteFailed, "The data in the clipboard has a different size/shape than the selection");
        return false;
    }
    return EveryCell(target, [&](int row, int col) {
        if (!cells_.CanEdit(grid, row, col) || grid.IsCheckBox(row, col)) return true;
        const std::string& text = BlockCell(block, row - target.row1, col - target.col1);
        const Reading<CellValue> read = cells_.ReadCell(grid, row, col, text);
        if (!read) recipe_.Tell(PasteRefusal(grid, row, col, text));
        return read.Accepted();
    });
}

void EditCommands::ApplyBlock(Grid& grid, const GridRange& target, const ClipboardBlock& block,
                              ChangeType type) {
    const RedrawHold hold(recipe_.view);
    OneStep step(recipe_, type);
    EveryCell(target, [&](int row, int col) {
        if (cells_.CanEdit(grid, row, col))
            ApplyBlockCell(grid, row, col, BlockCell(block, row - target.row1, col - target.col1));
        return true;
    });
    step.Keep();
}

void EditCommands::ApplyBlockCell(Grid& grid, int row, int col, const std::string& text) {
    if (!grid.IsCheckBox(row, col))
        cells_.EditCell(grid, row, col, text, Asking::Quietly);
    else if (!text.empty())
        cells_.SetChecked(grid, row, col, MeansChecked(text));
}

}  // namespace tw

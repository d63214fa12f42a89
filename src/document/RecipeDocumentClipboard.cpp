// The edit commands on the control with the focus, and the names that come from the catalogue's choosers.
#include <algorithm>

#include "document/RecipeDocument.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kPasteFailed = "Paste Failed";
constexpr std::string_view kChecked = "Yes";
constexpr std::string_view kUnchecked = "No";

std::string_view Selected(const TextBox& box) {
    const TextSelection selection = box.Selection();
    const std::string_view text = box.Text();
    const std::size_t begin = CodePointOffset(text, static_cast<std::size_t>(selection.start));
    const std::string_view rest = text.substr(begin);
    return rest.substr(0, CodePointOffset(rest, static_cast<std::size_t>(selection.length)));
}

// Every kind of line end as the notes keep it.
std::string NotesLines(std::string_view text) {
    std::string lines = ReplaceAll(text, "\r\n", "\n");
    std::ranges::replace(lines, '\r', '\n');
    return ReplaceAll(lines, "\n", "\r\n");
}

// A box of one line takes the lines as words of one.
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
    double number = 0;
    return text == kChecked || (ReadNumber(text, number) && number == 1);
}

// The block's cell for a place of the target; the block repeats.
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

// What a paste fills: a selection of one row or column grows to the size of the block, as far as the grid
// goes.
GridRange TargetOf(const Grid& grid, const ClipboardBlock& block) {
    GridRange target = grid.Selection();
    if (target.Rows() == 1) target.row2 = std::min(grid.Rows(), target.row1 + Height(block)) - 1;
    if (target.Cols() == 1) target.col2 = std::min(grid.Cols(), target.col1 + Width(block)) - 1;
    return target;
}

template <class Visit>
bool EveryCell(const GridRange& range, Visit visit) {
    for (int row = range.row1; row <= range.row2; ++row)
        for (int col = range.col1; col <= range.col2; ++col)
            if (!visit(row, col)) return false;
    return true;
}

}  // namespace

void RecipeDocument::FocusOn(TextBox& box) {
    if (focusBox_ != &box && !view_) FlushEdits();
    focusBox_ = &box;
    focusGrid_ = nullptr;
    RefreshEditCommands();
}

void RecipeDocument::FocusOn(Grid& grid) {
    if (!view_) FlushEdits();
    focusBox_ = nullptr;
    focusGrid_ = &grid;
    RefreshEditCommands();
}

void RecipeDocument::FocusElsewhere() {
    if (!view_) FlushEdits();
    focusBox_ = nullptr;
    focusGrid_ = nullptr;
    RefreshEditCommands();
}

void RecipeDocument::RefreshEditCommands() {
    const bool copies = focusBox_ || focusGrid_;
    if (IsActive()) host_.Commands().EnableCopyPaste(copies, copies && !(focusBox_ && focusBox_->Computed()));
}

void RecipeDocument::SelectAll() {
    if (focusBox_) focusBox_->Select({0, static_cast<int>(CodePointCount(focusBox_->Text()))});
    if (!focusGrid_ || !FlushEdits()) return;
    SelectCells(*focusGrid_, {Grid::FixedRows(), 0, focusGrid_->Rows() - 1, focusGrid_->Cols() - 1});
}

void RecipeDocument::Copy() {
    if (focusBox_ && focusBox_->Selection().length > 0) platform_.clipboard.SetText(Selected(*focusBox_));
    if (!HasCells(focusGrid_) || !FlushEdits()) return;
    CopyCells(*focusGrid_);
}

void RecipeDocument::CopyCells(const Grid& grid) {
    const GridRange range = grid.Selection();
    ClipboardBlock block;
    const auto copyRow = [&](int row) {
        auto& line = block.emplace_back();
        for (int col = range.col1; col <= range.col2; ++col) line.push_back(CellCopy(grid, row, col));
    };
    if (host_.CopyHeaders() && range.Cols() == grid.Cols())
        for (int row = 0; row < Grid::FixedRows(); ++row) copyRow(row);
    for (int row = range.row1; row <= range.row2; ++row) copyRow(row);
    platform_.clipboard.SetText(JoinBlock(block));
}

void RecipeDocument::Clear() {
    if (focusBox_) ReplaceSelection(*focusBox_, {}, ChangeType::Delete);
    if (!HasCells(focusGrid_) || !FlushEdits()) return;
    const ClipboardBlock nothing(1, std::vector<std::string>(1));
    ApplyBlock(*focusGrid_, focusGrid_->Selection(), nothing, ChangeType::Delete);
}

void RecipeDocument::Cut() {
    if (focusBox_ ? focusBox_->Computed() : !HasCells(focusGrid_)) return;
    if (focusGrid_ && !FlushEdits()) return;
    AsOneStep(ChangeType::Cut, [this] {
        Copy();
        Clear();
    });
}

void RecipeDocument::Paste() {
    if (!platform_.clipboard.HasText()) return;
    const std::string text = platform_.clipboard.Text();
    if (focusBox_) {
        const bool lines = focusBox_->Id() == FieldId::Notes;
        ReplaceSelection(*focusBox_, lines ? NotesLines(text) : OneLine(text), ChangeType::Paste);
    }
    if (!HasCells(focusGrid_) || !FlushEdits()) return;
    const ClipboardBlock block = SplitBlock(text);
    const GridRange target = TargetOf(*focusGrid_, block);
    if (CanPaste(*focusGrid_, target, block)) ApplyBlock(*focusGrid_, target, block, ChangeType::Paste);
}

void RecipeDocument::ReplaceSelection(TextBox& box, std::string_view with, ChangeType type) {
    if (box.Computed()) return;
    const CompoundEdit compound(recorder_, type);
    const TextSelection selection = box.Selection();
    const std::string_view old = box.Text();
    const std::string_view selected = Selected(box);
    std::string text(old.data(), selected.data());
    text += with;
    text.append(selected.data() + selected.size(), old.data() + old.size());
    SetText(box, text);
    box.Select({selection.start + static_cast<int>(CodePointCount(with)), 0});
}

bool RecipeDocument::CanPaste(const Grid& grid, const GridRange& target, const ClipboardBlock& block) {
    const bool fits = target.Rows() % Height(block) == 0 && target.Cols() % Width(block) == 0;
    if (!fits && !host_.PasteMismatchSize()) {
        platform_.messages.ShowMessage(
            kPasteFailed, "The data in the clipboard has a different size/shape than the selection");
        return false;
    }
    const bool valid = EveryCell(target, [&](int row, int col) {
        return !CanEdit(grid, row, col) || grid.IsCheckBox(row, col) ||
               ReadCell(grid, row, col, BlockCell(block, row - target.row1, col - target.col1)).Accepted();
    });
    if (!valid)
        platform_.messages.ShowMessage(
            kPasteFailed, "The clipboard contains data which are not valid entries for this grid");
    return valid;
}

void RecipeDocument::ApplyBlock(Grid& grid, const GridRange& target, const ClipboardBlock& block,
                                ChangeType type) {
    const RedrawHold hold(view_);
    AsOneStep(type, [&] {
        EveryCell(target, [&](int row, int col) {
            if (CanEdit(grid, row, col))
                ApplyBlockCell(grid, row, col, BlockCell(block, row - target.row1, col - target.col1));
            return true;
        });
    });
}

void RecipeDocument::ApplyBlockCell(Grid& grid, int row, int col, const std::string& text) {
    if (!grid.IsCheckBox(row, col))
        EditCell(grid, row, col, text, Asking::Quietly);
    else if (!text.empty())
        SetChecked(grid, row, col, MeansChecked(text));
}

void RecipeDocument::ChooseFromCatalogue(Grid& grid, int col, std::string_view name) {
    AsOneStep(ChangeType::Selection, [&] { EditCell(grid, grid.CurrentRow(), col, name, Asking::Quietly); });
}

void RecipeDocument::ChangeGrain(std::string_view name) {
    ChooseFromCatalogue(record_.gridGrain, GrainCol::Name, name);
}
void RecipeDocument::ChangeExtract(std::string_view name) {
    ChooseFromCatalogue(record_.gridExtract, GrainCol::Name, name);
}
void RecipeDocument::ChangeHop(std::string_view name) {
    ChooseFromCatalogue(record_.gridHops, HopCol::Variety, name);
}
void RecipeDocument::ChangeYeast(std::string_view name) {
    ChooseFromCatalogue(record_.gridLog, LogCol::Notes, name);
}
void RecipeDocument::ChangeWater(std::string_view name) {
    ChooseFromCatalogue(record_.gridWater, WaterCol::Profile, name);
}
void RecipeDocument::ChangeSalt(std::string_view name) {
    ChooseFromCatalogue(record_.gridTreatment, TreatmentCol::Name, name);
}
void RecipeDocument::ChangeSugar(std::string_view name) {
    ChooseFromCatalogue(record_.gridPriming, PrimingCol::Sugar, name);
}

}  // namespace tw

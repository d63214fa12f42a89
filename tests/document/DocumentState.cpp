#include "DocumentState.h"

#include <algorithm>
#include <sstream>

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw::test {
namespace {

bool IsFreeText(const RecipeRecord& r, const TextBox& box) {
    return &box == &r.txtName || &box == &r.txtNumBatches || &box == &r.txtNotes;
}

bool IsComputedWater(const RecipeRecord& r, const Grid& grid, int row, int col) {
    return &grid == &r.gridWater && row >= WaterRow::Needed && col >= WaterCol::FirstIon;
}

std::string Rounded(double number) {
    std::ostringstream out;
    out.precision(12);
    out << number;
    return out.str();
}

void AddValue(const CellValue& value, bool computed, std::string& text) {
    static constexpr const char* kKinds[] = {" -", " N", " A", " I"};
    text += kKinds[static_cast<std::size_t>(value.kind)];
    text += computed ? Rounded(value.number) : NumberText(value.number);
}

void AddBoxes(const RecipeRecord& r, DocumentState& state) {
    for (const TextBox* box : r.TextBoxes()) {
        const std::string line = box->Name() + "=" + box->Text();
        // Uncommitted text that consists only of blanks counts as empty.
        const bool blank = !IsFreeText(r, *box) && IsBlank(box->Text());
        if (!box->Computed()) state.entered += (blank ? box->Name() + "=" : line) + "\n";
        state.all += line;
        if (!box->Empty() || !box->Computed()) {
            state.all += "|";
            state.all += box->Computed() ? Rounded(box->Value()) : NumberText(box->Value());
        }
        if (!box->Computed() && !IsFreeText(r, *box)) state.all += "|" + box->Committed();
        state.all += "\n";
    }
}

void AddCell(const RecipeRecord& r, const Grid& grid, int row, int col, DocumentState& state) {
    const Cell& cell = grid.At(row, col);
    const std::string check = cell.check == CheckState::None      ? ""
                              : cell.check == CheckState::Checked ? "[x]"
                                                                  : "[ ]";
    if (!grid.IsReadOnly(row, col)) state.entered += cell.text + check + "|";
    if (IsComputedWater(r, grid, row, col) && cell.text.empty()) {
        const bool untouched = grid.Empty(WaterRow::Needed, col) && grid.Empty(WaterRow::Totals, col);
        const bool bold = row == WaterRow::Totals && (untouched || cell.bold);
        state.all += bold ? "= N0!|" : "= N0|";
        return;
    }
    // A calculated number in full precision is represented by "=".
    const bool computed = grid.IsReadOnly(row, col) && cell.value.kind == CellValue::Kind::Number;
    const bool full = computed && !cell.text.empty() && cell.text == NumberText(cell.value.number);
    if (full)
        state.all += "=";
    else
        state.all += cell.text;
    state.all += check;
    AddValue(cell.value, computed, state.all);
    state.all += cell.bold ? "!|" : "|";
}

void AddGrid(const RecipeRecord& r, const Grid& grid, DocumentState& state) {
    for (int row = Grid::FixedRows(); row < grid.Rows(); ++row) {
        const std::string place = grid.Name() + " " + std::to_string(row) + ": ";
        state.entered += place;
        state.all += place + (grid.IsReadOnlyRow(row) ? "ro " : "") +
                     std::to_string(static_cast<int>(grid.Paint(row, 0))) + " ";
        for (int col = 0; col < grid.Cols(); ++col) AddCell(r, grid, row, col, state);
        state.entered += "\n";
        state.all += "\n";
    }
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

}  // namespace

DocumentState StateOf(const RecipeDocument& document, const RecordingHost& host) {
    const RecipeRecord& r = document.Record();
    DocumentState state;
    AddBoxes(r, state);
    const std::string choices = "style " + std::to_string(document.StyleID()) + " " + r.cmbStyle.Text() +
                                " " + r.grpIBUMethod.Value() + " " + r.grpPkgMethod.Value() + "\n";
    state.entered += choices;
    state.all += choices;
    for (const Grid* grid : r.Grids()) AddGrid(r, *grid, state);
    for (const Label* label : r.Labels()) state.all += label->Name() + "=" + label->Text() + "\n";
    for (const Button* button : r.Buttons())
        state.all += button->Name() + (button->Enabled() ? " on\n" : " off\n");
    for (const char* command :
         {"EnableResizeRecipe", "EnableChangeStrength", "EnableChangeBitterness", "EnableChangeCarbonation"})
        state.all += std::string(command) + (host.IsOn(command) ? " on\n" : " off\n");
    const Rgb swatch = r.Swatch();
    state.all += "swatch " + std::to_string(swatch.red) + " " + std::to_string(swatch.green) + " " +
                 std::to_string(swatch.blue) + "\n";
    return state;
}

std::string Differences(const std::string& wanted, const std::string& got) {
    const std::vector<std::string> a = LinesOf(wanted), b = LinesOf(got);
    std::string text;
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        const std::string lineA = i < a.size() ? a[i] : "", lineB = i < b.size() ? b[i] : "";
        if (lineA != lineB) text.append("- ").append(lineA).append("\n+ ").append(lineB).append("\n");
    }
    return text;
}

TextBox* PendingBox(RecipeDocument& document) {
    const RecipeRecord& r = document.Record();
    for (TextBox* box : r.TextBoxes())
        if (!box->Computed() && !IsFreeText(r, *box) && box->Text() != box->Committed()) return box;
    return nullptr;
}

}  // namespace tw::test

// The random editor's edits of blocks of cells, and its picks for the current row.
#include <algorithm>

#include "RandomEditor.h"

namespace tw::test {

// Blocks of cells. Each command that changes a cell is one step; an arithmetic error undoes all of it.

template <class Edit>
void RandomEditor::Compound(const std::string& name, Edit edit) {
    const DocumentState before = StateOf(*document, host);
    const bool fault = Faults(edit);
    if (fault)
        ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << Trace();
    else
        RecordedIfChanged(before, {name, TabNow()});
}

void RandomEditor::ClearOrCutCells() {
    Grid& grid = AnyGrid();
    const GridRange range{Below(grid.Rows()), Below(grid.Cols()), Below(grid.Rows()), Below(grid.Cols())};
    if (!Enter(grid)) return;
    if (Chance(15))
        document->Edit().SelectAll();
    else
        document->Focus().SelectCells(grid, range);
    const bool cut = Chance(50);
    Note((cut ? "cut " : "clear ") + grid.Name());
    if (grid.Rows() == Grid::FixedRows()) {
        cut ? document->Edit().Cut() : document->Edit().Clear();
        return;
    }
    Compound(cut ? "Cut" : "Delete", [&] { cut ? document->Edit().Cut() : document->Edit().Clear(); });
}

std::string RandomEditor::Block(const Grid& grid, int col, int rows, int cols) {
    std::string text;
    for (int row = 0; row < rows; ++row) {
        for (int i = 0; i < cols; ++i) {
            if (i > 0) text += '\t';
            std::string cell = TextFor(grid, std::min(col + i, grid.Cols() - 1));
            std::erase_if(cell, [](char c) { return c == '\r' || c == '\n'; });
            text += cell;
        }
        text += Chance(30) ? "\r\n" : "\r";
    }
    return text;
}

void RandomEditor::PasteCells() {
    Grid& grid = AnyGrid();
    if (!Enter(grid)) return;
    document->Focus().SelectCells(
        grid, {Below(grid.Rows()), Below(grid.Cols()), Below(grid.Rows()), Below(grid.Cols())});
    const GridRange selection = grid.Selection();
    const int height = 1 + Below(3), width = 1 + Below(3);
    host.pasteMismatchSize = Chance(50);
    platform.clipboard.text = Block(grid, selection.col1, height, width);
    Note("paste " + grid.Name() + " " + std::to_string(selection.row1) + "," +
         std::to_string(selection.col1) + ": " + *platform.clipboard.text);
    // A selection of one row or column grows to the size of the block if the grid has room.
    const int rows = selection.Rows() > 1 ? selection.Rows() : std::min(height, grid.Rows() - selection.row1);
    const int cols = selection.Cols() > 1 ? selection.Cols() : std::min(width, grid.Cols() - selection.col1);
    const bool fits = host.pasteMismatchSize || (rows % height == 0 && cols % width == 0);
    if (grid.Rows() == Grid::FixedRows()) return document->Edit().Paste();
    const DocumentState before = StateOf(*document, host);
    Boxes();
    bool refused = false;
    const bool fault = Faults([&] { document->Edit().Paste(); });
    const Log boxes = Boxes();
    if (!fits) {
        ASSERT_EQ(
            boxes,
            Log{"[Paste Failed] The data in the clipboard has a different size/shape than the selection"});
        refused = true;
    } else if (!boxes.empty()) {
        ASSERT_EQ(
            boxes,
            Log{"[Paste Failed] The clipboard contains data which are not valid entries for this grid"});
        refused = true;
    }
    if (!fault && !refused) return RecordedIfChanged(before, {"Paste", TabNow()});
    ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << Trace();
}

void RandomEditor::PickFromCatalogue() {
    struct Choice {
        const char* grid;
        int col;
        CatalogueKind list;
    };
    static constexpr Choice kChoices[] = {
        {"gridGrain", 0, CatalogueKind::Grain},  {"gridExtract", 0, CatalogueKind::Extract},
        {"gridHops", 0, CatalogueKind::Hop},     {"gridLog", 2, CatalogueKind::Yeast},
        {"gridWater", 1, CatalogueKind::Water},  {"gridTreatment", 0, CatalogueKind::Salt},
        {"gridPriming", 0, CatalogueKind::Sugar}};
    const Choice& choice = kChoices[Below(7)];
    Grid& grid = *R().FindGrid(choice.grid);
    const std::string& name = TextFor(grid, choice.col);
    Note(std::string("choose for ") + choice.grid + " " + std::to_string(grid.CurrentRow()) + ": " + name);
    if (!Enter(grid)) return;
    Compound("Selection", [&] { document->Picks().Take(choice.list, name); });
}

void RandomEditor::PickDate() {
    Grid& log = R().gridLog;
    Note("date");
    if (!Enter(log)) return;
    const DocumentState before = StateOf(*document, host);
    document->Cells().PickLogDate({2024, 1 + Below(12), 1 + Below(28), 0, 0, 0});
    RecordedIfChanged(before, {"Selection", TabNow()});
}

}  // namespace tw::test

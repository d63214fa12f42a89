// Commands on the grids of a recipe, and those that read a field or a cell.
#include <limits>

#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "values/NumberText.h"

namespace tw {
namespace {

Grid& GridNamed(Session& session, const std::string& name) {
    Grid* const grid = session.Record().FindGrid(name);
    if (grid == nullptr) throw ScriptError("there is no grid '" + name + "'");
    return *grid;
}

struct CellPlace {
    Grid& grid;
    int row, col;
};

// Reads ROW and COL. Raises ScriptError if the grid has no such cell.
CellPlace TakePlace(Grid& grid, Arguments& arguments) {
    const int row = TakeIndex(arguments, "ROW");
    const int col = TakeIndex(arguments, "COL");
    CheckCell(grid, row, col);
    return {grid, row, col};
}

CellPlace TakeCell(Session& session, Arguments& arguments) {
    return TakePlace(TakeGrid(session, arguments), arguments);
}

// Makes a row of the grid the current one. Raises ScriptError if it does not exist or is a header.
void MakeCurrent(Session& session, Grid& grid, int row) {
    if (row < Grid::FixedRows() || row >= grid.Rows())
        throw ScriptError(grid.Name() + " has no row " + std::to_string(row));
    session.Document().Focus().FocusOn(grid);
    session.Document().Focus().SetCurrentCell(grid, row, grid.CurrentCol());
}

void EditCell(Session& session, Arguments& arguments) {
    const auto [grid, row, col] = TakeCell(session, arguments);
    const std::string text = arguments.Text();
    RecipeDocument& document = session.Document();
    if (!document.Cells().CanEdit(grid, row, col) || grid.IsCheckBox(row, col))
        return session.Out().Line("read-only");
    document.Focus().FocusOn(grid);
    document.Focus().SetCurrentCell(grid, row, col);
    document.Cells().EditCell(grid, row, col, text);
}

void Check(Session& session, Arguments& arguments) {
    const auto [grid, row, col] = TakeCell(session, arguments);
    const bool checked = arguments.Choice("the state", "yes", "no");
    arguments.End();
    if (!grid.ColumnAt(col).checkBox)
        throw ScriptError("column " + std::to_string(col) + " of " + grid.Name() + " holds no check boxes");
    if (!grid.IsCheckBox(row, col)) return session.Out().Line("read-only");
    RecipeDocument& document = session.Document();
    document.Focus().FocusOn(grid);
    document.Focus().SetCurrentCell(grid, row, col);
    document.Cells().SetChecked(grid, row, col, checked);
}

// Returns the text of a control that is not a grid.
std::string ControlText(RecipeRecord& record, const std::string& name) {
    if (const TextBox* const box = record.FindTextBox(name)) return box->Text();
    if (const Label* const label = record.FindLabel(name)) return label->Text();
    if (name == record.cmbStyle.Name()) return record.cmbStyle.Text();
    if (const Button* const button = record.FindButton(name)) return std::string(OnOff(button->Enabled()));
    if (const OptionGroup* const group = record.FindOptionGroup(name)) {
        if (name == group->Name()) return group->Value();
        return std::string(YesNo(name == group->Value()));
    }
    throw ScriptError("there is no control '" + name + "'");
}

void Get(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("CONTROL");
    RecipeRecord& record = session.Record();
    if (Grid* const grid = record.FindGrid(name)) {
        const CellPlace cell = TakePlace(*grid, arguments);
        arguments.End();
        return session.Out().Text(CellText(cell.grid, cell.row, cell.col));
    }
    arguments.End();
    session.Out().Text(ControlText(record, name));
}

void Number(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("CONTROL");
    RecipeRecord& record = session.Record();
    if (Grid* const grid = record.FindGrid(name)) {
        const CellPlace cell = TakePlace(*grid, arguments);
        arguments.End();
        return session.Out().Line(CellNumber(cell.grid, cell.row, cell.col));
    }
    arguments.End();
    const TextBox* const box = record.FindTextBox(name);
    if (box == nullptr) throw ScriptError("there is no text box or grid '" + name + "'");
    session.Out().Line(NumberText(box->Value()));
}

void ShowGrid(Session& session, Arguments& arguments) {
    const Grid& grid = TakeGrid(session, arguments);
    arguments.End();
    for (int row = 0; row < grid.Rows(); ++row) {
        std::string line;
        for (int col = 0; col < grid.Cols(); ++col) {
            if (col > 0) line.push_back('\t');
            line += EscapeText(CellText(grid, row, col));
        }
        session.Out().Line(line);
    }
}

void CountRows(Session& session, Arguments& arguments) {
    const Grid& grid = TakeGrid(session, arguments);
    arguments.End();
    session.Out().Line(std::to_string(grid.Rows()));
}

void Insert(Session& session, Arguments& arguments) {
    Grid& grid = TakeGrid(session, arguments);
    const bool rowGiven = !arguments.AtEnd();
    const int row = rowGiven ? TakeIndex(arguments, "ROW") : 0;
    arguments.End();
    RecipeDocument& document = session.Document();
    if (!grid.RowsCanChange()) return session.Out().Line("off");
    // An empty grid has no row to make current; the number then means its first row.
    const bool firstOfEmpty = grid.DataRows() == 0 && row == grid.EndOfData();
    if (rowGiven && !firstOfEmpty) MakeCurrent(session, grid, row);
    if (!document.Focus().CanInsertRow(grid)) return session.Out().Line("off");
    document.Focus().FocusOn(grid);
    document.Lines().InsertRowForGrid(grid);
}

void Delete(Session& session, Arguments& arguments) {
    Grid& grid = TakeGrid(session, arguments);
    const int row = TakeIndex(arguments, "ROW");
    arguments.End();
    RecipeDocument& document = session.Document();
    if (!grid.RowsCanChange()) return session.Out().Line("off");
    MakeCurrent(session, grid, row);
    if (!document.Focus().CanDeleteRow(grid)) return session.Out().Line("off");
    document.Lines().DeleteRowForGrid(grid);
}

void ShowTab(Session& session, Arguments& arguments) {
    const int tab = arguments.Integer("N", 0, kTabs - 1);
    arguments.End();
    session.Document().Focus().SetTab(static_cast<Tab>(tab));
}

void SetRow(Session& session, Arguments& arguments) {
    Grid& grid = TakeGrid(session, arguments);
    const int row = TakeIndex(arguments, "N");
    arguments.End();
    MakeCurrent(session, grid, row);
}

void Bold(Session& session, Arguments& arguments) {
    const auto [grid, row, col] = TakeCell(session, arguments);
    arguments.End();
    session.Out().Line(YesNo(grid.At(row, col).bold));
}

constexpr Command kCommands[] = {
    {"cell", "GRID ROW COL TEXT", "edits a cell", EditCell},
    {"check", "GRID ROW COL yes|no", "sets a check-box cell", Check},
    {"get", "CONTROL | GRID ROW COL", "the text that a control or a cell shows", Get},
    {"number", "CONTROL | GRID ROW COL", "the stored number behind it", Number},
    {"grid", "GRID", "all rows, cells separated by tabs", ShowGrid},
    {"rows", "GRID", "the number of rows, the header included", CountRows},
    {"insert", "GRID [ROW]", "inserts a row at the current row", Insert},
    {"delete", "GRID ROW", "deletes a row", Delete},
    {"tab", "N", "shows a tab, 0 to 8", ShowTab},
    {"row", "GRID N", "makes a row the current one", SetRow},
    {"bold", "GRID ROW COL", "whether a cell is bold", Bold},
};

}  // namespace

Grid& TakeGrid(Session& session, Arguments& arguments) {
    return GridNamed(session, arguments.Word("GRID"));
}

int TakeIndex(Arguments& arguments, std::string_view what) {
    return arguments.Integer(what, 0, std::numeric_limits<int>::max());
}

void CheckCell(const Grid& grid, int row, int col) {
    if (!grid.HasCell(row, col))
        throw ScriptError(grid.Name() + " has no cell " + std::to_string(row) + " " + std::to_string(col));
}

std::span<const Command> CommandsOnGrids() {
    return kCommands;
}

}  // namespace tw

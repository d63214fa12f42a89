// Commands of the Edit menu: undo and redo, the selection, the clipboard, sorting.
#include "cli/Command.h"
#include "cli/ScriptFormat.h"

namespace tw {
namespace {

// Runs a menu item; prints "off" if it does nothing.
template <CommandId kItem>
void RunItem(Session& session, Arguments& arguments) {
    arguments.End();
    if (!session.Program().RunCommand(kItem)) session.Out().Line("off");
}

void UndoType(Session& session, Arguments& arguments) {
    arguments.End();
    session.Out().Line(session.Document().History().UndoType());
}

void RedoType(Session& session, Arguments& arguments) {
    arguments.End();
    session.Out().Line(session.Document().History().RedoType());
}

void Sort(Session& session, Arguments& arguments) {
    Grid& grid = TakeGrid(session, arguments);
    const int col = TakeIndex(arguments, "COL");
    arguments.End();
    CheckCell(grid, 0, col);
    if (!grid.RowsCanChange()) return session.Out().Line("off");
    session.Document().Focus().FocusOn(grid);
    session.Document().Lines().ClickHeader(grid, col);
}

void Select(Session& session, Arguments& arguments) {
    Grid& grid = TakeGrid(session, arguments);
    GridRange range;
    range.row1 = TakeIndex(arguments, "ROW1");
    range.col1 = TakeIndex(arguments, "COL1");
    range.row2 = TakeIndex(arguments, "ROW2");
    range.col2 = TakeIndex(arguments, "COL2");
    arguments.End();
    CheckCell(grid, range.row1, range.col1);
    CheckCell(grid, range.row2, range.col2);
    session.Document().Focus().FocusOn(grid);
    session.Document().Focus().SelectCells(grid, range);
}

void ShowClipboard(Session& session, Arguments& arguments) {
    arguments.End();
    session.Out().Text(session.Clipboard().Text());
}

void SetClipboard(Session& session, Arguments& arguments) {
    session.Clipboard().SetText(arguments.Text());
    if (session.Running()) session.Program().States().ReapplyPaste();
}

constexpr Command kCommands[] = {
    {"undo", "", "takes the last edit back", RunItem<CommandId::EditUndo>},
    {"redo", "", "does again what was taken back", RunItem<CommandId::EditRedo>},
    {"undotype", "", "the name of the edit that undo takes back", UndoType},
    {"redotype", "", "the name of the edit that redo does again", RedoType},
    {"sort", "GRID COL", "a click on the header of a column", Sort},
    {"select", "GRID ROW1 COL1 ROW2 COL2", "selects a block of cells", Select},
    {"selectall", "", "selects all of the present text box or grid", RunItem<CommandId::EditSelectAll>},
    {"copy", "", "copies what is selected", RunItem<CommandId::EditCopy>},
    {"cut", "", "copies what is selected and empties it", RunItem<CommandId::EditCut>},
    {"clear", "", "empties what is selected", RunItem<CommandId::EditClear>},
    {"paste", "", "puts the clipboard in place of what is selected", RunItem<CommandId::EditPaste>},
    {"clipboard", "", "the clipboard's text", ShowClipboard},
    {"setclipboard", "TEXT", "puts a text on the clipboard", SetClipboard},
};

}  // namespace

std::span<const Command> CommandsOfEditing() {
    return kCommands;
}

}  // namespace tw

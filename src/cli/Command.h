// The commands of the console. One table, in files by topic; the help page and the tests of its completeness
// read it.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "cli/ScriptReader.h"
#include "cli/Session.h"
#include "tree/lvFiller.h"

namespace tw {

struct Command {
    std::string_view name;
    std::string_view form;  // its arguments as the help shows them
    std::string_view help;  // one line
    // Takes all arguments first, so that a line with too many changes nothing. Raises ScriptError for a line
    // that cannot be carried out, Error for what the program shows in a box.
    void (*run)(Session& session, Arguments& arguments);
};

// The arguments GRID, and ROW or COL named what. Raise ScriptError for an unknown grid or a number below 0.
Grid& TakeGrid(Session& session, Arguments& arguments);
int TakeIndex(Arguments& arguments, std::string_view what);
// Raises ScriptError when the grid has no such cell.
void CheckCell(const Grid& grid, int row, int col);

// The argument WORD that names a catalogue; those of two words stand without quotes. Raises ScriptError.
CatalogueKind TakeCatalogue(Arguments& arguments);

// Prints the rows of a SELECT, or runs another statement and prints the number of rows changed. Raises the
// store's error.
void RunSql(Session& session, Database& database, const std::string& text);

std::span<const Command> CommandsOnValues();
std::span<const Command> CommandsOfTools();
std::span<const Command> CommandsOnWater();
std::span<const Command> CommandsOnRecipes();
std::span<const Command> CommandsOnGrids();
std::span<const Command> CommandsOfEditing();
std::span<const Command> CommandsOfScaling();
std::span<const Command> CommandsOnTree();
std::span<const Command> CommandsOnLists();
std::span<const Command> CommandsOfExchange();
std::span<const Command> CommandsFromOutside();
std::span<const Command> CommandsOnCatalogue();
std::span<const Command> CommandsOfReports();
std::span<const Command> CommandsOnProgram();
std::span<const Command> CommandsOfHelp();

// All commands in the order of the help.
std::vector<Command> AllCommands();
// nullptr for an unknown name.
const Command* FindCommand(std::string_view name);

}  // namespace tw

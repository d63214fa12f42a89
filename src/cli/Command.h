// The commands of the console: one table, split into files by topic. The help page and the tests that check
// its completeness read it.
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
    std::string_view form;  // the arguments as the help page shows them
    std::string_view help;  // one line
    // Reads all arguments before it changes anything, so that a line with too many of them changes
    // nothing. Raises ScriptError if the line cannot be executed, Error for a failure that the program
    // shows in a message box.
    void (*run)(Session& session, Arguments& arguments);
};

// Read the argument GRID, and ROW or COL, which is called `what` in errors. Raise ScriptError if the grid is
// unknown or the number is below 0.
Grid& TakeGrid(Session& session, Arguments& arguments);
int TakeIndex(Arguments& arguments, std::string_view what);
// Raises ScriptError if the grid has no such cell.
void CheckCell(const Grid& grid, int row, int col);

// Reads the argument WORD, which names a catalogue; a name of two words needs no quotes. Raises ScriptError
// if there is no such catalogue.
CatalogueKind TakeCatalogue(Arguments& arguments);

// Prints the rows of a SELECT, or runs any other statement and prints the number of rows changed. Raises
// the errors of the store.
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

// Returns all commands in the order of the help page.
std::vector<Command> AllCommands();
// Returns nullptr if the name is unknown.
const Command* FindCommand(std::string_view name);

}  // namespace tw

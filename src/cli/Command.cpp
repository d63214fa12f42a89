#include "cli/Command.h"

#include <algorithm>

namespace tw {

std::vector<Command> AllCommands() {
    std::vector<Command> all;
    for (const auto commands :
         {CommandsOnValues(), CommandsOnRecipes(), CommandsOnGrids(), CommandsOnProgram()})
        all.insert(all.end(), commands.begin(), commands.end());
    return all;
}

const Command* FindCommand(std::string_view name) {
    for (const auto commands :
         {CommandsOnValues(), CommandsOnRecipes(), CommandsOnGrids(), CommandsOnProgram()}) {
        const auto found =
            std::find_if(commands.begin(), commands.end(), [&](const Command& c) { return c.name == name; });
        if (found != commands.end()) return &*found;
    }
    return nullptr;
}

}  // namespace tw

#include "cli/Command.h"

#include <algorithm>

namespace tw {
namespace {

constexpr auto kTopics = {
    CommandsOnValues,    CommandsOfTools,     CommandsOnWater,   CommandsOnRecipes, CommandsOnGrids,
    CommandsOfEditing,   CommandsOfScaling,   CommandsOnTree,    CommandsOnLists,   CommandsOfExchange,
    CommandsFromOutside, CommandsOnCatalogue, CommandsOfReports, CommandsOnProgram, CommandsOfHelp,
};

}  // namespace

std::vector<Command> AllCommands() {
    std::vector<Command> all;
    for (const auto topic : kTopics) all.insert(all.end(), topic().begin(), topic().end());
    return all;
}

const Command* FindCommand(std::string_view name) {
    for (const auto topic : kTopics) {
        const auto commands = topic();
        const auto found =
            std::find_if(commands.begin(), commands.end(), [&](const Command& c) { return c.name == name; });
        if (found != commands.end()) return &*found;
    }
    return nullptr;
}

}  // namespace tw

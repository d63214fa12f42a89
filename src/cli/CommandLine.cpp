#include "cli/CommandLine.h"

#include <algorithm>

#include "cli/Command.h"

namespace tw {

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    bool options = true;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const auto value = [&] {
            if (++i == arguments.size()) throw ScriptError(argument + " needs a file");
            return arguments[i];
        };
        if (!options || argument == "-" || !argument.starts_with('-'))
            line.scripts.push_back(argument);
        else if (argument == "--")
            options = false;
        else if (argument == "--help")
            line.help = true;
        else if (argument == "--database")
            line.database = value();
        else if (argument == "--settings")
            line.settings = value();
        else
            throw ScriptError("unknown option " + argument);
    }
    return line;
}

std::string HelpPage() {
    std::string page =
        "Usage: tunwright-cli [--database FILE] [--settings FILE] [SCRIPT...]\n"
        "\n"
        "Carries out the commands of the scripts, one a line, or of standard input (also as -).\n"
        "\n"
        "  --database FILE  the recipes, instead of Tunwright.mdb beside the program; :memory: is an empty "
        "one\n"
        "  --settings FILE  an INI file instead of the user's settings; :memory: keeps nothing\n"
        "  --help           this page\n"
        "\n"
        "Exit status: 0 done, 1 the database cannot be opened, 2 a line cannot be carried out.\n"
        "\n"
        "Commands:\n";
    const std::vector<Command> commands = AllCommands();
    std::size_t width = 0;
    for (const Command& command : commands)
        width = std::max(width, command.name.size() + command.form.size() + 1);
    for (const Command& command : commands) {
        std::string usage(command.name);
        usage.append(" ").append(command.form);
        usage.resize(width + 2, ' ');
        page.append("  ").append(usage).append(command.help).append("\n");
    }
    return page;
}

}  // namespace tw

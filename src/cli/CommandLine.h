// The command line of the console.
#pragma once

#include <string>
#include <vector>

namespace tw {

struct CommandLine {
    bool help = false;
    std::string database;              // empty for the program's own
    std::string settings;              // empty for the user's own
    std::vector<std::string> scripts;  // none: standard input
};

// Reads the arguments behind the program's name. Raises ScriptError for an unknown option and a missing
// value.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

// The page that --help prints: the options and the table of commands.
std::string HelpPage();

}  // namespace tw

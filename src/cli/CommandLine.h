// The command line of the console.
#pragma once

#include <string>
#include <vector>

namespace tw {

struct CommandLine {
    bool help = false;
    std::string database;              // empty: the program's own
    std::string settings;              // empty: the user's own
    std::vector<std::string> scripts;  // empty: standard input
};

// Reads the arguments after the program's name. Raises ScriptError for an unknown option or a missing value.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

// Returns the page that --help prints: the options and the table of commands.
std::string HelpPage();

}  // namespace tw

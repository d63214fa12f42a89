// Runs scripts: reads their lines, carries out the commands, and says where a script stopped.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "cli/Session.h"

namespace tw {

enum class ExitStatus : int { Done = 0, NoDatabase = 1, BadLine = 2 };

class Console {
  public:
    // databasePath is a file, or ":memory:" for a fresh one. All references must outlive the console.
    Console(std::string databasePath, SettingsPort& settings, std::ostream& out, std::ostream& errors);

    // Where the product's own files lie (ShellEnvironment::programFolder). Call it before the first script.
    void SetProgramFolder(std::string folder) { session_.SetProgramFolder(std::move(folder)); }

    // Runs the lines of one script in the program as the scripts before have left it. Done at its end;
    // otherwise the status of the line that stopped it, after "{name}:{line}: {reason}" on errors for a bad
    // one.
    ExitStatus Run(std::istream& script, std::string_view name);
    // The end of the last script: the program ends without questions.
    void End() { session_.End(); }

  private:
    void RunLine(std::string_view line);

    ScriptOutput out_;
    std::ostream& errors_;
    Session session_;
};

}  // namespace tw

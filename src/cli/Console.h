// Runs scripts: reads their lines, executes the commands and reports where a script stopped.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "cli/Session.h"

namespace tw {

enum class ExitStatus : int { Done = 0, NoDatabase = 1, BadLine = 2 };

class Console {
  public:
    // databasePath is a file, or ":memory:" for a new database in memory. All references must outlive
    // the console.
    Console(std::string databasePath, SettingsPort& settings, std::ostream& out, std::ostream& errors);

    // Sets the folder with the product's own files (ShellEnvironment::programFolder).
    // REQUIRES: no script has run.
    void SetProgramFolder(std::string folder) { session_.SetProgramFolder(std::move(folder)); }

    // Runs the lines of a script; the program continues from the state that earlier scripts left. Returns
    // Done at the end of the script. Otherwise returns the status of the line that stopped it; for BadLine,
    // "{name}:{line}: {reason}" has been written to errors.
    ExitStatus Run(std::istream& script, std::string_view name);
    // Ends the program after the last script, without asking questions.
    void End() { session_.End(); }

  private:
    void RunLine(std::string_view line);

    ScriptOutput out_;
    std::ostream& errors_;
    Session session_;
};

}  // namespace tw

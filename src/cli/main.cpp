// The script console: runs commands through the same logic as the desktop program.
#include <QCoreApplication>
#include <fstream>
#include <iostream>
#include <memory>

#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/ScriptReader.h"
#include "platform/SettingsFile.h"
#include "platform/qt/QtSettings.h"

namespace {

constexpr int kBadLine = static_cast<int>(tw::ExitStatus::BadLine);

// Opens the settings: in memory for ":memory:", the user's own if file is empty, otherwise those in file.
// Raises Error if the file cannot contain settings.
std::unique_ptr<tw::SettingsPort> OpenSettings(const std::string& file, const std::string& database) {
    if (file == ":memory:") return std::make_unique<tw::MemorySettings>();
    if (file.empty()) return tw::QtSettings::OfUser();
    tw::CheckSettingsFile(file, database);
    return tw::QtSettings::OfFile(file);
}

tw::ExitStatus RunScript(tw::Console& console, const std::string& name) {
    if (name == "-") return console.Run(std::cin, "stdin");
    std::ifstream script(name, std::ios::binary);
    // A folder can be opened but not read; reading the first byte detects it.
    script.peek();
    if (!script.is_open() || script.bad()) {
        std::cerr << name << ": the script cannot be read\n";
        return tw::ExitStatus::BadLine;
    }
    script.clear();
    return console.Run(script, name);
}

int RunScripts(const tw::CommandLine& line, const std::string& programFolder) {
    const std::string database =
        line.database.empty() ? tw::Shell::DatabasePath(programFolder) : line.database;
    const std::unique_ptr<tw::SettingsPort> settings = OpenSettings(line.settings, database);
    tw::Console console(database, *settings, std::cout, std::cerr);
    console.SetProgramFolder(programFolder);
    for (const std::string& script : line.scripts) {
        const tw::ExitStatus status = RunScript(console, script);
        if (status != tw::ExitStatus::Done) return static_cast<int>(status);
    }
    console.End();
    return 0;
}

int Run(const std::vector<std::string>& arguments) {
    tw::CommandLine line = tw::ReadCommandLine(arguments);
    if (line.help) {
        std::cout << tw::HelpPage();
        return 0;
    }
    if (line.scripts.empty()) line.scripts.emplace_back("-");
    const std::string folder = QCoreApplication::applicationDirPath().toStdString();
    return RunScripts(line, folder);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const QCoreApplication application(argc, argv);
    try {
        return Run(arguments);
    } catch (const tw::ScriptError& error) {
        std::cerr << "tunwright-cli: " << error.Reason() << '\n';
    } catch (const std::exception& failure) {
        std::cerr << "tunwright-cli: " << failure.what() << '\n';
    }
    return kBadLine;
}

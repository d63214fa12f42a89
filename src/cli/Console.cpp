#include "cli/Console.h"

#include <istream>
#include <ostream>
#include <utility>

#include "cli/Command.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns line without the carriage return of a CR LF.
std::string_view WithoutReturn(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

// Returns line without the byte order mark that some editors write at the start of UTF-8 text.
std::string_view WithoutMark(std::string_view line) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
    return line;
}

// Writes out all answers before the console waits for more input, so that whoever writes the script
// sees them.
void FlushBeforeWaiting(std::istream& script, ScriptOutput& out) {
    if (script.rdbuf()->in_avail() <= 0) out.Flush();
}

}  // namespace

Console::Console(std::string databasePath, SettingsPort& settings, std::ostream& out, std::ostream& errors)
    : out_(out), errors_(errors), session_(std::move(databasePath), settings, out_) {}

ExitStatus Console::Run(std::istream& script, std::string_view name) {
    std::string line;
    for (long long number = 1; std::getline(script, line); ++number) {
        const auto refuse = [&](std::string_view reason) {
            out_.Flush();
            errors_ << name << ':' << number << ": " << EscapeText(reason) << '\n';
            return ExitStatus::BadLine;
        };
        try {
            RunLine(WithoutReturn(number == 1 ? WithoutMark(line) : line));
        } catch (const StartFailure&) {
            out_.Flush();
            return ExitStatus::NoDatabase;
        } catch (const ScriptError& error) {
            return refuse(error.Reason());
        } catch (const std::exception& failure) {
            return refuse(failure.what());
        }
        FlushBeforeWaiting(script, out_);
    }
    out_.Flush();
    return ExitStatus::Done;
}

void Console::RunLine(std::string_view line) {
    Arguments arguments(line);
    if (arguments.AtEnd() || Trim(line).starts_with('#')) return;
    const std::string name = arguments.Word("the command");
    const Command* const command = FindCommand(name);
    if (command == nullptr) throw ScriptError("unknown command '" + name + "'");
    try {
        command->run(session_, arguments);
    } catch (const Error& error) {
        // Like the event loop of the desktop program: shows a message box and continues.
        session_.Messages().ShowMessage("Error", error.WithNumber());
    }
    session_.FinishExit();
}

}  // namespace tw

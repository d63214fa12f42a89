// One run of the program as commands use it: a shell with the ports for scripts, started by the first
// command that needs it.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "cli/ScriptHelp.h"
#include "cli/ScriptPlatform.h"
#include "cli/ScriptPrinter.h"
#include "document/RecipeDocument.h"
#include "help/Help.h"
#include "platform/SettingsStore.h"
#include "platform/SystemClock.h"
#include "record/RecipeRecord.h"
#include "reports/ReportUnits.h"
#include "shell/Shell.h"

namespace tw {

// The database could not be opened; the message has been printed.
class StartFailure {};

class Session : private ShellView {
  public:
    // databasePath is a file, or ":memory:" for a new database in memory. settings and out must outlive
    // the session.
    Session(std::string databasePath, SettingsPort& settings, ScriptOutput& out);
    // Abandons a program that is still running. For an orderly end, call End first.
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Sets the folder with the product's own files, such as the help (ShellEnvironment::programFolder).
    // REQUIRES: neither the program nor the help has been used.
    void SetProgramFolder(std::string folder) { programFolder_ = std::move(folder); }

    // Returns the program, starting it if it is not running. Raises StartFailure.
    Shell& Program();
    bool Running() const { return shell_ != nullptr; }
    // Return the active document and its record, starting the program if it is not running. Raise ScriptError
    // if no document is open.
    RecipeDocument& Document();
    RecipeRecord& Record() { return Document().Record(); }

    ScriptOutput& Out() { return out_; }
    MessagePort& Messages() { return messages_; }
    // Can be called without a running program.
    Help& HelpPages();
    ClipboardPort& Clipboard() { return clipboard_; }
    AnswerQueue& Answers() { return answers_; }
    ScriptDialogs& Dialogs() { return dialogs_; }
    SettingsStore& Store() { return store_; }
    // The units chosen in the report wizard, kept from one report to the next.
    ReportUnits& Units() { return units_; }
    ScriptPrinter& Printer() { return printer_; }

    // Ends the program as its command Exit does, and starts it again. Returns false if the brewer's answer to
    // a question cancelled the exit.
    bool Restart();
    // Ends the program if the last command has requested that. Called after each command.
    void FinishExit();
    // Writes the settings and closes the database, without asking questions. Called after the last script.
    void End();

  private:
    void CloseMainWindow() override { exitGranted_ = true; }
    void Stop();
    void KeepMemoryDatabase();

    std::string databasePath_;
    std::string programFolder_;
    std::filesystem::path keptFolder_;  // contains an in-memory database between two runs of the program
    ScriptOutput& out_;
    AnswerQueue answers_;
    ScriptMessages messages_;
    ScriptDialogs dialogs_;
    MemoryClipboard clipboard_;
    SystemClock clock_;
    Platform platform_;
    ScriptHelp helpPlatform_;
    std::optional<Help> help_;
    SettingsStore store_;
    ReportUnits units_;
    ScriptPrinter printer_{out_};
    std::unique_ptr<Shell> shell_;
    bool exitGranted_ = false;
};

}  // namespace tw

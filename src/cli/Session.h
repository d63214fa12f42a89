// One program run as the commands of a script see it: the shell behind the script's ports, started at the
// first command that needs it.
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

// The database could not be opened; its box has been printed.
class StartFailure {};

class Session : private ShellView {
  public:
    // databasePath is a file, or ":memory:". settings and out must outlive the session.
    Session(std::string databasePath, SettingsPort& settings, ScriptOutput& out);
    // Drops what runs without another word; End comes first in an orderly end.
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Where the product's own files lie (ShellEnvironment::programFolder), the help among them. Call it
    // before the first start and the first look at the help.
    void SetProgramFolder(std::string folder) { programFolder_ = std::move(folder); }

    // The running program; starts it when it does not run. Raises StartFailure.
    Shell& Program();
    bool Running() const { return shell_ != nullptr; }
    // The active document and its record. Start the program; raise ScriptError when no document is open.
    RecipeDocument& Document();
    RecipeRecord& Record() { return Document().Record(); }

    ScriptOutput& Out() { return out_; }
    MessagePort& Messages() { return messages_; }
    // Works without the program running.
    Help& HelpPages();
    ClipboardPort& Clipboard() { return clipboard_; }
    AnswerQueue& Answers() { return answers_; }
    ScriptDialogs& Dialogs() { return dialogs_; }
    SettingsStore& Store() { return store_; }
    // The options of the report wizard, kept from one report to the next.
    ReportUnits& Units() { return units_; }
    ScriptPrinter& Printer() { return printer_; }

    // Ends the program as its Exit command does and starts it again. False when a question called it off.
    bool Restart();
    // After each command: completes the program's end when the command has granted it.
    void FinishExit();
    // The end of the last script: writes the settings and closes the database, asks nothing.
    void End();

  private:
    void CloseMainWindow() override { exitGranted_ = true; }
    void Stop();
    void KeepMemoryDatabase();

    std::string databasePath_;
    std::string programFolder_;
    std::filesystem::path keptFolder_;  // holds an in-memory database between two runs of the program
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

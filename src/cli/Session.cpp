#include "cli/Session.h"

#include <cstdlib>
#include <utility>

#include "cli/ScriptReader.h"

namespace tw {
namespace {

constexpr std::string_view kInMemory = ":memory:";

// Creates a folder for temporary files. Raises Error if that fails.
std::filesystem::path MakeTemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tunwright-cli-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw Error("Session", "No temporary folder can be made.", 0);
    return name;
}

}  // namespace

Session::Session(std::string databasePath, SettingsPort& settings, ScriptOutput& out)
    : databasePath_(std::move(databasePath)),
      out_(out),
      messages_(out_, answers_),
      dialogs_(out_, answers_),
      platform_{messages_, dialogs_, settings, clock_, clipboard_},
      helpPlatform_(out_),
      store_(settings) {}

Session::~Session() {
    shell_.reset();
    if (keptFolder_.empty()) return;
    std::error_code ignored;
    std::filesystem::remove_all(keptFolder_, ignored);
}

Shell& Session::Program() {
    if (shell_) return *shell_;
    auto shell = std::make_unique<Shell>(ShellEnvironment{
        .platform = platform_, .programFolder = programFolder_, .help = &HelpPages(), .printer = &printer_});
    shell->SetView(this);
    shell->LoadWindowSettings();
    if (!shell->PerformSplashScreenInit(databasePath_)) {
        shell->Unload(true);
        throw StartFailure();
    }
    shell_ = std::move(shell);
    shell_->Instance().SetTicking(true);
    return *shell_;
}

Help& Session::HelpPages() {
    if (!help_) help_.emplace(programFolder_, messages_, helpPlatform_, helpPlatform_);
    return *help_;
}

RecipeDocument& Session::Document() {
    RecipeDocument* const active = Program().Documents().Active();
    if (active == nullptr) throw ScriptError("no document is open");
    return *active;
}

bool Session::Restart() {
    if (!Program().RequestExit()) return false;
    Stop();
    Program();
    return true;
}

void Session::FinishExit() {
    if (!std::exchange(exitGranted_, false) || !shell_) return;
    Stop();
}

void Session::End() {
    if (!shell_) return;
    shell_->Unload(true);
    shell_.reset();
}

void Session::Stop() {
    if (databasePath_ == kInMemory) KeepMemoryDatabase();
    End();
}

// The next run opens the same database, so a database in memory is copied to a file before its
// connection closes.
void Session::KeepMemoryDatabase() {
    keptFolder_ = MakeTemporaryFolder();
    const std::string file = (keptFolder_ / "Tunwright.mdb").string();
    shell_->DB()->ExecuteNative("VACUUM INTO " + SqlText(file));
    databasePath_ = file;
}

}  // namespace tw

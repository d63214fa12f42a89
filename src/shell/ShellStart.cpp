// Start-up, shut-down and the settings of the shell.
#include "record/RecipeRecord.h"
#include "shell/Shell.h"
#include "store/CatalogueUpdate.h"
#include "store/Schema.h"

namespace tw {

namespace {

std::string InFolder(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && path.back() != '/') path += '/';
    return path.append(name);
}

constexpr std::string_view kInMemory = ":memory:";

std::unique_ptr<Database> OpenRecipeDatabase(const std::string& path) {
    return path == kInMemory ? Database::CreateInMemory() : OpenMainDatabase(path);
}

// index, or the first choice when a stored number names none of the choices.
int ChoiceOf(int index, int choices) {
    return index >= 0 && index < choices ? index : 0;
}

constexpr int kIbuMethods = 3;
constexpr int kPackagings = 2;

}  // namespace

Shell::Shell(Platform& platform)
    : platform_(platform), dde_(*this, platform.messages), store_(platform.settings), recent_(bar_) {
    for (const std::string& file : platform.settings.Files())
        own_.AddFile(file, "is the file of the settings");
}

Shell::~Shell() = default;

void Shell::LoadWindowSettings() {
    settings_.LoadWindowKeys(store_);
}

bool Shell::PerformSplashScreenInit(const std::string& databasePath) {
    settings_.LoadProgramKeys(store_);
    SetAppendRows(settings_.appendRows);
    SwitchAutoSave(false);
    browse_ = {};
    recent_.Load(store_);
    bar_.SetVisible(CommandId::FileBar7, !recent_.Captions().empty());
    if (!OpenDatabase(databasePath)) return false;
    CheckEnableDelete();
    nextDocKey_ = 0;
    // A database that is damaged in parts still opens what can be read.
    Guard([&] { tree_->InitFromDatabase(); });
    if (database_->ReadOnly()) TellReadOnly();
    UpdateNotice();
    return true;
}

void Shell::TellReadOnly() {
    platform_.messages.ShowMessage(
        "Tunwright", "The database of your recipes is write-protected:\r\n  " + database_->Path() +
                         "\r\nRecipes can be read and printed, but not saved.\r\nAllow writing to this file "
                         "and to its folder, then start Tunwright again.");
}

bool Shell::OpenDatabase(const std::string& path) {
    try {
        database_ = OpenRecipeDatabase(path);
    } catch (const Error& error) {
        platform_.messages.ShowMessage("Fatal Error",
                                       error.Description() + "\r\nCould not open Tunwright database!");
        if (view_) view_->CloseMainWindow();
        return false;
    }
    if (path != kInMemory) own_.AddDatabase(path);
    if (!programFolder_.empty() && path != kInMemory && !database_->ReadOnly()) FollowCatalogue();
    tree_ = std::make_unique<TWTree>(database_.get());
    treeObjects_ = std::make_unique<TreeObjects>(*tree_, [this] { UpdateNotice(); });
    objects_ = std::make_unique<DB_IO>(*database_, *treeObjects_, platform_.messages, platform_.clock, *this);
    if (!recoveryRoot_.empty() && path != kInMemory)
        recovery_ = std::make_unique<Recovery>(recoveryRoot_, path, IdForRecovery());
    return true;
}

void Shell::FollowCatalogue() {
    try {
        UpdateCatalogue(InFolder(programFolder_, "catalogue"), *database_, platform_.clock.Now());
    } catch (const Error&) {
        // The recipes matter more than a newer catalogue: the start goes on, and the next one tries again.
        return;
    }
}

std::string Shell::DatabasePath(std::string_view programFolder) {
    return InFolder(programFolder, "Tunwright.mdb");
}

bool Shell::CloseAll() {
    // A document that refuses leaves the others unasked.
    while (!documents_.empty()) {
        if (!CloseDocument(*documents_.front())) return false;
    }
    return true;
}

bool Shell::RequestExit() {
    return CloseAll();
}

void Shell::Unload(bool storeGeometry) {
    settings_.appendRows = AppendRows();
    if (storeGeometry) settings_.StoreGeometry(store_);
    settings_.Store(store_);
    recent_.Store(store_);
    while (!documents_.empty()) DeleteWindow(*documents_.back());
    dde_.ShutdownDDE();
    recovery_.reset();
    objects_.reset();
    treeObjects_.reset();
    tree_.reset();
    database_.reset();
}

void Shell::StoreSetting(std::string_view section, std::string_view key, std::string_view text) {
    store_.SaveSetting(section, key, text, false);
    const bool wasSaving = DoAutoSave();
    if (section != kSettingsSection || !settings_.Take(key, text)) return;
    if (key == "AppendRows") SetAppendRows(settings_.appendRows);
    if (key == "DoAutoSave") SwitchAutoSave(wasSaving);
    if (key == "IconStyle") ChangeToolbarIcons();
    if (key == "ButtonStyle") ChangeToolbarButtonStyle();
    if (key.starts_with("Grid")) UpdateDocsOfColorChange();
}

RecipeDefaults Shell::Defaults() const {
    RecipeDefaults defaults;
    defaults.grainExtraction = settings_.grainExtraction;
    defaults.hopExtraction = settings_.hopExtraction;
    defaults.waterProfile = settings_.waterProfile;
    defaults.boilVol = settings_.boilVol;
    defaults.totalVol = settings_.totalVol;
    defaults.ibuMethod = ChoiceOf(settings_.ibuMethod, kIbuMethods);
    defaults.packaging = ChoiceOf(settings_.packaging, kPackagings);
    defaults.hopForm = ChoiceOf(settings_.hopForm, static_cast<int>(kHopForms.size()));
    defaults.hopSocks = settings_.hopSocks;
    return defaults;
}

bool Shell::AppendRows() const {
    return bar_.Item(CommandId::EditAppendFlag).checked;
}

void Shell::SetAppendRows(bool append) {
    bar_.SetChecked(CommandId::EditAppendFlag, append);
}

bool Shell::Guard(const std::function<void()>& operation) {
    std::string text;
    try {
        operation();
        return true;
    } catch (const Error& error) {
        text = error.WithNumber();
    } catch (const std::exception& error) {
        text = error.what();
    }
    platform_.messages.ShowMessage("Error", text);
    return false;
}

}  // namespace tw

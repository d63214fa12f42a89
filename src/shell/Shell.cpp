#include "shell/Shell.h"

#include <optional>
#include <utility>

#include "platform/ErrorBox.h"
#include "store/CatalogueUpdate.h"

namespace tw {
namespace {

std::string InFolder(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && path.back() != '/') path += '/';
    return path.append(name);
}

void FollowCatalogue(const ShellEnvironment& environment, Database& database) {
    try {
        UpdateCatalogue(InFolder(environment.programFolder, "catalogue"), database,
                        environment.platform.clock.Now());
    } catch (const Error&) {
        // The recipes matter more than a newer catalogue: continue; the next start tries again.
        return;
    }
}

void TellReadOnly(MessagePort& messages, const Database& database) {
    messages.ShowMessage(
        "Tunwright", "The database of your recipes is write-protected:\r\n  " + database.Path() +
                         "\r\nRecipes can be read and printed, but not saved.\r\nAllow writing to this file "
                         "and to its folder, then start Tunwright again.");
}

}  // namespace

Shell::OpenParts::OpenParts(Shell& shell, std::unique_ptr<Database> database)
    : notices(shell.documents_, shell.recent_, shell.browse_, shell.states_),
      data(std::move(database), shell.environment_.platform, notices, [&shell] { shell.notice_.Update(); }),
      catalogue(data, shell.documents_),
      services({shell.settings_, shell.documents_, shell.states_, shell.recent_, shell.unsaved_, shell.view_,
                data, catalogue}),
      recipes(data, shell.documents_, services, shell.states_, catalogue, shell.browse_, shell.view_),
      saver(data, shell.documents_, notices, shell.view_, shell.browse_),
      doctor(data, shell.settings_, shell.colors_, shell.own_),
      files(data, doctor, shell.documents_, shell.states_, shell.own_, shell.notice_, shell.view_),
      carried(data, shell.documents_, shell.states_),
      paper(shell.environment_, shell.instance_, data, shell.documents_, shell.store_, shell.own_),
      autoSaver(shell.CurrentSettings(), shell.minutes_, data, shell.documents_, saver, files),
      actions({shell.environment_.platform, shell.bar_, shell.view_, shell.recent_, shell.settings_,
               shell.documents_, shell.states_, data, recipes, saver, catalogue, files, carried, paper,
               shell.help_}) {}

Shell::Shell(ShellEnvironment environment)
    : environment_(std::move(environment)),
      instance_(*this, environment_.platform.messages),
      store_(environment_.platform.settings),
      recent_(bar_),
      states_(bar_, environment_.platform.clipboard,
              {[this] { return documents_.AnyChanged(); }, [this] { return open_->data.HasRecipes(); },
               [this] { return open_ && open_->carried.ActiveCarries(); }}),
      documents_(environment_.platform, colors_, states_, view_,
                 [this](const RecipeDocument& document) { unsaved_.Forget(document); }),
      settings_(store_, bar_, view_, documents_, minutes_),
      notice_(view_),
      unsaved_(documents_, notice_, view_, environment_.platform,
               [this]() -> RecipeDocument& { return open_->recipes.Create(""); }),
      help_(environment_, documents_, view_) {
    for (const std::string& file : environment_.platform.settings.Files())
        own_.AddFile(file, "is the file of the settings");
}

Shell::~Shell() = default;

bool Shell::PerformSplashScreenInit(const std::string& databasePath) {
    if (!environment_.recoveryFolder.empty())
        own_.AddFolder(environment_.recoveryFolder, "is kept for unsaved recipes");
    settings_.LoadProgramKeys();
    browse_ = {};
    recent_.Load(store_);
    bar_.SetVisible(CommandId::FileBar7, !recent_.Captions().empty());
    if (!OpenDatabase(databasePath)) return false;
    states_.CheckEnableDelete();
    OpenedDatabase& data = open_->data;
    // If parts of the database are damaged, the rest is still shown.
    RunShowingErrors(environment_.platform.messages, [&] { data.tree.InitFromDatabase(); });
    if (data.database->ReadOnly()) TellReadOnly(environment_.platform.messages, *data.database);
    notice_.Update();
    return true;
}

bool Shell::OpenDatabase(const std::string& path) {
    std::unique_ptr<Database> database;
    try {
        database = OpenedDatabase::Open(path);
    } catch (const Error& error) {
        environment_.platform.messages.ShowMessage(
            "Fatal Error", error.Description() + "\r\nCould not open Tunwright database!");
        view_->CloseMainWindow();
        return false;
    }
    const bool inFile = !OpenedDatabase::IsInMemory(path);
    if (inFile) own_.AddDatabase(path);
    if (inFile && !environment_.programFolder.empty() && !database->ReadOnly())
        FollowCatalogue(environment_, *database);
    open_ = std::make_unique<OpenParts>(*this, std::move(database));
    notice_.Watch(&open_->data);
    if (inFile && !environment_.recoveryFolder.empty())
        unsaved_.Start(environment_.recoveryFolder, path, *open_->data.database);
    return true;
}

Database* Shell::DB() {
    return open_ ? open_->data.database.get() : nullptr;
}

std::string Shell::DatabasePath(std::string_view programFolder) {
    return InFolder(programFolder, "Tunwright.mdb");
}

void Shell::ShowAssistantAtStartup() {
    if (open_) open_->actions.ShowAssistantAtStartup(environment_.metricDesktop);
}

bool Shell::RequestExit() {
    return !open_ || open_->saver.CloseAll();
}

void Shell::Unload(bool storeGeometry) {
    settings_.Keep(storeGeometry);
    recent_.Store(store_);
    while (!documents_.All().empty()) documents_.Remove(*documents_.All().back());
    instance_.ShutdownDDE();
    unsaved_.End();
    notice_.Watch(nullptr);
    open_.reset();
}

bool Shell::RunCommand(CommandId command) {
    return open_ && open_->actions.Run(command);
}

bool Shell::PressButton(CommandId command) {
    return open_ && open_->actions.Press(command);
}

bool Shell::RunMenu(std::string_view name) {
    const std::optional<CommandId> command = FindCommandId(name);
    return command && RunCommand(*command);
}

void Shell::TickAutoSave() {
    if (open_) open_->autoSaver.Tick();
}

void Shell::ImportFromPath(std::string_view path) {
    if (open_) open_->files.ImportFromPath(path);
}

}  // namespace tw

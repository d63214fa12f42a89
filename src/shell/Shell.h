// The program around the recipes: its parts, and how they start and end. The logic of the main window
// (frmMain) without the window.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "calc/BeerColor.h"
#include "platform/OwnFiles.h"
#include "platform/SettingsStore.h"
#include "shell/AutoSaver.h"
#include "shell/CatalogueDesk.h"
#include "shell/CommandBar.h"
#include "shell/CommandStates.h"
#include "shell/DatabaseNotices.h"
#include "shell/DocumentManager.h"
#include "shell/ExchangeDesk.h"
#include "shell/HelpDesk.h"
#include "shell/InstanceService.h"
#include "shell/OpenSaveModel.h"
#include "shell/OpenedDatabase.h"
#include "shell/PrintDesk.h"
#include "shell/RecentList.h"
#include "shell/RecipeDesk.h"
#include "shell/RecipeSaver.h"
#include "shell/RecipeServices.h"
#include "shell/SettingsInUse.h"
#include "shell/ShellActions.h"
#include "shell/ShellEnvironment.h"
#include "shell/ShellView.h"
#include "shell/StatusNotice.h"
#include "shell/UnsavedWork.h"

namespace tw {

class Shell final : private InstanceHost {
  public:
    explicit Shell(ShellEnvironment environment);
    ~Shell() override;
    // The main window; nullptr when it goes.
    void SetView(ShellView* view) { view_.Set(view); }
    // For what is made with the help of Own. The folders count up to the start.
    ShellEnvironment& Environment() { return environment_; }

    // Start-up. LoadWindowSettings runs while the window is made; PerformSplashScreenInit behind the splash:
    // it reads the settings, fills the recent list and opens the database exclusively. False when that
    // failed; its box has been shown then and the main window is told to close. A database that cannot be
    // written is told of and can be read. ":memory:" opens an empty database of the full schema.
    void LoadWindowSettings() { settings_.LoadWindowKeys(); }
    bool PerformSplashScreenInit(const std::string& databasePath);
    // Tunwright.mdb in the program's folder.
    static std::string DatabasePath(std::string_view programFolder);
    // The last step of the start.
    void ShowAssistantAtStartup();

    // Shut-down. RequestExit asks every document and is false when the brewer called it off: the documents
    // that have not been asked stay open. Unload writes the settings and the recent list and closes the
    // database.
    bool RequestExit();
    void Unload(bool storeGeometry);

    // The commands, see ShellActions. Without a database they all do nothing and give false.
    bool RunCommand(CommandId command);
    bool PressButton(CommandId command);
    // By the item's control name, for scripts; false for an unknown one too.
    bool RunMenu(std::string_view name);
    // A minute has gone, see AutoSaver.
    void TickAutoSave();

    SettingsInUse& SettingsNow() { return settings_; }
    Settings& CurrentSettings() { return settings_.Values(); }
    SettingsStore& Store() { return store_; }
    // What the program itself lives on; nothing else is to be written there.
    OwnFiles& Own() { return own_; }
    CommandBar& Bar() { return bar_; }
    CommandStates& States() { return states_; }
    RecentList& Recent() { return recent_; }
    DocumentManager& Documents() { return documents_; }
    UnsavedWork& Unsaved() { return unsaved_; }
    HelpDesk& Helping() { return help_; }
    // The one program on a desktop, and the commands that reach it from outside. They wait while its ticking
    // is off: until the start is over, and while a print job runs.
    InstanceService& DDE() { return dde_; }
    // What the open and save dialog and the explorer showed last.
    const OpenSaveFields& BrowseFields() const { return browse_; }

    // nullptr while the database is not open.
    Database* DB();
    // The parts that stand on the database. REQUIRES: it is open.
    OpenedDatabase& Data() { return open_->data; }
    DatabaseNotices& Notices() { return open_->notices; }
    CatalogueDesk& Catalogue() { return open_->catalogue; }
    RecipeServices& Services() { return open_->services; }
    RecipeDesk& Recipes() { return open_->recipes; }
    RecipeSaver& Saver() { return open_->saver; }
    ExchangeDesk& Files() { return open_->files; }
    PrintDesk& Paper() { return open_->paper; }
    AutoSaver& AutoSaving() { return open_->autoSaver; }

  private:
    // Each is made from those above it, and knows none below.
    struct OpenParts {
        OpenParts(Shell& shell, std::unique_ptr<Database> database);
        DatabaseNotices notices;
        OpenedDatabase data;
        CatalogueDesk catalogue;
        RecipeServices services;
        RecipeDesk recipes;
        RecipeSaver saver;
        ExchangeDesk files;
        PrintDesk paper;
        AutoSaver autoSaver;
        ShellActions actions;
    };

    // InstanceHost
    bool IsDialogOpen() const override { return view_->IsDialogOpen(); }
    void BringToFront() override { view_->BringToFront(); }
    void CommandsWait() override { view_->OutsideCommandsWait(); }
    void ImportFromPath(std::string_view path) override;

    bool OpenDatabase(const std::string& path);

    ShellEnvironment environment_;
    ViewSlot view_;
    InstanceService dde_;
    SettingsStore store_;
    OpenSaveFields browse_;
    OwnFiles own_;
    CommandBar bar_;
    RecentList recent_;
    ColorTable colors_;
    AutoSaveMinutes minutes_;
    std::unique_ptr<OpenParts> open_;  // nullptr while the database is not open; the documents go before it
    CommandStates states_;
    DocumentManager documents_;
    SettingsInUse settings_;
    StatusNotice notice_;
    UnsavedWork unsaved_;
    HelpDesk help_;
};

}  // namespace tw

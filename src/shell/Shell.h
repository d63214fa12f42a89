// The program around the recipes: its parts, its start and its end. Contains the logic of the main window
// (frmMain) without the window itself.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "calc/BeerColor.h"
#include "platform/OwnFiles.h"
#include "platform/SettingsStore.h"
#include "shell/AutoSaver.h"
#include "shell/CarriedDesk.h"
#include "shell/CatalogueDesk.h"
#include "shell/CommandBar.h"
#include "shell/CommandStates.h"
#include "shell/DatabaseNotices.h"
#include "shell/DoctorDesk.h"
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
    // Sets the main window; nullptr once it is destroyed.
    void SetView(ShellView* view) { view_.Set(view); }
    // Allows ports that need Own to be set after construction. Changes to its folders after the start have no
    // effect.
    ShellEnvironment& Environment() { return environment_; }

    // Start-up. LoadWindowSettings is called while the window is created, PerformSplashScreenInit while the
    // splash is shown: it reads the settings, fills the recent list and opens the database exclusively. False
    // if that failed; a message has been shown then, and the main window has been told to close. If the
    // database is read-only, shows a message and continues. ":memory:" opens an empty database with the
    // full schema.
    void LoadWindowSettings() { settings_.LoadWindowKeys(); }
    bool PerformSplashScreenInit(const std::string& databasePath);
    // Returns the path of Tunwright.mdb in the program's folder.
    static std::string DatabasePath(std::string_view programFolder);
    // To be called as the last step of the start.
    void ShowAssistantAtStartup();

    // Shut-down. RequestExit closes all documents, asking about unsaved changes; false if the brewer
    // cancelled: the documents not yet asked about stay open. Unload stores the settings and the recent list,
    // and closes the database.
    bool RequestExit();
    void Unload(bool storeGeometry);

    // Run a command, as ShellActions does. Without a database they do nothing and return false.
    bool RunCommand(CommandId command);
    bool PressButton(CommandId command);
    // Runs the menu item of that control name, for scripts. False also for an unknown name.
    bool RunMenu(std::string_view name);
    // Counts a minute, as AutoSaver::Tick does.
    void TickAutoSave();

    SettingsInUse& SettingsNow() { return settings_; }
    Settings& CurrentSettings() { return settings_.Values(); }
    SettingsStore& Store() { return store_; }
    // The files that the program itself depends on, which nothing else may overwrite.
    OwnFiles& Own() { return own_; }
    CommandBar& Bar() { return bar_; }
    CommandStates& States() { return states_; }
    RecentList& Recent() { return recent_; }
    DocumentManager& Documents() { return documents_; }
    UnsavedWork& Unsaved() { return unsaved_; }
    HelpDesk& Helping() { return help_; }
    // Keeps one instance on a desktop and receives commands from outside. They wait while its ticking is off:
    // until the start is complete, and while a print job runs.
    InstanceService& Instance() { return instance_; }
    // The last state of the open and save dialog and of the explorer.
    const OpenSaveFields& BrowseFields() const { return browse_; }

    // The parts that need the database. Each depends only on parts declared above it.
    struct OpenParts {
        OpenParts(Shell& shell, std::unique_ptr<Database> database);
        DatabaseNotices notices;
        OpenedDatabase data;
        CatalogueDesk catalogue;
        RecipeServices services;
        RecipeDesk recipes;
        RecipeSaver saver;
        DoctorDesk doctor;
        ExchangeDesk files;
        CarriedDesk carried;
        PrintDesk paper;
        AutoSaver autoSaver;
        ShellActions actions;
    };
    // Each returns nullptr while the database is not open.
    OpenParts* Opened() { return open_.get(); }
    Database* DB();

  private:
    // InstanceHost
    bool IsDialogOpen() const override { return view_->IsDialogOpen(); }
    void BringToFront() override { view_->BringToFront(); }
    void CommandsWait() override { view_->OutsideCommandsWait(); }
    void ImportFromPath(std::string_view path) override;

    bool OpenDatabase(const std::string& path);

    ShellEnvironment environment_;
    ViewSlot view_;
    InstanceService instance_;
    SettingsStore store_;
    OpenSaveFields browse_;
    OwnFiles own_;
    CommandBar bar_;
    RecentList recent_;
    ColorTable colors_;
    AutoSaveMinutes minutes_;
    // nullptr while the database is not open; destroyed after the documents.
    std::unique_ptr<OpenParts> open_;
    CommandStates states_;
    DocumentManager documents_;
    SettingsInUse settings_;
    StatusNotice notice_;
    UnsavedWork unsaved_;
    HelpDesk help_;
};

}  // namespace tw

// The program around the recipes: the connection to the database, the open documents, the commands, the
// settings and the notices between them. The logic of the main window (frmMain) without the window.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "calc/BeerColor.h"
#include "catalogue/CatalogueContext.h"
#include "document/DocumentHost.h"
#include "document/RecipeDocument.h"
#include "document/ScalingModel.h"
#include "help/Help.h"
#include "platform/OwnFiles.h"
#include "platform/Ports.h"
#include "platform/SaveFilePort.h"
#include "reports/PrinterPort.h"
#include "shell/AutoSave.h"
#include "shell/CommandBar.h"
#include "shell/DDEService.h"
#include "shell/OpenSaveModel.h"
#include "shell/RecentList.h"
#include "shell/Recovery.h"
#include "shell/Settings.h"
#include "store/Database.h"
#include "tree/DB_IO.h"
#include "tree/ExplorerModel.h"
#include "tree/ListTable.h"
#include "tree/TWTree.h"
#include "tree/TreeObjects.h"

namespace tw {

class RecipeExchange;

// The arrangements of the document windows.
enum class Arrangement : int { Cascade, TileHorizontal, TileVertical };

// The main window, as far as the logic needs it. Every call comes after the change.
class ShellView {
  public:
    virtual ~ShellView() = default;
    virtual void DocumentOpened(RecipeDocument&) {}
    // The document still exists during the call.
    virtual void DocumentClosing(RecipeDocument&) {}
    // Shows and focuses that document's window, un-minimised; nullptr when none is left.
    virtual void DocumentActivated(RecipeDocument*) {}
    // Caption or changed state.
    virtual void DocumentRenamed(const RecipeDocument&) {}
    virtual void ArrangeDocuments(Arrangement) {}
    // The icon set and the button style of the settings are others.
    virtual void ToolbarIconsChanged() {}
    virtual void ToolbarButtonStyleChanged() {}
    // The grid colours of the settings are others: that document's grids repaint.
    virtual void GridColorsChanged(const RecipeDocument&) {}
    // The autosave timer is to run or to stand still.
    virtual void AutoSaveSwitched(bool /*on*/) {}
    // A recipe has edits that are kept nowhere: KeepUnsavedWork is due within a few seconds.
    virtual void UnsavedWorkWaits() {}
    // What is wrong and stays so until the next call, such as that unsaved work is not kept; empty when all
    // is well.
    virtual void NoticeChanged(const std::string& /*notice*/) {}
    // Good news, to be shown for a moment.
    virtual void SayBriefly(const std::string& /*text*/) {}
    // Whether that document's window is minimised.
    virtual bool IsMinimized(const RecipeDocument&) const { return false; }
    // A window other than the main window and the recipes' windows is open.
    virtual bool IsDialogOpen() const { return false; }
    // The main window is to stand before all others, with the dialog that is open in it.
    virtual void BringToFront() {}
    // Commands from outside are queued: DDE().TickDDE is due every kDDETickMilliseconds until none is left.
    virtual void OutsideCommandsWait() {}
    // Ends the program (the close request has been granted, or the database could not be opened).
    virtual void CloseMainWindow() {}
};

class Shell final : public DocumentHost, public DocumentCommands, public ObjectListener, private DDEHost {
  public:
    explicit Shell(Platform& platform);
    ~Shell() override;
    void SetView(ShellView* view) { view_ = view; }

    // Start-up. LoadWindowSettings runs while the window is made; PerformSplashScreenInit behind the splash:
    // it reads the settings, fills the recent list and opens the database exclusively. False when that
    // failed; its box has been shown then and the main window is told to close. A database that cannot be
    // written is told of and can be read. ":memory:" opens an empty database of the full schema.
    void LoadWindowSettings();
    bool PerformSplashScreenInit(const std::string& databasePath);
    // Tunwright.mdb in the program's folder.
    static std::string DatabasePath(std::string_view programFolder);

    // Keeps unsaved work in files below this folder from now on, apart for each database; nothing is kept
    // before, or for a database in memory. Call it before the start.
    void SetRecoveryFolder(std::string folder);
    // Where the product's own files lie. What is new or corrected in its folder "catalogue" comes into the
    // database when it is opened (store/CatalogueUpdate.h), never into one in memory. Call it before the
    // start.
    void SetProgramFolder(std::string folder) { programFolder_ = std::move(folder); }
    // Offers what the last run left unsaved; shows nothing when that is nothing. Call it after the start.
    void OfferRecovery();
    // Writes the recipes that were edited since the last call into their files. What cannot be written waits
    // for the next call, for which the view is told to wait; the notice says so until nothing waits.
    void KeepUnsavedWork();
    // A new changed document from the lost recipe, which takes its file over. False when it does not fit this
    // program: the file has been put aside and reported.
    bool RestoreLostRecipe(const LostRecipe& lost);
    // For good.
    void DiscardLostRecipe(const LostRecipe& lost);

    // Shut-down. RequestExit asks every document and is false when the brewer called it off: the documents
    // that have not been asked stay open. Unload writes the settings and the recent list and closes the
    // database.
    bool RequestExit();
    void Unload(bool storeGeometry);

    Settings& CurrentSettings() { return settings_; }
    SettingsStore& Store() { return store_; }
    // What the program itself lives on; nothing else is to be written there.
    OwnFiles& Own() { return own_; }
    CommandBar& Bar() { return bar_; }
    RecentList& Recent() { return recent_; }
    // Stores a setting for the user; one of the section "Settings" acts in the running program at once.
    void StoreSetting(std::string_view section, std::string_view key, std::string_view text);
    const ColorTable& Colors() const { return colors_; }
    // nullptr before the database is open.
    Database* DB() { return database_.get(); }
    // Folders, styles and recipes of the database, and the operations on them, which keep the tree in step
    // and tell the open documents. REQUIRES: the database is open.
    const TWTree& Tree() const { return *tree_; }
    DB_IO& Objects() { return *objects_; }
    // What the windows on folders, recipes and styles work on. REQUIRES: the database is open.
    ObjectAccess Access() { return {*database_, *tree_, *objects_, platform_}; }
    // What the open and save dialog and the explorer showed last.
    const OpenSaveFields& BrowseFields() const { return browse_; }

    // Documents, in the order of their opening.
    const std::vector<std::unique_ptr<RecipeDocument>>& Documents() const { return documents_; }
    RecipeDocument* ActiveDocument() const { return active_; }
    void Activate(RecipeDocument& document);
    // Makes a new document (blank name), or one filled from the stored recipe of that name; it becomes the
    // active one. A recipe that cannot be read raises and leaves no document behind. REQUIRES: the database
    // is open and holds the recipe.
    RecipeDocument& CreateDocumentWindow(std::string_view name);
    // Opens the recipe, or focuses its open window with a beep when one has exactly that name; a name in
    // another case opens a second window, on purpose.
    void LoadDoc(std::string_view name);
    // What choosing a name does, as the recent list: a box when there is no such recipe, otherwise LoadDoc of
    // the trimmed name.
    void OpenByName(std::string_view name);
    // Asks about unsaved changes, then closes. False when called off.
    bool CloseDocument(RecipeDocument& document);
    // Removes the document from the collection without a question and destroys it. The document used before
    // it becomes active; without one the document commands go dark.
    void DeleteWindow(RecipeDocument& document);

    // Both give whether the recipe was saved. An error is shown in a box titled "Error". silent asks nothing:
    // a document that was never saved, or whose edited name is another recipe's, is passed over.
    bool SaveRecipe(RecipeDocument& document, bool silent);
    bool SaveRecipeAs(RecipeDocument& document);
    // SaveRecipeAs with the answer of the dialog given. silent asks nothing.
    bool SaveRecipeUnder(RecipeDocument& document, std::string_view name, std::int64_t folderId, bool silent);

    // Recipe files. ImportFile asks for the recipes and the folder in dialogs; the others are told them: no
    // names stand for all of the file, append adds to a file that exists instead of replacing it. All show
    // what goes wrong in boxes. REQUIRES: the database is open.
    void ImportFile(const std::string& path);
    void ImportRecipes(const std::string& path, std::int64_t folderId,
                       const std::optional<std::vector<std::string>>& names);
    void ExportRecipes(const std::string& path, bool append, const std::vector<std::string>& names);
    // A file by its path, as the command line, a drop or another program tells it: imports it, also by the
    // path without the quotes around it. One that is missing is told only when its path began with a quote:
    // intended. Errors are shown as Guard does. REQUIRES: the database is open.
    void ImportFromPath(std::string_view path) override;

    // The one program on a desktop, and the commands that reach it from outside. They wait while the timer is
    // off: until the start is over, and while a print job runs.
    DDEService& DDE() { return dde_; }
    void EnableDDETimer(bool on) { dde_.SetTicking(on); }

    // The catalogue. What its windows stand on; REQUIRES: the database is open.
    CatalogueContext Catalogues();
    // Styles or ingredients are others: the open documents read their lists again.
    void CatalogueChanged();
    // Shows the editor of the style of that name, or for a blank name that of a new style in the folder. The
    // name under which it was saved, nothing when it was not. REQUIRES: the database is open.
    std::optional<std::string> EditStyle(std::string_view name, std::int64_t folderId);

    // Autosave. Switching it on counts the minutes from 0.
    bool DoAutoSave() const { return settings_.doAutoSave; }
    void SetDoAutoSave(bool on);
    // A minute has gone: saves all documents when it is time. Nothing while autosave is off, while it saves,
    // while recipes are being copied, or in a database that cannot be written.
    void TickAutoSave();
    // Saves all documents silently behind the progress window.
    void ShowAutoSave();

    // Where the pages of the help come from; must outlive the shell. Without it the help shows nothing.
    void SetHelp(Help* help) { help_ = help; }
    // What F1 does in a window; an error is shown.
    void ShowContextHelp(std::string_view formName, std::string_view context);
    // The assistant, if the settings want it; its box and then its link are carried out. The last step of the
    // start.
    void ShowAssistantAtStartup();
    // Paper (ShellPrint.cpp). Without a port the commands below do nothing; both must outlive the shell.
    void SetPrinter(PrinterPort* printer) { printer_ = printer; }
    void SetSaveFiles(SaveFilePort* files) { saveFiles_ = files; }
    // Prints the active document, nothing without one; quick takes the default printer without a dialog.
    // Every failure is shown. Where there is no printer it offers the preview and a PDF file.
    void PrintActiveDocument(bool quick);
    // Shows the pages of the active document; nothing without one.
    void PreviewActiveDocument();
    // The wizard that makes report files. Its menu item is hidden: intended.
    void ShowReportWizard();

    // Runs a menu item's action. False when it is disabled or hidden: nothing happens then. An error that
    // rises from the action is shown as Guard does.
    bool RunCommand(CommandId command);
    // The same by the item's control name, for scripts; false for an unknown one too.
    bool RunMenu(std::string_view name);
    // What the toolbar button of the command does; likewise. False for a command without one.
    bool PressButton(CommandId command);
    // Show the icon set and the button style of the settings, and the grid colours in all documents.
    void ChangeToolbarIcons();
    void ChangeToolbarButtonStyle();
    void UpdateDocsOfColorChange();
    // Cut and paste state again: the clipboard may have changed.
    void ReapplyPasteState();

    // Runs an operation and shows an error that rises from it in a box titled "Error": "{description}
    // ({number})"; false then.
    bool Guard(const std::function<void()>& operation);

    // DocumentHost
    DocumentCommands& Commands() override { return *this; }
    bool IsActive(const RecipeDocument& document) const override { return active_ == &document; }
    RecipeDefaults Defaults() const override;
    bool AppendRows() const override;
    bool CopyHeaders() const override { return settings_.copyHeaders; }
    bool PasteMismatchSize() const override { return settings_.pasteMismatchSize; }
    int LPMaxIter() const override { return settings_.lpMaxIter; }
    bool AskBeforeNonUndoableChange() const override { return settings_.askBeforeNonUndoableChange; }
    void StopAskingBeforeNonUndoableChange() override { settings_.askBeforeNonUndoableChange = false; }
    void SetAppendRows(bool append);
    void DeleteRecipe(std::string_view name) override;
    void RecipeStored(std::string_view name) override;
    void AddToMRU(std::string_view name) override;
    void PickFromCatalogue(RecipeDocument& document, CatalogueKind list, const std::string& name) override;
    void DocumentEdited(const RecipeDocument& document) override;
    void DocumentRenamed(const RecipeDocument& document) override;

    // DocumentCommands
    void EnableResizeRecipe(bool enabled) override;
    void EnableChangeStrength(bool enabled) override;
    void EnableChangeBitterness(bool enabled) override;
    void EnableChangeCarbonation(bool enabled) override;
    void EnableSave(bool enabled) override;
    void EnableInsert(bool enabled) override;
    void EnableDelete(bool enabled) override;
    void EnableCopyPaste(bool enableCopy, bool enableCutPaste) override;
    void EnableUndo(bool enabled, std::string_view description) override;
    void EnableRedo(bool enabled, std::string_view description) override;
    void CheckEnableSaveAll() override;
    void CheckEnableDelete() override;
    void EnableClose(bool enabled);
    void EnableWindowMenu(bool enabled);

    // ObjectListener: each notice goes to every open document, in the order of their opening. The recent list
    // follows a new name and a deleted recipe first.
    void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) override;
    void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) override;
    void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) override;
    void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) override;
    void NotifyRecipeDeleted(const std::string& name) override;
    void NotifyRecipeFolderDeleted(std::int64_t folderId) override;
    void NotifyStyleDeleted(std::int64_t styleId) override;
    void NotifyStyleStored() override { CatalogueChanged(); }
    void DeletionEnded() override;

  private:
    // DDEHost
    bool IsDialogOpen() const override { return view_ != nullptr && view_->IsDialogOpen(); }
    void BringToFront() override;
    void CommandsWait() override;

    using Action = std::function<void(Shell&)>;
    struct ActionRow {
        CommandId command;
        void (*action)(Shell&);
        void (*pressed)(Shell&) = nullptr;  // what the button does, where that is something else
    };
    static const ActionRow kFileActions[], kEditActions[], kOtherActions[];
    bool OpenDatabase(const std::string& path);
    void FollowCatalogue();
    // nullptr for a command without a row, such as a recent recipe.
    static const ActionRow* FindAction(CommandId command);
    // Empty for a command that does nothing.
    static Action ActionOf(CommandId command);
    bool RunAction(CommandId command, const Action& action);
    bool CloseAll();
    void DarkenDocumentCommands();
    // Runs a save; an error in it is shown and counts as not saved.
    bool TrySave(const std::function<void(bool& ok)>& save);
    // Shows what a save has left in the database when it could not write all of it.
    void FollowUnfinishedSave(const RecipeDocument& document, bool ok);
    void EnableCopy(bool enabled);
    void EnablePaste(bool enabled);
    void ShowOpenDialog();
    void ShowDatabaseSetup();
    // Shows the selected row of a picker's list, and those around it, to be read.
    void ViewCatalogueRow(CatalogueKind type, ListTable& items);
    // What the dialog has come to; a printer that was chosen has the job by then.
    PrinterAnswer::Result PrintThroughDialog(bool quick);
    void PrintOn(std::unique_ptr<PrinterDevice> device);
    // Where there is no printer: from the preview, and from elsewhere.
    void OfferPdf();
    void OfferOtherPaper();
    void SaveActiveAsPdf();
    void SaveAsPdf(const PrintSteps& steps, Paper paper);
    void ShowDeleteDialog();
    void ShowExplorer();
    // Asks for another figure of the active recipe and scales it to that; nothing while it has none.
    void ShowScaling(Scaling what);
    void Arrange(Arrangement arrangement);
    void CopyShowingErrors();
    // The page of the active document's tab; the home page without one, and while it is minimised.
    void ShowHelpOfActive();
    void ShowHelpContents();
    void ShowAssistant();
    void SaveAllDocuments();
    // Runs one import or export; none within another one.
    void Exchange(const std::function<void(RecipeExchange&)>& operation);
    void SwitchAutoSave(bool wasOn);
    void ForgetUnsavedWork(const RecipeDocument& document);
    // The database's id for the files of unsaved work; empty when it can have none.
    std::string IdForRecovery();
    void TellReadOnly();
    // Brings the notice in line with what is wrong now.
    void UpdateNotice();
    void ReportPutAside(const std::string& file);
    template <class Notice>
    void ForEachDocument(Notice notice);

    Platform& platform_;
    DDEService dde_;
    SettingsStore store_;
    Settings settings_;
    OpenSaveFields browse_;
    OwnFiles own_;
    CommandBar bar_;
    RecentList recent_;
    ColorTable colors_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<TWTree> tree_;
    std::unique_ptr<TreeObjects> treeObjects_;  // changes tree_
    std::unique_ptr<DB_IO> objects_;
    std::vector<std::unique_ptr<RecipeDocument>> documents_;
    std::vector<RecipeDocument*> useOrder_;  // least recently active first
    RecipeDocument* active_ = nullptr;
    ShellView* view_ = nullptr;
    Help* help_ = nullptr;
    int windowCounter_ = 0;
    int nextDocKey_ = 0;
    bool lastPasteEnable_ = false;
    AutoSaveMinutes autoSaveMinutes_;
    bool autoSaving_ = false;
    bool exchanging_ = false;  // recipes are being copied from or to a file
    PrinterPort* printer_ = nullptr;
    SaveFilePort* saveFiles_ = nullptr;
    bool printerConfigured_ = false;
    std::string recoveryRoot_;
    std::string programFolder_;           // empty: the product's own files are not used
    std::unique_ptr<Recovery> recovery_;  // nullptr while nothing is kept
    std::set<std::string> editedKeys_;    // documents with edits that are not in their files
    bool unsavedNotKept_ = false;         // the last try could not write all of them
    std::string notice_;                  // what the view was told last
};

}  // namespace tw

// One open recipe: its record, the commits of its fields and cells, its rows, its style, and its way into the
// database and back. A window shows the record and calls these operations with what the brewer does; it holds
// nothing itself.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/RecipeCalculator.h"
#include "calc/RecipeRecord.h"
#include "document/ClipboardBlock.h"
#include "document/DocumentHost.h"
#include "document/EditRecorder.h"
#include "platform/Ports.h"
#include "store/Database.h"
#include "store/RecipeRows.h"
#include "tree/PickList.h"

namespace tw {

struct RecipeSnapshot;

// The nine tabs.
enum class Tab : int { General, Grains, Extracts, Hops, Water, Carbonation, Adjuncts, Log, Notes };
inline constexpr int kTabs = 9;

// Whether a refused entry is told in a box.
enum class Asking : std::uint8_t { Aloud, Quietly };

// What the editor of a cell offers.
struct CellList {
    std::vector<std::string> entries;
    bool freeText = true;  // another text than the entries may be typed
};

// The window of a document, as far as the logic needs it.
class DocumentView {
  public:
    virtual ~DocumentView() = default;
    // Commits whatever is being edited in the window: the open cell editor, the focused text box. False when
    // an entry was refused; it stays open and its box has been shown.
    virtual bool FlushEditors() = 0;
    // An undo or redo works on that tab.
    virtual void TabWanted(Tab) {}
    // The control of that name should have the focus, if it can be seen.
    virtual void ControlWanted(const std::string& /*name*/) {}
    // Many changes come: nothing needs to be painted until they are all there. Calls nest.
    virtual void HoldRedraw(bool /*hold*/) {}
};

// For the time of a scope the window does not paint.
class RedrawHold {
  public:
    explicit RedrawHold(DocumentView* view) : view_(view) {
        if (view_) view_->HoldRedraw(true);
    }
    ~RedrawHold() {
        if (view_) view_->HoldRedraw(false);
    }
    RedrawHold(const RedrawHold&) = delete;
    RedrawHold& operator=(const RedrawHold&) = delete;

  private:
    DocumentView* view_;
};

class RecipeDocument {
  public:
    // A new recipe with the defaults of the settings, not changed. All references must outlive the document.
    // number is shown in the caption of a document without a name; 0 is none.
    RecipeDocument(DocumentHost& host, Platform& platform, Database& database, const ColorTable& colors,
                   int number);
    RecipeDocument(const RecipeDocument&) = delete;
    RecipeDocument& operator=(const RecipeDocument&) = delete;

    RecipeRecord& Record() { return record_; }
    const RecipeRecord& Record() const { return record_; }
    void SetView(DocumentView* view) { view_ = view; }

    // Identity and state.
    const std::string& Key() const { return key_; }
    void SetKey(std::string key) { key_ = std::move(key); }
    const std::string& OrigName() const { return origName_; }
    const std::string& BeerName() const { return record_.txtName.Text(); }
    const std::string& BeerStyle() const { return record_.cmbStyle.Text(); }
    std::int64_t FolderID() const { return folderId_; }
    void SetFolderID(std::int64_t id) { folderId_ = id; }
    std::int64_t StyleID() const { return styleId_; }
    // Reloads the style list and selects that style, or "(None)"; shows its ranges. Not an edit of the
    // recipe.
    void SetStyleID(std::int64_t id);
    bool Changed() const { return changed_; }
    // The window's caption: the trimmed name, else "Untitled {number}", else "Untitled".
    std::string Caption() const;

    // Text boxes. SetText is each change while typing; CommitField is what runs when the box loses the focus
    // or edits are flushed: validation, then the field's chain. It returns false for a bad entry (whose box
    // has been shown, if aloud): the text stays and the box keeps the focus. It raises for an arithmetic
    // fault; the field then has its last committed text again. A computed box refuses both.
    void SetText(TextBox& box, std::string_view text);
    bool CommitField(TextBox& box, Asking asking = Asking::Aloud);
    // Puts the last committed text back (Escape, a refused entry of a script); the typing stays balanced in
    // the history.
    void RestoreField(TextBox& box);

    // The style list.
    void SelectStyle(int index);
    // The entry of the style of that name (trimmed, case ignored), else of the one that it is another name or
    // the code of; -1 when there is none.
    int StyleEntryOf(std::string_view name) const;
    // Selects that style of the stored ones. False when there is none.
    bool ChangeStyle(std::string_view name);
    void ReloadStyles();

    // Option buttons, by the name of the option. False for an unknown one.
    bool ChooseOption(std::string_view option);

    // Cells. CanEdit: the cell is a data cell and neither its row nor its column is read-only.
    bool CanEdit(const Grid& grid, int row, int col) const;
    CellList ListOf(const Grid& grid, int row, int col) const;
    // Validates the text and commits it: the cell's chain runs. False for a bad entry (whose box has been
    // shown, if aloud) and for a cell that cannot be edited: nothing has changed then. Raises for an
    // arithmetic fault; the cell is then as before.
    bool EditCell(Grid& grid, int row, int col, std::string_view text, Asking asking = Asking::Aloud);
    // What the cell would hold with that text; nothing changes. Raises for an arithmetic fault.
    Reading<CellValue> ReadCell(const Grid& grid, int row, int col, std::string_view text) const;
    // A check-box cell. False when the cell is none.
    bool SetChecked(Grid& grid, int row, int col, bool checked);
    // A day of the calendar for the current row of gridLog.
    void PickLogDate(const DateTime& day);

    // Rows. The first two act on the present tab's grid.
    void InsertRow();
    void DeleteRow();
    // A blank row at the current row, or behind the last data row as the setting says; nothing in a grid of
    // fixed rows.
    void InsertRowForGrid(Grid& grid);
    // The current row goes; nothing when it is no data row or the grid may not lose one.
    void DeleteRowForGrid(Grid& grid);
    bool CanInsertRow(const Grid& grid) const;
    // True when the current row is a data row and the grid may lose one.
    bool CanDeleteRow(const Grid& grid) const;
    // The grid that InsertRow and DeleteRow act on, nullptr on tabs without one.
    Grid* GridOfTab(Tab tab);
    void SetCurrentCell(Grid& grid, int row, int col);
    // Selects a block; its first cell becomes the current one.
    void SelectCells(Grid& grid, const GridRange& range);
    // A click on a column's header: sorts the data rows by it, the other way round on the same column again.
    // Nothing in a grid of fixed rows or one without that column.
    void ClickHeader(Grid& grid, int col);
    int SortColumn() const { return sortColumn_; }
    bool SortDescending() const { return sortDescending_; }

    // Which control the brewer works in, as far as the edit commands below care. Without a window, entering
    // another control commits the text box that is left; a refused entry goes back to its committed text.
    void FocusOn(TextBox& box);
    void FocusOn(Grid& grid);
    // A control that the edit commands know nothing of, such as a button.
    void FocusElsewhere();

    // The edit commands on the text box or grid with the focus; nothing without one, and nothing that changes
    // a computed box. A block of cells travels as in ClipboardBlock.h.
    void SelectAll();
    // Text boxes: the selected text, if any. Grids: the selected block, with the header when whole columns
    // are selected and the settings say so.
    void Copy();
    void Cut();
    // Empties the selected text or cells; check boxes stay as they are.
    void Clear();
    // Replaces the selected text, or the selected cells from the first on, each in its turn: read-only cells
    // use up their place of the block. A block that does not fit the selection, or an entry that a cell does
    // not take, shows a box, and nothing has changed. An arithmetic fault raises; all is as before then.
    void Paste();

    // A name that was chosen from the catalogue, for the current row of the grid of that kind; the row is
    // filled as if it had been typed. ChangeYeast writes into the notes of gridLog.
    void ChangeGrain(std::string_view name);
    void ChangeExtract(std::string_view name);
    void ChangeHop(std::string_view name);
    void ChangeYeast(std::string_view name);
    void ChangeWater(std::string_view name);
    void ChangeSalt(std::string_view name);
    void ChangeSugar(std::string_view name);
    // One of these and ChangeStyle, by the list that the name was chosen from.
    void TakeChoice(PickList list, std::string_view name);

    // The catalogue that a cell's name stands in; nothing for a cell that holds no such name, and for one
    // that cannot be edited. Of gridLog it is that of the yeasts, for the notes of a row that pitches one.
    std::optional<PickList> PickListOf(const Grid& grid, int row, int col) const;
    // Let the brewer choose from a catalogue, which opens on the present name; the choice goes into the
    // style, into the current cell. BrowseCell is false, and asks nothing, for a cell without a catalogue and
    // while more cells are selected.
    void BrowseStyles();
    bool BrowseCell(Grid& grid);

    // The button below gridWater, nothing while it is off: replaces all rows of gridTreatment by the salts
    // that bring the source water nearest to the target water, as one step of the history. A box, and nothing
    // has changed, when the catalogue has no salts or no program has a solution. Raises for an arithmetic
    // fault; all is as before then.
    void CalcTreatment();

    // Changes that no undo takes back: each asks first, and does nothing when the brewer does not want it.
    // Behind one that went through the history is empty. They raise for an arithmetic fault; all is as before
    // then.
    //
    // Another total volume in gallons, shown as sizeText; the amounts follow. Whether the carbonation is held
    // is asked too. A size that RefusalOfSize refuses shows its box. The boil volume follows only if asked
    // to, and the hops keep the bitterness only if asked to. Nothing while the total volume is 0.
    void ScaleRecipe(double newSize, std::string_view sizeText, bool scaleBoilVol, bool preserveIBU);
    // Why the recipe cannot be resized to that many gallons, as the text of a box: no final volume would be
    // left. Empty when it can.
    std::string RefusalOfSize(double newSize) const;
    // Another original gravity by other amounts of grain and extract. Nothing while the gravity is 1.
    void ScaleOG(double newOG, bool preserveIBU);
    // Another bitterness by other amounts of hops. Nothing while the bitterness is 0.
    void ScaleIBU(double newIBU);
    // Another carbonation, in volumes, by the keg's pressure or the amounts of the sugars. One that cannot be
    // reached shows a box, unless quiet, and changes nothing.
    void ScaleCO2(double newVolumes, bool quiet);

    // Undo and redo of the edits since the document was opened or saved, one step each; false when there is
    // none.
    bool Undo();
    bool Redo();
    const UndoStack& History() const { return recorder_.Stack(); }

    // Steering the main window.
    Tab CurrentTab() const { return tab_; }
    void SetTab(Tab tab);
    // The document's window became the active one.
    void Activate();
    // Commits what is being typed. False when an entry was refused and stays open in the window; without a
    // window it goes back to its committed text instead.
    bool FlushEdits();
    // As FlushEdits without a word, for a save that nobody asked for: commits the text boxes that can be
    // read. Those that cannot, those that have just been emptied, and an open cell editor stay as they are
    // being typed.
    void FlushEditsQuietly();

    // Persistence. OpenRecipe fills the document from the stored recipe of that name; REQUIRES: it exists.
    void OpenRecipe(std::string_view name);
    // Writes the document. ok is false when the brewer refused to overwrite another recipe; nothing has
    // changed then. A store error raises and leaves what was done so far, the document still changed.
    void Save(bool saveAs, bool silent, bool& ok);
    // Names and places the document, dates its creation today, then saves.
    void SaveRecipeAs(std::string_view name, std::int64_t folderId, bool silent, bool& ok);

    // The recipe as it stands, unsaved edits included, and the same put into a new document: it is changed
    // then, and nothing has been stored. A recipe or folder that is gone from the database meanwhile leaves
    // it without a place, so that its save asks for one. An entry that was being typed is committed if it can
    // be read.
    RecipeSnapshot TakeSnapshot() const;
    void Restore(const RecipeSnapshot& snapshot);

    // Notices of what happened in the database. Names compare trimmed, case ignored, with OrigName.
    void NotifyRecipeMoved(std::string_view name, std::int64_t folderId);
    void NotifyRecipeNewStyle(std::string_view name, std::int64_t styleId);
    void NotifyRecipeRenamed(std::string_view oldName, std::string_view newName);
    void NotifyStyleRenamed(std::int64_t styleId, std::string_view newName);
    void NotifyRecipeDeleted(std::string_view name);
    void NotifyStyleDeleted(std::int64_t styleId);
    void NotifyRecipeFolderDeleted(std::int64_t folderId);
    // The catalogue has changed: the style list and the style's ranges are read again.
    void DBChanged();

    bool CanEnableCO2() const { return calculator_.CanEnableCO2(); }

  private:
    // Passes the commands on while the document is the active one.
    class ActiveCommands final : public RecipeCommands {
      public:
        explicit ActiveCommands(RecipeDocument& document) : document_(document) {}
        void EnableResizeRecipe(bool enabled) override;
        void EnableChangeStrength(bool enabled) override;
        void EnableChangeBitterness(bool enabled) override;
        void EnableChangeCarbonation(bool enabled) override;

      private:
        RecipeDocument& document_;
    };

    bool IsActive() const { return host_.IsActive(*this); }
    // The text box that has the focus first on that tab; nullptr where a grid has it.
    TextBox* FirstBoxOfTab(Tab tab);
    void ApplyDefaults();
    void CommitDefault(TextBox& box, const std::string& text);
    void MarkChanged();
    void ClearChanged();
    bool IsStoredAs(std::string_view name) const;
    void SetDetached();

    // Fields (RecipeDocumentFields.cpp).
    Commit CommitQuantity(TextBox& box);
    // The number of a text in the box's unit; that of the box for free text.
    static Reading<double> ReadField(const TextBox& box, std::string_view text);
    Commit RunFieldChain(const TextBox& box);
    // Style (RecipeDocumentStyle.cpp).
    // Selects the style of that id and shows its ranges; "(None)" when it is gone. Gives its water profile,
    // nothing without one.
    std::optional<std::string> ShowStyle(std::int64_t id);
    void EmptyStyleRanges();
    void ChooseStyle(std::int64_t id);

    // Cells (RecipeDocumentCells.cpp).
    Reading<CellValue> ReadKegPressure(std::string_view text) const;
    // What ReadCell gives; nothing for a text that is refused or breaks a formula.
    std::optional<CellValue> ReadQuietly(const Grid& grid, int row, int col, std::string_view text) const;
    void ChangeRow(Grid& grid, int row, int col, const std::function<void()>& change);
    void RecordRowChange(Grid& grid, int row, int col, const std::vector<Cell>& before);
    void ReadTimeAgain(Grid& hops, int row);
    void RunCellChain(Grid& grid, int row, int col);
    void RecalculateGrid(Grid& grid, int row);
    // Catalogue look-ups by the row's name (RecipeDocumentCatalogue.cpp). True if the name was found and has
    // filled other cells.
    bool LookUp(Grid& grid, int row, int col);
    bool LookUpFermentable(Grid& grid, int row);
    bool LookUpSugar(int row);
    bool LookUpHop(int row);
    bool LookUpWater(int row);
    bool LookUpSalt(int row);
    void LookUpYeast(int row);
    void FillFromCatalogue(Grid& grid, int row, int col, const Field& field);

    // Rows (RecipeDocumentRows.cpp).
    void AddBlankRow(Grid& grid, int row);
    void ClearRowCells(Grid& grid, int row);
    void ClearFactors(int row);
    void RefreshRowCommands();

    void RemoveRow(Grid& grid, int row);

    // The edit commands (RecipeDocumentClipboard.cpp).
    void RefreshEditCommands();
    void ReplaceSelection(TextBox& box, std::string_view with, ChangeType type);
    void CopyCells(const Grid& grid);
    bool CanPaste(const Grid& grid, const GridRange& target, const ClipboardBlock& block);
    void ApplyBlock(Grid& grid, const GridRange& target, const ClipboardBlock& block, ChangeType type);
    void ApplyBlockCell(Grid& grid, int row, int col, const std::string& text);
    void ChooseFromCatalogue(Grid& grid, int col, std::string_view name);

    // Undo (RecipeDocumentUndo.cpp).
    bool FlushBeforeStep();
    bool ApplyStep(const EditTracker* head, bool undo);
    void ApplyEdit(const EditTracker& edit, bool undo);
    void WantTab(int tab);
    void ApplyToStyle(std::int64_t id);
    void ApplyToTextBox(TextBox& box, const EditTracker& edit, bool undo);
    // Runs changes as one step of the history, or as part of the step that is open; when one raises, the
    // whole step is taken back and the error goes on.
    void AsOneStep(ChangeType type, const std::function<void()>& changes);
    void ApplyToGrid(Grid& grid, const EditTracker& edit, bool undo);
    void ApplyToCell(Grid& grid, int row, int col, const EditValue& value);
    EditValue ValueOf(const Grid& grid, int row, int col, const Cell& cell);
    EditValue ValueOf(const TextBox& box, std::string_view text, double number);
    static double NumberTold(const TextBox& box, std::string_view text, double otherwise);
    CellValue NumberTold(const Grid& grid, int row, int col, std::string_view text) const;
    void ApplyRowInsert(Grid& grid, const EditTracker& edit, bool insert);
    void ApplyRowDelete(Grid& grid, int row, bool remove);
    void RefreshUndoCommands();
    void RecordText(TextBox& box, std::string_view newText, ChangeType type);

    // The treatment (RecipeDocumentTreatment.cpp).
    void ClearTreatment();
    // Scaling (RecipeDocumentScaling.cpp).
    bool MayChangeForGood();
    bool MayKeepCarbonation();
    void ChangeForGood(const std::function<bool()>& change);
    bool Resize(double newSize, std::string_view sizeText, bool scaleBoilVol, double volumes);
    bool KeepBitterness(double ibu);

    // Sorting (RecipeDocumentSort.cpp).
    std::vector<int> SortedOrder(const Grid& grid, int col) const;
    void OrderGrid(Grid& grid, const std::vector<int>& order, int col);

    // Persistence (RecipeDocumentStore.cpp, RecipeMapping.cpp).
    bool AskOverwrite();
    void DeleteOwnRow();
    StoredRecipe ToStored() const;
    void LinesToStored(StoredRecipe& stored) const;
    // Raises an error for a form that the table does not know.
    static void CheckHopForms(const StoredRecipe& stored);
    void FillFields(const StoredRecipe& stored);
    void FillWaterAndKeg(const StoredRecipe& stored);
    // Gives the names of the figures that could not be worked out.
    std::vector<std::string> FillGrids(const StoredRecipe& stored);
    void FillFermentables(Grid& grid, const std::vector<StoredGrain>& lines);
    void FillHop(const StoredHop& hop);
    void FillTextGrids(const StoredRecipe& stored);
    void TellUnusableNumbers(const std::vector<std::string>& figures);
    void FillBox(TextBox& box, const StoredQuantity& stored);
    static void FillText(Grid& grid, int row, int col, const StoredText& text);
    void FillCell(Grid& grid, int row, int col, const StoredQuantity& stored);
    // Adds blank rows until the grid has that place; gives its row.
    int GrowTo(Grid& grid, int rowId);
    static void FinishGrid(Grid& grid);
    void RestorePlace(const RecipeSnapshot& snapshot);
    static void RestoreRows(Grid& grid, const std::vector<std::vector<Cell>>& rows);
    static bool Recalculate(const std::function<void()>& operation);
    static bool Quietly(const std::function<bool()>& reading);

    DocumentHost& host_;
    Platform& platform_;
    Database& database_;
    RecipeRecord record_;
    ActiveCommands commands_{*this};
    RecipeCalculator calculator_;
    EditRecorder recorder_{[this] { RefreshUndoCommands(); }};
    DocumentView* view_ = nullptr;
    // The control with the focus: one of them or none.
    TextBox* focusBox_ = &record_.txtName;
    Grid* focusGrid_ = nullptr;
    int sortColumn_ = -1;
    bool sortDescending_ = false;
    // What a pitched yeast has just made of txtFG, until it is recorded with the log cell's edit.
    struct GravityChange {
        std::string oldText;
        double oldValue;
    };
    std::optional<GravityChange> gravityChange_;

    std::string key_;
    std::string origName_;
    int number_ = 0;
    std::int64_t folderId_ = -1;
    std::int64_t styleId_ = 0;
    std::optional<DateTime> createdWhen_;
    Tab tab_ = Tab::General;
    bool changed_ = false;
    bool loaded_ = false;      // events count as edits
    bool savingOver_ = false;  // the document's own save replaces its stored recipe
};

}  // namespace tw

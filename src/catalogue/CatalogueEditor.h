// The editor of one catalogue row: a name, a description, lists, and a grid of values. One model serves all
// catalogues; EditorForm describes their differences, and derived classes add what is more than a table.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "catalogue/CatalogueContext.h"
#include "catalogue/EditorEntry.h"
#include "catalogue/EditorForm.h"
#include "catalogue/ObjectNavigator.h"
#include "platform/FormModel.h"
#include "store/CatalogueDraft.h"

namespace tw {

class FolderChooser;

// The controls are Text1, Text2, txtDesc, Combo1, Combo2, FolderID and gridInfo(ROW,COL), those that the form
// has; none accepts an entry while the form is read-only. Entering a cell also leaves it; a refused text is
// replaced by the one before. The buttons are cmdOK, cmdApply, cmdCancel, and for the navigator cmdFirst,
// cmdPrevious, cmdNext and cmdLast.
class CatalogueEditor : public FormModel {
  public:
    // Creates a blank form, for a new row; SetName loads an existing one. The objects of context must outlive
    // the editor.
    CatalogueEditor(CatalogueKind catalogue, const CatalogueContext& context);

    const EditorForm& Form() const { return *form_; }
    // Loads the row of that name, ignoring case. The form is blank, for a new row, if the name is blank
    // or, after a message, if the table has no such row. Raises the store's error, which also leaves the
    // form blank.
    void SetName(std::string_view name);
    // Shows a new row with what is known of it.
    void StartWith(const CatalogueDraft& draft);
    // The name under which the row is stored; empty for a new row.
    const std::string& LoadedName() const { return loadedName_; }
    // The name saved last; empty before the first save.
    const std::string& Selection() const { return selection_; }

    // Sets the navigator for stepping through the rows of a list. REQUIRES: navigator outlives this editor.
    void SetNavigator(ObjectNavigator& navigator) { navigator_ = &navigator; }
    // The navigator, or nullptr.
    ObjectNavigator* Navigator() const { return navigator_; }
    // Shows the row that a step of the navigator has reached; does nothing if name is empty. Changes not
    // applied are lost.
    void GoTo(const std::string& name);

    // Makes the form read-only: it accepts no entries and saves nothing.
    virtual void SetReadOnly() { readOnly_ = true; }
    bool ReadOnly() const { return readOnly_; }
    bool ApplyEnabled() const { return applyEnabled_ && !readOnly_; }

    // Returns the list of Combo1 or Combo2. REQUIRES: the form has that control.
    const EditorList& List(std::string_view control) const;
    const CellGrid& Cells() const { return entry_.cells; }
    // Changes the text of a cell, as typing does. Does nothing while the form is read-only.
    void TypeCell(int row, int col, std::string_view text);
    // Checks the text of a cell, as CellGrid::Leave does. False if it was refused.
    bool LeaveCell(int row, int col) { return entry_.cells.Leave(row, col, context_.messages); }
    // The chooser of the style's folder; nullptr for all editors but that of styles.
    virtual FolderChooser* Folders() { return nullptr; }
    // To be called when another folder has been chosen.
    void FolderChanged() { MarkChanged(); }

    // Saves as cmdApply does, but raises the store's errors, for a unit of work of which the entry is a part.
    // False if the entry was refused, which a message has said.
    bool SaveOrRaise();

    // The control whose text the last cmdOK or cmdApply refused; empty if it saved.
    const std::string& RefusedControl() const { return refusedControl_; }

    // Sets a callback that runs after each save, with the saved name.
    void OnSaved(std::function<void(const std::string&)> told) { onSaved_ = std::move(told); }

  protected:
    // Clears the parts of the form that are not in EditorEntry, for a new row.
    virtual void ClearOwn() {}
    // Reads those parts from the row at which the recordset is.
    virtual void ReadOwn(const Recordset&) {}
    // Returns the value of a column that only a derived editor knows.
    virtual SqlValue OwnValue(ColumnSource) const { return Null(); }
    // Writes the row as one unit of work that is undone if it fails: deletes the old row and inserts the new
    // one. Raises the store's error. False if the row could not be written and a message has said so.
    virtual bool Write(const std::string& name);
    // Called within that unit of work, before and after the two statements.
    virtual void BeforeWrite() {}
    virtual void AfterWrite() {}
    // Called after cmdApply has saved, while the form continues to show the row.
    virtual void Applied() {}

    const CatalogueContext& Context() const { return context_; }
    Database& Store() const { return context_.database; }
    // Changes to the form of that catalogue, if a row turns out to be an extract instead of a grain, or the
    // reverse. Both forms have the same cells.
    void SetForm(CatalogueKind catalogue) { form_ = &FormOf(catalogue); }
    // The list of Combo1, whatever it contains in this form.
    EditorList& TypeList() { return entry_.combo1; }
    // Returns the columns to write, without those that a derived editor adds.
    ColumnValues Values(const std::string& name) const;
    // Marks the row as no longer stored, so that the next save inserts it.
    void ForgetLoadedName() { loadedName_.clear(); }
    void ShowError(std::string_view text) { context_.messages.ShowMessage("Error!", text); }

  private:
    void DeclareControls();
    void DeclareCells();
    void DeclareButtons();
    // Returns control changed so that it accepts no entry while the form is read-only, and marks an entry as
    // a change.
    FormControl Editable(FormControl control);
    void MarkChanged() { applyEnabled_ = true; }
    void Clear();
    void Ok();
    // Checks the texts of all cells. False if one was refused.
    bool LeaveCells();
    // Checks the name and writes the row. Raises the store's errors.
    bool WriteEntry();
    void MarkSaved();
    bool Save();
    // True if the row may be stored under that name; otherwise shows a message.
    bool CheckName(const std::string& name);

    const EditorForm* form_;
    CatalogueContext context_;
    ObjectNavigator* navigator_ = nullptr;
    EditorEntry entry_;
    std::string loadedName_, selection_, refusedControl_;
    std::function<void(const std::string&)> onSaved_;
    bool readOnly_ = false;
    bool applyEnabled_ = false;
};

// Creates the editor of that catalogue with a blank form.
std::unique_ptr<CatalogueEditor> MakeEditor(CatalogueKind catalogue, const CatalogueContext& context);

}  // namespace tw

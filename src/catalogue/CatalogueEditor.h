// The editor of one row of a catalogue: a name, a description, lists, and a grid of values. One model for all
// catalogues; EditorForm tells them apart, and what is more than a table stands in the classes derived from
// it.
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

namespace tw {

class FolderChooser;

// Text1, Text2, txtDesc, Combo1, Combo2, FolderID and gridInfo(ROW,COL), as far as the form has them; none
// takes an entry while the form is read-only. A cell is left as it takes its entry, and a refused text leaves
// the old one. cmdOK, cmdApply, cmdCancel, and the steps of the navigator cmdFirst, cmdPrevious, cmdNext,
// cmdLast.
class CatalogueEditor : public FormModel {
  public:
    // Blank, for a new row; SetName fills it. context must outlive the editor.
    CatalogueEditor(CatalogueKind catalogue, const CatalogueContext& context);

    const EditorForm& Form() const { return *form_; }
    // Reads the row of that name, compared without regard to case. A blank name gives a blank form for a new
    // row; so does, after a message, a name that the table does not hold.
    void SetName(std::string_view name);
    // The name under which the row is stored; empty for a new row.
    const std::string& LoadedName() const { return loadedName_; }
    // The name that was saved last; empty before.
    const std::string& Selection() const { return selection_; }

    // Steps through the rows of a list from now on. REQUIRES: it lives for as long.
    void SetNavigator(ObjectNavigator& navigator) { navigator_ = &navigator; }
    // nullptr for none.
    ObjectNavigator* Navigator() const { return navigator_; }
    // Shows the row that a step of the navigator arrived at; nothing for an empty name. What was not applied
    // is dropped.
    void GoTo(const std::string& name);

    // The form only shows rows from now on: no entry is taken and nothing is saved.
    virtual void SetReadOnly() { readOnly_ = true; }
    bool ReadOnly() const { return readOnly_; }
    bool ApplyEnabled() const { return applyEnabled_ && !readOnly_; }

    // Combo1 or Combo2. REQUIRES: the form has it.
    const EditorList& List(std::string_view control) const;
    const CellGrid& Cells() const { return entry_.cells; }
    // A key changes the text of a cell; nothing while the form is read-only.
    void TypeCell(int row, int col, std::string_view text);
    // Checks what was typed, as CellGrid does. False when it was refused.
    bool LeaveCell(int row, int col) { return entry_.cells.Leave(row, col, context_.messages); }
    // The style folder; nullptr for all editors but that of the styles.
    virtual FolderChooser* Folders() { return nullptr; }
    // The folder has been changed in its chooser.
    void FolderChanged() { MarkChanged(); }

    // The control that the last cmdOK or cmdApply stumbled on; empty when it saved.
    const std::string& RefusedControl() const { return refusedControl_; }

    // Runs after each save, with the name.
    void OnSaved(std::function<void(const std::string&)> told) { onSaved_ = std::move(told); }

  protected:
    // Clears what the form has beside its entry, for a new row.
    virtual void ClearOwn() {}
    // Takes what the row holds beside it. The recordset is at the row.
    virtual void ReadOwn(const Recordset&) {}
    // The value of a column that only a derived editor knows.
    virtual SqlValue OwnValue(ColumnSource) const { return Null(); }
    // Writes the row: deletes the old one and inserts the new one, as one unit that is taken back when it
    // fails. Raises the store's error. False when the row could not be written, which has been told.
    virtual bool Write(const std::string& name);
    // Run within that unit, before and after the two statements.
    virtual void BeforeWrite() {}
    virtual void AfterWrite() {}
    // cmdApply has saved: the form goes on showing the row as it is stored now.
    virtual void Applied() {}

    const CatalogueContext& Context() const { return context_; }
    Database& Store() const { return context_.database; }
    // For the grain that turns out to be an extract; both have the same cells.
    void SetForm(CatalogueKind catalogue) { form_ = &FormOf(catalogue); }
    // Combo1, whatever the form has there.
    EditorList& TypeList() { return entry_.combo1; }
    // Everything but what a derived editor adds.
    ColumnValues Values(const std::string& name) const;
    // The row is not stored any more: the next save inserts it.
    void ForgetLoadedName() { loadedName_.clear(); }
    void ShowError(std::string_view text) { context_.messages.ShowMessage("Error!", text); }

  private:
    void DeclareControls();
    void DeclareCells();
    void DeclareButtons();
    // A control that takes no entry while the form is read-only, and whose entry is a change.
    FormControl Editable(FormControl control);
    void MarkChanged() { applyEnabled_ = true; }
    void Clear();
    void Ok();
    bool Save();
    // Whether the name may be stored; tells why not.
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

// The editor of that catalogue, on a blank form.
std::unique_ptr<CatalogueEditor> MakeEditor(CatalogueKind catalogue, const CatalogueContext& context);

}  // namespace tw

// The editor of one row of a catalogue: a name, a description, lists, and a grid of low and high values. One
// model for all catalogues; EditorForm tells them apart, and what is more than a table stands in the classes
// derived from it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "catalogue/EditorForm.h"
#include "catalogue/ObjectNavigator.h"
#include "platform/DialogModel.h"

namespace tw {

class FolderChooser;

// A list with its box.
struct EditorList {
    std::vector<std::string> entries;
    std::string text;
    bool freeText = false;  // takes texts that are no entries, too
};

class CatalogueEditor : public DialogModel {
  public:
    // Blank, for a new row; SetName fills it. context must outlive the editor.
    CatalogueEditor(CatalogueKind catalogue, const CatalogueContext& context);
    CatalogueEditor(const CatalogueEditor&) = delete;
    CatalogueEditor& operator=(const CatalogueEditor&) = delete;

    const EditorForm& Form() const { return *form_; }
    // Reads the row of that name, compared without regard to case. A blank name gives a blank form for a new
    // row; so does, after a message, a name that the table does not hold.
    void SetName(std::string_view name);
    // The name under which the row is stored; empty for a new row.
    const std::string& LoadedName() const { return loadedName_; }
    // The name that was saved last; empty before.
    const std::string& Selection() const { return selection_; }
    // True after cmdCancel or the close box, and until cmdOK has saved.
    bool Cancelled() const { return cancelled_; }

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

    // Text1, Text2 or txtDesc. REQUIRES: the form has it.
    const std::string& Text(std::string_view control) const;
    // Combo1 or Combo2. REQUIRES: the form has it.
    const EditorList& List(std::string_view control) const;
    // The cells of gridInfo; rows and columns count from 0. REQUIRES: there is such a cell.
    int Rows() const { return static_cast<int>(form_->rows.size()); }
    int Cols() const { return form_->HasRanges() ? 2 : 1; }
    const std::string& CellText(int row, int col) const { return Cell(row, col).text; }
    // The stored number; nothing for a blank cell.
    std::optional<double> CellValue(int row, int col) const { return Cell(row, col).value; }
    // A key changes the text; nothing is checked before the cell is left.
    void TypeCell(int row, int col, std::string_view text);
    // Checks what was typed. A bad entry has had its message: the last good text stands there again; false
    // then. A blank one is allowed.
    bool LeaveCell(int row, int col);
    // What is odd about the ranges, in a sentence; empty for nothing. They are stored as they are.
    std::string RangeHint() const;
    // The middle of the form's colour row in homebrew colour units; nothing while it is blank or the form has
    // none.
    std::optional<double> ColorHcu() const;
    // The style folder; nullptr for all editors but that of the styles.
    virtual FolderChooser* Folders() { return nullptr; }
    // The folder has been changed in its chooser.
    void FolderChanged() { MarkChanged(); }

    // The control that the last cmdOK or cmdApply stumbled on; empty when it saved.
    const std::string& RefusedControl() const { return refusedControl_; }

    // Runs after each save, with the name.
    void OnSaved(std::function<void(const std::string&)> told) { onSaved_ = std::move(told); }

    std::string FormName() const override { return std::string(form_->formName); }
    // Text1, Text2, txtDesc, Combo1, Combo2, FolderID, gridInfo(ROW,COL), as far as the form has them.
    std::vector<DialogControl> Controls() const override;
    // A cell is left then; a refused text leaves the old one. False also for a list that has no such entry,
    // and for everything while the form is read-only.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK, cmdApply, cmdCancel, and the steps of the navigator cmdFirst, cmdPrevious, cmdNext, cmdLast. One
    // that is off or hidden does nothing.
    bool Press(std::string_view button) override;
    void CloseBox() override;
    bool IsOpen() const override { return open_; }

  protected:
    using ColumnValues = std::vector<std::pair<std::string, SqlValue>>;  // by the names of the columns

    // Clears what the form has beside texts, lists and cells, for a new row.
    virtual void ClearOwn() {}
    // Takes what the row holds beside them. The recordset is at the row.
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
    // The choice of the folder; nothing without folders.
    virtual std::optional<std::string> FolderText() const { return std::nullopt; }
    virtual bool EnterFolder(std::string_view) { return false; }

    const CatalogueContext& Context() const { return context_; }
    Database& Store() const { return context_.database; }
    // For the grain that turns out to be an extract.
    void SetForm(CatalogueKind catalogue) { form_ = &FormOf(catalogue); }
    // Combo1, whatever the form has there.
    EditorList& TypeList() { return list1_; }
    const EditorList& TypeList() const { return list1_; }
    // Everything but what a derived editor adds, in the order of an INSERT. A blank range end is left out or
    // NULL, as the form says.
    ColumnValues Values(const std::string& name) const;
    void Insert(const ColumnValues& values);
    void ForgetLoadedName() { loadedName_.clear(); }
    void ShowError(std::string_view text) { context_.messages.ShowMessage("Error!", text); }
    void MarkChanged();

  private:
    struct CellState {
        std::string text;
        std::string goodText;  // the last one that was left and found good
        std::optional<double> value;
    };

    CellState& Cell(int row, int col) { return cells_[Index(row, col)]; }
    const CellState& Cell(int row, int col) const { return cells_[Index(row, col)]; }
    std::size_t Index(int row, int col) const {
        const int index = row * Cols() + col;
        return static_cast<std::size_t>(index);
    }
    // nullptr for a control that the form does not have.
    std::string CatalogueEditor::*TextNamed(std::string_view control) const;
    EditorList CatalogueEditor::*ListNamed(std::string_view control) const;
    std::optional<double> ReadAloud(const RangeRow& row, std::string_view text);
    void SetUpLists();
    void Clear();
    void Read(const Recordset& row);
    void ReadColumn(const FormColumn& column, const Recordset& row);
    void SetCell(int row, int col, const Field& number);
    static std::string CellName(int row, int col);
    // The cell that "gridInfo(ROW,COL)" names.
    std::optional<std::pair<int, int>> CellNamed(std::string_view name) const;
    bool EnterCell(int row, int col, std::string_view text);
    bool EnterList(std::string_view name, std::string_view text);
    bool Save();
    // Whether the name may be stored; tells why not.
    bool CheckName(const std::string& name);
    SqlValue ValueOf(ColumnSource source, const std::string& name) const;
    void AddRanges(ColumnValues& values) const;
    void Step(std::string_view button);

    const EditorForm* form_;
    CatalogueContext context_;
    ObjectNavigator* navigator_ = nullptr;
    std::string name_, text2_, description_;
    EditorList list1_, list2_;
    std::vector<CellState> cells_;
    std::string loadedName_, selection_, refusedControl_;
    std::function<void(const std::string&)> onSaved_;
    bool readOnly_ = false;
    bool applyEnabled_ = false;
    bool cancelled_ = true;
    bool open_ = true;
};

// The editor of that catalogue, on a blank form.
std::unique_ptr<CatalogueEditor> MakeEditor(CatalogueKind catalogue, const CatalogueContext& context);

}  // namespace tw

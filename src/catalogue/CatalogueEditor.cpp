#include "catalogue/CatalogueEditor.h"

#include <utility>

#include "platform/Error.h"
#include "tree/FolderChooser.h"
#include "values/Text.h"

namespace tw {

CatalogueEditor::CatalogueEditor(CatalogueKind catalogue, const CatalogueContext& context)
    : FormModel(std::string(FormOf(catalogue).formName)),
      form_(&FormOf(catalogue)),
      context_(context),
      entry_(*form_) {
    DeclareControls();
    DeclareCells();
    DeclareButtons();
    ClearEntry(entry_, *form_, Store());
}

void CatalogueEditor::DeclareControls() {
    const auto list = [](const char* name, EditorList& box) {
        return FormControl{name, [&box] { return box.text; },
                           [&box](std::string_view entry) { return box.Choose(entry); }};
    };
    const FormControl folder = {
        "FolderID", [this] { return std::to_string(Folders()->FolderID()); },
        [this](std::string_view id) { return Folders()->Choose(StyleFolderKey(Trim(id))); },
        [this] { return Folders() != nullptr; }};
    AddControls({Editable(TextEntry("Text1", entry_.name))});
    if (!form_->text2.empty()) AddControls({Editable(TextEntry("Text2", entry_.text2))});
    AddControls({Editable(TextEntry("txtDesc", entry_.description))});
    if (!form_->combo1.empty()) AddControls({Editable(list("Combo1", entry_.combo1))});
    if (!form_->combo2.empty()) AddControls({Editable(list("Combo2", entry_.combo2))});
    AddControls({Editable(folder)});
}

void CatalogueEditor::DeclareCells() {
    for (int row = 0; row < Cells().Rows(); ++row)
        for (int col = 0; col < Cells().Cols(); ++col) {
            const auto enter = [this, row, col](std::string_view text) {
                if (readOnly_) return false;
                TypeCell(row, col, text);
                LeaveCell(row, col);
                return true;
            };
            AddControls(
                {{CellGrid::NameOf(row, col), [this, row, col] { return Cells().Text(row, col); }, enter}});
        }
}

void CatalogueEditor::DeclareButtons() {
    const auto canStep = [this] { return navigator_ != nullptr; };
    AddButtons({
        {"cmdOK", [this] { Ok(); }},
        {"cmdApply",
         [this] {
             if (Save()) Applied();
         },
         [this] { return ApplyEnabled(); }},
        {"cmdCancel", [this] { Close(); }},
        {"cmdFirst", [this] { GoTo(navigator_->GetFirst()); }, canStep},
        {"cmdPrevious", [this] { GoTo(navigator_->GetPrevious()); }, canStep},
        {"cmdNext", [this] { GoTo(navigator_->GetNext()); }, canStep},
        {"cmdLast", [this] { GoTo(navigator_->GetLast()); }, canStep},
    });
}

FormControl CatalogueEditor::Editable(FormControl control) {
    control.take = [this, take = std::move(control.take)](std::string_view text) {
        if (readOnly_ || !take(text)) return false;
        MarkChanged();
        return true;
    };
    return control;
}

void CatalogueEditor::Clear() {
    loadedName_.clear();
    ClearEntry(entry_, *form_, Store());
    ClearOwn();
    applyEnabled_ = false;
}

void CatalogueEditor::SetName(std::string_view name) {
    Clear();
    if (IsBlank(name)) return;
    const Recordset row =
        Store().OpenRecordset("SELECT * FROM " + std::string(form_->table) + " WHERE NAME = ?", {Trim(name)});
    if (row.AtEnd())
        return context_.messages.ShowMessage("Error", "No data available for " + std::string(name));
    try {
        ReadEntry(entry_, *form_, row);
        loadedName_ = entry_.name;
        ReadOwn(row);
    } catch (const Error&) {
        // The row cannot be read completely; saving just a part of it would lose the rest.
        Clear();
        throw;
    }
}

void CatalogueEditor::StartWith(const CatalogueDraft& draft) {
    Clear();
    entry_.name = draft.name;
    for (const DraftFigure& figure : draft.figures)
        for (int row = 0; row < Cells().Rows(); ++row) {
            const RangeRow& range = form_->rows[static_cast<std::size_t>(row)];
            const std::string low = std::string(figure.column) + (range.high.empty() ? "" : "_LO");
            if (range.low != low) continue;
            TypeCell(row, 0, figure.text);
            if (!range.high.empty()) TypeCell(row, 1, figure.text);
        }
    MarkChanged();
}

void CatalogueEditor::GoTo(const std::string& name) {
    if (!name.empty()) SetName(name);
}

const EditorList& CatalogueEditor::List(std::string_view control) const {
    return control == "Combo2" ? entry_.combo2 : entry_.combo1;
}

void CatalogueEditor::TypeCell(int row, int col, std::string_view text) {
    if (!readOnly_ && entry_.cells.Type(row, col, text)) MarkChanged();
}

void CatalogueEditor::Ok() {
    // Nothing can be saved in a read-only form, so it just closes.
    if (readOnly_)
        Close();
    else if (Save())
        Accept();
}

bool CatalogueEditor::CheckName(const std::string& name) {
    if (name.empty()) {
        context_.messages.ShowMessage("Invalid Name", std::string(form_->kind) + " name cannot be blank.");
        return false;
    }
    if (SameName(name, loadedName_)) return true;
    if (Store()
            .OpenRecordset("SELECT * FROM " + std::string(form_->table) + " WHERE NAME = ?", {name})
            .AtEnd())
        return true;
    context_.messages.ShowMessage(
        "Duplicate Name", "A " + std::string(form_->duplicate) + " named '" + name + "' already exists.");
    return false;
}

bool CatalogueEditor::LeaveCells() {
    for (int row = 0; row < Cells().Rows(); ++row)
        for (int col = 0; col < Cells().Cols(); ++col) {
            refusedControl_ = CellGrid::NameOf(row, col);
            if (!LeaveCell(row, col)) return false;
        }
    refusedControl_ = "Text1";
    return true;
}

bool CatalogueEditor::WriteEntry() {
    const std::string name(Trim(entry_.name));
    return CheckName(name) && Write(name);
}

void CatalogueEditor::MarkSaved() {
    refusedControl_.clear();
    entry_.name = loadedName_ = selection_ = Trim(entry_.name);
    applyEnabled_ = false;
    if (onSaved_) onSaved_(selection_);
}

bool CatalogueEditor::Save() {
    if (!LeaveCells()) return false;
    try {
        if (!WriteEntry()) return false;
    } catch (const Error& error) {
        ShowError(error.Description());
        return false;
    }
    MarkSaved();
    return true;
}

bool CatalogueEditor::SaveOrRaise() {
    if (!LeaveCells() || !WriteEntry()) return false;
    MarkSaved();
    return true;
}

ColumnValues CatalogueEditor::Values(const std::string& name) const {
    return ValuesOf(entry_, *form_, name, [this](ColumnSource source) { return OwnValue(source); });
}

bool CatalogueEditor::Write(const std::string& name) {
    UnitOfWork unit(Store());
    try {
        BeforeWrite();
        if (!loadedName_.empty())
            Store().Execute("DELETE FROM " + std::string(form_->table) + " WHERE NAME = ?", {loadedName_});
        InsertRow(Store(), form_->table, Values(name));
        AfterWrite();
    } catch (const Error&) {
        // The old row must not be deleted if the new one cannot be written.
        unit.Abandon();
        throw;
    }
    unit.Commit();
    return true;
}

}  // namespace tw

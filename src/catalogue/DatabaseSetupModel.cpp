#include "catalogue/DatabaseSetupModel.h"

#include <algorithm>

#include "catalogue/CatalogueEditor.h"
#include "catalogue/GrainEditor.h"
#include "tree/FolderChooser.h"
#include "tree/NodeKey.h"
#include "tree/RowFacts.h"
#include "tree/TWNodes.h"
#include "values/Text.h"

namespace tw {
namespace {

// Sorts the row ".." before all folders and styles.
constexpr int kRowUpGroup = -1;
constexpr std::string_view kRowUp = "..";

}  // namespace

DatabaseSetupModel::DatabaseSetupModel(const CatalogueContext& context)
    : FormModel(kFormName), context_(context), filler_(context.database, context.tree) {
    DeclareForm();
    Choose(CatalogueKind::Style);
}

void DatabaseSetupModel::DeclareForm() {
    AddControls({
        {"Combo1", [this] { return std::string(WordsOf(catalogue_).plural); },
         [this](std::string_view entry) { return ChooseNamed(entry); }},
        {"lvItems", [this] { return items_.SelectedText(); },
         [this](std::string_view text) { return items_.SelectText(text); }},
        {"txtFilter",
         {},
         [this](std::string_view words) {
             SetFilter(words);
             return true;
         }},
    });
    AddButtons({
        {"cmdNew", [this] { OpenEditor(""); }},
        {"cmdEdit", [this] { OpenEditor(SelectedName()); }, [this] { return EditEnabled(); }},
        {"cmdDelete", [this] { Delete(); }, [this] { return DeleteEnabled(); }},
        {"lvItems", [this] { OpenRow(); }},
        {"cmdClose", [this] { Close(); }},
    });
}

const std::vector<std::string>& DatabaseSetupModel::Entries() {
    static const std::vector<std::string> entries = [] {
        std::vector<std::string> plurals;
        plurals.reserve(kSetupOrder.size());
        for (const CatalogueKind kind : kSetupOrder) plurals.emplace_back(WordsOf(kind).plural);
        return plurals;
    }();
    return entries;
}

void DatabaseSetupModel::Choose(CatalogueKind catalogue) {
    catalogue_ = catalogue;
    folderId_ = 0;
    items_.SetFilter("");
    Refill();
    items_.Select(items_.FirstRow());
}

void DatabaseSetupModel::Refill() {
    const std::string titleBefore = items_.Columns().empty() ? "" : items_.Columns().front().title;
    const int sortColumn = items_.SortColumn();
    const bool descending = items_.SortDescending();
    if (catalogue_ == CatalogueKind::Style && !items_.Filter().empty()) {
        filler_.FillStyles(items_, -1);
    } else if (catalogue_ == CatalogueKind::Style) {
        filler_.FillStylesAndFolders(items_, folderId_);
        if (folderId_ != 0) AddRowUp();
    } else {
        filler_.Fill(items_, catalogue_);
    }
    // The brewer's choice of the sort column is kept while the catalogue stays the same.
    if (items_.Columns().front().title == titleBefore && sortColumn >= 0) items_.Sort(sortColumn, descending);
}

void DatabaseSetupModel::SetFilter(std::string_view text) {
    const bool wasFiltered = !items_.Filter().empty();
    const std::string chosen = EditEnabled() ? SelectedName() : std::string();
    items_.SetFilter(text);
    if (catalogue_ != CatalogueKind::Style || wasFiltered == !items_.Filter().empty()) return;
    Refill();
    const int row = items_.FindKey(chosen);
    // After the filter has been removed, the chosen style is shown in its folder.
    if (row != ListTable::kNoRow)
        items_.Select(row);
    else if (!wasFiltered || chosen.empty() || !ShowName(chosen))
        items_.Select(items_.FirstRow());
}

void DatabaseSetupModel::AddRowUp() {
    const TWNode* const folder = context_.tree.Nodes(StyleFolderKey(folderId_));
    const TWNode* const parent = folder != nullptr ? folder->Parent() : nullptr;
    ListRow up;
    up.key = parent != nullptr ? std::string(parent->Key()) : StyleFolderKey(0);
    up.cells = {std::string(kRowUp), "Style Folder"};
    up.icon = NodeIcon::FolderOpen;
    up.isFolder = true;
    up.group = kRowUpGroup;
    items_.Add(std::move(up));
    items_.Sort(0);
}

std::string DatabaseSetupModel::SelectedName() const {
    return items_.Selected() == ListTable::kNoRow ? std::string() : items_.Row(items_.Selected()).key;
}

bool DatabaseSetupModel::FolderSelected() const {
    return items_.Selected() != ListTable::kNoRow && items_.Row(items_.Selected()).isFolder;
}

std::string DatabaseSetupModel::Guides() const {
    return catalogue_ == CatalogueKind::Style ? StyleGuides(context_.database) : std::string();
}

bool DatabaseSetupModel::EditEnabled() const {
    return items_.Selected() != ListTable::kNoRow && !FolderSelected();
}

bool DatabaseSetupModel::ShowName(std::string_view name) {
    const auto select = [&] {
        for (int row = 0; row < items_.Count(); ++row)
            if (!items_.Row(row).isFolder && SameName(items_.Row(row).key, name) && items_.Select(row))
                return true;
        return false;
    };
    items_.SelectNone();
    if (select()) return true;
    items_.SetFilter("");
    if (catalogue_ == CatalogueKind::Style) {
        const Recordset style =
            context_.database.OpenRecordset("SELECT FOLDER_ID FROM STYLES WHERE NAME = ?", {Trim(name)});
        if (style.AtEnd()) return false;
        folderId_ = style.Fields(0).Integer();
        Refill();
    }
    return select();
}

void DatabaseSetupModel::EnterFolder() {
    const std::int64_t left = folderId_;
    folderId_ = IdOfKey(SelectedName());
    items_.SetFilter("");
    Refill();
    // On the way up, the folder just left is selected.
    const int row = items_.FindKey(StyleFolderKey(left));
    items_.Select(row == ListTable::kNoRow ? items_.FirstRow() : row);
}

bool DatabaseSetupModel::ChooseNamed(std::string_view entry) {
    const auto found =
        std::ranges::find_if(Entries(), [&](const std::string& known) { return SameName(known, entry); });
    if (found == Entries().end()) return false;
    Choose(kSetupOrder[static_cast<std::size_t>(found - Entries().begin())]);
    return true;
}

void DatabaseSetupModel::OpenRow() {
    if (FolderSelected())
        EnterFolder();
    else if (EditEnabled())
        OpenEditor(SelectedName());
}

void DatabaseSetupModel::OpenEditor(const std::string& name) {
    const std::unique_ptr<CatalogueEditor> editor = MakeEditor(catalogue_, context_);
    ObjectNavigator navigator(items_);
    if (name.empty()) {
        if (FolderChooser* const folders = editor->Folders()) folders->SetFolderID(folderId_);
    } else {
        if (editor->Folders() == nullptr) editor->SetNavigator(navigator);
        editor->SetName(name);
    }
    // Called after Apply, too, so that the next step of the navigator finds the row under its new name.
    editor->OnSaved([this](const std::string& saved) { ShowSaved(saved); });
    context_.dialogs.ShowModal(*editor);
    if (editor->Folders() == nullptr || !editor->Selection().empty()) return;
    // Folders may have been created even if no style was saved.
    const std::string selected = SelectedName();
    Refill();
    const int row = items_.FindKey(selected);
    items_.Select(row == ListTable::kNoRow ? items_.FirstRow() : row);
}

void DatabaseSetupModel::ShowSaved(const std::string& name) {
    Refill();
    if (!ShowName(name)) items_.Select(items_.FirstRow());
}

void DatabaseSetupModel::Delete() {
    const std::string name = SelectedName();
    const std::string word(WordOf(catalogue_));
    const Answer answer = context_.messages.Ask(
        "Delete " + word + "?", "Are you sure you want to delete the " + word + " '" + name + "'?",
        Question::YesNo);
    if (answer != Answer::Yes) return;
    DeleteRow(name);
    TakeOutSelectedRow();
}

void DatabaseSetupModel::DeleteRow(const std::string& name) {
    if (catalogue_ == CatalogueKind::Style) {
        const Recordset style =
            context_.database.OpenRecordset("SELECT ID FROM STYLES WHERE NAME = ?", {name});
        const std::int64_t id = style.AtEnd() ? 0 : style.Fields(0).Integer();
        return context_.objects.DeleteStyleById(id);
    }
    const bool fermentable = catalogue_ == CatalogueKind::Grain || catalogue_ == CatalogueKind::Extract;
    UnitOfWork unit(context_.database);
    std::int64_t type = 0;
    if (fermentable) {
        const Recordset row =
            context_.database.OpenRecordset("SELECT GRAIN_TYPE FROM GRAINS WHERE NAME = ?", {name});
        if (!row.AtEnd()) type = row.Fields(0).Integer();
    }
    context_.database.Execute("DELETE FROM " + std::string(FormOf(catalogue_).table) + " WHERE NAME = ?",
                              {name});
    RemoveUnusedType(context_.database, type);
    unit.Commit();
}

void DatabaseSetupModel::TakeOutSelectedRow() {
    const int row = items_.Selected();
    items_.Remove(row);
    int next = row;
    // Rows hidden by the filter may still be below the heading.
    if (!items_.Filter().empty()) Refill();
    // A heading is removed with the last row below it.
    const bool below = row < items_.Count() && !items_.Row(row).isGroup && row > 0 &&
                       items_.Row(row).group == items_.Row(row - 1).group;
    if (items_.Filter().empty() && row > 0 && items_.Row(row - 1).isGroup && !below) items_.Remove(--next);
    while (next < items_.Count() && items_.Row(next).isGroup) ++next;
    if (!items_.Select(next)) items_.Select(items_.Count() - 1);
}

}  // namespace tw

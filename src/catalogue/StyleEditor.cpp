#include "catalogue/StyleEditor.h"

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {

StyleEditor::StyleEditor(const CatalogueContext& context)
    : CatalogueEditor(CatalogueKind::Style, context), folders_(context.tree, context.objects) {
    folders_.SetStyles(true);
}

void StyleEditor::SetReadOnly() {
    CatalogueEditor::SetReadOnly();
    folders_.SetLocked(true);
}

void StyleEditor::ClearOwn() {
    folders_.SetFolderID(0);
    loadedFolder_ = 0;
}

void StyleEditor::ReadOwn(const Recordset& row) {
    // If the folder is missing, the chooser shows the root instead. That counts as a change of the folder (-1
    // or a missing ID to 0), so that saving makes the style visible again.
    const Field folder = row.Fields("FOLDER_ID");
    loadedFolder_ = folder.IsNull() ? -1 : folder.Integer();
    folders_.SetFolderID(loadedFolder_);
}

bool StyleEditor::Write(const std::string& name) {
    const std::string now = DateText(Context().clock.Now());
    if (LoadedName().empty())
        InsertStyle(name, now);
    else if (!UpdateStyle(name, now))
        return false;
    loadedFolder_ = folders_.FolderID();
    id_ = Context().objects.StyleIdByName(name);
    Context().objects.StyleStored();
    return true;
}

void StyleEditor::InsertStyle(const std::string& name, const std::string& now) {
    ColumnValues values = {
        {"NAME", name}, {"FOLDER_ID", folders_.FolderID()}, {"CREATED_WHEN", now}, {"MODIFIED_WHEN", now}};
    for (auto& value : Values(name)) values.push_back(std::move(value));
    InsertRow(Store(), Form().table, values);
    Context().objects.AddStyleNodesByName(name);
}

bool StyleEditor::UpdateStyle(const std::string& name, const std::string& now) {
    // The id must be determined before the update, as long as the style still has the old name.
    const std::int64_t id = Context().objects.StyleIdByName(LoadedName());
    const std::int64_t folder = folders_.FolderID();
    ColumnValues values = {{"NAME", name}, {"FOLDER_ID", folder}};
    for (auto& value : Values(name)) values.push_back(std::move(value));
    values.emplace_back("MODIFIED_WHEN", now);
    std::string assignments;
    SqlValues bound;
    for (const auto& [column, value] : values) {
        assignments.append(assignments.empty() ? "" : ", ").append(column).append(" = ?");
        bound.push_back(value);
    }
    bound.emplace_back(LoadedName());
    Store().Execute("UPDATE STYLES SET " + assignments + " WHERE NAME = ?", bound);
    if (Store().RecordsAffected() == 0) {
        ShowError("The style '" + LoadedName() +
                  "' is no longer in the database. OK stores it as a new style.");
        ForgetLoadedName();
        return false;
    }
    if (folder != loadedFolder_) Context().objects.MoveStyleToFolder(id, folder);
    if (name != LoadedName()) Context().objects.RenameStyleNodes(id, name);
    return true;
}

}  // namespace tw

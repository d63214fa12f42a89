#include "tree/NewFolders.h"

#include <vector>

#include "platform/Error.h"
#include "values/Text.h"

namespace tw {

std::int64_t NewFolders::CreateFolder(FolderKind kind, std::int64_t parentId, std::string_view name,
                                      Asking asking) {
    const std::string word = FolderWord(kind);
    const std::string errorTitle = "Error creating new " + word;
    std::int64_t id = -1;
    const bool created = to_.runner.Trap(errorTitle, asking, [&] {
        if (!to_.lookup.IsFolder(kind, parentId)) return to_.runner.RefuseMissing(errorTitle, word, asking);
        const std::string parentKey = FolderKey(kind, parentId);
        const std::string text = IsBlank(name) ? NextNewFolderName(parentKey) : std::string(Trim(name));
        if (to_.lookup.FolderNameExists(kind, parentId, text))
            return to_.runner.Refuse("Could not create new " + word, "A folder with that name already exists",
                                     asking);
        id = InsertFolder(kind, parentId, text);
        to_.tree.Place(FolderKey(kind, id), parentKey, text);
        return true;
    });
    return created ? id : -1;
}

std::int64_t NewFolders::InsertFolder(FolderKind kind, std::int64_t parentId, const std::string& name) {
    const std::string now = to_.dates.Now();
    UnitOfWork unit(to_.database);
    to_.database.Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN, MODIFIED_WHEN) VALUES (?, ?, ?, ?, ?)",
        {parentId, name, kind == FolderKind::Styles, now, now});
    const std::vector<std::int64_t> ids = to_.lookup.Ids(
        "SELECT ID FROM FOLDERS WHERE " + FolderCondition(kind) + " AND PARENT_ID = ? AND NAME = ?",
        {parentId, name});
    unit.Commit();
    if (ids.empty()) throw Error("DB_IO", "The new folder cannot be found.", OperationRunner::kMissingNumber);
    return ids.front();
}

std::string NewFolders::NextNewFolderName(const std::string& parentKey) const {
    std::string name = "New Folder";
    for (int counter = 2; to_.tree.ChildNameExists(parentKey, name); ++counter)
        name = "New Folder (" + std::to_string(counter) + ")";
    return name;
}

}  // namespace tw

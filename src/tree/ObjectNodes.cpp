#include "tree/ObjectNodes.h"

#include <vector>

#include "store/RowNames.h"
#include "tree/NodeKey.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns the id to which a row refers; kNoId for NULL.
std::int64_t LinkOf(const Field& field) {
    return field.IsNull() ? kNoId : field.Integer();
}

}  // namespace

void ObjectNodes::AddRecipeNodes(std::int64_t id, std::string_view name, std::int64_t folderId,
                                 std::int64_t styleId) {
    const std::string text(name);
    to_.tree.Place(RecipeKey(id, 0), std::string(kAllRecipesKey), text);
    for (int copy = 0; copy < kStyleCopies; ++copy)
        to_.tree.Place(RecipeKey(id, copy + 1), StyleKey(styleId, copy), text);
    if (to_.lookup.IsFolder(FolderKind::Recipes, folderId))
        to_.tree.Place(RecipeKey(id, kCopyInFolder), FolderKey(FolderKind::Recipes, folderId), text);
    to_.dates.Touch(FolderKind::Recipes, folderId);
}

void ObjectNodes::AddRecipeNodesByName(std::string_view name) {
    struct Row {
        std::int64_t id, folderId, styleId;
        std::string name;
    };
    std::vector<Row> found;
    // Only one recipe has the name, unless another program has written the file.
    for (Recordset rows = RowsByName(to_.database, "RECIPES", "ID, FOLDER_ID, STYLE_ID, NAME", name);
         !rows.AtEnd(); rows.MoveNext())
        found.push_back({rows.Fields(0).Integer(), LinkOf(rows.Fields(1)), LinkOf(rows.Fields(2)),
                         rows.Fields(3).Text()});
    for (const Row& row : found)
        if (!to_.tree.NameOf(RecipeKey(row.id, 0)))
            AddRecipeNodes(row.id, row.name, row.folderId, row.styleId);
}

void ObjectNodes::AddStyleNodes(std::int64_t id, std::string_view name, std::int64_t folderId) {
    const std::string text(name);
    to_.tree.Place(StyleKey(id, 0), std::string(kAllStylesKey), text);
    if (to_.lookup.IsFolder(FolderKind::Styles, folderId))
        to_.tree.Place(StyleKey(id, kStyleInFolder), FolderKey(FolderKind::Styles, folderId), text);
    to_.dates.Touch(FolderKind::Styles, folderId);
}

void ObjectNodes::AddStyleNodesByName(std::string_view name) {
    Recordset rows = RowsByName(to_.database, "STYLES", "ID, FOLDER_ID", name);
    if (rows.AtEnd()) return;
    const std::int64_t id = rows.Fields(0).Integer();
    const std::int64_t folderId = LinkOf(rows.Fields(1));
    rows.Close();
    AddStyleNodes(id, Trim(name), folderId);
}

void ObjectNodes::RenameStyleNodes(std::int64_t id, std::string_view newName) {
    // 0 is "(None)".
    if (id == 0) return;
    const std::string text(newName);
    for (int copy = 0; copy < kStyleCopies; ++copy) to_.tree.Rename(StyleKey(id, copy), text);
    to_.listener.NotifyStyleRenamed(id, text);
}

}  // namespace tw

#include "tree/ObjectLookup.h"

#include "store/RowNames.h"
#include "tree/NodeKey.h"
#include "values/Text.h"

namespace tw {

std::int64_t ObjectLookup::IdByName(std::string_view name, std::string_view table) const {
    return tw::IdByName(database_, table, name);
}

std::string ObjectLookup::NameById(std::int64_t id, std::string_view table) const {
    return tw::NameById(database_, table, id).value_or("");
}

bool ObjectLookup::NameExists(std::string_view name, std::string_view table) const {
    return !RowsByName(database_, table, "*", name).AtEnd();
}

bool ObjectLookup::FolderNameExists(FolderKind kind, std::int64_t parentId, std::string_view name) const {
    return !database_
                .OpenRecordset("SELECT * FROM FOLDERS WHERE " + FolderCondition(kind) +
                                   " AND PARENT_ID = ? AND NAME = ?",
                               {parentId, Trim(name)})
                .AtEnd();
}

std::vector<std::int64_t> ObjectLookup::Ids(const std::string& sql, const SqlValues& values) const {
    std::vector<std::int64_t> ids;
    for (Recordset rows = database_.OpenRecordset(sql, values); !rows.AtEnd(); rows.MoveNext())
        ids.push_back(rows.Fields(0).Integer());
    return ids;
}

std::vector<std::int64_t> ObjectLookup::RecipesOfStyle(std::int64_t styleId) const {
    return Ids("SELECT ID FROM RECIPES WHERE STYLE_ID = ?", {styleId});
}

std::optional<std::string> ObjectLookup::ObjectName(const std::string& key, std::string_view table,
                                                    std::int64_t id) const {
    if (auto name = tree_.NameOf(key)) return name;
    return tw::NameById(database_, table, id);
}

std::optional<std::string> ObjectLookup::RecipeName(std::int64_t id) const {
    return ObjectName(RecipeKey(id, 0), "RECIPES", id);
}

std::optional<std::string> ObjectLookup::StyleName(std::int64_t id) const {
    // 0 is "(None)".
    return id == 0 ? std::nullopt : ObjectName(StyleKey(id, 0), "STYLES", id);
}

bool ObjectLookup::IsFolder(FolderKind kind, std::int64_t id) const {
    return id != kAllObjects && tree_.NameOf(FolderKey(kind, id)).has_value();
}

bool ObjectLookup::IsSubFolder(std::string_view sourceKey, std::string_view destKey) const {
    return sourceKey == destKey || tree_.IsBelow(std::string(destKey), std::string(sourceKey));
}

}  // namespace tw

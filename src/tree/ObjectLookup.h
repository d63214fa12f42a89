// Finds recipes, styles and folders by name and id, for the operations on them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/Database.h"
#include "tree/FolderKind.h"
#include "tree/TreeObjects.h"

namespace tw {

class ObjectLookup {
  public:
    // REQUIRES: database and tree outlive the object.
    ObjectLookup(Database& database, TreeObjects& tree) : database_(database), tree_(tree) {}

    // Look-ups in the database. Names are trimmed.

    // Returns the ID of the row of that name in the table; 0 if there is none.
    std::int64_t IdByName(std::string_view name, std::string_view table) const;
    // Returns the NAME of the row of that id; empty if there is none.
    std::string NameById(std::int64_t id, std::string_view table) const;
    // True if the table has a row of that name.
    bool NameExists(std::string_view name, std::string_view table) const;
    // True if a folder of that name is directly below the parent.
    bool FolderNameExists(FolderKind kind, std::int64_t parentId, std::string_view name) const;
    // Returns the first column of all rows.
    std::vector<std::int64_t> Ids(const std::string& sql, const SqlValues& values) const;
    std::vector<std::int64_t> RecipesOfStyle(std::int64_t styleId) const;

    // Look-ups in the tree.

    // Return the name in the tree, else in the table; nullopt if neither contains the object.
    std::optional<std::string> RecipeName(std::int64_t id) const;
    std::optional<std::string> StyleName(std::int64_t id) const;
    // True if the tree shows that folder; id 0 is the root, which is one too.
    bool IsFolder(FolderKind kind, std::int64_t id) const;
    // True if dest is source or is below it in the tree.
    bool IsSubFolder(std::string_view sourceKey, std::string_view destKey) const;

  private:
    std::optional<std::string> ObjectName(const std::string& key, std::string_view table,
                                          std::int64_t id) const;

    Database& database_;
    TreeObjects& tree_;
};

}  // namespace tw

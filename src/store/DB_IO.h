// The one writer of folder links and of recipe and style names: each operation changes the database and then
// tells whoever follows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Ports.h"
#include "store/Database.h"

namespace tw {

// Follows the operations of DB_IO: the shell forwards each notice to every open document. Each notice comes
// after the change in the database; names are as they stand there.
class ObjectListener {
  public:
    virtual ~ObjectListener() = default;
    virtual void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) = 0;
    virtual void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) = 0;
    virtual void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) = 0;
    virtual void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) = 0;
    virtual void NotifyRecipeDeleted(const std::string& name) = 0;
    // Once for each folder of a deleted subtree, after its recipes.
    virtual void NotifyRecipeFolderDeleted(std::int64_t folderId) = 0;
    virtual void NotifyStyleDeleted(std::int64_t styleId) = 0;
};

class DB_IO {
  public:
    DB_IO(Database& database, ClockPort& clock, ObjectListener& listener)
        : database_(database), clock_(clock), listener_(listener) {}

    // ID of the row of that name in the table, 0 when there is none. The name is trimmed.
    std::int64_t IdByName(std::string_view name, std::string_view table);
    // NAME of the row of that id, empty when there is none.
    std::string NameById(std::int64_t id, std::string_view table);

    // Deletes the recipe and its lines in RECIPE_GRAINS, RECIPE_HOPS, RECIPE_ADJUNCTS and RECIPE_LOG, then
    // notifies. The rows of RECIPE_SALTS and RECIPE_SUGARS stay behind: intended. An id that names no recipe
    // deletes nothing and notifies nobody.
    void DeleteRecipeById(std::int64_t id);
    void DeleteRecipeByName(std::string_view name);
    // Brings what shows the database in step with a recipe that a save has just written, and touches its
    // folder.
    void AddRecipeNodesByName(std::string_view name);
    // MODIFIED_WHEN of a recipe folder becomes now; a folder id of 0 matches no row.
    void TouchRecipeFolder(std::int64_t folderId);

  private:
    Database& database_;
    ClockPort& clock_;
    ObjectListener& listener_;
};

}  // namespace tw

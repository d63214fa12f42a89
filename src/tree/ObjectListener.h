// Notices of the changes that operations make to recipes, styles and folders.
#pragma once

#include <cstdint>
#include <string>

namespace tw {

// Is notified of the operations of DB_IO; the shell forwards each notice to every open document. Each notice
// follows the change in the database and in the tree.
class ObjectListener {
  public:
    virtual ~ObjectListener() = default;
    virtual void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) = 0;
    virtual void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) = 0;
    // newName is the name as it was typed.
    virtual void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) = 0;
    virtual void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) = 0;
    virtual void NotifyRecipeDeleted(const std::string& name) = 0;
    // Called once for each folder of a deleted subtree, after its recipes.
    virtual void NotifyRecipeFolderDeleted(std::int64_t folderId) = 0;
    virtual void NotifyStyleDeleted(std::int64_t styleId) = 0;
    // A style has been added, or its values have changed.
    virtual void NotifyStyleStored() {}
    // Called once at the end of an operation that deletes, even if an error ends it. Must not raise errors.
    virtual void DeletionEnded() {}
};

}  // namespace tw

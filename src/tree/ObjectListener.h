// Who is told of the changes that the operations on recipes, styles and folders make.
#pragma once

#include <cstdint>
#include <string>

namespace tw {

// Follows the operations of DB_IO: the shell forwards each notice to every open document. Each notice comes
// after the change in the database and in the tree.
class ObjectListener {
  public:
    virtual ~ObjectListener() = default;
    virtual void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) = 0;
    virtual void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) = 0;
    // The new name as it was typed.
    virtual void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) = 0;
    virtual void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) = 0;
    virtual void NotifyRecipeDeleted(const std::string& name) = 0;
    // Once for each folder of a deleted subtree, after its recipes.
    virtual void NotifyRecipeFolderDeleted(std::int64_t folderId) = 0;
    virtual void NotifyStyleDeleted(std::int64_t styleId) = 0;
    // A style was added, or its figures changed.
    virtual void NotifyStyleStored() {}
    // Once at the end of an operation that deletes, also of one that an error ends; raises nothing.
    virtual void DeletionEnded() {}
};

}  // namespace tw

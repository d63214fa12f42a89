// How operations change the tree: folders, styles and recipes by key.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "tree/TWTree.h"

namespace tw {

class TreeObjects {
  public:
    // read is called after each attempt to read the tree again. REQUIRES: tree outlives the object.
    explicit TreeObjects(TWTree& tree, std::function<void()> read = {})
        : tree_(tree), read_(std::move(read)) {}

    // Returns the name that the entry shows; nullopt if there is no such entry.
    std::optional<std::string> NameOf(const std::string& key) const;
    // Returns the key of the parent entry; empty for the root, or if there is no such entry.
    std::string ParentOf(const std::string& key) const;
    // True if the entry is below the other, or is the same one. False if either is missing.
    bool IsBelow(const std::string& key, const std::string& above) const;
    // True if an entry directly below the parent shows exactly that name.
    bool ChildNameExists(const std::string& parentKey, const std::string& name) const;
    // Moves the entry, with everything below it, to directly below the parent. Creates it, with that name, if
    // it is missing: as a recipe, a style or else a folder, depending on the key. Removes it if the parent is
    // missing. REQUIRES: parentKey is not below key.
    void Place(const std::string& key, const std::string& parentKey, const std::string& name);
    // Does nothing if there is no such entry.
    void Rename(const std::string& key, const std::string& name);
    // Removes the entry with everything below it. Does nothing if there is no such entry.
    void Remove(const std::string& key);
    // Reads the tree from the main database again. Raises no error: if the database cannot be read, the tree
    // stays as it was.
    void Reload();
    // Calls Reload if the tree could not be read the last time. Raises no error.
    void CatchUp();

  private:
    TWTree& tree_;
    std::function<void()> read_;
};

}  // namespace tw

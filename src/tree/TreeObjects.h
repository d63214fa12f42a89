// The tree as the operations on objects change it: folders, styles and recipes by their keys.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "tree/TWTree.h"

namespace tw {

class TreeObjects {
  public:
    // read is called whenever the tree was to be read anew. REQUIRES: tree lives for as long.
    explicit TreeObjects(TWTree& tree, std::function<void()> read = {})
        : tree_(tree), read_(std::move(read)) {}

    // The name that the entry shows; nothing when there is no such entry.
    std::optional<std::string> NameOf(const std::string& key) const;
    // The key of the entry above; empty for the root and for no entry.
    std::string ParentOf(const std::string& key) const;
    // True if the entry stands somewhere below the other; each stands below itself. False when either is
    // missing.
    bool IsBelow(const std::string& key, const std::string& above) const;
    // True if an entry directly below shows exactly that name.
    bool ChildNameExists(const std::string& parentKey, const std::string& name) const;
    // Puts the entry, with all that stands below it, directly below another; makes it, under that name, when
    // there is none, and takes it away when there is no entry to put it below. The key tells what it makes: a
    // recipe, a style, or else a folder. REQUIRES: parentKey is not below key.
    void Place(const std::string& key, const std::string& parentKey, const std::string& name);
    // Does nothing without such an entry, as Remove.
    void Rename(const std::string& key, const std::string& name);
    // With all that stands below it.
    void Remove(const std::string& key);
    // Shows what the main database holds now. Raises nothing: when it cannot be read, all stays as it was
    // shown.
    void Reload();
    // Reads again what the last time could not be read; does nothing otherwise. Raises nothing.
    void CatchUp();

  private:
    TWTree& tree_;
    std::function<void()> read_;
};

}  // namespace tw

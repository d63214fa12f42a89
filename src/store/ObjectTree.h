// What DB_IO asks of the tree that shows folders, styles and recipes by their keys, such as "F:3" or
// "R:17:0".
#pragma once

#include <optional>
#include <string>

namespace tw {

// As it stands here: a tree that shows nothing.
class ObjectTree {
  public:
    virtual ~ObjectTree() = default;
    // The name that the entry shows; nothing when there is no such entry.
    virtual std::optional<std::string> NameOf(const std::string& /*key*/) const { return std::nullopt; }
    // The key of the entry above; empty for the root and for no entry.
    virtual std::string ParentOf(const std::string& /*key*/) const { return {}; }
    // Whether the entry stands somewhere below the other; each stands below itself. False when either is
    // missing.
    virtual bool IsBelow(const std::string& /*key*/, const std::string& /*above*/) const { return false; }
    // Whether an entry directly below shows exactly that name.
    virtual bool ChildNameExists(const std::string& /*parentKey*/, const std::string& /*name*/) const {
        return false;
    }
    // Puts the entry, with all that stands below it, directly below another; makes it, under that name, when
    // there is none, and takes it away when there is no entry to put it below. REQUIRES: parentKey is not
    // below key.
    virtual void Place(const std::string& /*key*/, const std::string& /*parentKey*/,
                       const std::string& /*name*/) {}
    // Nothing without such an entry, as Remove.
    virtual void Rename(const std::string& /*key*/, const std::string& /*name*/) {}
    // With all that stands below it.
    virtual void Remove(const std::string& /*key*/) {}
    // Shows what the database holds now. Raises nothing: when it cannot be read, all stays as it was shown.
    virtual void Reload() {}
    // Reads again what the last time could not be read; nothing otherwise. Raises nothing.
    virtual void CatchUp() {}
};

}  // namespace tw

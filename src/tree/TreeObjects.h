// The tree as the operations on objects change it.
#pragma once

#include <functional>
#include <utility>

#include "store/ObjectTree.h"
#include "tree/TWTree.h"

namespace tw {

class TreeObjects final : public ObjectTree {
  public:
    // read is called whenever the tree was to be read anew. REQUIRES: tree lives for as long.
    explicit TreeObjects(TWTree& tree, std::function<void()> read = {})
        : tree_(tree), read_(std::move(read)) {}

    std::optional<std::string> NameOf(const std::string& key) const override;
    std::string ParentOf(const std::string& key) const override;
    bool IsBelow(const std::string& key, const std::string& above) const override;
    bool ChildNameExists(const std::string& parentKey, const std::string& name) const override;
    // The key's first letter tells what it makes: "R" a recipe, "S" a style, any other a folder.
    void Place(const std::string& key, const std::string& parentKey, const std::string& name) override;
    void Rename(const std::string& key, const std::string& name) override;
    void Remove(const std::string& key) override;
    // Reads the main database anew.
    void Reload() override;
    void CatchUp() override;

  private:
    TWTree& tree_;
    std::function<void()> read_;
};

}  // namespace tw

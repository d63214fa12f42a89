// The entries of a tree widget, as a plain object: which there are, which are expanded and which is selected.
// A widget shows it and forwards the brewer's actions.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tree/NodeIcon.h"
#include "tree/NodeKey.h"
#include "tree/SharedText.h"
#include "tree/TreeView.h"

namespace tw {

class TreeItemsObserver {
  public:
    virtual ~TreeItemsObserver() = default;
    // Called before all entries are replaced (done is false), and after that (done is true).
    virtual void TreeReset(bool done) = 0;
    virtual void TreeItemChanged(int item) = 0;
    virtual void TreeItemExpanded(int item) = 0;
    virtual void TreeSelectionChanged() = 0;
};

// Entries are identified by index, which is valid until the next Fill.
class TreeItems final : private TreeView {
  public:
    static constexpr int kNone = -1;

    void SetObserver(TreeItemsObserver* observer) { observer_ = observer; }

    // Replaces all entries by those that fill adds. Entries with the same keys stay expanded and selected; if
    // the selected one is missing, none is selected.
    void Fill(const std::function<void(TreeView&)>& fill);

    int Count() const { return static_cast<int>(items_.size()); }
    // Returns the entry of that key, or kNone.
    int Find(std::string_view key) const;
    // REQUIRES for all functions below: the entry exists. For Children and Parent, kNone is the parent of the
    // top-level entries.
    const std::vector<int>& Children(int item) const;
    int Parent(int item) const { return At(item).parent; }
    // The index of the entry among its parent's children.
    int Row(int item) const { return At(item).row; }
    std::string Key(int item) const { return At(item).key.Text(); }
    // Valid until the text is set again.
    std::string_view Text(int item) const { return At(item).text.View(); }
    void SetText(int item, std::string_view text);
    // The code of a style, which windows show before the text; empty until it is set, and after each Fill.
    const std::string& Code(int item) const { return At(item).code; }
    void SetCode(int item, std::string code);
    NodeIcon Icon(int item, bool open) const { return open ? At(item).openIcon : At(item).icon; }

    bool IsExpanded(int item) const { return At(item).expanded; }
    void Expand(int item, bool expanded = true);

    // kNone if no entry is selected.
    int Selected() const { return selected_; }
    // Empty if no entry is selected.
    std::string SelectedKey() const { return selected_ == kNone ? std::string() : Key(selected_); }
    // Selects the entry, and expands those above it so that it is visible. kNone selects none.
    void Select(int item);
    // False, without a change, if there is no such entry.
    bool SelectKey(std::string_view key);

  private:
    struct Item {
        NodeKey key;
        SharedText text;
        NodeIcon icon, openIcon;
        bool expanded = false;
        int parent = kNone;
        int row = 0;
        std::vector<int> children = {};
        std::string code = {};
    };

    void Clear() override;
    TreeViewItem Add(TreeViewItem parent, const std::string& key, std::string_view text,
                     std::string_view image, std::string_view selectedImage) override;
    const Item& At(int item) const { return items_[static_cast<std::size_t>(item)]; }
    Item& At(int item) { return items_[static_cast<std::size_t>(item)]; }

    std::vector<Item> items_;
    std::vector<int> top_;
    int selected_ = kNone;
    TreeItemsObserver* observer_ = nullptr;
};

}  // namespace tw

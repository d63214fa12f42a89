// The entries of a tree widget as a plain object: what it shows, what is open and what is chosen. A widget
// shows it and passes on what the brewer does.
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
    // All entries are about to be replaced, and have been.
    virtual void TreeReset(bool done) = 0;
    virtual void TreeItemChanged(int item) = 0;
    virtual void TreeItemExpanded(int item) = 0;
    virtual void TreeSelectionChanged() = 0;
};

// Entries are told by their number, which holds until the next filling.
class TreeItems final : private TreeView {
  public:
    static constexpr int kNone = -1;

    void SetObserver(TreeItemsObserver* observer) { observer_ = observer; }

    // Replaces all entries by what fill adds. Those of the same keys are open and chosen as before; without
    // the chosen one none is.
    void Fill(const std::function<void(TreeView&)>& fill);

    int Count() const { return static_cast<int>(items_.size()); }
    // The entry of that key, kNone when there is none.
    int Find(std::string_view key) const;
    // REQUIRES, as for all below: there is such an entry; Children and Parent take and give kNone for the
    // place above the top-level entries.
    const std::vector<int>& Children(int item) const;
    int Parent(int item) const { return At(item).parent; }
    // Its place among its parent's children.
    int Row(int item) const { return At(item).row; }
    std::string Key(int item) const { return At(item).key.Text(); }
    // Valid until the text is set again.
    std::string_view Text(int item) const { return At(item).text.View(); }
    void SetText(int item, std::string_view text);
    // The code of a style, which windows show before the text; empty at first and after each filling.
    const std::string& Code(int item) const { return At(item).code; }
    void SetCode(int item, std::string code);
    NodeIcon Icon(int item, bool open) const { return open ? At(item).openIcon : At(item).icon; }

    bool IsExpanded(int item) const { return At(item).expanded; }
    void Expand(int item, bool expanded = true);

    // kNone when no entry is chosen.
    int Selected() const { return selected_; }
    // Empty when no entry is chosen.
    std::string SelectedKey() const { return selected_ == kNone ? std::string() : Key(selected_); }
    // Also opens what stands above the entry, so that it can be seen. kNone chooses none.
    void Select(int item);
    // False, and nothing changes, when there is no such entry.
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

#include "tree/TreeItems.h"

#include <algorithm>
#include <utility>

namespace tw {

void TreeItems::Fill(const std::function<void(TreeView&)>& fill) {
    std::vector<NodeKey> open;
    for (const Item& item : items_)
        if (item.expanded) open.push_back(item.key);
    const std::string selected = SelectedKey();
    if (observer_) observer_->TreeReset(false);
    Clear();
    fill(*this);
    for (const NodeKey& key : open) {
        const auto found = std::ranges::find(items_, key, &Item::key);
        if (found != items_.end()) found->expanded = true;
    }
    const int item = selected.empty() ? kNone : Find(selected);
    if (observer_) observer_->TreeReset(true);
    Select(item);
}

void TreeItems::Clear() {
    items_.clear();
    top_.clear();
    selected_ = kNone;
}

TreeViewItem TreeItems::Add(TreeViewItem parent, const std::string& key, std::string_view text,
                            std::string_view image, std::string_view selectedImage) {
    const int number = Count();
    const int above = static_cast<int>(parent) - 1;
    std::vector<int>& siblings = above == kNone ? top_ : At(above).children;
    const int row = static_cast<int>(siblings.size());
    siblings.push_back(number);
    items_.push_back(
        {NodeKey(key), SharedText(text), IconOf(image), IconOf(selectedImage), false, above, row});
    return static_cast<TreeViewItem>(number + 1);
}

int TreeItems::Find(std::string_view key) const {
    const auto found = std::ranges::find(items_, NodeKey(key), &Item::key);
    return found == items_.end() ? kNone : static_cast<int>(found - items_.begin());
}

const std::vector<int>& TreeItems::Children(int item) const {
    return item == kNone ? top_ : At(item).children;
}

void TreeItems::SetText(int item, std::string_view text) {
    At(item).text = SharedText(text);
    if (observer_) observer_->TreeItemChanged(item);
}

void TreeItems::SetCode(int item, std::string code) {
    if (At(item).code == code) return;
    At(item).code = std::move(code);
    if (observer_) observer_->TreeItemChanged(item);
}

void TreeItems::Expand(int item, bool expanded) {
    if (At(item).expanded == expanded) return;
    At(item).expanded = expanded;
    if (observer_) observer_->TreeItemExpanded(item);
}

void TreeItems::Select(int item) {
    if (item == selected_) return;
    selected_ = item;
    if (item != kNone)
        for (int above = Parent(item); above != kNone; above = Parent(above)) Expand(above);
    if (observer_) observer_->TreeSelectionChanged();
}

bool TreeItems::SelectKey(std::string_view key) {
    const int item = Find(key);
    if (item == kNone) return false;
    Select(item);
    return true;
}

}  // namespace tw

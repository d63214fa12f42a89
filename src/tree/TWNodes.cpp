#include "tree/TWNodes.h"

#include <algorithm>
#include <functional>

#include "platform/Error.h"

namespace tw {
namespace {

[[noreturn]] void RaiseOutOfRange(const char* source) {
    constexpr int kOutOfRangeNumber = 9;
    throw Error(source, "Subscript out of range", kOutOfRangeNumber);
}

bool Before(const std::unique_ptr<TWNode>& a, const std::unique_ptr<TWNode>& b) {
    return a->Compare(*b) < 0;
}

}  // namespace

TWNode& TWNodes::Item(std::size_t index) const {
    if (index >= items_.size()) RaiseOutOfRange("TWNodes.Item");
    return *items_[index];
}

TWNode& TWNodes::AddNode(std::unique_ptr<TWNode>&& node) {
    // The room first: behind the owner's event nothing may fail.
    if (items_.size() == items_.capacity()) items_.reserve(items_.size() + items_.size() / 2 + 3);
    owner_.AddingNode(*node);
    const std::size_t place = PlaceFor(*node);
    return **items_.insert(items_.begin() + static_cast<Items::difference_type>(place), std::move(node));
}

TWNode& TWNodes::AddItem(std::string_view name, std::string_view key, std::string_view iconOpen,
                         std::string_view iconClosed, bool isDocument, bool isStyle) {
    auto node = std::make_unique<TWNode>();
    node->SetName(name);
    node->SetKey(key);
    node->SetIconOpen(iconOpen);
    node->SetIconClosed(iconClosed);
    node->SetIsDocument(isDocument);
    node->SetIsStyle(isStyle);
    return AddNode(std::move(node));
}

std::unique_ptr<TWNode> TWNodes::RemoveNode(const TWNode& node, bool keep) {
    std::size_t index = PlaceOf(node);
    if (index == items_.size()) index = IndexOf(node);
    if (index == items_.size())
        throw Error("TWNodes.RemoveNode", "Node to be removed does not exist in collection.",
                    kTreeMisuseNumber);
    return Remove(index, keep);
}

std::unique_ptr<TWNode> TWNodes::Remove(std::size_t index, bool keep) {
    if (index >= items_.size()) RaiseOutOfRange("TWNodes.Remove");
    std::unique_ptr<TWNode> node = std::move(items_[index]);
    items_.erase(items_.begin() + static_cast<Items::difference_type>(index));
    if (index < ordered_) --ordered_;
    if (!keep) node->Clear();
    owner_.NodeRemoved(*node);
    return node;
}

void TWNodes::RemoveAll() {
    // A list instead of a recursion: how deep folders lie in each other is up to the data.
    std::vector<TWNodes*> open = {this};
    while (!open.empty()) {
        TWNodes& nodes = *open.back();
        if (nodes.items_.empty())
            open.pop_back();
        else if (TWNode& last = *nodes.items_.back(); last.HasChildren())
            open.push_back(&last.Children());
        else
            nodes.Remove(nodes.Count() - 1, true);
    }
}

void TWNodes::Sort() {
    if (InOrder()) return;
    std::stable_sort(items_.begin(), items_.end(), Before);
    ordered_ = items_.size();
}

std::size_t TWNodes::IndexOf(const TWNode& node) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const std::unique_ptr<TWNode>& item) { return item.get() == &node; });
    return static_cast<std::size_t>(found - items_.begin());
}

std::size_t TWNodes::PlaceOf(const TWNode& node) const {
    if (ordered_ < items_.size()) return items_.size();
    auto item = std::partition_point(items_.begin(), items_.end(), [&](const std::unique_ptr<TWNode>& other) {
        return other->Compare(node) < 0;
    });
    while (item != items_.end() && item->get() != &node && (*item)->Compare(node) == 0) ++item;
    const bool found = item != items_.end() && item->get() == &node;
    return found ? static_cast<std::size_t>(item - items_.begin()) : items_.size();
}

bool TWNodes::InOrder() {
    while (ordered_ < items_.size() &&
           (ordered_ == 0 || items_[ordered_ - 1]->Compare(*items_[ordered_]) <= 0))
        ++ordered_;
    return ordered_ == items_.size();
}

// A walk from the front to the first node that sorts behind the new one. Nodes that are in order need no
// walk; they need not be, since they may have come in while the owner was not sorted.
std::size_t TWNodes::PlaceFor(const TWNode& node) {
    if (!owner_.Sorted()) {
        // Looked at now, while the name before it is still near: a hundred thousand are slow to look at
        // later.
        if (ordered_ == items_.size() && (items_.empty() || items_.back()->Compare(node) <= 0)) ++ordered_;
        return items_.size();
    }
    const auto sortsBehind = [&](const std::unique_ptr<TWNode>& item) { return item->Compare(node) > 0; };
    const bool inOrder = InOrder();
    const auto place = inOrder ? std::partition_point(items_.begin(), items_.end(), std::not_fn(sortsBehind))
                               : std::find_if(items_.begin(), items_.end(), sortsBehind);
    const auto index = static_cast<std::size_t>(place - items_.begin());
    if (inOrder) ++ordered_;
    return index;
}

void TWNodes::Reposition(const TWNode& node) {
    const auto at = items_.begin() + static_cast<Items::difference_type>(IndexOf(node));
    if (at == items_.end()) return;
    // Of equal nodes, those that stood before it stay before it, and those behind it behind.
    const auto left = std::upper_bound(items_.begin(), at, *at, Before);
    const auto right = std::lower_bound(at + 1, items_.end(), *at, Before);
    if (left != at)
        std::rotate(left, at, at + 1);
    else
        std::rotate(at, at + 1, right);
}

}  // namespace tw

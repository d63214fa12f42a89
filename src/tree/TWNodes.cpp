#include "tree/TWNodes.h"

#include <algorithm>
#include <functional>
#include <vector>

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
    if (index >= Count()) RaiseOutOfRange("TWNodes.Item");
    return *items_[index];
}

TWNode& TWNodes::AddNode(std::unique_ptr<TWNode>&& node) {
    // Reserves memory first: nothing may fail after the owner was notified.
    items_.ReserveOne();
    owner_.AddingNode(*node);
    const std::size_t place = PlaceFor(*node);
    return *items_.Insert(place, std::move(node));
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
    if (index == Count()) index = IndexOf(node);
    if (index == Count())
        throw Error("TWNodes.RemoveNode", "Node to be removed does not exist in collection.",
                    kTreeMisuseNumber);
    return Remove(index, keep);
}

std::unique_ptr<TWNode> TWNodes::Remove(std::size_t index, bool keep) {
    if (index >= Count()) RaiseOutOfRange("TWNodes.Remove");
    std::unique_ptr<TWNode> node = items_.TakeOut(index);
    if (index < ordered_) --ordered_;
    if (!keep) node->Clear();
    owner_.NodeRemoved(*node);
    return node;
}

void TWNodes::RemoveAll() {
    // A list instead of recursion: the data decides how deeply folders are nested.
    std::vector<TWNodes*> open = {this};
    while (!open.empty()) {
        TWNodes& nodes = *open.back();
        if (nodes.items_.IsEmpty())
            open.pop_back();
        else if (TWNode& last = nodes.Item(nodes.Count() - 1); last.HasChildren())
            open.push_back(&last.Children());
        else
            nodes.Remove(nodes.Count() - 1, true);
    }
}

void TWNodes::Sort() {
    if (InOrder()) return;
    const auto items = items_.InOneRow();
    std::stable_sort(items.begin(), items.end(), Before);
    ordered_ = items.size();
}

std::size_t TWNodes::IndexOf(const TWNode& node) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const std::unique_ptr<TWNode>& item) { return item.get() == &node; });
    return static_cast<std::size_t>(found - items_.begin());
}

std::size_t TWNodes::PlaceOf(const TWNode& node) const {
    if (ordered_ < Count()) return Count();
    auto item = std::partition_point(items_.begin(), items_.end(), [&](const std::unique_ptr<TWNode>& other) {
        return other->Compare(node) < 0;
    });
    while (item != items_.end() && item->get() != &node && (*item)->Compare(node) == 0) ++item;
    const bool found = item != items_.end() && item->get() == &node;
    return found ? static_cast<std::size_t>(item - items_.begin()) : Count();
}

bool TWNodes::InOrder() {
    while (ordered_ < Count() && (ordered_ == 0 || items_[ordered_ - 1]->Compare(*items_[ordered_]) <= 0))
        ++ordered_;
    return ordered_ == Count();
}

// Finds the first node that sorts after the new one: by binary search if the nodes are in order, otherwise
// one by one. They may be out of order because nodes were added while the owner was not sorted.
std::size_t TWNodes::PlaceFor(const TWNode& node) {
    if (!owner_.Sorted()) {
        // Compares now, while the name of the previous node is still in the cache: comparing a hundred
        // thousand names later is slow.
        if (ordered_ == Count() && (items_.IsEmpty() || items_[Count() - 1]->Compare(node) <= 0)) ++ordered_;
        return Count();
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
    const std::size_t index = IndexOf(node);
    if (index == Count()) return;
    const auto items = items_.InOneRow();
    const auto at = items.begin() + static_cast<std::ptrdiff_t>(index);
    // Equal nodes that were before it stay before it, and those after it stay after it.
    const auto left = std::upper_bound(items.begin(), at, *at, Before);
    const auto right = std::lower_bound(at + 1, items.end(), *at, Before);
    if (left != at)
        std::rotate(left, at, at + 1);
    else
        std::rotate(at, at + 1, right);
}

}  // namespace tw

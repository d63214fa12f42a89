#include "tree/NodeIndex.h"

#include <cstdint>

#include "tree/TWNode.h"

namespace tw {
namespace {

// The homes of the copies of one object are adjacent: all four of a recipe are in one or two cache lines.
constexpr std::size_t kCopies = 4;

// Returns the number of slots for count nodes; at least a quarter of them stay free.
std::size_t SlotsFor(std::size_t count) {
    constexpr std::size_t kFewest = 16;
    return (kFewest + count + count / 3) / kCopies * kCopies;
}

}  // namespace

std::size_t NodeIndex::Home(const NodeKey& key) const {
    // Scales the upper half of the hash to the table, whose size need not be a power of two.
    constexpr unsigned kHalf = 32;
    const std::uint64_t group = ((key.HashOfObject() >> kHalf) * (slots_.size() / kCopies)) >> kHalf;
    return static_cast<std::size_t>(group) * kCopies + (static_cast<unsigned>(key.Copy()) % kCopies);
}

std::size_t NodeIndex::SlotOf(const NodeKey& key) const {
    std::size_t slot = Home(key);
    while (slots_[slot] != nullptr && !(slots_[slot]->KeyParts() == key)) slot = Next(slot);
    return slot;
}

TWNode* NodeIndex::Find(const NodeKey& key) const {
    return slots_.empty() ? nullptr : slots_[SlotOf(key)];
}

bool NodeIndex::Insert(TWNode& node) {
    if (SlotsFor(count_ + 1) > slots_.size()) Resize(SlotsFor(count_ + count_ / 2 + 1));
    const std::size_t slot = SlotOf(node.KeyParts());
    if (slots_[slot] != nullptr) return false;
    slots_[slot] = &node;
    ++count_;
    return true;
}

bool NodeIndex::Erase(const TWNode& node) {
    if (slots_.empty()) return false;
    std::size_t gap = SlotOf(node.KeyParts());
    if (slots_[gap] != &node) return false;
    // Moves nodes after the gap into it, unless that would put them before their home.
    for (std::size_t slot = Next(gap); slots_[slot] != nullptr; slot = Next(slot)) {
        const std::size_t home = Home(slots_[slot]->KeyParts());
        const bool homeIsBehindGap = gap <= slot ? gap < home && home <= slot : gap < home || home <= slot;
        if (homeIsBehindGap) continue;
        slots_[gap] = slots_[slot];
        gap = slot;
    }
    slots_[gap] = nullptr;
    --count_;
    return true;
}

void NodeIndex::Reserve(std::size_t count) {
    if (SlotsFor(count) > slots_.size()) Resize(SlotsFor(count));
}

void NodeIndex::Clear() {
    slots_ = {};
    count_ = 0;
}

void NodeIndex::Resize(std::size_t slots) {
    std::vector<TWNode*> old(slots, nullptr);
    old.swap(slots_);
    for (TWNode* const node : old)
        if (node != nullptr) slots_[SlotOf(node->KeyParts())] = node;
}

}  // namespace tw

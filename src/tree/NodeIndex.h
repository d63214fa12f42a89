// The dictionary of a tree: every node by its key, in one flat table of pointers.
#pragma once

#include <cstddef>
#include <vector>

#include "tree/NodeKey.h"

namespace tw {

class TWNode;

class NodeIndex {
  public:
    std::size_t Count() const { return count_; }
    // The node of that key, nullptr when there is none.
    TWNode* Find(const NodeKey& key) const;
    // Puts the node in under its key; false, and nothing changes, when the key is taken.
    bool Insert(TWNode& node);
    // Takes that node out. False when the key is another node's or nobody's.
    bool Erase(const TWNode& node);
    // Makes room for count nodes in all.
    void Reserve(std::size_t count);
    void Clear();

  private:
    std::size_t Home(const NodeKey& key) const;
    std::size_t Next(std::size_t slot) const { return slot + 1 == slots_.size() ? 0 : slot + 1; }
    // The slot of the node of that key, or the free one where it would go. REQUIRES: there is a free slot.
    std::size_t SlotOf(const NodeKey& key) const;
    void Resize(std::size_t slots);

    std::vector<TWNode*> slots_;  // nullptr is free; a node stands at its home slot or soon behind it
    std::size_t count_ = 0;
};

}  // namespace tw

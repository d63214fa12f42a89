// The index of a tree: finds every node by its key. A hash table with open addressing.
#pragma once

#include <cstddef>
#include <vector>

#include "tree/NodeKey.h"

namespace tw {

class TWNode;

class NodeIndex {
  public:
    std::size_t Count() const { return count_; }
    // Returns the node with that key, or nullptr if there is none.
    TWNode* Find(const NodeKey& key) const;
    // Adds the node under its key. False, with nothing changed, if the key is already used.
    bool Insert(TWNode& node);
    // Removes the node. False, with nothing changed, if the node is not in the index, even if another one
    // with its key is.
    bool Erase(const TWNode& node);
    // Reserves memory for count nodes in total.
    void Reserve(std::size_t count);
    void Clear();

  private:
    std::size_t Home(const NodeKey& key) const;
    std::size_t Next(std::size_t slot) const { return slot + 1 == slots_.size() ? 0 : slot + 1; }
    // Returns the slot of the node with that key, or the free slot where it would be inserted. REQUIRES:
    // there is a free slot.
    std::size_t SlotOf(const NodeKey& key) const;
    void Resize(std::size_t slots);

    std::vector<TWNode*> slots_;  // nullptr if free; a node is at its home slot or soon after it
    std::size_t count_ = 0;
};

}  // namespace tw

// An ordered collection of nodes: the children of one node.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "tree/GapVector.h"
#include "tree/TWNode.h"

namespace tw {

// The owner of a collection is notified of every node that is added or removed, during the call that does so.
class TWNodesOwner {
  public:
    virtual ~TWNodesOwner() = default;
    // Called before the node is added. If it raises an error, the node is not added.
    virtual void AddingNode(TWNode& node) = 0;
    // Called after the node was removed.
    virtual void NodeRemoved(TWNode& node) = 0;
    // True if the collection must be kept in order.
    virtual bool Sorted() const = 0;
};

// Owns its nodes. Indexes start at 0; an index past the last node raises Error "Subscript out of range".
class TWNodes {
  public:
    // REQUIRES: owner outlives the collection.
    explicit TWNodes(TWNodesOwner& owner) : owner_(owner) {}
    TWNodes(const TWNodes&) = delete;
    TWNodes& operator=(const TWNodes&) = delete;

    std::size_t Count() const { return items_.Count(); }
    TWNode& Item(std::size_t index) const;
    // For range loops; the elements are std::unique_ptr<TWNode>. Valid until the collection changes.
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    // Adds the node: at the end if the owner is not sorted, otherwise before the first node that sorts after
    // it. If the owner raises an error, such as "Node already has a parent.", the collection is unchanged and
    // the caller keeps the node. REQUIRES: node is not null.
    TWNode& AddNode(std::unique_ptr<TWNode>&& node);
    // Creates a node and adds it. Raises the errors of TWNode's setters and of AddNode.
    TWNode& AddItem(std::string_view name, std::string_view key, std::string_view iconOpen,
                    std::string_view iconClosed, bool isDocument = false, bool isStyle = false);
    // Remove the node and return it. The nodes below it stay with it if keep is true, and are destroyed
    // otherwise. RemoveNode raises Error "Node to be removed does not exist in collection." if the node is
    // not in it.
    std::unique_ptr<TWNode> RemoveNode(const TWNode& node, bool keep = false);
    std::unique_ptr<TWNode> Remove(std::size_t index, bool keep = false);
    // Removes and destroys all nodes and all nodes below them, the last first, leaves before their parents.
    void RemoveAll();
    // Sorts the nodes by TWNode::Compare. Equal nodes keep their order.
    void Sort();
    // Reserves memory for count nodes in total.
    void Reserve(std::size_t count) { items_.Reserve(count); }

  private:
    friend class TWNode;
    using Items = GapVector<std::unique_ptr<TWNode>>;

    // Returns the index of the node, or Count if it is not in the collection.
    std::size_t IndexOf(const TWNode& node) const;
    // Returns the index of the node like IndexOf, but by binary search; Count even if the node is in the
    // collection but not all nodes are known to be in order.
    std::size_t PlaceOf(const TWNode& node) const;
    // True if all nodes are in order. Compares only the nodes that are not yet known to be.
    bool InOrder();
    std::size_t PlaceFor(const TWNode& node);
    // Moves the node, which may be in the wrong place, to where Sort would put it. REQUIRES: all others are
    // in order.
    void Reposition(const TWNode& node);
    void ForgetOrder() { ordered_ = 0; }

    TWNodesOwner& owner_;
    Items items_;
    std::size_t ordered_ = 0;  // the number of nodes at the front that are known to be in order
};

}  // namespace tw

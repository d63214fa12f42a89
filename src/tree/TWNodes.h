// An ordered collection of nodes: the children of one node.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "tree/GapVector.h"
#include "tree/TWNode.h"

namespace tw {

// The owner of a collection hears of every node that comes and goes, inside the call that does it.
class TWNodesOwner {
  public:
    virtual ~TWNodesOwner() = default;
    // Before the node goes in. An error keeps it out.
    virtual void AddingNode(TWNode& node) = 0;
    // After the node went out.
    virtual void NodeRemoved(TWNode& node) = 0;
    // Whether the collection is to be kept in order.
    virtual bool Sorted() const = 0;
};

// Owns its nodes. Positions count from 0; one beyond the last raises "Subscript out of range".
class TWNodes {
  public:
    // REQUIRES: owner lives for as long as the collection.
    explicit TWNodes(TWNodesOwner& owner) : owner_(owner) {}
    TWNodes(const TWNodes&) = delete;
    TWNodes& operator=(const TWNodes&) = delete;

    std::size_t Count() const { return items_.Count(); }
    TWNode& Item(std::size_t index) const;
    // For range loops over std::unique_ptr<TWNode>. Valid until the collection changes.
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    // Takes the node in, behind all others when the owner is not sorted, otherwise before the first node that
    // sorts behind it. An error of the owner, such as "Node already has a parent.", leaves the collection as
    // it was and the node with the caller. REQUIRES: node is not null.
    TWNode& AddNode(std::unique_ptr<TWNode>&& node);
    // Makes a node and adds it; the errors of both.
    TWNode& AddItem(std::string_view name, std::string_view key, std::string_view iconOpen,
                    std::string_view iconClosed, bool isDocument = false, bool isStyle = false);
    // Takes the node out and hands it over, with everything below it when keep is set and cleared otherwise.
    // RemoveNode raises "Node to be removed does not exist in collection." for a node that is not in it.
    std::unique_ptr<TWNode> RemoveNode(const TWNode& node, bool keep = false);
    std::unique_ptr<TWNode> Remove(std::size_t index, bool keep = false);
    // Removes and destroys all nodes with everything below them, the last first, leaves before their parents.
    void RemoveAll();
    // Puts the nodes in the order of Compare; equal ones stay in the order in which they are.
    void Sort();
    // Makes room for count nodes in all.
    void Reserve(std::size_t count) { items_.Reserve(count); }

  private:
    friend class TWNode;
    using Items = GapVector<std::unique_ptr<TWNode>>;

    // Count when the node is not in it.
    std::size_t IndexOf(const TWNode& node) const;
    // The same by the order, without a look at every node; Count also when the order is not known.
    std::size_t PlaceOf(const TWNode& node) const;
    // True when every node stands in its place. Looks only at what it has not looked at before.
    bool InOrder();
    std::size_t PlaceFor(const TWNode& node);
    // Where Sort would put the one node that may stand wrong. REQUIRES: all others are in order.
    void Reposition(const TWNode& node);
    void ForgetOrder() { ordered_ = 0; }

    TWNodesOwner& owner_;
    Items items_;
    std::size_t ordered_ = 0;  // so many nodes at the front are known to be in order
};

}  // namespace tw

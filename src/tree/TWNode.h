// One entry of the tree of recipes, styles and folders: a plain object, independent of any widget.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "tree/NodeIcon.h"
#include "tree/NodeKey.h"
#include "tree/SharedText.h"

namespace tw {

class TWNodes;
class TWTree;

// The number of every error that the misuse of one of the tree's classes raises. The source of the error
// names the class and the member: "TWNode.[PUT]Key".
inline constexpr int kTreeMisuseNumber = 5;

// The initial values of a node, for creating many nodes at once.
struct NodeContent {
    SharedText name;
    NodeKey key;
    NodeIcon iconOpen = NodeIcon::None;
    NodeIcon iconClosed = NodeIcon::None;
    // At most one of these two is true.
    bool isDocument = false;
    bool isStyle = false;
};

// A node is owned by the collection that contains it, the root by the tree; Parent and Tree return pointers
// that do not own. A node is a document, a style or neither, and a document has no children. Destroying a
// node destroys all nodes below it, however deep.
class TWNode {
  public:
    TWNode();
    explicit TWNode(const NodeContent& content);
    ~TWNode();
    TWNode(const TWNode&) = delete;
    TWNode& operator=(const TWNode&) = delete;
    // Nodes are created by the hundred thousand and destroyed together. They are allocated close together in
    // blocks, which are freed when the last node has been destroyed.
    static void* operator new(std::size_t size);
    static void operator delete(void* memory) noexcept;

    // The displayed text. Valid until it is set again.
    std::string_view Name() const { return name_.View(); }
    // If the tree is sorted, also puts the siblings back in order.
    void SetName(std::string_view name);

    std::string Key() const { return key_.Text(); }
    const NodeKey& KeyParts() const { return key_; }
    // Raises Error "Node already belongs to a tree." if it does.
    void SetKey(std::string_view key);

    // The keys of the images. Valid until set again. Setting one does not sort the siblings.
    std::string_view IconOpen() const;
    std::string_view IconClosed() const;
    void SetIconOpen(std::string_view icon);
    void SetIconClosed(std::string_view icon);

    // True for a recipe, which is always a leaf.
    bool IsDocument() const { return isDocument_; }
    // Setting true raises Error "Document nodes cannot have children." if the node has children, and "Node
    // cannot be both a document and a style." if it is a style.
    void SetIsDocument(bool isDocument);
    bool IsStyle() const { return isStyle_; }
    // Setting true raises Error "Node cannot be both a document and a style." if the node is a document.
    void SetIsStyle(bool isStyle);

    // Returns the children; the first call creates the empty collection. Raises Error "Document nodes cannot
    // have children." for a document.
    TWNodes& Children();
    // False for a document. Never creates the collection.
    bool HasChildren() const;

    // nullptr if there is none.
    TWTree* Tree() const { return tree_; }
    TWNode* Parent() const { return parent_; }
    // Called by the tree and the collection when they add a node; only they reset both pointers when they
    // remove it. Both functions raise Error "Node already belongs to a tree." if it does, SetParent also
    // "Node already has a parent." if it has one. REQUIRES: the tree or the parent outlives the node.
    void SetTree(TWTree& tree);
    void SetParent(TWNode& parent);

    // Removes and destroys all nodes below this one.
    void Clear();
    // Returns a negative number if this node sorts before the other, a positive one if after it, 0 if
    // they are equal: folders before styles before recipes, then by IconClosed (case-sensitive), then by
    // Name (case-insensitive).
    int Compare(const TWNode& other) const;
    // True if the tree keeps children in order; false without a tree.
    bool Sorted() const;

  private:
    friend class TWTree;
    struct Family;
    struct OwnIcons;

    void CheckNotBoth(bool other, const char* member) const;
    void SetIcon(NodeIcon& icon, std::string OwnIcons::*own, std::string_view name);
    int Rank() const { return isDocument_ ? 2 : isStyle_ ? 1 : 0; }
    // Tells the collection that this node may no longer be in its place in the order.
    void ForgetPlace();
    void DestroyChildren() noexcept;

    SharedText name_;
    // The next members are stored in the padding at its end.
    [[no_unique_address]] NodeKey key_;
    NodeIcon iconOpen_ = NodeIcon::None;
    NodeIcon iconClosed_ = NodeIcon::None;
    bool isDocument_ = false;
    bool isStyle_ = false;
    std::unique_ptr<OwnIcons> ownIcons_;  // the names of the icons that are NodeIcon::Other
    std::unique_ptr<Family> family_;
    TWTree* tree_ = nullptr;
    TWNode* parent_ = nullptr;
};

}  // namespace tw

// One entry of the tree of recipes, styles and folders: a plain object that knows no widget.
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

// The number of every error that misuse of the tree's classes raises. Its source is the class, "." and the
// member: "TWNode.[PUT]Key".
inline constexpr int kTreeMisuseNumber = 5;

// What a node starts with, for those who make many.
struct NodeContent {
    SharedText name;
    NodeKey key;
    NodeIcon iconOpen = NodeIcon::None;
    NodeIcon iconClosed = NodeIcon::None;
    // At most one of the two.
    bool isDocument = false;
    bool isStyle = false;
};

// Its collection owns a node, the tree owns the root; Parent and Tree do not own. A node is a document, a
// style or neither, and a document has no children. Destroying a node destroys everything below it, however
// deep.
class TWNode {
  public:
    TWNode();
    explicit TWNode(const NodeContent& content);
    ~TWNode();
    TWNode(const TWNode&) = delete;
    TWNode& operator=(const TWNode&) = delete;
    // Nodes come by hundreds of thousands and go together: they lie close in blocks of their own, which are
    // given back when the last node is gone.
    static void* operator new(std::size_t size);
    static void operator delete(void* memory) noexcept;

    // The text shown. Valid until it is set again.
    std::string_view Name() const { return name_.View(); }
    // Sorts the siblings anew when the tree is sorted; without a parent it only stores.
    void SetName(std::string_view name);

    std::string Key() const { return key_.Text(); }
    const NodeKey& KeyParts() const { return key_; }
    // Raises "Node already belongs to a tree." when it does.
    void SetKey(std::string_view key);

    // Image keys. Valid until set again. Setting one sorts nothing.
    std::string_view IconOpen() const;
    std::string_view IconClosed() const;
    void SetIconOpen(std::string_view icon);
    void SetIconClosed(std::string_view icon);

    // A recipe: a leaf.
    bool IsDocument() const { return isDocument_; }
    // Raises "Document nodes cannot have children." when it has some, "Node cannot be both a document and a
    // style." when it is one.
    void SetIsDocument(bool isDocument);
    bool IsStyle() const { return isStyle_; }
    // Raises "Node cannot be both a document and a style." when it is a document.
    void SetIsStyle(bool isStyle);

    // The children, made at the first read. Raises "Document nodes cannot have children." for a document.
    TWNodes& Children();
    // False for a document too; makes nothing.
    bool HasChildren() const;

    // nullptr without one.
    TWTree* Tree() const { return tree_; }
    TWNode* Parent() const { return parent_; }
    // What a collection and a tree do with a node that enters them; they alone take both away again. Raise
    // "Node already belongs to a tree." when it does, SetParent "Node already has a parent." when it has.
    // REQUIRES: the tree, the parent live for as long as the node.
    void SetTree(TWTree& tree);
    void SetParent(TWNode& parent);

    // Removes everything below.
    void Clear();
    // Negative, zero or positive as this node stands before, level with or behind the other: folders before
    // styles before recipes, then by the text of IconClosed, letter for letter, then by Name without regard
    // to case.
    int Compare(const TWNode& other) const;
    // Whether the tree keeps children in order; false without a tree.
    bool Sorted() const;

  private:
    friend class TWTree;
    struct Family;
    struct OwnIcons;

    void CheckNotBoth(bool other, const char* member) const;
    void SetIcon(NodeIcon& icon, std::string OwnIcons::*own, std::string_view name);
    int Rank() const { return isDocument_ ? 2 : isStyle_ ? 1 : 0; }
    // Tells the collection that this node may no longer be in its place.
    void ForgetPlace();
    void DestroyChildren() noexcept;

    SharedText name_;
    // The members behind it move into the room that its last word leaves.
    [[no_unique_address]] NodeKey key_;
    NodeIcon iconOpen_ = NodeIcon::None;
    NodeIcon iconClosed_ = NodeIcon::None;
    bool isDocument_ = false;
    bool isStyle_ = false;
    std::unique_ptr<OwnIcons> ownIcons_;  // texts of the icons that are NodeIcon::Other
    std::unique_ptr<Family> family_;
    TWTree* tree_ = nullptr;
    TWNode* parent_ = nullptr;
};

}  // namespace tw

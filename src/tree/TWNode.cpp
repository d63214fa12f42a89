#include "tree/TWNode.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "platform/Error.h"
#include "tree/TWNodes.h"
#include "tree/TWTree.h"
#include "values/Text.h"

// Without the pool, the address sanitizer can watch each node by itself.
#if defined(__SANITIZE_ADDRESS__)
#define TW_POOLED_NODES false
#elif defined(__has_feature)
#define TW_POOLED_NODES !__has_feature(address_sanitizer)
#else
#define TW_POOLED_NODES true
#endif

namespace tw {
namespace {

constexpr bool kPooled = TW_POOLED_NODES;

[[noreturn]] void Raise(const char* member, const char* description) {
    throw Error(std::string("TWNode.") + member, description, kTreeMisuseNumber);
}

constexpr const char* kBelongsToTree = "Node already belongs to a tree.";
constexpr const char* kDocumentHasNoChildren = "Document nodes cannot have children.";
constexpr const char* kHasParent = "Node already has a parent.";
constexpr const char* kBoth = "Node cannot be both a document and a style.";
constexpr const char* kBelowItself = "A node cannot stand below itself.";

// The memory of the nodes, for one thread: a growing number of blocks, and a list of the free places in them.
// All blocks are freed with the last node.
class NodePool {
  public:
    void* Take() {
        if (free_ == nullptr && next_ == end_) Grow();
        ++taken_;
        if (free_ == nullptr) return next_++;
        return std::exchange(free_, free_->next);
    }
    void Give(void* memory) noexcept {
        free_ = new (memory) Place{free_};
        if (--taken_ > 0) return;
        free_ = nullptr;
        next_ = end_ = nullptr;
        blocks_.clear();
    }

  private:
    union Place {
        Place* next;
        alignas(TWNode) std::byte node[sizeof(TWNode)];
    };
    static constexpr std::size_t kFewest = 16;
    static constexpr std::size_t kMost = 4096;

    void Grow() {
        const std::size_t count = std::clamp(taken_, kFewest, kMost);
        blocks_.push_back(std::make_unique_for_overwrite<Place[]>(count));
        next_ = blocks_.back().get();
        end_ = next_ + count;
    }

    std::vector<std::unique_ptr<Place[]>> blocks_;
    Place* free_ = nullptr;
    Place* next_ = nullptr;  // start of the places in the last block that were never used
    Place* end_ = nullptr;
    std::size_t taken_ = 0;
};

NodePool& Pool() {
    static auto* const pool = new NodePool;  // outlives every static tree
    return *pool;
}

}  // namespace

struct TWNode::OwnIcons {
    std::string open;
    std::string closed;
};

// The children of a node, and what their owner does when one is added or removed.
struct TWNode::Family final : TWNodesOwner {
    explicit Family(TWNode& node) : owner(node), nodes(*this) {}

    void AddingNode(TWNode& node) override {
        if (owner.isDocument_) Raise("[GET]Children", kDocumentHasNoChildren);
        CheckNotAbove(node);
        node.SetParent(owner);
        if (owner.tree_ == nullptr) return;
        try {
            owner.tree_->AddNode(node);
        } catch (...) {
            node.parent_ = nullptr;
            throw;
        }
    }

    void NodeRemoved(TWNode& node) override {
        if (node.tree_ != nullptr) node.tree_->RemoveNode(node);
        node.parent_ = nullptr;
    }

    bool Sorted() const override { return owner.Sorted(); }

    // Nodes in a cycle would own each other and never be destroyed.
    void CheckNotAbove(const TWNode& node) const {
        if (&node != &owner && !node.HasChildren()) return;
        for (const TWNode* above = &owner; above != nullptr; above = above->parent_)
            if (above == &node) Raise("Children", kBelowItself);
    }

    TWNode& owner;
    TWNodes nodes;
};

void* TWNode::operator new(std::size_t size) {
    return kPooled ? Pool().Take() : ::operator new(size);
}

void TWNode::operator delete(void* memory) noexcept {
    if (!kPooled)
        ::operator delete(memory);
    else if (memory != nullptr)
        Pool().Give(memory);
}

TWNode::TWNode() = default;

TWNode::TWNode(const NodeContent& content)
    : name_(content.name),
      key_(content.key),
      iconOpen_(content.iconOpen),
      iconClosed_(content.iconClosed),
      isDocument_(content.isDocument),
      isStyle_(content.isStyle) {
    // Each recipe has four nodes.
    static_assert(sizeof(void*) != 8 || sizeof(TWNode) <= 64);
}

TWNode::~TWNode() {
    DestroyChildren();
}

// Destroys the last leaf first, and moves up by Parent: this needs neither recursion nor additional memory.
void TWNode::DestroyChildren() noexcept {
    for (TWNode* at = this; at != this || HasChildren();) {
        if (!at->HasChildren()) {
            at = at->parent_;
            continue;
        }
        TWNodes::Items& items = at->family_->nodes.items_;
        const std::size_t last = items.Count() - 1;
        if (items[last]->HasChildren())
            at = items[last].get();
        else
            items.TakeOut(last);
    }
}

void TWNode::SetName(std::string_view name) {
    SharedText text(name);
    if (parent_ == nullptr || parent_->family_ == nullptr) {
        name_ = std::move(text);
        return;
    }
    TWNodes& siblings = parent_->family_->nodes;
    const bool sorted = parent_->Sorted();
    const bool inOrder = sorted && siblings.InOrder();
    name_ = std::move(text);
    if (inOrder) {
        siblings.Reposition(*this);
        return;
    }
    siblings.ForgetOrder();
    if (sorted) siblings.Sort();
}

void TWNode::SetKey(std::string_view key) {
    if (tree_ != nullptr) Raise("[PUT]Key", kBelongsToTree);
    key_ = NodeKey(key);
}

std::string_view TWNode::IconOpen() const {
    return iconOpen_ == NodeIcon::Other ? ownIcons_->open : IconName(iconOpen_);
}

std::string_view TWNode::IconClosed() const {
    return iconClosed_ == NodeIcon::Other ? ownIcons_->closed : IconName(iconClosed_);
}

void TWNode::SetIconOpen(std::string_view icon) {
    SetIcon(iconOpen_, &OwnIcons::open, icon);
}

void TWNode::SetIconClosed(std::string_view icon) {
    SetIcon(iconClosed_, &OwnIcons::closed, icon);
    ForgetPlace();
}

void TWNode::SetIcon(NodeIcon& icon, std::string OwnIcons::*own, std::string_view name) {
    const NodeIcon known = IconOf(name);
    if (known == NodeIcon::Other) {
        std::string text(name);  // name may be part of the text that is replaced
        if (ownIcons_ == nullptr) ownIcons_ = std::make_unique<OwnIcons>();
        (*ownIcons_).*own = std::move(text);
    }
    icon = known;
}

void TWNode::CheckNotBoth(bool other, const char* member) const {
    if (other) Raise(member, kBoth);
}

void TWNode::SetIsDocument(bool isDocument) {
    if (isDocument && HasChildren()) Raise("[PUT]IsDocument", kDocumentHasNoChildren);
    CheckNotBoth(isDocument && isStyle_, "[PUT]IsDocument");
    isDocument_ = isDocument;
    ForgetPlace();
}

void TWNode::SetIsStyle(bool isStyle) {
    CheckNotBoth(isStyle && isDocument_, "[PUT]IsStyle");
    isStyle_ = isStyle;
    ForgetPlace();
}

TWNodes& TWNode::Children() {
    if (isDocument_) Raise("[GET]Children", kDocumentHasNoChildren);
    if (family_ == nullptr) family_ = std::make_unique<Family>(*this);
    return family_->nodes;
}

bool TWNode::HasChildren() const {
    return family_ != nullptr && family_->nodes.Count() > 0;
}

void TWNode::SetTree(TWTree& tree) {
    if (tree_ != nullptr) Raise("[PUT]Tree", kBelongsToTree);
    tree_ = &tree;
}

void TWNode::SetParent(TWNode& parent) {
    if (tree_ != nullptr) Raise("[PUT]Parent", kBelongsToTree);
    if (parent_ != nullptr) Raise("[PUT]Parent", kHasParent);
    parent_ = &parent;
}

void TWNode::ForgetPlace() {
    if (parent_ != nullptr && parent_->family_ != nullptr) parent_->family_->nodes.ForgetOrder();
}

void TWNode::Clear() {
    if (family_ != nullptr) family_->nodes.RemoveAll();
}

int TWNode::Compare(const TWNode& other) const {
    if (const int ranks = Rank() - other.Rank(); ranks != 0) return ranks;
    if (iconClosed_ != other.iconClosed_ || iconClosed_ == NodeIcon::Other) {
        const int icons = IconClosed().compare(other.IconClosed());
        if (icons != 0) return icons > 0 ? 1 : -1;
    }
    const int names = CompareNoCase(Name(), other.Name());
    return names > 0 ? 1 : names < 0 ? -1 : 0;
}

bool TWNode::Sorted() const {
    return tree_ != nullptr && tree_->Sorted();
}

}  // namespace tw

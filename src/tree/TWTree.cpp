#include "tree/TWTree.h"

#include <utility>
#include <vector>

#include "platform/Error.h"
#include "tree/TWNodes.h"

namespace tw {
namespace {

constexpr const char* kAddNode = "TWTree.AddNode";
constexpr const char* kHasRoot = "Tree already has a root.";
constexpr const char* kHasNoRoot = "Tree has no root.";

[[noreturn]] void Raise(const char* source, const char* description) {
    throw Error(source, description, kTreeMisuseNumber);
}

[[noreturn]] void RaiseKeyTaken() {
    Raise(kAddNode, "Node key already exists in tree.");
}

// Returns the node and all nodes below it, parents before their children.
std::vector<TWNode*> Subtree(TWNode& top) {
    std::vector<TWNode*> nodes = {&top};
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (!nodes[i]->HasChildren()) continue;
        for (const auto& child : nodes[i]->Children()) nodes.push_back(child.get());
    }
    return nodes;
}

}  // namespace

TWTree::~TWTree() = default;

bool TWTree::NodeExists(std::string_view key) const {
    return Nodes(key) != nullptr;
}

TWNode* TWTree::Nodes(std::string_view key) const {
    return index_.Find(NodeKey(key));
}

TWNode& TWTree::AddNode(std::unique_ptr<TWNode>&& root) {
    if (root_ != nullptr) Raise(kAddNode, kHasRoot);
    if (root->Parent() != nullptr) Raise(kAddNode, kHasNoRoot);
    Enter(*root);
    root_ = std::move(root);
    return *root_;
}

void TWTree::AddNode(TWNode& node) {
    if (root_ == nullptr) Raise(kAddNode, kHasNoRoot);
    if (node.Parent() == nullptr) Raise(kAddNode, kHasRoot);
    Enter(node);
}

TWNode& TWTree::AddItem(std::string_view name, std::string_view key, std::string_view iconOpen,
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

void TWTree::Enter(TWNode& top) {
    top.SetTree(*this);
    std::vector<TWNode*> below;
    std::size_t entered = 0;
    try {
        // Most nodes are added without children.
        if (!index_.Insert(top)) RaiseKeyTaken();
        if (!top.HasChildren()) return;
        below = Subtree(top);
        for (entered = 1; entered < below.size(); ++entered) {
            if (!index_.Insert(*below[entered])) RaiseKeyTaken();
            below[entered]->tree_ = this;
        }
    } catch (...) {
        for (std::size_t i = 1; i < entered; ++i) {
            index_.Erase(*below[i]);
            below[i]->tree_ = nullptr;
        }
        index_.Erase(top);
        top.tree_ = nullptr;
        throw;
    }
}

std::unique_ptr<TWNode> TWTree::RemoveNode(TWNode& node) {
    if (!index_.Erase(node)) Raise("TWTree.RemoveNode", "Node to remove does not exist in tree.");
    node.tree_ = nullptr;
    if (node.HasChildren())
        for (TWNode* const below : Subtree(node)) {
            index_.Erase(*below);
            below->tree_ = nullptr;
        }
    return root_.get() == &node ? std::move(root_) : nullptr;
}

void TWTree::Clear() {
    index_.Clear();
    root_.reset();
}

void TWTree::InitFromDatabase() {
    if (mainDatabase_ == nullptr) Raise("TWTree.InitFromDatabase", "There is no main database to read.");
    InitFromDatabase(*mainDatabase_);
}

void TWTree::Reload() {
    upToDate_ = false;
    TWTree fresh(mainDatabase_);
    fresh.InitFromDatabase();
    Clear();
    database_ = fresh.database_;
    std::swap(index_, fresh.index_);
    root_ = std::move(fresh.root_);
    for (TWNode* const node : Subtree(*root_)) node->tree_ = this;
    upToDate_ = true;
}

}  // namespace tw

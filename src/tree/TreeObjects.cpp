#include "tree/TreeObjects.h"

#include <algorithm>
#include <memory>

#include "platform/Error.h"
#include "tree/TWNodes.h"

namespace tw {
namespace {

std::unique_ptr<TWNode> MakeNode(const std::string& key, const std::string& name) {
    NodeContent content{SharedText(name), NodeKey(key), NodeIcon::FolderOpen, NodeIcon::FolderClosed};
    content.isDocument = IsRecipeKey(key);
    content.isStyle = IsStyleKey(key);
    if (content.isDocument) content.iconOpen = content.iconClosed = NodeIcon::Document;
    if (content.isStyle) {
        content.iconOpen = NodeIcon::StyleOpen;
        content.iconClosed = NodeIcon::StyleClosed;
    }
    return std::make_unique<TWNode>(content);
}

}  // namespace

std::optional<std::string> TreeObjects::NameOf(const std::string& key) const {
    const TWNode* const node = tree_.Nodes(key);
    if (node == nullptr) return std::nullopt;
    return std::string(node->Name());
}

std::string TreeObjects::ParentOf(const std::string& key) const {
    const TWNode* const node = tree_.Nodes(key);
    return node == nullptr || node->Parent() == nullptr ? std::string() : node->Parent()->Key();
}

bool TreeObjects::IsBelow(const std::string& key, const std::string& above) const {
    const TWNode* const top = tree_.Nodes(above);
    if (top == nullptr) return false;
    const TWNode* node = tree_.Nodes(key);
    while (node != nullptr && node != top) node = node->Parent();
    return node == top;
}

bool TreeObjects::ChildNameExists(const std::string& parentKey, const std::string& name) const {
    TWNode* const parent = tree_.Nodes(parentKey);
    return parent != nullptr && parent->HasChildren() &&
           std::ranges::any_of(parent->Children(), [&](const auto& child) { return child->Name() == name; });
}

void TreeObjects::Place(const std::string& key, const std::string& parentKey, const std::string& name) {
    TWNode* const parent = tree_.Nodes(parentKey);
    if (parent == nullptr) return Remove(key);
    TWNode* const node = tree_.Nodes(key);
    parent->Children().AddNode(node == nullptr ? MakeNode(key, name)
                                               : node->Parent()->Children().RemoveNode(*node, true));
}

void TreeObjects::Rename(const std::string& key, const std::string& name) {
    if (TWNode* const node = tree_.Nodes(key)) node->SetName(name);
}

void TreeObjects::Remove(const std::string& key) {
    TWNode* const node = tree_.Nodes(key);
    if (node != nullptr && node->Parent() != nullptr) node->Parent()->Children().RemoveNode(*node);
}

void TreeObjects::Reload() {
    try {
        tree_.Reload();
    } catch (const Error&) {
        // This error follows another one that is already being reported; the tree knows it is out of date.
    }
    if (read_) read_();
}

void TreeObjects::CatchUp() {
    if (!tree_.IsUpToDate()) Reload();
}

}  // namespace tw

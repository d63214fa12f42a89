#include "TreeComparison.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tw::test {
namespace {

// Returns a node as one line, with its parent's key.
std::string Describe(const TWNode& node) {
    std::string line = node.Parent() == nullptr ? "none" : node.Parent()->Key();
    line.append("> ").append(node.Key()).append(" [").append(node.IconOpen()).append(", ");
    line.append(node.IconClosed()).append(node.IsDocument() ? "] document " : "] ");
    return line.append(node.IsStyle() ? "style " : "").append(node.Name());
}

// "(None)" is read before all other styles. A later change moves a style that sorts before it to the front,
// but reading does not, so the order of these styles is not checked.
void ExpectInOrder(const TWNodes& nodes) {
    const auto noStyle =
        std::ranges::find_if(nodes, [](const auto& node) { return node->Key().starts_with("S:0:"); });
    const TWNode* before = nullptr;
    for (const auto& node : nodes) {
        if (noStyle != nodes.end() && node->IsStyle() && node->Compare(**noStyle) <= 0) continue;
        if (before != nullptr) {
            ASSERT_LE(before->Compare(*node), 0) << before->Key() << " stands before " << node->Key();
        }
        before = node.get();
    }
}

Lines Nodes(const TWTree& tree, bool inOrder) {
    Lines lines;
    std::vector<TWNode*> open = {tree.Root()};
    while (!open.empty()) {
        TWNode* const node = open.back();
        open.pop_back();
        lines.push_back(Describe(*node));
        if (!node->HasChildren()) continue;
        if (inOrder) ExpectInOrder(node->Children());
        for (const auto& child : node->Children()) open.push_back(child.get());
    }
    std::ranges::sort(lines);
    return lines;
}

}  // namespace

void ExpectSameTree(TWTree& tree, TWTree& fresh) {
    ASSERT_EQ(Nodes(tree, true), Nodes(fresh, false));
    ExpectConsistent(tree);
}

}  // namespace tw::test

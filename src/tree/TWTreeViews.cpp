// How a tree fills a widget.
#include <array>
#include <cstddef>
#include <vector>

#include "tree/TWNodes.h"
#include "tree/TWTree.h"

namespace tw {
namespace {

// The key of a part's first entry, and the keys of the entries that it leaves out with everything below them.
struct PartRule {
    std::string_view start;
    std::array<std::string_view, 2> leftOut;
};

constexpr PartRule RuleOf(TreePart part) {
    switch (part) {
        case TreePart::Everything:
            break;
        case TreePart::Styles:
            return {kByStyleKey, {kNoStyleKey, kNoStyleFolderKey}};
        case TreePart::WithoutStyles:
            return {kDatabaseKey, {kByStyleKey, kByStyleKey}};
        case TreePart::RecipeFolders:
            return {kRecipeFoldersKey, {}};
        case TreePart::StyleFolders:
            return {kStyleFoldersKey, {kNoStyleKey, kNoStyleFolderKey}};
    }
    return {kDatabaseKey, {}};
}

// Traverses a part of the tree once. The open levels are kept in a list, since recursion would be as deep as
// the folders are nested.
class Filler {
  public:
    Filler(TreeView& view, const PartRule& rule, bool includeStyles, bool includeDocuments)
        : view_(view), rule_(rule), includeStyles_(includeStyles), includeDocuments_(includeDocuments) {}

    TreeViewItem Add(const TWNode& node, TreeViewItem parent) {
        const std::string_view closed = node.IconClosed();
        const std::string_view open = node.IconOpen().empty() ? closed : node.IconOpen();
        const TreeViewItem item = view_.Add(parent, node.Key(), node.Name(), closed, open);
        if (first_ == TreeViewItem::Top) first_ = item;
        return item;
    }

    void AddBelow(TWNode& start, TreeViewItem startItem) {
        std::vector<Level> levels;
        if (start.HasChildren()) levels.push_back({&start.Children(), startItem, 0});
        while (!levels.empty()) {
            Level& level = levels.back();
            if (level.next == level.nodes->Count()) {
                levels.pop_back();
                continue;
            }
            TWNode& child = level.nodes->Item(level.next++);
            if (IsPassedOver(child)) continue;
            const TreeViewItem item = Add(child, level.item);
            if (child.HasChildren()) levels.push_back({&child.Children(), item, 0});
        }
    }

    TreeViewItem First() const { return first_; }

  private:
    struct Level {
        const TWNodes* nodes;
        TreeViewItem item;
        std::size_t next;
    };

    bool IsPassedOver(const TWNode& node) const {
        if (node.IsDocument()) return !includeDocuments_;
        if (node.IsStyle() && !includeStyles_) return true;
        const std::string key = node.Key();
        return !key.empty() && (key == rule_.leftOut[0] || key == rule_.leftOut[1]);
    }

    TreeView& view_;
    const PartRule rule_;
    const bool includeStyles_;
    const bool includeDocuments_;
    TreeViewItem first_ = TreeViewItem::Top;
};

}  // namespace

TreeViewItem TWTree::PopulateTreeView(TreeView& view, TreePart part, bool showRoot, bool includeStyles,
                                      bool includeDocuments) const {
    view.Clear();
    const PartRule rule = RuleOf(part);
    TWNode* const start = Nodes(rule.start);
    if (start == nullptr) return TreeViewItem::Top;
    Filler filler(view, rule, includeStyles, includeDocuments);
    filler.AddBelow(*start, showRoot ? filler.Add(*start, TreeViewItem::Top) : TreeViewItem::Top);
    return filler.First();
}

TreeViewItem TWTree::PopulateTreeViewForRecipeTree(TreeView& view) const {
    return PopulateTreeView(view, TreePart::Everything, true, true, true);
}

TreeViewItem TWTree::PopulateTreeViewForRecipeExplorer(TreeView& view) const {
    return PopulateTreeView(view, TreePart::Everything, true, true, false);
}

TreeViewItem TWTree::PopulateTreeViewForStyleList(TreeView& view) const {
    return PopulateTreeView(view, TreePart::Styles, false, false, false);
}

TreeViewItem TWTree::PopulateTreeViewWithRecipeFolders(TreeView& view) const {
    return PopulateTreeView(view, TreePart::RecipeFolders, true, false, false);
}

TreeViewItem TWTree::PopulateTreeViewWithStyleFolders(TreeView& view) const {
    return PopulateTreeView(view, TreePart::StyleFolders, true, false, false);
}

}  // namespace tw

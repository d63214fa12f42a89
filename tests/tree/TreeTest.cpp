#include "TreeTest.h"

#include <gtest/gtest.h>
#include <utility>

#include "store/Schema.h"

namespace tw::test {

std::unique_ptr<TWNode> MakeNode(std::string_view key, std::string_view name) {
    auto node = std::make_unique<TWNode>();
    node->SetKey(key);
    node->SetName(name);
    return node;
}

std::unique_ptr<TWNode> MakeRecipe(std::string_view key, std::string_view name) {
    auto node = MakeNode(key, name);
    node->SetIconOpen("document");
    node->SetIconClosed("document");
    node->SetIsDocument(true);
    return node;
}

Lines Names(const TWNodes& nodes) {
    Lines names;
    for (const auto& node : nodes) names.emplace_back(node->Name());
    return names;
}

Lines Below(TWNode& node) {
    Lines lines;
    std::vector<std::pair<TWNode*, std::size_t>> open = {{&node, 0}};
    while (!open.empty()) {
        const auto [next, level] = open.back();
        open.pop_back();
        lines.push_back(std::string(2 * level, ' ') + next->Key() + " " + std::string(next->Name()));
        if (!next->HasChildren()) continue;
        for (std::size_t i = next->Children().Count(); i-- > 0;)
            open.emplace_back(&next->Children().Item(i), level + 1);
    }
    return lines;
}

Lines All(const TWTree& tree) {
    return tree.Root() == nullptr ? Lines() : Below(*tree.Root());
}

void ExpectConsistent(const TWTree& tree) {
    std::size_t count = 0;
    std::vector<TWNode*> open;
    if (tree.Root() != nullptr) {
        open.push_back(tree.Root());
        ASSERT_EQ(tree.Root()->Parent(), nullptr);
    }
    while (!open.empty()) {
        TWNode* const node = open.back();
        open.pop_back();
        ++count;
        ASSERT_EQ(tree.Nodes(node->Key()), node) << node->Key();
        ASSERT_EQ(node->Tree(), &tree) << node->Key();
        if (!node->HasChildren()) continue;
        for (const auto& child : node->Children()) {
            ASSERT_EQ(child->Parent(), node) << child->Key();
            open.push_back(child.get());
        }
    }
    ASSERT_EQ(tree.Count(), count);
}

TreeViewItem RecordingView::Add(TreeViewItem parent, const std::string& key, std::string_view text,
                                std::string_view image, std::string_view selectedImage) {
    lines.push_back(KeyOf(parent) + "> " + key + " " + std::string(text) + " [" + std::string(image) + ", " +
                    std::string(selectedImage) + "]");
    keys_.push_back(key);
    return static_cast<TreeViewItem>(keys_.size());
}

std::string RecordingView::KeyOf(TreeViewItem item) const {
    return item == TreeViewItem::Top ? "none" : keys_.at(static_cast<std::size_t>(item) - 1);
}

Lines MainTree::Load() {
    tree.InitFromDatabase();
    return All(tree);
}

std::unique_ptr<Database> MakeExchangeDatabase() {
    auto db = CreateMainDatabaseInMemory();
    db->ExecuteNative(
        "DROP TABLE RECIPES; DROP TABLE STYLES; DROP TABLE FOLDERS;"
        "CREATE TABLE RECIPES (ID INTEGER PRIMARY KEY AUTOINCREMENT, NAME TEXT COLLATE TWTEXT,"
        " STYLE_NAME TEXT COLLATE TWTEXT DEFAULT '', FOLDER_ID INTEGER)");
    return db;
}

}  // namespace tw::test

#include "tree/TWTree.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

#include "TreeTest.h"

namespace tw::test {
namespace {

TEST(TWTree, StartsEmptyAndSorted) {
    const TWTree tree;
    EXPECT_EQ(tree.Root(), nullptr);
    EXPECT_EQ(tree.Count(), 0U);
    EXPECT_TRUE(tree.Sorted());
    EXPECT_FALSE(tree.NodeExists("X:DB"));
    EXPECT_FALSE(tree.NodeExists(""));
    EXPECT_EQ(tree.Nodes("X:DB"), nullptr);
    EXPECT_EQ(tree.SourceDatabase(), nullptr);
}

TEST(TWTree, TakesTheFirstNodeWithoutAParentAsItsRoot) {
    TWTree tree;
    TWNode& root = tree.AddItem("Recipe Database", "X:DB", "database", "database");
    EXPECT_EQ(tree.Root(), &root);
    EXPECT_EQ(root.Tree(), &tree);
    EXPECT_EQ(root.IconClosed(), "database");
    EXPECT_EQ(tree.Nodes("X:DB"), &root);
    ExpectConsistent(tree);
}

TEST(TWTree, RefusesASecondRoot) {
    TWTree tree;
    tree.AddNode(MakeNode("X:DB"));
    auto second = MakeNode("X:OTHER");
    EXPECT_EQ(ErrorOf([&] { tree.AddNode(std::move(second)); }), "TWTree.AddNode: Tree already has a root.");
    EXPECT_NE(second, nullptr);
    EXPECT_EQ(ErrorOf([&] { tree.AddNode(*second); }), "TWTree.AddNode: Tree already has a root.");
    EXPECT_EQ(ErrorOf([&] { tree.AddItem("", "X:THIRD", "", ""); }),
              "TWTree.AddNode: Tree already has a root.");
    EXPECT_EQ(second->Tree(), nullptr);
    EXPECT_EQ(tree.Count(), 1U);
}

TEST(TWTree, TakesNoChildWithoutARoot) {
    TWTree tree;
    TWNode parent;
    auto child = MakeNode("F:1");
    child->SetParent(parent);
    EXPECT_EQ(ErrorOf([&] { tree.AddNode(*child); }), "TWTree.AddNode: Tree has no root.");
    EXPECT_EQ(ErrorOf([&] { tree.AddNode(std::move(child)); }), "TWTree.AddNode: Tree has no root.");
    EXPECT_NE(child, nullptr);
    EXPECT_EQ(tree.Count(), 0U);
}

TEST(TWTree, TakesARootWithEverythingBelowIt) {
    auto root = MakeNode("X:DB");
    root->Children().AddNode(MakeNode("F:1")).Children().AddNode(MakeRecipe("R:1:3", "Stout"));
    TWTree tree;
    tree.AddNode(std::move(root));
    EXPECT_EQ(tree.Count(), 3U);
    ExpectConsistent(tree);
}

TEST(TWTree, TakesEachKeyOnce) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    TWNode& first = root.Children().AddNode(MakeNode("F:1"));
    auto second = MakeNode("F:1");
    EXPECT_EQ(ErrorOf([&] { root.Children().AddNode(std::move(second)); }),
              "TWTree.AddNode: Node key already exists in tree.");
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->Tree(), nullptr);
    EXPECT_EQ(second->Parent(), nullptr);
    EXPECT_EQ(tree.Nodes("F:1"), &first);
    ExpectConsistent(tree);
}

TEST(TWTree, TakesAllOfASubtreeOrNothing) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    root.Children().AddNode(MakeNode("F:3"));
    auto top = MakeNode("F:1");
    top->Children().AddNode(MakeNode("F:2")).Children().AddNode(MakeNode("F:3"));
    top->Children().AddNode(MakeNode("F:4"));
    EXPECT_EQ(ErrorOf([&] { root.Children().AddNode(std::move(top)); }),
              "TWTree.AddNode: Node key already exists in tree.");
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(Below(*top), (Lines{"F:1 ", "  F:2 ", "    F:3 ", "  F:4 "}));
    EXPECT_EQ(top->Children().Item(0).Tree(), nullptr);
    EXPECT_EQ(tree.Count(), 2U);
    ExpectConsistent(tree);
    // The failure has left nothing behind.
    root.Clear();
    root.Children().AddNode(std::move(top));
    EXPECT_EQ(tree.Count(), 5U);
    ExpectConsistent(tree);
}

TEST(TWTree, RemovesANodeWithEverythingBelowFromTheLookUp) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    TWNode& folder = root.Children().AddNode(MakeNode("F:1"));
    folder.Children().AddNode(MakeRecipe("R:1:3", "Stout"));
    EXPECT_EQ(tree.RemoveNode(folder), nullptr);
    EXPECT_FALSE(tree.NodeExists("F:1"));
    EXPECT_FALSE(tree.NodeExists("R:1:3"));
    EXPECT_EQ(tree.Count(), 1U);
    EXPECT_EQ(ErrorOf([&] { tree.RemoveNode(folder); }),
              "TWTree.RemoveNode: Node to remove does not exist in tree.");
}

TEST(TWTree, RemovesByIdentity) {
    TWTree tree;
    tree.AddNode(MakeNode("X:DB"));
    const auto namesake = MakeNode("X:DB");
    EXPECT_EQ(ErrorOf([&] { tree.RemoveNode(*namesake); }),
              "TWTree.RemoveNode: Node to remove does not exist in tree.");
    EXPECT_TRUE(tree.NodeExists("X:DB"));
}

TEST(TWTree, HandsARemovedRootOver) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    root.Children().AddNode(MakeNode("F:1"));
    const auto removed = tree.RemoveNode(root);
    EXPECT_EQ(removed.get(), &root);
    EXPECT_EQ(removed->Tree(), nullptr);
    EXPECT_EQ(tree.Root(), nullptr);
    EXPECT_EQ(tree.Count(), 0U);
    tree.AddNode(MakeNode("X:DB"));
    EXPECT_EQ(tree.Count(), 1U);
}

TEST(TWTree, ClearLeavesItEmpty) {
    TWTree tree;
    tree.AddNode(MakeNode("X:DB")).Children().AddNode(MakeNode("F:1"));
    tree.Clear();
    EXPECT_EQ(tree.Root(), nullptr);
    EXPECT_EQ(tree.Count(), 0U);
    EXPECT_FALSE(tree.NodeExists("F:1"));
    tree.Clear();
    tree.AddNode(MakeNode("F:1"));
    ExpectConsistent(tree);
}

TEST(TWTree, LooksKeysUpLetterForLetter) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    root.Children().AddNode(MakeNode("S:Ale:1"));
    root.Children().AddNode(MakeNode(""));
    EXPECT_TRUE(tree.NodeExists("S:Ale:1"));
    EXPECT_FALSE(tree.NodeExists("S:ale:1"));
    EXPECT_FALSE(tree.NodeExists("x:db"));
    EXPECT_FALSE(tree.NodeExists("X:DB "));
    EXPECT_TRUE(tree.NodeExists(""));
}

TEST(TWTree, HasNothingToReadWithoutAMainDatabase) {
    TWTree tree;
    EXPECT_EQ(ErrorOf([&] { tree.InitFromDatabase(); }),
              "TWTree.InitFromDatabase: There is no main database to read.");
}

TEST(TWTree, MovesADeepSubtreeAndDropsIt) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    TWNode* deepest = &root;
    for (int i = 1; i <= 100000; ++i)
        deepest = &deepest->Children().AddNode(MakeNode("F:" + std::to_string(i)));
    auto top = root.Children().Remove(0, true);
    EXPECT_EQ(tree.Count(), 1U);
    root.Children().AddNode(std::move(top));
    EXPECT_EQ(tree.Count(), 100001U);
    ExpectConsistent(tree);
    RecordingView view;
    tree.PopulateTreeViewForRecipeExplorer(view);
    EXPECT_EQ(view.lines.size(), 100002U);
    root.Clear();
    EXPECT_EQ(tree.Count(), 1U);
}

// Compares the look-up with a map while keys of both forms are added and removed.
TEST(TWTree, FindsWhatIsThereThroughThousandsOfChanges) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    tree.SetSorted(false);
    std::map<std::string, TWNode*> expected = {{"X:DB", &root}};
    std::mt19937 random(11);
    for (int step = 0; step < 40000; ++step) {
        std::string key = "R:" + std::to_string(random() % 300) + ":" + std::to_string(random() % 5);
        if (random() % 4 == 0) key = "S:style " + std::to_string(random() % 100) + ":1";
        const auto known = expected.find(key);
        ASSERT_EQ(tree.Nodes(key), known == expected.end() ? nullptr : known->second) << key;
        if (known == expected.end() && random() % 3 != 0) {
            expected[key] = &root.Children().AddNode(MakeNode(key));
        } else if (known != expected.end() && random() % 2 == 0) {
            root.Children().RemoveNode(*known->second);
            expected.erase(known);
        }
        ASSERT_EQ(tree.Count(), expected.size());
    }
    for (const auto& [key, node] : expected) ASSERT_EQ(tree.Nodes(key), node);
}

}  // namespace
}  // namespace tw::test

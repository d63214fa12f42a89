#include "tree/TWNodes.h"

#include <gtest/gtest.h>

#include "TreeTest.h"

namespace tw::test {
namespace {

// An owner of a collection that records its callbacks and the number of nodes in the collection at each.
class RecordingOwner : public TWNodesOwner {
  public:
    void AddingNode(TWNode& node) override {
        if (refuses) throw Error("Owner", "refused", 1);
        log.emplace_back("adding " + std::string(node.Name()) + " to " + std::to_string(nodes.Count()));
    }
    void NodeRemoved(TWNode& node) override {
        log.emplace_back("removed " + std::string(node.Name()) + " leaves " + std::to_string(nodes.Count()));
    }
    bool Sorted() const override { return sorted; }

    TWNode& Add(std::string_view name) { return nodes.AddNode(MakeNode("", name)); }

    bool sorted = false;
    bool refuses = false;
    Lines log;
    TWNodes nodes{*this};
};

TEST(TWNodes, RaisesAddingBeforeTheNodeGoesInAndRemovedAfterItWentOut) {
    RecordingOwner owner;
    owner.Add("a");
    owner.Add("b");
    EXPECT_EQ(owner.nodes.Remove(0)->Name(), "a");
    EXPECT_EQ(owner.log, (Lines{"adding a to 0", "adding b to 1", "removed a leaves 1"}));
}

TEST(TWNodes, StaysAsItWasWhenItsOwnerRefuses) {
    RecordingOwner owner;
    owner.Add("a");
    owner.refuses = true;
    auto node = MakeNode("", "b");
    EXPECT_EQ(ErrorOf([&] { owner.nodes.AddNode(std::move(node)); }), "Owner: refused");
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->Name(), "b");
    EXPECT_EQ(Names(owner.nodes), (Lines{"a"}));
}

TEST(TWNodes, CountsFromZero) {
    RecordingOwner owner;
    owner.Add("a");
    owner.Add("b");
    EXPECT_EQ(owner.nodes.Count(), 2U);
    EXPECT_EQ(owner.nodes.Item(0).Name(), "a");
    EXPECT_EQ(owner.nodes.Item(1).Name(), "b");
    EXPECT_EQ(ErrorOf([&] { owner.nodes.Item(2); }), "TWNodes.Item: Subscript out of range");
    EXPECT_EQ(ErrorOf([&] { owner.nodes.Remove(2); }), "TWNodes.Remove: Subscript out of range");
}

TEST(TWNodes, AddsAtTheEndWhenNotSorted) {
    RecordingOwner owner;
    for (const char* name : {"c", "a", "b"}) owner.Add(name);
    EXPECT_EQ(Names(owner.nodes), (Lines{"c", "a", "b"}));
}

TEST(TWNodes, AddsInOrderWhenSorted) {
    RecordingOwner owner;
    owner.sorted = true;
    for (const char* name : {"c", "A", "b", "", "D", "B"}) owner.Add(name);
    EXPECT_EQ(Names(owner.nodes), (Lines{"", "A", "b", "B", "c", "D"}));
}

TEST(TWNodes, AddsEqualNodesBehindThoseThatAreThere) {
    RecordingOwner owner;
    owner.sorted = true;
    for (const char* name : {"ale", "Ale", "zz", "aLe", "ALE"}) owner.Add(name);
    EXPECT_EQ(Names(owner.nodes), (Lines{"ale", "Ale", "aLe", "ALE", "zz"}));
}

// The search from the front stops at the first node that sorts after the new one, even if
// a smaller one follows.
TEST(TWNodes, AddsBeforeTheFirstNodeThatSortsBehindAlsoWhereTheOthersAreOutOfOrder) {
    RecordingOwner owner;
    for (const char* name : {"m", "z", "a", "y"}) owner.Add(name);
    owner.sorted = true;
    owner.Add("n");
    EXPECT_EQ(Names(owner.nodes), (Lines{"m", "n", "z", "a", "y"}));
    owner.Add("zz");
    EXPECT_EQ(Names(owner.nodes), (Lines{"m", "n", "z", "a", "y", "zz"}));
    owner.Add("b");
    EXPECT_EQ(Names(owner.nodes), (Lines{"b", "m", "n", "z", "a", "y", "zz"}));
}

TEST(TWNodes, AddItemMakesTheNode) {
    RecordingOwner owner;
    const TWNode& recipe = owner.nodes.AddItem("Stout", "R:1:0", "document", "document", true);
    EXPECT_EQ(recipe.Name(), "Stout");
    EXPECT_EQ(recipe.Key(), "R:1:0");
    EXPECT_TRUE(recipe.IsDocument());
    EXPECT_FALSE(recipe.IsStyle());
    const TWNode& style = owner.nodes.AddItem("Ale", "S:1:0", "style open", "style closed", false, true);
    EXPECT_EQ(style.IconOpen(), "style open");
    EXPECT_EQ(style.IconClosed(), "style closed");
    EXPECT_TRUE(style.IsStyle());
    EXPECT_EQ(&owner.nodes.Item(1), &style);
    EXPECT_EQ(ErrorOf([&] { owner.nodes.AddItem("x", "y", "", "", true, true); }),
              "TWNode.[PUT]IsStyle: Node cannot be both a document and a style.");
    EXPECT_EQ(owner.nodes.Count(), 2U);
}

TEST(TWNodes, RemoveNodeGoesByIdentity) {
    RecordingOwner owner;
    owner.Add("a");
    TWNode& second = owner.Add("a");
    EXPECT_EQ(owner.nodes.RemoveNode(second).get(), &second);
    EXPECT_EQ(owner.nodes.Count(), 1U);
    const TWNode stranger;
    EXPECT_EQ(ErrorOf([&] { owner.nodes.RemoveNode(stranger); }),
              "TWNodes.RemoveNode: Node to be removed does not exist in collection.");
    EXPECT_EQ(owner.nodes.Count(), 1U);
}

TEST(TWNodes, RemoveClearsTheNodeUnlessItIsKept) {
    RecordingOwner owner;
    owner.Add("kept").Children().AddNode(MakeNode("F:1"));
    owner.Add("cleared").Children().AddNode(MakeNode("F:2"));
    EXPECT_TRUE(owner.nodes.Remove(0, true)->HasChildren());
    EXPECT_FALSE(owner.nodes.Remove(0)->HasChildren());
}

TEST(TWNodes, RemoveAllRaisesTheEventForEachNode) {
    RecordingOwner owner;
    owner.Add("a").Children().AddNode(MakeNode("F:1"));
    owner.Add("b");
    owner.log.clear();
    owner.nodes.RemoveAll();
    EXPECT_EQ(owner.log, (Lines{"removed b leaves 1", "removed a leaves 0"}));
    EXPECT_EQ(owner.nodes.Count(), 0U);
}

TEST(TWNodes, SortKeepsEqualNodesInTheirOrder) {
    RecordingOwner owner;
    for (const char* name : {"b", "A", "B", "c", "a", ""}) owner.Add(name);
    owner.nodes.Sort();
    EXPECT_EQ(Names(owner.nodes), (Lines{"", "A", "a", "b", "B", "c"}));
    owner.nodes.Sort();
    EXPECT_EQ(Names(owner.nodes), (Lines{"", "A", "a", "b", "B", "c"}));
}

TEST(TWNodes, SortsNothingAndOne) {
    RecordingOwner owner;
    owner.nodes.Sort();
    owner.Add("a");
    owner.nodes.Sort();
    EXPECT_EQ(Names(owner.nodes), (Lines{"a"}));
}

// The collection caches that it is sorted, so it must notice every change of the order.
TEST(TWNodes, SortSeesWhatChangedSinceTheLast) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    for (const char* key : {"a", "b", "c"}) root.Children().AddNode(MakeNode(key, key));
    root.Children().Sort();
    tree.SetSorted(false);
    root.Children().Item(0).SetName("z");
    EXPECT_EQ(Names(root.Children()), (Lines{"z", "b", "c"}));
    root.Children().Sort();
    EXPECT_EQ(Names(root.Children()), (Lines{"b", "c", "z"}));
    root.Children().Item(0).SetIconClosed("sysfolder closed");
    root.Children().Sort();
    EXPECT_EQ(Names(root.Children()), (Lines{"c", "z", "b"}));
    root.Children().Item(0).SetIsStyle(true);
    root.Children().Sort();
    EXPECT_EQ(Names(root.Children()), (Lines{"z", "b", "c"}));
    root.Children().Item(0).SetIsDocument(true);
    root.Children().Sort();
    EXPECT_EQ(Names(root.Children()), (Lines{"b", "c", "z"}));
}

class Siblings : public testing::Test {
  protected:
    Siblings() : root(tree.AddNode(MakeNode("X:DB"))) {}
    void Add(const Lines& names) {
        for (const std::string& name : names)
            root.Children().AddNode(MakeNode("F:" + std::to_string(root.Children().Count() + 1), name));
    }
    Lines Keys() const {
        Lines keys;
        for (const auto& node : root.Children()) keys.push_back(node->Key());
        return keys;
    }

    TWTree tree;
    TWNode& root;
};

TEST_F(Siblings, AreSortedAnewWhenOneIsRenamed) {
    Add({"b", "d", "f", "h"});
    tree.Nodes("F:2")->SetName("G");
    EXPECT_EQ(Names(root.Children()), (Lines{"b", "f", "G", "h"}));
    tree.Nodes("F:2")->SetName("a");
    EXPECT_EQ(Names(root.Children()), (Lines{"a", "b", "f", "h"}));
    tree.Nodes("F:2")->SetName("z");
    EXPECT_EQ(Names(root.Children()), (Lines{"b", "f", "h", "z"}));
    tree.Nodes("F:3")->SetName("F");
    EXPECT_EQ(Names(root.Children()), (Lines{"b", "F", "h", "z"}));
}

// Nodes with equal names keep the order that they had before the change.
TEST_F(Siblings, OfTheSameNameKeepTheirOrderWhenOneIsRenamed) {
    Add({"a", "m", "m", "z"});
    tree.Nodes("F:1")->SetName("M");  // comes from the front: before the others
    EXPECT_EQ(Keys(), (Lines{"F:1", "F:2", "F:3", "F:4"}));
    tree.Nodes("F:4")->SetName("M");  // comes from the back: after them
    EXPECT_EQ(Keys(), (Lines{"F:1", "F:2", "F:3", "F:4"}));
    tree.Nodes("F:2")->SetName("m");
    EXPECT_EQ(Keys(), (Lines{"F:1", "F:2", "F:3", "F:4"}));
}

TEST_F(Siblings, OutOfOrderAreAllSortedWhenOneIsRenamed) {
    tree.SetSorted(false);
    Add({"z", "y", "x"});
    tree.SetSorted(true);
    EXPECT_EQ(Names(root.Children()), (Lines{"z", "y", "x"}));
    tree.Nodes("F:2")->SetName("a");
    EXPECT_EQ(Names(root.Children()), (Lines{"a", "x", "z"}));
}

TEST_F(Siblings, StayWhereTheyAreInATreeThatDoesNotSort) {
    tree.SetSorted(false);
    Add({"b", "a"});
    tree.Nodes("F:1")->SetName("c");
    EXPECT_EQ(Names(root.Children()), (Lines{"c", "a"}));
}

TEST_F(Siblings, StandFoldersFirstThenStylesThenRecipes) {
    root.Children().AddItem("a recipe", "R:1:3", "document", "document", true);
    root.Children().AddItem("A style", "S:1:1", "style open", "style closed", false, true);
    root.Children().AddItem("All", "F:-1", "sysfolder open", "sysfolder closed");
    root.Children().AddItem("zz", "F:9", "folder open", "folder closed");
    EXPECT_EQ(Names(root.Children()), (Lines{"zz", "All", "A style", "a recipe"}));
}

TEST_F(Siblings, OfAHundredThousandComeOutSortedFromAnyOrder) {
    constexpr int kCount = 100000;
    const auto nameOf = [](int number) {
        std::string digits = std::to_string(number);
        return std::string(6 - digits.size(), '0') + digits;
    };
    tree.SetSorted(false);
    // Sorted, reversed and all equal: the inputs for which a careless sort is quadratic or recurses deeply.
    for (int i = 0; i < kCount; ++i) root.Children().AddNode(MakeNode("F:" + std::to_string(i), nameOf(i)));
    root.Children().Sort();
    for (int i = 0; i < kCount; i += 997)
        ASSERT_EQ(root.Children().Item(static_cast<std::size_t>(i)).Name(), nameOf(i));

    for (int i = 0; i < kCount; ++i) tree.Nodes("F:" + std::to_string(i))->SetName(nameOf(kCount - 1 - i));
    root.Children().Sort();
    for (int i = 0; i < kCount; i += 997)
        ASSERT_EQ(root.Children().Item(static_cast<std::size_t>(i)).Key(),
                  "F:" + std::to_string(kCount - 1 - i));

    for (const auto& node : root.Children()) node->SetName("the same");
    root.Children().Sort();
    for (int i = 0; i < kCount; i += 997)
        ASSERT_EQ(root.Children().Item(static_cast<std::size_t>(i)).Key(),
                  "F:" + std::to_string(kCount - 1 - i));

    tree.SetSorted(true);
    tree.Nodes("F:5")->SetName("a");
    EXPECT_EQ(root.Children().Item(0).Key(), "F:5");
    root.Clear();
    EXPECT_EQ(tree.Count(), 1U);
}

TEST_F(Siblings, MovedElsewhereKeepWhatIsBelowThem) {
    Add({"a", "b"});
    TWNode& moved = *tree.Nodes("F:2");
    moved.Children().AddNode(MakeNode("F:20", "below")).Children().AddNode(MakeRecipe("R:1:3", "Stout"));
    auto node = root.Children().RemoveNode(moved, true);
    EXPECT_EQ(node->Parent(), nullptr);
    EXPECT_EQ(node->Tree(), nullptr);
    EXPECT_EQ(node->Children().Item(0).Tree(), nullptr);
    EXPECT_FALSE(tree.NodeExists("F:2"));
    EXPECT_FALSE(tree.NodeExists("R:1:3"));
    ExpectConsistent(tree);
    tree.Nodes("F:1")->Children().AddNode(std::move(node));
    EXPECT_EQ(All(tree), (Lines{"X:DB ", "  F:1 a", "    F:2 b", "      F:20 below", "        R:1:3 Stout"}));
    ExpectConsistent(tree);
}

TEST_F(Siblings, TakeNoNodeIntoItself) {
    auto above = MakeNode("F:1");
    TWNode& below = above->Children().AddNode(MakeNode("F:2")).Children().AddNode(MakeNode("F:3"));
    EXPECT_EQ(ErrorOf([&] { below.Children().AddNode(std::move(above)); }),
              "TWNode.Children: A node cannot stand below itself.");
    ASSERT_NE(above, nullptr);
    EXPECT_EQ(Below(*above), (Lines{"F:1 ", "  F:2 ", "    F:3 "}));
    auto alone = MakeNode("F:4");
    TWNodes& own = alone->Children();
    EXPECT_EQ(ErrorOf([&] { own.AddNode(std::move(alone)); }),
              "TWNode.Children: A node cannot stand below itself.");
}

}  // namespace
}  // namespace tw::test

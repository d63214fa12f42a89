#include "tree/TWNode.h"

#include <gtest/gtest.h>

#include "TreeTest.h"

namespace tw::test {
namespace {

TEST(TWNode, StartsBlank) {
    TWNode node;
    EXPECT_EQ(node.Name(), "");
    EXPECT_EQ(node.Key(), "");
    EXPECT_EQ(node.IconOpen(), "");
    EXPECT_EQ(node.IconClosed(), "");
    EXPECT_FALSE(node.IsDocument());
    EXPECT_FALSE(node.IsStyle());
    EXPECT_EQ(node.Tree(), nullptr);
    EXPECT_EQ(node.Parent(), nullptr);
    EXPECT_FALSE(node.HasChildren());
    EXPECT_EQ(node.Children().Count(), 0U);
    EXPECT_FALSE(node.Sorted());
}

TEST(TWNode, KeepsWhatIsSet) {
    TWNode node;
    node.SetName("Old Ale");
    node.SetKey("S:3:0");
    node.SetIconOpen("style open");
    node.SetIconClosed("an image of its own");
    node.SetIsStyle(true);
    EXPECT_EQ(node.Name(), "Old Ale");
    EXPECT_EQ(node.Key(), "S:3:0");
    EXPECT_EQ(node.IconOpen(), "style open");
    EXPECT_EQ(node.IconClosed(), "an image of its own");
    EXPECT_TRUE(node.IsStyle());
    node.SetIconClosed("document");
    EXPECT_EQ(node.IconClosed(), "document");
}

TEST(TWNode, TakesItsOwnTexts) {
    TWNode node;
    node.SetName("a name that is long enough for the heap");
    node.SetName(node.Name());
    EXPECT_EQ(node.Name(), "a name that is long enough for the heap");
    node.SetIconOpen("an image of its own, and a long one");
    node.SetIconOpen(node.IconOpen());
    EXPECT_EQ(node.IconOpen(), "an image of its own, and a long one");
}

TEST(TWNode, KeepsTheChildrenOnceMade) {
    TWNode node;
    EXPECT_EQ(&node.Children(), &node.Children());
}

TEST(TWNode, OfADocumentHasNoChildren) {
    TWNode node;
    node.SetIsDocument(true);
    EXPECT_EQ(ErrorOf([&] { node.Children(); }),
              "TWNode.[GET]Children: Document nodes cannot have children.");
    EXPECT_FALSE(node.HasChildren());
}

TEST(TWNode, DoesNotBecomeADocumentWithChildren) {
    TWNode node;
    node.Children().AddNode(MakeNode("F:1"));
    EXPECT_EQ(ErrorOf([&] { node.SetIsDocument(true); }),
              "TWNode.[PUT]IsDocument: Document nodes cannot have children.");
    EXPECT_FALSE(node.IsDocument());
    node.SetIsDocument(false);
    node.Clear();
    node.SetIsDocument(true);
    EXPECT_TRUE(node.IsDocument());
}

TEST(TWNode, RefusesChildrenAlsoThroughACollectionMadeBeforeItBecameADocument) {
    TWNode node;
    TWNodes& children = node.Children();
    node.SetIsDocument(true);
    auto child = MakeNode("F:1");
    EXPECT_EQ(ErrorOf([&] { children.AddNode(std::move(child)); }),
              "TWNode.[GET]Children: Document nodes cannot have children.");
    EXPECT_NE(child, nullptr);
}

TEST(TWNode, IsNeverDocumentAndStyle) {
    TWNode style;
    style.SetIsStyle(true);
    EXPECT_EQ(ErrorOf([&] { style.SetIsDocument(true); }),
              "TWNode.[PUT]IsDocument: Node cannot be both a document and a style.");
    TWNode document;
    document.SetIsDocument(true);
    EXPECT_EQ(ErrorOf([&] { document.SetIsStyle(true); }),
              "TWNode.[PUT]IsStyle: Node cannot be both a document and a style.");
    document.SetIsStyle(false);
    document.SetIsDocument(false);
    document.SetIsStyle(true);
    EXPECT_TRUE(document.IsStyle());
}

TEST(TWNode, KeepsItsKeyWhileInATree) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    TWNode& child = root.Children().AddNode(MakeNode("F:1"));
    EXPECT_EQ(ErrorOf([&] { child.SetKey("F:2"); }), "TWNode.[PUT]Key: Node already belongs to a tree.");
    EXPECT_EQ(child.Key(), "F:1");
    const auto removed = root.Children().RemoveNode(child);
    removed->SetKey("F:2");
    EXPECT_EQ(removed->Key(), "F:2");
}

TEST(TWNode, EntersOneTreeAlone) {
    TWTree tree, other;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    EXPECT_EQ(ErrorOf([&] { root.SetTree(other); }), "TWNode.[PUT]Tree: Node already belongs to a tree.");
    EXPECT_EQ(root.Tree(), &tree);
    TWNode loose;
    loose.SetTree(tree);
    EXPECT_EQ(loose.Tree(), &tree);
}

TEST(TWNode, HasOneParentAlone) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    TWNode first, second, child;
    EXPECT_EQ(ErrorOf([&] { root.SetParent(first); }), "TWNode.[PUT]Parent: Node already belongs to a tree.");
    child.SetParent(first);
    EXPECT_EQ(child.Parent(), &first);
    EXPECT_EQ(ErrorOf([&] { child.SetParent(second); }), "TWNode.[PUT]Parent: Node already has a parent.");
    EXPECT_EQ(child.Parent(), &first);
}

TEST(TWNode, GivesMisuseItsNumber) {
    TWNode node;
    node.SetIsDocument(true);
    try {
        node.Children();
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), kTreeMisuseNumber);
    }
}

TEST(TWNode, WithoutParentOnlyStoresItsName) {
    TWNode parent, child;
    child.SetName("alone");
    EXPECT_EQ(child.Name(), "alone");
    child.SetParent(parent);  // not in its collection
    child.SetName("still");
    EXPECT_EQ(child.Name(), "still");
}

TEST(TWNode, ReadsSortedFromItsTree) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    EXPECT_TRUE(root.Sorted());
    tree.SetSorted(false);
    EXPECT_FALSE(root.Sorted());
}

TEST(TWNode, ClearRemovesEverythingBelow) {
    TWTree tree;
    TWNode& root = tree.AddNode(MakeNode("X:DB"));
    TWNode& folder = root.Children().AddNode(MakeNode("F:1"));
    folder.Children().AddNode(MakeNode("F:2")).Children().AddNode(MakeRecipe("R:1:3", "Stout"));
    root.Children().AddNode(MakeNode("F:3"));
    folder.Clear();
    EXPECT_EQ(All(tree), (Lines{"X:DB ", "  F:1 ", "  F:3 "}));
    ExpectConsistent(tree);
    root.Clear();
    EXPECT_EQ(tree.Count(), 1U);
}

// Compares rank, then the text of the closed icon, then the name in upper case.
TEST(TWNode, ComparesByRankFirst) {
    TWNode folder, style, recipe;
    folder.SetName("c");
    folder.SetIconClosed("z");
    style.SetName("b");
    style.SetIconClosed("y");
    style.SetIsStyle(true);
    recipe.SetName("a");
    recipe.SetIconClosed("x");
    recipe.SetIsDocument(true);
    EXPECT_EQ(folder.Compare(style), -1);
    EXPECT_EQ(folder.Compare(recipe), -2);
    EXPECT_EQ(style.Compare(recipe), -1);
    EXPECT_EQ(recipe.Compare(folder), 2);
    EXPECT_EQ(style.Compare(folder), 1);
}

TEST(TWNode, ComparesUserFoldersBeforeSystemFolders) {
    TWNode user, system;
    user.SetName("zzz");
    user.SetIconClosed("folder closed");
    system.SetName("aaa");
    system.SetIconClosed("sysfolder closed");
    EXPECT_EQ(user.Compare(system), -1);
    EXPECT_EQ(system.Compare(user), 1);
}

TEST(TWNode, ComparesIconsLetterForLetter) {
    TWNode upper, lower, none;
    upper.SetIconClosed("Zebra");
    lower.SetIconClosed("apple");
    EXPECT_EQ(upper.Compare(lower), -1);
    EXPECT_EQ(lower.Compare(upper), 1);
    EXPECT_EQ(none.Compare(upper), -1);
    upper.SetIconClosed("apple");
    EXPECT_EQ(upper.Compare(lower), 0);
    // The open icon is not compared.
    upper.SetIconOpen("other");
    EXPECT_EQ(upper.Compare(lower), 0);
}

TEST(TWNode, ComparesNamesWithoutRegardToCase) {
    const auto compare = [](const char* a, const char* b) {
        return MakeNode("", a)->Compare(*MakeNode("", b));
    };
    EXPECT_EQ(compare("stout", "STOUT"), 0);
    EXPECT_EQ(compare("apple", "Banana"), -1);
    EXPECT_EQ(compare("Banana", "apple"), 1);
    EXPECT_EQ(compare("", "a"), -1);
    EXPECT_EQ(compare("ale", "ale "), -1);
    EXPECT_EQ(compare("M\u00e4rzen", "m\u00c4RZEN"), 0);
    // Names are compared in upper case, in which a letter sorts before "_"; in lower case
    // it would sort after it.
    EXPECT_EQ(compare("a", "_"), -1);
}

TEST(TWNode, GoesWithEverythingBelowHoweverDeep) {
    auto top = MakeNode("F:0");
    TWNode* deepest = top.get();
    for (int i = 1; i <= 200000; ++i)
        deepest = &deepest->Children().AddNode(MakeNode("F:" + std::to_string(i)));
    EXPECT_EQ(deepest->Key(), "F:200000");
    top.reset();
    SUCCEED();
}

}  // namespace
}  // namespace tw::test

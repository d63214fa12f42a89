#include "tree/NodeKey.h"

#include <gtest/gtest.h>
#include <set>

namespace tw::test {
namespace {

const std::vector<std::string> kTexts = {
    "",
    "X",
    "X:",
    "X:DB",
    "X:STYLE",
    "F:-1",
    "F:0",
    "F:00",
    "F:-0",
    "F:+1",
    "F: 1",
    "F:1 ",
    "F:1",
    "F:01",
    "f:1",
    "F::1",
    "F:1:",
    "F:1:2:3",
    "R:17:0",
    "R:17:3",
    "R:17:9",
    "R:17:10",
    "R:17:x",
    "R:17",
    "R:9223372036854775807:3",
    "R:9223372036854775808:3",
    "R:-9223372036854775808:3",
    "S:India Pale Ale:1",
    "S:0:1",
    "S:1.5:1",
    "S:a:b:1",
    "7:1:1",
    std::string("S:\0:1", 5),
    "S:" + std::string(10000, 'x') + ":1",
    "S:\xff\xfe:1",
};

TEST(NodeKey, GivesBackTheTextOfEveryKey) {
    for (const std::string& text : kTexts) EXPECT_EQ(NodeKey(text).Text(), text);
}

TEST(NodeKey, IsEqualForTheSameTextAlone) {
    for (const std::string& a : kTexts)
        for (const std::string& b : kTexts) EXPECT_EQ(NodeKey(a) == NodeKey(b), a == b) << a << " and " << b;
}

TEST(NodeKey, OfNumbersIsTheKeyOfTheirText) {
    EXPECT_EQ(NodeKey('F', -1).Text(), "F:-1");
    EXPECT_EQ(NodeKey('R', 17, 3).Text(), "R:17:3");
    EXPECT_TRUE(NodeKey('F', -1) == NodeKey(kAllRecipesKey));
    EXPECT_TRUE(NodeKey('S', 0, 1) == NodeKey(kNoStyleFolderKey));
    EXPECT_EQ(NodeKey('R', 17, 3).HashOfObject(), NodeKey("R:17:3").HashOfObject());
}

TEST(NodeKey, CopiesAndAssignsEveryForm) {
    const std::string text = "S:Old Ale:1";
    NodeKey key(text);
    const NodeKey copy(key);
    key = NodeKey('R', 5, 2);
    EXPECT_EQ(key.Text(), "R:5:2");
    EXPECT_EQ(copy.Text(), text);
    const NodeKey& itself = key;
    key = itself;
    EXPECT_EQ(key.Text(), "R:5:2");
    key = copy;
    EXPECT_EQ(key.Text(), text);
    key = NodeKey();
    EXPECT_EQ(key.Text(), "");
}

TEST(NodeKey, SpreadsNeighboursApart) {
    std::set<std::uint64_t> upper;
    for (int id = 0; id < 1000; ++id) upper.insert(NodeKey('R', id, 0).HashOfObject() >> 48);
    EXPECT_GT(upper.size(), 950U);
}

TEST(SharedText, HoldsAnyBytes) {
    EXPECT_EQ(SharedText().View(), "");
    EXPECT_EQ(SharedText("").View(), "");
    const std::string bytes("a\0b\xff", 4);
    EXPECT_EQ(SharedText(bytes).View(), bytes);
}

TEST(SharedText, OutlivesTheTextThatItWasCopiedFrom) {
    SharedText copy;
    {
        const SharedText original("Old Ale");
        copy = original;
        EXPECT_EQ(copy.View().data(), original.View().data());
    }
    EXPECT_EQ(copy.View(), "Old Ale");
    SharedText moved(std::move(copy));
    const SharedText& itself = moved;
    moved = itself;
    EXPECT_EQ(moved.View(), "Old Ale");
}

}  // namespace
}  // namespace tw::test

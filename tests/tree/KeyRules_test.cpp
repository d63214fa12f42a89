// Tests of the operations that a key allows.
#include "ObjectsTest.h"
#include "tree/DB_IO.h"

namespace tw::test {
namespace {

TEST(CanDeleteNode, TakesFoldersStylesAndRecipesOfTheBrewer) {
    for (const char* key : {"F:1", "G:12", "R:3:0", "R:3:3", "S:4:0", "S:4:1"}) {
        EXPECT_TRUE(CanDeleteNode(key)) << key;
        EXPECT_TRUE(CanRenameNode(key)) << key;
    }
}

TEST(CanDeleteNode, RefusesWhatTheProgramMakes) {
    for (const char* key : {"F:0", "F:-1", "G:0", "G:-1", "S:0:0", "S:0:1", "X:DB", "X:STYLE", ""}) {
        EXPECT_FALSE(CanDeleteNode(key)) << key;
        EXPECT_FALSE(CanRenameNode(key)) << key;
    }
}

// The rules use only the text of the key, so it need not name an object.
TEST(CanDeleteNode, IsATextRule) {
    for (const char* key : {"F:999999", "F", "Gx", "R", "S:0", "S:00:0"})
        EXPECT_TRUE(CanDeleteNode(key)) << key;
    for (const char* key : {"f:1", "Q:1", " F:1"}) EXPECT_FALSE(CanDeleteNode(key)) << key;
}

TEST(CanHoldFolders, TakesFoldersButThoseOfAll) {
    for (const char* key : {"F:0", "G:0", "F:5", "G:5"}) EXPECT_TRUE(CanHoldFolders(key)) << key;
    for (const char* key : {"F:-1", "G:-1", "X:STYLE", "X:DB", "S:1:0", "S:0:1", "R:1:3", ""})
        EXPECT_FALSE(CanHoldFolders(key)) << key;
}

TEST(CanDropOn, LetsAFolderIntoFoldersOfItsKind) {
    EXPECT_TRUE(CanDropOn("F:1", "F:2"));
    EXPECT_TRUE(CanDropOn("F:1", "F:0"));
    EXPECT_TRUE(CanDropOn("G:1", "G:2"));
    EXPECT_TRUE(CanDropOn("G:1", "G:0"));
    for (const char* dest : {"F:-1", "F:1", "G:1", "G:0", "S:1:0", "R:1:3", "X:DB", ""})
        EXPECT_FALSE(CanDropOn("F:1", dest)) << dest;
    for (const char* dest : {"G:-1", "G:1", "F:1", "F:0", "S:0:1", "R:1:3", "X:STYLE", ""})
        EXPECT_FALSE(CanDropOn("G:1", dest)) << dest;
}

TEST(CanDropOn, LetsARecipeIntoFoldersAndStyles) {
    for (const char* dest : {"F:0", "F:3", "S:1:0", "S:1:1", "S:0:0", "S:0:1"})
        EXPECT_TRUE(CanDropOn("R:1:2", dest)) << dest;
    for (const char* dest : {"F:-1", "G:0", "G:1", "R:2:0", "R:1:2", "X:DB", ""})
        EXPECT_FALSE(CanDropOn("R:1:2", dest)) << dest;
}

TEST(CanDropOn, LetsAStyleIntoStyleFolders) {
    EXPECT_TRUE(CanDropOn("S:1:0", "G:0"));
    EXPECT_TRUE(CanDropOn("S:1:1", "G:7"));
    for (const char* dest : {"G:-1", "F:0", "S:2:0", "R:1:0", "X:STYLE"})
        EXPECT_FALSE(CanDropOn("S:1:0", dest)) << dest;
}

TEST(CanDropOn, MovesNothingThatTheProgramMakes) {
    for (const char* source : {"X:DB", "X:STYLE", "F:-1", "F:0", "G:-1", "G:0", "S:0:0", "S:0:1", "", "Q:1"})
        for (const char* dest : {"F:1", "G:1", "S:1:0"}) EXPECT_FALSE(CanDropOn(source, dest)) << source;
}

TEST(IdOfKey, IsTheSecondField) {
    EXPECT_EQ(IdOfKey("F:12"), 12);
    EXPECT_EQ(IdOfKey("R:7:3"), 7);
    EXPECT_EQ(IdOfKey("F:-1"), -1);
    for (const char* key :
         {"", "F", "F:", "R::3", "F:x", "F:1x", "S:Ale:1", "F: 1", "F:99999999999999999999"})
        EXPECT_EQ(IdOfKey(key), kNoId) << key;
}

TEST_F(Objects, ASubFolderStandsBelowAndEachBelowItself) {
    const auto ale = Folder(0, "Ales");        // 1
    const auto stout = Folder(ale, "Stouts");  // 2
    Folder(0, "Lagers");                       // 3
    Recipe("Dry", stout);
    EXPECT_TRUE(io.IsSubFolder("F:1", "F:2"));
    EXPECT_TRUE(io.IsSubFolder("F:0", "F:2"));
    EXPECT_TRUE(io.IsSubFolder("F:1", "R:1:3"));
    EXPECT_TRUE(io.IsSubFolder("F:1", "F:1"));
    EXPECT_FALSE(io.IsSubFolder("F:2", "F:1"));
    EXPECT_FALSE(io.IsSubFolder("F:3", "F:2"));
    EXPECT_FALSE(io.IsSubFolder("F:99", "F:2"));
    EXPECT_FALSE(io.IsSubFolder("F:1", "F:99"));
}

}  // namespace
}  // namespace tw::test

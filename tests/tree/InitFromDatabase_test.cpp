#include <gtest/gtest.h>

#include "TreeTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

TEST(InitFromDatabase, BuildsTheSystemNodesOfAnEmptyDatabase) {
    MainTree main;
    EXPECT_EQ(main.Load(), (Lines{
                               "X:DB Recipe Database",
                               "  F:-1 All Recipes",
                               "  X:STYLE By Style",
                               "    G:-1 All Styles",
                               "      S:0:0 (None)",
                               "    G:0 My Style Folders",
                               "      S:0:1 (None)",
                               "  F:0 My Recipe Folders",
                           }));
    EXPECT_EQ(main.tree.SourceDatabase(), main.db.get());
    ExpectConsistent(main.tree);
}

TEST(InitFromDatabase, GivesEveryKindOfNodeItsIconsAndFlags) {
    MainTree main;
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'recipes', FALSE)");
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'styles', TRUE)");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 2)");
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Stout', 1, 1)");
    main.Load();
    const auto look = [&](const char* key) {
        const TWNode* const node = main.tree.Nodes(key);
        if (node == nullptr) return std::string("missing");
        return std::string(node->IconOpen()) + ", " + std::string(node->IconClosed()) +
               (node->IsDocument() ? ", document" : "") + (node->IsStyle() ? ", style" : "");
    };
    EXPECT_EQ(look("X:DB"), "database, database");
    for (const char* key : {"F:-1", "X:STYLE", "G:-1", "G:0", "F:0"})
        EXPECT_EQ(look(key), "sysfolder open, sysfolder closed") << key;
    for (const char* key : {"F:1", "G:2"}) EXPECT_EQ(look(key), "folder open, folder closed") << key;
    for (const char* key : {"S:0:0", "S:0:1", "S:1:0", "S:1:1"})
        EXPECT_EQ(look(key), "style open, style closed, style") << key;
    for (const char* key : {"R:1:0", "R:1:1", "R:1:2", "R:1:3"})
        EXPECT_EQ(look(key), "document, document, document") << key;
}

TEST(InitFromDatabase, ShowsARecipeFourTimesAndAStyleTwice) {
    MainTree main;
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Winter', FALSE)");     // 1
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (1, 'Dark', FALSE)");       // 2
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'British', TRUE)");     // 3
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (3, 'strong', TRUE)");      // 4
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 4)");                     // 1
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('bitter', 0)");                    // 2
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Old Badger', 1, 2)");  // 1
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('amber', 2, 0)");       // 2
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Mild', 0, 1)");        // 3
    EXPECT_EQ(main.Load(),
              (Lines{
                  "X:DB Recipe Database",     "  F:-1 All Recipes",       "    R:2:0 amber",
                  "    R:3:0 Mild",           "    R:1:0 Old Badger",     "  X:STYLE By Style",
                  "    G:-1 All Styles",      "      S:0:0 (None)",       "        R:3:1 Mild",
                  "      S:2:0 bitter",       "        R:2:1 amber",      "      S:1:0 Stout",
                  "        R:1:1 Old Badger", "    G:0 My Style Folders", "      G:3 British",
                  "        G:4 strong",       "          S:1:1 Stout",    "            R:1:2 Old Badger",
                  "      S:0:1 (None)",       "        R:3:2 Mild",       "      S:2:1 bitter",
                  "        R:2:2 amber",      "  F:0 My Recipe Folders",  "    F:1 Winter",
                  "      F:2 Dark",           "        R:1:3 Old Badger", "      R:3:3 Mild",
                  "    R:2:3 amber",
              }));
    ExpectConsistent(main.tree);
}

TEST(InitFromDatabase, OrdersNamesWithoutRegardToCaseAlsoBeyondAscii) {
    MainTree main;
    for (const char* name : {"zebra", "\u00e4rger", "Apple", "\u00c4RGER 2", "apple 2", "Zebra 2"})
        main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + SqlText(name) + ", 0, 0)");
    main.Load();
    for (const char* key : {"F:-1", "S:0:0", "S:0:1", "F:0"})
        EXPECT_EQ(Names(main.tree.Nodes(key)->Children()),
                  (Lines{"Apple", "apple 2", "zebra", "Zebra 2", "\u00e4rger", "\u00c4RGER 2"}))
            << key;
}

TEST(InitFromDatabase, StartsAnewAndSetsSortedBack) {
    MainTree main;
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Mild', 0, 0)");
    const Lines once = main.Load();
    EXPECT_TRUE(main.tree.Sorted());
    EXPECT_EQ(main.Load(), once);
    main.tree.SetSorted(false);
    main.Load();
    EXPECT_FALSE(main.tree.Sorted());
}

TEST(InitFromDatabase, LeavesATreeThatGoesOnInOrder) {
    MainTree main;
    for (const char* name : {"b", "d", "f"})
        main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + SqlText(name) + ", 0, 0)");
    main.Load();
    TWNodes& recipes = main.tree.Nodes("F:-1")->Children();
    recipes.AddItem("C", "R:4:0", "document", "document", true);
    main.tree.Nodes("R:1:0")->SetName("e");
    EXPECT_EQ(Names(recipes), (Lines{"C", "d", "e", "f"}));
}

// "(None)" is read before the styles, whatever their names are; the sort after a rename
// moves it to its place.
TEST(InitFromDatabase, PutsNoStyleBeforeTheStylesUntilTheyAreSorted) {
    MainTree main;
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('!first', 0)");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 0)");
    main.Load();
    TWNodes& styles = main.tree.Nodes("G:-1")->Children();
    EXPECT_EQ(Names(styles), (Lines{"(None)", "!first", "Ale"}));
    main.tree.Nodes("S:2:0")->SetName("Bock");
    EXPECT_EQ(Names(styles), (Lines{"!first", "(None)", "Bock"}));
}

TEST(InitFromDatabase, KeepsWhatItReadBeforeAStoreError) {
    MainTree main;
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 0)");
    main.db->ExecuteNative("DROP TABLE RECIPES");
    EXPECT_NE(ErrorOf([&] { main.tree.InitFromDatabase(); }), "no error");
    EXPECT_TRUE(main.tree.NodeExists("S:1:0"));
    EXPECT_TRUE(main.tree.Sorted());
    EXPECT_FALSE(main.tree.IsUpToDate());
    ExpectConsistent(main.tree);
}

TEST(Reload, ShowsTheDatabaseAnewAndGoesOnInOrder) {
    MainTree main;
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 0)");
    main.Load();
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Bock', 0)");
    main.tree.Reload();
    EXPECT_TRUE(main.tree.IsUpToDate());
    TWNodes& styles = main.tree.Nodes("G:-1")->Children();
    EXPECT_EQ(Names(styles), (Lines{"(None)", "Ale", "Bock"}));
    EXPECT_EQ(main.tree.SourceDatabase(), main.db.get());
    main.tree.Nodes("S:1:0")->SetName("Cider");
    EXPECT_EQ(Names(styles), (Lines{"(None)", "Bock", "Cider"}));
    ExpectConsistent(main.tree);
}

TEST(Reload, LeavesTheTreeAsItWasWhenTheDatabaseCannotBeRead) {
    MainTree main;
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 0)");
    main.Load();
    const Lines before = All(main.tree);
    main.db->ExecuteNative("DROP TABLE RECIPES");
    EXPECT_NE(ErrorOf([&] { main.tree.Reload(); }), "no error");
    EXPECT_EQ(All(main.tree), before);
    EXPECT_FALSE(main.tree.IsUpToDate());
    ExpectConsistent(main.tree);
}

class ExchangeFile : public testing::Test {
  protected:
    void Add(std::string_view name, std::string_view style) const {
        db->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME, FOLDER_ID) VALUES (" + SqlText(name) + ", " +
                    SqlText(style) + ", 17)");
    }
    Lines Load() {
        tree.InitFromDatabase(*db);
        return All(tree);
    }

    MainTree main;  // the program's own database, at the same time
    std::unique_ptr<Database> db = MakeExchangeDatabase();
    TWTree tree{main.db.get()};
};

TEST_F(ExchangeFile, HasStylesByNameAndNoFolders) {
    Add("Old Badger", "Stout");
    Add("amber", "");
    Add("Mild", "stout");
    Add("Copper", "bitter");
    db->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME) VALUES ('Zero', NULL)");
    EXPECT_EQ(Load(), (Lines{
                          "X:DB Recipe Database",
                          "  F:-1 All Recipes",
                          "    R:2:0 amber",
                          "    R:4:0 Copper",
                          "    R:3:0 Mild",
                          "    R:1:0 Old Badger",
                          "    R:5:0 Zero",
                          "  X:STYLE By Style",
                          "    S:0:0 (None)",
                          "      R:2:1 amber",
                          "      R:5:1 Zero",
                          "    S:bitter:1 bitter",
                          "      R:4:2 Copper",
                          "    S:Stout:1 Stout",
                          "      R:3:2 Mild",
                          "      R:1:2 Old Badger",
                      }));
    EXPECT_FALSE(tree.NodeExists("F:0"));
    EXPECT_FALSE(tree.NodeExists("G:-1"));
    EXPECT_TRUE(tree.Nodes("S:Stout:1")->IsStyle());
    EXPECT_EQ(tree.SourceDatabase(), db.get());
    ExpectConsistent(tree);
}

TEST_F(ExchangeFile, FindsTheRecipesOfAStyleWithAnApostrophe) {
    Add("Stout", "Brewer's 'Best'");
    EXPECT_EQ(Load().back(), "      R:1:2 Stout");
    EXPECT_EQ(tree.Nodes("R:1:2")->Parent()->Key(), "S:Brewer's 'Best':1");
}

TEST_F(ExchangeFile, TakesStyleNamesOfAnyKind) {
    const Lines names = {"0",
                         "17",
                         "a:b:1",
                         "a\"b",
                         " ",
                         "tab\there",
                         std::string("nul\0", 4),
                         "\u05e9\u05db\u05e8",
                         std::string(10000, 'x')};
    for (const std::string& name : names) Add("recipe " + name, name);
    Load();
    for (const std::string& name : names) {
        const TWNode* const style = tree.Nodes("S:" + name + ":1");
        ASSERT_NE(style, nullptr) << name;
        EXPECT_EQ(style->Name(), name);
        EXPECT_EQ(Names(tree.Nodes(style->Key())->Children()), (Lines{"recipe " + name}));
    }
    ExpectConsistent(tree);
}

TEST_F(ExchangeFile, ThatIsNoneRaisesTheStoresError) {
    const auto another = CreateMainDatabaseInMemory();
    EXPECT_NE(ErrorOf([&] { tree.InitFromDatabase(*another); }).find("STYLE_NAME"), std::string::npos);
    EXPECT_TRUE(tree.Sorted());
    ExpectConsistent(tree);
}

TEST_F(ExchangeFile, ShowsNothingWhereFoldersAreAskedFor) {
    Load();
    RecordingView view;
    EXPECT_EQ(tree.PopulateTreeViewWithRecipeFolders(view), TreeViewItem::Top);
    EXPECT_EQ(view.lines, (Lines{"clear"}));
}

}  // namespace
}  // namespace tw::test

// Tests with rows that the program never writes: the tree omits them and shows the rest.
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "TreeTest.h"

namespace tw::test {
namespace {

void AddFolder(const MainTree& main, int id, const std::string& parent, const std::string& name,
               bool style = false) {
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (" + std::to_string(id) + ", " +
                 parent + ", " + SqlText(name) + (style ? ", TRUE)" : ", FALSE)"));
}

void AddRecipe(const MainTree& main, const std::string& name, const std::string& style,
               const std::string& folder) {
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + name + ", " + style + ", " +
                 folder + ")");
}

TEST(BadData, ARecipeOfAnUnknownFolderStandsInNoFolder) {
    MainTree main;
    AddRecipe(main, "'Mild'", "0", "99");
    main.Load();
    EXPECT_TRUE(main.tree.NodeExists("R:1:0"));
    EXPECT_TRUE(main.tree.NodeExists("R:1:1"));
    EXPECT_TRUE(main.tree.NodeExists("R:1:2"));
    EXPECT_FALSE(main.tree.NodeExists("R:1:3"));
}

TEST(BadData, ARecipeOfAnUnknownStyleStandsUnderNoStyle) {
    MainTree main;
    AddRecipe(main, "'Mild'", "99", "0");
    main.Load();
    EXPECT_TRUE(main.tree.NodeExists("R:1:0"));
    EXPECT_FALSE(main.tree.NodeExists("R:1:1"));
    EXPECT_FALSE(main.tree.NodeExists("R:1:2"));
    EXPECT_TRUE(main.tree.NodeExists("R:1:3"));
}

TEST(BadData, AStyleOfAnUnknownFolderStandsUnderAllStylesAlone) {
    MainTree main;
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Ale', 99)");
    AddRecipe(main, "'Mild'", "1", "0");
    main.Load();
    EXPECT_TRUE(main.tree.NodeExists("S:1:0"));
    EXPECT_FALSE(main.tree.NodeExists("S:1:1"));
    EXPECT_TRUE(main.tree.NodeExists("R:1:1"));
    EXPECT_FALSE(main.tree.NodeExists("R:1:2"));
}

TEST(BadData, LinksThatAreNoNumberLeadNowhere) {
    MainTree main;
    for (const char* link : {"NULL", "'abc'", "0.5", "1e300", "9e999", "''"})
        AddRecipe(main, "'x'", link, link);
    main.Load();
    EXPECT_EQ(main.tree.Nodes("F:-1")->Children().Count(), 6U);
    for (const char* key : {"S:0:0", "S:0:1", "F:0"})
        EXPECT_FALSE(main.tree.Nodes(key)->HasChildren()) << key;
}

TEST(BadData, FoldersInARingAreNotReached) {
    MainTree main;
    AddFolder(main, 1, "2", "a");
    AddFolder(main, 2, "1", "b");
    AddFolder(main, 3, "3", "its own parent");
    AddFolder(main, 4, "1", "hangs on the ring");
    AddFolder(main, 5, "0", "good");
    AddFolder(main, 6, "7", "style ring", true);
    AddFolder(main, 7, "6", "style ring", true);
    AddRecipe(main, "'Mild'", "0", "4");
    main.Load();
    EXPECT_EQ(Below(*main.tree.Nodes("F:0")), (Lines{"F:0 My Recipe Folders", "  F:5 good"}));
    EXPECT_EQ(Names(main.tree.Nodes("G:0")->Children()), (Lines{"(None)"}));
    EXPECT_TRUE(main.tree.NodeExists("R:1:0"));
}

TEST(BadData, AFolderUnderAParentOfTheOtherKindIsNotReached) {
    MainTree main;
    AddFolder(main, 1, "0", "of recipes");
    AddFolder(main, 2, "1", "of styles", true);
    AddFolder(main, 3, "0", "of styles", true);
    AddFolder(main, 4, "3", "of recipes");
    main.Load();
    EXPECT_EQ(Below(*main.tree.Nodes("F:0")), (Lines{"F:0 My Recipe Folders", "  F:1 of recipes"}));
    EXPECT_FALSE(main.tree.NodeExists("G:2"));
    EXPECT_FALSE(main.tree.NodeExists("F:4"));
}

TEST(BadData, AFolderOfNeitherKindStandsNowhere) {
    MainTree main;
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (1, 0, 'x', NULL)");
    AddFolder(main, 2, "NULL", "without a parent");
    main.Load();
    EXPECT_FALSE(main.tree.NodeExists("F:1"));
    EXPECT_FALSE(main.tree.NodeExists("G:1"));
    EXPECT_FALSE(main.tree.NodeExists("F:2"));
}

// System nodes have these ids: a row with one of them would be its own descendant.
TEST(BadData, RowsWithTheIdsOfSystemNodesArePassedOver) {
    MainTree main;
    AddFolder(main, 0, "0", "a folder of id 0");
    AddFolder(main, 1, "0", "good");
    main.Execute("INSERT INTO STYLES (ID, NAME, FOLDER_ID) VALUES (0, 'a style of id 0', 0)");
    AddRecipe(main, "'Mild'", "0", "0");
    main.Load();
    EXPECT_EQ(Below(*main.tree.Nodes("F:0")), (Lines{"F:0 My Recipe Folders", "  F:1 good", "  R:1:3 Mild"}));
    EXPECT_EQ(Below(*main.tree.Nodes("G:-1")),
              (Lines{"G:-1 All Styles", "  S:0:0 (None)", "    R:1:1 Mild"}));
    ExpectConsistent(main.tree);
}

// A recipe whose name is a number must not be confused with the recipe of that id.
TEST(BadData, RowsOfNegativeIdsAreToldFromThoseOfTheirNames) {
    MainTree main;
    AddFolder(main, -1, "0", "the id of a system folder");
    AddFolder(main, -2, "0", "minus two");
    AddFolder(main, 5, "-2", "below");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (-7, '12', 0, -2)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (12, 'Mild', 0, -2)");
    main.Load();
    EXPECT_EQ(Below(*main.tree.Nodes("F:0")), (Lines{
                                                  "F:0 My Recipe Folders",
                                                  "  F:-2 minus two",
                                                  "    F:5 below",
                                                  "    R:-7:3 12",
                                                  "    R:12:3 Mild",
                                              }));
    EXPECT_EQ(Names(main.tree.Nodes("F:-1")->Children()), (Lines{"12", "Mild"}));
    ExpectConsistent(main.tree);
}

TEST(BadData, ANameOfNullIsEmpty) {
    MainTree main;
    main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, NULL, FALSE)");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES (NULL, 0)");
    AddRecipe(main, "NULL", "1", "1");
    AddRecipe(main, "''", "1", "1");
    AddRecipe(main, "'a'", "1", "1");
    main.Load();
    EXPECT_EQ(Below(*main.tree.Nodes("F:0")),
              (Lines{"F:0 My Recipe Folders", "  F:1 ", "    R:1:3 ", "    R:2:3 ", "    R:3:3 a"}));
    EXPECT_EQ(Names(main.tree.Nodes("S:1:0")->Children()), (Lines{"", "", "a"}));
    main.tree.Nodes("R:1:3")->SetName("b");
    EXPECT_EQ(Names(main.tree.Nodes("F:1")->Children()), (Lines{"", "a", "b"}));
}

TEST(BadData, TwoRowsOfOneNameStandBesideEachOther) {
    MainTree main;
    for (const char* name : {"'Mild'", "'mild'", "'Mild'"}) AddRecipe(main, name, "0", "0");
    main.Load();
    for (const char* key : {"F:-1", "S:0:0", "S:0:1", "F:0"})
        EXPECT_EQ(main.tree.Nodes(key)->Children().Count(), 3U) << key;
    ExpectConsistent(main.tree);
}

TEST(BadData, NamesComeThroughLetterForLetter) {
    const Lines names = {std::string(10000, 'x'),
                         "line\r\nbreak",
                         "tab\there",
                         "\x01\x1f\x7f",
                         "\u202eright to left\u202c",
                         "\u05e9\u05db\u05e8",
                         "\xff\xfe broken",
                         "R:1:0",
                         "  blanks  ",
                         "'",
                         "\"",
                         "\u0001"};
    MainTree main;
    for (const std::string& name : names) AddRecipe(main, SqlText(name), "0", "0");
    main.Load();
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(main.tree.Nodes("R:" + std::to_string(i + 1) + ":0")->Name(), names[i]);
    EXPECT_EQ(main.tree.Nodes("F:0")->Children().Count(), names.size());
    ExpectConsistent(main.tree);
}

TEST(BadData, FoldersAsDeepAsThereAreRowsLoadAndShowAndGo) {
    constexpr int kDepth = 50000;
    MainTree main;
    for (int i = 1; i <= kDepth; ++i) AddFolder(main, i, std::to_string(i - 1), "level");
    AddRecipe(main, "'Mild'", "0", std::to_string(kDepth));
    main.tree.InitFromDatabase();
    EXPECT_EQ(main.tree.Nodes("R:1:3")->Parent()->Key(), "F:50000");
    RecordingView view;
    main.tree.PopulateTreeViewForRecipeTree(view);
    EXPECT_EQ(view.lines.back(), "F:50000> R:1:3 Mild [document, document]");
    main.tree.Nodes("F:0")->Clear();
    EXPECT_FALSE(main.tree.NodeExists("F:50000"));
    main.tree.InitFromDatabase();
    EXPECT_TRUE(main.tree.NodeExists("F:50000"));
}

// Builds the tree the plain way: one query for each folder and each style, from the root down, depth first
// and recursive, so that it is easy to see that it is right.
class PlainTree {
  public:
    explicit PlainTree(Database& db) : db_(db) {
        Put(0, "X:DB", "Recipe Database");
        Put(1, "F:-1", "All Recipes");
        Fill(2, "SELECT NAME, ID FROM RECIPES ORDER BY NAME", 'R', "0");
        Put(1, "X:STYLE", "By Style");
        Put(2, "G:-1", "All Styles");
        Put(3, "S:0:0", "(None)");
        Fill(4, kNoStyle, 'R', "1");
        Fill(3, "SELECT NAME, ID FROM STYLES ORDER BY NAME", 'S', "1");
        Put(2, "G:0", "My Style Folders");
        Fill(3, "SELECT NAME, ID FROM FOLDERS WHERE STYLE AND PARENT_ID = 0 ORDER BY NAME", 'G', "2");
        Put(3, "S:0:1", "(None)");
        Fill(4, kNoStyle, 'R', "2");
        Fill(3, "SELECT NAME, ID FROM STYLES WHERE FOLDER_ID = 0 ORDER BY NAME", 'S', "2");
        Put(1, "F:0", "My Recipe Folders");
        Fill(2, "SELECT NAME, ID FROM FOLDERS WHERE NOT STYLE AND PARENT_ID = 0 ORDER BY NAME", 'F', "3");
        Fill(2, "SELECT NAME, ID FROM RECIPES WHERE FOLDER_ID = 0 ORDER BY NAME", 'R', "3");
    }
    Lines lines;

  private:
    static constexpr const char* kNoStyle = "SELECT NAME, ID FROM RECIPES WHERE STYLE_ID = 0 ORDER BY NAME";

    void Put(std::size_t level, const std::string& key, const std::string& name) {
        lines.push_back(std::string(2 * level, ' ') + key + " " + name);
    }
    void Fill(std::size_t level, const std::string& sql, char kind, const std::string& suffix) {
        for (Recordset rows = db_.OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
            const std::string id = rows.Fields("ID").Text();
            std::string key = std::string(1, kind) + ":" + id;
            if (kind == 'R') key += ":" + suffix;
            if (kind == 'S') key += suffix == "1" ? ":0" : ":1";
            Put(level, key, rows.Fields("NAME").Text());
            const std::string is = " = " + id + " ORDER BY NAME";
            if (kind == 'F') {
                Fill(level + 1, "SELECT NAME, ID FROM FOLDERS WHERE NOT STYLE AND PARENT_ID" + is, 'F',
                     suffix);
                Fill(level + 1, "SELECT NAME, ID FROM RECIPES WHERE FOLDER_ID" + is, 'R', "3");
            } else if (kind == 'G') {
                Fill(level + 1, "SELECT NAME, ID FROM FOLDERS WHERE STYLE AND PARENT_ID" + is, 'G', suffix);
                Fill(level + 1, "SELECT NAME, ID FROM STYLES WHERE FOLDER_ID" + is, 'S', suffix);
            } else if (kind == 'S') {
                Fill(level + 1, "SELECT NAME, ID FROM RECIPES WHERE STYLE_ID" + is, 'R', suffix);
            }
        }
    }

    Database& db_;
};

TEST(BadData, EveryDatabaseGivesTheTreeOfTheSingleReads) {
    std::mt19937 random(23);
    const auto below = [&](unsigned bound) { return std::to_string(random() % bound); };
    for (int round = 0; round < 60; ++round) {
        MainTree main;
        const unsigned folders = random() % 25, styles = random() % 12, recipes = random() % 80;
        // Random links also lead beyond the last row, to folders of the wrong kind, and into cycles.
        const auto link = [&](unsigned bound) {
            return random() % 15 == 0 ? std::string("NULL") : below(bound + 3);
        };
        for (unsigned i = 0; i < folders; ++i)
            main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (" + link(folders) + ", 'f" +
                         below(9) + std::to_string(i) + "', " + (random() % 2 == 0 ? "TRUE)" : "FALSE)"));
        for (unsigned i = 0; i < styles; ++i) {
            const std::string name = (random() % 2 == 0 ? std::string("!") : std::string("S")) + below(9);
            main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES (" + SqlText(name + std::to_string(i)) +
                         ", " + link(folders) + ")");
        }
        for (unsigned i = 0; i < recipes; ++i) {
            const std::string name = (random() % 2 == 0 ? std::string("r") : std::string("R")) + below(30);
            AddRecipe(main, SqlText(name + " " + std::to_string(i)), link(styles), link(folders));
        }
        for (int gone = 0; gone < 5; ++gone) main.Execute("DELETE FROM RECIPES WHERE ID = " + below(80));
        ASSERT_EQ(main.Load(), PlainTree(*main.db).lines) << "round " << round;
        ExpectConsistent(main.tree);
    }
}

}  // namespace
}  // namespace tw::test

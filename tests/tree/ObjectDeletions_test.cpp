// Tests of deleting objects together with those that depend on them, and of the state after
// an error in the middle.
#include "ObjectsTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Deletions : public Objects {
  protected:
    Deletions() {
        Folder(0, "Ales");          // 1
        Folder(1, "Stouts");        // 2
        Folder(2, "Imperial");      // 3
        Folder(1, "Bitters");       // 4
        StyleFolder(0, "British");  // 5
        StyleFolder(5, "Dark");     // 6
        Style("Porter", 6);         // 1
        Style("Mild", 5);           // 2
        Recipe("Dry", 2, 1);        // 1
        Recipe("Tsar", 3, 1);       // 2
        Recipe("Best", 4, 2);       // 3
        Recipe("Session", 1);       // 4
        Recipe("Other", 0, 1);      // 5
        Touched();
        Notices();
    }
};

TEST_F(Deletions, TakeARecipeOutOfAllItsPlaces) {
    io.DeleteObject("R:1:2");
    for (const char* key : {"R:1:0", "R:1:1", "R:1:2", "R:1:3"}) EXPECT_FALSE(main.tree.NodeExists(key));
    EXPECT_THAT(Notices(), ElementsAre("deleted Dry", "deletion ended"));
    EXPECT_THAT(Touched(), IsEmpty());
    ExpectInStep();
}

TEST_F(Deletions, TakeAFolderWithAllBelowItDepthFirst) {
    io.DeleteObject("F:1");
    EXPECT_EQ(Tree("F:0"), Lines{"R:5:3 Other"});
    EXPECT_EQ(Tree("F:-1"), Lines{"R:5:0 Other"});
    // Folders are deleted in the order of their names, as the database returns them.
    EXPECT_THAT(Notices(), ElementsAre("deleted Best", "folder deleted 4", "deleted Tsar", "folder deleted 3",
                                       "deleted Dry", "folder deleted 2", "deleted Session",
                                       "folder deleted 1", "deletion ended"));
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES"), ElementsAre("Other"));
    EXPECT_THAT(Select("SELECT ID FROM FOLDERS WHERE NOT STYLE"), IsEmpty());
    EXPECT_THAT(Touched(), IsEmpty());
    ExpectInStep();
}

TEST_F(Deletions, OfAFolderRunTheDesignedStatements) {
    Lines statements;
    main.db->SetStatementHook([&](std::string_view sql) { statements.emplace_back(sql); });
    io.DeleteObject("F:4");
    main.db->SetStatementHook(nullptr);
    EXPECT_THAT(statements,
                ElementsAre("SELECT ID FROM FOLDERS WHERE NOT STYLE AND PARENT_ID = 4",
                            "SELECT ID FROM RECIPES WHERE FOLDER_ID = 4", "DELETE FROM RECIPES WHERE ID = 3",
                            "DELETE FROM RECIPE_GRAINS WHERE RECIPE_ID = 3",
                            "DELETE FROM RECIPE_HOPS WHERE RECIPE_ID = 3",
                            "DELETE FROM RECIPE_ADJUNCTS WHERE RECIPE_ID = 3",
                            "DELETE FROM RECIPE_LOG WHERE RECIPE_ID = 3",
                            "DELETE FROM FOLDERS WHERE NOT STYLE AND ID = 4"));
}

TEST_F(Deletions, OfAStyleLeaveItsRecipesWithoutOne) {
    io.DeleteObject("S:1:0");
    EXPECT_EQ(Tree("S:0:0"), (Lines{"R:1:1 Dry", "R:5:1 Other", "R:4:1 Session", "R:2:1 Tsar"}));
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES WHERE STYLE_ID = 0 ORDER BY NAME"),
                ElementsAre("Dry", "Other", "Session", "Tsar"));
    EXPECT_THAT(Notices(), ElementsAre("new style Dry 0", "new style Other 0", "new style Tsar 0",
                                       "style deleted 1", "deletion ended"));
    ExpectInStep();
}

TEST_F(Deletions, OfAStyleFolderTakeItsStyles) {
    io.DeleteObject("G:5");
    EXPECT_EQ(Tree("G:0"), (Lines{"S:0:1 (None)", "  R:3:2 Best", "  R:1:2 Dry", "  R:5:2 Other",
                                  "  R:4:2 Session", "  R:2:2 Tsar"}));
    EXPECT_THAT(Notices(),
                ElementsAre("new style Dry 0", "new style Other 0", "new style Tsar 0", "style deleted 1",
                            "new style Best 0", "style deleted 2", "deletion ended"));
    EXPECT_THAT(Select("SELECT COUNT(*) FROM STYLES"), ElementsAre("0"));
    EXPECT_THAT(Select("SELECT COUNT(*) FROM FOLDERS WHERE STYLE"), ElementsAre("0"));
    ExpectInStep();
}

TEST_F(Deletions, LeaveWhatTheProgramMakesAndWhatIsMissing) {
    const Lines before = All(main.tree);
    for (const char* key : {"F:0", "F:-1", "G:0", "G:-1", "S:0:0", "S:0:1", "X:DB", "X:STYLE", "", "Q:1",
                            "F:99", "G:1", "R:99:0", "S:99:0", "S:x:0", "F:", "R:0:0", "S:0"})
        io.DeleteObject(key);
    io.DeleteRecipeFolder(0);
    io.DeleteStyleFolder(-1);
    io.DeleteStyleById(0);
    io.DeleteRecipeById(-1);
    EXPECT_EQ(All(main.tree), before);
    EXPECT_THAT(Notices(), IsEmpty());
    ExpectInStep();
}

// Recipes in a folder that does not exist are not deleted with that folder.
TEST_F(Deletions, OfAFolderThatIsMissingKeepTheRecipesThatNameIt) {
    main.Execute("UPDATE RECIPES SET FOLDER_ID = 99 WHERE ID = 5");
    main.tree.InitFromDatabase();
    io.DeleteObject("F:99");
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES WHERE ID = 5"), ElementsAre("Other"));
    io.DeleteObject("R:5:0");
    ExpectInStep();
}

TEST_F(Deletions, EndInARingOfFolders) {
    main.Execute("UPDATE FOLDERS SET PARENT_ID = 3 WHERE ID = 1");  // without notifying the tree
    io.DeleteObject("F:1");
    EXPECT_THAT(Select("SELECT ID FROM FOLDERS WHERE NOT STYLE"), IsEmpty());
    ExpectInStep();
}

TEST_F(Deletions, GoDownAsDeepAsFoldersLie) {
    constexpr int kDepth = 20000;
    {
        UnitOfWork unit(*main.db);
        for (int i = 0; i < kDepth; ++i)
            main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (" +
                         std::to_string(1001 + i) + ", " + std::to_string(i == 0 ? 1 : 1000 + i) +
                         ", 'deep', FALSE)");
    }
    main.tree.InitFromDatabase();
    io.DeleteObject("F:1001");
    EXPECT_EQ(Notices().size(), static_cast<std::size_t>(kDepth + 1));
    ExpectInStep();
}

TEST_F(Deletions, TellTheNoticeAfterTheDatabaseAndTheTree) {
    listener.look = [&] {
        if (listener.log.size() > 1) return;
        EXPECT_THAT(Select("SELECT ID FROM RECIPES WHERE ID = 1"), IsEmpty());
        EXPECT_FALSE(main.tree.NodeExists("R:1:0"));
    };
    io.DeleteRecipeById(1);
    EXPECT_EQ(Notices().size(), 2U);
}

TEST_F(Deletions, FindARecipeThatTheTreeDoesNotShow) {
    main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('New', 0, 0)");
    io.DeleteRecipeByName(" NEW ");
    EXPECT_THAT(Notices(), ElementsAre("deleted New", "deletion ended"));
    ExpectInStep();
}

// Negative ids and 0, which the program never assigns to objects.
TEST_F(Objects, OfIdsThatTheProgramNeverGivesCanBeMovedRenamedAndDeleted) {
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (-4, 0, 'Cellar', FALSE)");
    main.Execute("INSERT INTO STYLES (ID, NAME, FOLDER_ID) VALUES (-3, 'Gose', 0)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (-5, '12', -3, -4)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (0, 'Nought', 0, 0)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (12, 'Mild', 0, 0)");
    main.tree.InitFromDatabase();
    EXPECT_TRUE(io.RenameObject("F:-4", "Barn"));
    EXPECT_TRUE(io.MoveObject("R:12:0", "F:-4"));
    EXPECT_TRUE(io.MoveObject("R:12:0", "S:-3:0"));
    EXPECT_TRUE(io.RenameObject("R:0:0", "Zero"));
    const std::string folder = io.CreateFolderObject("F:-4", "Shelf");
    EXPECT_TRUE(main.tree.NodeExists(folder));
    ExpectInStep();
    io.DeleteObject("R:-5:0");
    io.DeleteObject("R:0:3");
    EXPECT_THAT(Select("SELECT ID FROM RECIPES"), ElementsAre("12"));
    io.DeleteObject("S:-3:1");
    EXPECT_THAT(Select("SELECT STYLE_ID FROM RECIPES"), ElementsAre("0"));
    io.DeleteObject("F:-4");
    EXPECT_THAT(Select("SELECT ID FROM RECIPES"), IsEmpty());
    EXPECT_THAT(Select("SELECT ID FROM FOLDERS"), IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
    ExpectInStep();
}

TEST_F(Objects, WithoutANameCanBeDeleted) {
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (1, 0, NULL, FALSE)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (1, NULL, 0, 1)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (2, NULL, 0, 0)");
    main.tree.InitFromDatabase();
    io.DeleteObject("R:2:3");
    EXPECT_THAT(Select("SELECT ID FROM RECIPES"), ElementsAre("1"));
    io.DeleteObject("F:1");
    EXPECT_THAT(Select("SELECT ID FROM RECIPES"), IsEmpty());
    ExpectInStep();
}

// An invalid key does not delete the row of id -1, and an unknown name not the row of id 0.
TEST_F(Objects, AreNotDeletedForAnUnknownKeyOrName) {
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (-1, 'Mild', 0, 0)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (0, 'Bock', 0, 0)");
    main.tree.InitFromDatabase();
    io.DeleteObject("R:x:0");
    io.DeleteObject("R");
    io.DeleteRecipeByName("unknown");
    EXPECT_THAT(Select("SELECT ID FROM RECIPES ORDER BY ID"), ElementsAre("-1", "0"));
    io.DeleteRecipeByName(" BOCK ");
    EXPECT_THAT(Select("SELECT ID FROM RECIPES"), ElementsAre("-1"));
}

// Rows with the ids of "My Recipe Folders" and "All Recipes" are in the folder that is deleted.
TEST_F(Objects, OfASystemFolderStayWhenAFolderIsDeleted) {
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (5, 0, 'Ales', FALSE)");
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (0, 5, 'Nought', FALSE)");
    main.Execute("INSERT INTO FOLDERS (ID, PARENT_ID, NAME, STYLE) VALUES (-1, 5, 'Minus one', FALSE)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (1, 'Mild', 0, 0)");
    main.Execute("INSERT INTO RECIPES (ID, NAME, STYLE_ID, FOLDER_ID) VALUES (2, 'Bock', 0, 5)");
    main.tree.InitFromDatabase();
    io.DeleteObject("F:5");
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES"), ElementsAre("Mild"));
    EXPECT_EQ(Tree("F:0"), Lines{"R:1:3 Mild"});
    ExpectInStep();
}

class Failure : public Deletions {
  protected:
    // Runs operation again and again, with an error at its first statement, then at its second, and so on
    // until it succeeds. Rebuilds the rows and the tree before each run, and expects afterwards that the tree
    // matches the database.
    template <typename Operation>
    void FailAtEveryStatement(Operation operation) {
        std::size_t failures = 0;
        for (bool failed = true; failed; ++failures) {
            Rebuild();
            std::size_t count = 0;
            main.db->SetStatementHook([&](std::string_view) {
                if (count++ == failures) throw Error("Test", "the disk is on fire", 7);
            });
            try {
                operation();
            } catch (const Error& error) {
                EXPECT_EQ(error.Description(), "the disk is on fire");
            }
            main.db->SetStatementHook(nullptr);
            failed = count > failures;
            ExpectInStep();
        }
        EXPECT_GT(failures, 1U);
    }

  private:
    void Rebuild() {
        if (script_.empty()) {
            for (const TableSchema& table : MainSchema())
                if (table.name == "FOLDERS" || table.name == "RECIPES" || table.name == "STYLES") Keep(table);
        }
        main.db->ExecuteNative("DELETE FROM FOLDERS; DELETE FROM RECIPES; DELETE FROM STYLES;" + script_);
        main.tree.InitFromDatabase();
        outside.messages.log.clear();
    }
    void Keep(const TableSchema& table) {
        const std::string name(table.name);
        main.db->ExecuteNative("CREATE TEMP TABLE KEPT_" + name + " AS SELECT * FROM " + name);
        script_ += "INSERT INTO main." + name + " SELECT * FROM KEPT_" + name + ";";
    }
    std::string script_;
};

TEST_F(Failure, OfADeletionRisesAndLeavesTheTreeAsTheDatabase) {
    FailAtEveryStatement([&] { io.DeleteObject("F:1"); });
    FailAtEveryStatement([&] { io.DeleteObject("G:5"); });
    FailAtEveryStatement([&] { io.DeleteObject("S:1:1"); });
    FailAtEveryStatement([&] { io.DeleteObject("R:1:1"); });
}

TEST_F(Failure, OfADeletionLeavesWhatWasDoneBefore) {
    main.db->SetStatementHook([&](std::string_view sql) {
        if (sql == "DELETE FROM RECIPES WHERE ID = 1") throw Error("Test", "the disk is on fire", 7);
    });
    EXPECT_THROW(io.DeleteObject("F:1"), Error);
    main.db->SetStatementHook(nullptr);
    EXPECT_THAT(Notices(), ElementsAre("deleted Best", "folder deleted 4", "deleted Tsar", "folder deleted 3",
                                       "deletion ended"));
    EXPECT_THAT(Select("SELECT NAME FROM RECIPES ORDER BY NAME"), ElementsAre("Dry", "Other", "Session"));
    EXPECT_EQ(Tree("F:1"), (Lines{"F:2 Stouts", "  R:1:3 Dry", "R:4:3 Session"}));
}

TEST_F(Failure, OfAnyOtherOperationIsShownAndLeavesTheTreeAsTheDatabase) {
    const std::string text = "Test\r\nthe disk is on fire (7)";
    const auto fails = [&](const std::string& title, const std::function<bool()>& operation) {
        FailAtEveryStatement([&] {
            if (!operation()) {
                EXPECT_THAT(Boxes(), ElementsAre("[" + title + "] " + text));
            }
        });
    };
    fails("Error moving recipe folder", [&] { return io.MoveObject("F:2", "F:4"); });
    fails("Error moving style folder", [&] { return io.MoveObject("G:6", "G:0"); });
    fails("Error moving recipe to folder", [&] { return io.MoveObject("R:1:0", "F:4"); });
    fails("Error moving recipe to style", [&] { return io.MoveObject("R:1:0", "S:2:0"); });
    fails("Error moving style", [&] { return io.MoveObject("S:1:0", "G:5"); });
    fails("Error moving style", [&] { return io.MoveStyleToFolderByName("Porter", 5); });
    fails("Error renaming recipe folder", [&] { return io.RenameObject("F:2", "A"); });
    fails("Error renaming style folder", [&] { return io.RenameObject("G:6", "A"); });
    fails("Error renaming recipe", [&] { return io.RenameObject("R:1:0", "A"); });
    fails("Error renaming style", [&] { return io.RenameObject("S:1:0", "A"); });
    fails("Error creating new recipe folder", [&] { return !io.CreateFolderObject("F:1", "").empty(); });
    fails("Error creating new style folder", [&] { return io.CreateStyleFolder(5, "A") > 0; });
}

TEST_F(Failure, OfADiskThatStaysDeadLeavesTheTreeUntilTheDiskIsBack) {
    const Lines before = Tree("X:DB");
    main.db->SetStatementHook([](std::string_view) { throw Error("Database", "disk I/O error", 10); });
    EXPECT_FALSE(io.RenameRecipe(1, "Other"));
    EXPECT_EQ(Boxes(), Lines{"[Error renaming recipe] Database\r\ndisk I/O error (10)"});
    EXPECT_EQ(Tree("X:DB"), before);
    EXPECT_FALSE(main.tree.IsUpToDate());
    EXPECT_THROW(io.DeleteRecipeById(1), Error);
    EXPECT_EQ(Tree("X:DB"), before);
    main.db->SetStatementHook(nullptr);
    // The tree is not notified, as if an operation had made this change before its error.
    main.Execute("UPDATE RECIPES SET NAME = 'Changed' WHERE ID = 2");
    EXPECT_GE(io.CreateRecipeFolder(0, "New"), 0);
    EXPECT_TRUE(main.tree.IsUpToDate());
    EXPECT_EQ(main.tree.Nodes("R:2:0")->Name(), "Changed");
    ExpectInStep();
}

TEST_F(Failure, WithinAUnitOfTheCallersIsShownBehindIt) {
    int readings = 0;
    TreeObjects counted(main.tree, [&] { ++readings; });
    DB_IO within(*main.db, counted, outside.messages, outside.clock, listener);
    {
        const UnitOfWork unit(*main.db);
        bool isFull = false;
        main.db->SetStatementHook([&](std::string_view sql) {
            if (isFull || !sql.starts_with("DELETE FROM RECIPE_HOPS")) return;
            isFull = true;
            // SQLite itself rolls back when the disk is full.
            main.db->ExecuteNative("ROLLBACK");
            throw Error("Database", "database or disk is full", 13);
        });
        EXPECT_EQ(ErrorOf([&] { within.DeleteRecipeById(1); }), "Database: database or disk is full");
        main.db->SetStatementHook(nullptr);
        EXPECT_EQ(readings, 0);
        EXPECT_EQ(Notices(), Lines{});
    }
    EXPECT_EQ(readings, 1);
    EXPECT_EQ(Notices(), Lines{"deletion ended"});
    ExpectInStep();
}

TEST_F(Failure, IsSilentWhenAskedTo) {
    main.db->SetStatementHook([](std::string_view) { throw Error("Test", "the disk is on fire", 7); });
    EXPECT_FALSE(io.MoveObject("F:2", "F:4", Asking::Quietly));
    EXPECT_FALSE(io.RenameObject("R:1:0", "A", Asking::Quietly));
    EXPECT_EQ(io.CreateFolderObject("F:1", "", Asking::Quietly), "");
    EXPECT_EQ(io.CreateRecipeFolder(1, "", Asking::Quietly), -1);
    EXPECT_THAT(Boxes(), IsEmpty());
    main.db->SetStatementHook(nullptr);
}

}  // namespace
}  // namespace tw::test

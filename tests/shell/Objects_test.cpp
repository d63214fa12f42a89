// Tests of the shell's tree and the operations on it: it is built at the start, follows saves
// and notifies documents.
#include "shell/ShellTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

class ShellObjects : public ShellTest {
  protected:
    Strings Keys() {
        Strings keys;
        for (const char* key : {"R:1:0", "R:1:3", "R:2:0", "R:2:3", "R:3:0", "R:3:3"})
            if (shell.Opened()->data.tree.NodeExists(key)) keys.emplace_back(key);
        return keys;
    }
};

TEST_F(ShellObjects, TheTreeHoldsTheDatabaseFromTheStart) {
    const ScratchFolder folder;
    const std::string path = folder.File("Tunwright.mdb");
    {
        const auto database = Database::CreateDatabase(path, "");
        CreateSchema(*database);
        AddRecipeRow(*database, "Mild");
    }
    Shell other({outside.platform});
    ASSERT_TRUE(other.PerformSplashScreenInit(path));
    EXPECT_TRUE(other.Opened()->data.tree.NodeExists("R:1:3"));
    EXPECT_EQ(other.Opened()->data.tree.SourceDatabase(), other.DB());
}

TEST_F(ShellObjects, ASaveGivesTheRecipeNewEntries) {
    RecipeDocument& mild = NewSaved("Mild");
    EXPECT_EQ(Keys(), (Strings{"R:1:0", "R:1:3"}));
    EXPECT_TRUE(shell.Opened()->saver.Save(mild));
    EXPECT_EQ(Keys(), (Strings{"R:2:0", "R:2:3"}));
    mild.Fields().SetText(mild.Record().txtName, "Best");
    EXPECT_TRUE(shell.Opened()->saver.Save(mild));
    EXPECT_EQ(Keys(), (Strings{"R:3:0", "R:3:3"}));
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:3:0")->Name(), "Best");
}

TEST_F(ShellObjects, ASaveThatFailsLeavesTheTreeAsTheDatabase) {
    RecipeDocument& mild = NewSaved("Mild");
    mild.Fields().SetText(mild.Record().txtNotes, "changed");
    shell.DB()->SetStatementHook([](std::string_view sql) {
        if (sql.starts_with("UPDATE RECIPES")) throw Error("Test", "the disk is on fire", 7);
    });
    EXPECT_FALSE(shell.Opened()->saver.Save(mild));
    shell.DB()->SetStatementHook(nullptr);
    // The new row exists but is incomplete.
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Mild"});
    EXPECT_EQ(Keys(), (Strings{"R:2:0", "R:2:3"}));
}

TEST_F(ShellObjects, ASaveThatCannotFindItsRowLeavesTheTreeAsTheDatabase) {
    RecipeDocument& mild = NewSaved("Mild");
    shell.DB()->ExecuteNative(
        "CREATE TRIGGER VANISH BEFORE UPDATE ON RECIPES BEGIN SELECT RAISE(IGNORE); END");
    EXPECT_TRUE(shell.Opened()->saver.SaveUnder(mild, "Best", 0, Asking::Quietly));
    EXPECT_EQ(outside.messages.log, Strings{"[UNKNOWN ERROR] Error saving recipe to database!"});
    EXPECT_EQ(Keys(), (Strings{"R:1:0", "R:1:3", "R:2:0", "R:2:3"}));
}

TEST_F(ShellObjects, DeletingAFolderDetachesTheWindowsOfItsRecipes) {
    ASSERT_EQ(shell.Opened()->data.objects.CreateFolderObject("F:0", "Dark"), "F:1");
    RecipeDocument& mild = NewSaved("Mild");
    RecipeDocument& other = NewSaved("Other");
    ASSERT_TRUE(shell.Opened()->data.objects.MoveObject("R:1:0", "F:1"));
    EXPECT_EQ(mild.FolderID(), 1);
    shell.Opened()->data.objects.DeleteObject("F:1");
    EXPECT_TRUE(mild.Changed());
    EXPECT_EQ(mild.FolderID(), -1);
    EXPECT_EQ(mild.OrigName(), "");
    EXPECT_FALSE(other.Changed());
    EXPECT_EQ(Keys(), (Strings{"R:2:0", "R:2:3"}));
    EXPECT_TRUE(Lit("mnuFileOpen"));
    shell.Opened()->data.objects.DeleteObject("R:2:0");
    EXPECT_FALSE(Lit("mnuFileOpen"));
}

TEST_F(ShellObjects, AFailedDeletionLightsTheCommandsForWhatIsLeft) {
    NewSaved("Mild");
    shell.DB()->SetStatementHook([](std::string_view sql) {
        if (sql.starts_with("DELETE FROM RECIPE_GRAINS")) throw Error("Test", "the disk is on fire", 7);
    });
    EXPECT_FALSE(
        RunShowingErrors(outside.messages, [&] { shell.Opened()->data.objects.DeleteObject("R:1:0"); }));
    shell.DB()->SetStatementHook(nullptr);
    EXPECT_EQ(Keys(), Strings{});
    EXPECT_FALSE(Lit("mnuFileOpen"));
}

}  // namespace
}  // namespace tw::test

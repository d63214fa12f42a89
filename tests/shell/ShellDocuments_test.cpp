#include <algorithm>

#include "shell/ShellTest.h"
#include "tree/ExplorerModel.h"

namespace tw::test {
namespace {

std::string Unsaved(std::string_view name, std::string_view answer) {
    return "[Unsaved Changes] Recipe '" + std::string(name) +
           "' has changed. Do you wish to save your changes? -> " + std::string(answer);
}

TEST_F(ShellTest, ANewDocumentIsNumberedKeyedAndActive) {
    RecipeDocument& first = shell.Opened()->recipes.Create("");
    RecipeDocument& second = shell.Opened()->recipes.Create("  ");
    EXPECT_EQ(Captions(), (Strings{"Untitled 1", "Untitled 2"}));
    EXPECT_EQ(first.Key(), "0");
    EXPECT_EQ(second.Key(), "1");
    EXPECT_EQ(shell.Documents().Active(), &second);
    EXPECT_FALSE(second.Changed());
    EXPECT_EQ(view.log, (Strings{"opened 0", "activated 0", "opened 1", "activated 1"}));
}

TEST_F(ShellTest, UntitledNumbersSkipTheOpenedRecipesAndAreNotReused) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    RecipeDocument& first = shell.Opened()->recipes.Create("");
    shell.Opened()->recipes.OpenByName("Pale Ale");
    EXPECT_TRUE(shell.Opened()->saver.Close(first));
    RecipeDocument& next = shell.Opened()->recipes.Create("");
    EXPECT_EQ(Captions(), (Strings{"Pale Ale", "Untitled 3"}));
    EXPECT_EQ(next.Key(), "2");
}

TEST_F(ShellTest, OpeningAnOpenRecipeFocusesItsWindowWithABeep) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.Opened()->recipes.Load("Pale Ale");
    RecipeDocument* open = shell.Documents().Active();
    shell.Opened()->recipes.Create("");
    view.log.clear();
    shell.Opened()->recipes.Load("Pale Ale");
    EXPECT_EQ(shell.Documents().Active(), open);
    EXPECT_EQ(shell.Documents().All().size(), 2u);
    EXPECT_EQ(view.log, Strings{"activated 0"});
    EXPECT_EQ(outside.messages.log, Strings{"beep"});
}

TEST_F(ShellTest, TheActiveRecipesWindowIsShownAgain) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.Opened()->recipes.Load("Pale Ale");
    view.log.clear();
    shell.Opened()->recipes.Load("Pale Ale");
    EXPECT_EQ(view.log, Strings{"activated 0"});
}

// A recipe counts as open only if the name is exactly the same.
TEST_F(ShellTest, ANameInAnotherCaseOpensASecondWindow) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.Opened()->recipes.OpenByName("Pale Ale");
    shell.Opened()->recipes.OpenByName("PALE ALE");
    EXPECT_EQ(Captions(), (Strings{"Pale Ale", "Pale Ale"}));
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellTest, OpeningTrimsTheName) {
    AddRecipeRow(*shell.DB(), "Joe's Ale");
    shell.Opened()->recipes.OpenByName("  Joe's Ale ");
    EXPECT_EQ(Captions(), Strings{"Joe's Ale"});
    EXPECT_EQ(shell.Documents().All()[0]->OrigName(), "Joe's Ale");
    EXPECT_EQ(shell.Recent().Captions(), Strings{"&1 Joe's Ale"});
}

TEST_F(ShellTest, AMissingRecipeIsReportedAndStaysInTheList) {
    shell.Recent().Add("Joe's Ale");
    EXPECT_TRUE(shell.RunMenu("mnuFileMRU(0)"));
    EXPECT_EQ(outside.messages.log, Strings{"[Could not find recipe] Recipe 'Joe's Ale' no longer exists!"});
    EXPECT_TRUE(shell.Documents().All().empty());
    EXPECT_EQ(shell.Recent().Captions(), Strings{"&1 Joe's Ale"});
}

TEST_F(ShellTest, ASlotOpensItsRecipe) {
    AddRecipeRow(*shell.DB(), "Bread & Butter");
    shell.Recent().Add("Bread & Butter");
    EXPECT_TRUE(shell.RunMenu("mnuFileMRU(0)"));
    EXPECT_EQ(Captions(), Strings{"Bread & Butter"});
    EXPECT_FALSE(shell.RunMenu("mnuFileMRU(1)"));
}

TEST_F(ShellTest, ARecipeThatCannotBeReadLeavesNoDocumentBehind) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.DB()->SetStatementHook([](std::string_view sql) {
        if (sql.find("RECIPE_HOPS") != std::string_view::npos) throw Error("Database", "disk gone", 10);
    });
    EXPECT_FALSE(RunShowingErrors(outside.messages, [&] { shell.Opened()->recipes.OpenByName("Pale Ale"); }));
    EXPECT_EQ(outside.messages.log, Strings{"[Error] disk gone (10)"});
    EXPECT_TRUE(shell.Documents().All().empty());
    EXPECT_EQ(shell.Documents().Active(), nullptr);
}

TEST_F(ShellTest, ACleanDocumentClosesWithoutAQuestion) {
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    view.log.clear();
    EXPECT_TRUE(shell.Opened()->saver.Close(document));
    EXPECT_TRUE(shell.Documents().All().empty());
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(view.log, (Strings{"closing 0", "activated none"}));
}

TEST_F(ShellTest, AChangedDocumentBecomesActiveAndAsks) {
    RecipeDocument& first = NewNamed(" Joe's Ale ");
    shell.Opened()->recipes.Create("");
    RecipeDocument* activeDuringQuestion = nullptr;
    outside.messages.whileAsking = [&] { activeDuringQuestion = shell.Documents().Active(); };
    EXPECT_FALSE(shell.Opened()->saver.Close(first));
    EXPECT_EQ(outside.messages.log, Strings{Unsaved(" Joe's Ale ", "Cancel")});
    EXPECT_EQ(activeDuringQuestion, &first);
    EXPECT_EQ(shell.Documents().All().size(), 2u);
    EXPECT_TRUE(first.Changed());
}

TEST_F(ShellTest, NoDropsTheChanges) {
    RecipeDocument& document = NewNamed("Pale Ale");
    outside.messages.answers = {Answer::No};
    EXPECT_TRUE(shell.Opened()->saver.Close(document));
    EXPECT_TRUE(shell.Documents().All().empty());
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
}

TEST_F(ShellTest, YesSavesAStoredRecipeAndCloses) {
    RecipeDocument& document = NewSaved("Pale Ale");
    document.Fields().SetText(document.Record().txtNotes, "More hops.");
    outside.messages.answers = {Answer::Yes};
    EXPECT_TRUE(shell.Opened()->saver.Close(document));
    Recordset row = shell.DB()->OpenRecordset("SELECT NOTES FROM RECIPES WHERE NAME = 'Pale Ale'");
    ASSERT_FALSE(row.AtEnd());
    EXPECT_EQ(row.Fields(0).Text(), "More hops.");
}

TEST_F(ShellTest, YesWithACancelledNameDialogKeepsTheDocument) {
    RecipeDocument& document = NewNamed("Pale Ale");
    outside.messages.answers = {Answer::Yes};
    EXPECT_FALSE(shell.Opened()->saver.Close(document));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmOpenSave"});
    EXPECT_EQ(shell.Documents().All().size(), 1u);
    EXPECT_TRUE(document.Changed());
}

TEST_F(ShellTest, YesWithAFailingSaveKeepsTheDocument) {
    RecipeDocument& document = NewSaved("Pale Ale");
    document.Fields().SetText(document.Record().txtNotes, "x");
    shell.DB()->SetStatementHook([](std::string_view sql) {
        if (sql.starts_with("INSERT INTO RECIPES")) throw Error("Database", "disk full", 13);
    });
    outside.messages.answers = {Answer::Yes};
    EXPECT_FALSE(shell.Opened()->saver.Close(document));
    EXPECT_EQ(outside.messages.log,
              (Strings{Unsaved("Pale Ale", "Yes"), "[Error] Error during save:\r\ndisk full (13)"}));
    EXPECT_TRUE(document.Changed());
}

// A save whose new row has vanished counts as successful but leaves the document changed; its
// window must stay open.
TEST_F(ShellTest, YesWithASaveThatLosesItsRowKeepsTheDocument) {
    RecipeDocument& document = NewSaved("Pale Ale");
    document.Fields().SetText(document.Record().txtNotes, "x");
    Database& database = *shell.DB();
    database.SetStatementHook([&](std::string_view sql) {
        if (!sql.starts_with("UPDATE RECIPES SET BV")) return;
        database.Execute("DELETE FROM RECIPES WHERE NAME = 'Pale Ale'");
    });
    outside.messages.answers = {Answer::Yes};
    EXPECT_FALSE(shell.Opened()->saver.Close(document));
    EXPECT_EQ(outside.messages.log.back(), "[UNKNOWN ERROR] Error saving recipe to database!");
    EXPECT_EQ(shell.Documents().All().size(), 1u);
}

class PendingEntry : public DocumentView {
  public:
    explicit PendingEntry(std::function<void()> flush) : flush_(std::move(flush)) {}
    bool FlushEditors() override {
        flush_();
        return true;
    }

  private:
    std::function<void()> flush_;
};

TEST_F(ShellTest, AnEntryStillBeingTypedCountsWhenClosing) {
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    PendingEntry entry([&] { document.Fields().SetText(document.Record().txtNotes, "typed"); });
    document.SetView(&entry);
    EXPECT_FALSE(shell.Opened()->saver.Close(document));
    EXPECT_EQ(outside.messages.log, Strings{Unsaved("", "Cancel")});
}

TEST_F(ShellTest, AFaultInThePendingEntryCallsTheClosingOff) {
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    PendingEntry entry([] { RaiseDivisionByZero(); });
    document.SetView(&entry);
    EXPECT_FALSE(shell.RequestExit());
    EXPECT_EQ(outside.messages.log, Strings{"[Error] Division by zero (11)"});
    EXPECT_EQ(shell.Documents().All().size(), 1u);
}

TEST_F(ShellTest, ARefusalOnTheSecondOfThreeKeepsTheSecondAndTheThird) {
    NewNamed("One");
    NewNamed("Two");
    NewNamed("Three");
    outside.messages.answers = {Answer::No, Answer::Cancel};
    EXPECT_FALSE(shell.RequestExit());
    EXPECT_EQ(Captions(), (Strings{"Two", "Three"}));
    EXPECT_EQ(outside.messages.log, (Strings{Unsaved("One", "No"), Unsaved("Two", "Cancel")}));
    EXPECT_EQ(shell.Documents().Active()->Caption(), "Two");
}

TEST_F(ShellTest, ExitClosesEveryDocumentAndThenTheMainWindow) {
    shell.Opened()->recipes.Create("");
    NewNamed("Two");
    outside.messages.answers = {Answer::No};
    EXPECT_TRUE(shell.RunMenu("mnuFileExit"));
    EXPECT_TRUE(shell.Documents().All().empty());
    EXPECT_EQ(view.log.back(), "close main window");
}

TEST_F(ShellTest, ARefusedExitKeepsTheMainWindow) {
    NewNamed("One");
    EXPECT_TRUE(shell.RunMenu("mnuFileExit"));
    EXPECT_EQ(std::ranges::count(view.log, "close main window"), 0);
}

TEST_F(ShellTest, AfterAClosingTheDocumentUsedBeforeIsActive) {
    RecipeDocument& first = shell.Opened()->recipes.Create("");
    RecipeDocument& second = shell.Opened()->recipes.Create("");
    RecipeDocument& third = shell.Opened()->recipes.Create("");
    shell.Documents().Activate(first);
    EXPECT_TRUE(shell.Opened()->saver.Close(first));
    EXPECT_EQ(shell.Documents().Active(), &third);
    EXPECT_TRUE(shell.Opened()->saver.Close(second));
    EXPECT_EQ(shell.Documents().Active(), &third);
}

TEST_F(ShellTest, SavingANewRecipeGoesThroughTheNameDialog) {
    RecipeDocument& document = NewNamed("Pale Ale");
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.Controls()[2].text, "Pale Ale");
        dialog.SetControl("txtName", " Amber ");
        dialog.Press("cmdOK");
    });
    EXPECT_TRUE(shell.Opened()->saver.Save(document));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Amber"});
    EXPECT_EQ(document.OrigName(), "Amber");
    EXPECT_EQ(document.FolderID(), 0);
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(shell.Recent().Captions(), Strings{"&1 Amber"});
}

TEST_F(ShellTest, TheNameDialogOffersTheCaptionOfAnUntitledDocument) {
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    outside.dialogs.scripts.emplace_back(
        [](DialogModel& dialog) { EXPECT_EQ(dialog.Controls()[2].text, "Untitled 1"); });
    EXPECT_FALSE(shell.Opened()->saver.SaveAs(document));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmOpenSave"});
}

TEST_F(ShellTest, TheNameDialogsOverwriteQuestionIsTheOnlyOne) {
    NewSaved("Pale Ale");
    RecipeDocument& document = NewNamed("Pale Ale");
    outside.messages.answers = {Answer::Yes};
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) { dialog.Press("cmdOK"); });
    EXPECT_TRUE(shell.Opened()->saver.Save(document));
    EXPECT_EQ(outside.messages.log,
              Strings{"[Overwrite existing recipe?] A recipe named 'Pale Ale' already exists.\r\n"
                      "Overwrite it? -> Yes"});
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Pale Ale"});
}

TEST_F(ShellTest, AnOverwrittenRecipesWindowStaysDetached) {
    RecipeDocument& overwritten = NewSaved("Pale Ale");
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    EXPECT_TRUE(shell.Opened()->saver.SaveUnder(document, "pale ale", 0, Asking::Quietly));
    EXPECT_EQ(shell.Documents().All().size(), 2u);
    EXPECT_EQ(overwritten.OrigName(), "");
    EXPECT_EQ(overwritten.FolderID(), -1);
    EXPECT_TRUE(overwritten.Changed());
}

TEST_F(ShellTest, SavingUnderAnotherRecipesNameAsksAndARefusalChangesNothing) {
    NewSaved("Pale Ale");
    RecipeDocument& document = NewSaved("Stout");
    document.Fields().SetText(document.Record().txtName, "Pale Ale");
    EXPECT_FALSE(shell.Opened()->saver.Save(document));
    EXPECT_EQ(outside.messages.log,
              Strings{"[Overwrite existing recipe?] Another recipe named 'Pale Ale' already exists.\r\n"
                      "Overwrite it? -> No"});
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Pale Ale", "Stout"}));
}

TEST_F(ShellTest, ASilentSavePassesANewDocumentOver) {
    RecipeDocument& document = NewNamed("Pale Ale");
    EXPECT_FALSE(shell.Opened()->saver.Save(document, Asking::Quietly));
    EXPECT_TRUE(document.Changed());
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
    EXPECT_TRUE(outside.dialogs.shown.empty());
}

TEST_F(ShellTest, ASilentSavePassesADocumentOverWhoseNameIsAnotherRecipes) {
    NewSaved("Pale Ale");
    RecipeDocument& document = NewSaved("Stout");
    document.Fields().SetText(document.Record().txtName, " PALE ALE ");
    EXPECT_FALSE(shell.Opened()->saver.Save(document, Asking::Quietly));
    EXPECT_TRUE(document.Changed());
    EXPECT_EQ(document.OrigName(), "Stout");
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Pale Ale", "Stout"}));
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellTest, ASilentSaveTakesAnEditedNameThatIsFree) {
    RecipeDocument& document = NewSaved("Stout");
    document.Fields().SetText(document.Record().txtName, "Dry Stout");
    EXPECT_TRUE(shell.Opened()->saver.Save(document, Asking::Quietly));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Dry Stout"});
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(ShellTest, ASilentSaveWithoutAnyEditSaves) {
    RecipeDocument& document = NewSaved("Stout");
    EXPECT_TRUE(shell.Opened()->saver.Save(document, Asking::Quietly));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Stout"});
}

TEST_F(ShellTest, AnErrorDuringSaveIsShownAndReportedAsNotSaved) {
    RecipeDocument& document = NewSaved("Stout");
    document.Fields().SetText(document.Record().txtNotes, "x");
    shell.DB()->SetStatementHook([](std::string_view sql) {
        if (sql.starts_with("UPDATE RECIPES")) throw Error("Database", "disk full", 13);
    });
    EXPECT_FALSE(shell.Opened()->saver.Save(document));
    EXPECT_FALSE(shell.Opened()->saver.SaveUnder(document, "Porter", 0, Asking::Quietly));
    EXPECT_EQ(outside.messages.log, (Strings{"[Error] Error during save:\r\ndisk full (13)",
                                             "[Error] Error during save:\r\ndisk full (13)"}));
    EXPECT_TRUE(document.Changed());
}

TEST_F(ShellTest, AFullDiskDuringSaveIsToldByItsOwnError) {
    RecipeDocument& document = NewSaved("Stout");
    document.Fields().SetText(document.Record().txtNotes, "x");
    bool isFull = false;
    shell.DB()->SetStatementHook([&](std::string_view sql) {
        if (isFull || !sql.starts_with("DELETE FROM RECIPE_GRAINS")) return;
        isFull = true;
        // SQLite itself rolls back when the disk is full.
        shell.DB()->ExecuteNative("ROLLBACK");
        throw Error("Database", "database or disk is full", 13);
    });
    EXPECT_FALSE(shell.Opened()->saver.Save(document));
    shell.DB()->SetStatementHook(nullptr);
    EXPECT_EQ(outside.messages.log, Strings{"[Error] Error during save:\r\ndatabase or disk is full (13)"});
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Stout"});
    EXPECT_TRUE(shell.Opened()->data.tree.NodeExists("R:1:0"));
    EXPECT_TRUE(document.Changed());
    EXPECT_TRUE(Lit("mnuFileOpen"));
    EXPECT_TRUE(shell.Opened()->saver.Save(document));
}

TEST_F(ShellTest, ADiskThatStaysDeadLeavesTheListsAndSaysThatTheyAreOld) {
    RecipeDocument& document = NewSaved("Stout");
    document.Fields().SetText(document.Record().txtNotes, "x");
    ExplorerModel explorer(shell.Opened()->data.Access(), {});
    view.log.clear();
    shell.DB()->SetStatementHook([](std::string_view) { throw Error("Database", "disk I/O error", 10); });
    EXPECT_FALSE(shell.Opened()->saver.Save(document));
    EXPECT_FALSE(shell.Opened()->saver.Save(document));
    EXPECT_EQ(outside.messages.log.size(), 2u);
    EXPECT_TRUE(shell.Opened()->data.tree.NodeExists("R:1:0"));
    const std::string old = "notice: The lists are not up to date: the database cannot be read.";
    EXPECT_EQ(std::ranges::count(view.log, old), 1);
    EXPECT_EQ(explorer.Status(), "Not up to date: the database cannot be read.");
    shell.DB()->SetStatementHook(nullptr);
    EXPECT_TRUE(shell.Opened()->saver.Save(document));
    EXPECT_EQ(std::ranges::count(view.log, "notice: "), 1);
    EXPECT_EQ(explorer.Status(), "1 object");
    EXPECT_TRUE(shell.Opened()->data.tree.IsUpToDate());
}

TEST_F(ShellTest, OldListsAreReadAgainWhenTheyAreLookedAt) {
    NewSaved("Stout");
    shell.DB()->SetStatementHook([](std::string_view) { throw Error("Database", "disk I/O error", 10); });
    EXPECT_FALSE(shell.Opened()->data.objects.RenameRecipe(1, "Porter", Asking::Quietly));
    shell.DB()->SetStatementHook(nullptr);
    EXPECT_FALSE(shell.Opened()->data.tree.IsUpToDate());
    EXPECT_TRUE(shell.RunMenu("mnuFileOpen"));
    EXPECT_TRUE(shell.Opened()->data.tree.IsUpToDate());
    EXPECT_EQ(view.log.back(), "notice: ");
}

TEST_F(ShellTest, SaveAllSavesEveryDocumentAndGoesOnAfterAFailure) {
    RecipeDocument& first = NewSaved("One");
    RecipeDocument& second = NewSaved("Two");
    for (RecipeDocument* document : {&first, &second})
        document->Fields().SetText(document->Record().txtNotes, "x");
    bool failed = false;
    shell.DB()->SetStatementHook([&](std::string_view sql) {
        if (failed || !sql.starts_with("INSERT INTO RECIPES")) return;
        failed = true;
        throw Error("Database", "disk full", 13);
    });
    EXPECT_TRUE(shell.RunMenu("mnuFileSaveAll"));
    EXPECT_EQ(outside.messages.log, Strings{"[Error] Error during save:\r\ndisk full (13)"});
    EXPECT_TRUE(first.Changed());
    EXPECT_FALSE(second.Changed());
}

TEST_F(ShellTest, ADeletedRecipeLeavesTheRecentListAndDetachesItsWindow) {
    RecipeDocument& document = NewSaved("Pale Ale");
    RecipeDocument& other = NewSaved("Stout");
    shell.Opened()->services.DeleteRecipe("  pale ALE ");
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Stout"});
    EXPECT_EQ(shell.Recent().Captions(), Strings{"&1 Stout"});
    EXPECT_EQ(document.OrigName(), "");
    EXPECT_TRUE(document.Changed());
    EXPECT_EQ(other.OrigName(), "Stout");
    EXPECT_FALSE(other.Changed());
    EXPECT_TRUE(Lit("mnuFileSaveAll"));
}

TEST_F(ShellTest, TheRecentListIsUpToDateBeforeTheDocumentsHear) {
    NewSaved("Pale Ale");
    Strings during;
    class Watcher : public CommandObserver {
      public:
        Watcher(Shell& shell, Strings& seen) : shell_(shell), seen_(seen) {}
        void MenuItemChanged(const MenuItem& item) override {
            if (item.name == "mnuFileSaveAll") seen_ = shell_.Recent().Captions();
        }

      private:
        Shell& shell_;
        Strings& seen_;
    } watcher(shell, during);
    during = {"not called"};
    shell.Bar().SetObserver(&watcher);
    shell.Opened()->notices.NotifyRecipeDeleted("Pale Ale");
    shell.Bar().SetObserver(nullptr);
    EXPECT_EQ(during, Strings{});
}

}  // namespace
}  // namespace tw::test

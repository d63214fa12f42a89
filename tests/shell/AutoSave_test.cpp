// Tests of autosave: counting minutes, what a run saves and what it leaves alone, and what
// may happen during a run.
#include "shell/AutoSave.h"

#include "shell/ShellTest.h"

namespace tw::test {
namespace {

class AutoSaveTest : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        shell.SettingsNow().SetDoAutoSave(true);
        shell.CurrentSettings().doAutoSaveEvery = 1;
    }
    void Tick(int times = 1) {
        for (int i = 0; i < times; ++i) shell.TickAutoSave();
    }
    std::size_t Runs() const { return outside.dialogs.shown.size(); }
    std::string StoredNotes(const std::string& name) {
        const Recordset rows =
            shell.DB()->OpenRecordset("SELECT NOTES FROM RECIPES WHERE NAME = " + SqlText(name));
        return rows.AtEnd() ? "no recipe" : rows.Fields(0).IsNull() ? "NULL" : rows.Fields(0).Text();
    }
    void Note(RecipeDocument& document, std::string_view text) {
        document.Fields().SetText(document.Record().txtNotes, text);
    }
};

TEST(AutoSaveMinutes, AreFullAtTheNumberGiven) {
    AutoSaveMinutes minutes;
    EXPECT_FALSE(minutes.Tick(true, 3));
    EXPECT_FALSE(minutes.Tick(true, 3));
    EXPECT_TRUE(minutes.Tick(true, 3));
    EXPECT_EQ(minutes.Count(), 3);
}

TEST(AutoSaveMinutes, DoNotCountWhileNothingIsOpen) {
    AutoSaveMinutes minutes;
    minutes.Tick(true, 3);
    EXPECT_FALSE(minutes.Tick(false, 1));
    EXPECT_EQ(minutes.Count(), 0);
}

TEST_F(AutoSaveTest, EveryMinuteSavesAtEachTick) {
    RecipeDocument& stout = NewSaved("Stout");
    Note(stout, "one");
    Tick();
    EXPECT_EQ(StoredNotes("Stout"), "one");
    EXPECT_FALSE(stout.Changed());
    Note(stout, "two");
    Tick();
    EXPECT_EQ(StoredNotes("Stout"), "two");
    EXPECT_EQ(outside.dialogs.shown, (Strings{"frmAutoSave", "frmAutoSave"}));
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(AutoSaveTest, NothingOpenShowsNothing) {
    Tick(3);
    shell.Opened()->autoSaver.Run();
    EXPECT_EQ(Runs(), 0u);
}

TEST_F(AutoSaveTest, CountsTheMinutesBetweenTwoRuns) {
    shell.CurrentSettings().doAutoSaveEvery = 2;
    NewSaved("Stout");
    Tick();
    EXPECT_EQ(Runs(), 0u);
    Tick();
    EXPECT_EQ(Runs(), 1u);
    Tick();
    EXPECT_EQ(Runs(), 1u);
    Tick();
    EXPECT_EQ(Runs(), 2u);
}

TEST_F(AutoSaveTest, ClosingTheLastDocumentStartsTheCountAgain) {
    shell.CurrentSettings().doAutoSaveEvery = 2;
    RecipeDocument& stout = NewSaved("Stout");
    Tick();
    shell.Opened()->saver.Close(stout);
    Tick();
    NewSaved("Porter");
    Tick();
    EXPECT_EQ(Runs(), 0u);
    Tick();
    EXPECT_EQ(Runs(), 1u);
}

TEST_F(AutoSaveTest, OffAndOnAgainStartsTheCountAgain) {
    shell.CurrentSettings().doAutoSaveEvery = 2;
    NewSaved("Stout");
    Tick();
    shell.SettingsNow().SetDoAutoSave(false);
    shell.SettingsNow().SetDoAutoSave(true);
    Tick();
    EXPECT_EQ(Runs(), 0u);
    // Enabling autosave again does not restart the count.
    shell.SettingsNow().SetDoAutoSave(true);
    Tick();
    EXPECT_EQ(Runs(), 1u);
}

TEST_F(AutoSaveTest, AnotherNumberOfMinutesKeepsTheCount) {
    shell.CurrentSettings().doAutoSaveEvery = 10;
    NewSaved("Stout");
    Tick(3);
    shell.CurrentSettings().doAutoSaveEvery = 2;
    Tick();
    EXPECT_EQ(Runs(), 1u);
}

TEST_F(AutoSaveTest, OffDoesNothing) {
    shell.SettingsNow().SetDoAutoSave(false);
    NewSaved("Stout");
    Tick(5);
    EXPECT_EQ(Runs(), 0u);
}

TEST_F(AutoSaveTest, AStoredSettingSwitchesItAtOnce) {
    shell.CurrentSettings().doAutoSaveEvery = 2;
    NewSaved("Stout");
    Tick();
    shell.SettingsNow().Store("Settings", "DoAutoSave", "0");
    EXPECT_FALSE(shell.CurrentSettings().doAutoSave);
    EXPECT_EQ(view.log.back(), "autosave off");
    shell.SettingsNow().Store("Settings", "DoAutoSave", "True");
    EXPECT_EQ(view.log.back(), "autosave on");
    Tick();
    EXPECT_EQ(Runs(), 0u);
    shell.SettingsNow().Store("Settings", "DoAutoSaveEvery", "1");
    Tick();
    EXPECT_EQ(Runs(), 1u);
}

TEST_F(AutoSaveTest, TheStartTakesTheStoredSetting) {
    outside.settings.Put("Settings", "DoAutoSave", "True");
    Shell other({outside.platform});
    RecordingView otherView;
    other.SetView(&otherView);
    ASSERT_TRUE(other.PerformSplashScreenInit(":memory:"));
    EXPECT_TRUE(other.CurrentSettings().doAutoSave);
    EXPECT_EQ(otherView.log, Strings{"autosave on"});
}

TEST_F(AutoSaveTest, ANewRecipeIsPassedOverSilently) {
    RecipeDocument& unnamed = shell.Opened()->recipes.Create("");
    Note(unnamed, "sour");
    RecipeDocument& named = NewNamed("Stout");
    Tick();
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
    EXPECT_TRUE(unnamed.Changed());
    EXPECT_TRUE(named.Changed());
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmAutoSave"});
}

TEST_F(AutoSaveTest, ADetachedRecipeIsPassedOver) {
    RecipeDocument& stout = NewSaved("Stout");
    shell.Opened()->services.DeleteRecipe("Stout");
    Tick();
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{});
    EXPECT_TRUE(stout.Changed());
}

TEST_F(AutoSaveTest, UnchangedRecipesAreSavedToo) {
    NewSaved("Stout");
    shell.DB()->Execute("UPDATE RECIPES SET MODIFIED_WHEN = '01/01/2020 00:00:00'");
    Tick();
    EXPECT_EQ(shell.DB()->OpenRecordset("SELECT MODIFIED_WHEN FROM RECIPES").Fields(0).Text(),
              DateText(outside.clock.now));
}

TEST_F(AutoSaveTest, AnEditedNameMovesTheStoredRecipe) {
    RecipeDocument& stout = NewSaved("Stout");
    stout.Fields().SetText(stout.Record().txtName, "Dry Stout");
    Tick();
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Dry Stout"});
}

TEST_F(AutoSaveTest, ANameOfAnotherRecipeIsPassedOver) {
    NewSaved("Porter");
    RecipeDocument& stout = NewSaved("Stout");
    stout.Fields().SetText(stout.Record().txtName, " porter ");
    Tick();
    EXPECT_EQ(RecipeNames(*shell.DB()), (Strings{"Porter", "Stout"}));
    EXPECT_TRUE(stout.Changed());
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(AutoSaveTest, AnErrorHasItsBoxAndTheOthersAreSaved) {
    RecipeDocument& bad = NewSaved("Bad");
    RecipeDocument& good = NewSaved("Good");
    Note(bad, "x");
    Note(good, "kept");
    shell.DB()->ExecuteNative(
        "CREATE TRIGGER refuse BEFORE INSERT ON RECIPES WHEN NEW.NAME = 'Bad' "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    Tick();
    ASSERT_EQ(outside.messages.log.size(), 1u);
    EXPECT_TRUE(outside.messages.log[0].starts_with("[Error] Error during save:\r\nno room ("));
    EXPECT_TRUE(bad.Changed());
    EXPECT_EQ(StoredNotes("Good"), "kept");
}

TEST_F(AutoSaveTest, TheProgressNamesEachRecipeAndCountsThePassedOver) {
    NewSaved("Stout");
    shell.Opened()->recipes.Create("");
    NewSaved("Porter");
    AutoSaveModel progress = shell.Opened()->autoSaver.Progress();
    EXPECT_EQ(progress.Controls()[0].text, "");
    Strings seen;
    progress.SetObserver([&] {
        seen.push_back(progress.Controls()[0].text + " " + progress.Controls()[1].text + " of " +
                       std::to_string(progress.Total()));
    });
    progress.FirstShown();
    EXPECT_EQ(seen, (Strings{"Stout 0 of 3", "Stout 1 of 3", " 1 of 3", " 2 of 3", "Porter 2 of 3",
                             "Porter 3 of 3"}));
    EXPECT_FALSE(progress.IsOpen());
}

TEST_F(AutoSaveTest, TheProgressWindowTakesNoEntryAndClosesByItself) {
    AutoSaveModel progress = shell.Opened()->autoSaver.Progress();
    EXPECT_FALSE(progress.SetControl("lblRecipe", "x"));
    EXPECT_FALSE(progress.Press("cmdOK"));
    EXPECT_TRUE(progress.IsOpen());
    progress.FirstShown();
    EXPECT_FALSE(progress.IsOpen());
}

TEST_F(AutoSaveTest, ItsCloseBoxDoesNotStopARun) {
    NewSaved("Stout");
    AutoSaveModel progress = shell.Opened()->autoSaver.Progress();
    std::vector<bool> open;
    progress.SetObserver([&] {
        progress.CloseBox();
        open.push_back(progress.IsOpen());
    });
    progress.FirstShown();
    EXPECT_EQ(open, (std::vector<bool>{true, true}));
}

TEST_F(AutoSaveTest, ADocumentThatGoesDuringTheRunIsLeftOut) {
    RecipeDocument& first = NewSaved("Stout");
    NewSaved("Porter");
    Note(first, "late");
    AutoSaveModel progress = shell.Opened()->autoSaver.Progress();
    bool closed = false;
    progress.SetObserver([&] {
        if (!closed) shell.Documents().Remove(first);
        closed = true;
    });
    progress.FirstShown();
    EXPECT_EQ(progress.Done(), 2);
    EXPECT_EQ(StoredNotes("Stout"), "");
}

TEST_F(AutoSaveTest, ATickDuringARunCountsNothing) {
    NewSaved("Stout");
    outside.messages.whileAsking = [&] { Tick(5); };
    shell.DB()->ExecuteNative(
        "CREATE TRIGGER refuse BEFORE INSERT ON RECIPES BEGIN SELECT RAISE(ABORT, 'no'); END");
    Tick();
    EXPECT_EQ(Runs(), 1u);
}

TEST_F(AutoSaveTest, ATickBehindAQuestionSavesAsUsual) {
    RecipeDocument& stout = NewSaved("Stout");
    Note(stout, "kept");
    outside.messages.answers = {Answer::Cancel};
    outside.messages.whileAsking = [&] { Tick(); };
    EXPECT_FALSE(shell.Opened()->saver.Close(stout));
    EXPECT_EQ(StoredNotes("Stout"), "kept");
    EXPECT_FALSE(stout.Changed());
}

TEST_F(AutoSaveTest, AnEntryThatCanBeReadIsCommittedFirst) {
    RecipeDocument& stout = NewSaved("Stout");
    stout.Fields().SetText(stout.Record().txtTotalVol, "5 gal");
    Tick();
    EXPECT_EQ(stout.Record().txtTotalVol.Value(), 5);
    EXPECT_FALSE(stout.Changed());
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Stout"});
}

TEST_F(AutoSaveTest, AnEntryThatCannotBeReadStaysAsItIsTyped) {
    RecipeDocument& stout = NewSaved("Stout");
    TextBox& volume = stout.Record().txtTotalVol;
    for (const char* typed : {"five", "1/0", "5 gallo"}) {
        stout.Fields().SetText(volume, typed);
        Tick();
        EXPECT_EQ(volume.Text(), typed);
        EXPECT_EQ(volume.Committed(), "");
    }
    EXPECT_EQ(outside.messages.log, Strings{});
    EXPECT_EQ(StoredNotes("Stout"), "");
}

TEST_F(AutoSaveTest, AnEmptiedBoxIsNotFilledUnderTheTypingHand) {
    RecipeDocument& stout = NewSaved("Stout");
    stout.Fields().SetText(stout.Record().txtTotalVol, "5 gal");
    stout.Fields().CommitField(stout.Record().txtTotalVol);
    TextBox& volume = stout.Record().txtFinalVol;
    stout.Fields().SetText(volume, "");
    Tick();
    EXPECT_EQ(volume.Text(), "");
}

TEST_F(AutoSaveTest, ARefusedTemperatureIsNeverSaved) {
    RecipeDocument& stout = NewSaved("Stout");
    TextBox& temperature = stout.Record().txtTemp;
    stout.Fields().SetText(temperature, "38");
    ASSERT_TRUE(stout.Fields().CommitField(temperature));
    ASSERT_TRUE(stout.Cells().EditCell(stout.Record().gridPressure, 1, PressureCol::Pressure, "50 psi"));
    std::string committedMeanwhile;
    MessageRecorder& boxes = outside.messages;
    boxes.whileShowing = [&] {
        committedMeanwhile = temperature.Committed();
        Tick();
    };
    stout.Fields().SetText(temperature, "0");
    EXPECT_FALSE(stout.Fields().CommitField(temperature));
    EXPECT_EQ(boxes.log.size(), 1u);
    EXPECT_EQ(committedMeanwhile, "38");
    EXPECT_EQ(shell.DB()->OpenRecordset("SELECT TEMPERATURE FROM RECIPES").Fields(0).Text(), "38");
}

}  // namespace
}  // namespace tw::test

// Tests of what creates a step of the history, what is merged into the previous step,
// and what a step restores.
#include <gmock/gmock.h>

#include "DocumentState.h"
#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HistoryTest : public DocumentTest {
  protected:
    HistoryTest() { New(); }

    const UndoStack& History() const { return document->History(); }
    std::string State() const { return StateOf(*document, host).all; }
    // Enters a recipe of 50.4 points: 10 lbs. of 36 points at 70% extraction, in 5 gallons.
    void Brew() {
        Set(R().txtExtract, "70");
        Set(R().txtTotalVol, "5");
        Put(R().gridGrain, 1, GrainCol::Amount, "10");
        Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    }
    void PitchYeast() {
        document->Lines().InsertRowForGrid(R().gridLog);
        Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
        document->Focus().SetCurrentCell(R().gridLog, 1, LogCol::Notes);
        document->Picks().Take(CatalogueKind::Yeast, "Ale");
    }
    void ExpectUndoAndRedo(const std::string& before) {
        const std::string after = State();
        ASSERT_TRUE(document->Replay().Undo());
        EXPECT_EQ(Differences(before, State()), "");
        ASSERT_TRUE(document->Replay().Redo());
        EXPECT_EQ(Differences(after, State()), "");
    }
};

TEST_F(HistoryTest, TypingOnAfterLeavingIsStillTheSameStep) {
    Set(R().txtBoilVol, "6 gal");
    Set(R().txtBoilVol, "7 gal");
    EXPECT_EQ(History().StackTop(), 1U);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtBoilVol.Text(), "");
}

TEST_F(HistoryTest, AStepBetweenPartsTheTyping) {
    Set(R().txtName, "A");
    document->Options().Choose("optRager");
    Set(R().txtName, "AB");
    EXPECT_EQ(History().StackTop(), 3U);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtName.Text(), "A");
}

TEST_F(HistoryTest, TypingInAnotherBoxIsAnotherStep) {
    Set(R().txtName, "A");
    Set(R().txtNotes, "B");
    Set(R().txtName, "AB");
    EXPECT_EQ(History().StackTop(), 3U);
}

TEST_F(HistoryTest, TypingDoesNotJoinWhatCanBeRedone) {
    Set(R().txtName, "A");
    document->Options().Choose("optRager");
    ASSERT_TRUE(document->Replay().Undo());
    // The earlier typing is not the last record, so this starts a new one.
    Set(R().txtName, "AB");
    EXPECT_EQ(History().StackTop(), 2U);
    EXPECT_FALSE(document->Replay().Redo());
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtName.Text(), "A");
}

TEST_F(HistoryTest, TypingBackTakesTheStepAway) {
    Set(R().txtName, "A");
    document->Options().Choose("optRager");
    for (const char* text : {"AB", "ABC", "AB", "A"}) document->Fields().SetText(R().txtName, text);
    EXPECT_EQ(History().StackTop(), 2U);
    EXPECT_EQ(History().UndoType(), "Selection");
    EXPECT_EQ(host.undoName, "Selection");
}

TEST_F(HistoryTest, ARefusedEntryIsBalancedByItsAbort) {
    Set(R().txtBoilVol, "6");
    document->Focus().FocusOn(R().txtBoilVol);
    document->Fields().SetText(R().txtBoilVol, "much");
    document->Focus().FocusOn(R().gridGrain);
    EXPECT_EQ(R().txtBoilVol.Text(), "6");
    EXPECT_EQ(History().StackTop(), 2U);
    EXPECT_EQ(History().UndoType(), "Abort");
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] Please enter a valid volume"));
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtBoilVol.Text(), "much");
    EXPECT_EQ(R().txtBoilVol.Value(), 6);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtBoilVol.Text(), "");
    ASSERT_TRUE(document->Replay().Redo());
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().txtBoilVol.Text(), "6");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(HistoryTest, UndoWhileAWrongEntryStandsTakesTheEntryBack) {
    Set(R().txtBoilVol, "6");
    document->Options().Choose("optRager");
    document->Focus().FocusOn(R().txtBoilVol);
    for (const char* text : {"much", "1/0"}) {
        document->Fields().SetText(R().txtBoilVol, text);
        ASSERT_TRUE(document->Replay().Undo());
        EXPECT_EQ(R().txtBoilVol.Text(), "6");
        EXPECT_EQ(History().UndoType(), "Selection");
        EXPECT_EQ(History().RedoType(), "Typing");
        EXPECT_THAT(Boxes(), IsEmpty());
        ASSERT_TRUE(document->Replay().Redo());
        EXPECT_EQ(R().txtBoilVol.Text(), text);
        EXPECT_EQ(R().txtBoilVol.Value(), 6);
        ASSERT_TRUE(document->Replay().Undo());
    }
}

TEST_F(HistoryTest, EscapeIsAnAbortInAFieldAndTypingInFreeText) {
    Set(R().txtTemp, "68");
    document->Fields().SetText(R().txtTemp, "6");
    document->Fields().RestoreField(R().txtTemp);
    EXPECT_EQ(History().UndoType(), "Abort");
    Set(R().txtName, "A");
    document->Fields().SetText(R().txtName, "AB");
    document->Fields().RestoreField(R().txtName);
    EXPECT_EQ(R().txtName.Text(), "A");
    EXPECT_EQ(History().UndoType(), "Typing");
}

TEST_F(HistoryTest, AStepShowsItsTab) {
    document->Focus().SetTab(Tab::Grains);
    Put(R().gridGrain, 1, GrainCol::Amount, "8");
    document->Focus().SetTab(Tab::Notes);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(document->Focus().CurrentTab(), Tab::Grains);
    document->Focus().SetTab(Tab::Log);
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(document->Focus().CurrentTab(), Tab::Grains);
}

TEST_F(HistoryTest, ACellStepSelectsItsCellAndItsCommands) {
    host.appendRows = true;
    document->Focus().SetTab(Tab::Grains);
    document->Lines().InsertRowForGrid(R().gridGrain);
    document->Focus().SetCurrentCell(R().gridGrain, 2, GrainCol::Color);
    Put(R().gridGrain, 2, GrainCol::Color, "4");
    document->Focus().SetCurrentCell(R().gridGrain, 3, 0);
    ASSERT_FALSE(host.IsOn("EnableDelete"));
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{2, GrainCol::Color, 2, GrainCol::Color}));
    EXPECT_TRUE(host.IsOn("EnableDelete"));
}

TEST_F(HistoryTest, TheFirstRowOfAnEmptyGridGoes) {
    document->Lines().InsertRowForGrid(R().gridAdjuncts);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridAdjuncts.DataRows(), 0);
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().gridAdjuncts.DataRows(), 1);
}

TEST_F(HistoryTest, AnAppendedRowGoesWhateverTheSettingIsNow) {
    host.appendRows = true;
    document->Lines().InsertRowForGrid(R().gridGrain);
    Put(R().gridGrain, 1, 0, "A");
    Put(R().gridGrain, 2, 0, "B");
    document->Focus().SetCurrentCell(R().gridGrain, 1, 0);
    document->Lines().InsertRowForGrid(R().gridGrain);
    host.appendRows = false;
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.Text(1, 0), "A");
    EXPECT_EQ(R().gridGrain.Text(2, 0), "B");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().gridGrain.Text(2, 0), "B");
    EXPECT_EQ(R().gridGrain.Text(3, 0), "");
}

TEST_F(HistoryTest, TheLastRowDeletedComesBackBehindTheOthers) {
    host.appendRows = true;
    document->Lines().InsertRowForGrid(R().gridPriming);
    Put(R().gridPriming, 1, 0, "A");
    Put(R().gridPriming, 2, 0, "B");
    const std::string before = State();
    document->Focus().SetCurrentCell(R().gridPriming, 2, 0);
    document->Lines().DeleteRowForGrid(R().gridPriming);
    EXPECT_EQ(R().gridPriming.Text(2, 0), "Residual");
    ExpectUndoAndRedo(before);
}

TEST_F(HistoryTest, AStyleGoesWithItsWater) {
    Put(R().gridWater, WaterRow::Source, WaterCol::Profile, "Soft");
    document->Style().ChangeStyle("Stout");
    document->Style().ChangeStyle("Half Open");
    const std::string before = State();
    document->Style().ChangeStyle("(None)");
    EXPECT_EQ(R().gridWater.Text(WaterRow::Target, WaterCol::Profile), "");
    EXPECT_EQ(History().StackTop(), 4U);
    ExpectUndoAndRedo(before);
    ASSERT_TRUE(document->Replay().Undo());
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridWater.Text(WaterRow::Target, WaterCol::FirstIon), "275");
    EXPECT_EQ(R().cmbStyle.Text(), "Stout");
}

TEST_F(HistoryTest, EveryNameFromTheCatalogueIsOneSelection) {
    struct Choice {
        Grid& grid;
        int col;
        const char* name;
        CatalogueKind list;
    };
    document->Lines().InsertRowForGrid(R().gridTreatment);
    document->Lines().InsertRowForGrid(R().gridLog);
    const Choice choices[] = {{R().gridGrain, 0, "O'Brien's", CatalogueKind::Grain},
                              {R().gridExtract, 0, "Syrup", CatalogueKind::Extract},
                              {R().gridHops, 0, "Zeus", CatalogueKind::Hop},
                              {R().gridLog, 2, "Cook's", CatalogueKind::Yeast},
                              {R().gridWater, 1, "Burton", CatalogueKind::Water},
                              {R().gridTreatment, 0, "Gypsum", CatalogueKind::Salt},
                              {R().gridPriming, 0, "Honey", CatalogueKind::Sugar}};
    for (const Choice& choice : choices) {
        document->Focus().SetCurrentCell(choice.grid, 1, 0);
        const std::size_t steps = History().StackTop();
        const std::string before = State();
        document->Picks().Take(choice.list, choice.name);
        EXPECT_EQ(choice.grid.Text(1, choice.col), choice.name);
        EXPECT_EQ(History().StackTop(), steps + 1) << choice.name;
        EXPECT_EQ(History().UndoType(), "Selection") << choice.name;
        ExpectUndoAndRedo(before);
    }
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Ppg), "30");
    EXPECT_EQ(R().gridTreatment.Number(1, TreatmentCol::FirstIon + 5), 147.4);
}

TEST_F(HistoryTest, ADayOfTheCalendarIsOneSelection) {
    document->Cells().PickLogDate({2024, 3, 9});
    EXPECT_FALSE(History().CanUndo());
    document->Lines().InsertRowForGrid(R().gridLog);
    document->Cells().PickLogDate({2024, 3, 9});
    EXPECT_EQ(R().gridLog.Text(1, LogCol::Date), "3/9/2024");
    EXPECT_EQ(History().UndoType(), "Selection");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridLog.Text(1, LogCol::Date), "");
}

TEST_F(HistoryTest, TheGravityOfAYeastComesBackFinerThanItsText) {
    Brew();
    PitchYeast();
    ASSERT_EQ(R().txtFG.Text(), "1.012");
    const double gravity = R().txtFG.Value();
    ASSERT_NE(gravity, 1.012);
    const std::string before = State();
    document->Focus().FocusOn(R().txtFG);
    Set(R().txtFG, "1.020");
    ExpectUndoAndRedo(before);
    ASSERT_TRUE(document->Replay().Undo());
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtFG.Text(), "");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().txtFG.Value(), gravity);
}

// The typed gravity has the same text as the one calculated from the yeast, but another number.
TEST_F(HistoryTest, AYeastThatChangesNoTextGoesBackToTheTypedGravity) {
    Brew();
    Set(R().txtFG, "1.012");
    const std::string before = State();
    PitchYeast();
    ASSERT_EQ(R().txtFG.Text(), "1.012");
    ASSERT_NE(R().txtFG.Value(), 1.012);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtFG.Value(), 1.012);
    ASSERT_TRUE(document->Replay().Undo());
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(Differences(before, State()), "");
}

TEST_F(HistoryTest, AnEscapeKeepsTheGravityOfAYeast) {
    Brew();
    PitchYeast();
    const std::string before = State();
    document->Focus().FocusOn(R().txtFG);
    document->Fields().SetText(R().txtFG, "1.02");
    document->Fields().RestoreField(R().txtFG);
    EXPECT_EQ(Differences(before, State()), "");
    ASSERT_TRUE(document->Replay().Undo());
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(Differences(before, State()), "");
}

TEST_F(HistoryTest, TheTimeOfDryHopsKeepsItsNumber) {
    Grid& hops = R().gridHops;
    document->Cells().SetChecked(hops, 1, HopCol::DryHopped, true);
    Put(hops, 1, HopCol::Time, "45");
    ASSERT_EQ(hops.Number(1, HopCol::Time), 0);
    const std::string before = State();
    document->Cells().SetChecked(hops, 1, HopCol::DryHopped, false);
    EXPECT_EQ(hops.Number(1, HopCol::Time), 45);
    ExpectUndoAndRedo(before);
}

// A recipe from another program may contain numbers that differ from their texts.
TEST_F(HistoryTest, ADeletedRowComesBackWithItsStoredNumbers) {
    host.appendRows = true;
    document->Lines().InsertRowForGrid(R().gridGrain);
    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridGrain, 1, GrainCol::Amount, "8 lb");
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    Put(R().gridGrain, 1, GrainCol::Color, "2");
    Put(R().gridTreatment, 1, TreatmentCol::Amount, "5");
    SaveAs("Odd");
    database->Execute("UPDATE RECIPE_GRAINS SET AMOUNT_DATA = 9 WHERE AMOUNT = '8 lb'");
    database->Execute("UPDATE RECIPE_SALTS SET CA = 20");
    Open("Odd");
    ASSERT_EQ(R().gridGrain.Number(1, GrainCol::Amount), 9);
    const std::string before = State();
    document->Focus().SetCurrentCell(R().gridGrain, 1, 0);
    document->Lines().DeleteRowForGrid(R().gridGrain);
    ExpectUndoAndRedo(before);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.Number(1, GrainCol::Amount), 9);
    document->Focus().SetCurrentCell(R().gridTreatment, 1, 0);
    document->Lines().DeleteRowForGrid(R().gridTreatment);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridTreatment.Number(1, TreatmentCol::FirstIon), 20);
}

TEST_F(HistoryTest, AStepMarksTheDocumentChanged) {
    Set(R().txtName, "A");
    document->Options().Choose("optKeg");
    EXPECT_TRUE(document->Changed());
    SaveAs("A");
    EXPECT_FALSE(document->Changed());
    EXPECT_FALSE(host.IsOn("EnableUndo"));
    EXPECT_FALSE(document->Replay().Undo());
    EXPECT_FALSE(document->Changed());
}

// Commands that change nothing.

TEST_F(HistoryTest, ACommandThatChangesNothingIsNoStep) {
    Grid& grain = R().gridGrain;
    document->Lines().InsertRowForGrid(R().gridLog);
    Put(R().gridLog, 1, LogCol::Date, "3/9/2024");
    Put(grain, 1, GrainCol::Name, "Pale Malt");
    Put(grain, 1, GrainCol::Amount, "8");
    SaveAs("A");
    Put(grain, 1, GrainCol::Color, "4");
    ASSERT_TRUE(document->Replay().Undo());
    SaveAs("A");
    const std::function<void()> commands[] = {
        [&] { document->Edit().Clear(); },
        [&] { document->Edit().Cut(); },
        [&] {
            document->Focus().SetCurrentCell(grain, 1, GrainCol::Amount);
            platform.clipboard.text = "8";
            document->Edit().Paste();
        },
        [&] { document->Picks().Take(CatalogueKind::Grain, "Pale Malt"); },
        [&] {
            document->Cells().PickLogDate({2024, 3, 9});
        },
        [&] {
            document->Focus().FocusOn(R().txtNotes);
            document->Edit().Clear();
            document->Edit().Cut();
        },
    };
    for (const auto& command : commands) {
        document->Focus().FocusOn(grain);
        document->Focus().SetCurrentCell(grain, 1, GrainCol::Points);
        command();
        EXPECT_FALSE(History().CanUndo());
        EXPECT_FALSE(host.IsOn("EnableUndo"));
        EXPECT_FALSE(document->Changed());
    }
}

TEST_F(HistoryTest, ACommandThatChangesNothingLeavesWhatCanBeRedone) {
    Put(R().gridGrain, 1, GrainCol::Amount, "8");
    ASSERT_TRUE(document->Replay().Undo());
    document->Focus().FocusOn(R().gridGrain);
    document->Edit().Clear();
    EXPECT_EQ(History().RedoType(), "Typing");
    EXPECT_TRUE(host.IsOn("EnableRedo"));
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Amount), "8");
}

// Typing is merged with the previous typing, since no step came between.
TEST_F(HistoryTest, ACommandThatChangesNothingDoesNotPartTheTyping) {
    Set(R().txtName, "A");
    R().txtName.Select({1, 0});
    document->Focus().FocusOn(R().txtName);
    document->Edit().Clear();
    Set(R().txtName, "AB");
    EXPECT_EQ(History().StackTop(), 1U);
}

// After an error in the first edit of a command, there is nothing to undo.
TEST_F(HistoryTest, AFaultBeforeTheFirstEditTakesNothingElseBack) {
    Put(R().gridGrain, 1, GrainCol::Amount, "8");
    database->SetStatementHook([](std::string_view) { throw Error("Database", "disk I/O error", 10); });
    EXPECT_THROW(document->Picks().Take(CatalogueKind::Grain, "Pale Malt"), Error);
    database->SetStatementHook({});
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Amount), "8");
    EXPECT_EQ(History().StackTop(), 1U);
    EXPECT_TRUE(document->Changed());
}

TEST_F(HistoryTest, TakingBackAnEntryThatWasNotLeftIsNoChange) {
    Set(R().txtBoilVol, "6");
    SaveAs("A");
    document->Focus().FocusOn(R().txtBoilVol);
    for (const char* text : {"7", "much"}) {
        document->Fields().SetText(R().txtBoilVol, text);
        ASSERT_TRUE(document->Replay().Undo());
        EXPECT_EQ(R().txtBoilVol.Text(), "6");
        EXPECT_FALSE(document->Changed());
    }
    // Restoring a refused entry by undo is not a change either.
    document->Fields().SetText(R().txtBoilVol, "much");
    document->Fields().RestoreField(R().txtBoilVol);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtBoilVol.Text(), "much");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_FALSE(document->Changed());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(HistoryTest, EveryStepThatMovesTheRecipeMarksIt) {
    Grid& grain = R().gridGrain;
    const std::function<void()> edits[] = {
        [&] { Set(R().txtBoilVol, "6"); },
        [&] { document->Fields().SetText(R().txtNotes, "x"); },
        [&] { document->Options().Choose("optRager"); },
        [&] { document->Style().ChangeStyle("Lager"); },
        [&] { Put(grain, 1, GrainCol::Amount, "8"); },
        [&] { document->Cells().SetChecked(R().gridHops, 1, HopCol::DryHopped, true); },
        [&] { document->Lines().InsertRowForGrid(grain); },
        [&] {
            // The blank row is first already; the second click reverses the order.
            document->Lines().ClickHeader(grain, GrainCol::Amount);
            document->Lines().ClickHeader(grain, GrainCol::Amount);
        },
        [&] { document->Lines().DeleteRowForGrid(grain); },
    };
    for (const auto& edit : edits) {
        SaveAs("A");
        edit();
        ASSERT_TRUE(History().CanUndo());
        for (const bool undo : {true, false}) {
            host.log.clear();
            ASSERT_TRUE(undo ? document->Replay().Undo() : document->Replay().Redo());
            EXPECT_THAT(host.log, testing::Contains("EnableSave on"));
        }
    }
}

// Undo does not restore a style that has been deleted since, and then changes nothing.
TEST_F(HistoryTest, AStyleThatIsGoneDoesNotComeBack) {
    document->Style().SetId(kLager);
    SaveAs("A");
    document->Style().ChangeStyle("(None)");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().cmbStyle.Text(), "Lager");
    ASSERT_TRUE(document->Replay().Redo());
    database->Execute("DELETE FROM STYLES WHERE ID = 2");
    document->Notices().NotifyStyleDeleted(kLager);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().cmbStyle.Text(), "(None)");
    EXPECT_EQ(document->StyleID(), 0);
}

}  // namespace
}  // namespace tw::test

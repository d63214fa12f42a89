// Tests of resizing and of changing strength, bitterness and carbonation of a whole recipe, with
// figures calculated by hand.
#include "DocumentState.h"
#include "DocumentTest.h"

namespace tw::test {
namespace {

class Scaling : public DocumentTest {
  protected:
    Scaling() {
        host.askBefore = false;
        New();
        Set(R().txtTotalVol, "5 gal");
        Set(R().txtBoilVol, "5 gal");
        Set(R().txtExtract, "40%");
        // 10 * 36 * 0.4 / 5 = 28.8 points
        Put(R().gridGrain, 1, GrainCol::Amount, "10 lb");
        Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    }
    // Adds a row of that many IBUs, which does not depend on volume or gravity.
    void AddIbus(std::string_view amount) {
        Put(R().gridHops, 1, HopCol::Amount, amount);
        Put(R().gridHops, 1, HopCol::Time, "60");
    }
    // At 68 degrees the beer holds 3.0378 - 0.050062 * 68 + 0.00026555 * 68^2 = 0.8614872 volumes.
    void Prime(std::string_view fermentable, std::string_view amount) {
        Set(R().txtTemp, "68 F");
        Put(R().gridPriming, 1, PrimingCol::Fermentable, fermentable);
        Put(R().gridPriming, 1, PrimingCol::Amount, amount);
    }
    void AnswerQuestions(const std::vector<const char*>& buttons) {
        host.askBefore = true;
        for (const char* button : buttons)
            platform.dialogs.scripts.emplace_back([button](DialogModel& dialog) { dialog.Press(button); });
    }
    // Expects that the document is changed, its history is empty and the commands are updated.
    void ExpectEnding() {
        EXPECT_TRUE(document->Changed());
        EXPECT_TRUE(host.IsOn("EnableSave"));
        EXPECT_FALSE(host.IsOn("EnableUndo"));
        EXPECT_FALSE(host.IsOn("EnableRedo"));
        EXPECT_FALSE(document->Replay().Undo());
    }
    DocumentState State() { return StateOf(*document, host); }
    const std::string& Grain() { return R().gridGrain.Text(1, GrainCol::Amount); }
    const std::string& Sugar() { return R().gridPriming.Text(1, PrimingCol::Amount); }
    const std::string& Hops(int row = 1) { return R().gridHops.Text(row, HopCol::Amount); }
};

TEST_F(Scaling, WithoutAYesNothingHappens) {
    AddIbus("20 IBU");
    Prime("100", "4 oz");
    SaveAs("As It Was");
    const DocumentState before = State();
    AnswerQuestions({"cmdNo", "cmdNo", "cmdNo", "cmdNo"});
    document->Scaling().ScaleRecipe(10, "10 gal", true, true);
    document->Scaling().ScaleOG(1.06, false);
    document->Scaling().ScaleIBU(40);
    document->Scaling().ScaleCO2(3, Asking::Aloud);
    EXPECT_EQ(platform.dialogs.shown, Log(4, "frmCannotUndo"));
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(document->Changed());
}

TEST_F(Scaling, AYesToAllOfThemIsAskedForOnce) {
    host.askBefore = true;
    platform.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        dialog.SetControl("chkDontShow", "yes");
        dialog.Press("cmdYes");
    });
    Prime("100", "4 oz");
    document->Scaling().ScaleRecipe(10, "10", false, false);
    document->Scaling().ScaleOG(1.03, false);
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(Sugar(), "8 oz.");
}

TEST_F(Scaling, EndsTheHistoryAndMarksTheRecipe) {
    SaveAs("Once");
    Put(R().gridGrain, 1, GrainCol::Color, "3");
    document->Replay().Undo();
    EXPECT_TRUE(host.IsOn("EnableRedo"));
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    ExpectEnding();
    EXPECT_EQ(Grain(), "20 lbs.");
    SaveAs("Twice");
    EXPECT_FALSE(document->Changed());
}

TEST_F(Scaling, TextsThatItWritesAreCommitted) {
    Set(R().txtFinalVol, "4.5");
    document->Scaling().ScaleRecipe(10, "40 qt", true, false);
    for (TextBox* box : {&R().txtTotalVol, &R().txtBoilVol, &R().txtFinalVol})
        EXPECT_EQ(box->Committed(), box->Text());
    EXPECT_EQ(R().txtTotalVol.Text(), "40 qt");
    EXPECT_EQ(R().txtTotalVol.Value(), 10);
    EXPECT_EQ(R().txtBoilVol.Text(), "10 gal.");
    EXPECT_EQ(R().txtFinalVol.Text(), "10.5 gal.");
}

TEST_F(Scaling, LeavesPercentagesAndPpgAlone) {
    Put(R().gridHops, 1, HopCol::AlphaAcid, "5%");
    Prime("75%", "4 oz");
    document->Scaling().ScaleRecipe(10, "10", true, false);
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Ppg), "36");
    EXPECT_EQ(R().gridHops.Text(1, HopCol::AlphaAcid), "5%");
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Fermentable), "75%");
    EXPECT_EQ(R().txtExtract.Text(), "40%");
}

// 10 / 3 = 3.333...
TEST_F(Scaling, WhatIsShownIsWhatIsKept) {
    document->Scaling().ScaleRecipe(5.0 / 3, "1 2/3 gal", true, false);
    EXPECT_EQ(Grain(), "3.33 lbs.");
    EXPECT_EQ(R().gridGrain.Number(1, GrainCol::Amount), 3.33);
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Amount), "3.33 lbs.");
    EXPECT_EQ(R().txtBoilVol.Text(), "1.67 gal.");
    EXPECT_EQ(R().txtBoilVol.Value(), 1.67);
}

TEST_F(Scaling, AFinalVolumeOfTheOldSizeTakesTheNewText) {
    Set(R().txtFinalVol, "20 qt");
    document->Scaling().ScaleRecipe(10, "10 gallons", false, false);
    EXPECT_EQ(R().txtFinalVol.Text(), "10 gallons");
    EXPECT_EQ(R().txtFinalVol.Value(), 10);
}

// The amount by which the final volume exceeded the old size is subtracted from the new size.
TEST_F(Scaling, AFinalVolumeAboveTheOldSizeEndsBelowTheNewOne) {
    Set(R().txtFinalVol, "6");
    document->Scaling().ScaleRecipe(10, "10", false, false);
    EXPECT_EQ(R().txtFinalVol.Text(), "9 gal.");
}

TEST_F(Scaling, BlankRowsStayBlank) {
    document->Lines().InsertRowForGrid(R().gridHops);
    document->Lines().InsertRowForGrid(R().gridTreatment);
    document->Scaling().ScaleRecipe(10, "10", false, false);
    EXPECT_EQ(Hops(1), "");
    EXPECT_EQ(Hops(2), "");
    EXPECT_EQ(R().gridTreatment.Text(1, TreatmentCol::Amount), "");
    EXPECT_EQ(R().gridExtract.Text(1, GrainCol::Amount), "");
    EXPECT_EQ(R().gridExtract.Text(2, GrainCol::Amount), "");
}

TEST_F(Scaling, WithoutAVolumeThereIsNoResize) {
    SaveAs("Whole");
    Set(R().txtTotalVol, "");
    const DocumentState before = State();
    EXPECT_TRUE(host.IsOn("EnableUndo"));
    document->Scaling().ScaleRecipe(10, "10", false, false);
    EXPECT_EQ(State(), before);
    EXPECT_TRUE(host.IsOn("EnableUndo"));
}

// Hops that round to zero stop the operation early: the history is kept, but the document is changed.
TEST_F(Scaling, StopsWithItsHistoryWhenNoBitternessIsLeft) {
    AddIbus("0.01 IBU");
    SaveAs("Faint");
    document->Fields().SetText(R().txtTemp, "6");
    ASSERT_TRUE(host.IsOn("EnableUndo"));
    ASSERT_FALSE(document->Changed());
    document->Scaling().ScaleRecipe(1, "1 gal", false, true);
    EXPECT_EQ(Hops(), "0 IBUs");
    EXPECT_EQ(R().txtTotalVol.Text(), "1 gal");
    EXPECT_EQ(Grain(), "2 lbs.");
    EXPECT_TRUE(document->Changed());
    EXPECT_TRUE(host.IsOn("EnableUndo"));
}

// The carbonation was scaled before the stop and finishes as every operation does.
TEST_F(Scaling, IsMarkedByItsCarbonationWhenNoBitternessIsLeft) {
    AddIbus("0.01 IBU");
    Prime("100", "4 oz");
    SaveAs("Faint");
    document->Scaling().ScaleRecipe(1, "1 gal", false, true);
    EXPECT_EQ(Hops(), "0 IBUs");
    EXPECT_EQ(Sugar(), "0.8 oz.");
    ExpectEnding();
}

TEST_F(Scaling, HoldsTheCarbonationOfABottledBeer) {
    Prime("100", "4 oz");
    // 4 * 0.27027 / (5 * 0.133) + 0.8615
    EXPECT_EQ(R().txtCO2.Text(), "2.49 volumes");
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    EXPECT_EQ(Sugar(), "8 oz.");
    EXPECT_EQ(R().txtCO2.Text(), "2.49 volumes");
}

// 4 * 0.27027 / (5 * 0.133) + 0.8615 = 2.4872 volumes
TEST_F(Scaling, ANoToTheSecondQuestionSkipsTheCarbonationAlone) {
    Prime("100", "4 oz");
    AnswerQuestions({"cmdYes"});
    platform.messages.answers = {Answer::No};
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    EXPECT_EQ(platform.dialogs.shown, Log(1, "frmCannotUndo"));
    EXPECT_EQ(Boxes(), Log{"[Keep the Carbonation?] Keep the carbonation of 2.49 volumes?\r\n"
                           "Yes changes the priming sugar or the pressure with the size; "
                           "No leaves them as they are. -> No"});
    EXPECT_EQ(Grain(), "20 lbs.");
    EXPECT_EQ(Sugar(), "4 oz");
    ExpectEnding();
}

// Anything that runs while a question is open, such as autosave, finds the recipe unchanged.
TEST_F(Scaling, BothQuestionsComeBeforeAnythingChanges) {
    Prime("100", "4 oz");
    const DocumentState before = State();
    host.askBefore = true;
    int asked = 0;
    const auto look = [&] {
        ++asked;
        EXPECT_EQ(State(), before);
    };
    platform.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
        look();
        dialog.Press("cmdYes");
    });
    platform.messages.whileAsking = look;
    platform.messages.answers = {Answer::Yes};
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    platform.messages.whileAsking = {};
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Sugar(), "8 oz.");
}

TEST_F(Scaling, ASizeThatLeavesNoFinalVolumeIsRefusedBeforeAnyQuestion) {
    Set(R().txtFinalVol, "8 gal");
    SaveAs("Diluted");
    host.askBefore = true;
    const DocumentState before = State();
    // 2 + 5 - 8, 3 + 5 - 8, and 3.004 + 5 - 8, which rounds to zero
    const std::pair<double, const char*> sizes[] = {{2, "-1"}, {3, "0"}, {3.004, "0"}};
    for (const auto& [size, volume] : sizes) {
        document->Scaling().ScaleRecipe(size, "some", true, true);
        EXPECT_EQ(Boxes(), Log{std::string("[Invalid Entry] The final volume would be ") + volume +
                               " gal. Please enter a larger size."});
    }
    EXPECT_EQ(platform.dialogs.shown, Log{});
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(document->Changed());
    host.askBefore = false;
    document->Scaling().ScaleRecipe(3.01, "3.01 gal", false, false);
    EXPECT_EQ(Boxes(), Log{});
    EXPECT_EQ(R().txtFinalVol.Text(), "0.01 gal.");
}

TEST_F(Scaling, WithoutACarbonationThereIsNoSecondQuestion) {
    AnswerQuestions({"cmdYes"});
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    EXPECT_EQ(platform.dialogs.shown, Log(1, "frmCannotUndo"));
    EXPECT_EQ(Grain(), "20 lbs.");
}

TEST_F(Scaling, StrengthStopsAtWater) {
    Put(R().gridGrain, 1, GrainCol::Ppg, "0");
    SaveAs("Water");
    EXPECT_EQ(R().txtOG.Value(), 1);
    const DocumentState before = State();
    document->Scaling().ScaleOG(1.05, true);
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(document->Changed());
}

TEST_F(Scaling, StrengthDownToWaterEmptiesTheMash) {
    document->Scaling().ScaleOG(1, false);
    EXPECT_EQ(Grain(), "0 lbs.");
    EXPECT_EQ(R().txtOG.Text(), "1.000");
    ExpectEnding();
}

TEST_F(Scaling, TheSameStrengthIsAChangeToo) {
    SaveAs("Same");
    Put(R().gridGrain, 1, GrainCol::Color, "3");
    document->Scaling().ScaleOG(R().txtOG.Value(), false);
    EXPECT_EQ(Grain(), "10 lbs.");
    ExpectEnding();
}

TEST_F(Scaling, BitternessStopsAtNone) {
    AddIbus("0 IBU");
    SaveAs("Gruit");
    document->Scaling().ScaleIBU(30);
    EXPECT_EQ(Hops(), "0 IBU");
    EXPECT_FALSE(document->Changed());
}

// A figure is scaled from its number, even where its text is less precise.
TEST_F(Scaling, BitternessScalesFromTheFullFigure) {
    AddIbus("16.4 IBU");
    EXPECT_EQ(R().txtIBU.Text(), "16");
    document->Scaling().ScaleIBU(32.8);
    EXPECT_EQ(Hops(), "32.8 IBUs");
    EXPECT_EQ(R().gridHops.At(1, HopCol::Amount).value, (CellValue{CellValue::Kind::BitternessUnits, 32.8}));
    ExpectEnding();
}

TEST_F(Scaling, TheTotalOfTheHopsFollowsTheirKind) {
    AddIbus("2 AAU");
    document->Scaling().ScaleIBU(R().txtIBU.Value() * 3);
    EXPECT_EQ(Hops(1), "6 AAUs");
    EXPECT_EQ(Hops(2), "6 AAUs");
    EXPECT_EQ(R().gridHops.At(1, HopCol::Amount).value, (CellValue{CellValue::Kind::AlphaAcidUnits, 6}));
}

// (2.5 - 0.8614872) / 1.6256842 * 4 = 4.03156...
TEST_F(Scaling, CarbonationScalesAllSugars) {
    Prime("100", "3 oz");
    document->Focus().SetCurrentCell(R().gridPriming, 1, 0);
    document->Lines().InsertRowForGrid(R().gridPriming);
    Put(R().gridPriming, 1, PrimingCol::Fermentable, "50");
    Put(R().gridPriming, 1, PrimingCol::Amount, "2 oz");
    document->Lines().InsertRowForGrid(R().gridPriming);
    Put(R().gridPriming, 1, PrimingCol::Amount, "0 oz");
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    // (2.5 - 0.8614872) / (4 * 0.27027 / 0.665) = 1.00789
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Amount), "0 oz");
    EXPECT_EQ(R().gridPriming.Text(2, PrimingCol::Amount), "2.02 oz.");
    EXPECT_EQ(R().gridPriming.Text(3, PrimingCol::Amount), "3.02 oz.");
    EXPECT_EQ(R().gridPriming.Number(3, PrimingCol::Amount), 3.02);
    ExpectEnding();
}

TEST_F(Scaling, CarbonationOfExactlyWhatIsLeftTakesAllSugarAway) {
    Prime("100", "4 oz");
    document->Scaling().ScaleCO2(R().gridPriming.Number(2, PrimingCol::Volumes), Asking::Aloud);
    EXPECT_EQ(Sugar(), "0 oz.");
    EXPECT_EQ(R().txtCO2.Text(), "0.86 volumes");
}

TEST_F(Scaling, CarbonationBelowWhatIsLeftIsImpossible) {
    Prime("100", "4 oz");
    SaveAs("Bubbles");
    const DocumentState before = State();
    document->Scaling().ScaleCO2(0.86, Asking::Aloud);
    EXPECT_EQ(Boxes(), Log{"[Error] Desired carbonation impossible with the given temperature.\r\n"
                           "Try again with a higher value."});
    document->Scaling().ScaleCO2(0.86, Asking::Quietly);
    EXPECT_EQ(Boxes(), Log{});
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(document->Changed());
}

TEST_F(Scaling, CarbonationWithoutAFermentableSugarIsImpossible) {
    Prime("0%", "");
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(Boxes(), Log{"[Error] Desired carbonation impossible. Please specify Fermentable% value\r\n"
                           "for at least one priming sugar."});
    document->Scaling().ScaleCO2(2.5, Asking::Quietly);
    EXPECT_EQ(Boxes(), Log{});
    EXPECT_EQ(Sugar(), "");
}

// (2.5 - 0.8614872) / 0.27027 * 0.133 * 5 * 100 / 80 = 5.0395 in 5 gallons.
TEST_F(Scaling, CarbonationFillsTheFirstSugarThatFerments) {
    Prime("0%", "");
    document->Focus().SetCurrentCell(R().gridPriming, 2, 0);
    host.appendRows = true;
    document->Lines().InsertRowForGrid(R().gridPriming);
    Put(R().gridPriming, 2, PrimingCol::Fermentable, "80");
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(R().gridPriming.Text(1, PrimingCol::Amount), "");
    EXPECT_EQ(R().gridPriming.Text(2, PrimingCol::Amount), "5.04 oz.");
    EXPECT_EQ(R().txtCO2.Text(), "2.50 volumes");
}

TEST_F(Scaling, CarbonationIsThatOfTheFinalVolume) {
    Prime("80%", "");
    Set(R().txtFinalVol, "10 gal");
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(Sugar(), "10.08 oz.");
}

class KegScaling : public Scaling {
  protected:
    KegScaling() {
        Set(R().txtTemp, "38 F");
        document->Options().Choose("optKeg");
    }
    const std::string& Pressure() { return R().gridPressure.Text(1, PressureCol::Pressure); }
};

// 11.246 psi; rounded to 11.25 psi, it yields 2.5004 volumes.
TEST_F(KegScaling, CarbonationSetsThePressure) {
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(Pressure(), "11.25 psi");
    EXPECT_EQ(R().gridPressure.Number(1, PressureCol::Pressure), 11.25);
    EXPECT_NEAR(R().gridPressure.Number(1, PressureCol::Volumes), 2.500365, 1e-6);
    EXPECT_EQ(R().txtCO2.Text(), "2.50 volumes");
    ExpectEnding();
}

TEST_F(KegScaling, ANegativePressureIsImpossible) {
    Put(R().gridPressure, 1, PressureCol::Pressure, "11 psi");
    SaveAs("Keg");
    document->Scaling().ScaleCO2(1, Asking::Aloud);
    EXPECT_EQ(Boxes(), Log{"[Error] Desired carbonation impossible with the given temperature.\r\n"
                           "Try again with a higher value."});
    EXPECT_EQ(Pressure(), "11 psi");
    EXPECT_FALSE(document->Changed());
}

// At 60 °F the curve ends at 107.0108 volumes and 770.4162 psi. The 770.42 psi that would
// be shown are beyond it.
TEST_F(KegScaling, APressureBeyondTheCurveIsRefusedAsWhenItIsTyped) {
    Set(R().txtTemp, "60 F");
    const DocumentState before = State();
    document->Scaling().ScaleCO2(107.0108, Asking::Aloud);
    EXPECT_EQ(Boxes(), Log{"[Error calculating carbonation] Please enter a more reasonable pressure."});
    document->Scaling().ScaleCO2(107.0108, Asking::Quietly);
    EXPECT_EQ(Boxes(), Log{});
    EXPECT_EQ(Differences(before.all, State().all), "");
    EXPECT_TRUE(host.IsOn("EnableUndo"));
}

TEST_F(KegScaling, ResizingHoldsThePressure) {
    Put(R().gridPressure, 1, PressureCol::Pressure, "11.25 psi");
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    EXPECT_EQ(Pressure(), "11.25 psi");
    EXPECT_EQ(R().txtCO2.Text(), "2.50 volumes");
}

class FaultyScaling : public Scaling {
  protected:
    void ExpectFault(int number, const std::function<void()>& scale) {
        const DocumentState before = State();
        EXPECT_TRUE(host.IsOn("EnableUndo"));
        try {
            scale();
            FAIL() << "no fault";
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), number);
        }
        EXPECT_EQ(Differences(before.all, State().all), "");
        EXPECT_TRUE(document->Replay().Undo());
    }
};

TEST_F(FaultyScaling, AmountsBeyondANumberLeaveAllAsBefore) {
    AddIbus("0.5 IBU");
    ExpectFault(kOverflowNumber, [&] { document->Scaling().ScaleRecipe(1e308, "huge", true, true); });
    ExpectFault(kOverflowNumber, [&] { document->Scaling().ScaleOG(1e308, false); });
    ExpectFault(kOverflowNumber, [&] { document->Scaling().ScaleIBU(1e308); });
}

// A boil volume that rounds to zero has no boil gravity: the change is undone halfway.
TEST_F(FaultyScaling, ABoilOfNothingLeavesAllAsBefore) {
    ExpectFault(kDivisionByZeroNumber, [&] { document->Scaling().ScaleRecipe(0.001, "0.001", true, false); });
}

// The second question has already been answered with yes.
TEST_F(FaultyScaling, AFaultBehindTheCarbonationKeepsTheHistory) {
    Prime("100", "4 oz");
    AnswerQuestions({"cmdYes"});
    platform.messages.answers = {Answer::Yes};
    ExpectFault(kDivisionByZeroNumber, [&] { document->Scaling().ScaleRecipe(0.001, "0.001", true, false); });
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(Boxes().size(), 1u);
}

TEST_F(Scaling, HoldsTheWindowUntilItIsDone) {
    class View : public DocumentView {
      public:
        bool FlushEditors() override { return true; }
        void HoldRedraw(bool hold) override {
            holds += hold ? 1 : -1;
            most = std::max(most, holds);
        }
        int holds = 0, most = 0;
    } view;
    document->SetView(&view);
    document->Scaling().ScaleRecipe(10, "10 gal", false, false);
    EXPECT_EQ(view.holds, 0);
    EXPECT_EQ(view.most, 1);
    EXPECT_THROW(document->Scaling().ScaleRecipe(1e308, "huge", false, false), Error);
    EXPECT_EQ(view.holds, 0);
    document->SetView(nullptr);
}

// With the setting for it, a scaling is one step of the history.
class UndoableScaling : public Scaling {
  protected:
    UndoableScaling() {
        host.askBefore = true;
        host.scaling.undoable = true;
    }
};

TEST_F(UndoableScaling, AsksNothingAndIsOneStepBackAndForth) {
    AddIbus("20 IBU");
    Prime("100", "4 oz");
    Set(R().txtFinalVol, "4.5 gal");
    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridTreatment, 1, TreatmentCol::Name, "Gypsum");
    Put(R().gridTreatment, 1, TreatmentCol::Amount, "5 g");
    SaveAs("Once");
    const DocumentState before = State();
    document->Scaling().ScaleRecipe(10, "10 gal", true, true);
    const DocumentState after = State();
    EXPECT_EQ(Grain(), "20 lbs.");
    // The question about the carbonation has not been asked either: it is kept.
    EXPECT_EQ(R().txtCO2.Text(), [&] {
        document->Replay().Undo();
        return R().txtCO2.Text();
    }());
    EXPECT_EQ(Differences(before.all, State().all), "");
    EXPECT_FALSE(host.IsOn("EnableUndo"));
    EXPECT_EQ(host.redoName, "Resize Recipe");
    EXPECT_TRUE(document->Changed());
    EXPECT_TRUE(document->Replay().Redo());
    EXPECT_EQ(Differences(after.all, State().all), "");
    EXPECT_EQ(host.undoName, "Resize Recipe");
    EXPECT_EQ(platform.dialogs.shown, Log{});
    EXPECT_EQ(Boxes(), Log{});
}

// The step of a scaling holds amounts only, whatever was prepared before it.
TEST_F(UndoableScaling, ARowThatIsStillToBeTypedStaysOutOfTheStep) {
    const int rows = R().gridGrain.DataRows();
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    document->Scaling().ScaleRecipe(10, "10 gal", true, false, true);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(document->History().UndoType(), "Insert Row");
    EXPECT_EQ(R().gridGrain.DataRows(), rows + 1);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.DataRows(), rows);
}

TEST_F(UndoableScaling, EachKindHasItsName) {
    AddIbus("20 IBU");
    Prime("100", "4 oz");
    document->Scaling().ScaleOG(1.06, false);
    EXPECT_EQ(host.undoName, "Adjust Strength");
    document->Scaling().ScaleIBU(40);
    EXPECT_EQ(host.undoName, "Adjust Bitterness");
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(host.undoName, "Adjust Carbonation");
    for (int step = 0; step < 3; ++step) EXPECT_TRUE(document->Replay().Undo());
    EXPECT_EQ(Grain(), "10 lb");
    EXPECT_EQ(Hops(), "20 IBU");
    EXPECT_EQ(Sugar(), "4 oz");
}

TEST_F(UndoableScaling, APressureComesBack) {
    document->Options().Choose("optKeg");
    Set(R().txtTemp, "38 F");
    Put(R().gridPressure, 1, PressureCol::Pressure, "10 psi");
    const DocumentState before = State();
    document->Scaling().ScaleCO2(2.8, Asking::Aloud);
    EXPECT_NE(R().gridPressure.Text(1, PressureCol::Pressure), "10 psi");
    EXPECT_TRUE(document->Replay().Undo());
    EXPECT_EQ(Differences(before.all, State().all), "");
}

TEST_F(UndoableScaling, WhatChangesNothingLeavesNoStepAndKeepsTheRedo) {
    Prime("100", "4 oz");
    SaveAs("Whole");
    Put(R().gridGrain, 1, GrainCol::Color, "3");
    document->Replay().Undo();
    const std::size_t position = document->History().StackPosition();
    const DocumentState before = State();
    // 0.8614872 volumes are in the beer.
    document->Scaling().ScaleCO2(0.5, Asking::Quietly);
    EXPECT_THROW(document->Scaling().ScaleRecipe(1e308, "much", true, false), Error);
    document->Scaling().ScaleIBU(40);
    EXPECT_EQ(State(), before);
    EXPECT_EQ(document->History().StackPosition(), position);
    EXPECT_TRUE(host.IsOn("EnableRedo"));
}

TEST_F(UndoableScaling, WithoutTheSettingStillEndsTheHistory) {
    document->Scaling().ScaleRecipe(10, "10 gal", true, false);
    host.scaling.undoable = false;
    host.askBefore = false;
    document->Scaling().ScaleRecipe(5, "5 gal", true, false);
    ExpectEnding();
}

// With the setting for it, amounts keep the units in which they were typed.
class TypedUnits : public Scaling {
  protected:
    TypedUnits() { host.scaling.keepTypedUnits = true; }
};

TEST_F(TypedUnits, StayInEveryGridAndVolume) {
    Put(R().gridGrain, 1, GrainCol::Amount, "8 lb 4 oz");
    Put(R().gridExtract, 1, GrainCol::Amount, "250 g");
    AddIbus("8 AAU");
    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridTreatment, 1, TreatmentCol::Amount, "0.1 oz");
    Prime("100", "113 g");
    Set(R().txtTotalVol, "20 L");
    Set(R().txtBoilVol, "25 L");
    Set(R().txtFinalVol, "18 L");
    document->Scaling().ScaleRecipe(40 / 3.785, "40 L", true, false);
    EXPECT_EQ(Grain(), "16 lb 8 oz");
    EXPECT_EQ(R().gridGrain.Number(1, GrainCol::Amount), 16.5);
    EXPECT_EQ(R().gridExtract.Text(1, GrainCol::Amount), "500 g");
    EXPECT_EQ(R().gridExtract.Number(1, GrainCol::Amount), 500 / 453.59);
    EXPECT_EQ(Hops(), "16 AAU");
    EXPECT_EQ(R().gridTreatment.Text(1, TreatmentCol::Amount), "0.2 oz");
    // 113 g in 18 L; the final volume of 42 L needs 42 / 18 times that: 263.67 g.
    EXPECT_EQ(Sugar(), "263.7 g");
    EXPECT_EQ(R().txtBoilVol.Text(), "50 L");
    // The 2 L lost are added to the new size.
    EXPECT_EQ(R().txtFinalVol.Text(), "42 L");
    EXPECT_EQ(R().txtFinalVol.Value(), 42 / 3.785);
    EXPECT_FALSE(R().gridGrain.At(1, GrainCol::Amount).ownNumber);
    // The total stays in the unit of its column.
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Amount), "16.5 lbs.");
}

TEST_F(TypedUnits, StayForAPressure) {
    document->Options().Choose("optKeg");
    Set(R().txtTemp, "38 F");
    Put(R().gridPressure, 1, PressureCol::Pressure, "70 kPa");
    // 2.5 volumes need 11.246 psi, which are 77.5 kPa.
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(R().gridPressure.Text(1, PressureCol::Pressure), "77.5 kPa");
    EXPECT_NEAR(R().gridPressure.Number(1, PressureCol::Pressure), 77.5 / 6.894757, 1e-9);
}

TEST_F(TypedUnits, AnAmountWithoutOneTakesTheUsualForm) {
    // The first sugar gets an amount: (2.5 - 0.8614872) / 0.27027 * 0.133 * 5 = 4.03 oz.
    Prime("100", "");
    document->Scaling().ScaleCO2(2.5, Asking::Aloud);
    EXPECT_EQ(Sugar(), "4.03 oz.");
}

// An imported amount may have another number than its text tells; the number counts.
TEST_F(TypedUnits, FollowTheNumberBehindTheText) {
    R().gridGrain.SetValue(1, GrainCol::Amount, CellValue::Of(12));
    document->Scaling().ScaleRecipe(10, "10 gal", true, false);
    EXPECT_EQ(Grain(), "24 lb");
}

// Where the choice about the carbonation is made with the size, it is not asked for.
TEST_F(Scaling, AChoiceAboutTheCarbonationNeedsNoQuestion) {
    Prime("100", "4 oz");
    AnswerQuestions({"cmdYes", "cmdYes"});
    document->Scaling().ScaleRecipe(10, "10", false, false, false);
    EXPECT_EQ(Sugar(), "4 oz");
    document->Scaling().ScaleRecipe(20, "20", false, false, true);
    EXPECT_EQ(Sugar(), "8 oz.");
    EXPECT_EQ(Boxes(), Log{});
}

}  // namespace
}  // namespace tw::test

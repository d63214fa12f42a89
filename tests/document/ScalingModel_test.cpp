// Tests of the scaling dialogs without their windows.
#include "document/ScalingModel.h"

#include "DocumentTest.h"

namespace tw::test {
namespace {

class ScalingDialogs : public testing::Test {
  protected:
    // Enters a text and presses OK. Returns the message, empty if there was none.
    std::string Enter(ScalingModel& dialog, const std::string& text) {
        EXPECT_TRUE(dialog.SetControl(dialog.BoxName(), text));
        EXPECT_TRUE(dialog.Press("OKButton"));
        const Log boxes = messages.TakeLog();
        EXPECT_LE(boxes.size(), 1u);
        EXPECT_EQ(dialog.Cancelled(), dialog.IsOpen());
        return boxes.empty() ? "" : boxes[0];
    }
    std::string Enter(Scaling what, const std::string& text) {
        ScalingModel dialog(what, "", messages);
        return Enter(dialog, text);
    }
    MessageRecorder messages;
};

std::string ControlsOf(const DialogModel& dialog) {
    std::string line = dialog.FormName() + ":";
    for (const DialogControl& control : dialog.Controls())
        line.append(" ").append(control.name).append("=").append(control.text);
    return line;
}

TEST_F(ScalingDialogs, ShowThePresentFigureAndStartUnchecked) {
    EXPECT_EQ(ControlsOf(ScalingModel(Scaling::Size, "5 gal", messages)),
              "frmResizeRecipe: lblCurSize=5 gal txtNewSize= chkScaleBV=no chkPreserveIBU=no");
    EXPECT_EQ(ControlsOf(ScalingModel(Scaling::Strength, "1.050", messages)),
              "frmChangeOG: lblCurOG=1.050 txtNewOG= chkPreserveIBU=no");
    EXPECT_EQ(ControlsOf(ScalingModel(Scaling::Bitterness, "30", messages)),
              "frmChangeIBU: lblCurIBU=30 txtNewIBU=");
    EXPECT_EQ(ControlsOf(ScalingModel(Scaling::Carbonation, "2.50 volumes", messages)),
              "frmChangeCO2: lblCurCO2=2.50 volumes txtNewCO2=");
}

TEST_F(ScalingDialogs, GiveTheirResults) {
    ScalingModel size(Scaling::Size, "5 gal", messages);
    EXPECT_TRUE(size.SetControl("chkScaleBV", "yes"));
    EXPECT_TRUE(size.SetControl("chkPreserveIBU", "yes"));
    EXPECT_EQ(Enter(size, "38 qt"), "");
    EXPECT_EQ(size.NewValue(), 9.5);
    EXPECT_EQ(size.NewText(), "38 qt");
    EXPECT_TRUE(size.ScaleBoilVol() && size.PreserveIBU());
    ScalingModel strength(Scaling::Strength, "1.050", messages);
    EXPECT_EQ(Enter(strength, "1.060 SG"), "");
    EXPECT_EQ(strength.NewValue(), 1.06);
    EXPECT_FALSE(strength.PreserveIBU());
    ScalingModel bitterness(Scaling::Bitterness, "30", messages);
    EXPECT_EQ(Enter(bitterness, "0 IBUs"), "");
    EXPECT_EQ(bitterness.NewValue(), 0);
    ScalingModel carbonation(Scaling::Carbonation, "0 volumes", messages);
    EXPECT_EQ(Enter(carbonation, "2 1/2 vols"), "");
    EXPECT_EQ(carbonation.NewValue(), 2.5);
}

TEST_F(ScalingDialogs, RefuseWhatIsNoSuchQuantity) {
    EXPECT_EQ(Enter(Scaling::Size, "much"), "[Invalid Entry] Please enter a valid volume");
    EXPECT_EQ(Enter(Scaling::Size, "0 gal"), "[Invalid Entry] Please enter a positive volume");
    EXPECT_EQ(Enter(Scaling::Strength, "12 %"), "[Invalid Entry] Please enter a valid gravity");
    EXPECT_EQ(Enter(Scaling::Strength, "-1"), "[Invalid Entry] Please enter a positive gravity");
    EXPECT_EQ(Enter(Scaling::Strength, "0.9999"),
              "[Invalid Entry] Gravity cannot be less than 1.0 (0 deg. Plato)");
    EXPECT_EQ(Enter(Scaling::Strength, "1"), "");
    EXPECT_EQ(Enter(Scaling::Bitterness, "30 oz"), "[Invalid Entry] Please enter a valid IBU value");
    EXPECT_EQ(Enter(Scaling::Bitterness, "-1"), "[Invalid Entry] Please enter a positive IBU value");
    EXPECT_EQ(Enter(Scaling::Carbonation, "2 oz"), "[Invalid Entry] Please enter a valid carbonation value");
    EXPECT_EQ(Enter(Scaling::Carbonation, "-1"), "[Invalid Entry] Please enter a positive carbonation value");
    EXPECT_EQ(Enter(Scaling::Size, "1/0"), "[Error] Division by zero (11)");
    EXPECT_EQ(Enter(Scaling::Carbonation, std::string(400, '9')), "[Error] Overflow (6)");
}

TEST_F(ScalingDialogs, GoBackToTheLastGoodText) {
    ScalingModel dialog(Scaling::Size, "5 gal", messages);
    dialog.SetControl("txtNewSize", "6 gal");
    EXPECT_TRUE(dialog.LeaveBox());
    dialog.SetControl("txtNewSize", "six");
    EXPECT_FALSE(dialog.LeaveBox());
    EXPECT_EQ(messages.TakeLog(), Log{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(dialog.Entry(), "6 gal");
    EXPECT_TRUE(dialog.LeaveBox());
    EXPECT_EQ(Enter(dialog, "seven"), "[Invalid Entry] Please enter a valid volume");
    EXPECT_EQ(dialog.Entry(), "6 gal");
    EXPECT_TRUE(dialog.IsOpen());
    dialog.Press("OKButton");
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.NewValue(), 6);
}

TEST_F(ScalingDialogs, LeavingAnUntouchedBoxSaysNothing) {
    for (const Scaling what : {Scaling::Size, Scaling::Strength, Scaling::Bitterness, Scaling::Carbonation}) {
        ScalingModel dialog(what, "", messages);
        EXPECT_TRUE(dialog.LeaveBox());
    }
    EXPECT_EQ(messages.TakeLog(), Log{});
}

TEST_F(ScalingDialogs, StayOpenWhileTheBoxIsEmpty) {
    for (const char* blank : {"", "  "})
        for (const Scaling what :
             {Scaling::Size, Scaling::Strength, Scaling::Bitterness, Scaling::Carbonation}) {
            ScalingModel dialog(what, "", messages);
            EXPECT_EQ(Enter(dialog, blank), "");
            EXPECT_TRUE(dialog.IsOpen());
        }
}

TEST_F(ScalingDialogs, BlanksAloneAreAnEmptyBox) {
    for (const Scaling what : {Scaling::Size, Scaling::Strength, Scaling::Bitterness, Scaling::Carbonation}) {
        ScalingModel dialog(what, "", messages);
        dialog.SetControl(dialog.BoxName(), "   ");
        EXPECT_TRUE(dialog.LeaveBox());
        EXPECT_EQ(dialog.Entry(), "");
        EXPECT_EQ(messages.TakeLog(), Log{});
    }
}

TEST_F(ScalingDialogs, ASizeCanBeRefusedByTheRecipe) {
    ScalingModel dialog(Scaling::Size, "5 gal", messages);
    dialog.SetSizeCheck([](double gallons) { return gallons < 4 ? std::string("Too small.") : ""; });
    EXPECT_EQ(Enter(dialog, "3 gal"), "[Invalid Entry] Too small.");
    EXPECT_EQ(dialog.Entry(), "");
    EXPECT_EQ(Enter(dialog, "none"), "[Invalid Entry] Please enter a valid volume");
    EXPECT_EQ(Enter(dialog, "16 qt"), "");
    EXPECT_EQ(dialog.NewValue(), 4);
}

TEST_F(ScalingDialogs, ACheckBoxLeavesTheBox) {
    ScalingModel dialog(Scaling::Size, "5 gal", messages);
    dialog.SetControl("txtNewSize", "six");
    EXPECT_TRUE(dialog.SetControl("chkScaleBV", "yes"));
    EXPECT_EQ(messages.TakeLog(), Log{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(dialog.Entry(), "");
    EXPECT_TRUE(dialog.ScaleBoilVol());
}

TEST_F(ScalingDialogs, KnowTheirOwnControlsAlone) {
    ScalingModel og(Scaling::Strength, "1.050", messages), ibu(Scaling::Bitterness, "30", messages);
    EXPECT_FALSE(og.SetControl("chkScaleBV", "yes"));
    EXPECT_FALSE(og.SetControl("chkPreserveIBU", "maybe"));
    EXPECT_FALSE(og.SetControl("lblCurOG", "1.060"));
    EXPECT_FALSE(ibu.SetControl("chkPreserveIBU", "yes"));
    EXPECT_FALSE(ibu.Press("cmdOK"));
}

TEST_F(ScalingDialogs, CancelAndTheCloseBoxCancel) {
    ScalingModel a(Scaling::Size, "5", messages), b(Scaling::Size, "5", messages);
    a.SetControl("txtNewSize", "six");
    EXPECT_TRUE(a.Press("CancelButton"));
    EXPECT_TRUE(a.Cancelled());
    EXPECT_FALSE(a.IsOpen());
    b.CloseBox();
    EXPECT_TRUE(b.Cancelled());
    EXPECT_FALSE(b.IsOpen());
    EXPECT_EQ(messages.TakeLog(), Log{});
}

class ScalingStart : public DocumentTest {};

TEST_F(ScalingStart, IsTheTextShownWhereThereIsOne) {
    New();
    for (const Scaling what : {Scaling::Size, Scaling::Strength, Scaling::Bitterness, Scaling::Carbonation})
        EXPECT_EQ(CurrentFigure(*document, what), std::nullopt);
    Set(R().txtTotalVol, "20 qt");
    Set(R().txtBoilVol, "20 qt");
    Set(R().txtExtract, "40%");
    Put(R().gridGrain, 1, GrainCol::Amount, "10 lb");
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    Put(R().gridHops, 1, HopCol::Amount, "20 IBU");
    Put(R().gridHops, 1, HopCol::Time, "60");
    EXPECT_EQ(CurrentFigure(*document, Scaling::Size), "20 qt");
    EXPECT_EQ(CurrentFigure(*document, Scaling::Strength), "1.029");
    EXPECT_EQ(CurrentFigure(*document, Scaling::Bitterness), "20");
}

TEST_F(ScalingStart, OfTheCarbonationIsNothingToSpeakOfWithoutAFigure) {
    New();
    document->Options().Choose("optKeg");
    Set(R().txtTemp, "38");
    EXPECT_EQ(R().txtCO2.Text(), "");
    EXPECT_EQ(CurrentFigure(*document, Scaling::Carbonation), "0 volumes");
    Put(R().gridPressure, 1, PressureCol::Pressure, "11.25");
    EXPECT_EQ(CurrentFigure(*document, Scaling::Carbonation), "2.50 volumes");
}

TEST_F(ScalingStart, DoesWhatTheDialogSays) {
    New();
    host.askBefore = false;
    Set(R().txtTotalVol, "5");
    Set(R().txtBoilVol, "6");
    ScalingModel dialog(Scaling::Size, "5", platform.messages);
    dialog.SetControl("chkScaleBV", "yes");
    dialog.SetControl("txtNewSize", "40 qt");
    dialog.Press("OKButton");
    Scale(*document, dialog);
    EXPECT_EQ(R().txtTotalVol.Text(), "40 qt");
    EXPECT_EQ(R().txtBoilVol.Text(), "12 gal.");
}

// A window starts with the choices of the last time.
TEST_F(ScalingDialogs, StartWithTheRememberedChoices) {
    ScalingModel size(Scaling::Size, "5 gal", messages);
    size.SetRemembered({true, false, true}, true);
    EXPECT_EQ(size.ChoicesToRemember(), std::nullopt);
    size.StartWithRemembered();
    EXPECT_TRUE(size.ScaleBoilVol());
    EXPECT_FALSE(size.PreserveIBU());
    EXPECT_EQ(size.KeepCarbonation(), true);
    EXPECT_TRUE(size.SetControl("chkScaleBV", "no"));
    EXPECT_TRUE(size.SetControl("chkKeepCarbonation", "no"));
    EXPECT_EQ(Enter(size, "10 gal"), "");
    EXPECT_EQ(size.ChoicesToRemember(), (ScalingChoices{false, false, false}));
}

TEST_F(ScalingDialogs, LeaveAloneWhatTheyDoNotShow) {
    ScalingModel strength(Scaling::Strength, "1.050", messages);
    strength.SetRemembered({false, true, false}, true);
    strength.StartWithRemembered();
    EXPECT_TRUE(strength.PreserveIBU());
    EXPECT_FALSE(strength.SetControl("chkKeepCarbonation", "yes"));
    EXPECT_EQ(Enter(strength, "1.060"), "");
    EXPECT_EQ(strength.ChoicesToRemember(), (ScalingChoices{false, true, false}));
    ScalingModel flat(Scaling::Size, "5 gal", messages);
    flat.SetRemembered({}, false);
    flat.StartWithRemembered();
    EXPECT_EQ(flat.KeepCarbonation(), std::nullopt);
    EXPECT_FALSE(flat.SetControl("chkKeepCarbonation", "no"));
    EXPECT_EQ(flat.ChoicesToRemember(), ScalingChoices());
}

// A script finds the described controls, and may answer the question about the carbonation in advance.
TEST_F(ScalingDialogs, DoNotListTheCarbonation) {
    ScalingModel size(Scaling::Size, "5 gal", messages);
    size.SetRemembered({}, true);
    EXPECT_EQ(ControlsOf(size),
              "frmResizeRecipe: lblCurSize=5 gal txtNewSize= chkScaleBV=no chkPreserveIBU=no");
    EXPECT_EQ(size.KeepCarbonation(), std::nullopt);
    EXPECT_FALSE(size.SetControl("chkKeepCarbonation", "maybe"));
    EXPECT_TRUE(size.SetControl("chkKeepCarbonation", "yes"));
    EXPECT_EQ(size.KeepCarbonation(), true);
}

}  // namespace
}  // namespace tw::test

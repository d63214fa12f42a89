// Tests of the options dialog: what it shows, what it refuses, and what reaches the settings and when.
#include "shell/OptionsModel.h"

#include <algorithm>
#include <gmock/gmock.h>

#include "shell/ShellTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;

class OptionsModelTest : public ShellTest {
  protected:
    Settings& S() { return shell.CurrentSettings(); }
    OptionsModel Open() { return OptionsModel(shell.SettingsNow(), *shell.DB(), outside.messages); }
    // Enters a text into the focused field and presses OK. Returns true if the dialog has closed.
    bool Passes(std::string_view field, std::string_view text) {
        OptionsModel dialog = Open();
        EXPECT_TRUE(dialog.SetControl(field, text));
        EXPECT_TRUE(dialog.Press("cmdOK"));
        return !dialog.IsOpen();
    }
    // Returns the messages for an entry. The dialog must stay open.
    Strings Refusal(std::string_view field, std::string_view text) {
        EXPECT_FALSE(Passes(field, text)) << text;
        return outside.messages.TakeLog();
    }
    void AddProfiles() {
        for (const char* name : {"Pilsen", "Burton"})
            shell.DB()->Execute("INSERT INTO WATER_PROFILES (NAME) VALUES (" + SqlText(name) + ")");
    }
};

TEST_F(OptionsModelTest, ShowsTheDefaultsOfAnEmptyStore) {
    std::string shown;
    for (const DialogControl& control : Open().Controls()) shown += control.name + "=" + control.text + "\n";
    EXPECT_EQ(shown,
              "cmbHopForm=Pellet\n"
              "chkHopSocks=yes\n"
              "cmbIBUMethod=Tinseth\n"
              "txtExtract=40%\n"
              "txtHopExtraction=1.0\n"
              "txtBoilVol=\n"
              "txtTotalVol=\n"
              "cmbWaterProfile=\n"
              "cmbPackaging=Bottling\n"
              "cmbReportType=Text\n"
              "chkCopyHeaders=no\n"
              "chkPasteBlockSize=no\n"
              "chkAutoSave=no\n"
              "txtSaveInc=5\n"
              "chkAskNonUndoableChange=yes\n"
              "chkQuickPrint=yes\n"
              "optIcons(0)=yes\n"
              "optIcons(1)=no\n"
              "optIcons(2)=no\n"
              "optButtons(0)=yes\n"
              "optButtons(1)=no\n"
              "picCalcBackground=65535\n"
              "picCalcForeground=1\n"
              "picSumBackground=65280\n"
              "picSumForeground=1\n");
}

// The boxes that later versions added are listed only while they differ from their defaults.
TEST_F(OptionsModelTest, ListsLaterBoxesOnlyWhileTheyDiffer) {
    const auto lists = [&](std::string_view name) {
        const std::vector<DialogControl> controls = Open().Controls();
        return std::ranges::find(controls, name, &DialogControl::name) != controls.end();
    };
    EXPECT_FALSE(lists("chkUndoScaling"));
    EXPECT_FALSE(lists("chkKeepTypedUnits"));
    S().keepTypedUnits = true;
    EXPECT_FALSE(lists("chkUndoScaling"));
    EXPECT_TRUE(lists("chkKeepTypedUnits"));
    EXPECT_FALSE(lists("chkFigureStrip"));
    OptionsModel dialog = Open();
    EXPECT_TRUE(dialog.SetControl("chkFigureStrip", "no"));
    dialog.Press("cmdOK");
    EXPECT_FALSE(S().figureStrip);
    EXPECT_TRUE(lists("chkFigureStrip"));
}

TEST_F(OptionsModelTest, IsShownByItsMenuItem) {
    EXPECT_TRUE(shell.RunMenu("mnuToolsOptions"));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmOptions"});
}

TEST_F(OptionsModelTest, OkTakesEveryControlIntoTheSettings) {
    AddProfiles();
    OptionsModel dialog = Open();
    for (const auto& [name, text] :
         std::vector<std::pair<std::string, std::string>>{{"cmbHopForm", "Leaf"},
                                                          {"chkHopSocks", "no"},
                                                          {"cmbIBUMethod", "Rager"},
                                                          {"txtExtract", "72%"},
                                                          {"txtHopExtraction", "0.9"},
                                                          {"txtBoilVol", "6 gal"},
                                                          {"txtTotalVol", "19 l"},
                                                          {"cmbWaterProfile", "Pilsen"},
                                                          {"cmbPackaging", "Kegging"},
                                                          {"cmbReportType", "RichText"},
                                                          {"chkCopyHeaders", "yes"},
                                                          {"chkPasteBlockSize", "yes"},
                                                          {"chkAutoSave", "yes"},
                                                          {"txtSaveInc", "12"},
                                                          {"chkAskNonUndoableChange", "no"},
                                                          {"chkQuickPrint", "no"},
                                                          {"chkUndoScaling", "yes"},
                                                          {"chkKeepTypedUnits", "yes"},
                                                          {"optIcons(2)", "yes"},
                                                          {"optButtons(1)", "yes"},
                                                          {"picCalcBackground", "255"},
                                                          {"picCalcForeground", "16777215"},
                                                          {"picSumBackground", "32768"},
                                                          {"picSumForeground", "8421504"}})
        EXPECT_TRUE(dialog.SetControl(name, text)) << name;
    // Nothing changes before OK.
    EXPECT_EQ(S().hopForm, 0);
    EXPECT_EQ(S().gridReadOnlyBg, std::nullopt);
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(S().hopForm, 2);
    EXPECT_FALSE(S().hopSocks);
    EXPECT_EQ(S().ibuMethod, 1);
    EXPECT_EQ(S().grainExtraction, "72%");
    EXPECT_EQ(S().hopExtraction, "0.9");
    EXPECT_EQ(S().boilVol, "6 gal");
    EXPECT_EQ(S().totalVol, "19 l");
    EXPECT_TRUE(S().undoScaling);
    EXPECT_TRUE(S().keepTypedUnits);
    EXPECT_EQ(S().waterProfile, "Pilsen");
    EXPECT_EQ(S().packaging, 1);
    EXPECT_EQ(S().reportType, 2);
    EXPECT_TRUE(S().copyHeaders);
    EXPECT_TRUE(S().pasteMismatchSize);
    EXPECT_TRUE(S().doAutoSave);
    EXPECT_EQ(S().doAutoSaveEvery, 12);
    EXPECT_FALSE(S().askBeforeNonUndoableChange);
    EXPECT_FALSE(S().quickPrintFromToolbar);
    EXPECT_EQ(S().iconStyle, 2);
    EXPECT_EQ(S().buttonStyle, 1);
    EXPECT_EQ(S().gridReadOnlyBg, 255);
    EXPECT_EQ(S().gridReadOnlyFg, 16777215);
    EXPECT_EQ(S().gridTotalBg, 32768);
    EXPECT_EQ(S().gridTotalFg, 8421504);
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(OptionsModelTest, CancelAndTheCloseBoxChangeNothing) {
    for (const bool closeBox : {false, true}) {
        OptionsModel dialog = Open();
        dialog.SetControl("cmbHopForm", "Plug");
        dialog.SetControl("txtBoilVol", "much");
        if (closeBox)
            dialog.CloseBox();
        else
            EXPECT_TRUE(dialog.Press("cmdCancel"));
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_EQ(S().hopForm, 0);
        EXPECT_EQ(S().boilVol, "");
        EXPECT_EQ(outside.messages.log, Strings{});
    }
}

TEST_F(OptionsModelTest, MinutesAreWholeNumbersFromOneToSixty) {
    S().doAutoSave = true;
    EXPECT_TRUE(Passes("txtSaveInc", "60"));
    EXPECT_EQ(S().doAutoSaveEvery, 60);
    EXPECT_TRUE(Passes("txtSaveInc", "1"));
    EXPECT_EQ(S().doAutoSaveEvery, 1);
    for (const std::string& text : Strings{"61", "0", "-5", "99999999999", std::string(400, '9')})
        EXPECT_THAT(Refusal("txtSaveInc", text),
                    ElementsAre("[Invalid Entry] Please enter an integer between 1 and 60"))
            << text;
    for (const char* text : {"abc", "", "5.5", "5.", "1/2", "+5", " 5"})
        EXPECT_THAT(Refusal("txtSaveInc", text), ElementsAre("[Invalid Entry] Please enter a valid integer"))
            << text;
    EXPECT_EQ(S().doAutoSaveEvery, 1);
}

TEST_F(OptionsModelTest, HopExtractionIsANumberFromZeroUpOrEmpty) {
    for (const char* text : {"0", "1.25", ""}) {
        EXPECT_TRUE(Passes("txtHopExtraction", text)) << text;
        EXPECT_EQ(S().hopExtraction, text);
    }
    EXPECT_THAT(Refusal("txtHopExtraction", "-0.5"),
                ElementsAre("[Invalid Entry] Please enter a positive decimal number"));
    for (const char* text : {"abc", "1 1/2", "40%"})
        EXPECT_THAT(Refusal("txtHopExtraction", text),
                    ElementsAre("[Invalid Entry] Please enter a valid decimal number"));
    EXPECT_EQ(S().hopExtraction, "");
}

TEST_F(OptionsModelTest, VolumesAndTheExtractionRateHaveTheBoxesOfTheirValidators) {
    EXPECT_THAT(Refusal("txtBoilVol", "much"), ElementsAre("[Invalid Entry] Please enter a valid volume"));
    EXPECT_THAT(Refusal("txtTotalVol", "much"), ElementsAre("[Invalid Entry] Please enter a valid volume"));
    EXPECT_THAT(Refusal("txtExtract", "much"),
                ElementsAre("[Invalid Entry] Please enter a valid percentage"));
    EXPECT_TRUE(Passes("txtBoilVol", "24 qt"));
    EXPECT_EQ(S().boilVol, "24 qt");
}

TEST_F(OptionsModelTest, ARefusedOkAppliesNothingAndKeepsTheFocus) {
    OptionsModel dialog = Open();
    dialog.SetControl("cmbHopForm", "Plug");
    dialog.SetControl("txtBoilVol", "6 gal");
    dialog.SetControl("txtTotalVol", "much");
    dialog.Press("cmdOK");
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(S().hopForm, 0);
    EXPECT_EQ(S().boilVol, "");
    EXPECT_EQ(dialog.FocusedField(), "txtTotalVol");
    EXPECT_EQ(dialog.Text("txtTotalVol"), "");
    EXPECT_EQ(dialog.Text("txtBoilVol"), "6 gal");
    dialog.Press("cmdOK");
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(S().boilVol, "6 gal");
}

TEST_F(OptionsModelTest, LeavingAFieldForAnotherControlChecksIt) {
    OptionsModel dialog = Open();
    dialog.SetControl("txtExtract", "much");
    EXPECT_THAT(outside.messages.log, ElementsAre());
    dialog.SetControl("chkHopSocks", "no");
    EXPECT_THAT(outside.messages.TakeLog(), ElementsAre("[Invalid Entry] Please enter a valid percentage"));
    EXPECT_EQ(dialog.Text("txtExtract"), "40%");
    EXPECT_EQ(dialog.Text("chkHopSocks"), "no");
}

TEST_F(OptionsModelTest, EnterChecksAndGoesBackToTheTextAtTheFocus) {
    OptionsModel dialog = Open();
    dialog.EnterField("txtTotalVol");
    dialog.SetControl("txtTotalVol", "5 gal");
    EXPECT_TRUE(dialog.CheckField());
    dialog.SetControl("txtTotalVol", "much");
    EXPECT_FALSE(dialog.CheckField());
    EXPECT_EQ(dialog.Text("txtTotalVol"), "");
    EXPECT_EQ(dialog.FocusedField(), "txtTotalVol");
}

// Refusing an entry is detected by its text changing back, and here it does not change.
TEST_F(OptionsModelTest, ABadTextThatWasStoredDoesNotLockTheDialog) {
    S().grainExtraction = "much";
    OptionsModel dialog = Open();
    dialog.EnterField("txtExtract");
    dialog.Press("cmdOK");
    EXPECT_THAT(outside.messages.log, ElementsAre("[Invalid Entry] Please enter a valid percentage"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(S().grainExtraction, "much");
}

TEST_F(OptionsModelTest, AnArithmeticErrorInAFieldIsShownAndRefuses) {
    EXPECT_THAT(Refusal("txtBoilVol", "1 1/0 gal"), ElementsAre("[Error] Division by zero (11)"));
    EXPECT_EQ(S().boilVol, "");
}

TEST_F(OptionsModelTest, ArrowsStepTheMinutesAndBeepAtTheLimits) {
    S().doAutoSave = true;
    OptionsModel dialog = Open();
    dialog.SetControl("UpDown1", "up");
    EXPECT_EQ(dialog.Text("txtSaveInc"), "6");
    dialog.SetControl("txtSaveInc", "59");
    dialog.StepSaveInc(1);
    EXPECT_EQ(dialog.Text("txtSaveInc"), "60");
    EXPECT_EQ(outside.messages.log, Strings{});
    dialog.StepSaveInc(1);
    EXPECT_EQ(dialog.Text("txtSaveInc"), "60");
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"beep"});
    dialog.SetControl("txtSaveInc", "2");
    dialog.StepSaveInc(-1);
    EXPECT_EQ(dialog.Text("txtSaveInc"), "1");
    dialog.StepSaveInc(-1);
    EXPECT_EQ(dialog.Text("txtSaveInc"), "1");
    EXPECT_EQ(outside.messages.TakeLog(), Strings{"beep"});
    // A step from beyond a limit ends at the limit.
    dialog.SetControl("txtSaveInc", "900");
    dialog.StepSaveInc(-1);
    EXPECT_EQ(dialog.Text("txtSaveInc"), "60");
}

TEST_F(OptionsModelTest, ArrowsAreOffWithoutAutosaveOrWithoutANumber) {
    OptionsModel dialog = Open();
    EXPECT_FALSE(dialog.SaveIncEnabled());
    EXPECT_FALSE(dialog.UpDownEnabled());
    dialog.StepSaveInc(1);
    EXPECT_EQ(dialog.Text("txtSaveInc"), "5");
    dialog.SetControl("chkAutoSave", "yes");
    EXPECT_TRUE(dialog.SaveIncEnabled());
    EXPECT_TRUE(dialog.UpDownEnabled());
    dialog.SetControl("txtSaveInc", "five");
    EXPECT_TRUE(dialog.SaveIncEnabled());
    EXPECT_FALSE(dialog.UpDownEnabled());
    dialog.SetControl("txtSaveInc", "5.5");
    EXPECT_TRUE(dialog.UpDownEnabled());
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(OptionsModelTest, BlackIsKeptAsOne) {
    EXPECT_TRUE(Passes("picSumForeground", "0"));
    EXPECT_EQ(S().gridTotalFg, 1);
}

TEST_F(OptionsModelTest, ResetSetsThePicturesAloneUntilOk) {
    S().gridReadOnlyBg = 10, S().gridReadOnlyFg = 20, S().gridTotalBg = 30, S().gridTotalFg = 40;
    OptionsModel dialog = Open();
    EXPECT_EQ(dialog.Color("picSumBackground"), 30);
    EXPECT_TRUE(dialog.Press("mnuResetColors"));
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.Color("picCalcBackground"), 65535);
    EXPECT_EQ(dialog.Color("picCalcForeground"), 1);
    EXPECT_EQ(dialog.Color("picSumBackground"), 65280);
    EXPECT_EQ(dialog.Color("picSumForeground"), 1);
    EXPECT_EQ(S().gridReadOnlyBg, 10);
    dialog.Press("cmdOK");
    // As if no colour had ever been chosen.
    for (const auto& color : {S().gridReadOnlyBg, S().gridReadOnlyFg, S().gridTotalBg, S().gridTotalFg})
        EXPECT_EQ(color, std::nullopt);
}

TEST_F(OptionsModelTest, OnlyAColorThatIsChosenReachesTheSettings) {
    OptionsModel dialog = Open();
    EXPECT_EQ(dialog.Text("picSumBackground"), "65280");
    EXPECT_EQ(dialog.ChosenColor("picSumBackground"), std::nullopt);
    // Choosing the default colour is a choice too.
    EXPECT_TRUE(dialog.SetControl("picSumBackground", "65280"));
    EXPECT_EQ(dialog.ChosenColor("picSumBackground"), 65280);
    dialog.Press("cmdOK");
    EXPECT_EQ(S().gridTotalBg, 65280);
    EXPECT_EQ(S().gridTotalFg, std::nullopt);
    EXPECT_EQ(S().gridReadOnlyBg, std::nullopt);
}

TEST_F(OptionsModelTest, WaterProfilesStandByNameBehindAnEmptyEntry) {
    AddProfiles();
    S().waterProfile = "Pilsen";
    EXPECT_THAT(Open().Entries("cmbWaterProfile"), ElementsAre("", "Burton", "Pilsen"));
    EXPECT_EQ(Open().Text("cmbWaterProfile"), "Pilsen");
    S().waterProfile = "Gone";
    EXPECT_EQ(Open().Text("cmbWaterProfile"), "");
}

TEST_F(OptionsModelTest, LooksActAtOnceAndOnlyWhenTheyChange) {
    shell.Opened()->recipes.Create("");
    shell.Opened()->recipes.Create("");
    view.log.clear();
    OptionsModel same = Open();
    same.Press("cmdOK");
    EXPECT_EQ(view.log, (Strings{"colors of 0", "colors of 1"}));
    view.log.clear();
    OptionsModel other = Open();
    other.SetControl("optIcons(1)", "yes");
    other.SetControl("optButtons(1)", "yes");
    EXPECT_EQ(view.log, Strings{});
    other.Press("cmdOK");
    EXPECT_EQ(view.log, (Strings{"icons", "button style", "colors of 0", "colors of 1"}));
}

TEST_F(OptionsModelTest, OneOptionOfAGroupIsChosen) {
    OptionsModel dialog = Open();
    dialog.SetControl("optIcons(2)", "yes");
    EXPECT_EQ(dialog.Text("optIcons(0)"), "no");
    EXPECT_EQ(dialog.Text("optIcons(2)"), "yes");
    EXPECT_EQ(dialog.Text("optButtons(0)"), "yes");
    EXPECT_FALSE(dialog.SetControl("optIcons(2)", "no"));
}

TEST_F(OptionsModelTest, AStyleBeyondTheSetsIsTheLastOne) {
    S().iconStyle = 7;
    S().buttonStyle = -1;
    S().hopForm = 9;
    OptionsModel dialog = Open();
    EXPECT_EQ(dialog.Text("optIcons(2)"), "yes");
    EXPECT_EQ(dialog.Text("optButtons(1)"), "yes");
    EXPECT_EQ(dialog.Text("cmbHopForm"), "Pellet");
}

TEST_F(OptionsModelTest, TakesNoEntryThatAControlCannotHold) {
    OptionsModel dialog = Open();
    EXPECT_FALSE(dialog.SetControl("cmbHopForm", "Powder"));
    EXPECT_FALSE(dialog.SetControl("chkHopSocks", "perhaps"));
    EXPECT_FALSE(dialog.SetControl("picCalcBackground", "red"));
    EXPECT_FALSE(dialog.SetControl("picCalcBackground", "16777216"));
    EXPECT_FALSE(dialog.SetControl("picCalcBackground", "-1"));
    EXPECT_FALSE(dialog.SetControl("UpDown1", "sideways"));
    EXPECT_FALSE(dialog.SetControl("txtNothing", "1"));
    EXPECT_FALSE(dialog.Press("cmdNothing"));
    EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(OptionsModelTest, NewRecipesTakeTheDefaultsAndOpenOnesKeepTheirs) {
    RecipeDocument& open = shell.Opened()->recipes.Create("");
    EXPECT_TRUE(Passes("txtTotalVol", "3 gal"));
    EXPECT_EQ(open.Record().txtTotalVol.Text(), "");
    EXPECT_EQ(shell.Opened()->recipes.Create("").Record().txtTotalVol.Text(), "3 gal");
}

TEST_F(OptionsModelTest, AStoredLookActsAtOnceToo) {
    shell.Opened()->recipes.Create("");
    view.log.clear();
    shell.SettingsNow().Store("Settings", "IconStyle", "1");
    shell.SettingsNow().Store("Settings", "ButtonStyle", "1");
    shell.SettingsNow().Store("Settings", "GridTotalBg", "255");
    EXPECT_EQ(view.log, (Strings{"icons", "button style", "colors of 0"}));
}

}  // namespace
}  // namespace tw::test

#include "shell/BrewhouseModel.h"

#include "ShellTest.h"

namespace tw::test {
namespace {

using Start = BrewhouseModel::Start;

class BrewhouseTest : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        shell.DB()->Execute("INSERT INTO WATER_PROFILES (NAME, CA) VALUES ('Burton', 275)");
    }
    BrewhouseModel Make(Start start) { return {shell.SettingsNow(), *shell.DB(), outside.messages, start}; }
    Settings& Stored() { return shell.CurrentSettings(); }
};

TEST_F(BrewhouseTest, AFirstStartSuggestsAllGrainAndTheDesktopsUnits) {
    const BrewhouseModel us = Make(Start::SuggestUS), metric = Make(Start::SuggestMetric);
    EXPECT_EQ(us.Text("cmbMethod"), "All grain");
    EXPECT_EQ(us.Text("txtExtract"), "72%");
    EXPECT_EQ(us.Text("txtTotalVol"), "5 gal");
    EXPECT_EQ(us.Text("txtBoilVol"), "6.5 gal");
    EXPECT_EQ(metric.Text("txtTotalVol"), "20 L");
    EXPECT_EQ(metric.Text("txtBoilVol"), "26 L");
    EXPECT_EQ(metric.Text("chkUndoScaling"), "yes");
}

TEST_F(BrewhouseTest, OkStoresAllAtOnce) {
    BrewhouseModel form = Make(Start::SuggestMetric);
    EXPECT_TRUE(form.SetControl("cmbWaterProfile", "Burton"));
    EXPECT_TRUE(form.Press("cmdOK"));
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(Stored().grainExtraction, "72%");
    EXPECT_EQ(Stored().totalVol, "20 L");
    EXPECT_EQ(Stored().boilVol, "26 L");
    EXPECT_EQ(Stored().waterProfile, "Burton");
    EXPECT_EQ(Stored().childState, 2);
    EXPECT_TRUE(Stored().undoScaling);
    EXPECT_TRUE(Stored().keepTypedUnits);
    EXPECT_TRUE(Stored().metricExamples);
    EXPECT_TRUE(shell.SettingsNow().AppendRows());
    // A crash does not lose it.
    EXPECT_EQ(SettingsStore(outside.settings).GetSetting("Settings", "GrainExtraction", ""), "72%");
    EXPECT_EQ(SettingsStore(outside.settings).GetSetting("Settings", "UndoScaling", ""), "True");
    EXPECT_FALSE(shell.SettingsNow().AreNew());
    // New recipes begin with it.
    const RecipeRecord& r = shell.Opened()->recipes.Create("").Record();
    EXPECT_EQ(r.txtExtract.Text(), "72%");
    EXPECT_EQ(r.txtTotalVol.Text(), "20 L");
}

TEST_F(BrewhouseTest, SkipLeavesTheDefaults) {
    BrewhouseModel form = Make(Start::SuggestUS);
    form.SetControl("txtTotalVol", "7 gal");
    form.Press("cmdSkip");
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(Stored().grainExtraction, "40%");
    EXPECT_EQ(Stored().totalVol, "");
    EXPECT_EQ(Stored().childState, 0);
    EXPECT_FALSE(shell.SettingsNow().AppendRows());
    EXPECT_TRUE(shell.SettingsNow().AreNew());
}

TEST_F(BrewhouseTest, TheMethodAndTheRateFollowEachOther) {
    BrewhouseModel form = Make(Start::SuggestUS);
    form.SetControl("cmbMethod", "Partial mash");
    EXPECT_EQ(form.Text("txtExtract"), "60%");
    form.SetControl("txtExtract", "78%");
    EXPECT_EQ(form.Text("cmbMethod"), "A rate of my own");
    form.SetControl("cmbMethod", "A rate of my own");
    EXPECT_EQ(form.Text("txtExtract"), "78%");
    form.SetControl("txtExtract", "40%");
    EXPECT_EQ(form.Text("cmbMethod"), "Extract, with steeped grains");
    EXPECT_FALSE(form.SetControl("cmbMethod", "By magic"));
}

TEST_F(BrewhouseTest, OtherUnitsChangeTheSuggestionsOnly) {
    BrewhouseModel form = Make(Start::SuggestUS);
    form.SetControl("txtBoilVol", "7 gal");
    form.SetControl("cmbUnits", BrewhouseModel::Units()[1]);
    EXPECT_EQ(form.Text("txtTotalVol"), "20 L");
    EXPECT_EQ(form.Text("txtBoilVol"), "7 gal");
}

TEST_F(BrewhouseTest, ARefusedEntryKeepsTheFormOpenAndStoresNothing) {
    BrewhouseModel form = Make(Start::SuggestUS);
    form.SetControl("txtBoilVol", "a kettle full");
    form.Press("cmdOK");
    EXPECT_TRUE(form.IsOpen());
    EXPECT_EQ(form.Refused(), "txtBoilVol");
    EXPECT_EQ(outside.messages.log, Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(Stored().grainExtraction, "40%");
}

TEST_F(BrewhouseTest, LaterItShowsTheSettingsAndTurnsThemOffAgain) {
    Make(Start::SuggestMetric).Press("cmdOK");
    BrewhouseModel form = Make(Start::ShowSettings);
    EXPECT_EQ(form.Text("txtTotalVol"), "20 L");
    EXPECT_EQ(form.Text("cmbUnits"), BrewhouseModel::Units()[1]);
    EXPECT_EQ(form.Text("chkMaximize"), "yes");
    for (const char* box : {"chkMaximize", "chkUndoScaling", "chkKeepUnits", "chkAppendRows"})
        form.SetControl(box, "no");
    form.Press("cmdOK");
    EXPECT_EQ(Stored().childState, 0);
    EXPECT_FALSE(Stored().undoScaling);
    EXPECT_FALSE(Stored().keepTypedUnits);
    EXPECT_FALSE(shell.SettingsNow().AppendRows());
}

TEST_F(BrewhouseTest, ChosenColorsStayUnlessTheDesktopsAreWanted) {
    Stored().gridTotalBg = 0x00FF00;
    BrewhouseModel form = Make(Start::ShowSettings);
    EXPECT_EQ(form.Text("chkDesktopColors"), "no");
    form.Press("cmdOK");
    EXPECT_EQ(Stored().gridTotalBg, 0x00FF00);
    BrewhouseModel again = Make(Start::ShowSettings);
    again.SetControl("chkDesktopColors", "yes");
    again.Press("cmdOK");
    EXPECT_EQ(Stored().gridTotalBg, std::nullopt);
}

TEST_F(BrewhouseTest, AFirstStartAsksBeforeTheAssistantAndLaterOnesDoNot) {
    Strings forms;
    for (int i = 0; i < 4; ++i)
        outside.dialogs.scripts.emplace_back([&](DialogModel& dialog) {
            forms.push_back(dialog.FormName());
            dialog.Press("cmdOK");
        });
    shell.ShowAssistantAtStartup();
    shell.ShowAssistantAtStartup();
    EXPECT_EQ(forms, (Strings{"frmBrewhouse", "frmAssistant", "frmAssistant"}));
}

TEST_F(BrewhouseTest, TheSampleOpensUnchangedAndWhole) {
    EXPECT_TRUE(shell.RunMenu("mnuHelpSample"));
    const RecipeDocument& sample = *shell.Documents().Active();
    EXPECT_EQ(sample.Caption(), "First Pale Ale");
    EXPECT_FALSE(sample.Changed());
    EXPECT_FALSE(sample.History().CanUndo());
    EXPECT_EQ(sample.OrigName(), "");
    EXPECT_EQ(sample.Record().gridGrain.DataRows(), 2);
    EXPECT_EQ(sample.Record().gridHops.DataRows(), 3);
    EXPECT_EQ(sample.Record().txtTotalVol.Text(), "5 gal");
    Stored().metricExamples = true;
    EXPECT_TRUE(shell.RunMenu("mnuHelpSample"));
    EXPECT_EQ(shell.Documents().Active()->Record().txtTotalVol.Text(), "19 L");
    // Nothing is stored, and closing it asks nothing.
    EXPECT_TRUE(shell.Opened()->saver.CloseAll());
    EXPECT_TRUE(outside.messages.log.empty());
}

}  // namespace
}  // namespace tw::test

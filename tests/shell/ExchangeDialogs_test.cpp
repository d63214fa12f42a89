// Tests of the dialogs of import and export.
#include "shell/ImportExportModel.h"
#include "shell/NameConflictModel.h"
#include "shell/ShellTest.h"
#include "shell/StylesNotImportedModel.h"

namespace tw::test {
namespace {

std::string ControlOf(const DialogModel& dialog, std::string_view name) {
    for (const DialogControl& control : dialog.Controls())
        if (control.name == name) return control.text;
    return "no such control";
}

class ImportExportModelTest : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        NewSaved("Bock");
        NewSaved("Mild");
    }
};

TEST_F(ImportExportModelTest, TheTextsSayWhichWayTheRecipesGo) {
    const ImportExportModel in(shell.Opened()->data.tree, true);
    EXPECT_EQ(in.Caption(), "Import Recipes");
    EXPECT_EQ(in.Recipes().ListCaption(), "Recipes to Import:");
    EXPECT_EQ(in.Recipes().RootName(), "Import File");
    EXPECT_EQ(in.Recipes().treeRecipes().SelectedKey(), "F:0");
    EXPECT_FALSE(in.Append());
    const ImportExportModel out(shell.Opened()->data.tree, false);
    EXPECT_EQ(out.Caption(), "Export Recipes");
    EXPECT_EQ(out.Recipes().ListCaption(), "Recipes to Export:");
    EXPECT_EQ(out.Recipes().RootName(), "");
    EXPECT_TRUE(out.Append());
}

TEST_F(ImportExportModelTest, RecipesArePickedWithTheButtonsOfTheChooser) {
    ImportExportModel dialog(shell.Opened()->data.tree, false);
    EXPECT_TRUE(dialog.SetControl("treeRecipes", "F:0"));
    EXPECT_TRUE(dialog.Press("cmdAdd"));
    EXPECT_EQ(ControlOf(dialog, "lstRecipes"), "Bock\nMild\n");
    EXPECT_TRUE(dialog.SetControl("lstRecipes", "Bock"));
    EXPECT_TRUE(dialog.Press("cmdDel"));
    EXPECT_EQ(ControlOf(dialog, "lstRecipes"), "Mild\n");
    EXPECT_TRUE(dialog.Press("cmdNext"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.Recipes().Selection(), Strings{"Mild"});
}

TEST_F(ImportExportModelTest, NextIsOffWhileNothingIsPicked) {
    ImportExportModel dialog(shell.Opened()->data.tree, false);
    EXPECT_FALSE(dialog.NextEnabled());
    EXPECT_TRUE(dialog.Press("cmdNext"));
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_TRUE(dialog.Press("cmdCancel"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_TRUE(dialog.Cancelled());
}

TEST_F(ImportExportModelTest, OnlyAnExportCanBeAppended) {
    ImportExportModel out(shell.Opened()->data.tree, false);
    EXPECT_TRUE(out.SetControl("chkAppend", "no"));
    EXPECT_FALSE(out.Append());
    EXPECT_FALSE(out.SetControl("chkAppend", "perhaps"));
    ImportExportModel in(shell.Opened()->data.tree, true);
    EXPECT_FALSE(in.SetControl("chkAppend", "yes"));
    EXPECT_EQ(ControlOf(in, "chkAppend"), "no");
}

TEST_F(ImportExportModelTest, WhatIsNotThereTakesNoEntry) {
    ImportExportModel dialog(shell.Opened()->data.tree, false);
    EXPECT_FALSE(dialog.SetControl("treeRecipes", "R:99:0"));
    EXPECT_FALSE(dialog.SetControl("lstRecipes", "Bock"));
    EXPECT_FALSE(dialog.SetControl("Frame1", "x"));
    EXPECT_FALSE(dialog.Press("cmdOther"));
    dialog.CloseBox();
    EXPECT_TRUE(dialog.Cancelled());
}

class NameConflictModelTest : public testing::Test {
  protected:
    MessageRecorder messages;
    NameConflictModel dialog{"Mild", true, messages};
};

TEST_F(NameConflictModelTest, TheLabelsNameWhatIsDone) {
    EXPECT_EQ(ControlOf(dialog, "lblName"), "Mild");
    EXPECT_EQ(ControlOf(dialog, "txtNewName"), "Mild");
    EXPECT_EQ(ControlOf(dialog, "lblRename"), "Import the recipe with a different name");
    EXPECT_EQ(ControlOf(dialog, "lblSkip"), "Do not import this recipe");
    EXPECT_EQ(ControlOf(dialog, "lblAbort"), "Abort the import process");
    const NameConflictModel out("Mild", false, messages);
    EXPECT_EQ(ControlOf(out, "lblRename"), "Export the recipe with a different name");
    EXPECT_EQ(ControlOf(out, "lblSkip"), "Do not export this recipe");
    EXPECT_EQ(ControlOf(out, "lblAbort"), "Abort the export process");
}

TEST_F(NameConflictModelTest, EachButtonHasItsResponse) {
    const auto responseTo = [&](const char* button) {
        NameConflictModel asked("Mild", true, messages);
        EXPECT_TRUE(asked.Press(button));
        EXPECT_FALSE(asked.IsOpen());
        return static_cast<int>(asked.Result().response);
    };
    EXPECT_EQ(responseTo("cmdOverwrite"), 1);
    EXPECT_EQ(responseTo("cmdAbort"), 3);
    EXPECT_EQ(responseTo("cmdSkip"), 4);
    EXPECT_FALSE(dialog.Press("cmdOK"));
    dialog.CloseBox();
    EXPECT_EQ(dialog.Result().response, ConflictResponse::Abort);
}

TEST_F(NameConflictModelTest, ANewNameIsTakenAsItIsTyped) {
    EXPECT_TRUE(dialog.SetControl("txtNewName", " Mild 2 "));
    EXPECT_TRUE(dialog.Press("cmdRename"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(static_cast<int>(dialog.Result().response), 5);
    EXPECT_EQ(dialog.Result().newName, " Mild 2 ");
}

TEST_F(NameConflictModelTest, ABlankNameAndTheOldOneKeepItOpen) {
    dialog.SetControl("txtNewName", "  ");
    EXPECT_TRUE(dialog.Press("cmdRename"));
    dialog.SetControl("txtNewName", " mILD ");
    EXPECT_TRUE(dialog.Press("cmdRename"));
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(messages.log, (Strings{"[No Name] To rename you must enter a recipe name",
                                     "[Same Name] To rename you must enter a different recipe name"}));
    EXPECT_FALSE(dialog.SetControl("lblName", "x"));
}

TEST(StylesNotImportedModel, ListsARecipeALineBehindTheHeaders) {
    StylesNotImportedModel dialog({{"Mild", "English Mild"}, {"Bock", "Bock \"x\""}});
    EXPECT_EQ(ControlOf(dialog, "grdEffected"),
              "Effected Recipe\tUnrecognized Style\nMild\tEnglish Mild\nBock\tBock \"x\"\n");
    EXPECT_FALSE(dialog.SetControl("grdEffected", "x"));
    EXPECT_FALSE(dialog.Press("cmdCancel"));
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_FALSE(dialog.IsOpen());
}

}  // namespace
}  // namespace tw::test

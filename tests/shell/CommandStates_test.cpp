// Tests of the states of the commands, without a document and without a database.
#include "shell/CommandStates.h"

#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

class CommandStatesTest : public testing::Test {
  protected:
    bool IsEnabled(CommandId id) const { return bar.Item(id).enabled; }
    bool IsButtonEnabled(CommandId id) const { return bar.ButtonOf(id)->enabled; }

    RecordingPlatform outside;
    CommandBar bar;
    bool anyChanged = false;
    bool anyRecipe = false;
    bool activeCarries = false;
    CommandStates states{
        bar,
        outside.clipboard,
        {[this] { return anyChanged; }, [this] { return anyRecipe; }, [this] { return activeCarries; }}};
};

TEST_F(CommandStatesTest, SaveAllAsksWhetherAnyDocumentIsChanged) {
    anyChanged = true;
    states.EnableSave(false);
    EXPECT_FALSE(IsEnabled(CommandId::FileSave));
    EXPECT_TRUE(IsEnabled(CommandId::FileSaveAll));
    anyChanged = false;
    states.CheckEnableSaveAll();
    EXPECT_FALSE(IsEnabled(CommandId::FileSaveAll));
}

TEST_F(CommandStatesTest, WithoutARecipeInTheDatabaseNoneCanBeOpenedDeletedOrExported) {
    states.CheckEnableDelete();
    for (const CommandId id : {CommandId::FileDelete, CommandId::FileOpen, CommandId::FileExport})
        EXPECT_FALSE(IsEnabled(id)) << RowOf(id).name;
    EXPECT_FALSE(IsButtonEnabled(CommandId::FileOpen));
    anyRecipe = true;
    states.CheckEnableDelete();
    EXPECT_TRUE(IsEnabled(CommandId::FileOpen));
    EXPECT_TRUE(IsButtonEnabled(CommandId::FileOpen));
}

TEST_F(CommandStatesTest, CarriedDataIsShownWhileTheActiveRecipeHasSome) {
    EXPECT_FALSE(IsEnabled(CommandId::FileCarried));
    activeCarries = true;
    states.CheckEnableCarried();
    EXPECT_TRUE(IsEnabled(CommandId::FileCarried));
    activeCarries = false;
    states.CheckEnableCarried();
    EXPECT_FALSE(IsEnabled(CommandId::FileCarried));
    activeCarries = true;
    states.CheckEnableCarried();
    states.DisableAll();
    EXPECT_FALSE(IsEnabled(CommandId::FileCarried));
}

// The menu item of printing is updated only when the first recipe appears or the last one
// disappears; its button never is.
TEST_F(CommandStatesTest, TheFirstRecipeEnablesTheMenuItemOfPrintingAlone) {
    anyRecipe = true;
    states.CheckEnableDelete();
    EXPECT_FALSE(IsEnabled(CommandId::FilePrint));
    anyRecipe = false;
    states.CheckEnableDelete();
    anyRecipe = true;
    states.CheckEnableDelete();
    EXPECT_TRUE(IsEnabled(CommandId::FilePrint));
    EXPECT_FALSE(IsButtonEnabled(CommandId::FilePrint));
}

TEST_F(CommandStatesTest, PasteWaitsForATextOnTheClipboard) {
    states.EnableCopyPaste(false, true);
    EXPECT_FALSE(IsEnabled(CommandId::EditPaste));
    EXPECT_TRUE(IsEnabled(CommandId::EditCut));
    outside.clipboard.text = "12 lbs.";
    states.ReapplyPaste();
    EXPECT_TRUE(IsEnabled(CommandId::EditPaste));
    states.EnableCopyPaste(false, false);
    states.ReapplyPaste();
    EXPECT_FALSE(IsEnabled(CommandId::EditPaste));
}

TEST_F(CommandStatesTest, TheLastDocumentTakesItsCommandsAlong) {
    states.EnableForDocument();
    states.EnableUndo(true, "Typing");
    states.EnableChangeCarbonation(true);
    EXPECT_TRUE(IsEnabled(CommandId::FileClose));
    EXPECT_TRUE(IsEnabled(CommandId::WindowCascade));
    states.DisableAll();
    for (const CommandId id : {CommandId::FileClose, CommandId::FilePreview, CommandId::EditUndo,
                               CommandId::ToolsChangeCO2, CommandId::WindowCascade})
        EXPECT_FALSE(IsEnabled(id)) << RowOf(id).name;
    EXPECT_EQ(bar.Item(CommandId::EditUndo).caption, "&Undo ");
    EXPECT_TRUE(IsEnabled(CommandId::FileNew));
}

}  // namespace
}  // namespace tw::test

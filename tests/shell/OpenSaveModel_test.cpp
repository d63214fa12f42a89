#include "shell/OpenSaveModel.h"

#include "shell/ShellTest.h"

namespace tw::test {
namespace {

class OpenSaveTest : public testing::Test {
  protected:
    OpenSaveTest() {
        for (const char* name : {"Stout", "amber", "Joe's Ale"}) AddRecipeRow(*database, name);
    }
    OpenSaveModel Dialog(OpenSaveModel::Style style) { return {style, *database, messages}; }

    std::unique_ptr<Database> database = Database::CreateInMemory();
    MessageRecorder messages;
};

TEST_F(OpenSaveTest, ListsTheRecipesByName) {
    EXPECT_EQ(Dialog(OpenSaveModel::Style::Open).Names(), (Strings{"amber", "Joe's Ale", "Stout"}));
}

TEST_F(OpenSaveTest, OpenTakesAStoredName) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Open);
    EXPECT_EQ(dialog.Caption(), "Open Recipe");
    EXPECT_EQ(dialog.OkCaption(), "&Open");
    EXPECT_TRUE(dialog.Cancelled());
    EXPECT_TRUE(dialog.SetControl("txtName", " Joe's Ale "));
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.BeerName(), "Joe's Ale");
}

TEST_F(OpenSaveTest, OpenRefusesAnUnknownNameAndStays) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Open);
    dialog.SetControl("txtName", "Ann's Ale");
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_EQ(messages.log, Strings{"[Recipe not found] No recipe named 'Ann's Ale' exists."});
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_TRUE(dialog.Cancelled());
}

TEST_F(OpenSaveTest, CancelAndTheCloseBoxGiveNoName) {
    for (const bool closeBox : {false, true}) {
        OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Open);
        dialog.SetControl("txtName", "Stout");
        closeBox ? dialog.CloseBox() : static_cast<void>(dialog.Press("cmdCancel"));
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_TRUE(dialog.Cancelled());
        EXPECT_EQ(dialog.BeerName(), "");
    }
}

TEST_F(OpenSaveTest, SaveStartsWithTheRecipesNameAndFolder) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Save);
    EXPECT_EQ(dialog.Caption(), "Save Recipe");
    EXPECT_EQ(dialog.OkCaption(), "&Save");
    dialog.SetRecipe("Porter", 12);
    EXPECT_EQ(dialog.Caption(), "Save 'Porter' As...");
    ASSERT_EQ(dialog.Controls().size(), 2u);
    EXPECT_EQ(dialog.Controls()[0].text, "Porter");
    EXPECT_EQ(dialog.Controls()[1].name, "FolderID");
    EXPECT_EQ(dialog.Controls()[1].text, "12");
    dialog.SetRecipe("Porter", -1);
    EXPECT_EQ(dialog.FolderID(), 0);
}

TEST_F(OpenSaveTest, SaveTakesAFolder) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Save);
    for (const char* text : {"", "x", "-1", "1.5", " 1", "99999999999999999999"}) {
        EXPECT_FALSE(dialog.SetControl("FolderID", text)) << text;
    }
    EXPECT_TRUE(dialog.SetControl("FolderID", "3"));
    dialog.SetControl("txtName", "Porter");
    dialog.Press("cmdOK");
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.FolderID(), 3);
    EXPECT_EQ(dialog.BeerName(), "Porter");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(OpenSaveTest, SaveRefusesABlankName) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Save);
    dialog.SetControl("txtName", "  ");
    EXPECT_TRUE(dialog.Press("cmdOK"));
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(messages.log, Strings{"beep"});
}

TEST_F(OpenSaveTest, SaveAsksBeforeItOverwrites) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Save);
    dialog.SetControl("txtName", "JOE'S ALE");
    dialog.Press("cmdOK");
    EXPECT_TRUE(dialog.IsOpen());
    messages.answers = {Answer::Yes};
    dialog.Press("cmdOK");
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(dialog.BeerName(), "JOE'S ALE");
    const std::string question =
        "[Overwrite existing recipe?] A recipe named 'JOE'S ALE' already exists.\r\nOverwrite it? -> ";
    EXPECT_EQ(messages.log, (Strings{question + "No", question + "Yes"}));
}

TEST_F(OpenSaveTest, UnknownControlsAndButtonsAreRefused) {
    OpenSaveModel dialog = Dialog(OpenSaveModel::Style::Open);
    EXPECT_FALSE(dialog.SetControl("FolderID", "3"));
    EXPECT_FALSE(dialog.SetControl("lblName", "x"));
    EXPECT_FALSE(dialog.Press("cmdNope"));
    EXPECT_TRUE(dialog.IsOpen());
}

}  // namespace
}  // namespace tw::test

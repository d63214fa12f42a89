#include "platform/FileDialogModel.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Kind = FileDialogModel::Kind;
using Strings = std::vector<std::string>;

class FileDialogModelTest : public testing::Test {
  protected:
    FileDialogModelTest() {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::path(testing::TempDir()) /
                 ("tunwright_file_dialog_" + std::string(info->name()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        std::ofstream(Path("there.TWR")) << "x";
        std::ofstream(Path("bare")) << "x";
    }
    ~FileDialogModelTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string Path(const char* name) const { return (folder / name).string(); }
    FileDialogModel Dialog(Kind kind, bool askToReplace = true) {
        return {{kind, "Pick", "TWR", "Recipes (*.TWR)", "*.TWR", askToReplace}, messages};
    }
    // Types a name and presses cmdOK. Returns the name chosen; empty if the dialog stayed open.
    std::string Taken(FileDialogModel dialog, const std::string& typed) {
        EXPECT_TRUE(dialog.SetControl("FileName", typed));
        EXPECT_TRUE(dialog.Press("cmdOK"));
        EXPECT_EQ(dialog.Cancelled(), dialog.IsOpen());
        return dialog.FileName();
    }

    std::filesystem::path folder;
    MessageRecorder messages;
};

TEST_F(FileDialogModelTest, StartsWithoutANameAndIsCancelledUntilOneIsTaken) {
    FileDialogModel dialog = Dialog(Kind::Open);
    EXPECT_EQ(dialog.Controls().at(0).text, "");
    EXPECT_TRUE(dialog.Cancelled());
    EXPECT_FALSE(dialog.SetControl("Other", "x"));
    EXPECT_FALSE(dialog.Press("cmdOther"));
    EXPECT_TRUE(dialog.Press("cmdCancel"));
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_TRUE(dialog.Cancelled());
}

TEST_F(FileDialogModelTest, ANameWithoutAnExtensionTakesTheUsualOne) {
    EXPECT_EQ(Taken(Dialog(Kind::Open), Path("there")), Path("there.TWR"));
    EXPECT_EQ(Taken(Dialog(Kind::Save), Path("new")), Path("new.TWR"));
    EXPECT_EQ(Taken(Dialog(Kind::Save), Path("new.txt")), Path("new.txt"));
    // A file to open may have no extension; a file to save gets one.
    EXPECT_EQ(Taken(Dialog(Kind::Open), Path("bare")), Path("bare"));
    EXPECT_EQ(Taken(Dialog(Kind::Save), Path("bare")), Path("bare.TWR"));
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(FileDialogModelTest, AMissingFileIsNotOpened) {
    EXPECT_EQ(Taken(Dialog(Kind::Open), Path("missing.TWR")), "");
    EXPECT_EQ(messages.log, Strings{"[Pick] " + Path("missing.TWR") + "\r\nThis file could not be found."});
}

TEST_F(FileDialogModelTest, ABlankNameAndAFolderAreNone) {
    for (const Kind kind : {Kind::Open, Kind::Save}) {
        EXPECT_EQ(Taken(Dialog(kind), "  "), "");
        EXPECT_EQ(Taken(Dialog(kind), Path("")), "");
    }
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(FileDialogModelTest, AFileIsReplacedOnlyAfterAQuestion) {
    const std::string question =
        "[Pick] " + Path("there.TWR") + " already exists.\r\nDo you want to replace it? -> ";
    messages.answers = {Answer::No, Answer::Yes};
    EXPECT_EQ(Taken(Dialog(Kind::Save), Path("there")), "");
    EXPECT_EQ(Taken(Dialog(Kind::Save), Path("there")), Path("there.TWR"));
    EXPECT_EQ(messages.TakeLog(), (Strings{question + "No", question + "Yes"}));
}

TEST_F(FileDialogModelTest, AFileIsTakenWithoutAQuestionWhereItIsNotReplaced) {
    EXPECT_EQ(Taken(Dialog(Kind::Save, false), Path("there")), Path("there.TWR"));
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(FileDialogModelTest, ANameThatTheDesktopHasCheckedIsTakenAsItIs) {
    FileDialogModel dialog = Dialog(Kind::Save);
    dialog.Take({Path(".hidden")});
    EXPECT_EQ(dialog.FileName(), Path(".hidden"));
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_FALSE(dialog.IsOpen());
}

}  // namespace
}  // namespace tw::test

// Tests of the ports that a script answers.
#include "cli/ScriptPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "cli/ScriptReader.h"

namespace tw {
namespace {

// A form with a name box, a check box, and a button that closes it only if there is a name.
class NameForm : public DialogModel {
  public:
    std::string FormName() const override { return "frmName"; }
    std::vector<DialogControl> Controls() const override { return {{"txtName", name}, {"chkAll", all}}; }
    bool SetControl(std::string_view control, std::string_view text) override {
        if (control == "txtName") name = text;
        if (control == "chkAll") all = text;
        return control == "txtName" || control == "chkAll";
    }
    bool Press(std::string_view button) override {
        if (button != "cmdOK") return false;
        open = name.empty();
        return true;
    }
    void CloseBox() override { open = false; }
    bool IsOpen() const override { return open; }

    std::string name;
    std::string all = "no";
    bool open = true;
};

class ScriptPlatformTest : public testing::Test {
  protected:
    template <typename Asking>
    std::string ReasonOf(Asking asking) {
        try {
            asking();
        } catch (const ScriptError& error) {
            return error.Reason();
        }
        return {};
    }

    std::ostringstream stream_;
    ScriptOutput out_{stream_};
    AnswerQueue answers_;
    ScriptMessages messages_{out_, answers_};
    ScriptDialogs dialogs_{out_, answers_};
};

TEST_F(ScriptPlatformTest, PrintsABoxOnOneLine) {
    messages_.ShowMessage("Error", "a\r\nb");
    messages_.Beep();
    EXPECT_EQ(stream_.str(), "[Error] a\\r\\nb\nbeep\n");
}

TEST_F(ScriptPlatformTest, AnswersQuestionsFirstInFirstOut) {
    for (const char* answer : {"Yes", "No", "Cancel"}) answers_.Add(answer);
    EXPECT_EQ(messages_.Ask("T", "q", Question::YesNo), Answer::Yes);
    EXPECT_EQ(messages_.Ask("T", "q", Question::YesNo), Answer::No);
    EXPECT_EQ(messages_.Ask("T", "q", Question::YesNoCancel), Answer::Cancel);
    EXPECT_EQ(stream_.str(), "[T] q -> Yes\n[T] q -> No\n[T] q -> Cancel\n");
}

TEST_F(ScriptPlatformTest, TakesTheCloseBoxForNoOrCancel) {
    answers_.Add("Close");
    answers_.Add("Close");
    EXPECT_EQ(messages_.Ask("T", "q", Question::YesNo), Answer::No);
    EXPECT_EQ(messages_.Ask("T", "q", Question::YesNoCancel), Answer::Cancel);
}

TEST_F(ScriptPlatformTest, RefusesAQuestionWithoutItsAnswer) {
    EXPECT_EQ(ReasonOf([&] { messages_.Ask("T", "q", Question::YesNo); }),
              "the question [T] q needs an answer");
    EXPECT_EQ(stream_.str(), "");
}

TEST_F(ScriptPlatformTest, RefusesAWordThatIsNoButton) {
    answers_.Add("Cancel");
    EXPECT_EQ(ReasonOf([&] { messages_.Ask("T", "q", Question::YesNo); }),
              "'Cancel' is no button of the question [T] q");
}

TEST_F(ScriptPlatformTest, DrivesADialogUntilItCloses) {
    answers_.Add("chkAll=yes; cmdOK");
    answers_.Add("txtName=Old Ale; cmdOK");
    NameForm form;
    dialogs_.ShowModal(form);
    EXPECT_EQ(form.name, "Old Ale");
    EXPECT_EQ(form.all, "yes");
    EXPECT_EQ(stream_.str(), "");
}

TEST_F(ScriptPlatformTest, ShowsADialogBeforeEachAnswerWhenAsked) {
    answers_.Add("chkAll=yes; cmdOK");
    answers_.Add("Close");
    NameForm form;
    dialogs_.SetShow(true);
    dialogs_.ShowModal(form);
    EXPECT_EQ(stream_.str(), "{frmName} txtName=; chkAll=no\n{frmName} txtName=; chkAll=yes\n");
}

TEST_F(ScriptPlatformTest, RefusesAnUnknownControlAndAnUnknownButton) {
    NameForm form;
    EXPECT_EQ(ReasonOf([&] { dialogs_.ShowModal(form); }), "the dialog frmName needs an answer");
    answers_.Add("txtNone=1; cmdOK");
    EXPECT_EQ(ReasonOf([&] { dialogs_.ShowModal(form); }),
              "frmName has no control 'txtNone' that takes an entry");
    answers_.Add("cmdNone");
    EXPECT_EQ(ReasonOf([&] { dialogs_.ShowModal(form); }), "frmName has no button 'cmdNone'");
}

TEST(MemorySettings, KeepsTheUsersLayerAlone) {
    MemorySettings settings;
    EXPECT_EQ(settings.Read(SettingsPort::Layer::User, "S", "K"), std::nullopt);
    EXPECT_TRUE(settings.Write(SettingsPort::Layer::User, "S", "K", "007"));
    EXPECT_EQ(settings.Read(SettingsPort::Layer::User, "S", "K"), "007");
    EXPECT_EQ(settings.Read(SettingsPort::Layer::User, "K", "S"), std::nullopt);
    EXPECT_FALSE(settings.Write(SettingsPort::Layer::Machine, "S", "K", "x"));
    EXPECT_EQ(settings.Read(SettingsPort::Layer::Machine, "S", "K"), std::nullopt);
}

TEST(MemoryClipboard, HoldsTextOnceSomeIsPut) {
    MemoryClipboard clipboard;
    EXPECT_FALSE(clipboard.HasText());
    clipboard.SetText("5 gal");
    EXPECT_TRUE(clipboard.HasText());
    EXPECT_EQ(clipboard.Text(), "5 gal");
}

}  // namespace
}  // namespace tw

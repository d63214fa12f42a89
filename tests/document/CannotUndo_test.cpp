// Tests of the question before a change that cannot be undone.
#include "document/CannotUndo.h"

#include <gtest/gtest.h>
#include <string_view>

#include "DocumentTest.h"

namespace tw::test {
namespace {

// Answers the dialog by its check box and a button; an empty button name is the close box.
class Answerer final : public DialogPort {
  public:
    Answerer(bool dontShow, std::string_view button) : dontShow_(dontShow), button_(button) {}
    void ShowModal(DialogModel& dialog) override {
        ++shown;
        EXPECT_EQ(dialog.FormName(), "frmCannotUndo");
        EXPECT_TRUE(dialog.SetControl("chkDontShow", dontShow_ ? "yes" : "no"));
        button_.empty() ? dialog.CloseBox() : void(dialog.Press(button_));
        EXPECT_FALSE(dialog.IsOpen());
    }
    int shown = 0;

  private:
    bool dontShow_;
    std::string_view button_;
};

class CannotUndo : public DocumentTest {
  protected:
    bool Response(bool dontShow, std::string_view button) {
        Answerer dialogs(dontShow, button);
        const bool response = GetUserResponse(host, dialogs);
        shown = dialogs.shown;
        return response;
    }
    int shown = 0;
};

TEST_F(CannotUndo, GoesAheadAtOnceWhileItIsNotAsked) {
    host.askBefore = false;
    EXPECT_TRUE(Response(false, "cmdNo"));
    EXPECT_EQ(shown, 0);
}

TEST_F(CannotUndo, TakesTheAnswer) {
    EXPECT_TRUE(Response(false, "cmdYes"));
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(Response(false, "cmdNo"));
    EXPECT_FALSE(Response(false, ""));
    EXPECT_TRUE(host.askBefore);
}

TEST_F(CannotUndo, TheCheckBoxSwitchesTheQuestionOffWhateverTheAnswer) {
    EXPECT_FALSE(Response(true, "cmdNo"));
    EXPECT_FALSE(host.askBefore);
    host.askBefore = true;
    EXPECT_FALSE(Response(true, ""));
    EXPECT_FALSE(host.askBefore);
}

TEST(CannotUndoModel, SaysWhatItAsks) {
    CannotUndoModel model;
    ASSERT_TRUE(model.AsQuestion());
    EXPECT_EQ(model.AsQuestion()->title, "Cannot Undo Change - Continue?");
    EXPECT_EQ(model.AsQuestion()->text,
              "The change you are about to make cannot be undone.\r\n"
              "Do you wish to continue with the change anyway?");
    EXPECT_FALSE(model.SetControl("chkDontShow", "maybe"));
    EXPECT_FALSE(model.SetControl("cmdYes", "yes"));
    EXPECT_FALSE(model.Press("cmdOK"));
    EXPECT_TRUE(model.IsOpen());
}

}  // namespace
}  // namespace tw::test

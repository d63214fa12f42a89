#include "platform/FormModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tw {

bool operator==(const DialogControl& a, const DialogControl& b) {
    return a.name == b.name && a.text == b.text;
}

void PrintTo(const DialogControl& control, std::ostream* out) {
    *out << control.name << "=" << control.text;
}

namespace {

using testing::ElementsAre;

// A form with one row of each kind.
class SampleModel final : public FormModel {
  public:
    SampleModel() : FormModel("frmSample") {
        AddControls({
            {"lblCount", [this] { return std::to_string(steps); }},
            TextEntry("txtName", name),
            CheckBox("chkAgain", again),
            OptionButton(
                "optSmall", [this] { return !large; }, [this] { large = false; }),
            OptionButton(
                "optLarge", [this] { return large; }, [this] { large = true; }),
            {"txtFind", {}, [this](std::string_view text) { return (found = text) != "nothing"; }},
        });
        FormControl note = TextEntry("txtNote", noteText);
        note.isThere = [this] { return large; };
        AddControls({std::move(note)});
        AddButtons({
            {"cmdStep", [this] { ++steps; }, [this] { return steps < 2; }},
            {"cmdOK", [this] { Accept(); }},
            {"cmdCancel", [this] { CloseBox(); }},
        });
    }

    int steps = 0;
    bool again = true, large = false;
    std::string name = "Pils", found, noteText = "old";
};

TEST(FormModel, ShowsItsRowsInTheirOrder) {
    SampleModel form;
    EXPECT_EQ(form.FormName(), "frmSample");
    EXPECT_THAT(form.Controls(),
                ElementsAre(DialogControl{"lblCount", "0"}, DialogControl{"txtName", "Pils"},
                            DialogControl{"chkAgain", "yes"}, DialogControl{"optSmall", "yes"},
                            DialogControl{"optLarge", "no"}));
}

TEST(FormModel, HasAControlOnlyWhileItIsThere) {
    SampleModel form;
    EXPECT_FALSE(form.SetControl("txtNote", "new"));
    EXPECT_EQ(form.noteText, "old");
    ASSERT_TRUE(form.SetControl("optLarge", "yes"));
    EXPECT_EQ(form.Controls().back(), (DialogControl{"txtNote", "old"}));
    EXPECT_TRUE(form.SetControl("txtNote", "new"));
    EXPECT_EQ(form.Controls().back().text, "new");
}

TEST(FormModel, GivesTheTextOfOneControl) {
    SampleModel form;
    EXPECT_EQ(form.Text("txtName"), "Pils");
    EXPECT_EQ(form.Text("txtNote"), "");
    EXPECT_EQ(form.Text("txtFind"), "");
    EXPECT_EQ(form.Text("txtOther"), "");
    form.SetControl("optLarge", "yes");
    EXPECT_EQ(form.Text("txtNote"), "old");
}

TEST(FormModel, RefusesWhatAControlDoesNotTake) {
    SampleModel form;
    EXPECT_FALSE(form.SetControl("lblCount", "7"));
    EXPECT_FALSE(form.SetControl("txtOther", "7"));
    EXPECT_FALSE(form.SetControl("chkAgain", "maybe"));
    EXPECT_TRUE(form.again);
    EXPECT_FALSE(form.SetControl("optSmall", "no"));
    EXPECT_FALSE(form.SetControl("txtFind", "nothing"));
    EXPECT_TRUE(form.SetControl("txtFind", "stout"));
    EXPECT_EQ(form.found, "stout");
    EXPECT_TRUE(form.SetControl("chkAgain", "no"));
    EXPECT_FALSE(form.again);
    EXPECT_TRUE(form.SetControl("txtName", ""));
    EXPECT_EQ(form.name, "");
}

TEST(FormModel, ADisabledButtonDoesNothing) {
    SampleModel form;
    for (int i = 0; i < 4; ++i) EXPECT_TRUE(form.Press("cmdStep"));
    EXPECT_EQ(form.steps, 2);
    EXPECT_FALSE(form.IsEnabled("cmdStep"));
    EXPECT_TRUE(form.IsEnabled("cmdOK"));
    EXPECT_FALSE(form.IsEnabled("cmdHelp"));
    EXPECT_FALSE(form.Press("cmdHelp"));
}

TEST(FormModel, IsCancelledUnlessItWasAccepted) {
    SampleModel accepted, cancelled, closed;
    EXPECT_TRUE(accepted.IsOpen());
    EXPECT_TRUE(accepted.Cancelled());
    accepted.Press("cmdOK");
    EXPECT_FALSE(accepted.IsOpen());
    EXPECT_FALSE(accepted.Cancelled());
    cancelled.Press("cmdCancel");
    EXPECT_FALSE(cancelled.IsOpen());
    EXPECT_TRUE(cancelled.Cancelled());
    closed.CloseBox();
    EXPECT_FALSE(closed.IsOpen());
    EXPECT_TRUE(closed.Cancelled());
}

}  // namespace
}  // namespace tw

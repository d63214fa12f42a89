// Tests of the window that asks how one brews.
#include "GuiTest.h"
#include "shell/ui/BrewhouseDialog.h"

namespace tw::test {
namespace {

class BrewhouseWindow : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        model = std::make_unique<BrewhouseModel>(shell.SettingsNow(), *shell.DB(), outside.messages,
                                                 BrewhouseModel::Start::SuggestUS);
        dialog = std::make_unique<BrewhouseDialog>(*model, &window);
        dialog->show();
        QApplication::setActiveWindow(dialog.get());
    }
    template <class Control>
    Control& In(const char* name) {
        return *dialog->findChild<Control*>(QLatin1String(name));
    }

    std::unique_ptr<BrewhouseModel> model;
    std::unique_ptr<BrewhouseDialog> dialog;
};

TEST_F(BrewhouseWindow, EnterTakesAllSuggestions) {
    EXPECT_EQ(Focus(), "cmbMethod");
    Key(Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(model->Cancelled());
    EXPECT_EQ(shell.CurrentSettings().grainExtraction, "72%");
}

TEST_F(BrewhouseWindow, EscapeLeavesTheDefaults) {
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(shell.CurrentSettings().grainExtraction, "40%");
}

TEST_F(BrewhouseWindow, ShowsWhatFollowsFromAChoice) {
    Key(Qt::Key_Down);
    EXPECT_EQ(FromQt(In<QLineEdit>("txtExtract").text()), "60%");
    In<QLineEdit>("txtExtract").setFocus();
    In<QLineEdit>("txtExtract").selectAll();
    Type("75");
    EXPECT_EQ(FromQt(In<QComboBox>("cmbMethod").currentText()), "A rate of my own");
    In<QCheckBox>("chkMaximize").click();
    EXPECT_EQ(model->Text("chkMaximize"), "no");
}

TEST_F(BrewhouseWindow, ARefusedEntryGetsTheFocus) {
    auto& box = In<QLineEdit>("txtBoilVol");
    box.setFocus();
    box.selectAll();
    Type("kettle\r");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Focus(), "txtBoilVol");
    EXPECT_EQ(FromQt(box.selectedText()), "kettle");
}

}  // namespace
}  // namespace tw::test

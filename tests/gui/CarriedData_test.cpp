// Tests of the window of carried data with the keyboard, and of its menu item.
#include "store/CarriedData.h"

#include <QSignalSpy>

#include "GuiTest.h"
#include "doctor/ui/CarriedDataDialog.h"
#include "store/RecipeRows.h"

namespace tw::test {
namespace {

class CarriedDataWindow : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        NewRecipe();
        RecipeDocument& document = *shell.Documents().Active();
        ASSERT_TRUE(shell.Opened()->saver.SaveUnder(document, "Mild", 0, Asking::Quietly));
        id = RecipeId(*shell.DB(), "Mild").value();
    }
    void Keep() {
        CarriedData(*shell.DB())
            .Keep(id, kCarriedBeerXml, "old.xml", {2026, 5, 4, 9, 30, 5},
                  "<RECIPE><NAME>Mild</NAME><MASH><NAME>One step</NAME><PH>5.4</PH></MASH>"
                  "<NOTES>&lt;b&gt;two&lt;/b&gt;\nlines</NOTES></RECIPE>");
    }
    CarriedDataModel Model() { return {*shell.DB(), id, "Mild", outside.messages, outside.clipboard}; }
    static void Show(QDialog& dialog) {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QApplication::processEvents();
    }
    static QPushButton& Button(const QDialog& dialog, const char* name) {
        return *dialog.findChild<QPushButton*>(QLatin1String(name));
    }
    QAction& Item() {
        for (QAction* const action : window.findChildren<QAction*>())
            if (action->objectName() == QStringLiteral("mnuFileCarried")) return *action;
        throw Error("CarriedData_test", "there is no menu item", 0);
    }

    std::int64_t id = 0;
};

TEST_F(CarriedDataWindow, ShowsTheFieldsWithTheirValues) {
    Keep();
    CarriedDataModel model = Model();
    CarriedDataDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(dialog.windowTitle()), "Carried Data - Mild");
    const QString date = QLocale().toString(QDate(2026, 5, 4), QLocale::ShortFormat);
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblSource"))->text(),
              QStringLiteral("From old.xml, imported ") + date);
    auto& tree = *dialog.findChild<QTreeWidget*>(QStringLiteral("treeFields"));
    EXPECT_EQ(FromQt(tree.headerItem()->text(0)), "Field");
    EXPECT_EQ(FromQt(tree.headerItem()->text(1)), "Value");
    EXPECT_FALSE(tree.accessibleName().isEmpty());
    const QTreeWidgetItem& root = *tree.topLevelItem(0);
    EXPECT_TRUE(root.isExpanded());
    EXPECT_EQ(FromQt(root.text(0)), "RECIPE");
    EXPECT_EQ(FromQt(root.text(1)), "Mild");
    ASSERT_EQ(root.childCount(), 3);
    const QAbstractItemModel& shown = *tree.model();
    const QModelIndex top = shown.index(0, 0);
    const QModelIndex second = shown.index(1, 0, top);
    EXPECT_EQ(FromQt(shown.index(1, 1, second).data().toString()), "5.4");
    // A row is one line; the tool tip shows all of them, and no markup.
    const QModelIndex third = shown.index(2, 1, top);
    EXPECT_EQ(FromQt(third.data().toString()), "<b>two</b> lines");
    EXPECT_NE(third.data(Qt::ToolTipRole).toString().indexOf(QStringLiteral("&lt;b&gt;")), -1);
}

TEST_F(CarriedDataWindow, IsReadCopiedAndClosedByKeyboard) {
    Keep();
    CarriedDataModel model = Model();
    CarriedDataDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(Focus(), "treeFields");
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(model.Text("treeFields"), "MASH: One step");
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboard.text, "MASH: One step\r\n  NAME: One step\r\n  PH: 5.4\r\n");
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(model.Text("treeFields"), "PH: 5.4");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "cmdDrop");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "cmdClose");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(model.IsOpen());
    EXPECT_TRUE(CarriedData(*shell.DB()).IsCarriedFor(id));
}

TEST_F(CarriedDataWindow, DropAsksAndThenCloses) {
    Keep();
    CarriedDataModel model = Model();
    CarriedDataDialog dialog(model, nullptr);
    Show(dialog);
    QPushButton& drop = Button(dialog, "cmdDrop");
    const auto press = [&] {
        QSignalSpy clicked(&drop, &QPushButton::clicked);
        QTest::keyClick(&drop, Qt::Key_D, Qt::AltModifier);
        EXPECT_TRUE(!clicked.isEmpty() || clicked.wait());
    };
    press();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(outside.messages.log.size(), 1u);
    outside.messages.answers = {Answer::Yes};
    press();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(CarriedData(*shell.DB()).IsCarriedFor(id));
}

TEST_F(CarriedDataWindow, SaysThatThereIsNothing) {
    CarriedDataModel model = Model();
    CarriedDataDialog dialog(model, nullptr);
    Show(dialog);
    EXPECT_EQ(FromQt(dialog.findChild<QLabel*>(QStringLiteral("lblSource"))->text()),
              "This recipe carries no data of another program.");
    EXPECT_FALSE(Button(dialog, "cmdDrop").isEnabled());
    EXPECT_EQ(Focus(), "cmdClose");
    Key(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(CarriedDataWindow, ItsMenuItemFollowsTheActiveRecipe) {
    EXPECT_FALSE(Item().isEnabled());
    Keep();
    // Another window and back.
    RecipeDocument& mild = *shell.Documents().Active();
    NewRecipe();
    EXPECT_FALSE(Item().isEnabled());
    shell.Documents().Activate(mild);
    EXPECT_TRUE(Item().isEnabled());
    outside.dialogs.scripts.push_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.FormName(), "frmCarriedData");
        dialog.Press("cmdDrop");
    });
    outside.messages.answers = {Answer::Yes};
    Item().trigger();
    EXPECT_FALSE(Item().isEnabled());
}

}  // namespace
}  // namespace tw::test

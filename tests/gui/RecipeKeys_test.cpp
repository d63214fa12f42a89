// Tests of the keys that work wherever the focus is in a recipe, and of Escape, Delete and leaving a box.
#include "GuiTest.h"
#include "document/ui/NamePopup.h"

namespace tw::test {
namespace {

class RecipeKeys : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        NewRecipe();
    }
    RecipeRecord& R() { return shell.Documents().Active()->Record(); }
    Tab Front() { return static_cast<Tab>(Find<QTabWidget>("SSTab1").currentIndex()); }
    // Returns every control of the current tab that gets the focus by Tab, and the tab bar.
    std::vector<QWidget*> Controls() {
        std::vector<QWidget*> found{Find<QTabWidget>("SSTab1").tabBar()};
        const auto& pages = Find<QTabWidget>("SSTab1");
        for (auto* control : pages.currentWidget()->findChildren<QWidget*>())
            if (control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus))
                found.push_back(control);
        return found;
    }
};

TEST_F(RecipeKeys, GoFromTabToTabFromEveryControl) {
    BuildAllTabs();
    for (int tab = 1; tab + 1 < kTabs; ++tab) {
        window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
        const std::vector<QWidget*> controls = Controls();
        ASSERT_GE(controls.size(), 2U) << tab;
        for (QWidget* control : controls) {
            const std::string name = FromQt(control->objectName());
            window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
            control->setFocus();
            Key(Qt::Key_PageDown, Qt::ControlModifier);
            EXPECT_EQ(Front(), static_cast<Tab>(tab + 1)) << name;
            window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
            control->setFocus();
            Key(Qt::Key_PageUp, Qt::ControlModifier);
            EXPECT_EQ(Front(), static_cast<Tab>(tab - 1)) << name;
        }
    }
}

TEST_F(RecipeKeys, GoOnFromAListAndFromAnOpenEditor) {
    Find<QComboBox>("cmbStyle").setFocus();
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Front(), Tab::Grains);
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Front(), Tab::Extracts);
    EXPECT_EQ(Shown(view, 1, 1), "8 lb");
}

TEST_F(RecipeKeys, AltAndADigitGoToATab) {
    const Strings first{"txtName", "gridGrain",    "gridExtract", "gridHops", "gridWater",
                        "txtTemp", "gridAdjuncts", "gridLog",     "txtNotes"};
    for (const int tab : {8, 0, 3, 1, 2, 4, 6, 5, 7}) {
        Key(static_cast<Qt::Key>(Qt::Key_1 + tab), Qt::AltModifier);
        EXPECT_EQ(Front(), static_cast<Tab>(tab));
        EXPECT_EQ(Focus(), first[static_cast<std::size_t>(tab)]);
    }
    // A refused entry keeps the current tab.
    Key(Qt::Key_1, Qt::AltModifier);
    Find<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    Key(Qt::Key_4, Qt::AltModifier);
    EXPECT_EQ(Front(), Tab::General);
    EXPECT_EQ(outside.messages.log, Strings{"[Invalid Entry] Please enter a valid volume"});
}

TEST_F(RecipeKeys, EscapeRestoresTheLastCommittedTextOfEveryBox) {
    BuildAllTabs();
    const std::vector<std::tuple<Tab, const char*, const char*, const char*>> boxes{
        {Tab::General, "txtName", "Old Ale", "x"},        {Tab::General, "txtNumBatches", "2", "3"},
        {Tab::General, "txtBoilVol", "6 gal", "7"},       {Tab::General, "txtTotalVol", "5 gal", "7"},
        {Tab::General, "txtFG", "1.010", "much"},         {Tab::Grains, "txtExtract", "72%", "9"},
        {Tab::Hops, "txtHopExtraction", "0.9", "2"},      {Tab::Carbonation, "txtTemp", "68 F", "x"},
        {Tab::Carbonation, "txtDilutions", "1 gal", "x"}, {Tab::Carbonation, "txtFinalVol", "4 gal", "x"}};
    for (const auto& [tab, name, committed, typed] : boxes) {
        window.ActiveWindow()->ShowTab(tab);
        auto& box = Find<QLineEdit>(name);
        box.setFocus();
        box.selectAll();
        Type(committed);
        Key(Qt::Key_Return);
        Type(typed);
        EXPECT_EQ(FromQt(box.text()), typed) << name;
        Key(Qt::Key_Escape);
        EXPECT_EQ(FromQt(box.text()), committed) << name;
        EXPECT_EQ(R().FindTextBox(name)->Text(), committed);
    }
    EXPECT_EQ(shell.Documents().Active()->Caption(), "Old Ale");
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(RecipeKeys, EscapeRestoresTheNotesAsTheyWereLastLeft) {
    window.ActiveWindow()->ShowTab(Tab::Notes);
    auto& notes = Find<QPlainTextEdit>("txtNotes");
    Type("one\rtwo");
    window.ActiveWindow()->ShowTab(Tab::General);
    window.ActiveWindow()->ShowTab(Tab::Notes);
    notes.moveCursor(QTextCursor::End);
    Type("!");
    // Opening and closing a menu does not leave the box.
    QMenu& menu = *window.findChild<QMenu*>(QStringLiteral("mnuEdit"));
    menu.popup(QPoint(0, 0));
    menu.close();
    Type("!");
    EXPECT_EQ(R().txtNotes.Text(), "one\r\ntwo!!");
    Key(Qt::Key_Escape);
    EXPECT_EQ(R().txtNotes.Text(), "one\r\ntwo");
    EXPECT_EQ(notes.toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(notes.textCursor().position(), 7);
}

TEST_F(RecipeKeys, DeleteTakesTheNextLetterOrTheSelection) {
    window.ActiveWindow()->ShowTab(Tab::Notes);
    auto& notes = Find<QPlainTextEdit>("txtNotes");
    Type("dry hops");
    notes.moveCursor(QTextCursor::Start);
    Key(Qt::Key_Delete);
    EXPECT_EQ(R().txtNotes.Text(), "ry hops");
    // The key of the number pad does the same.
    Key(Qt::Key_End, Qt::ShiftModifier);
    Key(Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(R().txtNotes.Text(), "");
    EXPECT_EQ(FromQt(window.findChild<QAction*>(QStringLiteral("mnuEditUndo"))->text()), "&Undo Delete");
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb\r");
    Key(Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(Shown(view, 1, 1), "");
}

TEST_F(RecipeKeys, AMenuSettlesTheStyleThatIsBeingTyped) {
    shell.Documents().Active()->Style().Reload();
    auto& styles = Find<QComboBox>("cmbStyle");
    QMenu& menu = *window.findChild<QMenu*>(QStringLiteral("mnuEdit"));
    for (const auto& [typed, style] :
         {std::pair("sto", "Stout"), std::pair("no such beer", "Stout"), std::pair("(n", "(None)")}) {
        styles.setFocus();
        styles.lineEdit()->selectAll();
        Type(typed);
        menu.popup(QPoint(0, 0));
        EXPECT_FALSE(styles.findChild<NamePopup*>()->isVisible()) << typed;
        EXPECT_EQ(FromQt(styles.currentText()), style) << typed;
        EXPECT_EQ(shell.Documents().Active()->BeerStyle(), style);
        menu.close();
    }
    // The menu is opened by key while the list of matches is open.
    styles.setFocus();
    styles.lineEdit()->selectAll();
    Type("n");
    ASSERT_TRUE(styles.findChild<NamePopup*>()->isVisible());
    Key(Qt::Key_E, Qt::AltModifier);
    ASSERT_TRUE(menu.isVisible());
    EXPECT_FALSE(styles.findChild<NamePopup*>()->isVisible());
    EXPECT_EQ(FromQt(styles.currentText()), "(None)");
    menu.close();
    // The focus moves to the menu bar, and from there to another box.
    styles.setFocus();
    styles.lineEdit()->selectAll();
    Type("sto");
    window.menuBar()->setFocus(Qt::MenuBarFocusReason);
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
    EXPECT_EQ(FromQt(styles.currentText()), "Stout");
}

// The focus moves to a menu, which does not leave the box, and then to another box, which does.
TEST_F(RecipeKeys, ABoxIsLeftOverAMenuToo) {
    auto& volume = Find<QLineEdit>("txtBoilVol");
    volume.setFocus();
    Type("6 gal");
    window.menuBar()->setFocus(Qt::MenuBarFocusReason);
    EXPECT_DOUBLE_EQ(R().txtBoilVol.Value(), 0);
    Find<QPushButton>("cmdBrowseStyles").setFocus();
    EXPECT_DOUBLE_EQ(R().txtBoilVol.Value(), 6);
    // The same path with an entry that is refused.
    volume.setFocus();
    volume.selectAll();
    Type("much");
    window.menuBar()->setFocus(Qt::MenuBarFocusReason);
    Find<QLineEdit>("txtTotalVol").setFocus();
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.log, Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(Focus(), "txtBoilVol");
}

TEST_F(RecipeKeys, ControlAndEnterOpensTheCatalogueFromTheNameBeingTyped) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Rye");
    Key(Qt::Key_Return, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmLvShow"});
    EXPECT_EQ(Shown(view, 1, 0), "Rye");
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
}

}  // namespace
}  // namespace tw::test

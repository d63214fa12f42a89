// Tests of a recipe's window as a brewer uses it: the keyboard, the figures, refused entries, saving.
#include "GuiTest.h"
#include "document/ui/NamePopup.h"
#include "platform/qt/Appearance.h"

namespace tw::test {
namespace {

class DocumentWindow : public GuiTest {};

TEST_F(DocumentWindow, StartsInTheNameOfAnUnnamedRecipe) {
    NewRecipe();
    EXPECT_EQ(Focus(), "txtName");
    Type("Amber");
    EXPECT_EQ(shell.Documents().Active()->BeerName(), "Amber");
    EXPECT_EQ(window.ActiveWindow()->parentWidget()->windowTitle(), QStringLiteral("Amber[*]"));
}

// 8 lb at 36 PPG, 40 % extraction (the default), 5 gallons: 8 * 36 * 0.4 / 5 = 23.04 points.
TEST_F(DocumentWindow, ShowsTheGravityOfATypedMash) {
    NewRecipe();
    Find<QLineEdit>("txtTotalVol").setFocus();
    Type("5 gal");
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Focus(), "gridGrain");
    Type("Home-kilned");
    Key(Qt::Key_Tab);
    Type("8 lb");
    Key(Qt::Key_Tab);
    Type("36");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(Find<GridView>("gridGrain"), 1, 3), "23.0");
    EXPECT_EQ(Text("txtOG"), "1.023");
}

// 8 lb of 125 degrees Lovibond in 5 gallons: 200 HCU, which is beyond the numbers of SRM.
TEST_F(DocumentWindow, ShowsTheWholeColorOfADarkBeer) {
    NewRecipe();
    Find<QLineEdit>("txtTotalVol").setFocus();
    Type("5 gal");
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Home-roasted");
    Key(Qt::Key_Tab);
    Type("8 lb");
    GridAt(Tab::Grains, "gridGrain", 1, 4);
    Type("125");
    Key(Qt::Key_Return);
    window.ActiveWindow()->ShowTab(Tab::General);
    QApplication::processEvents();
    const auto& color = Find<QLineEdit>("txtColor");
    ASSERT_EQ(FromQt(color.text()), ">50 SRM (200 HCU)");
    constexpr int kEdges = 4;  // two pixels of space on either side of a line's text
    EXPECT_LE(color.fontMetrics().horizontalAdvance(color.text()) + kEdges, color.contentsRect().width());
}

TEST_F(DocumentWindow, KeepsARecipeThroughSavingClosingAndOpening) {
    NewRecipe();
    Type("Night Shift");
    Find<QLineEdit>("txtTotalVol").setFocus();
    Type("5 gal");
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pale Malt");
    Key(Qt::Key_Tab);
    Type("8 lb");
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) { dialog.Press("cmdOK"); });
    // The amount is still in its editor: saving commits it first.
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmOpenSave"});
    EXPECT_FALSE(shell.Documents().Active()->Changed());
    ASSERT_TRUE(window.RunCommand(CommandId::FileClose));
    EXPECT_EQ(window.ActiveWindow(), nullptr);
    EXPECT_EQ(outside.messages.log, Strings{});

    shell.Opened()->recipes.OpenByName("Night Shift");
    ASSERT_NE(window.ActiveWindow(), nullptr);
    EXPECT_EQ(Text("txtName"), "Night Shift");
    EXPECT_EQ(Text("txtTotalVol"), "5 gal");
    EXPECT_EQ(Text("txtOG"), "1.023");
    EXPECT_EQ(Shown(GridAt(Tab::Grains, "gridGrain", 1, 0), 1, 1), "8 lb");
}

TEST_F(DocumentWindow, KeepsTheFocusInARefusedBox) {
    NewRecipe();
    Find<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    Key(Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.log, Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(Focus(), "txtBoilVol");
    EXPECT_EQ(Find<QLineEdit>("txtBoilVol").selectedText(), QStringLiteral("much"));
    Type("6 gal");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "txtTotalVol");
    EXPECT_DOUBLE_EQ(shell.Documents().Active()->Record().txtBoilVol.Value(), 6);
}

TEST_F(DocumentWindow, StaysOnTheTabOfARefusedBox) {
    NewRecipe();
    Find<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Find<QTabWidget>("SSTab1").currentIndex(), 0);
    // The mouse has the same effect.
    outside.messages.log.clear();
    Find<QTabWidget>("SSTab1").setCurrentIndex(3);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.log, Strings{"[Invalid Entry] Please enter a valid volume"});
    EXPECT_EQ(Find<QTabWidget>("SSTab1").currentIndex(), 0);
    EXPECT_EQ(Focus(), "txtBoilVol");
}

TEST_F(DocumentWindow, CommitsWhenAnotherRecipeComesToTheFront) {
    NewRecipe();
    RecipeDocument& first = *shell.Documents().Active();
    Find<QLineEdit>("txtBoilVol").setFocus();
    Type("6 gal");
    NewRecipe();
    EXPECT_DOUBLE_EQ(first.Record().txtBoilVol.Value(), 6);
    // A refused entry cancels the new recipe.
    Find<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    EXPECT_TRUE(window.RunCommand(CommandId::FileNew));
    EXPECT_EQ(shell.Documents().All().size(), 2U);
    EXPECT_EQ(Focus(), "txtBoilVol");
}

TEST_F(DocumentWindow, ARightClickInABoxOpensTheEditMenu) {
    NewRecipe();
    auto& box = Find<QLineEdit>("txtBoilVol");
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(3, 3), box.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&box, &click);
    auto* menu = window.findChild<QMenu*>(QStringLiteral("mnuEdit"));
    EXPECT_TRUE(menu->isVisible());
    menu->hide();
}

TEST_F(DocumentWindow, RefusesToSaveOrCloseOverABadEntry) {
    NewRecipe();
    Type("Bad");
    Find<QLineEdit>("txtBoilVol").setFocus();
    Type("much");
    EXPECT_TRUE(window.RunCommand(CommandId::FileSaveAs));
    EXPECT_EQ(outside.dialogs.shown, Strings{});
    EXPECT_TRUE(window.RunCommand(CommandId::FileClose));
    EXPECT_NE(window.ActiveWindow(), nullptr);
    EXPECT_EQ(outside.messages.log, (Strings{"[Invalid Entry] Please enter a valid volume",
                                             "[Invalid Entry] Please enter a valid volume"}));
}

TEST_F(DocumentWindow, CommitsOnEnterAndRestoresOnEscape) {
    NewRecipe();
    auto& box = Find<QLineEdit>("txtBoilVol");
    box.setFocus();
    Type("6 gal");
    Key(Qt::Key_Return);
    EXPECT_DOUBLE_EQ(shell.Documents().Active()->Record().txtBoilVol.Value(), 6);
    Type("7");
    EXPECT_EQ(box.text(), QStringLiteral("7"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(box.text(), QStringLiteral("6 gal"));
    EXPECT_DOUBLE_EQ(shell.Documents().Active()->Record().txtBoilVol.Value(), 6);
}

TEST_F(DocumentWindow, WalksThroughAllTabsByKey) {
    NewRecipe();
    const Strings first{"txtName", "gridGrain",    "gridExtract", "gridHops", "gridWater",
                        "txtTemp", "gridAdjuncts", "gridLog",     "txtNotes"};
    for (const std::string& name : first) {
        EXPECT_EQ(Focus(), name);
        Key(Qt::Key_PageDown, Qt::ControlModifier);
    }
    // There is no tab after the last one.
    EXPECT_EQ(Focus(), "txtNotes");
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Focus(), "gridLog");
}

TEST_F(DocumentWindow, ChoosesAStyleByTheBeginningOfAWord) {
    NewRecipe();
    shell.Documents().Active()->Style().Reload();
    auto& styles = Find<QComboBox>("cmbStyle");
    styles.setFocus();
    Type("stout");
    Key(Qt::Key_Return);
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
    EXPECT_EQ(Find<QLabel>("lblOGStyle").text(), QStringLiteral("1.020 - 1.030"));
    EXPECT_EQ(Find<QLabel>("lblIBUStyle").text(), QStringLiteral(">= 25"));
    // Text that only one style fits selects that style.
    styles.setFocus();
    Type("(no");
    Key(Qt::Key_Return);
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "(None)");
    Type("sto");
    // The choice is not committed yet and the list of matches is open; anything that
    // leaves the box commits it.
    EXPECT_TRUE(styles.findChild<NamePopup*>()->isVisible());
    EXPECT_TRUE(window.ActiveWindow()->Flush());
    EXPECT_FALSE(styles.findChild<NamePopup*>()->isVisible());
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
    // A text that matches no style is replaced by the current choice.
    Type("no such beer");
    Key(Qt::Key_Tab);
    EXPECT_EQ(styles.currentText(), QStringLiteral("Stout"));
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
}

TEST_F(DocumentWindow, SwapsPrimingAndPressureWithThePackaging) {
    NewRecipe();
    window.ActiveWindow()->ShowTab(Tab::Carbonation);
    EXPECT_TRUE(Find<GridView>("gridPriming").isVisible());
    EXPECT_FALSE(Find<GridView>("gridPressure").isVisible());
    Find<QRadioButton>("optKeg").click();
    EXPECT_FALSE(Find<GridView>("gridPriming").isVisible());
    EXPECT_TRUE(Find<GridView>("gridPressure").isVisible());
    EXPECT_EQ(Find<QWidget>("FancyLabel8").property("Caption").toString(), QStringLiteral("Pressure"));
    EXPECT_FALSE(shell.Documents().Active()->Record().Bottled());
}

TEST_F(DocumentWindow, AsksBeforeItsChangesAreLost) {
    NewRecipe();
    Type("Draft");
    outside.messages.answers = {Answer::Cancel, Answer::No};
    auto* frame = window.ActiveWindow()->parentWidget();
    frame->close();
    EXPECT_NE(window.ActiveWindow(), nullptr);
    frame->close();
    EXPECT_EQ(window.ActiveWindow(), nullptr);
    const std::string question =
        "[Unsaved Changes] Recipe 'Draft' has changed. Do you wish to save your changes?";
    EXPECT_EQ(outside.messages.log, (Strings{question + " -> Cancel", question + " -> No"}));
}

// The window exists until the event that closed it has been processed; an event that still reaches its
// controls finds no recipe.
TEST_F(DocumentWindow, FallsSilentOnceItsRecipeIsClosed) {
    NewRecipe();
    BuildAllTabs();
    const QPointer<RecipeWindow> closed = window.ActiveWindow();
    auto& box = Find<QLineEdit>("txtBoilVol");
    auto& styles = Find<QComboBox>("cmbStyle");
    auto& hops = Find<GridView>("gridHops");
    ASSERT_TRUE(window.RunCommand(CommandId::FileClose));
    ASSERT_FALSE(closed.isNull()) << "the frame went at once";
    QApplication::setPalette(DarkPalette());
    QTest::keyClicks(&box, QStringLiteral("much"));
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&styles, Qt::Key_Escape);
    QTest::keyClick(&hops, Qt::Key_Space);
    QApplication::setPalette(QPalette());
    EXPECT_EQ(hops.Model().rowCount(), 0);
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(DocumentWindow, OpensTheDetailsOnlyWithBothGravities) {
    NewRecipe();
    auto& details = Find<QPushButton>("cmdStrengthDetails");
    EXPECT_FALSE(details.isEnabled());
    Find<QLineEdit>("txtTotalVol").setFocus();
    Type("5 gal");
    Find<QLineEdit>("txtFG").setFocus();
    Type("1.010");
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pale Malt");
    Key(Qt::Key_Tab);
    Type("8 lb");
    Key(Qt::Key_Return);
    window.ActiveWindow()->ShowTab(Tab::General);
    ASSERT_TRUE(details.isEnabled());
    details.click();
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmStrengthDetails"});
}

}  // namespace
}  // namespace tw::test

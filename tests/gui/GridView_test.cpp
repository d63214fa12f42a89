// Tests of editing in the grids: cell editors, keys, rows, check boxes, totals, the calendar.
#include "GuiTest.h"
#include "document/ui/GridPanel.h"

namespace tw::test {
namespace {

class GridEditing : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        NewRecipe();
    }
    RecipeRecord& R() { return shell.Documents().Active()->Record(); }
    static QComboBox* ListEditor() { return qobject_cast<QComboBox*>(QApplication::focusWidget()); }
};

TEST_F(GridEditing, TypingOpensTheEditorOverTheOldText) {
    GridAt(Tab::Adjuncts, "gridAdjuncts", 1, 0);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    auto& view = GridAt(Tab::Adjuncts, "gridAdjuncts", 1, 1);
    Type("1 tsp");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 1), "1 tsp");
    Type("2");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 1), "2");
}

TEST_F(GridEditing, EscapeKeepsTheOldText) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Shown(view, 1, 1), "");
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_FALSE(shell.Documents().Active()->Changed());
}

TEST_F(GridEditing, ARefusedEntryStaysInItsEditor) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("a lot");
    Key(Qt::Key_Return);
    ASSERT_EQ(outside.messages.log.size(), 1U);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->selectedText(), QStringLiteral("a lot"));
    Type("8 lb");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 1), "8 lb");
    EXPECT_DOUBLE_EQ(R().gridGrain.Number(1, GrainCol::Amount), 8);
}

TEST_F(GridEditing, ARefusedEntryKeepsTheFocusWhenTheMouseLeaves) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("a lot");
    Find<QLineEdit>("txtExtract").setFocus(Qt::MouseFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.log.size(), 1U);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(view.isAncestorOf(editor));
    EXPECT_EQ(editor->selectedText(), QStringLiteral("a lot"));
}

TEST_F(GridEditing, TabGoesToTheNextCellThatTakesAnEntry) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 2);
    Key(Qt::Key_Tab);
    // The points are calculated, so the colour comes next.
    EXPECT_EQ(view.currentIndex().column(), GrainCol::Color);
    Key(Qt::Key_Backtab);
    EXPECT_EQ(view.currentIndex().column(), GrainCol::Ppg);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    // After the last cell, Tab leaves the grid.
    EXPECT_EQ(Focus(), "txtExtract");
}

TEST_F(GridEditing, EnterGoesToTheCellBelow) {
    GridAt(Tab::Grains, "gridGrain", 1, 1);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("1 lb");
    Key(Qt::Key_Return);
    EXPECT_EQ(view.currentIndex().row(), 1);
    EXPECT_EQ(view.currentIndex().column(), GrainCol::Amount);
}

TEST_F(GridEditing, ANameOfTheCatalogueFillsItsRow) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("pale malt");
    ASSERT_NE(ListEditor(), nullptr);
    EXPECT_EQ(ListEditor()->findText(QStringLiteral("Pale Malt")), 0);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Shown(view, 1, GrainCol::Ppg), "36");
    EXPECT_EQ(Shown(view, 1, GrainCol::Color), "2");
}

TEST_F(GridEditing, TheHopFormIsChosenFromItsListAlone) {
    auto& view = GridAt(Tab::Hops, "gridHops", 1, HopCol::Form);
    Key(Qt::Key_F2);
    ASSERT_NE(ListEditor(), nullptr);
    EXPECT_FALSE(ListEditor()->isEditable());
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, HopCol::Form), "Leaf");
}

TEST_F(GridEditing, SpaceAndClickToggleACheckBox) {
    auto& view = GridAt(Tab::Hops, "gridHops", 1, HopCol::DryHopped);
    ASSERT_FALSE(R().gridHops.Checked(1, HopCol::DryHopped));
    Key(Qt::Key_Space);
    EXPECT_TRUE(R().gridHops.Checked(1, HopCol::DryHopped));
    const QPoint place = view.visualRect(view.currentIndex()).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(R().gridHops.Checked(1, HopCol::DryHopped));
}

TEST_F(GridEditing, DeleteEmptiesTheCell) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("1 lb");
    Key(Qt::Key_Return);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Shown(view, 1, 1), "");
    EXPECT_DOUBLE_EQ(R().gridGrain.Number(1, GrainCol::Amount), 0);
}

TEST_F(GridEditing, RowsComeAndGoByKey) {
    auto& view = GridAt(Tab::Hops, "gridHops", 1, 0);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(R().gridHops.DataRows(), 3);
    EXPECT_EQ(view.Model().rowCount(), 3);
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(R().gridHops.DataRows(), 2);
    EXPECT_EQ(view.Model().rowCount(), 2);
}

TEST_F(GridEditing, TheNewRowIsTheCurrentOne) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    Key(Qt::Key_Return);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    EXPECT_EQ(view.currentIndex(), view.Model().index(0, 0));
    Type("Rye");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 0), "Rye");
    EXPECT_EQ(Shown(view, 2, 1), "8 lb");
    // The current row is now the old one below, and Delete deletes it.
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Shown(view, 1, 0), "Rye");
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    EXPECT_EQ(view.currentIndex().row(), 0);
}

TEST_F(GridEditing, TheFirstRowOfAnEmptyGridTakesTheKeys) {
    auto& view = GridAt(Tab::Adjuncts, "gridAdjuncts", 1, 0);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    Type("Irish moss");
    Key(Qt::Key_Tab);
    Type("1 tsp");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 0), "Irish moss");
    EXPECT_EQ(Shown(view, 1, 1), "1 tsp");
}

TEST_F(GridEditing, InsertingFromABoxBesidePutsTheKeysIntoTheNewRow) {
    GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Color);
    Find<QLineEdit>("txtExtract").setFocus();
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    EXPECT_EQ(R().gridGrain.CurrentCol(), 0);
}

TEST_F(GridEditing, TotalsAndRowsShareOneCurrentCell) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    auto& totals = Find<QTableView>("gridGrainTotals");
    const QPoint total = totals.visualRect(totals.model()->index(0, 1)).center();
    const auto clickTotal = [&] { QTest::mouseClick(totals.viewport(), Qt::LeftButton, {}, total); };
    clickTotal();
    EXPECT_EQ(R().gridGrain.CurrentRow(), 3);
    EXPECT_FALSE(shell.Bar().FindItem("mnuEditDelete")->enabled);
    EXPECT_FALSE(view.Cells().IsCurrentCell(view.currentIndex()));
    // A click goes back to the cell that was current among the rows, and then to the same total again.
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.currentIndex()).center());
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    EXPECT_TRUE(shell.Bar().FindItem("mnuEditDelete")->enabled);
    clickTotal();
    EXPECT_EQ(R().gridGrain.CurrentRow(), 3);
    EXPECT_FALSE(shell.Bar().FindItem("mnuEditDelete")->enabled);
}

TEST_F(GridEditing, TheWaterTabStartsInACellThatTakesAnEntry) {
    window.ActiveWindow()->ShowTab(Tab::Water);
    EXPECT_EQ(Focus(), "gridWater");
    EXPECT_EQ(R().gridWater.CurrentRow(), WaterRow::Source);
    EXPECT_EQ(R().gridWater.CurrentCol(), WaterCol::Profile);
}

TEST_F(GridEditing, AReadOnlyCellOpensNoEditor) {
    GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Points);
    Type("5");
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Points), "");
}

TEST_F(GridEditing, TotalsStayBelowInTheSameColumns) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    Key(Qt::Key_Return);
    auto& totals = Find<QTableView>("gridGrainTotals");
    EXPECT_EQ(totals.model()->index(0, GrainCol::Amount).data().toString(), QStringLiteral("8 lbs."));
    EXPECT_TRUE(totals.isVisible());
    EXPECT_EQ(totals.geometry().top(), view.geometry().bottom() + 1);
    view.setColumnWidth(GrainCol::Ppg, 123);
    EXPECT_EQ(totals.columnWidth(GrainCol::Ppg), 123);
    // Even with more rows than fit.
    for (int i = 0; i < 60; ++i) Key(Qt::Key_Plus, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_LE(totals.geometry().bottom(), totals.parentWidget()->contentsRect().bottom());
    EXPECT_EQ(totals.geometry().top(), view.geometry().bottom() + 1);
}

TEST_F(GridEditing, ColorsOfTheSettingsArePaintedAsStored) {
    // Blue-green-red: 0x0A141E is red 30, green 20, blue 10.
    shell.CurrentSettings().gridTotalBg = 0x0A141E;
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    auto& totals = Find<QTableView>("gridGrainTotals");
    EXPECT_EQ(totals.model()->index(0, 0).data(Qt::BackgroundRole).value<QBrush>().color(),
              QColor(30, 20, 10));
    window.ActiveWindow()->ShowTab(Tab::Water);
    auto& water = Find<GridView>("gridWater");
    const QModelIndex needed = water.Model().index(WaterRow::Needed - 1, WaterCol::FirstIon);
    // Without a chosen colour: a tint of the palette.
    EXPECT_EQ(needed.data(Qt::BackgroundRole).value<QBrush>().color(),
              CalculatedColors({}, water.palette()).ground);
    EXPECT_TRUE(needed.data(Qt::FontRole).value<QFont>().italic());
    EXPECT_FALSE(water.Model().index(0, WaterCol::FirstIon).data(Qt::FontRole).value<QFont>().italic());
}

TEST_F(GridEditing, ABlankGridSaysWhatToType) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    auto* hint = view.parentWidget()->findChild<QLabel*>();
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    Type("Rye");
    Key(Qt::Key_Return);
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(GridEditing, TheCalendarWritesTheDayIntoTheLog) {
    GridAt(Tab::Log, "gridLog", 1, 0);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    auto& view = GridAt(Tab::Log, "gridLog", 1, LogCol::Date);
    Key(Qt::Key_Down, Qt::AltModifier);
    auto& calendar = Find<QCalendarWidget>("MonthView1");
    ASSERT_TRUE(calendar.isVisible());
    EXPECT_EQ(calendar.selectedDate(), QDate(2024, 3, 9));
    emit calendar.clicked(QDate(2024, 3, 17));
    EXPECT_FALSE(calendar.isVisible());
    EXPECT_EQ(Shown(view, 1, LogCol::Date), "3/17/2024");
    // A double click opens the calendar at the cell's date.
    const QPoint place = view.visualRect(view.currentIndex()).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(calendar.isVisible());
    EXPECT_EQ(calendar.selectedDate(), QDate(2024, 3, 17));
    calendar.hide();
}

TEST_F(GridEditing, CellsSpeakTheirRowColumnAndValue) {
    auto& view = GridAt(Tab::Hops, "gridHops", 1, HopCol::Form);
    const auto spoken = [&](int col) {
        return FromQt(view.Model().index(0, col).data(Qt::AccessibleTextRole).toString());
    };
    EXPECT_EQ(spoken(HopCol::Form), "Row 1, Hop Form: Pellet");
    EXPECT_EQ(spoken(HopCol::DryHopped), "Row 1, Dry Hopped?: no");
    EXPECT_EQ(spoken(HopCol::Amount), "Row 1, Amount (oz): empty");
}

// Three columns of 10, 20 and 30, with 7 for each, need 81; of 100, the remaining 19 are 6 for each.
TEST(FitColumns, SharesTheSpareWidth) {
    EXPECT_EQ(FitColumns({10, 20, 30}, 100), (std::vector<int>{16, 26, 36}));
    EXPECT_EQ(FitColumns({10, 20, 30}, 81), (std::vector<int>{10, 20, 30}));
    EXPECT_EQ(FitColumns({10, 20, 30}, 50), (std::vector<int>{10, 20, 30}));
    EXPECT_EQ(FitColumns({}, 50), std::vector<int>{});
}

}  // namespace
}  // namespace tw::test

// Tests of the totals, which to the brewer are rows of their grid, and of the look and size of a grid.
#include "GuiTest.h"
#include "document/ui/GridPanel.h"
#include "document/ui/TotalsView.h"
#include "platform/qt/Appearance.h"

namespace tw::test {
namespace {

class GridTotals : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        NewRecipe();
    }
    RecipeRecord& R() { return shell.Documents().Active()->Record(); }
    // Adds one grain of 8 lb above its total: rows 1 and 2.
    GridView& OneGrain() {
        auto& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
        Type("Rye\t8 lb\r");
        return view;
    }
    TotalsView& Totals(GridView& view) {
        return Find<TotalsView>((FromQt(view.objectName()) + "Totals").c_str());
    }
    void ClickTotal(GridView& view, int row, int col, Qt::MouseButton button = Qt::LeftButton,
                    Qt::KeyboardModifiers keys = {}) {
        TotalsView& totals = Totals(view);
        QTest::mouseClick(totals.viewport(), button, keys,
                          totals.visualRect(totals.Model().index(row, col)).center());
    }
    static GridRange Cell(int row, int col) { return {row, col, row, col}; }
    QMenu& EditMenu() { return *window.findChild<QMenu*>(QStringLiteral("mnuEdit")); }
    static QColor Color(const QModelIndex& cell, int role) { return cell.data(role).value<QBrush>().color(); }
};

TEST_F(GridTotals, ARightClickOpensTheMenuAtTheTotal) {
    GridView& view = OneGrain();
    TotalsView& totals = Totals(view);
    const QPoint place = totals.visualRect(totals.Model().index(0, 1)).center();
    ClickTotal(view, 0, 1, Qt::RightButton);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 1));
    QContextMenuEvent asked(QContextMenuEvent::Mouse, place, totals.viewport()->mapToGlobal(place));
    QApplication::sendEvent(totals.viewport(), &asked);
    EXPECT_TRUE(EditMenu().isVisible());
    EXPECT_TRUE(EditMenu().actions().contains(window.findChild<QAction*>(QStringLiteral("mnuEditCopy"))));
    EditMenu().hide();
    // A click inside a selected block keeps the block selected.
    Key(Qt::Key_A, Qt::ControlModifier);
    ClickTotal(view, 0, 1, Qt::RightButton);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 0, 2, 5}));
}

TEST_F(GridTotals, TheKeysOfTheGridWorkThere) {
    GridView& view = OneGrain();
    ClickTotal(view, 0, GrainCol::Amount);
    EXPECT_EQ(Focus(), "gridGrain");
    Key(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboard.Text(), "8 lbs.\r");
    Key(Qt::Key_Delete);
    Key(Qt::Key_Space);
    Type("9");
    Key(Qt::Key_F2);
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, GrainCol::Amount));
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Amount), "8 lbs.");
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    // A new row is inserted above the totals and gets the focus.
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 0));
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    ClickTotal(view, 0, GrainCol::Amount);
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Focus(), "gridExtract");
    // Coming back moves to a data row, since totals accept no typing.
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_TRUE(R().gridGrain.IsDataRow(R().gridGrain.CurrentRow()));
    EXPECT_TRUE(shell.Bar().FindItem("mnuEditDelete")->enabled);
}

TEST_F(GridTotals, TheMenuKeyOpensTheMenuBelowTheTotal) {
    GridView& view = OneGrain();
    ClickTotal(view, 0, 1);
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view.viewport(), &asked);
    TotalsView& totals = Totals(view);
    const QRect cell = totals.visualRect(totals.Model().index(0, 1));
    EXPECT_EQ(EditMenu().pos().x(), totals.viewport()->mapToGlobal(cell.bottomLeft()).x());
    EditMenu().hide();
}

TEST_F(GridTotals, TheArrowsGoInAndOut) {
    GridView& view = OneGrain();
    view.setCurrentIndex(view.Model().index(0, 3));
    Key(Qt::Key_Down);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 3));
    EXPECT_FALSE(shell.Bar().FindItem("mnuEditDelete")->enabled);
    Key(Qt::Key_Down);
    Key(Qt::Key_Left);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 2));
    Key(Qt::Key_Home);
    Key(Qt::Key_Left);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 0));
    Key(Qt::Key_Right);
    Key(Qt::Key_Up);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(1, 1));
    EXPECT_EQ(view.currentIndex(), view.Model().index(0, 1));
    EXPECT_TRUE(Totals(view).selectionModel()->selectedIndexes().isEmpty());
    // The row accepts typing again.
    Type("9 lb\r");
    EXPECT_EQ(Shown(view, 1, 1), "9 lb");
}

TEST_F(GridTotals, ABlockIsDrawnOverTheBorder) {
    GridView& view = OneGrain();
    view.setCurrentIndex(view.Model().index(0, 1));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 2, 1}));
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 2, 2}));
    EXPECT_EQ(Totals(view).selectionModel()->selectedIndexes().size(), 2);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 1, 2}));
    // A selection that starts with a click on the total.
    ClickTotal(view, 0, 4);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 4, 2, 4}));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 4));
    view.setCurrentIndex(view.Model().index(0, 0));
    ClickTotal(view, 0, 1, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 0, 2, 1}));
}

TEST_F(GridTotals, TabGoesOnInTheGrid) {
    GridView& view = OneGrain();
    ClickTotal(view, 0, 4);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_EQ(R().gridGrain.Selection(), Cell(2, 5));
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "txtExtract");
    // Backtab goes back into the rows, to the last cell that accepts an entry.
    ClickTotal(view, 0, 0);
    Key(Qt::Key_Backtab);
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_EQ(R().gridGrain.Selection(), Cell(1, GrainCol::Color));
}

TEST_F(GridTotals, AClickCommitsWhatIsTypedAbove) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    ClickTotal(view, 0, 1);
    EXPECT_EQ(Shown(view, 1, 1), "8 lb");
    EXPECT_EQ(R().gridGrain.CurrentRow(), 2);
    // A refused entry keeps the current cell.
    view.setCurrentIndex(view.Model().index(0, 1));
    Type("much");
    ClickTotal(view, 0, 1);
    QApplication::processEvents();
    EXPECT_EQ(outside.messages.log.size(), 1U);
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), QStringLiteral("much"));
}

TEST_F(GridTotals, BothRowsBelowThePrimingSugarsAreReached) {
    auto& view = GridAt(Tab::Carbonation, "gridPriming", 1, 0);
    Key(Qt::Key_Down);
    EXPECT_EQ(R().gridPriming.CurrentRow(), 2);
    Key(Qt::Key_Return);
    EXPECT_EQ(R().gridPriming.CurrentRow(), 3);
    Key(Qt::Key_PageUp);
    EXPECT_EQ(R().gridPriming.CurrentRow(), 1);
    EXPECT_TRUE(view.Cells().IsCurrentCell(view.currentIndex()));
}

TEST_F(GridTotals, CalculatedCellsAndTotalsAreTintedOnAnyDesktop) {
    OneGrain();
    window.ActiveWindow()->ShowTab(Tab::Hops);
    for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
        window.setPalette(palette);
        const CellColors calculated = CalculatedColors({}, palette), total = TotalColors({}, palette);
        auto& grains = Find<GridView>("gridGrain");
        for (const int col : {GrainCol::Points, GrainCol::Hcu})
            EXPECT_EQ(Color(grains.Model().index(0, col), Qt::BackgroundRole), calculated.ground);
        EXPECT_FALSE(grains.Model().index(0, GrainCol::Amount).data(Qt::BackgroundRole).isValid());
        auto& hops = Find<GridView>("gridHops");
        EXPECT_EQ(Color(hops.Model().index(0, HopCol::Ibu), Qt::BackgroundRole), calculated.ground);
        const QModelIndex sum = Totals(grains).Model().index(0, GrainCol::Amount);
        EXPECT_EQ(Color(sum, Qt::BackgroundRole), total.ground);
        EXPECT_EQ(Color(sum, Qt::ForegroundRole), total.ink);
        EXPECT_TRUE(sum.data(Qt::FontRole).value<QFont>().bold());
    }
    // The column is wide enough for the bold text of the total.
    auto& grains = GridAt(Tab::Grains, "gridGrain", 1, 0);
    const QFontMetrics bold(BoldFont(grains.font()));
    EXPECT_GE(grains.columnWidth(GrainCol::Amount), bold.horizontalAdvance(QStringLiteral("8 lbs.")));
}

TEST_F(GridTotals, BoldIonsKeepTheirMeaning) {
    auto& water = GridAt(Tab::Water, "gridWater", 1, 2);
    const QModelIndex ion = water.Model().index(WaterRow::Totals - 1, WaterCol::FirstIon);
    Type("100\r");
    EXPECT_FALSE(ion.data(Qt::FontRole).value<QFont>().bold());
}

// The horizontal scroll bar has its own space and does not cover the only row.
TEST_F(GridTotals, ANarrowGridShowsItsRowAboveItsScrollBar) {
    auto& view = GridAt(Tab::Hops, "gridHops", 1, 0);
    Type("Hallertauer Mittelfrueh from the cellar\r");
    auto& panel = *qobject_cast<GridPanel*>(view.parentWidget());
    QWidget& frame = *window.ActiveWindow()->parentWidget();
    for (const int width : {1050, 500, 1050, 520}) {
        frame.resize(width, 500);
        QApplication::processEvents();
        ASSERT_EQ(view.horizontalScrollBar()->isVisible(), width < 1000) << width;
        EXPECT_FALSE(view.verticalScrollBar()->isVisible()) << width;
        const QRect row = view.visualRect(view.Model().index(0, 0));
        EXPECT_GE(row.top(), 0) << width;
        EXPECT_LE(row.bottom(), view.viewport()->rect().bottom()) << width;
        EXPECT_EQ(Totals(view).geometry().top(), view.geometry().bottom() + 1);
        EXPECT_LE(Totals(view).geometry().bottom(), panel.contentsRect().bottom());
    }
    // The same with a column that the brewer has dragged wide.
    frame.resize(1050, 500);
    view.setColumnWidth(0, 2000);
    QApplication::processEvents();
    EXPECT_TRUE(view.horizontalScrollBar()->isVisible());
    EXPECT_FALSE(view.verticalScrollBar()->isVisible());
}

TEST_F(GridTotals, AColumnIsAsWideAsItsLongestText) {
    GridAt(Tab::Log, "gridLog", 1, 0);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    auto& view = GridAt(Tab::Log, "gridLog", 1, LogCol::Notes);
    const QString notes = QStringLiteral("The mash stood at 67 degrees for an hour. ").repeated(6);
    shell.Documents().Active()->Cells().EditCell(R().gridLog, 1, LogCol::Notes, FromQt(notes));
    EXPECT_GE(view.columnWidth(LogCol::Notes), view.fontMetrics().horizontalAdvance(notes));
    EXPECT_EQ(view.columnWidth(LogCol::Action), view.horizontalHeader()->sectionSizeHint(LogCol::Action));
}

}  // namespace
}  // namespace tw::test

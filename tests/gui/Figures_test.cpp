// Tests of the strip of figures, the yeast beside the finished gravity, and the rows that grow by typing.
#include "GuiTest.h"
#include "document/ui/FigureStrip.h"

namespace tw::test {
namespace {

class Figures : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        shell.DB()->Execute("INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Saaz', 3, 4)");
        NewRecipe();
    }
    RecipeDocument& Recipe() { return *shell.Documents().Active(); }
    RecipeRecord& R() { return Recipe().Record(); }
    Tab Front() { return static_cast<Tab>(Find<QTabWidget>("SSTab1").currentIndex()); }
    std::pair<int, int> Current(const Grid& grid) { return {grid.CurrentRow(), grid.CurrentCol()}; }
};

using At = std::pair<int, int>;

TEST_F(Figures, StandBelowEveryTabAndFollowTheRecipe) {
    auto& strip = Find<QAbstractButton>("stripOG");
    EXPECT_EQ(FromQt(strip.accessibleName()), "Original Gravity: unknown");
    Find<QLineEdit>("txtTotalVol").setFocus();
    Type("5\r");
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pale Malt\t10 lb\t");
    EXPECT_TRUE(strip.isVisible());
    // 10 lb * 36 PPG * 40 % / 5 gal = 28.8 points.
    EXPECT_EQ(FromQt(strip.accessibleName()), "Original Gravity: 1.029");
    window.ActiveWindow()->ShowTab(Tab::Notes);
    EXPECT_TRUE(strip.isVisible());
}

TEST_F(Figures, AClickOrTheAltKeyGoesToTheLine) {
    const std::vector<std::tuple<const char*, Qt::Key, const char*>> figures{
        {"stripOG", Qt::Key_O, "txtOG"},   {"stripFG", Qt::Key_G, "txtFG"},
        {"stripABV", Qt::Key_A, "txtABV"}, {"stripColor", Qt::Key_C, "txtColor"},
        {"stripIBU", Qt::Key_U, "txtIBU"}, {"stripCO2", Qt::Key_K, "txtCO2"}};
    BuildAllTabs();
    for (int tab = 0; tab < kTabs; ++tab) {
        for (const auto& [name, key, box] : figures) {
            window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
            Key(key, Qt::AltModifier);
            EXPECT_EQ(Front(), Tab::General) << name << " from " << tab;
            EXPECT_EQ(Focus(), box) << "from " << tab;
            window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
            Find<QAbstractButton>(name).click();
            EXPECT_EQ(Focus(), box) << "from " << tab;
        }
    }
}

TEST_F(Figures, ARefusedEntryStays) {
    GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Amount);
    Type("much");
    Find<QAbstractButton>("stripIBU").click();
    EXPECT_EQ(Front(), Tab::Grains);
}

TEST_F(Figures, TheStripCanBeHiddenInAllRecipesAndComesBack) {
    RecipeWindow& first = *window.ActiveWindow();
    RecipeWindow& second = NewRecipe();
    emit Find<FigureStrip>("strip").HidingWanted();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (RecipeWindow* recipe : {&first, &second}) EXPECT_EQ(recipe->findChild<FigureStrip*>(), nullptr);
    EXPECT_FALSE(shell.CurrentSettings().figureStrip);
    EXPECT_EQ(NewRecipe().findChild<FigureStrip*>(), nullptr);
    shell.SettingsNow().Store("Settings", "FigureStrip", "1");
    EXPECT_NE(first.findChild<FigureStrip*>(), nullptr);
}

TEST_F(Figures, TheYeastStandsBesideTheFinishedGravity) {
    auto& yeast = Find<QLabel>("lblYeast");
    EXPECT_EQ(FromQt(yeast.accessibleName()), "Yeast: No yeast yet");
    Recipe().Lines().AppendRow(R().gridLog);
    Recipe().Cells().EditCell(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
    Recipe().Cells().EditCell(R().gridLog, 1, LogCol::Notes, "Ale - clean");
    EXPECT_EQ(FromQt(yeast.accessibleName()), "Yeast: Ale");
}

TEST_F(Figures, TabInHopsGoesFromTheNameToTheAmountAndTheTime) {
    GridAt(Tab::Hops, "gridHops", 1, 0);
    Type("Saaz\t");
    EXPECT_EQ(Current(R().gridHops), At(1, HopCol::Amount));
    Type("1 oz\t");
    EXPECT_EQ(Current(R().gridHops), At(1, HopCol::Time));
    Type("60\t");
    EXPECT_EQ(Current(R().gridHops), At(2, HopCol::Variety));
    EXPECT_EQ(R().gridHops.DataRows(), 2);
    // Shift and Tab reach what Tab passes over.
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Current(R().gridHops), At(1, HopCol::Time));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Current(R().gridHops), At(1, HopCol::DryHopped));
}

TEST_F(Figures, EnterAtTheEndOfTheLastMaltMakesTheNext) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    // The catalogue fills PPG and color, so the amount is the last thing to type.
    Type("Pale Malt\t8 lb\r");
    EXPECT_EQ(Current(R().gridGrain), At(2, GrainCol::Name));
    Type("Hull Malt\t1 lb\t");
    EXPECT_EQ(Current(R().gridGrain), At(2, GrainCol::Ppg));
    Key(Qt::Key_Return);
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    EXPECT_EQ(view.Model().rowCount(), 2);
    // Within the rows Enter goes down.
    view.setCurrentIndex(view.Model().index(0, GrainCol::Amount));
    Key(Qt::Key_Return);
    EXPECT_EQ(Current(R().gridGrain), At(2, GrainCol::Amount));
}

TEST_F(Figures, ANewRowThatIsLeftBlankIsGone) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pale Malt\t8 lb\t");
    ASSERT_EQ(R().gridGrain.DataRows(), 2);
    Key(Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    EXPECT_EQ(view.Model().rowCount(), 1);
    view.setCurrentIndex(view.Model().index(0, GrainCol::Amount));
    Key(Qt::Key_Return);
    ASSERT_EQ(R().gridGrain.DataRows(), 2);
    window.ActiveWindow()->ShowTab(Tab::Hops);
    QCoreApplication::processEvents();
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
}

TEST_F(Figures, TabLeavesTheGridFromABlankRow) {
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pale Malt\t8 lb\t");
    ASSERT_EQ(R().gridGrain.DataRows(), 2);
    for (int i = 0; i < 8 && Focus() == "gridGrain"; ++i) Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "txtExtract");
    QCoreApplication::processEvents();
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
}

TEST_F(Figures, TypingIntoAnEmptyGridMakesItsFirstRow) {
    window.ActiveWindow()->ShowTab(Tab::Adjuncts);
    Find<GridView>("gridAdjuncts").setFocus();
    ASSERT_EQ(R().gridAdjuncts.DataRows(), 0);
    Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    EXPECT_EQ(R().gridAdjuncts.DataRows(), 0);
    Type("Irish moss\t1 tsp\t");
    ASSERT_EQ(R().gridAdjuncts.DataRows(), 1);
    EXPECT_EQ(R().gridAdjuncts.Text(1, 0), "Irish moss");
    EXPECT_EQ(R().gridAdjuncts.Text(1, 1), "1 tsp");
}

TEST_F(Figures, SharesAreAQuietColumnThatTheCursorPassesOver) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("Pale Malt\t8 lb\t");
    const int shares = R().gridGrain.Cols();
    ASSERT_EQ(view.Model().columnCount(), shares + 1);
    EXPECT_EQ(FromQt(view.Model().headerData(shares, Qt::Horizontal, Qt::DisplayRole).toString()), "%");
    EXPECT_EQ(Shown(view, 1, shares), "100.0");
    view.setCurrentIndex(view.Model().index(0, shares - 1));
    Key(Qt::Key_Right);
    EXPECT_EQ(R().gridGrain.CurrentCol(), shares - 1);
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(R().gridGrain.Selection().col2, shares - 1);
}

}  // namespace
}  // namespace tw::test

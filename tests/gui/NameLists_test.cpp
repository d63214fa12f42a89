// The list of matching names below a cell and below the style.
#include "GuiTest.h"
#include "document/ui/NamePopup.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

class NameLists : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        Database& database = *shell.DB();
        for (const char* sql : {"INSERT INTO GRAINS (NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI, GRAIN) VALUES "
                                "('Pale Ale Malt', 37, 37, 3, 3, TRUE)",
                                "INSERT INTO GRAINS (NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI, GRAIN) VALUES "
                                "('Caramel/Crystal Malt 40L', 34, 34, 40, 40, TRUE)",
                                "INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('East Kent Goldings', 5, 5)",
                                "INSERT INTO STYLES (NAME) VALUES ('Sweet Stout')"})
            database.Execute(sql);
        AddOtherNames(database);
        AddAlias(database, CatalogueKind::Hop, "EKG", "East Kent Goldings");
        AddFacts(database, CatalogueKind::Style, "Sweet Stout", "16A", "Beer 2021");
        NewRecipe();
    }

    // The list of the widget with the focus.
    static NamePopup& List() { return *QApplication::focusWidget()->findChild<NamePopup*>(); }
    static bool IsOpen() {
        const auto* list = QApplication::focusWidget()->findChild<NamePopup*>();
        return list != nullptr && list->isVisible();
    }
    static Strings Entries() {
        Strings entries;
        for (int row = 0; row < List().model()->rowCount(); ++row)
            entries.push_back(FromQt(List().model()->index(row, 0).data().toString()));
        return entries;
    }
    static std::string Highlighted() { return FromQt(List().currentIndex().data().toString()); }
};

TEST_F(NameLists, ShowsWhatFitsBestFirst) {
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("malt");
    EXPECT_EQ(Entries(), (Strings{"Caramel/Crystal Malt 40L", "Pale Ale Malt", "Pale Malt"}));
    EXPECT_EQ(Highlighted(), "");
    for (int letters = 0; letters < 4; ++letters) Key(Qt::Key_Backspace);
    EXPECT_FALSE(IsOpen());
    Type("pale m");
    EXPECT_EQ(Entries(), (Strings{"Pale Malt", "Pale Ale Malt"}));
}

TEST_F(NameLists, TabTakesTheOnlyNameThatFits) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("crystal 40");
    EXPECT_EQ(Highlighted(), "Caramel/Crystal Malt 40L");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Shown(view, 1, 0), "Caramel/Crystal Malt 40L");
    EXPECT_EQ(Shown(view, 1, 2), "34");
    EXPECT_EQ(view.currentIndex().column(), 1);
}

TEST_F(NameLists, TabKeepsTheTextIfSeveralNamesFit) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("pale");
    ASSERT_TRUE(IsOpen());
    Key(Qt::Key_Tab);
    EXPECT_EQ(Shown(view, 1, 0), "pale");
    EXPECT_EQ(Shown(view, 1, 2), "");
}

TEST_F(NameLists, EnterTakesTheNameAndStaysInTheCell) {
    shell.Documents().Active()->Lines().InsertRowForGrid(shell.Documents().Active()->Record().gridHops);
    GridView& view = GridAt(Tab::Hops, "gridHops", 1, 0);
    Type("ekg");
    EXPECT_EQ(Highlighted(), "East Kent Goldings");
    EXPECT_EQ(List().currentIndex().data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("East Kent Goldings, also EKG"));
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 0), "East Kent Goldings");
    EXPECT_TRUE(view.hasFocus());
    EXPECT_EQ(view.currentIndex(), view.Model().index(0, 0));
    EXPECT_EQ(shell.Documents().Active()->Record().gridHops.CurrentRow(), 1);
    Key(Qt::Key_Return);
    EXPECT_EQ(shell.Documents().Active()->Record().gridHops.CurrentRow(), 2);
}

TEST_F(NameLists, TheArrowsChooseAndEnterTakes) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("pale");
    Key(Qt::Key_Down);
    EXPECT_EQ(Highlighted(), "Pale Ale Malt");
    Key(Qt::Key_Down);
    EXPECT_EQ(Highlighted(), "Pale Malt");
    Key(Qt::Key_Down);
    EXPECT_EQ(Highlighted(), "Pale Malt");
    Key(Qt::Key_Return);
    EXPECT_EQ(Shown(view, 1, 0), "Pale Malt");
}

TEST_F(NameLists, EscapeKeepsWhatWasTyped) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("crystal");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    Key(Qt::Key_Tab);
    EXPECT_EQ(Shown(view, 1, 0), "crystal");
    GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("pale");
    Key(Qt::Key_Escape);
    // Without a list, Escape restores the cell.
    Key(Qt::Key_Escape);
    EXPECT_EQ(Shown(view, 1, 0), "crystal");
}

TEST_F(NameLists, AClickTakesTheName) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("pale");
    NamePopup& list = List();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualRect(list.model()->index(1, 0)).center());
    EXPECT_EQ(Shown(view, 1, 0), "Pale Malt");
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(NameLists, AStyleIsTakenByEnterAndStays) {
    auto& styles = Find<QComboBox>("cmbStyle");
    styles.setFocus();
    Type("16a");
    EXPECT_EQ(Highlighted(), "Sweet Stout");
    Key(Qt::Key_Return);
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Sweet Stout");
    EXPECT_TRUE(styles.hasFocus());
    // Two styles fit, one exactly.
    Type("stout");
    EXPECT_EQ(Entries(), (Strings{"Stout", "Sweet Stout"}));
    EXPECT_EQ(Highlighted(), "Stout");
    Key(Qt::Key_Tab);
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
}

TEST_F(NameLists, EscapeInTheStyleClosesTheListFirst) {
    auto& styles = Find<QComboBox>("cmbStyle");
    styles.setFocus();
    Type("swe");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(FromQt(styles.currentText()), "swe");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FromQt(styles.currentText()), "(None)");
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "(None)");
}

}  // namespace
}  // namespace tw::test

// The list of matching names below a cell and below the style.
#include "GuiTest.h"
#include "document/ui/GapMark.h"
#include "document/ui/NamePopup.h"
#include "platform/qt/Appearance.h"
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
    static std::string ControlText(const DialogModel& dialog, std::string_view name) {
        for (const DialogControl& control : dialog.Controls())
            if (control.name == name) return control.text;
        return "no control";
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

TEST_F(NameLists, StandsOutFromTheCellsBelowInTheDark) {
    QApplication::setPalette(DarkPalette());
    QApplication::processEvents();
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("malt");
    const QImage list = List().grab().toImage();
    const QColor cell = view.palette().color(QPalette::Base);
    for (const QPoint edge :
         {QPoint(0, list.height() / 2), QPoint(list.width() / 2, 0),
          QPoint(list.width() - 1, list.height() / 2), QPoint(list.width() / 2, list.height() - 1)})
        EXPECT_GE(ContrastRatio(list.pixelColor(edge), cell), 3);
    QApplication::setPalette(QPalette());
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

TEST_F(NameLists, AStyleThatNobodyKnowsGoesAwayButNotInSilence) {
    auto& styles = Find<QComboBox>("cmbStyle");
    styles.setFocus();
    Type("stout\rno such\t");
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
    EXPECT_EQ(FromQt(styles.currentText()), "Stout");
    EXPECT_EQ(FromQt(window.statusBar()->currentMessage()),
              "There is no \"no such\" in the list; the recipe keeps \"Stout\".");
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

TEST_F(NameLists, AnUnknownNameIsMarkedUntilItsFiguresAreEntered) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("hull malt\t2 lb\t");
    const QModelIndex name = view.Model().index(0, 0);
    const auto reason = QStringLiteral("Not in the catalogue: gives no gravity until you enter its PPG");
    EXPECT_EQ(name.data(GridModel::kGapRole).toString(), reason);
    EXPECT_TRUE(name.data(Qt::ToolTipRole).toString().startsWith(reason + QLatin1Char('\n')));
    EXPECT_EQ(name.data(Qt::AccessibleDescriptionRole).toString(), reason);
    QApplication::processEvents();
    const auto marks = [this](const char* figure) {
        for (GapMark* mark : window.ActiveWindow()->findChildren<GapMark*>())
            if (mark->accessibleName().startsWith(QLatin1String(figure))) return mark->toolTip();
        return QString();
    };
    EXPECT_EQ(marks("Original Gravity"),
              QStringLiteral("hull malt gives no gravity until you enter its PPG"));
    EXPECT_EQ(marks("IBUs"), QString());
    Type("36\t");
    view.setCurrentIndex(view.Model().index(0, GrainCol::Color));
    Type("3\t");
    QApplication::processEvents();
    EXPECT_EQ(name.data(GridModel::kGapRole).toString(), QString());
    EXPECT_EQ(marks("Original Gravity"), QString());
}

TEST_F(NameLists, TheMenuOfAnUnknownNameAddsItToTheCatalogue) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("hull malt\t2 lb\t36\t");
    view.setCurrentIndex(view.Model().index(0, 0));
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view.viewport(), &menu);
    auto* add = view.findChild<QAction*>(QStringLiteral("AddToCatalogue"));
    ASSERT_NE(add, nullptr);
    outside.dialogs.scripts.emplace_back([](DialogModel& editor) {
        EXPECT_EQ(ControlText(editor, "Text1"), "hull malt");
        EXPECT_EQ(ControlText(editor, "gridInfo(0,1)"), "36");
        EXPECT_TRUE(editor.SetControl("gridInfo(1,0)", "4"));
        EXPECT_TRUE(editor.SetControl("gridInfo(1,1)", "4"));
        EXPECT_TRUE(editor.Press("cmdOK"));
    });
    add->trigger();
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(Shown(view, 1, GrainCol::Color), "4");
    EXPECT_EQ(view.Model().index(0, 0).data(GridModel::kGapRole).toString(), QString());
    EXPECT_FALSE(shell.DB()->OpenRecordset("SELECT * FROM GRAINS WHERE NAME = 'hull malt'").AtEnd());
    // A name that the catalogue knows has no such item.
    QApplication::sendEvent(view.viewport(), &menu);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(view.findChild<QAction*>(QStringLiteral("AddToCatalogue")), nullptr);
    QApplication::activePopupWidget()->close();
}

// While it exists, every statement fails, as on a disk that is gone.
class DeadDatabase {
  public:
    explicit DeadDatabase(Database& database) : database_(database) {
        database.SetStatementHook([](std::string_view) { throw Error("Store", "the disk is gone", 3024); });
    }
    ~DeadDatabase() { database_.SetStatementHook(nullptr); }
    DeadDatabase(const DeadDatabase&) = delete;
    DeadDatabase& operator=(const DeadDatabase&) = delete;

  private:
    Database& database_;
};

// Asks for all that a view, a tip or a screen reader may ask of a grid.
void ReadAll(const GridView& view) {
    for (int row = 0; row < view.Model().rowCount(); ++row)
        for (int col = 0; col < view.Model().columnCount(); ++col)
            for (const int role :
                 {static_cast<int>(Qt::DisplayRole), static_cast<int>(Qt::ToolTipRole),
                  static_cast<int>(Qt::AccessibleTextRole), static_cast<int>(Qt::AccessibleDescriptionRole),
                  static_cast<int>(Qt::FontRole), static_cast<int>(GridModel::kGapRole)})
                view.Model().index(row, col).data(role);
}

TEST_F(NameLists, ShowsARecipeEvenIfTheCatalogueCannotBeRead) {
    GridView& grain = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("hull malt\t2 lb\t");
    GridView& log = GridAt(Tab::Log, "gridLog", 1, LogCol::Action);
    Type("Pitched Yeast\tNo such yeast\t");
    const DeadDatabase dead(*shell.DB());
    for (const GridView* view : {&grain, &log}) ReadAll(*view);
    for (int tab = 0; tab < kTabs; ++tab) {
        window.ActiveWindow()->ShowTab(static_cast<Tab>(tab));
        EXPECT_FALSE(window.grab().isNull());
    }
    // The marks of the figures look again.
    window.ActiveWindow()->ShowTab(Tab::General);
    Find<QLineEdit>("txtNumBatches").setFocus();
    Type("2\t");
    QApplication::processEvents();
    EXPECT_EQ(Text("txtNumBatches"), "2");
    EXPECT_EQ(outside.messages.log, Strings());
}

TEST_F(NameLists, TheMenuOpensEvenIfTheCatalogueCannotBeRead) {
    GridView& view = GridAt(Tab::Grains, "gridGrain", 1, 0);
    Type("hull malt\t2 lb\t36\t");
    view.setCurrentIndex(view.Model().index(0, 0));
    const DeadDatabase dead(*shell.DB());
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(view.viewport(), &menu);
    EXPECT_TRUE(window.findChild<QMenu*>(QStringLiteral("mnuEdit"))->isVisible());
    EXPECT_EQ(view.findChild<QAction*>(QStringLiteral("AddToCatalogue")), nullptr);
    EXPECT_EQ(outside.messages.log, Strings{"[Error] the disk is gone (3024)"});
}

TEST_F(NameLists, TypingAStyleSaysOnceThatTheCatalogueCannotBeRead) {
    auto& styles = Find<QComboBox>("cmbStyle");
    styles.setFocus();
    {
        const DeadDatabase dead(*shell.DB());
        Type("sweet s");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(outside.messages.log, Strings{"[Error] the disk is gone (3024)"});
        Key(Qt::Key_Tab);
        EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "(None)");
    }
    styles.setFocus();
    Type("sweet s");
    EXPECT_EQ(Entries(), Strings{"Sweet Stout"});
}

}  // namespace
}  // namespace tw::test

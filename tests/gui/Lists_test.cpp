// Tests of lists, trees, the picker and the choosers as widgets.
#include "GuiTest.h"
#include "document/ui/ListField.h"
#include "platform/qt/Appearance.h"
#include "support/OtherNames.h"
#include "tree/ui/CataloguePickerDialog.h"
#include "tree/ui/ChooseFolderDialog.h"
#include "tree/ui/FolderChooserView.h"
#include "tree/ui/ListPane.h"
#include "tree/ui/NodePictures.h"
#include "tree/ui/RecipeChooserView.h"
#include "tree/ui/TreePane.h"

namespace tw::test {
namespace {

ListRow Row(const std::string& name, const std::string& size = "") {
    ListRow row;
    row.key = name;
    row.cells = {name, size};
    return row;
}

class ListWidget : public testing::Test {
  protected:
    void SetUp() override {
        list.SetColumns({{"Name"}, {"Size", ListColumnKind::Number}});
        ListRow heading;
        heading.cells = {"Heading"};
        heading.isGroup = true;
        list.SetRows({heading, Row("Cascade", "10"), Row("Chinook", "9"), Row("Saaz", "  ")});
        pane.resize(500, 300);
        pane.show();
        QApplication::setActiveWindow(&pane);
        pane.setFocus();
    }
    std::string Shown(int row, int col = 0) const {
        return FromQt(pane.model()->index(row, col).data().toString());
    }

    ListTable list;
    ListPane pane{list, QStringLiteral("Hops"), nullptr};
};

TEST_F(ListWidget, ShowsTheRowsWithoutTheirBlanks) {
    EXPECT_EQ(pane.model()->rowCount(), 4);
    EXPECT_EQ(Shown(3), "Saaz");
    EXPECT_EQ(Shown(3, 1), "");
    EXPECT_EQ(FromQt(pane.model()->index(1, 1).data(Qt::AccessibleTextRole).toString()), "Size: 10");
}

TEST_F(ListWidget, ShowsACodeBeforeTheNameButEditsTheName) {
    ListRow style = Row("American Pale Ale");
    style.code = "18B";
    style.origin = "Beer style guide of 2021";
    list.SetRows({style});
    const QModelIndex name = pane.model()->index(0, 0);
    EXPECT_EQ(Shown(0), "18B  American Pale Ale");
    EXPECT_EQ(FromQt(name.data(Qt::EditRole).toString()), "American Pale Ale");
    EXPECT_EQ(FromQt(name.data(Qt::ToolTipRole).toString()),
              "18B  American Pale Ale\nBeer style guide of 2021");
    EXPECT_EQ(FromQt(name.data(Qt::AccessibleTextRole).toString()), "Name: 18B  American Pale Ale");
    QTest::keyClicks(&pane, "18b");
    EXPECT_EQ(list.SelectedText(), "American Pale Ale");
}

TEST_F(ListWidget, AClickChoosesARowButNoHeading) {
    const auto click = [&](int row) {
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {},
                          pane.visualRect(pane.model()->index(row, 0)).center());
    };
    click(2);
    EXPECT_EQ(list.Selected(), 2);
    click(0);
    EXPECT_EQ(list.Selected(), 2);
}

TEST_F(ListWidget, TheKeysMoveTheChoice) {
    list.Select(1);
    QTest::keyClick(&pane, Qt::Key_Down);
    EXPECT_EQ(list.SelectedText(), "Chinook");
    QTest::keyClick(&pane, Qt::Key_End);
    EXPECT_EQ(list.SelectedText(), "Saaz");
    QTest::keyClick(&pane, Qt::Key_Home);
    EXPECT_EQ(list.SelectedText(), "Cascade");
}

TEST_F(ListWidget, TypingFindsTheRow) {
    list.Select(3);
    QTest::keyClicks(&pane, QStringLiteral("ch"));
    EXPECT_EQ(list.SelectedText(), "Chinook");
}

TEST_F(ListWidget, TheSameLetterAgainGoesToTheNextRow) {
    list.Select(3);
    QTest::keyClicks(&pane, QStringLiteral("c"));
    EXPECT_EQ(list.SelectedText(), "Cascade");
    QTest::keyClicks(&pane, QStringLiteral("c"));
    EXPECT_EQ(list.SelectedText(), "Chinook");
}

TEST_F(ListWidget, AClickOnAHeaderSorts) {
    list.Select(1);
    QHeaderView* header = pane.header();
    const QPoint place(header->sectionViewportPosition(1) + header->sectionSize(1) / 2, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Shown(1), "Saaz");
    EXPECT_EQ(Shown(2), "Chinook");
    EXPECT_TRUE(header->isSortIndicatorShown());
    EXPECT_EQ(header->sortIndicatorSection(), 1);
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Shown(1), "Cascade");
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(list.SelectedText(), "Cascade");
    EXPECT_EQ(pane.currentIndex().row(), 1);
}

TEST_F(ListWidget, EnterAndADoubleClickActivateARow) {
    int activated = 0;
    QObject::connect(&pane, &ListPane::RowActivated, &pane, [&] { ++activated; });
    const auto twice = [&](int row) {
        const QPoint place = pane.visualRect(pane.model()->index(row, 0)).center();
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {}, place);
    };
    twice(2);
    EXPECT_EQ(activated, 1);
    twice(0);
    EXPECT_EQ(activated, 1);
    QTest::keyClick(&pane, Qt::Key_Return);
    EXPECT_EQ(activated, 2);
}

TEST_F(ListWidget, TheColumnsFillItsWidth) {
    EXPECT_EQ(pane.columnWidth(0) + pane.columnWidth(1), pane.viewport()->width());
}

// Columns of texts, some very long, followed by a figure.
TEST_F(ListWidget, LongTextsGiveWayToTheFigures) {
    const int digits = DigitsWidth(pane, 40), least = DigitsWidth(pane, 16);
    list.SetColumns({{"Name"}, {"One"}, {"Two"}, {"Size", ListColumnKind::Number}});
    ListRow row;
    row.cells = {"Short", std::string(90, 'x'), std::string(90, 'x'), "1.050-1.060"};
    list.SetRows({row});
    const int name = pane.columnWidth(0), figure = pane.columnWidth(3);
    // Wide enough: a long text is cut at its limit, and the name gets the remaining width.
    pane.resize(pane.WantedWidth() + 50, 300);
    EXPECT_EQ(pane.columnWidth(1), digits);
    EXPECT_EQ(pane.header()->length(), pane.viewport()->width());
    // Narrower: both long texts lose the same width, the figure none.
    pane.resize(name + figure + digits + least, 300);
    EXPECT_EQ(pane.header()->length(), pane.viewport()->width());
    EXPECT_NEAR(pane.columnWidth(1), pane.columnWidth(2), 1);
    EXPECT_LT(pane.columnWidth(1), digits);
    EXPECT_EQ(pane.columnWidth(3), figure);
    // Too narrow for all columns: there is a scroll bar anyway, so nothing is narrowed.
    pane.resize(figure + least, 300);
    EXPECT_EQ(pane.columnWidth(1), digits);
    EXPECT_EQ(pane.columnWidth(3), figure);
}

TEST(NodePictures, EveryEntryHasOneThatHoldsOnBothGrounds) {
    for (int i = 1; i < static_cast<int>(kIconNames.size()); ++i) {
        const QIcon icon = NodePicture(static_cast<NodeIcon>(i));
        ASSERT_FALSE(icon.isNull()) << kIconNames[static_cast<std::size_t>(i)];
        const QImage picture = icon.pixmap(16, 16).toImage();
        int inked = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) inked += qAlpha(picture.pixel(x, y)) > 128;
        EXPECT_GT(inked, 16 * 16 / 4) << kIconNames[static_cast<std::size_t>(i)];
    }
    EXPECT_TRUE(NodePicture(NodeIcon::Other).isNull());
}

class Choosers : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        for (const char* sql :
             {"INSERT INTO GRAINS (NAME, PPG_LO, PPG_HI, GRAIN) VALUES ('Oats', 33, 33, TRUE)",
              "INSERT INTO STYLES (NAME, FOLDER_ID, OG_LO) VALUES ('Bock', 0, 1.06)",
              "INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Saaz', 3, 5)",
              "INSERT INTO YEAST (NAME, DESCR, AA_LO, AA_HI) VALUES ('Ale 1', 'Clean', 70, 80)"})
            shell.DB()->Execute(sql);
    }
    // Answers the next picker: records its title and selection, selects an entry of lvItems
    // and presses the button.
    void Answer(const std::string& name, const std::string& button = "cmdOK") {
        outside.dialogs.scripts.emplace_back([this, name, button](DialogModel& dialog) {
            auto& picker = dynamic_cast<CataloguePickerModel&>(dialog);
            started = picker.Title() + ": " + picker.Items().SelectedText();
            EXPECT_TRUE(dialog.SetControl("lvItems", name));
            EXPECT_TRUE(dialog.Press(button));
        });
    }
    void DoubleClick(GridView& view) {
        const QPoint place = view.visualRect(view.currentIndex()).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
        QApplication::processEvents();
    }

    std::string started;
};

TEST_F(Choosers, TheStyleIsBrowsed) {
    NewRecipe();
    Find<QComboBox>("cmbStyle").setCurrentIndex(1);
    shell.Documents().Active()->Style().Select(1);
    Answer("Stout");
    auto& browse = Find<QPushButton>("cmdBrowseStyles");
    EXPECT_TRUE(browse.isEnabled());
    browse.click();
    EXPECT_EQ(started.substr(0, 14), "Select Style: ");
    EXPECT_EQ(shell.Documents().Active()->BeerStyle(), "Stout");
    EXPECT_EQ(Find<QComboBox>("cmbStyle").currentText(), QStringLiteral("Stout"));
}

TEST_F(Choosers, TheStyleBoxTakesACode) {
    AddOtherNames(*shell.DB());
    AddFacts(*shell.DB(), CatalogueKind::Style, "Bock", "6C", "Beer 2021");
    auto* box = NewRecipe().findChild<ListField*>(QStringLiteral("cmbStyle"));
    ASSERT_NE(box, nullptr);
    box->setFocus();
    box->setEditText(QStringLiteral("6c"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(shell.Documents().Active()->Record().cmbStyle.Text(), "Bock");
    EXPECT_EQ(FromQt(box->currentText()), "Bock");
}

TEST_F(Choosers, TheStylePickerNamesTheGuidesOfItsCodes) {
    const auto guides = [this] {
        CataloguePickerModel model(CatalogueKind::Style, *shell.DB(), shell.Opened()->data.tree, "");
        CataloguePickerDialog picker(model, nullptr);
        picker.show();
        auto* label = picker.findChild<QLabel*>(QStringLiteral("lblGuides"));
        return label && label->isVisible() ? FromQt(label->text()) : std::string();
    };
    EXPECT_EQ(guides(), "");
    AddOtherNames(*shell.DB());
    AddFacts(*shell.DB(), CatalogueKind::Style, "Bock", "6C", "Beer 2021");
    EXPECT_EQ(guides(), "Codes: Beer style guide of 2021");
}

TEST_F(Choosers, ADoubleClickOnANamePicksFromTheCatalogue) {
    NewRecipe();
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, GrainCol::Name);
    Answer("Oats");
    DoubleClick(view);
    EXPECT_EQ(started, "Select Grain: Oats");
    EXPECT_EQ(Shown(view, 1, GrainCol::Name), "Oats");
    EXPECT_EQ(Shown(view, 1, GrainCol::Ppg), "33");
}

TEST_F(Choosers, CtrlEnterPicksFromTheCatalogue) {
    NewRecipe();
    auto& view = GridAt(Tab::Hops, "gridHops", 1, HopCol::Variety);
    Answer("Saaz");
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(started, "Select Hop Variety: Saaz");
    EXPECT_EQ(Shown(view, 1, HopCol::Variety), "Saaz");
    EXPECT_FALSE(view.Model().index(0, HopCol::Variety).data(Qt::ToolTipRole).toString().isEmpty());
    EXPECT_FALSE(view.Model().index(0, HopCol::Amount).data(Qt::ToolTipRole).isValid());
}

TEST_F(Choosers, ACancelledPickerChangesNothing) {
    NewRecipe();
    auto& view = GridAt(Tab::Hops, "gridHops", 1, HopCol::Variety);
    Answer("Saaz", "cmdCancel");
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(started, "Select Hop Variety: Saaz");
    EXPECT_EQ(Shown(view, 1, HopCol::Variety), "");
    EXPECT_FALSE(shell.Documents().Active()->Changed());
}

TEST_F(Choosers, ADoubleClickElsewhereOpensTheEditor) {
    NewRecipe();
    auto& view = GridAt(Tab::Hops, "gridHops", 1, HopCol::Amount);
    DoubleClick(view);
    EXPECT_TRUE(started.empty());
    EXPECT_NE(view.viewport()->findChild<QLineEdit*>(), nullptr);
}

TEST_F(Choosers, ThePickerOpensOnItsNameAndEnterTakesIt) {
    CataloguePickerModel model(CatalogueKind::Hop, *shell.DB(), shell.Opened()->data.tree, "saaz");
    CataloguePickerDialog picker(model, nullptr);
    picker.show();
    QApplication::setActiveWindow(&picker);
    auto* filter = picker.findChild<QLineEdit*>(QStringLiteral("txtFilter"));
    ASSERT_NE(filter, nullptr);
    EXPECT_TRUE(filter->hasFocus());
    EXPECT_FALSE(picker.findChild<QPushButton*>(QStringLiteral("cmdView"))->isEnabled());
    EXPECT_EQ(FromQt(picker.windowTitle()), "Select Hop Variety");
    EXPECT_EQ(picker.findChild<TreePane*>(), nullptr);
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_FALSE(picker.isVisible());
    EXPECT_EQ(model.Answer(), "Saaz");
}

TEST_F(Choosers, WhatIsTypedIntoThePickerFiltersAndEnterTakesTheBestRow) {
    for (const char* name : {"Saaz (US)", "Late Saaz", "Zeus"})
        shell.DB()->Execute("INSERT INTO HOPS (NAME) VALUES (" + SqlText(name) + ")");
    CataloguePickerModel model(CatalogueKind::Hop, *shell.DB(), shell.Opened()->data.tree, "Zeus");
    CataloguePickerDialog picker(model, nullptr);
    picker.show();
    QApplication::setActiveWindow(&picker);
    auto* filter = picker.findChild<QLineEdit*>(QStringLiteral("txtFilter"));
    QTest::keyClicks(filter, QStringLiteral("saaz"));
    EXPECT_EQ(model.Items().SelectedText(), "Saaz");
    QTest::keyClick(filter, Qt::Key_Down);
    EXPECT_EQ(model.Items().SelectedText(), "Saaz (US)");
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_EQ(model.Answer(), "Saaz (US)");
}

TEST_F(Choosers, AnEmptyPickerOffersNothing) {
    CataloguePickerModel model(CatalogueKind::Sugar, *shell.DB(), shell.Opened()->data.tree, "Corn");
    CataloguePickerDialog picker(model, nullptr);
    picker.show();
    EXPECT_FALSE(picker.findChild<QPushButton*>(QStringLiteral("cmdOK"))->isEnabled());
    QTest::keyClick(&picker, Qt::Key_Escape);
    EXPECT_FALSE(picker.isVisible());
    EXPECT_FALSE(model.IsOpen());
    EXPECT_TRUE(model.Cancelled());
}

TEST_F(Choosers, AYeastShowsItsFiguresFromTheFirst) {
    shell.DB()->Execute(
        "INSERT INTO YEAST (NAME, DESCR, TYPE, FLOC, AA_LO, AA_HI, TEMP_LO, TEMP_HI) VALUES ('The Laboratory "
        "of "
        "the Long Street WLP099 Super High Gravity Ale Yeast', 'Ferments a strong wort dry and leaves it "
        "clean "
        "of nearly everything', 4, 'Very High', 65, 100.5, 61.5, 68.5)");
    CataloguePickerModel model(CatalogueKind::Yeast, *shell.DB(), shell.Opened()->data.tree, "");
    CataloguePickerDialog picker(model, nullptr);
    picker.show();
    QApplication::processEvents();
    auto& list = *picker.findChild<ListPane*>();
    const auto expectAll = [&](const char* size) {
        EXPECT_EQ(list.header()->length(), list.viewport()->width()) << size;
        for (const int col : {4, 5})
            EXPECT_GE(list.columnWidth(col),
                      list.fontMetrics().horizontalAdvance(list.model()->index(1, col).data().toString()))
                << size;
    };
    expectAll("first");
    picker.resize(picker.width() * 3 / 4, picker.height());
    QApplication::processEvents();
    expectAll("narrower");
}

TEST_F(Choosers, TheStyleListFollowsTheFolderByKey) {
    shell.Opened()->data.objects.CreateStyleFolder(0, "Dark", Asking::Quietly);
    shell.DB()->Execute("UPDATE STYLES SET FOLDER_ID = 1 WHERE NAME = 'Bock'");
    CataloguePickerModel model(CatalogueKind::Style, *shell.DB(), shell.Opened()->data.tree, "");
    CataloguePickerDialog picker(model, nullptr);
    picker.show();
    QApplication::setActiveWindow(&picker);
    auto* folders = picker.findChild<TreePane*>(QStringLiteral("treeFolders"));
    folders->setFocus();
    EXPECT_EQ(model.Items().Count(), 2);
    for (int i = 0; i < 2; ++i) QTest::keyClick(folders, Qt::Key_Down);
    EXPECT_EQ(model.Folders().SelectedKey(), "G:1");
    EXPECT_EQ(model.Items().SelectedText(), "Bock");
    EXPECT_EQ(model.Items().Count(), 1);
}

TEST_F(Choosers, AFolderIsMadeAndNamedInPlace) {
    ChooseFolderModel model(shell.Opened()->data.tree, shell.Opened()->data.objects);
    ChooseFolderDialog dialog(model, nullptr);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    dialog.findChild<QPushButton*>(QStringLiteral("cmdNewFolder"))->click();
    auto* tree = dialog.findChild<TreePane*>(QStringLiteral("treeFolders"));
    auto* editor = tree->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(FromQt(editor->text()), "New Folder");
    editor->setText(QStringLiteral("Winter"));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(model.FolderChooser1().FolderID(), 1);
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:1")->Name(), "Winter");
    EXPECT_EQ(FromQt(tree->currentIndex().data().toString()), "Winter");
    EXPECT_TRUE(dialog.isVisible());
    dialog.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    EXPECT_EQ(model.FolderID(), 1);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(Choosers, ARefusedNameOfAFolderIsTakenBackAfterOneBox) {
    shell.Opened()->data.objects.CreateRecipeFolder(0, "Winter", Asking::Quietly);
    shell.Opened()->data.objects.CreateRecipeFolder(0, "Autumn", Asking::Quietly);
    FolderChooser chooser(shell.Opened()->data.tree, shell.Opened()->data.objects);
    FolderChooserView view(chooser, nullptr);
    view.show();
    QApplication::setActiveWindow(&view);
    chooser.SetFolderID(1);
    outside.messages.TakeLog();
    view.findChild<QPushButton*>(QStringLiteral("cmdRename"))->click();
    auto* tree = view.findChild<TreePane*>();
    auto* editor = tree->viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->setText(QStringLiteral("autumn"));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(
        outside.messages.TakeLog(),
        std::vector<std::string>{"[Could not rename recipe folder] A folder with that name already exists"});
    EXPECT_EQ(FromQt(tree->currentIndex().data().toString()), "Winter");
}

TEST_F(Choosers, ALockedFolderStaysChosen) {
    shell.Opened()->data.objects.CreateRecipeFolder(0, "Winter", Asking::Quietly);
    FolderChooser chooser(shell.Opened()->data.tree, shell.Opened()->data.objects);
    chooser.SetFolderID(1);
    chooser.SetLocked(true);
    FolderChooserView view(chooser, nullptr);
    view.show();
    auto* tree = view.findChild<TreePane*>();
    QTest::keyClick(tree, Qt::Key_Up);
    QApplication::processEvents();
    EXPECT_EQ(chooser.FolderID(), 1);
    EXPECT_EQ(FromQt(tree->currentIndex().data().toString()), "Winter");
    EXPECT_FALSE(view.findChild<QPushButton*>(QStringLiteral("cmdNewFolder"))->isEnabled());
    EXPECT_FALSE(view.findChild<QPushButton*>(QStringLiteral("cmdRename"))->isEnabled());
}

class RecipePicking : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        for (const char* name : {"Ale", "Mild"}) {
            shell.DB()->Execute(std::string("INSERT INTO RECIPES (NAME, FOLDER_ID, STYLE_ID) VALUES ('") +
                                name + "', 0, 0)");
            shell.Opened()->data.objects.AddRecipeNodesByName(name);
        }
        chooser.SetTree(&shell.Opened()->data.tree);
        chooser.SetAction("Export");
        chooser.Initialize();
    }
    RecipeChooser chooser;
};

TEST_F(RecipePicking, RecipesGoIntoTheListByEnterAndOutByDelete) {
    RecipeChooserView view(chooser, nullptr);
    view.show();
    QApplication::setActiveWindow(&view);
    auto* tree = view.findChild<TreePane*>(QStringLiteral("treeRecipes"));
    auto* list = view.findChild<QListWidget*>(QStringLiteral("lstRecipes"));
    auto* add = view.findChild<QPushButton*>(QStringLiteral("cmdAdd"));
    EXPECT_FALSE(add->isEnabled());
    EXPECT_TRUE(chooser.OpenTreeTo("Mild"));
    EXPECT_TRUE(add->isEnabled());
    QTest::keyClick(tree, Qt::Key_Return);
    chooser.OpenTreeTo("Ale");
    add->click();
    EXPECT_EQ(list->count(), 2);
    EXPECT_EQ(FromQt(list->item(0)->text()), "Mild");
    view.findChild<QPushButton*>(QStringLiteral("cmdUp"))->click();
    EXPECT_EQ(FromQt(list->item(0)->text()), "Ale");
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(list->count(), 1);
    EXPECT_EQ(chooser.Selection(), std::vector<std::string>{"Mild"});
}

TEST_F(RecipePicking, ARecipeIsDraggedIntoTheList) {
    RecipeChooserView view(chooser, nullptr);
    view.show();
    auto* tree = view.findChild<TreePane*>(QStringLiteral("treeRecipes"));
    auto* list = view.findChild<QListWidget*>(QStringLiteral("lstRecipes"));
    chooser.OpenTreeTo("Ale");
    EXPECT_TRUE(tree->dragEnabled());
    EXPECT_TRUE(list->acceptDrops());
    EXPECT_TRUE(tree->model()->flags(tree->currentIndex()).testFlag(Qt::ItemIsDragEnabled));
}

}  // namespace
}  // namespace tw::test

// Tests of the explorer with keyboard and mouse.
#include <gmock/gmock.h>

#include "BrowseTest.h"
#include "tree/ui/ExplorerWindow.h"
#include "tree/ui/NodePictures.h"

namespace tw::test {
namespace {

using Page = ExplorerModel::Page;

class ExplorerWindowTest : public BrowseTest {
  protected:
    void SetUp() override {
        BrowseTest::SetUp();
        model = std::make_unique<ExplorerModel>(
            shell.Opened()->data.Access(),
            ExplorerModel::Hooks{[this](const std::string& name) { opened.push_back(name); },
                                 [this](const std::string& name, std::int64_t) {
                                     edited.push_back(name);
                                     return std::optional<std::string>();
                                 }});
        dialog = std::make_unique<ExplorerWindow>(*model, outside.settings, nullptr);
        Front(*dialog);
    }
    TreePane& Tree() { return Shown<TreePane>("treeFolders"); }
    QAbstractItemView& List() { return Shown<NodeListPane>(nullptr).View(); }
    template <class Widget>
    Widget& Shown(const char* name) {
        for (auto* widget : dialog->findChildren<Widget*>())
            if (widget->isVisible() && (!name || widget->objectName() == QLatin1String(name))) return *widget;
        throw std::runtime_error("no such widget");
    }
    QLineEdit& FindBox() { return *dialog->findChild<QLineEdit*>(QStringLiteral("txtFind")); }
    QAbstractButton& Button(const char* name) {
        return *dialog->findChild<QAbstractButton*>(QLatin1String(name));
    }
    // Runs a command from the context menu of the list.
    void Press(const char* command) {
        QMenu* menu = MenuAt(*dialog, List(), List().model()->index(0, 0), "mnuPopupList");
        Item(*menu, command)->trigger();
        Close(menu);
    }
    // The captions of the first visible columns, from the left.
    static Strings Headers(const ListPane& pane, int most = 99) {
        Strings captions;
        for (int place = 0; place < pane.header()->count(); ++place) {
            const int column = pane.header()->logicalIndex(place);
            if (!pane.isColumnHidden(column) && static_cast<int>(captions.size()) < most)
                captions.push_back(FromQt(pane.model()->headerData(column, Qt::Horizontal).toString()));
        }
        return captions;
    }
    ListPane& Details() { return dynamic_cast<ListPane&>(List()); }
    // Closes the window and opens another one, as the next F5 does.
    void OpenAgain() {
        dialog->close();
        dialog.reset();
        model = std::make_unique<ExplorerModel>(shell.Opened()->data.Access(), ExplorerModel::Hooks{});
        dialog = std::make_unique<ExplorerWindow>(*model, outside.settings, nullptr);
        Front(*dialog);
    }
    QModelIndex Node(const char* key) {
        return Tree().Model().IndexOf(model->Tree(model->Shown()).Find(key));
    }

    Strings opened, edited;
    std::unique_ptr<ExplorerModel> model;
    std::unique_ptr<ExplorerWindow> dialog;
};

TEST_F(ExplorerWindowTest, StartsInTheTreeOnTheRecipes) {
    EXPECT_TRUE(Tree().hasFocus());
    EXPECT_EQ(FromQt(Tree().currentIndex().data().toString()), "My Recipe Folders");
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
    EXPECT_TRUE(Button("optRecipes").isChecked());
    EXPECT_FALSE(Button("cmdNewStyle").isVisible());
}

TEST_F(ExplorerWindowTest, TheTreeHasNoMoreThanItsShareOfANarrowWindow) {
    dialog->hide();
    const QSize wanted = dialog->size();
    dialog->resize(wanted.width() / 2, wanted.height());
    Front(*dialog);
    const QList<int> sizes = Shown<QSplitter>("Splitter").sizes();
    EXPECT_LT(sizes[0], sizes[1]);
}

TEST_F(ExplorerWindowTest, TheKeysWalkThroughTheFolders) {
    QTest::keyClick(&Tree(), Qt::Key_Down);
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
    QTest::keyClick(&Tree(), Qt::Key_Right);
    QTest::keyClick(&Tree(), Qt::Key_Down);
    EXPECT_EQ(model->NodeKey(), "F:2");
    EXPECT_EQ(Rows(List()), Strings{});
}

TEST_F(ExplorerWindowTest, EnterAndADoubleClickOpen) {
    Click(List(), RowOf(List(), "mild"));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(opened, Strings{"mild"});
    DoubleClick(List(), RowOf(List(), "Winter"));
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ExplorerWindowTest, TypingFindsARow) {
    List().setFocus();
    QTest::keyClicks(&List(), QStringLiteral("mi"));
    EXPECT_EQ(model->List(Page::Recipes).Rows().SelectedText(), "mild");
}

TEST_F(ExplorerWindowTest, F2EditsANameInTheList) {
    for (const char* view : {"mnuList", "mnuDetails"}) {
        Press(view);
        Click(List(), RowOf(List(), "mild"));
        List().setFocus();
        QTest::keyClick(&List(), Qt::Key_F2);
        TypeName(List(), "Brown");
        EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:2:3")->Name(), "Brown");
        EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "Brown"}));
        EXPECT_TRUE(List().hasFocus());
        EXPECT_TRUE(dialog->isVisible());
        shell.Opened()->data.objects.RenameObject("R:2:3", "mild", Asking::Quietly);
        model->Settle();
    }
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(opened, Strings{});
}

TEST_F(ExplorerWindowTest, ARefusedNameIsTakenBackAfterOneBox) {
    Click(List(), RowOf(List(), "mild"));
    QTest::keyClick(&List(), Qt::Key_F2);
    TypeName(List(), "ale");
    EXPECT_EQ(Boxes(), Strings{"[Could not rename recipe] A recipe with that name already exists"});
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
    EXPECT_EQ(Editor(List()), nullptr);
}

// On a desktop, a message box deactivates the window below, which becomes active again only some
// time after the box closes.
TEST_F(ExplorerWindowTest, ARefusedNameLeavesTheFocusWhereItWas) {
    outside.messages.whileShowing = [] { QApplication::setActiveWindow(nullptr); };
    const auto refuse = [&](QAbstractItemView& view, const char* name) {
        QTest::keyClick(&view, Qt::Key_F2);
        TypeName(view, name);
        EXPECT_EQ(Boxes().size(), 1U);
        QApplication::setActiveWindow(dialog.get());
        QApplication::processEvents();
        EXPECT_TRUE(view.hasFocus());
    };
    for (const char* look : {"mnuDetails", "mnuLargeIcons", "mnuList"}) {
        Press(look);
        Click(List(), RowOf(List(), "mild"));
        refuse(List(), "ale");
        // The next keys go to the list.
        refuse(List(), " ");
        EXPECT_EQ(model->List(Page::Recipes).SelectedKey(), "R:2:3");
        Key(Qt::Key_Delete);
        EXPECT_EQ(Boxes(), Strings{"[Confirm Delete] Are you sure you want to delete 'mild'? -> No"});
        Key(Qt::Key_Home);
        EXPECT_EQ(model->List(Page::Recipes).SelectedKey(), "F:1") << look;
    }
    shell.Opened()->data.objects.CreateRecipeFolder(0, "Zwickl", Asking::Quietly);
    model->Settle();
    Click(Tree(), Node("F:1"));
    refuse(Tree(), "zwickl");
    refuse(Tree(), " ");
    EXPECT_EQ(model->NodeKey(), "F:1");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Boxes(), Strings{"[Confirm Delete] Are you sure you want to delete 'Winter'? -> No"});
    Key(Qt::Key_Up);
    EXPECT_EQ(model->NodeKey(), "F:0");
}

TEST_F(ExplorerWindowTest, ANameRefusedByAClickElsewhereLeavesTheFocusThere) {
    Click(List(), RowOf(List(), "mild"));
    QTest::keyClick(&List(), Qt::Key_F2);
    ASSERT_NE(Editor(List()), nullptr);
    Editor(List())->setText(QStringLiteral("ale"));
    FindBox().setFocus(Qt::MouseFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_TRUE(FindBox().hasFocus());
}

TEST_F(ExplorerWindowTest, EscapeGivesAnEditUpAndLeavesTheWindow) {
    Click(List(), RowOf(List(), "mild"));
    QTest::keyClick(&List(), Qt::Key_F2);
    ASSERT_NE(Editor(List()), nullptr);
    QTest::keyClicks(Editor(List()), QStringLiteral("x"));
    QTest::keyClick(Editor(List()), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_EQ(Editor(List()), nullptr);
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(model->List(Page::Recipes).EditedRow(), ListTable::kNoRow);
}

TEST_F(ExplorerWindowTest, AFolderIsMadeAndNamedInTheTree) {
    QTest::keyClick(&Tree(), Qt::Key_Insert);
    TypeName(Tree(), "Autumn");
    EXPECT_EQ(model->NodeKey(), "F:4");
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:4")->Name(), "Autumn");
    EXPECT_EQ(FromQt(Tree().currentIndex().data().toString()), "Autumn");
    EXPECT_EQ(Tree().currentIndex().row(), 0);  // at its place in the sort order
    QTest::keyClick(&Tree(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    TypeName(Tree(), "Late");
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:5")->Parent()->Key(), "F:4");
    QTest::keyClick(&Tree(), Qt::Key_F2);
    TypeName(Tree(), "Later");
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:5")->Name(), "Later");
}

TEST_F(ExplorerWindowTest, KeysThatEditANameMakeNoFolder) {
    Click(List(), RowOf(List(), "mild"));
    QTest::keyClick(&List(), Qt::Key_F2);
    ASSERT_NE(Editor(List()), nullptr);
    QTest::keyClick(Editor(List()), Qt::Key_Insert);
    QTest::keyClick(Editor(List()), Qt::Key_Delete);
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_NE(Editor(List()), nullptr);
}

TEST_F(ExplorerWindowTest, SeveralRowsAreChosenAndDeletedByKey) {
    Click(List(), RowOf(List(), "Ale"));
    Click(List(), RowOf(List(), "mild"), Qt::ControlModifier);
    EXPECT_EQ(model->List(Page::Recipes).ChosenKeys(), (Strings{"R:1:3", "R:2:3"}));
    outside.messages.answers = {Answer::Yes};
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Boxes(),
              Strings{"[Confirm Delete] Are you sure you want to delete the selected 2 items? -> Yes"});
    EXPECT_EQ(Rows(List()), Strings{"Winter"});
    QTest::keyClick(&List(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(model->List(Page::Recipes).ChosenKeys(), Strings{"F:1"});
}

TEST_F(ExplorerWindowTest, ShiftChoosesARangeInEveryView) {
    for (const char* view : {"mnuLargeIcons", "mnuSmallIcons", "mnuList", "mnuDetails"}) {
        Press(view);
        Click(List(), RowOf(List(), "Winter"));
        Click(List(), RowOf(List(), "mild"), Qt::ShiftModifier);
        EXPECT_EQ(model->List(Page::Recipes).ChosenKeys(), (Strings{"F:1", "R:1:3", "R:2:3"})) << view;
        EXPECT_EQ(FromQt(dialog->findChild<QLabel*>(QStringLiteral("lblStatus"))->text()),
                  "3 of 3 objects chosen");
    }
}

TEST_F(ExplorerWindowTest, AFolderOfTheTreeIsDeletedByKey) {
    QTest::keyClick(&Tree(), Qt::Key_Down);
    outside.messages.answers = {Answer::Yes};
    QTest::keyClick(&Tree(), Qt::Key_Delete);
    EXPECT_EQ(Boxes(), Strings{"[Confirm Delete] Are you sure you want to delete 'Winter'? -> Yes"});
    EXPECT_EQ(model->NodeKey(), "F:0");
    EXPECT_EQ(Rows(List()), (Strings{"Ale", "mild"}));
    QTest::keyClick(&Tree(), Qt::Key_Delete);  // a system folder cannot be deleted
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(ExplorerWindowTest, ObjectsAreDraggedFromListToTree) {
    EXPECT_TRUE(Drop(Tree(), Node("F:1"), {"R:1:3", "R:2:3"}));
    EXPECT_EQ(Rows(List()), Strings{"Winter"});
    EXPECT_TRUE(Tree().isExpanded(Node("F:1")));
    EXPECT_FALSE(Drop(Tree(), Node("F:-1"), {"R:1:3"}));
    EXPECT_FALSE(Drop(Tree(), Node("X:DB"), {"F:1"}));
    EXPECT_FALSE(Drop(Tree(), Node("F:1"), {"F:1"}));
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:1:3")->Parent()->Key(), "F:1");
}

TEST_F(ExplorerWindowTest, ObjectsAreDraggedOnFoldersOfTheList) {
    for (const char* view : {"mnuDetails", "mnuLargeIcons", "mnuList"}) {
        Press(view);
        EXPECT_TRUE(Drop(List(), RowOf(List(), "Winter"), {"R:1:3"})) << view;
        EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:1:3")->Parent()->Key(), "F:1");
        EXPECT_FALSE(Drop(List(), RowOf(List(), "mild"), {"F:2"}));
        shell.Opened()->data.objects.MoveObject("R:1:3", "F:0", Asking::Quietly);
        model->Settle();
    }
}

// Compares pictures, since an icon has no name.
TEST_F(ExplorerWindowTest, OnlyTheChosenFolderIsShownOpen) {
    const auto shown = [&](const char* key) {
        return Node(key).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    const QImage open = NodePicture(NodeIcon::FolderOpen).pixmap(16).toImage();
    const QImage closed = NodePicture(NodeIcon::FolderClosed).pixmap(16).toImage();
    ASSERT_NE(open, closed);
    EXPECT_TRUE(Drop(Tree(), Node("F:1"), {"R:1:3"}));
    EXPECT_TRUE(Drop(Tree(), Node("F:2"), {"R:1:3"}));
    EXPECT_EQ(shown("F:1"), closed);
    EXPECT_EQ(shown("F:2"), closed);
    Click(Tree(), Node("F:2"));
    EXPECT_EQ(shown("F:1"), closed);
    EXPECT_EQ(shown("F:2"), open);
    Click(Tree(), Node("F:0"));
    EXPECT_EQ(shown("F:2"), closed);
}

TEST_F(ExplorerWindowTest, AFolderDroppedOnItsOwnChildIsToldOf) {
    Tree().expandAll();
    EXPECT_TRUE(Drop(Tree(), Node("F:2"), {"F:1"}));
    EXPECT_EQ(Boxes(), Strings{"[Could not move folder] The destination folder is a sub-folder of the source "
                               "folder"});
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:1")->Parent()->Key(), "F:0");
}

TEST_F(ExplorerWindowTest, AStrangerIsNotTaken) {
    QMimeData text;
    text.setText(QStringLiteral("R:1:3"));
    const QPoint place = Tree().visualRect(Node("F:1")).center();
    QDragEnterEvent enter(place, Qt::MoveAction, &text, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Tree().viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
    EXPECT_TRUE(KeysOf(&text).empty());
    EXPECT_TRUE(KeysOf(nullptr).empty());
}

TEST_F(ExplorerWindowTest, OnlyWhatCanBeMovedIsDragged) {
    EXPECT_TRUE(RowOf(List(), "Ale").flags().testFlag(Qt::ItemIsDragEnabled));
    EXPECT_FALSE(Node("F:0").flags().testFlag(Qt::ItemIsDragEnabled));
    EXPECT_TRUE(Node("F:1").flags().testFlag(Qt::ItemIsDragEnabled));
    Button("optStyles").click();
    EXPECT_FALSE(RowOf(List(), "(None)").flags().testFlag(Qt::ItemIsDragEnabled));
}

TEST_F(ExplorerWindowTest, TheMenuOfARowIsLitByItsKey) {
    QMenu* menu = MenuAt(*dialog, List(), RowOf(List(), "Ale"), "mnuPopupList");
    EXPECT_EQ(model->List(Page::Recipes).SelectedKey(), "R:1:3");
    EXPECT_EQ(LitItems(*menu),
              (Strings{"mnuOpen", "mnuDelete", "mnuRename", "mnuNewFolder", "mnuView", "mnuArrange"}));
    EXPECT_TRUE(Item(*menu, "mnuList")->isChecked());
    Item(*menu, "mnuDetails")->trigger();
    EXPECT_EQ(model->Look().viewType, ListViewType::Details);
    EXPECT_NE(qobject_cast<ListPane*>(&List()), nullptr);
    Close(menu);
    menu = MenuAt(*dialog, List(), RowOf(List(), "Ale"), "mnuPopupList");
    Item(*menu, "mnuRename")->trigger();
    Close(menu);
    TypeName(List(), "Bitter");
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:1:3")->Name(), "Bitter");
}

TEST_F(ExplorerWindowTest, TheMenuOfAnEntryOfTheTreeIsLitByItsKey) {
    QMenu* menu = MenuAt(*dialog, Tree(), Node("F:1"), "mnuPopupTree");
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_EQ(LitItems(*menu), (Strings{"mnuRenameFolder", "mnuDeleteFolder", "mnuNewFolder"}));
    Close(menu);
    menu = MenuAt(*dialog, Tree(), Node("F:-1"), "mnuPopupTree");
    EXPECT_EQ(LitItems(*menu), Strings{});
    Close(menu);
}

TEST_F(ExplorerWindowTest, NoneIsLeftAloneOnThePageOfStyles) {
    Button("optStyles").click();
    EXPECT_EQ(Rows(List()), (Strings{"British", "(None)", "Stout"}));
    EXPECT_TRUE(Button("cmdNewStyle").isVisible());
    QMenu* menu = MenuAt(*dialog, List(), RowOf(List(), "(None)"), "mnuPopupList");
    EXPECT_EQ(LitItems(*menu), (Strings{"mnuNewFolder", "mnuNewStyle", "mnuView", "mnuArrange"}));
    Close(menu);
    QTest::keyClick(&List(), Qt::Key_F2);
    EXPECT_EQ(Editor(List()), nullptr);
    QTest::keyClick(&List(), Qt::Key_Delete);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(edited, Strings{});
    DoubleClick(List(), RowOf(List(), "Stout"));
    Button("cmdNewStyle").click();
    EXPECT_EQ(edited, (Strings{"Stout", ""}));
}

TEST_F(ExplorerWindowTest, ARecipeIsDraggedToAnotherStyle) {
    Button("optStyles").click();
    Click(Tree(), Node("S:0:1"));
    EXPECT_EQ(Rows(List()), (Strings{"Ale", "mild", "Porter"}));
    EXPECT_TRUE(Drop(Tree(), Node("S:1:1"), {"R:3:2"}));
    EXPECT_EQ(Rows(List()), (Strings{"Ale", "mild"}));
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:3:3")->Parent()->Key(), "F:1");
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("R:3:1")->Parent()->Key(), "S:1:0");
}

TEST_F(ExplorerWindowTest, EachPageKeepsItsPlace) {
    Click(Tree(), Node("F:1"));
    Button("optStyles").click();
    EXPECT_EQ(model->NodeKey(), "G:0");
    EXPECT_FALSE(FindBox().isEnabled());
    Button("optRecipes").click();
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
    EXPECT_TRUE(FindBox().isEnabled());
}

TEST_F(ExplorerWindowTest, TheStylesOpenWithTheirFirstRowsInSight) {
    for (int i = 0; i < 60; ++i)
        shell.Opened()->data.objects.CreateStyleFolder(0, "Folder " + std::to_string(i), Asking::Quietly);
    model->Settle();
    Button("optStyles").click();
    QApplication::processEvents();
    EXPECT_EQ(model->NodeKey(), "G:0");
    EXPECT_EQ(Tree().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Tree().visualRect(Node("X:STYLE")).top(), 0);
    // The scroll position chosen by the brewer is kept.
    const int end = Tree().verticalScrollBar()->maximum();
    ASSERT_GT(end, 0);
    Tree().verticalScrollBar()->setValue(end);
    Button("optRecipes").click();
    Button("optStyles").click();
    EXPECT_EQ(Tree().verticalScrollBar()->value(), end);
}

TEST_F(ExplorerWindowTest, TheTreeTellsInATipWhatItCuts) {
    EXPECT_EQ(FromQt(Node("F:1").data(Qt::ToolTipRole).toString()), "Winter");
    shell.Opened()->data.objects.RenameObject("F:1", "<b>Winter</b>", Asking::Quietly);
    model->Settle();
    EXPECT_THAT(FromQt(Node("F:1").data(Qt::ToolTipRole).toString()), testing::HasSubstr("&lt;b&gt;"));
}

TEST_F(ExplorerWindowTest, AClickOnAHeaderSortsBothLists) {
    Press("mnuDetails");
    auto& pane = dynamic_cast<ListPane&>(List());
    QHeaderView* header = pane.header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionSize(0) / 2, 4));
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "mild", "Ale"}));
    EXPECT_TRUE(model->Look().descending);
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
    Button("optStyles").click();
    EXPECT_EQ(Rows(List()), (Strings{"British", "Stout", "(None)"}));
}

TEST_F(ExplorerWindowTest, WhatABrewerLooksForStandsAtTheLeft) {
    Press("mnuDetails");
    EXPECT_EQ(Headers(Details(), 7), (Strings{"Name", "Style", "OG", "IBU", "Color", "Changed", "Size"}));
    const QAbstractItemModel& rows = *List().model();
    EXPECT_EQ(FromQt(rows.headerData(7, Qt::Horizontal, Qt::ToolTipRole).toString()),
              "Original Gravity\nA click sorts the rows by it.");
    EXPECT_TRUE(Details().isColumnHidden(14));
    // The menu has the same order, and each item keeps the number of its column.
    QMenu* menu = MenuAt(*dialog, List(), RowOf(List(), "Ale"), "mnuPopupList");
    Strings items;
    for (const QAction* action : Item(*menu, "mnuArrange")->menu()->actions())
        items.push_back(FromQt(action->text()) + " " + FromQt(action->objectName()));
    ASSERT_EQ(items.size(), 15u);
    EXPECT_EQ(items[0], "by Name mnuArrangeBy(0)");
    EXPECT_EQ(items[1], "by Style mnuArrangeBy(15)");
    EXPECT_EQ(items[5], "by Changed mnuArrangeBy(3)");
    Close(menu);
}

TEST_F(ExplorerWindowTest, TheSortKeyGoesFromColumnToColumnAsTheyAreSeen) {
    Press("mnuDetails");
    List().setFocus();
    const auto sort = [&] {
        QTest::keyClick(&List(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        return model->Look().arrangeKey;
    };
    EXPECT_EQ(sort(), 15);  // Style, right of Name
    EXPECT_EQ(sort(), 7);   // OG
    for (int i = 0; i < 12; ++i) sort();
    EXPECT_EQ(model->Look().arrangeKey, 13);  // Water Profile, the last one
    EXPECT_EQ(sort(), 0);
}

TEST_F(ExplorerWindowTest, TheViewIsRememberedFromOneOpeningToTheNext) {
    Press("mnuDetails");
    QHeaderView* header = Details().header();
    header->moveSection(header->visualIndex(7), 15);  // OG
    header->resizeSection(0, 300);
    Press("mnuArrangeBy(3)");
    Click(Tree(), Node("F:1"));
    auto& splitter = Shown<QSplitter>("Splitter");
    QTest::mousePress(splitter.handle(1), Qt::LeftButton);
    QTest::mouseMove(splitter.handle(1), splitter.handle(1)->rect().center() + QPoint(60, 0));
    QTest::mouseRelease(splitter.handle(1), Qt::LeftButton, {},
                        splitter.handle(1)->rect().center() + QPoint(60, 0));
    const int tree = Tree().width();
    Button("optStyles").click();
    Click(Tree(), Node("S:1:1"));
    EXPECT_EQ(Headers(Details()).back(), "OG");  // both pages show the same columns
    OpenAgain();
    EXPECT_TRUE(Button("optStyles").isChecked());
    EXPECT_EQ(model->NodeKey(), "S:1:1");
    EXPECT_EQ(FromQt(Tree().currentIndex().data().toString()), "Stout");
    EXPECT_EQ(model->Look().arrangeKey, 3);
    EXPECT_EQ(Headers(Details(), 3), (Strings{"Name", "Style", "IBU"}));
    EXPECT_EQ(Headers(Details()).back(), "OG");
    EXPECT_NEAR(Details().columnWidth(0), 300, 1);
    EXPECT_NEAR(Tree().width(), tree, 1);
    Button("optRecipes").click();
    EXPECT_EQ(model->NodeKey(), "F:1");
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
    EXPECT_NEAR(Tree().width(), tree, 1);
    // A search still shows the folder, and leaves the widths alone.
    FindBox().setText(QStringLiteral("por"));
    EXPECT_EQ(Headers(Details(), 3), (Strings{"Name", "Folder", "Style"}));
    EXPECT_GT(Details().columnWidth(14), 0);
    EXPECT_NEAR(Details().columnWidth(0), 300, 1);
}

TEST_F(ExplorerWindowTest, TheMenuOfTheHeaderBringsBackTheUsualColumns) {
    Press("mnuDetails");
    QHeaderView* header = Details().header();
    const auto usual = [&] {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5), header->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(header->viewport(), &asked);
        return dialog->findChild<QMenu*>(QStringLiteral("HeaderMenu"));
    };
    QMenu* menu = usual();
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(menu->actions().front()->isEnabled());
    Close(menu);
    const Strings before = Headers(Details());
    const int width = Details().columnWidth(15);
    header->moveSection(header->visualIndex(15), 9);
    header->resizeSection(15, width + 50);
    EXPECT_NE(Headers(Details()), before);
    menu = usual();
    ASSERT_NE(menu, nullptr);
    menu->actions().front()->trigger();
    Close(menu);
    EXPECT_EQ(Headers(Details()), before);
    EXPECT_EQ(Details().columnWidth(15), width);
    OpenAgain();
    EXPECT_EQ(Headers(Details()), before);
    EXPECT_EQ(Details().columnWidth(15), width);
}

TEST_F(ExplorerWindowTest, AWindowThatIsOnlyLookedAtLeavesNoTrace) {
    OpenAgain();
    for (const char* key : {"ListView", "ListOrder", "ListColumns", "ExplorerPage", "ExplorerRecipeEntry",
                            "ExplorerStyleEntry", "ExplorerTreeWidth"})
        EXPECT_EQ(outside.settings.Read(SettingsPort::Layer::User, "Windows", key), std::nullopt) << key;
}

TEST_F(ExplorerWindowTest, AFolderThatIsGoneIsNotShownAgain) {
    Click(Tree(), Node("F:1"));
    dialog->close();
    shell.Opened()->data.objects.DeleteObject("F:1");
    OpenAgain();
    EXPECT_EQ(model->NodeKey(), "F:0");
    EXPECT_EQ(Rows(List()), (Strings{"Ale", "mild"}));
}

TEST_F(ExplorerWindowTest, TheMenusShowTheKeysThatWork) {
    const auto keyOf = [](const QMenu& menu, const char* name) {
        return FromQt(Item(menu, name)->shortcut().toString());
    };
    QMenu* menu = MenuAt(*dialog, List(), RowOf(List(), "Ale"), "mnuPopupList");
    EXPECT_EQ(keyOf(*menu, "mnuOpen"), "Enter");
    EXPECT_EQ(keyOf(*menu, "mnuDelete"), "Del");
    EXPECT_EQ(keyOf(*menu, "mnuRename"), "F2");
    EXPECT_EQ(keyOf(*menu, "mnuNewFolder"), "Ctrl+Shift+N");
    EXPECT_EQ(keyOf(*menu, "mnuDetails"), "Ctrl+2");
    EXPECT_EQ(keyOf(*menu, "mnuLineUp"), "");
    Close(menu);
    menu = MenuAt(*dialog, Tree(), Node("F:1"), "mnuPopupTree");
    EXPECT_EQ(keyOf(*menu, "mnuRenameFolder"), "F2");
    EXPECT_EQ(keyOf(*menu, "mnuDeleteFolder"), "Del");
    Close(menu);
    QTest::keyClick(dialog.get(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(model->Look().viewType, ListViewType::Details);
    QTest::keyClick(dialog.get(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(model->Look().viewType, ListViewType::List);
}

TEST_F(ExplorerWindowTest, TheButtonsAreAboutTheRowsOrTheEntry) {
    EXPECT_FALSE(Button("cmdDelete").isEnabled());
    Click(Tree(), Node("F:1"));
    EXPECT_TRUE(Button("cmdDelete").isEnabled());
    Button("cmdRename").click();
    TypeName(Tree(), "Cold");
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:1")->Name(), "Cold");
    Click(List(), RowOf(List(), "Porter"));
    Button("cmdDelete").click();
    EXPECT_EQ(Boxes(), Strings{"[Confirm Delete] Are you sure you want to delete 'Porter'? -> No"});
    Button("cmdOpen").click();
    EXPECT_EQ(opened, Strings{"Porter"});
    FindBox().setText(QStringLiteral("por"));
    EXPECT_FALSE(Button("cmdDelete").isEnabled());  // the selected entry of the tree is not in the list shown
    Click(List(), RowOf(List(), "Porter"));
    EXPECT_TRUE(Button("cmdDelete").isEnabled());
}

TEST_F(ExplorerWindowTest, TheBorderMovesAndBothPanesStay) {
    auto& splitter = Shown<QSplitter>("Splitter");
    const int before = Tree().width();
    splitter.setSizes({splitter.sizes()[0] + 60, splitter.sizes()[1] - 60});
    EXPECT_EQ(Tree().width(), before + 60);
    splitter.setSizes({0, 10000});
    EXPECT_GT(Tree().width(), 0);
    const int list = List().width();
    dialog->resize(dialog->width() + 100, dialog->height());
    QApplication::processEvents();
    EXPECT_EQ(List().width(), list + 100);
}

TEST_F(ExplorerWindowTest, TheFindBoxFiltersAndEscapeFirstClearsIt) {
    Press("mnuDetails");
    FindBox().setFocus();
    QTest::keyClicks(&FindBox(), QStringLiteral("por"));
    EXPECT_EQ(Rows(List()), Strings{"Porter"});
    EXPECT_EQ(FromQt(RowOf(List(), "Porter").data(Qt::ToolTipRole).toString()),
              "Porter\nMy Recipe Folders / Winter");
    auto& pane = dynamic_cast<ListPane&>(List());
    EXPECT_EQ(Headers(pane, 3), (Strings{"Name", "Folder", "Style"}));
    EXPECT_EQ(FromQt(pane.model()->index(0, pane.header()->logicalIndex(1)).data().toString()),
              "My Recipe Folders / Winter");
    EXPECT_EQ(FromQt(dialog->findChild<QLabel*>(QStringLiteral("lblStatus"))->text()),
              "1 recipe in all folders contains \"por\"");
    QTest::keyClick(&FindBox(), Qt::Key_Down);
    EXPECT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(opened, Strings{"Porter"});
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
    EXPECT_EQ(FromQt(FindBox().text()), "");
    EXPECT_EQ(Headers(pane, 2), (Strings{"Name", "Style"}));
    QTest::keyClick(&List(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(model->IsOpen());
}

TEST_F(ExplorerWindowTest, ChoosingAFolderEndsTheSearch) {
    FindBox().setText(QStringLiteral("ale"));
    Click(Tree(), Node("F:1"));
    EXPECT_EQ(FromQt(FindBox().text()), "");
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
    FindBox().setText(QStringLiteral("ale"));
    Button("optStyles").click();
    Button("optRecipes").click();
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
}

TEST_F(ExplorerWindowTest, ARecipeOpensBehindItInTheMainWindow) {
    outside.dialogs.scripts.emplace_back([this](DialogModel& explorer) {
        ExplorerWindow explorerWindow(dynamic_cast<ExplorerModel&>(explorer), outside.settings, nullptr);
        explorerWindow.show();
        explorer.SetControl("lvNames", "Ale");
        explorerWindow.findChild<QPushButton*>(QStringLiteral("cmdOpen"))->click();
        EXPECT_TRUE(explorerWindow.isVisible());
        explorerWindow.findChild<QPushButton*>(QStringLiteral("cmdClose"))->click();
        EXPECT_FALSE(explorerWindow.isVisible());
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsExplorer));
    ASSERT_NE(window.ActiveWindow(), nullptr);
    EXPECT_EQ(Text("txtName"), "Ale");
}

}  // namespace
}  // namespace tw::test

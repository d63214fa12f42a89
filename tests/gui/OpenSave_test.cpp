// Tests of the open and save dialog with keyboard and mouse.
#include "BrowseTest.h"
#include "shell/ui/OpenSaveDialog.h"
#include "tree/ui/ExplorerWindow.h"

namespace tw::test {
namespace {

using Style = OpenSaveModel::Style;

class OpenSaveWindow : public BrowseTest {
  protected:
    void Open(Style style, const char* name = "") {
        dialog.reset();
        model = std::make_unique<OpenSaveModel>(style, shell.Opened()->data.Access(), OpenSaveFields());
        if (style == Style::Save) model->SetRecipe(name, 0);
        dialog = std::make_unique<OpenSaveDialog>(*model, outside.settings, nullptr);
        Front(*dialog);
    }
    QAbstractItemView& List() { return dialog->findChild<NodeListPane*>()->View(); }
    QLineEdit& Name() { return *dialog->findChild<QLineEdit*>(QStringLiteral("txtName")); }
    QLineEdit& FindBox() { return *dialog->findChild<QLineEdit*>(QStringLiteral("txtFind")); }
    QComboBox& Folders() { return *dialog->findChild<QComboBox*>(QStringLiteral("icmbFolder")); }
    QAbstractButton& Button(const char* name) {
        return *dialog->findChild<QAbstractButton*>(QLatin1String(name));
    }
    Strings FolderNames() {
        Strings names;
        for (int i = 0; i < Folders().count(); ++i) names.push_back(FromQt(Folders().itemText(i)));
        return names;
    }

    std::unique_ptr<OpenSaveModel> model;
    std::unique_ptr<OpenSaveDialog> dialog;
};

TEST_F(OpenSaveWindow, StartsInTheNameBoxWithItsTextSelected) {
    Open(Style::Save, "Harvest");
    EXPECT_EQ(FromQt(dialog->windowTitle()), "Save 'Harvest' As...");
    EXPECT_EQ(FromQt(Button("cmdOK").text()), "&Save");
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ(FromQt(Name().selectedText()), "Harvest");
    QTest::keyClick(&Name(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(model->BeerName(), "Harvest");
    EXPECT_EQ(model->FolderID(), 0);
}

TEST_F(OpenSaveWindow, ASearchSaysThatItLooksIntoAllFolders) {
    Open(Style::Open);
    auto& found = *dialog->findChild<QLabel*>(QStringLiteral("lblFound"));
    EXPECT_FALSE(found.isVisible());
    FindBox().setText(QStringLiteral("port"));
    EXPECT_TRUE(found.isVisible());
    EXPECT_EQ(FromQt(found.text()), "1 recipe in all folders contains \"port\"");
    FindBox().clear();
    EXPECT_FALSE(found.isVisible());
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
}

TEST_F(OpenSaveWindow, TheSaveDialogGivesNoAdviceAboutAFirstRecipe) {
    for (const char* key : {"R:1:0", "R:2:0", "R:3:0", "F:1"}) shell.Opened()->data.objects.DeleteObject(key);
    Open(Style::Save, "First");
    EXPECT_EQ(Rows(List()), Strings{});
    EXPECT_EQ(model->List().Hint(), "This folder is empty.");
}

TEST_F(OpenSaveWindow, ItRemembersItsLookWithTheExplorer) {
    Open(Style::Open);
    QTest::keyClick(dialog.get(), Qt::Key_2, Qt::ControlModifier);
    auto* header = dynamic_cast<ListPane&>(List()).header();
    header->moveSection(header->visualIndex(15), 3);
    dialog->close();
    Open(Style::Open);
    EXPECT_EQ(model->Look().viewType, ListViewType::Details);
    EXPECT_EQ(dynamic_cast<ListPane&>(List()).header()->visualIndex(15), 3);
    ExplorerModel explorer(shell.Opened()->data.Access(), {});
    const ExplorerWindow other(explorer, outside.settings, nullptr);
    EXPECT_EQ(explorer.Look().viewType, ListViewType::Details);
}

TEST_F(OpenSaveWindow, EachStyleHasItsTitleAndButton) {
    Open(Style::Open);
    EXPECT_EQ(FromQt(dialog->windowTitle() + Button("cmdOK").text()), "Open Recipe&Open");
    Open(Style::Delete);
    EXPECT_EQ(FromQt(dialog->windowTitle() + Button("cmdOK").text()), "Delete Recipe&Delete");
    EXPECT_EQ(Rows(List()), (Strings{"Ale", "mild", "Porter"}));
}

TEST_F(OpenSaveWindow, AChosenRecipeGivesItsNameAndADoubleClickTakesIt) {
    Open(Style::Open);
    Click(List(), RowOf(List(), "mild"));
    EXPECT_EQ(FromQt(Name().text()), "mild");
    DoubleClick(List(), RowOf(List(), "Ale"));
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(model->BeerName(), "Ale");
}

TEST_F(OpenSaveWindow, ADoubleClickEntersAFolderAndTheButtonsLeadBack) {
    Open(Style::Open);
    EXPECT_FALSE(Button("cmdBack").isEnabled());
    DoubleClick(List(), RowOf(List(), "Winter"));
    EXPECT_EQ(Rows(List()), (Strings{"Dark", "Porter"}));
    EXPECT_EQ(FolderNames(), (Strings{"Recipe Database", "My Recipe Folders", "Winter"}));
    EXPECT_EQ(Folders().currentIndex(), 2);
    EXPECT_TRUE(Button("cmdBack").isEnabled());
    QTest::keyClick(dialog.get(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(model->NodeKey(), "F:0");
    QTest::keyClick(dialog.get(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(model->NodeKey(), "F:1");
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Backspace);
    Button("cmdUp").click();
    EXPECT_EQ(model->NodeKey(), "X:DB");
    EXPECT_FALSE(Button("cmdUp").isEnabled());
    EXPECT_FALSE(Button("cmdNewFolder").isEnabled());
}

TEST_F(OpenSaveWindow, AnotherFolderIsChosenInTheCombo) {
    Open(Style::Open);
    Folders().setFocus();
    QTest::keyClick(&Folders(), Qt::Key_Up);
    EXPECT_EQ(model->NodeKey(), "X:DB");
    EXPECT_EQ(FolderNames(), Strings{"Recipe Database"});
}

TEST_F(OpenSaveWindow, EnterOnAFolderEntersItWithoutTakingTheName) {
    Open(Style::Save, "Harvest");
    Click(List(), RowOf(List(), "Winter"));
    EXPECT_EQ(FromQt(Name().text()), "Harvest");
    Button("cmdOK").click();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(model->NodeKey(), "F:1");
    Button("cmdOK").click();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(model->FolderID(), 1);
}

TEST_F(OpenSaveWindow, ARefusedNameKeepsTheFocus) {
    Open(Style::Open);
    Type("Gose");
    QTest::keyClick(&Name(), Qt::Key_Return);
    EXPECT_EQ(Boxes(), Strings{"[Recipe not found] No recipe named 'Gose' exists."});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ(FromQt(Name().selectedText()), "Gose");
}

TEST_F(OpenSaveWindow, TheArrowsWalkTheListFromTheNameBox) {
    Open(Style::Open);
    for (int i = 0; i < 2; ++i) QTest::keyClick(&Name(), Qt::Key_Down);
    EXPECT_EQ(FromQt(Name().text()), "Ale");
    EXPECT_TRUE(Name().hasFocus());
    QTest::keyClick(&Name(), Qt::Key_Down);
    QTest::keyClick(&Name(), Qt::Key_Down);
    QTest::keyClick(&Name(), Qt::Key_Return);
    EXPECT_EQ(model->BeerName(), "mild");
}

TEST_F(OpenSaveWindow, AFolderIsMadeAndNamedOnTheSpot) {
    Open(Style::Save, "Harvest");
    QTest::keyClick(dialog.get(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Rows(List()).back(), "New Folder");
    TypeName(List(), "Autumn");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild", "Autumn"}));
    EXPECT_EQ(shell.Opened()->data.tree.Nodes("F:4")->Name(), "Autumn");
    EXPECT_EQ(FromQt(Name().text()), "Harvest");
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(model->NodeKey(), "F:4");
}

TEST_F(OpenSaveWindow, F2RenamesARowAndEscapeLeavesItInTheWindow) {
    Open(Style::Open);
    Click(List(), RowOf(List(), "mild"));
    QTest::keyClick(&List(), Qt::Key_F2);
    ASSERT_NE(Editor(List()), nullptr);
    QTest::keyClick(Editor(List()), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(&List(), Qt::Key_F2);
    TypeName(List(), "Brown");
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "Brown"}));
    EXPECT_EQ(FromQt(Name().text()), "Brown");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(model->IsOpen());
}

TEST_F(OpenSaveWindow, ARowIsDraggedOnAFolderRow) {
    Open(Style::Open);
    EXPECT_FALSE(Drop(List(), RowOf(List(), "mild"), {"R:1:3"}));
    EXPECT_TRUE(Drop(List(), RowOf(List(), "Winter"), {"R:1:3"}));
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "mild"}));
}

TEST_F(OpenSaveWindow, TheViewIsChosenByButtonKeyAndMenu) {
    Open(Style::Open);
    EXPECT_TRUE(Button("cmdList").isChecked());
    Button("cmdDetails").click();
    EXPECT_NE(qobject_cast<ListPane*>(&List()), nullptr);
    EXPECT_TRUE(Button("cmdDetails").isChecked());
    EXPECT_FALSE(Button("cmdList").isChecked());
    Button("cmdDetails").click();
    EXPECT_TRUE(Button("cmdDetails").isChecked());
    QTest::keyClick(dialog.get(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_NE(qobject_cast<IconPane*>(&List()), nullptr);
    QMenu* menu = MenuAt(*dialog, List(), RowOf(List(), "mild"), "mnuPopup");
    EXPECT_EQ(LitItems(*menu), (Strings{"mnuView", "mnuArrange", "mnuNewFolder", "mnuRename"}));
    EXPECT_EQ(FromQt(Name().text()), "mild");
    Item(*menu, "mnuLargeIcons")->trigger();
    Item(*menu, "mnuArrangeBy(0)")->trigger();
    Close(menu);
    EXPECT_EQ(model->Look(), (ListLook{ListViewType::LargeIcons, 0, true}));
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "mild", "Ale"}));
    menu = MenuAt(*dialog, List(), RowOf(List(), "mild"), "mnuPopup");
    EXPECT_TRUE(Item(*menu, "mnuLargeIcons")->isChecked());
    EXPECT_TRUE(Item(*menu, "mnuLineUp")->isEnabled());
    Close(menu);
}

TEST_F(OpenSaveWindow, TheFindBoxLooksIntoAllFolders) {
    Open(Style::Open);
    FindBox().setFocus();
    QTest::keyClicks(&FindBox(), QStringLiteral("port"));
    EXPECT_EQ(Rows(List()), Strings{"Porter"});
    QTest::keyClick(&FindBox(), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Rows(List()), (Strings{"Winter", "Ale", "mild"}));
    QTest::keyClicks(&FindBox(), QStringLiteral("port"));
    QTest::keyClick(&FindBox(), Qt::Key_Return);  // the first row
    EXPECT_EQ(FromQt(Name().text()), "Porter");
    QTest::keyClick(&FindBox(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(model->BeerName(), "Porter");
}

TEST_F(OpenSaveWindow, EscapeAndTheCloseBoxCancel) {
    Open(Style::Open);
    QTest::keyClick(&Name(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(model->Cancelled());
    EXPECT_FALSE(model->IsOpen());
    Open(Style::Delete);
    dialog->close();
    EXPECT_FALSE(model->IsOpen());
    Open(Style::Save);
    Button("cmdCancel").click();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(model->IsOpen());
}

TEST_F(OpenSaveWindow, AnEmptyListSaysWhatToDo) {
    for (const char* key : {"R:1:0", "R:2:0", "R:3:0", "F:1"}) shell.Opened()->data.objects.DeleteObject(key);
    Open(Style::Open);
    EXPECT_EQ(Rows(List()), Strings{});
    EXPECT_EQ(model->List().Hint().substr(0, 8), "There is");
    // The hint is painted in the place of the rows.
    QImage picture(List().viewport()->size(), QImage::Format_RGB32);
    List().viewport()->render(&picture);
    const QColor ground = List().palette().color(QPalette::Base);
    int inked = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) inked += picture.pixelColor(x, y) != ground;
    EXPECT_GT(inked, 100);
}

}  // namespace
}  // namespace tw::test

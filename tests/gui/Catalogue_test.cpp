// Tests of database setup and the catalogue editors with the keyboard.
#include <QHeaderView>
#include <gmock/gmock.h>

#include "GuiTest.h"
#include "catalogue/DatabaseSetupModel.h"
#include "catalogue/ui/DatabaseSetupDialog.h"
#include "catalogue/ui/EditorDialog.h"
#include "catalogue/ui/ObjectNavigatorView.h"
#include "tree/CataloguePickerModel.h"
#include "tree/ui/CataloguePickerDialog.h"
#include "tree/ui/ListFilterBox.h"
#include "tree/ui/ListPane.h"
#include "tree/ui/TreePane.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CatalogueWindows : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        for (const char* name : {"Cascade", "Fuggle", "Saaz"})
            shell.DB()->Execute(std::string("INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('") + name +
                                "', 4, 6)");
        context.emplace(shell.Opened()->catalogue.Context());
    }
    // Shows a window and makes it the active one.
    template <class Window>
    void Up(Window& shown) {
        shown.show();
        QApplication::setActiveWindow(&shown);
        QApplication::processEvents();
    }
    template <class Widget>
    static Widget& In(QWidget& top, const char* name) {
        auto* widget = top.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    std::string Stored(const std::string& sql) {
        const Recordset rows = shell.DB()->OpenRecordset(sql);
        return rows.AtEnd() ? "nothing" : rows.Fields(0).IsNull() ? "NULL" : rows.Fields(0).Text();
    }
    // Replaces the whole text of the focused box by typing.
    void Fill(const char* text) {
        auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(box, nullptr);
        box->selectAll();
        Key(Qt::Key_Delete);
        Type(text);
    }

    std::optional<CatalogueContext> context;
};

TEST_F(CatalogueWindows, AHopIsEnteredByTheKeyboardAlone) {
    const auto model = MakeEditor(CatalogueKind::Hop, *context);
    EditorDialog editor(*model, nullptr);
    Up(editor);
    EXPECT_EQ(Focus(), "Text1");
    EXPECT_FALSE(In<QPushButton>(editor, "cmdApply").isEnabled());
    EXPECT_FALSE(In<ObjectNavigatorView>(editor, "objNavView").isVisible());
    Type("Zeus");
    EXPECT_TRUE(In<QPushButton>(editor, "cmdApply").isEnabled());
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "Text2");
    Type("Bittering");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "gridInfo(0,0)");
    Type("14 %");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "gridInfo(0,1)");
    Key(Qt::Key_Return);
    EXPECT_FALSE(editor.isVisible());
    EXPECT_EQ(Stored("SELECT AA_HI FROM HOPS WHERE NAME = 'Zeus'"), "14");
}

TEST_F(CatalogueWindows, ARefusedCellTakesTheFocusBack) {
    const auto model = MakeEditor(CatalogueKind::Hop, *context);
    model->SetName("Saaz");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    auto& low = In<QLineEdit>(editor, "gridInfo(0,0)");
    low.setFocus();
    Fill("strong");
    Key(Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_THAT(outside.messages.TakeLog(), ElementsAre("[Invalid Entry] Please enter a valid percentage"));
    EXPECT_EQ(Focus(), "gridInfo(0,0)");
    EXPECT_EQ(FromQt(low.text()), "4");
    EXPECT_EQ(FromQt(low.selectedText()), "4");
}

TEST_F(CatalogueWindows, EscapeAndCancelCheckNothing) {
    const auto model = MakeEditor(CatalogueKind::Hop, *context);
    EditorDialog editor(*model, nullptr);
    Up(editor);
    In<QLineEdit>(editor, "gridInfo(0,0)").setFocus();
    Type("strong");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(editor.isVisible());
    EXPECT_TRUE(model->Cancelled());
    EXPECT_THAT(outside.messages.log, IsEmpty());
}

TEST_F(CatalogueWindows, ABlankNameIsToldAndTakesTheFocus) {
    const auto model = MakeEditor(CatalogueKind::Grain, *context);
    EditorDialog editor(*model, nullptr);
    Up(editor);
    In<QLineEdit>(editor, "gridInfo(0,0)").setFocus();
    Type("36");
    Key(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_THAT(outside.messages.TakeLog(), ElementsAre("[Invalid Name] Grain name cannot be blank."));
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(Focus(), "Text1");
}

TEST_F(CatalogueWindows, StepsShowOtherRowsAndDropWhatIsTyped) {
    DatabaseSetupModel setup(*context);
    setup.Choose(CatalogueKind::Hop);
    ObjectNavigator navigator(setup.Items());
    const auto model = MakeEditor(CatalogueKind::Hop, *context);
    model->SetNavigator(navigator);
    model->SetName("Cascade");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    EXPECT_FALSE(In<QToolButton>(editor, "cmdPrevious").isEnabled());
    In<QLineEdit>(editor, "gridInfo(0,0)").setFocus();
    Fill("bad");
    QTest::mouseClick(&In<QToolButton>(editor, "cmdNext"), Qt::LeftButton);
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "Text1").text()), "Fuggle");
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "gridInfo(0,0)").text()), "4");
    EXPECT_TRUE(In<QToolButton>(editor, "cmdPrevious").isEnabled());
    QTest::mouseClick(&In<QToolButton>(editor, "cmdLast"), Qt::LeftButton);
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "Text1").text()), "Saaz");
    EXPECT_FALSE(In<QToolButton>(editor, "cmdNext").isEnabled());
    EXPECT_EQ(setup.Items().SelectedText(), "Saaz");
    EXPECT_THAT(outside.messages.log, IsEmpty());
}

TEST_F(CatalogueWindows, AStyleHasItsListsItsFolderAndItsColour) {
    shell.Opened()->data.objects.CreateStyleFolder(0, "Dark", Asking::Quietly);
    shell.DB()->Execute("INSERT INTO WATER_PROFILES (NAME) VALUES ('Dublin')");
    const auto model = MakeEditor(CatalogueKind::Style, *context);
    model->SetName("Stout");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    EXPECT_EQ(FromQt(In<QComboBox>(editor, "Combo1").currentText()), "?");
    EXPECT_FALSE(In<QWidget>(editor, "swatch").isVisible());
    In<QLineEdit>(editor, "gridInfo(3,0)").setFocus();
    Type("40");
    Key(Qt::Key_Tab);
    EXPECT_TRUE(In<QWidget>(editor, "swatch").isVisible());
    Type("30");
    Key(Qt::Key_Tab);
    EXPECT_EQ(FromQt(In<QLabel>(editor, "lblHint").text()),
              "Color (SRM): the low value is above the high one.");
    auto& type = In<QComboBox>(editor, "Combo1");
    type.setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(FromQt(type.currentText()), "Ale");
    auto& folders = In<TreePane>(editor, "treeFolders");
    folders.setFocus();
    Key(Qt::Key_Down);
    QTest::mouseClick(&In<QPushButton>(editor, "cmdOK"), Qt::LeftButton);
    EXPECT_EQ(Stored("SELECT FOLDER_ID FROM STYLES WHERE NAME = 'Stout'"), "1");
    EXPECT_EQ(Stored("SELECT TYPE FROM STYLES WHERE NAME = 'Stout'"), "0");
    EXPECT_EQ(Stored("SELECT COLOR_HI FROM STYLES WHERE NAME = 'Stout'"), "30");
}

TEST_F(CatalogueWindows, AGravityShowsItsDecimalsButNoFewerThanItHas) {
    shell.DB()->Execute("UPDATE STYLES SET OG_LO = 1.05, OG_HI = 1.0512, FG_LO = 1");
    const auto model = MakeEditor(CatalogueKind::Style, *context);
    model->SetName("Stout");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "gridInfo(0,0)").text()), "1.050");
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "gridInfo(0,1)").text()), "1.0512");
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "gridInfo(1,0)").text()), "1.000");
    In<QLineEdit>(editor, "gridInfo(1,1)").setFocus();
    Type("3 P");
    Key(Qt::Key_Tab);
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "gridInfo(1,1)").text()), "3 P");
    QTest::mouseClick(&In<QPushButton>(editor, "cmdOK"), Qt::LeftButton);
    EXPECT_EQ(Stored("SELECT OG_LO FROM STYLES WHERE NAME = 'Stout'"), "1.05");
}

TEST_F(CatalogueWindows, ANewTypeCanBeTyped) {
    const auto model = MakeEditor(CatalogueKind::Grain, *context);
    model->SetName("Pale Malt");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    In<QComboBox>(editor, "Combo1").setFocus();
    Type("Base");
    QTest::mouseClick(&In<QPushButton>(editor, "cmdApply"), Qt::LeftButton);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_FALSE(In<QPushButton>(editor, "cmdApply").isEnabled());
    EXPECT_EQ(Stored("SELECT NAME FROM GRAIN_TYPES"), "Base");
    EXPECT_EQ(FromQt(In<QComboBox>(editor, "Combo1").currentText()), "Base");
}

TEST_F(CatalogueWindows, AnApplyBringsTheListOfTypesUpToDate) {
    shell.DB()->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    shell.DB()->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Roasted', TRUE)");
    shell.DB()->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Black', TRUE, 2)");
    const auto model = MakeEditor(CatalogueKind::Grain, *context);
    model->SetName("Pale Malt");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    auto& types = In<QComboBox>(editor, "Combo1");
    types.setFocus();
    for (const char* type : {"Kilned", "Smoked"}) {
        types.lineEdit()->selectAll();
        Type(type);
        In<QPushButton>(editor, "cmdApply").click();
    }
    Strings entries;
    for (int i = 0; i < types.count(); ++i) entries.push_back(FromQt(types.itemText(i)));
    EXPECT_THAT(entries, ElementsAre("Base", "Roasted", "Smoked"));
    EXPECT_EQ(FromQt(types.currentText()), "Smoked");
    EXPECT_EQ(types.currentIndex(), 2);
}

TEST_F(CatalogueWindows, AFormToBeReadHasOneButton) {
    const auto model = MakeEditor(CatalogueKind::Style, *context);
    model->SetName("Stout");
    model->SetReadOnly();
    EditorDialog editor(*model, nullptr);
    Up(editor);
    EXPECT_FALSE(In<QPushButton>(editor, "cmdOK").isVisible());
    EXPECT_FALSE(In<QPushButton>(editor, "cmdApply").isVisible());
    EXPECT_EQ(FromQt(In<QPushButton>(editor, "cmdCancel").text()), "Close");
    EXPECT_EQ(editor.findChild<QComboBox*>(), nullptr);
    Type("x");
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "Text1").text()), "Stout");
    Key(Qt::Key_Return);
    EXPECT_FALSE(editor.isVisible());
}

TEST_F(CatalogueWindows, SetupDeletesAndAddsByItsKeys) {
    DatabaseSetupModel model(*context);
    DatabaseSetupDialog setup(model, nullptr);
    Up(setup);
    EXPECT_EQ(Focus(), "lvItems");
    In<QComboBox>(setup, "Combo1").setCurrentText(QStringLiteral("Hop Varieties"));
    EXPECT_EQ(model.Items().SelectedText(), "Cascade");
    outside.messages.answers = {Answer::Yes};
    Key(Qt::Key_Delete);
    EXPECT_EQ(model.Items().SelectedText(), "Fuggle");
    outside.dialogs.scripts.emplace_back([](DialogModel& editor) {
        editor.SetControl("Text1", "Zeus");
        editor.Press("cmdOK");
    });
    Key(Qt::Key_Insert);
    EXPECT_EQ(model.Items().SelectedText(), "Zeus");
    Key(Qt::Key_Return);
    EXPECT_THAT(outside.dialogs.shown, ElementsAre("frmHop", "frmHop"));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(setup.isVisible());
    EXPECT_FALSE(model.IsOpen());
}

TEST_F(CatalogueWindows, SetupIsWalkedThroughInReadingOrder) {
    DatabaseSetupModel model(*context);
    model.Choose(CatalogueKind::Hop);
    DatabaseSetupDialog setup(model, nullptr);
    Up(setup);
    In<QComboBox>(setup, "Combo1").setFocus();
    for (const char* next : {"txtFilter", "lvItems", "cmdNew", "cmdEdit", "cmdDelete", "cmdClose"}) {
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), next);
    }
}

TEST_F(CatalogueWindows, SetupTakesItsKeysAlsoBesideTheList) {
    DatabaseSetupModel model(*context);
    DatabaseSetupDialog setup(model, nullptr);
    Up(setup);
    auto& catalogues = In<QComboBox>(setup, "Combo1");
    catalogues.setCurrentText(QStringLiteral("Hop Varieties"));
    catalogues.setFocus();
    Key(Qt::Key_Insert);
    EXPECT_THAT(outside.dialogs.shown, ElementsAre("frmHop"));
    outside.messages.answers = {Answer::Yes};
    // With the character that a keyboard sends with the key.
    QTest::sendKeyEvent(QTest::Click, &catalogues, Qt::Key_Delete, QStringLiteral("\x7f"), Qt::NoModifier);
    EXPECT_EQ(model.Items().SelectedText(), "Fuggle");
    outside.messages.TakeLog();
    // In the filter, the key deletes text.
    auto& filter = In<QLineEdit>(setup, "txtFilter");
    filter.setFocus();
    Type("s");
    Key(Qt::Key_Home);
    Key(Qt::Key_Delete);
    Key(Qt::Key_Delete);
    EXPECT_EQ(FromQt(filter.text()), "");
    EXPECT_EQ(model.Items().Count(), 2);
    EXPECT_THAT(outside.messages.log, IsEmpty());
}

TEST_F(CatalogueWindows, SetupIsOffOnAFolderAndEntersIt) {
    shell.DB()->Execute("UPDATE STYLES SET FOLDER_ID = 0");
    shell.Opened()->data.objects.CreateStyleFolder(0, "Dark", Asking::Quietly);
    DatabaseSetupModel model(*context);
    DatabaseSetupDialog setup(model, nullptr);
    Up(setup);
    EXPECT_FALSE(In<QPushButton>(setup, "cmdEdit").isEnabled());
    EXPECT_FALSE(In<QPushButton>(setup, "cmdDelete").isEnabled());
    Key(Qt::Key_Return);
    EXPECT_EQ(model.Items().SelectedText(), "..");
    Key(Qt::Key_Return);
    EXPECT_EQ(model.Items().SelectedText(), "Dark");
    Key(Qt::Key_Down);
    EXPECT_TRUE(In<QPushButton>(setup, "cmdEdit").isEnabled());
}

TEST_F(CatalogueWindows, AFolderOfStylesShowsItsColumnsInFull) {
    shell.DB()->Execute("UPDATE STYLES SET FOLDER_ID = 0, TYPE = 0");
    // So many that there is a scroll bar next to them, which disappears inside the folder.
    for (int i = 0; i < 60; ++i)
        shell.Opened()->data.objects.CreateStyleFolder(0, "Folder " + std::to_string(i), Asking::Quietly);
    shell.DB()->Execute("UPDATE STYLES SET FOLDER_ID = 1");
    DatabaseSetupModel model(*context);
    DatabaseSetupDialog setup(model, nullptr);
    Up(setup);
    auto& list = In<ListPane>(setup, "lvItems");
    EXPECT_EQ(list.header()->length(), list.viewport()->width());
    Key(Qt::Key_Return);
    QApplication::processEvents();
    ASSERT_EQ(model.Items().SelectedText(), "..");
    EXPECT_GE(list.columnWidth(1), list.fontMetrics().horizontalAdvance(QStringLiteral("Style Folder")));
    EXPECT_EQ(list.header()->length(), list.viewport()->width());
}

TEST_F(CatalogueWindows, AStepLeavesTheFocusWhereItIs) {
    shell.DB()->Execute("INSERT INTO GRAINS (NAME, GRAIN) VALUES ('Wheat', TRUE)");
    DatabaseSetupModel setup(*context);
    setup.Choose(CatalogueKind::Grain);
    ObjectNavigator navigator(setup.Items());
    const auto model = MakeEditor(CatalogueKind::Grain, *context);
    model->SetNavigator(navigator);
    model->SetName("Pale Malt");
    EditorDialog editor(*model, nullptr);
    Up(editor);
    In<QLineEdit>(editor, "gridInfo(1,0)").setFocus();
    QTest::mouseClick(&In<QToolButton>(editor, "cmdNext"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(FromQt(In<QLineEdit>(editor, "Text1").text()), "Wheat");
    EXPECT_EQ(Focus(), "gridInfo(1,0)");
}

TEST_F(CatalogueWindows, TheFilterLeavesWhatHoldsItsWords) {
    DatabaseSetupModel model(*context);
    model.Choose(CatalogueKind::Hop);
    DatabaseSetupDialog setup(model, nullptr);
    Up(setup);
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Focus(), "txtFilter");
    Type("sa");
    EXPECT_EQ(model.Items().Count(), 1);
    EXPECT_EQ(model.Items().SelectedText(), "Saaz");
    Type("x");
    EXPECT_EQ(model.Items().Count(), 0);
    EXPECT_FALSE(In<QPushButton>(setup, "cmdEdit").isEnabled());
    // The first Escape clears the box.
    Key(Qt::Key_Escape);
    EXPECT_TRUE(setup.isVisible());
    EXPECT_EQ(model.Items().Count(), 3);
    // The arrows move in the list while the box keeps the focus.
    model.Items().Select(0);
    Key(Qt::Key_Down);
    EXPECT_EQ(model.Items().SelectedText(), "Fuggle");
    EXPECT_EQ(Focus(), "txtFilter");
    Type("f");
    // Another catalogue is shown unfiltered.
    In<QComboBox>(setup, "Combo1").setCurrentText(QStringLiteral("Grains"));
    EXPECT_EQ(FromQt(In<QLineEdit>(setup, "txtFilter").text()), "");
    EXPECT_EQ(model.Items().SelectedText(), "Pale Malt");
}

TEST_F(CatalogueWindows, TheMenuOpensSetupAndTheRecipesFollow) {
    NewRecipe();
    outside.dialogs.scripts.emplace_back([&](DialogModel& setup) {
        outside.dialogs.scripts.emplace_back([](DialogModel& editor) {
            editor.SetControl("Text1", "Altbier");
            editor.Press("cmdOK");
        });
        setup.Press("cmdNew");
        setup.Press("cmdClose");
    });
    EXPECT_TRUE(window.RunCommand(CommandId::ToolsDataSetup));
    EXPECT_THAT(outside.dialogs.shown, ElementsAre("frmDBSetup", "frmStyle"));
    EXPECT_GE(Find<QComboBox>("cmbStyle").findText(QStringLiteral("Altbier")), 0);
}

TEST_F(CatalogueWindows, APickerShowsItsRowToBeRead) {
    NewRecipe();
    outside.dialogs.scripts.emplace_back([&](DialogModel& picker) {
        outside.dialogs.scripts.emplace_back([](DialogModel& editor) {
            EXPECT_EQ(editor.Controls().front().text, "Fuggle");
            EXPECT_FALSE(editor.SetControl("Text1", "x"));
            editor.Press("cmdNext");
            editor.Press("cmdCancel");
        });
        picker.Press("cmdView");
        picker.Press("cmdOK");
    });
    shell.Opened()->services.PickFromCatalogue(*shell.Documents().Active(), CatalogueKind::Hop, "Fuggle");
    EXPECT_THAT(outside.dialogs.shown, ElementsAre("frmLvShow", "frmHop"));
    EXPECT_EQ(shell.Documents().Active()->Record().gridHops.Text(1, 0), "Saaz");
}

}  // namespace
}  // namespace tw::test

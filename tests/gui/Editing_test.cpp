// Tests of the edit commands in the windows: undo and redo, the clipboard, selections, sorting.
#include "GuiTest.h"
#include "document/ui/GridPanel.h"
#include "platform/qt/GridHeader.h"

namespace tw::test {
namespace {

class Editing : public GuiTest {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        NewRecipe();
    }
    RecipeDocument& Document() { return *shell.Documents().Active(); }
    RecipeRecord& R() { return Document().Record(); }
    QAction& Action(const char* name) { return *window.findChild<QAction*>(QLatin1String(name)); }
    static void ClickHeader(GridView& view, int col) {
        QHeaderView& header = *view.horizontalHeader();
        const QPoint place(header.sectionViewportPosition(col) + header.sectionSize(col) / 2,
                           header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }
    // Adds two rows of grain: 8 lb with 36 PPG above 2 lb with 30 PPG.
    GridView& TwoGrains() {
        auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
        Type("2 lb\t30\r");
        view.setCurrentIndex(view.Model().index(0, 1));
        Key(Qt::Key_Plus, Qt::ControlModifier);
        view.setCurrentIndex(view.Model().index(0, 1));
        Type("8 lb\t36\r");
        return view;
    }
    void Select(GridView& view, int row1, int col1, int row2, int col2) {
        const auto place = [&](int row, int col) {
            return view.visualRect(view.Model().index(row - 1, col)).center();
        };
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place(row1, col1));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, place(row2, col2));
    }
};

TEST_F(Editing, TypingIsUndoneByKeyInOneStep) {
    auto& name = Find<QLineEdit>("txtName");
    name.setFocus();
    Type("Old Ale");
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Typing"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(name.text(), QString());
    EXPECT_EQ(R().txtName.Text(), "");
    EXPECT_FALSE(Action("mnuEditUndo").isEnabled());
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(name.text(), QStringLiteral("Old Ale"));
    EXPECT_EQ(name.cursorPosition(), 7);
}

TEST_F(Editing, AnEntryThatCannotBeReadIsUndoneWithoutAQuestion) {
    auto& volume = Find<QLineEdit>("txtBoilVol");
    volume.setFocus();
    volume.selectAll();
    Type("6 gal\r");
    volume.selectAll();
    Type("much");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(outside.messages.log.empty());
    EXPECT_DOUBLE_EQ(R().txtBoilVol.Value(), 0);
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(volume.text(), QStringLiteral("much"));
}

TEST_F(Editing, UndoShowsTheTabAndTheControl) {
    GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb\r");
    window.ActiveWindow()->ShowTab(Tab::Notes);
    Type("Dry");
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(Focus(), "txtNotes");
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(Find<QTabWidget>("SSTab1").currentIndex(), static_cast<int>(Tab::Grains));
    EXPECT_EQ(Focus(), "gridGrain");
    EXPECT_EQ(Find<GridView>("gridGrain").currentIndex(), Find<GridView>("gridGrain").Model().index(0, 1));
    EXPECT_TRUE(Find<QWidget>("gridGrain").updatesEnabled());
}

TEST_F(Editing, ANewCellEntryCommitsBeforeTheUndo) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    // There is nothing to undo before the entry is committed.
    EXPECT_FALSE(window.RunCommand(CommandId::EditUndo));
    Key(Qt::Key_Return);
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(Shown(view, 1, 1), "");
}

TEST_F(Editing, TheNotesKeepNoHistoryOfTheirOwn) {
    window.ActiveWindow()->ShowTab(Tab::Notes);
    Type("one\rtwo");
    EXPECT_EQ(R().txtNotes.Text(), "one\r\ntwo");
    auto& notes = Find<QPlainTextEdit>("txtNotes");
    EXPECT_FALSE(notes.isUndoRedoEnabled());
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(notes.toPlainText(), QString());
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(notes.toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_EQ(notes.textCursor().position(), 7);
}

TEST_F(Editing, TheSelectionOfATextIsTheRecords) {
    auto& name = Find<QLineEdit>("txtName");
    name.setFocus();
    name.setText(QStringLiteral("x"));
    name.clear();
    Type("Old Ale");
    name.setSelection(4, 3);
    EXPECT_EQ(R().txtName.Selection(), (TextSelection{4, 3}));
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboard.Text(), "Ale");
    Key(Qt::Key_Delete);
    EXPECT_EQ(name.text(), QStringLiteral("Old "));
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Delete"));
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(name.text(), QStringLiteral("Old Ale"));
    EXPECT_EQ(name.cursorPosition(), 7);
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(name.selectedText(), QStringLiteral("Old Ale"));
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(name.text(), QString());
    EXPECT_TRUE(window.RunCommand(CommandId::EditUndo));
    EXPECT_EQ(name.text(), QStringLiteral("Old Ale"));
    EXPECT_EQ(name.selectedText(), QStringLiteral("Old Ale"));
}

TEST_F(Editing, DeleteWithoutASelectionTakesTheNextLetter) {
    auto& name = Find<QLineEdit>("txtName");
    name.setFocus();
    Type("Ale");
    name.setCursorPosition(0);
    Key(Qt::Key_Delete);
    EXPECT_EQ(name.text(), QStringLiteral("le"));
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Typing"));
}

TEST_F(Editing, ABlockIsSelectedByShiftAndByMouse) {
    GridView& view = TwoGrains();
    view.setCurrentIndex(view.Model().index(0, 1));
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 2, 2}));
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 1, 2}));
    Select(view, 2, 2, 1, 1);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 2, 2}));
    // Typing goes into the current cell, which is the first one of the block.
    Type("9 lb\r");
    EXPECT_EQ(Shown(view, 1, 1), "9 lb");
    EXPECT_EQ(Shown(view, 2, 2), "30");
}

TEST_F(Editing, ABlockTravelsOverTheClipboard) {
    GridView& view = TwoGrains();
    Select(view, 1, 1, 2, 2);
    Key(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboard.Text(), "8 lb\t36\r2 lb\t30\r");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Shown(view, 1, 1) + Shown(view, 2, 2), "");
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Delete"));
    Key(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(Shown(view, 2, 1), "2 lb");
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Paste"));
    Key(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Cut"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Shown(view, 1, 1), "8 lb");
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 1, 2, 2}));
    EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 4);
}

TEST_F(Editing, SelectAllReachesIntoTheTotals) {
    GridView& view = TwoGrains();
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{1, 0, 3, 5}));
    EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 12);
    EXPECT_EQ(Find<QTableView>("gridGrainTotals").selectionModel()->selectedIndexes().size(), 6);
    Key(Qt::Key_Down);
    EXPECT_TRUE(Find<QTableView>("gridGrainTotals").selectionModel()->selectedIndexes().isEmpty());
}

TEST_F(Editing, AnOpenCellEditorKeepsTheKeysOfText) {
    auto& view = GridAt(Tab::Grains, "gridGrain", 1, 1);
    Type("8 lb");
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(editor->text(), QStringLiteral("8 lb"));
    EXPECT_EQ(QApplication::focusWidget(), editor);
    Key(Qt::Key_Escape);
    EXPECT_EQ(Shown(view, 1, 1), "");
}

TEST_F(Editing, AHeaderClickSortsAndMarksTheColumn) {
    GridView& view = TwoGrains();
    view.setCurrentIndex(view.Model().index(1, 2));
    ClickHeader(view, 1);
    EXPECT_EQ(Shown(view, 1, 1), "2 lb");
    // The current cell stays where it is.
    EXPECT_EQ(R().gridGrain.Selection(), (GridRange{2, 2, 2, 2}));
    EXPECT_EQ(view.currentIndex(), view.Model().index(1, 2));
    EXPECT_TRUE(view.horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(view.horizontalHeader()->sortIndicatorSection(), 1);
    EXPECT_EQ(view.horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Sort"));
    // The keyboard sorts in the opposite direction.
    view.setCurrentIndex(view.Model().index(0, 1));
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Shown(view, 1, 1), "8 lb");
    EXPECT_EQ(view.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    // After a change of an amount, the rows may no longer be sorted.
    Type("1 lb\r");
    EXPECT_FALSE(view.horizontalHeader()->isSortIndicatorShown());
}

TEST_F(Editing, AGridOfFixedRowsHasNoClickableHeader) {
    auto& view = GridAt(Tab::Water, "gridWater", 1, 2);
    EXPECT_FALSE(view.horizontalHeader()->sectionsClickable());
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(view.horizontalHeader()->isSortIndicatorShown());
}

TEST_F(Editing, TheEditCommandsFollowTheFocus) {
    EXPECT_TRUE(Action("mnuEditCopy").isEnabled());
    Find<QLineEdit>("txtOG").setFocus();
    EXPECT_TRUE(Action("mnuEditCopy").isEnabled());
    EXPECT_FALSE(Action("mnuEditCut").isEnabled());
    Find<QComboBox>("cmbStyle").setFocus();
    EXPECT_FALSE(Action("mnuEditCopy").isEnabled());
    GridAt(Tab::Hops, "gridHops", 1, 0);
    EXPECT_TRUE(Action("mnuEditCut").isEnabled());
}

TEST_F(Editing, AStyleIsUndoneFromTheList) {
    auto& styles = Find<QComboBox>("cmbStyle");
    styles.setFocus();
    Type("Stout\r");
    EXPECT_EQ(Document().BeerStyle(), "Stout");
    EXPECT_EQ(Action("mnuEditUndo").text(), QStringLiteral("&Undo Selection"));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Document().BeerStyle(), "(None)");
    EXPECT_EQ(styles.currentText(), QStringLiteral("(None)"));
}

}  // namespace
}  // namespace tw::test

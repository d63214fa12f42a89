// Tests of copy, cut, clear and paste, on blocks of cells and in text boxes.
#include <gmock/gmock.h>

#include "DocumentState.h"
#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kMisfit =
    "[Paste Failed] The data in the clipboard has a different size/shape than the selection";
constexpr const char* kInvalid =
    "[Paste Failed] The clipboard contains data which are not valid entries for this grid";

class ClipboardTest : public DocumentTest {
  protected:
    ClipboardTest() {
        host.appendRows = true;
        New();
    }

    void Rows(Grid& grid, int rows) {
        while (grid.DataRows() < rows) document->Lines().InsertRowForGrid(grid);
    }
    void Select(Grid& grid, GridRange range) {
        document->Focus().FocusOn(grid);
        document->Focus().SelectCells(grid, range);
    }
    void Paste(Grid& grid, GridRange range, std::string text) {
        platform.clipboard.text = std::move(text);
        Select(grid, range);
        document->Edit().Paste();
    }
    std::string CopyOf(Grid& grid, GridRange range) {
        Select(grid, range);
        document->Edit().Copy();
        return platform.clipboard.text.value_or("nothing");
    }
    // Returns the texts of a block as a copy without headers puts them on the clipboard.
    std::string Cells(const Grid& grid, GridRange range) {
        ClipboardBlock block;
        for (int row = range.row1; row <= range.row2; ++row) {
            block.emplace_back();
            for (int col = range.col1; col <= range.col2; ++col) block.back().push_back(grid.Text(row, col));
        }
        return JoinBlock(block);
    }
    std::string State() const { return StateOf(*document, host).all; }
    std::size_t Steps() const { return document->History().StackPosition(); }
};

TEST_F(ClipboardTest, ASquareTilesALargerSquare) {
    Grid& adjuncts = R().gridAdjuncts;
    Rows(adjuncts, 4);
    Paste(adjuncts, {1, 0, 4, 3}, "a\tb\rc\td\r");
    EXPECT_EQ(Cells(adjuncts, {1, 0, 4, 3}), "a\tb\ta\tb\rc\td\tc\td\ra\tb\ta\tb\rc\td\tc\td\r");
    EXPECT_EQ(document->History().UndoType(), "Paste");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ClipboardTest, ARefusedPasteNamesTheCellAndWhatItIsNot) {
    Grid& grain = R().gridGrain;
    Rows(grain, 3);
    Paste(grain, {1, 0, 3, 1}, "a\t1 lb\rb\t2 lb\rc\tabc\r");
    EXPECT_THAT(Boxes(), ElementsAre(kInvalid));
    EXPECT_EQ(platform.messages.advice, "Row 3, Amount: 'abc' is not a weight");
    Paste(grain, {1, 2, 1, 2}, "-1\r");
    EXPECT_EQ(platform.messages.advice, "Row 1, PPG: '-1' is not a possible number");
}

TEST_F(ClipboardTest, AnotherShapeIsFilledOnlyWithTheSetting) {
    Grid& adjuncts = R().gridAdjuncts;
    Rows(adjuncts, 3);
    const std::string before = State();
    const std::size_t steps = Steps();
    Paste(adjuncts, {1, 0, 3, 2}, "a\tb\rc\td\r");
    EXPECT_THAT(Boxes(), ElementsAre(kMisfit));
    EXPECT_EQ(State(), before);
    EXPECT_EQ(Steps(), steps);
    host.pasteMismatchSize = true;
    document->Edit().Paste();
    EXPECT_EQ(Cells(adjuncts, {1, 0, 3, 2}), "a\tb\ta\rc\td\tc\ra\tb\ta\r");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ClipboardTest, ALargerBlockIsCutOnlyWithTheSetting) {
    Grid& adjuncts = R().gridAdjuncts;
    Rows(adjuncts, 2);
    const std::string block = "a\tb\tc\rd\te\tf\rg\th\ti\r";
    Paste(adjuncts, {1, 0, 2, 1}, block);
    EXPECT_THAT(Boxes(), ElementsAre(kMisfit));
    host.pasteMismatchSize = true;
    document->Edit().Paste();
    EXPECT_EQ(Cells(adjuncts, {1, 0, 2, 3}), "a\tb\t\t\rd\te\t\t\r");
}

TEST_F(ClipboardTest, OneValueFillsEverySelectedCell) {
    Grid& grain = R().gridGrain;
    Rows(grain, 3);
    Paste(grain, {1, 1, 3, 2}, "7");
    EXPECT_EQ(Cells(grain, {1, 1, 3, 2}), "7\t7\r7\t7\r7\t7\r");
    EXPECT_EQ(grain.Text(4, 1), "21 lbs.");
}

TEST_F(ClipboardTest, OneRowGrowsToTheHeightOfTheBlock) {
    Grid& adjuncts = R().gridAdjuncts;
    Rows(adjuncts, 4);
    Paste(adjuncts, {2, 1, 2, 2}, "a\tb\rc\td\r");
    EXPECT_EQ(Cells(adjuncts, {1, 0, 4, 3}), "\t\t\t\r\ta\tb\t\r\tc\td\t\r\t\t\t\r");
    // The grid has no row below this one.
    Paste(adjuncts, {4, 0, 4, 0}, "x\ry\r");
    EXPECT_THAT(Boxes(), ElementsAre(kMisfit));
    host.pasteMismatchSize = true;
    document->Edit().Paste();
    EXPECT_EQ(adjuncts.Text(4, 0), "x");
    EXPECT_EQ(adjuncts.DataRows(), 4);
}

TEST_F(ClipboardTest, OneColumnGrowsToTheWidthOfTheBlock) {
    Grid& adjuncts = R().gridAdjuncts;
    Rows(adjuncts, 2);
    Paste(adjuncts, {1, 1, 2, 1}, "a\tb\rc\td\r");
    EXPECT_EQ(Cells(adjuncts, {1, 0, 2, 3}), "\ta\tb\t\r\tc\td\t\r");
    Paste(adjuncts, {1, 3, 1, 3}, "x\ty\r");
    EXPECT_THAT(Boxes(), ElementsAre(kMisfit));
}

TEST_F(ClipboardTest, AReadOnlyColumnUsesUpAColumnOfTheBlock) {
    Grid& grain = R().gridGrain;
    Paste(grain, {1, 2, 1, 2}, "30\theavy\t4\r");
    EXPECT_EQ(grain.Text(1, GrainCol::Ppg), "30");
    EXPECT_EQ(grain.Text(1, GrainCol::Points), "");
    EXPECT_EQ(grain.Text(1, GrainCol::Color), "4");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ClipboardTest, ATotalsRowUsesUpARowOfTheBlock) {
    Grid& grain = R().gridGrain;
    Paste(grain, {1, 1, 1, 1}, "8\rheavy\r");
    EXPECT_EQ(grain.Text(1, GrainCol::Amount), "8");
    EXPECT_EQ(grain.Text(2, GrainCol::Amount), "8 lbs.");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ClipboardTest, CheckBoxesTravelAsYesAndNo) {
    Grid& hops = R().gridHops;
    Rows(hops, 4);
    document->Cells().SetChecked(hops, 1, HopCol::Sock, false);
    EXPECT_EQ(CopyOf(hops, {1, HopCol::Sock, 2, HopCol::Sock}), "No\rYes\r");
    document->Cells().SetChecked(hops, 4, HopCol::Sock, false);
    Select(hops, {3, HopCol::Sock, 4, HopCol::Sock});
    document->Edit().Paste();
    EXPECT_FALSE(hops.Checked(3, HopCol::Sock));
    EXPECT_TRUE(hops.Checked(4, HopCol::Sock));
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_TRUE(hops.Checked(3, HopCol::Sock));
    EXPECT_FALSE(hops.Checked(4, HopCol::Sock));
}

TEST_F(ClipboardTest, ACheckBoxTakesYesAndOneAndSkipsAnEmptyValue) {
    Grid& hops = R().gridHops;
    Rows(hops, 6);
    Paste(hops, {1, HopCol::Sock, 6, HopCol::Sock}, "\rNo\r1\ryes\r0\r1.0\r");
    const bool checked[] = {true, false, true, false, false, true};
    for (int row = 1; row <= 6; ++row) EXPECT_EQ(hops.Checked(row, HopCol::Sock), checked[row - 1]) << row;
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ClipboardTest, LinesOfOtherProgramsPaste) {
    Grid& grain = R().gridGrain;
    Rows(grain, 3);
    Paste(grain, {1, 0, 1, 0}, "Rye\t1\r\nOats\t2\r\n");
    EXPECT_EQ(Cells(grain, {1, 0, 3, 1}), "Rye\t1\rOats\t2\r\t\r");
}

TEST_F(ClipboardTest, CataloguePastesLookTheirNamesUpAndLaterCellsWin) {
    Grid& grain = R().gridGrain;
    Paste(grain, {1, 0, 1, 0}, "O'Brien's\t8\t31\r");
    EXPECT_EQ(grain.Text(1, GrainCol::Ppg), "31");
    EXPECT_EQ(grain.Text(1, GrainCol::Color), "60");
    const std::string after = State();
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(Cells(grain, {1, 0, 1, 5}), "\t\t\t\t\t\r");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(State(), after);
}

TEST_F(ClipboardTest, HeadersGoAlongWithWholeColumnsOnly) {
    Grid& log = R().gridLog;
    Rows(log, 1);
    Put(log, 1, 2, "麦芽 a\r\nb");
    EXPECT_EQ(CopyOf(log, {1, 0, 1, 2}), "\t\t麦芽 a\r\nb\r");
    host.copyHeaders = true;
    EXPECT_EQ(CopyOf(log, {1, 0, 1, 2}), "Date\tAction\tNotes\r\t\t麦芽 a\r\nb\r");
    EXPECT_EQ(CopyOf(log, {1, 1, 1, 2}), "\t麦芽 a\r\nb\r");
}

TEST_F(ClipboardTest, SelectAllTakesTheTotalsRowsToo) {
    Put(R().gridGrain, 1, GrainCol::Amount, "8");
    document->Focus().FocusOn(R().gridGrain);
    document->Edit().SelectAll();
    document->Edit().Copy();
    EXPECT_EQ(platform.clipboard.text, "\t8\t\t\t\t\rTotal\t8 lbs.\t\t\t\t\r");
    document->Edit().Clear();
    EXPECT_EQ(Cells(R().gridGrain, {1, 0, 2, 5}), "\t\t\t\t\t\rTotal\t\t\t\t\t\r");
}

TEST_F(ClipboardTest, AGridWithoutRowsTakesAndGivesNothing) {
    platform.clipboard.text = "x\ty\r";
    document->Focus().FocusOn(R().gridLog);
    document->Edit().SelectAll();
    document->Edit().Copy();
    document->Edit().Cut();
    document->Edit().Clear();
    document->Edit().Paste();
    EXPECT_EQ(platform.clipboard.text, "x\ty\r");
    EXPECT_EQ(Steps(), 0U);
    EXPECT_EQ(R().gridLog.Rows(), 1);
}

TEST_F(ClipboardTest, WithoutAControlNothingHappens) {
    platform.clipboard.text = "x";
    document->Focus().FocusElsewhere();
    document->Edit().SelectAll();
    document->Edit().Copy();
    document->Edit().Cut();
    document->Edit().Clear();
    document->Edit().Paste();
    EXPECT_EQ(platform.clipboard.text, "x");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(ClipboardTest, AnEmptyClipboardPastesNothing) {
    document->Focus().FocusOn(R().gridGrain);
    document->Edit().Paste();
    document->Focus().FocusOn(R().txtName);
    document->Edit().Paste();
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(ClipboardTest, OneInvalidEntryLeavesEverythingAsItWas) {
    Grid& grain = R().gridGrain;
    Rows(grain, 2);
    Put(grain, 1, GrainCol::Amount, "8");
    const std::string before = State();
    const std::size_t steps = Steps();
    Paste(grain, {1, 1, 2, 2}, "1\t2\r3\tx\r");
    EXPECT_THAT(Boxes(), ElementsAre(kInvalid));
    EXPECT_EQ(State(), before);
    EXPECT_EQ(Steps(), steps);
}

// The points of that many pounds overflow. By then the name and the amount have been
// pasted; the yield comes last.
TEST_F(ClipboardTest, AFaultInTheMiddleTakesAllBack) {
    Set(R().txtTotalVol, "5");
    SaveAs("Stored");
    Set(R().txtNotes, "A");
    ASSERT_TRUE(document->Replay().Undo());
    const std::string before = State();
    platform.clipboard.text = "Rye\t" + std::string(308, '9') + "\t36\r";
    Select(R().gridExtract, {1, 0, 1, 0});
    EXPECT_THROW(document->Edit().Paste(), Error);
    EXPECT_EQ(State(), before);
    EXPECT_FALSE(document->History().CanUndo());
    // No step was recorded, so the step that could be redone still can be.
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().txtNotes.Text(), "A");
}

TEST_F(ClipboardTest, AFaultLeavesACleanDocumentClean) {
    Set(R().txtTotalVol, "5");
    SaveAs("Stored");
    platform.clipboard.text = std::string(308, '9') + "\t36\r";
    Select(R().gridExtract, {1, 1, 1, 1});
    EXPECT_THROW(document->Edit().Paste(), Error);
    EXPECT_FALSE(document->Changed());
    EXPECT_FALSE(host.IsOn("EnableSave"));
}

TEST_F(ClipboardTest, CutCellsComeBackInOneStep) {
    Grid& hops = R().gridHops;
    Rows(hops, 2);
    Put(hops, 1, HopCol::Variety, "Saaz");
    Put(hops, 1, HopCol::Amount, "1 oz");
    Put(hops, 2, HopCol::Time, "60");
    const std::string before = State();
    Select(hops, {1, 0, 2, HopCol::Ibu});
    document->Edit().Cut();
    EXPECT_EQ(platform.clipboard.text, "Saaz\t3.5\tPellet\tYes\t1 oz\tNo\t\t\r\t\tPellet\tYes\t\tNo\t60\t\r");
    EXPECT_EQ(Cells(hops, {1, 0, 2, 7}), "\t\t\t\t\t\t\t\r\t\t\t\t\t\t\t\r");
    // Check boxes are unchanged.
    EXPECT_TRUE(hops.Checked(1, HopCol::Sock));
    EXPECT_EQ(document->History().UndoType(), "Cut");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(State(), before);
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(hops.Text(1, HopCol::Variety), "");
}

TEST_F(ClipboardTest, ClearedCellsComeBackInOneStep) {
    Grid& grain = R().gridGrain;
    Put(grain, 1, GrainCol::Amount, "8");
    Put(grain, 1, GrainCol::Ppg, "36");
    const std::string before = State();
    Select(grain, {1, 0, 1, 5});
    document->Edit().Clear();
    EXPECT_EQ(document->History().UndoType(), "Delete");
    EXPECT_EQ(grain.Text(2, GrainCol::Amount), "");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(State(), before);
}

// Text boxes.

TEST_F(ClipboardTest, ATextBoxCutsAndPastesItsSelection) {
    Set(R().txtName, "Grüne Malztype");
    document->Focus().FocusOn(R().txtName);
    R().txtName.Select({2, 4});
    document->Edit().Copy();
    EXPECT_EQ(platform.clipboard.text, "üne ");
    document->Edit().Cut();
    EXPECT_EQ(R().txtName.Text(), "GrMalztype");
    EXPECT_EQ(R().txtName.Selection(), (TextSelection{2, 0}));
    EXPECT_EQ(document->History().UndoType(), "Cut");
    document->Edit().Paste();
    EXPECT_EQ(R().txtName.Text(), "Grüne Malztype");
    EXPECT_EQ(R().txtName.Selection(), (TextSelection{6, 0}));
    EXPECT_EQ(document->History().UndoType(), "Paste");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtName.Text(), "GrMalztype");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtName.Text(), "Grüne Malztype");
    EXPECT_EQ(R().txtName.Selection(), (TextSelection{2, 4}));
}

TEST_F(ClipboardTest, ACopyWithoutASelectionKeepsTheClipboard) {
    platform.clipboard.text = "x";
    Set(R().txtName, "A");
    document->Focus().FocusOn(R().txtName);
    R().txtName.Select({1, 0});
    document->Edit().Copy();
    EXPECT_EQ(platform.clipboard.text, "x");
}

TEST_F(ClipboardTest, AComputedBoxIsCopiedAndNothingElse) {
    Set(R().txtTotalVol, "5");
    Put(R().gridExtract, 1, GrainCol::Amount, "5");
    Put(R().gridExtract, 1, GrainCol::Ppg, "40");
    ASSERT_EQ(R().txtOG.Text(), "1.040");
    const std::size_t steps = Steps();
    document->Focus().FocusOn(R().txtOG);
    document->Edit().SelectAll();
    document->Edit().Copy();
    EXPECT_EQ(platform.clipboard.text, "1.040");
    document->Edit().Cut();
    document->Edit().Clear();
    document->Edit().Paste();
    EXPECT_EQ(R().txtOG.Text(), "1.040");
    EXPECT_EQ(Steps(), steps);
}

TEST_F(ClipboardTest, NotesKeepTheirLines) {
    document->Focus().FocusOn(R().txtNotes);
    platform.clipboard.text = "a\nb\rc\r\nd";
    document->Edit().Paste();
    EXPECT_EQ(R().txtNotes.Text(), "a\r\nb\r\nc\r\nd");
    document->Focus().FocusOn(R().txtName);
    document->Edit().Paste();
    EXPECT_EQ(R().txtName.Text(), "a b c d");
    ASSERT_TRUE(document->Replay().Undo());
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtNotes.Text(), "");
}

TEST_F(ClipboardTest, APastedEntryIsReadAsTheBoxIsLeft) {
    document->Focus().FocusOn(R().txtBoilVol);
    platform.clipboard.text = "6 gal";
    document->Edit().Paste();
    EXPECT_EQ(R().txtBoilVol.Committed(), "");
    document->Focus().FocusOn(R().gridGrain);
    EXPECT_EQ(R().txtBoilVol.Value(), 6);
    platform.clipboard.text = "much";
    document->Focus().FocusOn(R().txtBoilVol);
    document->Edit().SelectAll();
    document->Edit().Paste();
    document->Focus().FocusOn(R().gridGrain);
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] Please enter a valid volume"));
    EXPECT_EQ(R().txtBoilVol.Text(), "6 gal");
    EXPECT_EQ(document->History().UndoType(), "Abort");
}

}  // namespace
}  // namespace tw::test

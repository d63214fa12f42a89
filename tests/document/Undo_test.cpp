// Tests that undoing a step restores exactly the state before it, and redoing it the state after it.
#include "DocumentTest.h"
#include "document/RecipeSnapshot.h"

namespace tw::test {
namespace {

class UndoTest : public DocumentTest {
  protected:
    // Returns what the brewer sees of the recipe: every text, check mark and number.
    std::string State() const {
        std::string state;
        const RecipeRecord& r = document->Record();
        for (const TextBox* box : r.TextBoxes()) state += box->Name() + "=" + box->Text() + "\n";
        state += r.cmbStyle.Text() + r.grpIBUMethod.Value() + r.grpPkgMethod.Value() + "\n";
        for (const Grid* grid : r.Grids())
            for (int row = 1; row < grid->Rows(); ++row) {
                for (int col = 0; col < grid->Cols(); ++col)
                    state += grid->Text(row, col) + "|" + grid->At(row, col).value.Text() +
                             (grid->Checked(row, col) ? "x" : "") + "\t";
                state += "\n";
            }
        return state;
    }

    // Undoes and redoes the step, comparing the states before and after it.
    void ExpectOneStep(const std::string& before) {
        const std::string after = State();
        ASSERT_NE(before, after);
        ASSERT_TRUE(document->Replay().Undo());
        EXPECT_EQ(State(), before);
        ASSERT_TRUE(document->Replay().Redo());
        EXPECT_EQ(State(), after);
    }
};

TEST_F(UndoTest, TypingInOneBoxFormsOneRecord) {
    New();
    document->Fields().SetText(R().txtName, "A");
    document->Fields().SetText(R().txtName, "Ab");
    EXPECT_EQ(document->History().StackTop(), 1U);
    EXPECT_EQ(document->History().UndoType(), "Typing");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().txtName.Text(), "");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(R().txtName.Text(), "Ab");
}

TEST_F(UndoTest, TypingBackToTheBeginningLeavesNoRecord) {
    New();
    document->Fields().SetText(R().txtName, "abc");
    document->Fields().SetText(R().txtName, "");
    EXPECT_EQ(document->History().StackTop(), 0U);
    EXPECT_FALSE(document->Replay().Undo());
}

TEST_F(UndoTest, AVolumeTakesItsFiguresBackAndForth) {
    New();
    Set(R().txtTotalVol, "5 gal");
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    const std::string before = State();
    Set(R().txtTotalVol, "6 gal");
    ExpectOneStep(before);
}

TEST_F(UndoTest, ANewEditDropsWhatCouldBeRedone) {
    New();
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_TRUE(document->History().CanRedo());
    Put(R().gridGrain, 1, GrainCol::Amount, "8");
    EXPECT_FALSE(document->History().CanRedo());
}

TEST_F(UndoTest, ADeletedRowComesBackInItsPlace) {
    New();
    Put(R().gridHops, 1, HopCol::Variety, "Home grown");
    Put(R().gridHops, 1, HopCol::Form, "Leaf");
    Put(R().gridHops, 1, HopCol::Amount, "5 AAU");
    document->Cells().SetChecked(R().gridHops, 1, HopCol::Sock, false);
    document->Cells().SetChecked(R().gridHops, 1, HopCol::DryHopped, true);
    Put(R().gridHops, 1, HopCol::Time, "5 days");
    document->Focus().SetCurrentCell(R().gridHops, 1, 0);
    document->Lines().InsertRowForGrid(R().gridHops);
    document->Focus().SetCurrentCell(R().gridHops, 2, 0);
    const std::string before = State();
    document->Lines().DeleteRowForGrid(R().gridHops);
    EXPECT_EQ(document->History().UndoType(), "Delete Row");
    ExpectOneStep(before);
}

TEST_F(UndoTest, AnInsertedRowGoesAndComesBack) {
    New();
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    const std::string before = State();
    document->Lines().InsertRowForGrid(R().gridGrain);
    EXPECT_EQ(document->History().UndoType(), "Insert Row");
    ExpectOneStep(before);
}

TEST_F(UndoTest, ASortThatMovesNothingRecordsNothing) {
    New();
    Put(R().gridGrain, 1, GrainCol::Name, "A");
    document->Lines().InsertRowForGrid(R().gridGrain);
    const std::size_t records = document->History().StackTop();
    // The blank row inserted before "A" is already the first one.
    document->Lines().ClickHeader(R().gridGrain, GrainCol::Name);
    EXPECT_EQ(document->History().StackTop(), records);
    const std::string before = State();
    document->Lines().ClickHeader(R().gridGrain, GrainCol::Name);
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Name), "A");
    ExpectOneStep(before);
}

TEST_F(UndoTest, AnOptionGoesBack) {
    New();
    const std::string before = State();
    document->Options().Choose("optRager");
    ExpectOneStep(before);
}

TEST_F(UndoTest, AfterASaveNothingCanBeUndone) {
    New();
    Put(R().gridGrain, 1, GrainCol::Amount, "10");
    SaveAs("A");
    EXPECT_FALSE(document->History().CanUndo());
    EXPECT_FALSE(document->Replay().Undo());
}

TEST_F(UndoTest, AFaultRecordsNothing) {
    New();
    EXPECT_THROW(Put(R().gridGrain, 1, GrainCol::Amount, "1/0"), Error);
    EXPECT_FALSE(document->History().CanUndo());
}

}  // namespace
}  // namespace tw::test

// Tests of the row that is offered for typing behind the last one.
#include "DocumentTest.h"

namespace tw::test {
namespace {

class OfferedRowsTest : public DocumentTest {
  protected:
    OfferedRowsTest() {
        New();
        Put(R().gridGrain, 1, GrainCol::Name, "Pale Malt");
        Put(R().gridGrain, 1, GrainCol::Amount, "8 lb");
        document->Storage().SaveUnder("Bitter", 0, Asking::Quietly);
    }
    std::size_t Steps() { return document->History().StackPosition(); }
};

TEST_F(OfferedRowsTest, AnOfferedRowIsCurrentAndNoEdit) {
    const std::size_t before = Steps();
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    EXPECT_EQ(R().gridGrain.CurrentRow(), 2);
    EXPECT_EQ(R().gridGrain.CurrentCol(), 0);
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(Steps(), before);
    document->Lines().WithdrawRow();
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    EXPECT_EQ(R().gridGrain.CurrentRow(), 1);
    EXPECT_FALSE(document->Changed());
}

TEST_F(OfferedRowsTest, TheFirstEntryMakesItOneStep) {
    const std::size_t before = Steps();
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    ASSERT_TRUE(Put(R().gridGrain, 2, GrainCol::Name, "O'Brien's"));
    EXPECT_EQ(document->Lines().Offered(), nullptr);
    EXPECT_EQ(Steps(), before + 1);
    EXPECT_EQ(document->History().UndoType(), "Insert Row");
    EXPECT_TRUE(document->Changed());
    document->Lines().WithdrawRow();
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    ASSERT_TRUE(document->Replay().Redo());
    ASSERT_EQ(R().gridGrain.DataRows(), 2);
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Name), "O'Brien's");
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Ppg), "30");
}

TEST_F(OfferedRowsTest, ARefusedEntryLeavesItOffered) {
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    EXPECT_FALSE(Put(R().gridGrain, 2, GrainCol::Amount, "much"));
    EXPECT_EQ(document->Lines().Offered(), &R().gridGrain);
}

TEST_F(OfferedRowsTest, ABlankLastRowIsOfferedAlready) {
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    EXPECT_FALSE(document->Lines().OfferRow(R().gridGrain));
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    // The form of a new row of hops is no entry.
    EXPECT_FALSE(document->Lines().OfferRow(R().gridHops));
    EXPECT_FALSE(document->Lines().OfferRow(R().gridWater));
}

TEST_F(OfferedRowsTest, OnlyOneRowIsOffered) {
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    ASSERT_TRUE(document->Lines().OfferRow(R().gridLog));
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    EXPECT_EQ(R().gridLog.DataRows(), 1);
}

TEST_F(OfferedRowsTest, ASaveAndASnapshotDoNotSeeIt) {
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    const RecipeSnapshot snapshot = document->Storage().TakeSnapshot();
    EXPECT_EQ(snapshot.grids[0].rows.size(), 2U);  // the malt and the total
    ASSERT_TRUE(document->Storage().Save(SaveAs::No, Asking::Aloud));
    EXPECT_EQ(Count("RECIPE_GRAINS WHERE GRAIN"), 1);
    // The brewer can go on typing.
    EXPECT_EQ(document->Lines().Offered(), &R().gridGrain);
    EXPECT_EQ(R().gridGrain.CurrentRow(), 2);
}

TEST_F(OfferedRowsTest, InsertingKeepsItAndDeletingWithdrawsIt) {
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    const std::size_t before = Steps();
    document->Lines().InsertRowForGrid(R().gridGrain);
    EXPECT_EQ(R().gridGrain.DataRows(), 2);
    EXPECT_EQ(Steps(), before + 1);
    EXPECT_TRUE(document->Changed());
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    document->Lines().DeleteRowForGrid(R().gridGrain);
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    EXPECT_EQ(Steps(), before);
}

TEST_F(OfferedRowsTest, AnUndoTakesBackTheStepBeforeIt) {
    Put(R().gridGrain, 1, GrainCol::Amount, "9 lb");
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Amount), "8 lb");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Name), "Pale Malt");
}

TEST_F(OfferedRowsTest, APasteOfSeveralRowsIntoItIsOneStep) {
    const std::size_t before = Steps();
    ASSERT_TRUE(document->Lines().OfferRow(R().gridGrain));
    document->Focus().FocusOn(R().gridGrain);
    platform.clipboard.text = "O'Brien's\r\n";
    document->Edit().Paste();
    EXPECT_EQ(R().gridGrain.Text(2, GrainCol::Name), "O'Brien's");
    EXPECT_EQ(Steps(), before + 1);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
}

}  // namespace
}  // namespace tw::test

#include "document/PitchedYeast.h"

#include <gmock/gmock.h>

#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PitchedYeastTest : public DocumentTest {
  protected:
    void SetUp() override { New(); }
    void Brew() {
        Set(R().txtTotalVol, "5");
        Put(R().gridExtract, 1, GrainCol::Name, "Syrup");
        Put(R().gridExtract, 1, GrainCol::Amount, "7 lb");
    }
    void Choose(const std::string& yeast) {
        host.picks = yeast;
        document->Picks().BrowseYeast();
    }
    // Returns the finished gravity of the same recipe with the yeast typed into the log.
    std::string TypedGravity(const char* yeast) {
        New();
        Brew();
        document->Lines().InsertRowForGrid(R().gridLog);
        Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
        Put(R().gridLog, 1, LogCol::Notes, yeast);
        return R().txtFG.Text();
    }
};

TEST_F(PitchedYeastTest, ChoosingWritesTheRowOfTheLogInOneStep) {
    const std::string gravity = TypedGravity("Ale");
    ASSERT_NE(gravity, "");
    New();
    Brew();
    EXPECT_EQ(document->Yeast().Name(), "");
    const std::size_t before = document->History().StackPosition();
    Choose("Ale - clean and quick");
    EXPECT_EQ(document->Yeast().Name(), "Ale");
    ASSERT_EQ(R().gridLog.DataRows(), 1);
    EXPECT_EQ(R().gridLog.Text(1, LogCol::Action), "Pitched Yeast");
    EXPECT_EQ(R().gridLog.Text(1, LogCol::Notes), "Ale - clean and quick");
    EXPECT_EQ(R().txtFG.Text(), gravity);
    EXPECT_EQ(document->History().StackPosition(), before + 1);
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(R().gridLog.DataRows(), 0);
    EXPECT_EQ(R().txtFG.Text(), "");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(document->Yeast().Name(), "Ale");
    EXPECT_EQ(R().txtFG.Text(), gravity);
}

TEST_F(PitchedYeastTest, ChoosingAnotherEditsTheLastRowThatPitchesOne) {
    Brew();
    for (const char* action : {"Pitched Yeast", "pitched yeast", "Racked"}) {
        document->Lines().AppendRow(R().gridLog);
        Put(R().gridLog, R().gridLog.EndOfData() - 1, LogCol::Action, action);
    }
    Put(R().gridLog, 2, LogCol::Notes, "Ale");
    document->Focus().SetCurrentCell(R().gridLog, 3, LogCol::Notes);
    Choose("Cook's");
    EXPECT_THAT(host.log, testing::Contains("Pick 4 'Ale'"));
    EXPECT_EQ(R().gridLog.DataRows(), 3);
    EXPECT_EQ(R().gridLog.Text(1, LogCol::Notes), "");
    EXPECT_EQ(R().gridLog.Text(2, LogCol::Notes), "Cook's");
    EXPECT_EQ(R().gridLog.Text(3, LogCol::Notes), "");
}

// Pitched before the malts were entered, it gave no gravity.
TEST_F(PitchedYeastTest, ChoosingTheSameAgainCalculatesTheGravity) {
    const std::string gravity = TypedGravity("Ale");
    New();
    Choose("Ale");
    EXPECT_EQ(R().txtFG.Text(), "");
    Brew();
    EXPECT_THAT(document->Missing().ReasonsOf(FieldId::FG),
                ElementsAre("The finished gravity is missing: enter it, or choose the yeast again"));
    Choose("Ale");
    EXPECT_EQ(R().txtFG.Text(), gravity);
    EXPECT_THAT(document->Missing().ReasonsOf(FieldId::FG), IsEmpty());
}

TEST_F(PitchedYeastTest, ACancelledChoiceChangesNothing) {
    Choose("");
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(R().gridLog.DataRows(), 0);
    // A yeast chosen for a cell of the log still goes there.
    document->Lines().AppendRow(R().gridLog);
    Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
    document->Lines().AppendRow(R().gridLog);
    Put(R().gridLog, 2, LogCol::Action, "Pitched Yeast");
    document->Focus().SetCurrentCell(R().gridLog, 1, LogCol::Notes);
    document->Picks().Take(CatalogueKind::Yeast, "Ale");
    EXPECT_EQ(R().gridLog.Text(1, LogCol::Notes), "Ale");
}

}  // namespace
}  // namespace tw::test

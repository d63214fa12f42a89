#include "document/MissingFigures.h"

#include <gmock/gmock.h>

#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MissingFiguresTest : public DocumentTest {
  protected:
    void SetUp() override { New(); }
    std::string Reason(const Grid& grid, int row = 1) { return document->Missing().ReasonOf(grid, row); }
    std::vector<std::string> Reasons(FieldId figure) { return document->Missing().ReasonsOf(figure); }
};

TEST_F(MissingFiguresTest, ANameThatTheCatalogueKnowsLacksNothing) {
    Put(R().gridGrain, 1, GrainCol::Name, "pale malt");
    EXPECT_EQ(Reason(R().gridGrain), "");
    EXPECT_FALSE(document->Missing().DraftOf(R().gridGrain, 1));
    EXPECT_THAT(Reasons(FieldId::OG), IsEmpty());
}

TEST_F(MissingFiguresTest, AnUnknownMaltGivesNoGravityUntilItsPpgIsEntered) {
    Put(R().gridGrain, 1, GrainCol::Name, "Hull Malt");
    EXPECT_EQ(Reason(R().gridGrain), "Not in the catalogue: gives no gravity until you enter its PPG");
    EXPECT_TRUE(document->Missing().DraftOf(R().gridGrain, 1));
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    EXPECT_EQ(Reason(R().gridGrain),
              "Not in the catalogue: gives no color until you enter its degrees Lovibond");
    Put(R().gridGrain, 1, GrainCol::Color, "3");
    EXPECT_EQ(Reason(R().gridGrain), "");
    // It can still be added to the catalogue.
    EXPECT_TRUE(document->Missing().DraftOf(R().gridGrain, 1));
}

TEST_F(MissingFiguresTest, AMaltWithoutAFigureInTheCatalogueSaysSo) {
    Put(R().gridGrain, 1, GrainCol::Name, "Half Known");
    EXPECT_EQ(Reason(R().gridGrain), "No figure in the catalogue: gives no gravity until you enter its PPG");
}

TEST_F(MissingFiguresTest, AFigureLacksRowsThatHaveAnAmount) {
    Put(R().gridExtract, 1, GrainCol::Name, "Hull Syrup");
    EXPECT_THAT(Reasons(FieldId::OG), IsEmpty());
    Put(R().gridExtract, 1, GrainCol::Amount, "2 lb");
    const std::string gravity = "Hull Syrup gives no gravity until you enter its PPG";
    EXPECT_THAT(Reasons(FieldId::OG), ElementsAre(gravity));
    EXPECT_THAT(Reasons(FieldId::ABV), ElementsAre(gravity));
    EXPECT_THAT(Reasons(FieldId::Color),
                ElementsAre("Hull Syrup gives no color until you enter its degrees Lovibond"));
    EXPECT_THAT(Reasons(FieldId::IBU), IsEmpty());
    Put(R().gridExtract, 1, GrainCol::Ppg, "36");
    EXPECT_THAT(Reasons(FieldId::OG), IsEmpty());
}

TEST_F(MissingFiguresTest, AHopNeedsItsAlphaAcidOnlyForAWeightInTheBoil) {
    Put(R().gridHops, 1, HopCol::Variety, "Hull Hop");
    Put(R().gridHops, 1, HopCol::Amount, "1 oz");
    EXPECT_EQ(Reason(R().gridHops),
              "Not in the catalogue: gives no bitterness until you enter its alpha acid");
    EXPECT_THAT(Reasons(FieldId::IBU),
                ElementsAre("Hull Hop gives no bitterness until you enter its alpha acid"));
    document->Cells().SetChecked(R().gridHops, 1, HopCol::DryHopped, true);
    EXPECT_EQ(Reason(R().gridHops), "");
    document->Cells().SetChecked(R().gridHops, 1, HopCol::DryHopped, false);
    Put(R().gridHops, 1, HopCol::Amount, "8 AAU");
    EXPECT_EQ(Reason(R().gridHops), "");
}

TEST_F(MissingFiguresTest, ASugarNeedsItsFermentablePart) {
    Put(R().gridPriming, 1, PrimingCol::Sugar, "Hull Sugar");
    Put(R().gridPriming, 1, PrimingCol::Amount, "4 oz");
    EXPECT_THAT(Reasons(FieldId::CO2),
                ElementsAre("Hull Sugar gives no carbonation until you enter how much of it ferments"));
}

TEST_F(MissingFiguresTest, AnUnknownYeastGivesNoFinishedGravity) {
    document->Lines().InsertRowForGrid(R().gridLog);
    Put(R().gridLog, 1, LogCol::Notes, "Hull Ale");
    EXPECT_EQ(Reason(R().gridLog), "");
    EXPECT_FALSE(document->Missing().DraftOf(R().gridLog, 1));
    Put(R().gridLog, 1, LogCol::Action, "Pitched Yeast");
    EXPECT_EQ(Reason(R().gridLog),
              "Not in the catalogue: gives no finished gravity; enter it on the General tab");
    EXPECT_TRUE(document->Missing().DraftOf(R().gridLog, 1));
    Set(R().txtFG, "1.012");
    EXPECT_EQ(Reason(R().gridLog), "");
}

TEST_F(MissingFiguresTest, ADraftHasTheNameAndTheFiguresEntered) {
    Put(R().gridGrain, 1, GrainCol::Name, " Hull Malt ");
    Put(R().gridGrain, 1, GrainCol::Ppg, "36");
    const auto malt = document->Missing().DraftOf(R().gridGrain, 1);
    ASSERT_TRUE(malt);
    EXPECT_EQ(malt->kind, CatalogueKind::Grain);
    EXPECT_EQ(malt->name, "Hull Malt");
    ASSERT_EQ(malt->figures.size(), 1U);
    EXPECT_EQ(malt->figures.front().column, "PPG");
    EXPECT_EQ(malt->figures.front().text, "36");
    Put(R().gridWater, WaterRow::Source, WaterCol::Profile, "Hull Spring");
    Put(R().gridWater, WaterRow::Source, WaterCol::FirstIon + 5, "12");
    const auto water = document->Missing().DraftOf(R().gridWater, WaterRow::Source);
    ASSERT_TRUE(water);
    EXPECT_EQ(water->kind, CatalogueKind::Water);
    EXPECT_EQ(water->figures.back().column, "SO4");
}

TEST_F(MissingFiguresTest, BlankRowsTotalsAndHeadersLackNothing) {
    for (const Grid* const grid : R().Grids())
        for (int row = 0; row < grid->Rows(); ++row) {
            EXPECT_EQ(Reason(*grid, row), "") << grid->Name() << row;
            EXPECT_FALSE(document->Missing().DraftOf(*grid, row)) << grid->Name() << row;
        }
}

}  // namespace
}  // namespace tw::test

// Tests of opening the catalogue from a style or a cell, and of taking over what is picked.
#include <gmock/gmock.h>

#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PickerTest : public DocumentTest {
  protected:
    PickerTest() { New(); }
    // Browses a cell and returns what the host was asked; "nothing" if there is no catalogue for the cell.
    std::string Browse(Grid& grid, int row, int col) {
        document->Focus().SetCurrentCell(grid, row, col);
        host.log.clear();
        const bool asked = document->Picks().BrowseCell(grid);
        const Log log = host.TakeLog();
        EXPECT_EQ(asked, !log.empty());
        return log.empty() ? "nothing" : log.front();
    }
};

TEST_F(PickerTest, ANameIsLookedForInTheCatalogueOfItsGrid) {
    RecipeRecord& r = R();
    document->Lines().InsertRowForGrid(r.gridTreatment);
    Put(r.gridGrain, 1, 0, " Pale Malt ");
    EXPECT_EQ(Browse(r.gridGrain, 1, GrainCol::Name), "Pick 1 'Pale Malt'");
    EXPECT_EQ(Browse(r.gridExtract, 1, GrainCol::Name), "Pick 2 ''");
    EXPECT_EQ(Browse(r.gridHops, 1, HopCol::Variety), "Pick 3 ''");
    EXPECT_EQ(Browse(r.gridWater, 1, WaterCol::Profile), "Pick 5 ''");
    EXPECT_EQ(Browse(r.gridWater, 2, WaterCol::Profile), "Pick 5 ''");
    EXPECT_EQ(Browse(r.gridTreatment, 1, TreatmentCol::Name), "Pick 6 ''");
    EXPECT_EQ(Browse(r.gridPriming, 1, PrimingCol::Sugar), "Pick 7 ''");
}

TEST_F(PickerTest, ACellWithoutACatalogueAsksNothing) {
    RecipeRecord& r = R();
    document->Lines().InsertRowForGrid(r.gridAdjuncts);
    EXPECT_EQ(Browse(r.gridGrain, 1, GrainCol::Ppg), "nothing");
    EXPECT_EQ(Browse(r.gridGrain, 2, GrainCol::Name), "nothing");
    EXPECT_EQ(Browse(r.gridWater, 1, 0), "nothing");
    EXPECT_EQ(Browse(r.gridWater, 3, WaterCol::Profile), "nothing");
    EXPECT_EQ(Browse(r.gridAdjuncts, 1, 0), "nothing");
    EXPECT_EQ(Browse(r.gridPressure, 1, 0), "nothing");
}

TEST_F(PickerTest, TheYeastOfAPitchedRowStandsBeforeItsDescription) {
    RecipeRecord& r = R();
    document->Lines().InsertRowForGrid(r.gridLog);
    Put(r.gridLog, 1, LogCol::Notes, "Ale Yeast - clean - and dry");
    EXPECT_EQ(Browse(r.gridLog, 1, LogCol::Notes), "nothing");
    Put(r.gridLog, 1, LogCol::Action, "pitched yeast");
    EXPECT_EQ(Browse(r.gridLog, 1, LogCol::Notes), "Pick 4 'Ale Yeast'");
    EXPECT_EQ(Browse(r.gridLog, 1, LogCol::Date), "nothing");
    Put(r.gridLog, 1, LogCol::Notes, " Ale Yeast   - clean");
    EXPECT_EQ(Browse(r.gridLog, 1, LogCol::Notes), "Pick 4 'Ale Yeast'");
}

TEST_F(PickerTest, SeveralSelectedCellsAskNothing) {
    document->Lines().InsertRowForGrid(R().gridGrain);
    document->Focus().SelectCells(R().gridGrain, {1, 0, 2, 0});
    host.log.clear();
    EXPECT_FALSE(document->Picks().BrowseCell(R().gridGrain));
    EXPECT_THAT(host.log, IsEmpty());
}

TEST_F(PickerTest, TheStyleIsLookedForByItsName) {
    document->Style().ChangeStyle("Stout");
    host.log.clear();
    document->Picks().BrowseStyles();
    EXPECT_THAT(host.log, ElementsAre("Pick 0 'Stout'"));
}

TEST_F(PickerTest, AChoiceGoesWhereItsListSays) {
    RecipeRecord& r = R();
    document->Lines().InsertRowForGrid(r.gridTreatment);
    document->Lines().InsertRowForGrid(r.gridLog);
    document->Focus().SetCurrentCell(r.gridWater, 2, WaterCol::Profile);
    const char* const names[kCatalogueKinds] = {"Stout", "grain", "extract", "hop",
                                                "yeast", "water", "salt",    "sugar"};
    for (int list = 0; list < kCatalogueKinds; ++list)
        document->Picks().Take(static_cast<CatalogueKind>(list), names[list]);
    EXPECT_EQ(document->BeerStyle(), "Stout");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Name), "grain");
    EXPECT_EQ(r.gridExtract.Text(1, GrainCol::Name), "extract");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Variety), "hop");
    EXPECT_EQ(r.gridLog.Text(1, LogCol::Notes), "yeast");
    EXPECT_EQ(r.gridWater.Text(2, WaterCol::Profile), "water");
    EXPECT_EQ(r.gridTreatment.Text(1, TreatmentCol::Name), "salt");
    EXPECT_EQ(r.gridPriming.Text(1, PrimingCol::Sugar), "sugar");
}

}  // namespace
}  // namespace tw::test

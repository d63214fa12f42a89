#include "record/Grid.h"

#include <gtest/gtest.h>

#include "record/RecipeRecord.h"

namespace tw {
namespace {

struct Recorder : RecordObserver {
    void CellChanged(const Grid& grid, int row, int col) override {
        log.push_back(std::to_string(row) + "," + std::to_string(col) + "=" + grid.Text(row, col));
    }
    void RowInserted(const Grid&, int row) override { log.emplace_back("in " + std::to_string(row)); }
    void RowRemoved(const Grid&, int row) override { log.emplace_back("out " + std::to_string(row)); }
    void CurrentCellChanged(const Grid& grid) override {
        log.emplace_back("at " + std::to_string(grid.CurrentRow()) + "," + std::to_string(grid.CurrentCol()));
    }
    std::vector<std::string> log;
};

TEST(RecipeRecord, LaysItsGridsOutAsTheTabsShowThem) {
    RecipeRecord r;
    const auto headers = [](const Grid& grid) {
        std::string all;
        for (int col = 0; col < grid.Cols(); ++col) all += grid.Text(0, col) + "|";
        return all;
    };
    EXPECT_EQ(headers(r.gridGrain), "Grain|Amount (lbs)|PPG|Points|Color (°L)|HCU|");
    EXPECT_EQ(headers(r.gridExtract), "Extract|Amount (lbs)|PPG|Points|Color (°L)|HCU|");
    EXPECT_EQ(headers(r.gridHops),
              "Hop Variety|AA%|Hop Form|Hop Socks?|Amount (oz)|Dry Hopped?|Time (min)|IBU|");
    EXPECT_EQ(headers(r.gridPriming), "Priming Sugar|Fermentable%|Amount (oz)|CO2 Volumes|");
    EXPECT_EQ(headers(r.gridPressure), "Keg Pressure (psi)|CO2 Volumes|");
    EXPECT_EQ(headers(r.gridAdjuncts), "Adjunct|Amount|When Added|Time|");
    EXPECT_EQ(headers(r.gridLog), "Date|Action|Notes|");
    const std::string ions =
        "Calcium (Ca)|Carbonate (CO3)|Chloride (Cl)|Magnesium (Mg)|Sodium (Na)|Sulfate (SO4)|";
    EXPECT_EQ(headers(r.gridWater), "|Water Profile|" + ions);
    EXPECT_EQ(headers(r.gridTreatment), "Treatment|Amount (grams)|" + ions);
}

TEST(RecipeRecord, LabelsTheFixedRows) {
    RecipeRecord r;
    for (const Grid* grid : {&r.gridGrain, &r.gridExtract, &r.gridHops}) {
        EXPECT_EQ(grid->Rows(), 2);
        EXPECT_EQ(grid->Text(1, 0), "Total");
        EXPECT_TRUE(grid->IsReadOnlyRow(1));
        EXPECT_EQ(grid->Paint(1, 0), CellPaint::Total);
    }
    EXPECT_EQ(r.gridPriming.Text(1, 0), "Residual");
    EXPECT_EQ(r.gridPriming.Text(2, 0), "Total");
    EXPECT_EQ(r.gridPriming.Paint(1, 0), CellPaint::ReadOnly);
    EXPECT_EQ(r.gridPriming.Paint(2, 0), CellPaint::Total);
    EXPECT_EQ(r.gridPressure.Rows(), 2);
    EXPECT_EQ(r.gridPressure.Paint(1, 1), CellPaint::ReadOnly);
    EXPECT_EQ(r.gridPressure.Paint(1, 0), CellPaint::Plain);
    ASSERT_EQ(r.gridWater.Rows(), 6);
    EXPECT_EQ(r.gridWater.Text(1, 0), "Source Water");
    EXPECT_EQ(r.gridWater.Text(2, 0), "Target Water");
    EXPECT_EQ(r.gridWater.Text(3, 0), "");
    EXPECT_EQ(r.gridWater.Text(4, 0), "Treatment Needed");
    EXPECT_EQ(r.gridWater.Text(5, 0), "Treatment Totals");
    for (int row = 3; row <= 5; ++row) EXPECT_TRUE(r.gridWater.IsReadOnlyRow(row));
    EXPECT_EQ(r.gridWater.Paint(4, 2), CellPaint::ReadOnly);
    EXPECT_EQ(r.gridWater.Paint(5, 2), CellPaint::Total);
    EXPECT_EQ(r.gridTreatment.Rows(), 1);
    EXPECT_EQ(r.gridAdjuncts.Rows(), 1);
    EXPECT_EQ(r.gridLog.Rows(), 1);
}

TEST(RecipeRecord, PaintsTheCalculatedCellsOfEveryDataRow) {
    RecipeRecord r;
    const auto painted = [](Grid& grid) {
        grid.InsertRow(Grid::FixedRows());
        grid.InsertRow(Grid::FixedRows());
        std::string cols;
        for (int col = 0; col < grid.Cols(); ++col) {
            EXPECT_EQ(grid.Paint(1, col), grid.Paint(2, col)) << grid.Name() << " " << col;
            if (grid.Paint(1, col) == CellPaint::ReadOnly) cols += std::to_string(col);
        }
        return cols;
    };
    EXPECT_EQ(painted(r.gridGrain), "35");
    EXPECT_EQ(painted(r.gridExtract), "35");
    EXPECT_EQ(painted(r.gridHops), "7");
    EXPECT_EQ(painted(r.gridTreatment), "234567");
    EXPECT_EQ(painted(r.gridPriming), "3");
    EXPECT_EQ(painted(r.gridAdjuncts), "");
    EXPECT_EQ(painted(r.gridLog), "");
    // The rows of the waters are entries, and their names are not figures.
    for (int col = 0; col < r.gridWater.Cols(); ++col)
        for (const int row : {WaterRow::Source, WaterRow::Target, WaterRow::Spacer})
            EXPECT_EQ(r.gridWater.Paint(row, col), CellPaint::Plain) << row << " " << col;
}

TEST(RecipeRecord, MarksTheComputedColumnsReadOnly) {
    RecipeRecord r;
    const auto readOnly = [](const Grid& grid) {
        std::string cols;
        for (int col = 0; col < grid.Cols(); ++col)
            if (grid.ColumnAt(col).readOnly) cols += std::to_string(col);
        return cols;
    };
    EXPECT_EQ(readOnly(r.gridGrain), "35");
    EXPECT_EQ(readOnly(r.gridExtract), "35");
    EXPECT_EQ(readOnly(r.gridHops), "7");
    EXPECT_EQ(readOnly(r.gridPriming), "3");
    EXPECT_EQ(readOnly(r.gridPressure), "1");
    EXPECT_EQ(readOnly(r.gridTreatment), "234567");
    EXPECT_EQ(readOnly(r.gridAdjuncts), "");
    EXPECT_EQ(readOnly(r.gridLog), "");
}

TEST(RecipeRecord, FindsItsControlsByName) {
    RecipeRecord r;
    EXPECT_EQ(r.FindTextBox("txtOG"), &r.txtOG);
    EXPECT_EQ(r.FindTextBox("gridGrain"), nullptr);
    EXPECT_EQ(r.FindGrid("gridPriming"), &r.gridPriming);
    EXPECT_EQ(r.FindGrid(""), nullptr);
    EXPECT_EQ(r.FindButton("cmdIBUDetails"), &r.cmdIBUDetails);
    EXPECT_EQ(r.FindLabel("lblCO2Style"), &r.lblCO2Style);
    EXPECT_EQ(r.FindOptionGroup("optGaretz"), &r.grpIBUMethod);
    EXPECT_EQ(r.FindOptionGroup("optKeg"), &r.grpPkgMethod);
    EXPECT_EQ(r.FindOptionGroup("optNone"), nullptr);
    EXPECT_EQ(r.TextBoxes().size(), 17u);
    EXPECT_EQ(r.Grids().size(), 9u);
}

TEST(Grid, ShowsComputedNumbersInTheirColumnsPattern) {
    RecipeRecord r;
    Grid& grain = r.gridGrain;
    grain.InsertRow(1);
    grain.SetComputed(1, GrainCol::Points, 23.04);
    EXPECT_EQ(grain.Text(1, GrainCol::Points), "23.04");
    EXPECT_EQ(grain.Shown(1, GrainCol::Points), "23.0");
    grain.SetComputed(1, GrainCol::Points, 0.25);
    EXPECT_EQ(grain.Shown(1, GrainCol::Points), ".3");
    EXPECT_EQ(grain.Shown(1, GrainCol::Hcu), "");
    EXPECT_EQ(grain.Shown(0, GrainCol::Hcu), "HCU");
    r.gridPressure.SetComputed(1, PressureCol::Volumes, 2.5);
    EXPECT_EQ(r.gridPressure.Shown(1, PressureCol::Volumes), "2.50");
}

TEST(Grid, HoldsAComputedNumberAsItsFullText) {
    RecipeRecord r;
    r.gridGrain.InsertRow(1);
    r.gridGrain.SetComputed(1, GrainCol::Points, 1.0 / 3);
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Points), "0.3333333333333333");
    EXPECT_EQ(r.gridGrain.Number(1, GrainCol::Points), 1.0 / 3);
    r.gridGrain.Clear(1, GrainCol::Points);
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Points), "");
    EXPECT_EQ(r.gridGrain.Number(1, GrainCol::Points), 0);
}

TEST(Grid, TellsItsObserverOfRealChangesOnly) {
    RecipeRecord r;
    Recorder recorder;
    r.SetObserver(&recorder);
    Grid& log = r.gridLog;
    log.InsertRow(1);
    log.SetText(1, 0, "x");
    log.SetText(1, 0, "x");
    log.SetComputed(1, 1, 2);
    log.SetComputed(1, 1, 2);
    log.Clear(1, 1);
    log.Clear(1, 1);
    log.SetBold(1, 0, false);
    log.SetCurrent(1, 2);
    log.SetCurrent(1, 2);
    log.RemoveRow(1);
    EXPECT_EQ(recorder.log, (std::vector<std::string>{"in 1", "at 1,0", "1,0=x", "1,1=2", "1,1=", "at 1,2",
                                                      "out 1", "at 0,2"}));
}

TEST(Grid, MovesRowsWithAllTheyHold) {
    RecipeRecord r;
    Grid& hops = r.gridHops;
    hops.InsertRow(1);
    hops.SetText(1, HopCol::Variety, "Saaz");
    hops.SetChecked(1, HopCol::Sock, true);
    hops.SetValue(1, HopCol::Amount, {CellValue::Kind::AlphaAcidUnits, 4});
    hops.InsertRow(1);
    EXPECT_EQ(hops.Text(1, HopCol::Variety), "");
    EXPECT_EQ(hops.At(1, HopCol::Sock).check, CheckState::Unchecked);
    EXPECT_EQ(hops.Text(2, HopCol::Variety), "Saaz");
    EXPECT_TRUE(hops.Checked(2, HopCol::Sock));
    EXPECT_EQ(hops.At(2, HopCol::Amount).value.Text(), "A4");
    EXPECT_EQ(hops.Text(3, 0), "Total");
    EXPECT_EQ(hops.DataRows(), 2);
    hops.RemoveRow(1);
    EXPECT_EQ(hops.Text(1, HopCol::Variety), "Saaz");
    EXPECT_EQ(hops.EndOfData(), 2);
}

TEST(Grid, ClipsTheCurrentCellToTheRowsBelowTheHeader) {
    RecipeRecord r;
    Grid& grain = r.gridGrain;
    grain.SetCurrent(0, -3);
    EXPECT_EQ(grain.CurrentRow(), 1);
    EXPECT_EQ(grain.CurrentCol(), 0);
    grain.SetCurrent(99, 99);
    EXPECT_EQ(grain.CurrentRow(), 1);
    EXPECT_EQ(grain.CurrentCol(), 5);
}

TEST(CellValue, SaysItsKindInItsText) {
    EXPECT_EQ(CellValue{}.Text(), "0");
    EXPECT_EQ(CellValue::Of(1.5).Text(), "1.5");
    EXPECT_EQ((CellValue{CellValue::Kind::AlphaAcidUnits, 4.25}.Text()), "A4.25");
    EXPECT_EQ((CellValue{CellValue::Kind::BitternessUnits, 20}.Text()), "I20");
}

}  // namespace
}  // namespace tw

#include "CalculatorTest.h"

namespace tw::test {

CalculatorTest::CalculatorTest() {
    for (Grid* grid : {&r.gridGrain, &r.gridExtract, &r.gridHops, &r.gridPriming}) grid->InsertRow(1);
    r.txtHopExtraction.SetValue(1);
}

void CalculatorTest::Fill(TextBox& box, std::string_view text, double value) {
    box.SetText(text);
    box.SetCommitted(text);
    box.SetValue(value);
}

void CalculatorTest::Put(Grid& grid, int row, int col, double value, std::string_view text) {
    grid.SetText(row, col, text);
    grid.SetValue(row, col, CellValue::Of(value));
}

void CalculatorTest::PutFermentable(Grid& grid, int row, double pounds, double ppg, double lovibond) {
    Put(grid, row, GrainCol::Amount, pounds);
    Put(grid, row, GrainCol::Ppg, ppg);
    Put(grid, row, GrainCol::Color, lovibond);
}

void CalculatorTest::MakeRecipe() {
    Fill(r.txtExtract, "40%", 40);
    Fill(r.txtBoilVol, "6", 6);
    Fill(r.txtTotalVol, "5", 5);
    PutFermentable(r.gridGrain, 1, 8, 36, 2);
    calculator.TotalVolCommitted();
}

void CalculatorTest::PutHop(int row, CellValue amount) {
    Put(r.gridHops, row, HopCol::AlphaAcid, 5);
    Put(r.gridHops, row, HopCol::Time, 60);
    r.gridHops.SetText(row, HopCol::Amount, "given");
    r.gridHops.SetValue(row, HopCol::Amount, amount);
}

}  // namespace tw::test

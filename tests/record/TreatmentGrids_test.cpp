// Tests of the two grids of the water tab.
#include "CalculatorTest.h"

namespace tw::test {
namespace {

class WaterCalculatorTest : public CalculatorTest {
  protected:
    void Salt(int row, double grams, double calcium) {
        r.gridTreatment.InsertRow(row);
        Put(r.gridTreatment, row, TreatmentCol::Amount, grams);
        for (int col = 2; col < 8; ++col) r.gridTreatment.SetValue(row, col, CellValue::Of(0));
        r.gridTreatment.SetValue(row, 2, CellValue::Of(calcium));
    }
    void Target(double ppm) {
        Put(r.gridWater, WaterRow::Target, 2, ppm);
        calculator.UpdateTreatmentNeeded();
    }
};

TEST_F(WaterCalculatorTest, SaltsAddToTheTotals) {
    MakeRecipe();
    Salt(1, 10, 61.5);
    Salt(2, 5, 72);
    calculator.RecalcTreatment();
    // 10 * 61.5 / 5 = 123, 5 * 72 / 5 = 72
    EXPECT_EQ(r.gridTreatment.Text(1, 2), "123");
    EXPECT_EQ(r.gridTreatment.Text(2, 2), "72");
    EXPECT_EQ(r.gridTreatment.Text(1, 3), "0");
    EXPECT_EQ(r.gridWater.Text(WaterRow::Totals, 2), "195");
    EXPECT_EQ(r.gridWater.Text(WaterRow::Totals, 3), "0");
    // The number of an ion cell is still the ppm that a gram of the salt adds to a gallon.
    EXPECT_EQ(r.gridTreatment.Number(1, 2), 61.5);
}

TEST_F(WaterCalculatorTest, WithoutAnAmountOrAVolumeARowIsBlank) {
    MakeRecipe();
    Salt(1, 10, 61.5);
    calculator.TreatmentCommitted(1);
    r.gridTreatment.SetText(1, TreatmentCol::Amount, "  ");
    calculator.TreatmentCommitted(1);
    EXPECT_EQ(r.gridTreatment.Text(1, 2), "");
    EXPECT_EQ(r.gridWater.Text(WaterRow::Totals, 2), "0");
    r.gridTreatment.SetText(1, TreatmentCol::Amount, "10");
    calculator.TreatmentCommitted(1);
    EXPECT_EQ(r.gridWater.Text(WaterRow::Totals, 2), "123");
    Fill(r.txtTotalVol, "", 0);
    calculator.TotalVolCommitted();
    EXPECT_EQ(r.gridTreatment.Text(1, 2), "");
    EXPECT_EQ(r.gridWater.Text(WaterRow::Totals, 2), "0");
}

TEST_F(WaterCalculatorTest, NeededIsTargetLessSource) {
    Put(r.gridWater, WaterRow::Source, 2, 80.126);
    Target(50);
    EXPECT_EQ(r.gridWater.Text(WaterRow::Needed, 2), "-30.13");  // -30.126 to two places
    EXPECT_EQ(r.gridWater.Number(WaterRow::Needed, 2), -30.13);
    EXPECT_EQ(r.gridWater.Text(WaterRow::Needed, 3), "0");
}

TEST_F(WaterCalculatorTest, BoldSaysCloseEnough) {
    MakeRecipe();
    Salt(1, 10, 50);
    calculator.RecalcTreatment();  // 100 PPM
    const auto bold = [&](double need) {
        Target(need);
        return r.gridWater.At(WaterRow::Totals, 2).bold;
    };
    EXPECT_TRUE(bold(100));
    EXPECT_TRUE(bold(102.5));
    EXPECT_TRUE(bold(97.5));
    // Even below 100 ppm: 3% of 97.09 is 2.9127, 3% of 97.08 is 2.9124.
    EXPECT_TRUE(bold(97.09));
    EXPECT_FALSE(bold(97.08));
    // 3% of 103.09 is 3.0927, 3% of 103.1 is 3.093.
    EXPECT_TRUE(bold(103.09));
    EXPECT_FALSE(bold(103.1));
    EXPECT_TRUE(r.gridWater.At(WaterRow::Totals, 3).bold);  // nothing needed, nothing added
}

TEST_F(WaterCalculatorTest, ExactlyTheLimitIsCloseEnoughForEveryNeed) {
    MakeRecipe();
    Salt(1, 1, 0);
    for (int hundreds = 100; hundreds <= 400; ++hundreds) {
        // 3% of a whole number of PPM is a whole number of hundredths, and 3% of 84 or more is above 2.5.
        const double need = hundreds;
        r.gridTreatment.SetValue(1, 2, CellValue::Of((100 * need - 3 * need) / 100 * 5));
        calculator.RecalcTreatment();
        Target(need);
        EXPECT_TRUE(r.gridWater.At(WaterRow::Totals, 2).bold) << need;
        // 2.5 below a need with one decimal, which 3% does not reach.
        const double small = hundreds / 10.0;
        r.gridTreatment.SetValue(1, 2, CellValue::Of((hundreds - 25) / 10.0 * 5));
        calculator.RecalcTreatment();
        Target(small);
        EXPECT_TRUE(r.gridWater.At(WaterRow::Totals, 2).bold) << small;
    }
}

}  // namespace
}  // namespace tw::test

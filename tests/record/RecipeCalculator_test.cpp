// Tests of the calculator: what each operation writes, and when a figure stays empty.
#include "CalculatorTest.h"
#include "platform/Error.h"

namespace tw::test {
namespace {

TEST_F(CalculatorTest, EightPoundsInFiveGallons) {
    MakeRecipe();
    // 8 * 36 * 0.4 / 5 = 23.04 points; OG 1.02304; BG = 1 + 0.02304 * 5 / 6 = 1.0192; HCU 8 * 2 / 5 = 3.2;
    // SRM 1.4922 * 3.2^0.6859 = 3.31
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Points), "23.04");
    EXPECT_EQ(r.gridGrain.Text(2, GrainCol::Points), "23.04");
    EXPECT_EQ(r.gridExtract.Text(2, GrainCol::Points), "");
    EXPECT_EQ(r.txtOG.Text(), "1.023");
    EXPECT_NEAR(r.txtOG.Value(), 1.02304, 1e-12);
    EXPECT_EQ(r.txtBG.Text(), "1.019");
    EXPECT_NEAR(r.txtBG.Value(), 1.0192, 1e-12);
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Hcu), "3.2");
    EXPECT_EQ(r.txtColor.Text(), "3 SRM (3 HCU)");
    EXPECT_TRUE(commands.resize);
    EXPECT_TRUE(commands.strength);
    EXPECT_FALSE(commands.bitterness);
    EXPECT_TRUE(r.cmdCalcTreatment.Enabled());
}

TEST_F(CalculatorTest, ExtractsTakeNoExtractionRate) {
    MakeRecipe();
    PutFermentable(r.gridExtract, 1, 5, 40, 10);
    calculator.FermentableCommitted(r.gridExtract, 1, GrainCol::Amount);
    // 5 * 40 / 5 = 40 points added to 23.04; 10 HCU added to 3.2: SRM 1.4922 * 13.2^0.6859 = 8.76
    EXPECT_EQ(r.gridExtract.Text(2, GrainCol::Points), "40");
    EXPECT_EQ(r.txtOG.Text(), "1.063");
    EXPECT_EQ(r.txtColor.Text(), "9 SRM (13 HCU)");
    EXPECT_EQ(r.gridExtract.Text(2, GrainCol::Amount), "5 lbs.");
}

TEST_F(CalculatorTest, AnEmptyExtractionBlanksGrainsAlone) {
    MakeRecipe();
    PutFermentable(r.gridExtract, 1, 5, 40, 10);
    calculator.FermentableCommitted(r.gridExtract, 1, GrainCol::Amount);
    Fill(r.txtExtract, "", 0);
    calculator.ExtractCommitted();
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Points), "");
    EXPECT_EQ(r.gridGrain.Text(2, GrainCol::Points), "");
    EXPECT_EQ(r.gridExtract.Text(1, GrainCol::Points), "40");
    EXPECT_EQ(r.txtOG.Text(), "1.040");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Hcu), "3.2");
}

// A row without an extraction rate does not update the total.
TEST_F(CalculatorTest, ARowWithoutExtractionLeavesTheTotalStale) {
    MakeRecipe();
    r.txtExtract.SetText("");
    calculator.CalcPoints(r.gridGrain, 1, true, false);
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Points), "");
    EXPECT_EQ(r.gridGrain.Text(2, GrainCol::Points), "23.04");
}

TEST_F(CalculatorTest, ClearingTheTotalVolumeEmptiesWhatDependsOnIt) {
    MakeRecipe();
    PutHop(1, CellValue::Of(1));
    calculator.HopCommitted(1);
    ASSERT_NE(r.txtIBU.Text(), "");
    Fill(r.txtFG, "1.010", 1.010);
    calculator.FGCommitted();
    ASSERT_TRUE(r.cmdStrengthDetails.Enabled());
    Fill(r.txtTotalVol, "", 0);
    calculator.TotalVolCommitted();
    for (const TextBox* box : {&r.txtOG, &r.txtBG, &r.txtABV, &r.txtColor, &r.txtIBU})
        EXPECT_EQ(box->Text(), "");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Points), "");
    EXPECT_EQ(r.gridGrain.Text(1, GrainCol::Hcu), "");
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "");
    // The numbers in the record keep their last values.
    EXPECT_NEAR(r.txtOG.Value(), 1.02304, 1e-12);
    EXPECT_NEAR(r.txtBG.Value(), 1.0192, 1e-12);
    EXPECT_EQ(r.Swatch(), (Rgb{255, 255, 255}));
    EXPECT_FALSE(commands.resize || commands.strength || commands.bitterness);
    EXPECT_FALSE(r.cmdCalcTreatment.Enabled() || r.cmdStrengthDetails.Enabled() ||
                 r.cmdFinalVolDetails.Enabled() || r.cmdIBUDetails.Enabled());
}

TEST_F(CalculatorTest, ABoilVolumeBelowTheTotalRaisesTheBoilGravity) {
    MakeRecipe();
    Fill(r.txtBoilVol, "2.5", 2.5);
    calculator.BoilVolCommitted();
    // 1 + 0.02304 * 5 / 2.5
    EXPECT_NEAR(r.txtBG.Value(), 1.04608, 1e-12);
    EXPECT_EQ(r.txtBG.Text(), "1.046");
}

TEST_F(CalculatorTest, AlcoholNeedsBothGravities) {
    MakeRecipe();
    EXPECT_EQ(r.txtABV.Text(), "");
    Fill(r.txtOG, "1.050", 1.050);
    Fill(r.txtFG, "1.010", 1.010);
    calculator.FGCommitted();
    EXPECT_EQ(r.txtABV.Text(), "5.2% abv");
    Fill(r.txtFG, "1.060", 1.060);
    calculator.FGCommitted();
    EXPECT_EQ(r.txtABV.Text()[0], '-');
}

TEST_F(CalculatorTest, PpgMovesTheGravityAndNotTheColour) {
    MakeRecipe();
    r.txtColor.SetText("stale");
    Put(r.gridGrain, 1, GrainCol::Ppg, 18);
    calculator.FermentableCommitted(r.gridGrain, 1, GrainCol::Ppg);
    EXPECT_EQ(r.txtOG.Text(), "1.012");
    EXPECT_EQ(r.txtColor.Text(), "stale");
}

TEST_F(CalculatorTest, ColourMovesTheColourAndNotTheGravity) {
    MakeRecipe();
    r.txtOG.SetText("stale");
    Put(r.gridGrain, 1, GrainCol::Color, 75);
    calculator.FermentableCommitted(r.gridGrain, 1, GrainCol::Color);
    // 8 * 75 / 5 = 120 HCU: 1.4922 * 120^0.6859 = 39.8
    EXPECT_EQ(r.txtColor.Text(), "40 SRM (120 HCU)");
    EXPECT_EQ(r.txtOG.Text(), "stale");
}

TEST_F(CalculatorTest, ColourAboveFiftySrmIsNotPrinted) {
    MakeRecipe();
    // 8 * 187.5 / 5 = 300 HCU
    Put(r.gridGrain, 1, GrainCol::Color, 187.5);
    calculator.FermentableCommitted(r.gridGrain, 1, GrainCol::Color);
    EXPECT_EQ(r.txtColor.Text(), ">50 SRM (300 HCU)");
    EXPECT_EQ(r.Swatch(), (Rgb{0, 0, 0}));
    // 167 HCU are 49.933 SRM, 168 HCU 50.138.
    Put(r.gridGrain, 1, GrainCol::Color, 167 * 5 / 8.0);
    calculator.FermentableCommitted(r.gridGrain, 1, GrainCol::Color);
    EXPECT_EQ(r.txtColor.Text(), "50 SRM (167 HCU)");
    Put(r.gridGrain, 1, GrainCol::Color, 168 * 5 / 8.0);
    calculator.FermentableCommitted(r.gridGrain, 1, GrainCol::Color);
    EXPECT_EQ(r.txtColor.Text(), ">50 SRM (168 HCU)");
}

TEST_F(CalculatorTest, ARowWithoutColourAddsNone) {
    MakeRecipe();
    r.gridGrain.InsertRow(2);
    Put(r.gridGrain, 2, GrainCol::Amount, 4);
    calculator.FermentableCommitted(r.gridGrain, 2, GrainCol::Amount);
    EXPECT_EQ(r.gridGrain.Text(2, GrainCol::Hcu), "");
    EXPECT_EQ(r.gridGrain.Text(3, GrainCol::Hcu), "3.2");
    EXPECT_EQ(r.txtColor.Text(), "3 SRM (3 HCU)");
    EXPECT_EQ(r.gridGrain.Text(3, GrainCol::Amount), "12 lbs.");
}

TEST_F(CalculatorTest, ColourZeroIsAColour) {
    MakeRecipe();
    Put(r.gridGrain, 1, GrainCol::Color, 0);
    calculator.FermentableCommitted(r.gridGrain, 1, GrainCol::Color);
    EXPECT_EQ(r.txtColor.Text(), "0 SRM (0 HCU)");
    EXPECT_EQ(r.Swatch(), (Rgb{255, 255, 255}));
}

class HopCalculatorTest : public CalculatorTest {
  protected:
    HopCalculatorTest() {
        MakeRecipe();
        Fill(r.txtBG, "1.050", 1.050);
    }
    double Ibu(int row) const { return r.gridHops.Number(row, HopCol::Ibu); }
};

TEST_F(HopCalculatorTest, WeightUsesItsAlphaAcid) {
    PutHop(1, CellValue::Of(1));
    calculator.HopCommitted(1);
    EXPECT_NEAR(Ibu(1), 19.8682503, 1e-6);
    EXPECT_EQ(r.txtIBU.Text(), "20");
    EXPECT_TRUE(r.cmdIBUDetails.Enabled());
    EXPECT_TRUE(commands.bitterness);
    r.gridHops.SetText(1, HopCol::AlphaAcid, "");
    calculator.HopCommitted(1);
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "");
    EXPECT_EQ(r.txtIBU.Text(), "");
    EXPECT_FALSE(r.cmdIBUDetails.Enabled());
    EXPECT_FALSE(commands.bitterness);
}

TEST_F(HopCalculatorTest, FormAndSockAreFactors) {
    PutHop(1, CellValue::Of(1));
    calculator.HopCommitted(1);
    const double pellet = Ibu(1);
    r.gridHops.SetValue(1, HopCol::Form, CellValue::Of(2));
    calculator.HopCommitted(1);
    EXPECT_NEAR(Ibu(1), pellet / 1.15, 1e-9);
    r.gridHops.SetChecked(1, HopCol::Sock, true);
    calculator.HopCommitted(1);
    EXPECT_NEAR(Ibu(1), pellet / 1.15 * 0.9, 1e-9);
    r.gridHops.SetValue(1, HopCol::Form, CellValue::Of(0));
    calculator.HopCommitted(1);
    EXPECT_NEAR(Ibu(1), pellet * 0.9, 1e-9);
    r.gridHops.SetChecked(1, HopCol::Sock, false);
    r.gridHops.SetValue(1, HopCol::Form, CellValue::Of(1));
    calculator.HopCommitted(1);
    EXPECT_NEAR(Ibu(1), pellet / 1.15 * 1.1, 1e-9);
}

TEST_F(HopCalculatorTest, AlphaAcidUnitsNeedNoAlphaAcid) {
    PutHop(1, {CellValue::Kind::AlphaAcidUnits, 5});
    r.gridHops.SetText(1, HopCol::AlphaAcid, "");
    calculator.HopCommitted(1);
    EXPECT_NEAR(Ibu(1), 19.8682503, 1e-6);
    r.gridHops.SetText(1, HopCol::Time, "");
    calculator.HopCommitted(1);
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "");
}

TEST_F(HopCalculatorTest, BitternessUnitsStandForThemselves) {
    PutHop(1, {CellValue::Kind::BitternessUnits, 31.5});
    r.gridHops.SetText(1, HopCol::AlphaAcid, "");
    r.gridHops.SetText(1, HopCol::Time, "");
    calculator.HopCommitted(1);
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "31.5");
    EXPECT_EQ(r.txtIBU.Text(), "32");
    EXPECT_EQ(r.txtIBU.Value(), 31.5);
    Fill(r.txtTotalVol, "10", 10);
    calculator.RecalcHops();
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "31.5");
}

// Without a boil gravity, even a row in IBUs is blank.
TEST_F(HopCalculatorTest, WithoutABoilGravityEveryRowIsBlank) {
    r.gridHops.InsertRow(2);
    r.gridHops.InsertRow(3);
    PutHop(1, CellValue::Of(1));
    PutHop(2, {CellValue::Kind::AlphaAcidUnits, 5});
    PutHop(3, {CellValue::Kind::BitternessUnits, 20});
    calculator.RecalcHops();
    ASSERT_NE(r.txtIBU.Text(), "");
    Fill(r.txtBoilVol, "", 0);
    calculator.BoilVolCommitted();
    for (int row = 1; row <= 4; ++row) EXPECT_EQ(r.gridHops.Text(row, HopCol::Ibu), "") << row;
    EXPECT_EQ(r.txtIBU.Text(), "");
}

TEST_F(HopCalculatorTest, DryHopsGiveNothing) {
    PutHop(1, {CellValue::Kind::BitternessUnits, 20});
    r.gridHops.SetChecked(1, HopCol::DryHopped, true);
    calculator.HopCommitted(1);
    EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "");
}

TEST_F(HopCalculatorTest, NoTimeIsZeroAndNotEmpty) {
    PutHop(1, CellValue::Of(1));
    Put(r.gridHops, 1, HopCol::Time, 0);
    for (int method = 0; method < 3; ++method) {
        r.grpIBUMethod.Select(method);
        calculator.IbuMethodChosen();
        EXPECT_EQ(r.gridHops.Text(1, HopCol::Ibu), "0") << method;
        EXPECT_EQ(r.txtIBU.Text(), "0") << method;
    }
}

TEST_F(HopCalculatorTest, TotalsAmountsOfOneKind) {
    r.gridHops.InsertRow(2);
    r.gridHops.InsertRow(3);
    const auto total = [&](CellValue a, CellValue b, CellValue c) {
        PutHop(1, a);
        PutHop(2, b);
        PutHop(3, c);
        calculator.ShowGridTotal(r.gridHops);
        return r.gridHops.Text(4, HopCol::Amount);
    };
    using Kind = CellValue::Kind;
    const CellValue ounce = CellValue::Of(1.255), aau{Kind::AlphaAcidUnits, 4},
                    ibu{Kind::BitternessUnits, 20};
    EXPECT_EQ(total(ounce, CellValue::Of(0.5), ibu), "1.76 oz.");  // 1.755, halves rounded away from zero
    EXPECT_EQ(total(aau, aau, ibu), "8 AAUs");
    EXPECT_EQ(total(ounce, aau, ibu), "");
    EXPECT_EQ(total(ibu, ibu, ibu), "");
}

TEST_F(CalculatorTest, ResidualGasIsNeededForTheTotal) {
    MakeRecipe();
    Put(r.gridPriming, 1, PrimingCol::Fermentable, 100);
    Put(r.gridPriming, 1, PrimingCol::Amount, 4);
    calculator.PrimingCommitted(1);
    EXPECT_NEAR(r.gridPriming.Number(1, PrimingCol::Volumes), 1.6256842, 1e-7);
    EXPECT_EQ(r.gridPriming.Text(3, PrimingCol::Volumes), "");
    EXPECT_EQ(r.txtCO2.Text(), "");
    EXPECT_FALSE(commands.carbonation);
    Fill(r.txtTemp, "68", 68);
    EXPECT_TRUE(calculator.TempCommitted());
    EXPECT_NEAR(r.gridPriming.Number(2, PrimingCol::Volumes), 0.8614872, 1e-9);
    // 1.6256842 + 0.8614872 = 2.4871714
    EXPECT_EQ(r.txtCO2.Text(), "2.49 volumes");
    EXPECT_TRUE(commands.carbonation);
    Fill(r.txtTemp, "", 0);
    EXPECT_TRUE(calculator.TempCommitted());
    EXPECT_EQ(r.txtCO2.Text(), "");
    EXPECT_EQ(r.gridPriming.Text(2, PrimingCol::Volumes), "");
}

TEST_F(CalculatorTest, PrimingWorksOnTheFinalVolumeWhereThereIsOne) {
    MakeRecipe();
    Put(r.gridPriming, 1, PrimingCol::Fermentable, 100);
    Put(r.gridPriming, 1, PrimingCol::Amount, 4);
    Fill(r.txtFinalVol, "10", 10);
    calculator.FinalVolCommitted();
    EXPECT_NEAR(r.gridPriming.Number(1, PrimingCol::Volumes), 0.8128421, 1e-7);
    Fill(r.txtTotalVol, "4", 4);
    calculator.TotalVolCommitted();
    EXPECT_NEAR(r.gridPriming.Number(1, PrimingCol::Volumes), 0.8128421, 1e-7);
    Fill(r.txtFinalVol, "", 0);
    calculator.FinalVolCommitted();
    // 1.08108 / (4 * 0.133) = 2.0321053
    EXPECT_NEAR(r.gridPriming.Number(1, PrimingCol::Volumes), 2.0321053, 1e-7);
    Fill(r.txtTotalVol, "", 0);
    calculator.TotalVolCommitted();
    EXPECT_EQ(r.gridPriming.Text(1, PrimingCol::Volumes), "");
}

TEST_F(CalculatorTest, KegVolumesNeedATemperature) {
    Put(r.gridPressure, 1, PressureCol::Pressure, 11.24617283);
    r.grpPkgMethod.Select(1);
    calculator.PressureCommitted();
    EXPECT_EQ(r.gridPressure.Text(1, PressureCol::Volumes), "");
    Fill(r.txtTemp, "38", 38);
    EXPECT_TRUE(calculator.TempCommitted());
    EXPECT_NEAR(r.gridPressure.Number(1, PressureCol::Volumes), 2.5, 1e-8);
    EXPECT_EQ(r.txtCO2.Text(), "2.50 volumes");
    r.gridPressure.SetText(1, PressureCol::Pressure, "");
    calculator.PressureCommitted();
    EXPECT_EQ(r.gridPressure.Text(1, PressureCol::Volumes), "");
    EXPECT_EQ(r.txtCO2.Text(), "");
}

TEST_F(CalculatorTest, AnUnreachablePressureLeavesTheCells) {
    Put(r.gridPressure, 1, PressureCol::Pressure, 48);
    Fill(r.txtTemp, "0", 0);
    ASSERT_TRUE(calculator.CalcCarbonation());
    // (4.24267 - sqrt(0.2925072)) / 0.1368452
    EXPECT_NEAR(r.gridPressure.Number(1, PressureCol::Volumes), 27.0512275, 1e-6);
    Put(r.gridPressure, 1, PressureCol::Pressure, 50);
    Fill(r.txtTemp, "0.0", 0);
    EXPECT_FALSE(calculator.CalcCarbonation());
    EXPECT_NEAR(r.gridPressure.Number(1, PressureCol::Volumes), 27.0512275, 1e-6);
    EXPECT_TRUE(calculator.HasKegVolumes(48));
    EXPECT_EQ(r.gridPressure.Number(1, PressureCol::Pressure), 50);
}

TEST_F(CalculatorTest, CarbonationCanChange) {
    EXPECT_FALSE(calculator.CanEnableCO2());
    Fill(r.txtTemp, "68", 68);
    EXPECT_FALSE(calculator.CanEnableCO2());  // no volume
    r.grpPkgMethod.Select(1);
    EXPECT_TRUE(calculator.CanEnableCO2());  // a keg needs only the temperature
    r.grpPkgMethod.Select(0);
    Fill(r.txtFinalVol, "5", 5);
    EXPECT_FALSE(calculator.CanEnableCO2());  // no sugar
    Put(r.gridPriming, 1, PrimingCol::Fermentable, 0);
    EXPECT_FALSE(calculator.CanEnableCO2());  // a sugar that does not ferment
    Put(r.gridPriming, 1, PrimingCol::Fermentable, 75);
    EXPECT_TRUE(calculator.CanEnableCO2());
    Fill(r.txtTemp, "", 0);
    EXPECT_FALSE(calculator.CanEnableCO2());
}

TEST_F(CalculatorTest, SumsBeyondEveryNumberAreAnArithmeticError) {
    MakeRecipe();
    r.gridGrain.InsertRow(2);
    for (int row : {1, 2}) Put(r.gridGrain, row, GrainCol::Amount, 1.7e308);
    EXPECT_THROW(calculator.ShowGridTotal(r.gridGrain), Error);
    for (int row : {1, 2}) r.gridGrain.SetComputed(row, GrainCol::Points, 1.7e308);
    EXPECT_THROW(calculator.TotalPoints(r.gridGrain), Error);
    r.gridHops.InsertRow(2);
    for (int row : {1, 2}) PutHop(row, CellValue::Of(1.7e308));
    EXPECT_THROW(calculator.ShowGridTotal(r.gridHops), Error);
    r.gridPriming.InsertRow(2);
    for (int row : {1, 2, 3}) r.gridPriming.SetComputed(row, PrimingCol::Volumes, 1.7e308);
    EXPECT_THROW(calculator.TotalPrimingVolumes(), Error);
    for (int row : {1, 2}) {
        r.gridTreatment.InsertRow(row);
        Put(r.gridTreatment, row, TreatmentCol::Amount, 1);
        Put(r.gridTreatment, row, 2, 1.7e308);
    }
    Fill(r.txtTotalVol, "1", 1);
    EXPECT_THROW(calculator.UpdateTreatmentTotals(), Error);
}

}  // namespace
}  // namespace tw::test

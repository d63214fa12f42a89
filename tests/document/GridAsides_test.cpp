#include "document/GridAsides.h"

#include "DocumentTest.h"
#include "document/FigureRules.h"
#include "values/NumberText.h"

namespace tw::test {
namespace {

class GridAsidesTest : public DocumentTest {
  protected:
    void SetUp() override { New(); }
    std::string Share(const Grid& grid, int row) { return ShareText(R(), grid, row); }
    std::string Weight(int row = 1) {
        return HopWeightText(document->Calculator(), R().gridHops, row, HopCol::Amount);
    }
};

TEST_F(GridAsidesTest, TheShareIsThatOfAllFermentables) {
    EXPECT_EQ(Share(R().gridGrain, 1), "");
    Put(R().gridGrain, 1, GrainCol::Amount, "9 lb");
    EXPECT_EQ(Share(R().gridGrain, 1), "100.0");
    document->Lines().AppendRow(R().gridGrain);
    Put(R().gridGrain, 2, GrainCol::Amount, "8 oz");
    Put(R().gridExtract, 1, GrainCol::Amount, "1 lb");
    // Of 10.5 lb: 9 / 10.5 = 0.8571, 0.5 / 10.5 = 0.0476, 1 / 10.5 = 0.0952.
    EXPECT_EQ(Share(R().gridGrain, 1), "85.7");
    EXPECT_EQ(Share(R().gridGrain, 2), "4.8");
    EXPECT_EQ(Share(R().gridExtract, 1), "9.5");
    EXPECT_EQ(Share(R().gridGrain, R().gridGrain.TotalsRow()), "");
}

TEST_F(GridAsidesTest, NoWeightHasNoShares) {
    Put(R().gridGrain, 1, GrainCol::Amount, "0 lb");
    EXPECT_EQ(Share(R().gridGrain, 1), "");
}

TEST_F(GridAsidesTest, AausAreTheWeightTimesTheAlphaAcid) {
    Put(R().gridHops, 1, HopCol::Amount, "8 AAU");
    EXPECT_EQ(Weight(), "");
    Put(R().gridHops, 1, HopCol::AlphaAcid, "4%");
    EXPECT_EQ(Weight(), "= 2.00 oz");
    Put(R().gridHops, 1, HopCol::Amount, "2 oz");
    EXPECT_EQ(Weight(), "");  // the weight stands in the cell
    Put(R().gridHops, 1, HopCol::AlphaAcid, "0%");
    Put(R().gridHops, 1, HopCol::Amount, "8 AAU");
    EXPECT_EQ(Weight(), "");
}

// By every method bitterness is proportional to the weight.
TEST_F(GridAsidesTest, TwiceTheIbusOfAnOunceAreTwoOunces) {
    Set(R().txtBoilVol, "6");
    Set(R().txtTotalVol, "5");
    Put(R().gridExtract, 1, GrainCol::Name, "Syrup");
    Put(R().gridExtract, 1, GrainCol::Amount, "7 lb");
    Put(R().gridHops, 1, HopCol::Variety, "Zeus");
    Put(R().gridHops, 1, HopCol::Time, "60");
    for (const char* method : {"optTinseth", "optRager", "optGaretz"}) {
        document->Options().Choose(method);
        Put(R().gridHops, 1, HopCol::Amount, "1 oz");
        const double ounce = R().gridHops.Number(1, HopCol::Ibu);
        ASSERT_GT(ounce, 0) << method;
        Put(R().gridHops, 1, HopCol::Amount, NumberText(2 * ounce) + " IBU");
        EXPECT_EQ(Weight(), "= 2.00 oz") << method;
    }
    Put(R().gridHops, 1, HopCol::Time, "0");
    EXPECT_EQ(Weight(), "");  // no weight gives bitterness
    Put(R().gridHops, 1, HopCol::Time, "60");
    document->Cells().SetChecked(R().gridHops, 1, HopCol::DryHopped, true);
    EXPECT_EQ(Weight(), "");
}

TEST_F(GridAsidesTest, TheBalanceIsIbusPerGravityUnit) {
    EXPECT_EQ(BalanceText(R()), "");
    R().txtOG.SetValue(1.05);
    R().txtOG.SetText("1.050");
    EXPECT_EQ(BalanceText(R()), "");
    R().txtIBU.SetValue(36);
    R().txtIBU.SetText("36");
    EXPECT_EQ(BalanceText(R()), "0.72");
    R().txtOG.SetValue(1);
    EXPECT_EQ(BalanceText(R()), "");
}

TEST_F(GridAsidesTest, FiguresAreShortenedForTheStrip) {
    R().txtABV.SetText("5.2% abv");
    R().txtColor.SetText("7 SRM (5 HCU)");
    R().txtCO2.SetText("2.50 volumes");
    R().txtIBU.SetText("38");
    EXPECT_EQ(ShortText(RuleOfFigure(FieldId::ABV), R()), "5.2%");
    EXPECT_EQ(ShortText(RuleOfFigure(FieldId::Color), R()), "7 SRM");
    EXPECT_EQ(ShortText(RuleOfFigure(FieldId::CO2), R()), "2.50");
    EXPECT_EQ(ShortText(RuleOfFigure(FieldId::IBU), R()), "38");
}

}  // namespace
}  // namespace tw::test

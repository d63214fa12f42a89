#include "document/DetailWindows.h"

#include "DocumentTest.h"

namespace tw::test {
namespace {

TEST(StrengthDetails, OfAnOrdinaryBeer) {
    // OE 12.3743, AX 2.5615, RE 4.4118 with PlatoToSG(RE) = 1.0173; AA 9.8128*100/12.3743 = 79.30;
    // RA 7.9625*100/12.3743 = 64.35; ABW 4.1157; ABV 5.2354; 169.3 calories; 27.9975 degrees F = -2.2236
    // degrees C
    const DetailsModel d = StrengthDetails(1.050, 1.010);
    EXPECT_EQ(d.FormName(), "frmStrengthDetails");
    EXPECT_EQ(d.Text("lblOE"), "12.374° Plato (1.050)");
    EXPECT_EQ(d.Text("lblAE"), "2.562° Plato (1.010)");
    EXPECT_EQ(d.Text("lblRE"), "4.412° Plato (1.017)");
    EXPECT_EQ(d.Text("lblAA"), "79.30%");
    EXPECT_EQ(d.Text("lblRA"), "64.35%");
    EXPECT_EQ(d.Text("lblAW"), "4.1%");
    EXPECT_EQ(d.Text("lblAV"), "5.2%");
    EXPECT_EQ(d.Text("lblCC"), "169 per 12 fl.oz.");
    EXPECT_EQ(d.Text("lblFP"), "28.0° F (-2.2° C)");
    EXPECT_EQ(d.Text("lblNothing"), "");
}

TEST(StrengthDetails, AWortWithoutExtractHasNoAttenuation) {
    const DetailsModel d = StrengthDetails(1, 1);
    EXPECT_EQ(d.Text("lblAA"), "");
    EXPECT_EQ(d.Text("lblRA"), "");
    EXPECT_EQ(d.Text("lblAV"), "0.0%");
}

TEST(FinalVolDetails, ShowsWhatDilutionDoes) {
    // W = 5.5 - 1 = 4.5; losses 0.5; DG = 1 + 0.012*4.5/5.5 = 1.0098182 (2.5153 degrees Plato);
    // ABV 5.1553, ABW = 5.1553*0.794/DG = 4.0535; 166.5 calories; 5.5*128/12 = 58.67 bottles
    const DetailsModel d = FinalVolDetails({5, 1, 5.5, 1.060, 1.012});
    EXPECT_EQ(d.Text("lblTotalVol"), "5.00 gal.");
    EXPECT_EQ(d.Text("lblXferLosses"), "0.50 gal.");
    EXPECT_EQ(d.Text("lblDilution"), "1.00 gal.");
    EXPECT_EQ(d.Text("lblFinalVolume"), "5.50 gal.");
    EXPECT_EQ(d.Text("lblNumberBottles"), "58.7");
    EXPECT_EQ(d.Text("lblOG"), "14.725° Plato (1.060)");
    EXPECT_EQ(d.Text("lblFG"), "3.068° Plato (1.012)");
    EXPECT_EQ(d.Text("lblDG"), "2.515° Plato (1.010)");
    EXPECT_EQ(d.Text("lblAlcohol"), "5.2% abv (4.1% abw)");
    EXPECT_EQ(d.Text("lblCalories"), "167 per 12 fl.oz.");
}

TEST(FinalVolDetails, NoMoreWortGoesOnThanThereIs) {
    // W = 8 - 1 = 7, cut to 5: nothing is lost.
    EXPECT_EQ(FinalVolDetails({5, 1, 8, 1.060, 1.012}).Text("lblXferLosses"), "0.00 gal.");
    // 5.1553 would be the result for a share of 4.5 / 5.5; here the result is 5 / 6 of 6.3009.
    EXPECT_EQ(FinalVolDetails({5, 1, 8, 1.060, 1.012}).Text("lblAlcohol").substr(0, 8), "5.3% abv");
}

TEST(FinalVolDetails, AFigureThatWouldDivideByZeroIsBlank) {
    const DetailsModel d = FinalVolDetails({5, 0, 0, 1.060, 1.012});
    EXPECT_EQ(d.Text("lblDG"), "");
    EXPECT_EQ(d.Text("lblAlcohol"), "");
    EXPECT_EQ(d.Text("lblCalories"), "");
    EXPECT_EQ(d.Text("lblOG"), "14.725° Plato (1.060)");
}

TEST(HopDetails, ShowsTheBalance) {
    // 40 / 50 = 0.8: (0.675*0.93366)^0.66047 = 0.7372
    const DetailsModel d = HopDetails(1.050, 40);
    EXPECT_EQ(d.Text("lblBU"), "40.0");
    EXPECT_EQ(d.Text("lblGU"), "50.0");
    EXPECT_EQ(d.Text("lblRatio"), "0.800");
    EXPECT_EQ(d.SliderBalance(), 737);
}

TEST(HopDetails, TheSliderStaysOnItsScale) {
    EXPECT_EQ(BalancePosition(0), 0);
    EXPECT_EQ(BalancePosition(0.125), 0);
    EXPECT_EQ(BalancePosition(0.5), 500);  // 0.3501225^0.66047 = 0.5000011
    EXPECT_EQ(BalancePosition(5), 1000);
}

TEST(HopDetails, WithoutGravityTheRatioIsBlank) {
    const DetailsModel d = HopDetails(1, 40);
    EXPECT_EQ(d.Text("lblBU"), "40.0");
    EXPECT_EQ(d.Text("lblRatio"), "");
    EXPECT_EQ(d.SliderBalance(), 0);
}

TEST(DetailWindows, CloseByTheirButton) {
    DetailsModel d = StrengthDetails(1.050, 1.010);
    EXPECT_FALSE(d.Press("cmdOK"));
    EXPECT_FALSE(d.SetControl("lblOE", "x"));
    EXPECT_TRUE(d.IsOpen());
    EXPECT_TRUE(d.Press("cmdClose"));
    EXPECT_FALSE(d.IsOpen());
}

class DetailWindowsTest : public DocumentTest {};

TEST_F(DetailWindowsTest, AnEmptyFinalVolumeIsTheTotalOne) {
    New();
    Set(R().txtTotalVol, "5");
    Set(R().txtDilutions, "1");
    Set(R().txtDilutions, "");
    const DetailsModel d = FinalVolDetailsOf(*document);
    EXPECT_EQ(d.Text("lblFinalVolume"), "5.00 gal.");
    EXPECT_EQ(d.Text("lblDilution"), "0.00 gal.");
}

}  // namespace
}  // namespace tw::test

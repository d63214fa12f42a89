#include "calc/Figures.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "values/NumberText.h"

namespace tw {
namespace {

TEST(Figures, AlcoholOfAnOrdinaryBeer) {
    // OE = 1262.45*1.05 - 668.96 - 776.43*1.1025 + 182.94*1.157625 = 12.3743425
    // AX = 1262.45*1.01 - 668.96 - 776.43*1.0201 + 182.94*1.030301 = 2.5615219
    // q = 0.2323743; RE = (q*OE + AX) / (1 + q) = 5.4370016 / 1.2323743 = 4.4118102
    // ABW = 7.9625323 / (2.0665 - 0.1318486) = 4.1157453; ABV = ABW * 1.01 / 0.794 = 5.2353939
    const AlcoholFigures f = ComputeAlcohol(1.050, 1.010);
    EXPECT_NEAR(f.originalExtract, 12.3743425, 1e-7);
    EXPECT_NEAR(f.apparentExtract, 2.5615219, 1e-7);
    EXPECT_NEAR(f.realExtract, 4.4118102, 1e-7);
    EXPECT_NEAR(f.byWeight, 4.1157453, 1e-7);
    EXPECT_NEAR(f.byVolume, 5.2353939, 1e-7);
}

TEST(Figures, AFinalGravityAboveTheOriginalGivesANegativeAlcohol) {
    // OE = 2.5615219, AX = 12.3743425, q = 0.2225615, RE = 10.5879651,
    // ABW = -8.0264432 / 2.0392070 = -3.9360610, ABV = ABW * 1.05 / 0.794 = -5.2051185
    EXPECT_NEAR(ComputeAlcohol(1.010, 1.050).byVolume, -5.2051185, 1e-7);
}

TEST(Figures, AttenuationWorksOnExtractNotOnGravityPoints) {
    // OE = 12.3743425; AX = OE / 4 = 3.0935856;
    // FG = 1 + 0.0038661*AX + 1.3488e-5*AX^2 + 4.3074e-8*AX^3 = 1.0120905. By points it would be 1.0125.
    EXPECT_NEAR(AttenuatedGravity(1.050, 75), 1.0120905, 1e-7);
    EXPECT_DOUBLE_EQ(AttenuatedGravity(1.050, 100), 1.0);
}

TEST(Figures, CaloriesOfTwelveFluidOunces) {
    // (4.4118102 * 4.08 + 4.1157453 * 7.1) * 1.01 * 3.55 = 47.2219775 * 3.5855 = 169.3144
    EXPECT_NEAR(CaloriesPer12FlOz(4.4118102, 4.1157453, 1.010), 169.3144, 1e-4);
}

TEST(Figures, ResidualGasFallsWithTheTemperature) {
    // At 68: 3.0378 - 3.404216 + 0.00026555*4624 = 0.8614872
    EXPECT_NEAR(ResidualCO2(68), 0.8614872, 1e-9);
    // At 38: 3.0378 - 1.902356 + 0.00026555*1444 = 1.5188982
    EXPECT_NEAR(ResidualCO2(38), 1.5188982, 1e-9);
    EXPECT_DOUBLE_EQ(ResidualCO2(0), 3.0378);
}

TEST(Figures, KegPressureOfACarbonationChart) {
    // -16.6999 - 0.3840242 + 1.6824333 + 16.46863 + 10.606675 - 0.4276413 = 11.2461728
    EXPECT_NEAR(KegPressure(38, 2.5), 11.2461728, 1e-6);
}

TEST(Figures, KegVolumesSolveThePressure) {
    EXPECT_NEAR(KegVolumes(38, KegPressure(38, 2.5)).value_or(-1), 2.5, 1e-9);
}

TEST(Figures, KegVolumesTakeTheSecondRootWhenTheFirstIsNegative) {
    // At 212 degrees and 0 psi c = -16.6999 - 2.1424508 + 52.3651533 = 33.5228025, b = 40.993718,
    // D = 1680.4849 + 9.1749 = 1689.6598; the first root is -0.8166415, the second 599.942047.
    EXPECT_NEAR(KegVolumes(212, 0).value_or(-1), 599.942047, 1e-5);
}

TEST(Figures, KegVolumesFailWithoutARealRoot) {
    // At 0 degrees b = 4.24267 and D = 18.0002487 - 0.2736904 * (16.6999 + P): positive up to 49.0687 psi.
    EXPECT_TRUE(KegVolumes(0, 49));
    EXPECT_FALSE(KegVolumes(0, 49.1));
}

TEST(Figures, PrimingSugarGivesVolumes) {
    // 4 * 1 * 0.27027 / (5 * 0.133) = 1.08108 / 0.665 = 1.6256842
    EXPECT_NEAR(PrimingVolumes(4, 100, 5), 1.6256842, 1e-7);
    EXPECT_NEAR(PrimingVolumes(4, 50, 5), 0.8128421, 1e-7);
}

TEST(Figures, RaiseArithmeticErrorsInsteadOfGivingInfinity) {
    EXPECT_THROW(PrimingVolumes(4, 100, 0), Error);
    EXPECT_THROW(PrimingVolumes(1e300, 100, 1e-300), Error);
    EXPECT_THROW(KegPressure(38, 1e200), Error);
    EXPECT_THROW(ComputeAlcohol(1e200, 1), Error);
    EXPECT_THROW(AttenuatedGravity(1e200, 75), Error);
    EXPECT_THROW(CaloriesPer12FlOz(1e300, 1e300, 1e10), Error);
    EXPECT_THROW(ResidualCO2(1e300), Error);
    EXPECT_THROW(KegVolumes(1e300, 1), Error);
}

TEST(Figures, AZeroDivisorIsDivisionByZeroNumberEleven) {
    try {
        PrimingVolumes(4, 100, 0);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.WithNumber(), "Division by zero (11)");
    }
}

}  // namespace
}  // namespace tw

#include "values/Converter.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

TEST(PlatoToSG, IsExactlyOneAtZero) {
    EXPECT_EQ(PlatoToSG(0), 1);
}

// 1 + 0.0463932 + 0.0019422720 + 0.0000744318720 = 1.048409903872
TEST(PlatoToSG, FollowsItsCubic) {
    EXPECT_NEAR(PlatoToSG(12), 1.048409903872, 1e-12);
}

TEST(SGToPlato, IsZeroAtOneWithinTheArithmetic) {
    EXPECT_NEAR(SGToPlato(1), 0, 1e-9);
}

// 1323.0476 - 668.96 - 852.75617 + 210.56807 = 11.8995
TEST(SGToPlato, FollowsItsCubic) {
    EXPECT_NEAR(SGToPlato(1.048), 11.9, 0.05);
    EXPECT_NEAR(SGToPlato(2), 1262.45 * 2 - 668.96 - 776.43 * 4 + 182.94 * 8, 1e-9);
}

// 1325.5725 - 668.96 - 856.014075 + 211.7759175 is exactly 12.3743425. The result must not be below it, so
// that it is rounded up to six decimals.
TEST(SGToPlato, DoesNotFallBelowAnEdgeOfRounding) {
    EXPECT_GE(SGToPlato(1.05), 12.3743425);
    EXPECT_NEAR(SGToPlato(1.05), 12.3743425, 1e-12);
}

// The two fitted curves are not corrected to be inverses of each other.
TEST(SGToPlato, IsNotTheExactInverseOfPlatoToSG) {
    EXPECT_NE(PlatoToSG(SGToPlato(1.048)), 1.048);
    EXPECT_NEAR(PlatoToSG(SGToPlato(1.048)), 1.048, 1e-4);
}

TEST(Factors, AreTheProgramsOwnRoundedOnes) {
    EXPECT_EQ(kLitersPerGallon * 1000, kMillilitersPerGallon);
    EXPECT_EQ(kGramsPerOunce, 28.35);
    EXPECT_EQ(kGramsPerPound, 453.59);
    EXPECT_NE(kGramsPerOunce * kOuncesPerPound, kGramsPerPound);
    EXPECT_EQ(kPsiPerAtmosphere, 14.6959);
}

}  // namespace
}  // namespace tw

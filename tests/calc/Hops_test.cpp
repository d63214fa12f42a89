#include "calc/Hops.h"

#include <gtest/gtest.h>

#include "platform/Error.h"

namespace tw {
namespace {

struct At {
    double minutes;
    double utilisation;
};

TEST(RagerTable, HoldsEveryPointExactly) {
    for (const At& at : {At{0, 0}, At{9, 0.05}, At{19, 0.12}, At{29, 0.15}, At{44, 0.19}, At{59, 0.22},
                         At{74, 0.24}, At{89, 0.27}, At{90, 0.27}, At{120, 0.27}})
        EXPECT_EQ(RagerTableUtilisation(at.minutes), at.utilisation) << at.minutes;
}

TEST(RagerTable, InterpolatesFromTheLeftPoint) {
    // The value in the middle of each segment is the mean of those at its ends.
    for (const At& at : {At{4.5, 0.025}, At{14, 0.085}, At{24, 0.135}, At{36.5, 0.17}, At{51.5, 0.205},
                         At{66.5, 0.23}, At{81.5, 0.255}})
        EXPECT_NEAR(RagerTableUtilisation(at.minutes), at.utilisation, 1e-15) << at.minutes;
    // 0.22 + 1 * 0.02 / 15
    EXPECT_NEAR(RagerTableUtilisation(60), 0.2213333333, 1e-10);
    // 0.27 - 0.001 * 0.03 / 15
    EXPECT_NEAR(RagerTableUtilisation(88.999), 0.269998, 1e-12);
}

// The table has a gap, which is kept.
TEST(RagerTable, GivesNothingBetween89And90Minutes) {
    EXPECT_EQ(RagerTableUtilisation(89.0001), 0);
    EXPECT_EQ(RagerTableUtilisation(89.5), 0);
    EXPECT_EQ(RagerTableUtilisation(89.9999), 0);
}

TEST(GaretzTable, HoldsEveryPointExactly) {
    for (const At& at : {At{0, 0}, At{5, 0}, At{10, 0.01}, At{15, 0.02}, At{20, 0.05}, At{25, 0.08},
                         At{30, 0.11}, At{35, 0.14}, At{40, 0.16}, At{45, 0.18}, At{50, 0.19}, At{60, 0.20},
                         At{70, 0.21}, At{80, 0.22}, At{90, 0.23}, At{90.1, 0.23}, At{300, 0.23}})
        EXPECT_EQ(GaretzTableUtilisation(at.minutes), at.utilisation) << at.minutes;
}

TEST(GaretzTable, InterpolatesFromTheLeftPoint) {
    for (const At& at : {At{7.5, 0.005}, At{12.5, 0.015}, At{17.5, 0.035}, At{22.5, 0.065}, At{27.5, 0.095},
                         At{32.5, 0.125}, At{37.5, 0.15}, At{42.5, 0.17}, At{47.5, 0.185}, At{55, 0.195},
                         At{65, 0.205}, At{75, 0.215}, At{85, 0.225}})
        EXPECT_NEAR(GaretzTableUtilisation(at.minutes), at.utilisation, 1e-15) << at.minutes;
    EXPECT_EQ(GaretzTableUtilisation(2.5), 0);
}

TEST(Hops, GravityAdjustmentStartsAbove1050) {
    EXPECT_EQ(GravityAdjustment(1.040), 1);
    EXPECT_EQ(GravityAdjustment(1.050), 1);
    // 1 + 0.02 / 0.2
    EXPECT_NEAR(GravityAdjustment(1.070), 1.1, 1e-12);
}

// 1 oz at 5% alpha acid, pellet, 60 minutes, 5 gallons, boil gravity 1.050.
constexpr HopAddition kPellet{0.05, 1.15, 60};
constexpr HopKettle kKettle{1.050, 5, 1};

TEST(Hops, TinsethBitterness) {
    // C = 0.05 * 7490 / 5 = 74.9; B = 1.65 * 0.000125^0.05 = 1.0527602; T = (1 - e^-2.4) / 4.15 = 0.2191041
    // IBU = 1.15 * 74.9 * 1.0527602 * 0.2191041 = 19.8682503
    EXPECT_NEAR(HopBitterness(IbuMethod::Tinseth, kPellet, kKettle), 19.8682503, 1e-6);
    // Utilisation B * T
    EXPECT_NEAR(TinsethUtilisation(1.050, 60), 0.2306641, 1e-7);
}

TEST(Hops, RagerBitterness) {
    // U = 0.22 + 0.02 / 15 = 0.2213333; GA = 1; IBU = U * 0.05 * 7489 * 1.15 / 5 = 19.0620013
    EXPECT_NEAR(HopBitterness(IbuMethod::Rager, kPellet, kKettle), 19.0620013, 1e-6);
    // At 1.070 GA = 1.1: 17.3290921
    EXPECT_NEAR(HopBitterness(IbuMethod::Rager, kPellet, {1.070, 5, 1}), 17.3290921, 1e-6);
    EXPECT_EQ(HopBitterness(IbuMethod::Rager, {0.05, 1.15, 89.5}, kKettle), 0);
}

TEST(Hops, GaretzBitterness) {
    // At 30 minutes U = 0.11: 0.11 * 0.05 * 7489 * 1.15 / 5 = 9.473585
    EXPECT_NEAR(HopBitterness(IbuMethod::Garetz, {0.05, 1.15, 30}, kKettle), 9.473585, 1e-9);
}

TEST(Hops, TheMultiplierScalesEveryMethod) {
    for (const IbuMethod method : {IbuMethod::Tinseth, IbuMethod::Rager, IbuMethod::Garetz})
        EXPECT_NEAR(HopBitterness(method, kPellet, {1.050, 5, 1.5}),
                    1.5 * HopBitterness(method, kPellet, kKettle), 1e-9);
}

TEST(Hops, NoTimeGivesNoBitterness) {
    for (const IbuMethod method : {IbuMethod::Tinseth, IbuMethod::Rager, IbuMethod::Garetz})
        EXPECT_EQ(HopBitterness(method, {0.05, 1.15, 0}, kKettle), 0);
}

TEST(Hops, ATotalVolumeOfZeroIsAnArithmeticError) {
    for (const IbuMethod method : {IbuMethod::Tinseth, IbuMethod::Rager, IbuMethod::Garetz}) {
        EXPECT_THROW(HopBitterness(method, kPellet, {1.050, 0, 1}), Error);
        EXPECT_THROW(HopBitterness(method, {1e300, 1.15, 60}, {1.050, 1e-300, 1}), Error);
    }
}

TEST(Hops, UtilisationInPercentIsDividedByTheGravityAdjustment) {
    const UtilisationFigures at = UtilisationAt(1.070, 60);
    // B = 1.65 * 0.000125^0.07 = 0.8795644; * 0.2191041 * 100 = 19.2716174
    EXPECT_NEAR(at.tinseth, 19.2716174, 1e-6);
    // 22.1333333 / 1.1, 20 / 1.1
    EXPECT_NEAR(at.rager, 20.1212121, 1e-6);
    EXPECT_NEAR(at.garetz, 18.1818182, 1e-6);
}

}  // namespace
}  // namespace tw

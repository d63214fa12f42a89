// Tests of the hop utilisation explorer: its slider, its curves and its scales.
#include "tools/HopUtilisationModel.h"

#include <gmock/gmock.h>

namespace tw::test {
namespace {

int PositionFor(const char* boilGravity) {
    return HopUtilisationModel(std::string(boilGravity)).Position();
}

TEST(HopUtil, TakesItsSliderFromTheBoilGravity) {
    EXPECT_EQ(HopUtilisationModel(std::nullopt).Position(), 150);
    EXPECT_EQ(PositionFor("1.050"), 200);
    EXPECT_EQ(PositionFor("1.048"), 202);
    EXPECT_EQ(PositionFor("1.000"), 250);
    EXPECT_EQ(PositionFor("1.25"), 0);
    EXPECT_EQ(PositionFor("0.998"), 250);
    EXPECT_EQ(PositionFor("-5"), 250);
}

TEST(HopUtil, ABoilGravityThatTheSliderCannotShowLeavesItAlone) {
    for (const char* text : {"", "1.251", "12", "12 P", "about 1.050", "1.050 SG"})
        EXPECT_EQ(PositionFor(text), 150) << text;
    EXPECT_EQ(HopUtilisationModel(std::string(400, '9')).Position(), 150);
}

TEST(HopUtil, ThePositionCountsDownFromTheHeaviestWort) {
    HopUtilisationModel model(std::nullopt);
    EXPECT_EQ(model.GraphText(), "Hop Utilization for SG = 1.100");
    model.MoveSlider(250);
    EXPECT_EQ(model.GraphText(), "Hop Utilization for SG = 1.000");
    model.MoveSlider(0);
    EXPECT_EQ(model.GraphText(), "Hop Utilization for SG = 1.250");
    model.MoveSlider(-1);
    EXPECT_EQ(model.Position(), 0);
    model.MoveSlider(251);
    EXPECT_EQ(model.Position(), 250);
}

// Tinseth: 1.65 * 0.000125^0.05 * (1 - e^-2.4) / 4.15 = 0.2307; Rager: 0.22 + 0.02 / 15; Garetz 0.20.
TEST(HopUtil, DrawsThirtySegmentsOfEachMethod) {
    const std::array<Curve, kMethods> curves = UtilisationCurves(1.05);
    for (const Curve& curve : curves) {
        ASSERT_EQ(curve.size(), 31U);
        for (std::size_t i = 0; i < curve.size(); ++i)
            EXPECT_EQ(curve[i].minutes, 3.0 * static_cast<double>(i));
        EXPECT_EQ(curve.front().percent, 0);
    }
    EXPECT_NEAR(curves[0][20].percent, 23.07, 0.01);
    EXPECT_NEAR(curves[1][20].percent, 22.1333, 0.0001);
    EXPECT_NEAR(curves[2][20].percent, 20, 1e-9);
    EXPECT_NEAR(curves[1][30].percent, 27, 1e-9);
    EXPECT_NEAR(curves[2][30].percent, 23, 1e-9);
}

// The gravity adjustment 1 + (1.15 - 1.05) / 0.2 = 1.5 divides both tables.
TEST(HopUtil, AHeavierWortLowersTheCurves) {
    const std::array<Curve, kMethods> curves = UtilisationCurves(1.15);
    EXPECT_NEAR(curves[1][30].percent, 27 / 1.5, 1e-9);
    EXPECT_NEAR(curves[2][30].percent, 23 / 1.5, 1e-9);
    EXPECT_LT(curves[0][30].percent, UtilisationCurves(1.05)[0][30].percent);
}

// Two pixels for each minute, ten for each percent.
constexpr GraphArea kArea{50, 20, 180, 400};

TEST(HopUtil, ScalesIntoThePicture) {
    EXPECT_EQ(kArea.TimeToX(0), 50);
    EXPECT_EQ(kArea.TimeToX(60), 170);
    EXPECT_EQ(kArea.TimeToX(90), 230);
    EXPECT_EQ(kArea.UtilisationToY(0), 420);
    EXPECT_EQ(kArea.UtilisationToY(23), 190);
    EXPECT_EQ(kArea.UtilisationToY(40), 20);
}

TEST(HopUtil, WhatIsAtOrBelowZeroLiesOnTheAxis) {
    EXPECT_EQ(kArea.TimeToX(-3), 50);
    EXPECT_EQ(kArea.UtilisationToY(-1), 420);
}

// Curves are not clipped.
TEST(HopUtil, AFigureAboveTheScaleLeavesThePicture) {
    EXPECT_EQ(kArea.UtilisationToY(43), -10);
}

TEST(HopUtil, APlaceOfThePictureIsAMinute) {
    EXPECT_EQ(kArea.MinutesAt(170), 60);
    EXPECT_EQ(kArea.MinutesAt(0), 0);
    EXPECT_EQ(kArea.MinutesAt(1000), 90);
    EXPECT_EQ((GraphArea{0, 0, 0, 0}).MinutesAt(5), 0);
}

TEST(HopUtil, ReadsItsFiguresAtOneBoilTime) {
    HopUtilisationModel model(std::string("1.050"));
    EXPECT_EQ(model.Minutes(), 60);
    EXPECT_NEAR(model.Figures().garetz, 20, 1e-9);
    model.MoveTo(30);
    EXPECT_NEAR(FigureOf(model.Figures(), IbuMethod::Garetz), 11, 1e-9);
    EXPECT_NEAR(FigureOf(model.Figures(), IbuMethod::Rager), 15 + 4.0 / 15, 1e-9);
    model.MoveTo(-1);
    EXPECT_EQ(model.Minutes(), 0);
    model.MoveTo(91);
    EXPECT_EQ(model.Minutes(), 90);
}

TEST(HopUtil, TakesThePositionsOfItsSlider) {
    HopUtilisationModel model(std::nullopt);
    EXPECT_TRUE(model.SetControl("Slider1", "200"));
    std::string shown;
    for (const DialogControl& control : model.Controls()) shown += control.name + "=" + control.text + ";";
    EXPECT_EQ(shown, "Slider1=200;lblGraph=Hop Utilization for SG = 1.050;");
    for (const char* text : {"251", "-1", "", "x", "20x", "1.5"})
        EXPECT_FALSE(model.SetControl("Slider1", text)) << text;
    EXPECT_EQ(model.Position(), 200);
    EXPECT_FALSE(model.SetControl("lblGraph", "200"));
    EXPECT_FALSE(model.Press("cmdOK"));
    EXPECT_TRUE(model.Press("cmdClose"));
    EXPECT_FALSE(model.IsOpen());
}

}  // namespace
}  // namespace tw::test

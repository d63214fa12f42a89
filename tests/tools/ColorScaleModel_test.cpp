// Tests of the colour scales: their captions, their marks, and the colours next to the marks.
#include "tools/ColorScaleModel.h"

#include <gmock/gmock.h>
#include <sstream>

#include "values/NumberText.h"

namespace tw::test {
namespace {

// Returns "CAPTION: fraction value, ...", without the start of the picture.
std::string Told(const ScaleColumn& column) {
    EXPECT_EQ(column.marks.front().fraction, 0) << "the first member is the picture's start";
    EXPECT_EQ(column.marks.front().value, 0);
    std::ostringstream told;
    told << column.caption << ":";
    for (const ScaleMark& mark : column.marks.subspan(1))
        told << ' ' << NumberText(mark.fraction) << ' ' << mark.value;
    return told.str();
}

TEST(ColorScales, HaveTheirMarks) {
    const std::string srm = "SRM: 0.1 5 0.2 10 0.3 15 0.4 20 0.5 25 0.6 30 0.7 35 0.8 40 0.9 45 1 50";
    const std::string hcu = "HCU: 0.1 30 0.2 60 0.3 90 0.4 120 0.5 150 0.6 180 0.7 210 0.8 240 0.9 270 1 300";
    EXPECT_EQ(Told(LeftColumn(ColorScale::Srm)), srm);
    EXPECT_EQ(Told(RightColumn(ColorScale::Srm)), srm);
    EXPECT_EQ(Told(LeftColumn(ColorScale::Hcu)), hcu);
    EXPECT_EQ(Told(RightColumn(ColorScale::Hcu)), hcu);
    EXPECT_EQ(Told(LeftColumn(ColorScale::Both)),
              "HCU: 0.09 3 0.18 8 0.27 14 0.36 21 0.45 28 0.54 36 0.63 47 0.72 90 0.81 161 0.91 230 1 300");
    EXPECT_EQ(Told(RightColumn(ColorScale::Both)),
              "SRM: 0.09 3 0.18 6 0.27 9 0.37 12 0.46 15 0.55 17 0.64 21 0.73 34 0.82 50");
}

TEST(ColorScales, RunBetweenTheirMarks) {
    EXPECT_EQ(ScaleHcu(ColorScale::Hcu, 0), 0);
    EXPECT_NEAR(ScaleHcu(ColorScale::Hcu, 0.25), 75, 1e-9);
    EXPECT_EQ(ScaleHcu(ColorScale::Hcu, 1), 300);
    // Half way from 0 to 3, and from 161 to 230.
    EXPECT_NEAR(ScaleHcu(ColorScale::Both, 0.045), 1.5, 1e-9);
    EXPECT_NEAR(ScaleHcu(ColorScale::Both, 0.86), 195.5, 1e-9);
    EXPECT_EQ(ScaleHcu(ColorScale::Both, 1), 300);
    // (25 / 1.4922)^(1 / 0.6859) = e^(2.81862 / 0.6859) = 60.9
    EXPECT_NEAR(ScaleHcu(ColorScale::Srm, 0.5), 60.9, 0.05);
    EXPECT_EQ(ScaleHcu(ColorScale::Srm, 0), 0);
    EXPECT_EQ(ScaleHcu(ColorScale::Hcu, -1), 0);
    EXPECT_EQ(ScaleHcu(ColorScale::Hcu, 2), 300);
}

// In the scale of both units, the marks of the right column are next to the colours of their SRM. They are
// whole numbers at rounded positions, so they differ by 1.5 at most.
TEST(ColorScales, BothColumnsTellTheSameColor) {
    for (const ScaleMark& mark : RightColumn(ColorScale::Both).marks)
        EXPECT_NEAR(HCUToSRM(ScaleHcu(ColorScale::Both, mark.fraction)), mark.value, 1.5) << mark.value;
}

TEST(ColorScales, GoFromPaleToBlackAndNeverLighter) {
    const ColorTable table;
    EXPECT_EQ(table.HCUToColor(ScaleHcu(ColorScale::Both, 0)), (Rgb{255, 255, 255}));
    EXPECT_EQ(table.HCUToColor(ScaleHcu(ColorScale::Both, 1)), (Rgb{0, 0, 0}));
    EXPECT_EQ(table.HCUToColor(ScaleHcu(ColorScale::Hcu, 1)), (Rgb{0, 0, 0}));
    for (int i = 0; i < kColorScales; ++i) {
        double last = 240;
        for (int step = 0; step <= 100; ++step) {
            const double lightness =
                table.HCUToHSL(ScaleHcu(static_cast<ColorScale>(i), step / 100.0)).lightness;
            EXPECT_LE(lightness, last) << i << " at " << step;
            last = lightness;
        }
    }
}

TEST(ColorScales, FiguresReadAsInRecipes) {
    EXPECT_EQ(ColorReading(0), "0 SRM (0 HCU)");
    // 1.4922 * 10^0.6859 = 7.24
    EXPECT_EQ(ColorReading(10), "7 SRM (10 HCU)");
    EXPECT_EQ(ColorReading(300), ">50 SRM (300 HCU)");
}

TEST(ColorScales, ThePointerStaysOnThePicture) {
    ColorScaleModel model;
    EXPECT_EQ(model.Pointer(), 0);
    model.MovePointer(-1);
    EXPECT_EQ(model.Pointer(), 0);
    model.MovePointer(500);
    EXPECT_EQ(model.Pointer(), 100);
    // The SRM scale ends at 50: (50 / 1.4922)^(1 / 0.6859) = 167.3.
    EXPECT_EQ(ColorReading(model.PointerHcu()), "50 SRM (167 HCU)");
    model.Choose(ColorScale::Hcu);
    EXPECT_EQ(model.PointerHcu(), 300);
}

TEST(ColorScales, ShowTheMembersThatAScaleNeeds) {
    ColorScaleModel model;
    const auto shown = [&] {
        std::string text;
        for (const DialogControl& control : model.Controls()) text += control.name + "=" + control.text + ";";
        return text;
    };
    EXPECT_EQ(
        shown(),
        "optScale(0)=yes;optScale(1)=no;optScale(2)=no;"
        "lblVal(0)=0;lblVal(1)=5;lblVal(2)=10;lblVal(3)=15;lblVal(4)=20;lblVal(5)=25;lblVal(6)=30;"
        "lblVal(7)=35;lblVal(8)=40;lblVal(9)=45;lblVal(10)=50;"
        "lblVal(12)=0;lblVal(13)=5;lblVal(14)=10;lblVal(15)=15;lblVal(16)=20;lblVal(17)=25;lblVal(18)=30;"
        "lblVal(19)=35;lblVal(20)=40;lblVal(21)=45;lblVal(22)=50;Label1(0)=SRM;Label1(1)=SRM;");
    EXPECT_TRUE(model.SetControl("optScale(2)", "yes"));
    EXPECT_EQ(shown(),
              "optScale(0)=no;optScale(1)=no;optScale(2)=yes;"
              "lblVal(0)=0;lblVal(1)=3;lblVal(2)=8;lblVal(3)=14;lblVal(4)=21;lblVal(5)=28;lblVal(6)=36;"
              "lblVal(7)=47;lblVal(8)=90;lblVal(9)=161;lblVal(10)=230;lblVal(11)=300;"
              "lblVal(12)=0;lblVal(13)=3;lblVal(14)=6;lblVal(15)=9;lblVal(16)=12;lblVal(17)=15;lblVal(18)=17;"
              "lblVal(19)=21;lblVal(20)=34;lblVal(21)=50;Label1(0)=HCU;Label1(1)=SRM;");
}

TEST(ColorScales, TakeTheirOptionsAndOneButton) {
    ColorScaleModel model;
    EXPECT_EQ(ScaleName(ColorScale::Srm), "SRM Scale");
    EXPECT_EQ(ScaleName(ColorScale::Hcu), "HCU Scale");
    EXPECT_EQ(ScaleName(ColorScale::Both), "Both Scales");
    EXPECT_FALSE(model.SetControl("optScale(3)", "yes"));
    EXPECT_FALSE(model.SetControl("optScale(1)", "no"));
    EXPECT_FALSE(model.SetControl("lblVal(0)", "yes"));
    EXPECT_EQ(model.Scale(), ColorScale::Srm);
    EXPECT_FALSE(model.Press("cmdOK"));
    EXPECT_TRUE(model.Press("cmdClose"));
    EXPECT_FALSE(model.IsOpen());
}

}  // namespace
}  // namespace tw::test

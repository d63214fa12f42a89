#include "calc/BeerColor.h"

#include <gtest/gtest.h>

#include "platform/Error.h"

namespace tw {
namespace {

struct Point {
    int key;
    double hue, lightness;
};
constexpr Point kPoints[] = {{1, 40, 230},  {2, 36, 207}, {3, 32, 190}, {5, 28, 167}, {10, 24, 130},
                             {13, 20, 117}, {16, 16, 98}, {21, 12, 79}, {25, 10, 63}, {36, 6, 45},
                             {50, 3, 36},   {75, 1, 32},  {100, 0, 29}, {125, 0, 25}, {150, 0, 22},
                             {175, 0, 18},  {200, 0, 14}, {225, 0, 11}, {250, 0, 7},  {275, 0, 3},
                             {288, 0, 1},   {294, 0, 0}};

Hsl HslOf(double hcu) {
    return ColorTable().HCUToHSL(hcu);
}

TEST(HCUToSRM, HasAWayBack) {
    EXPECT_EQ(SRMToHCU(0), 0);
    EXPECT_NEAR(SRMToHCU(1.4922), 1, 1e-12);
    for (const double hcu : {0.5, 10.0, 60.0, 300.0}) EXPECT_NEAR(SRMToHCU(HCUToSRM(hcu)), hcu, 1e-9);
}

TEST(ColorTable, HoldsItsEntries) {
    const ColorTable table;
    for (const Point& point : kPoints) {
        EXPECT_EQ(table.LookupColorEntry(point.key).hue, point.hue) << point.key;
        EXPECT_EQ(table.LookupColorEntry(point.key).lightness, point.lightness) << point.key;
    }
}

TEST(ColorTable, EndsWithWhiteAndBlack) {
    const ColorTable table;
    for (const int key : {0, -1, -1000}) {
        EXPECT_EQ(table.LookupColorEntry(key).hue, 40);
        EXPECT_EQ(table.LookupColorEntry(key).lightness, 240);
    }
    for (const int key : {295, 1000000}) {
        EXPECT_EQ(table.LookupColorEntry(key).hue, 0);
        EXPECT_EQ(table.LookupColorEntry(key).lightness, 0);
    }
}

TEST(ColorTable, InterpolatesWholeKeysBetweenItsEntries) {
    const ColorTable table;
    for (std::size_t i = 0; i + 1 < std::size(kPoints); ++i) {
        const Point& a = kPoints[i];
        const Point& b = kPoints[i + 1];
        for (int key = a.key + 1; key < b.key; ++key) {
            const double r = static_cast<double>(key - a.key) / (b.key - a.key);
            EXPECT_NEAR(table.LookupColorEntry(key).hue, (b.hue - a.hue) * r + a.hue, 1e-12) << key;
            EXPECT_NEAR(table.LookupColorEntry(key).lightness, (b.lightness - a.lightness) * r + a.lightness,
                        1e-12)
                << key;
        }
    }
    // Between 3 (32;190) and 5 (28;167), and two fifths from 5 to 10 (24;130).
    EXPECT_EQ(table.LookupColorEntry(4).hue, 30);
    EXPECT_EQ(table.LookupColorEntry(4).lightness, 178.5);
    EXPECT_NEAR(table.LookupColorEntry(7).hue, 26.4, 1e-12);
    EXPECT_NEAR(table.LookupColorEntry(7).lightness, 152.2, 1e-12);
}

TEST(ColorTable, InterpolatesFractionsBetweenWholeKeys) {
    // A quarter from key 3 (32;190) to key 4 (30;178.5).
    EXPECT_NEAR(HslOf(3.25).hue, 31.5, 1e-12);
    EXPECT_NEAR(HslOf(3.25).lightness, 187.125, 1e-12);
    // Half from white (40;240) to key 1 (40;230), and half from key 293 (0;1/6) to 294 (0;0).
    EXPECT_NEAR(HslOf(0.5).lightness, 235, 1e-12);
    EXPECT_NEAR(HslOf(293.5).lightness, 1.0 / 12, 1e-12);
    EXPECT_EQ(HslOf(3.25).saturation, 240);
    EXPECT_EQ(HslOf(4).saturation, 240);
}

TEST(ColorTable, StaysBlackBeyondItsEnd) {
    for (const double hcu : {294.0, 294.5, 295.0, 300.7, 1e9, 1e300}) {
        EXPECT_EQ(HslOf(hcu).lightness, 0) << hcu;
        EXPECT_EQ(ColorTable().HCUToColor(hcu), (Rgb{0, 0, 0})) << hcu;
    }
}

TEST(ColorTable, ShowsColours) {
    const ColorTable table;
    // Below key 1: lightness 240 of 240 is white.
    EXPECT_EQ(table.HCUToColor(0), (Rgb{255, 255, 255}));
    // 28;167: angle 42, L = 0.6958333, m2 = 1, m1 = 0.3916667: red 1, green m1 + 0.6083333*42/60 = 0.8175 =
    // 208.4625, blue at -78 + 360 = 282 is m1 = 99.875
    EXPECT_EQ(table.HCUToColor(5), (Rgb{255, 208, 100}));
    // 10;63: angle 15, L = 0.2625, m2 = 0.525, m1 = 0: red 133.875, green 0.525*15/60 = 0.13125 = 33.46875
    EXPECT_EQ(table.HCUToColor(25), (Rgb{134, 33, 0}));
    // 0;29: m2 = 2*29/240 = 0.2416667: red 61.625
    EXPECT_EQ(table.HCUToColor(100), (Rgb{62, 0, 0}));
    // 30;178.5: angle 45, L = 0.74375, m1 = 0.4875: green 0.4875 + 0.5125*0.75 = 0.871875 = 222.328, blue
    // 124.3125
    EXPECT_EQ(table.HCUToColor(4), (Rgb{255, 222, 124}));
}

TEST(BeerColor, WithoutSaturationIsGrey) {
    // 120 / 240 * 255 = 127.5
    EXPECT_EQ(HSLToRGB(80, 120, 0), (Rgb{128, 128, 128}));
    EXPECT_EQ(HSLToRGB(80, 0, 0), (Rgb{0, 0, 0}));
}

TEST(BeerColor, PureHues) {
    EXPECT_EQ(HSLToRGB(0, 120, 240), (Rgb{255, 0, 0}));
    EXPECT_EQ(HSLToRGB(80, 120, 240), (Rgb{0, 255, 0}));
    EXPECT_EQ(HSLToRGB(160, 120, 240), (Rgb{0, 0, 255}));
}

TEST(BeerColor, ChannelRisesStandsFallsAndRests) {
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 0), 0.2);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 30), 0.5);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 60), 0.8);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 179), 0.8);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 210), 0.5);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 240), 0.2);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 360), 0.2);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, 390), 0.5);
    EXPECT_DOUBLE_EQ(HueToChannel(0.2, 0.8, -330), 0.5);
}

TEST(BeerColor, SrmIsAPowerOfHcu) {
    EXPECT_EQ(HCUToSRM(0), 0);
    EXPECT_DOUBLE_EQ(HCUToSRM(1), 1.4922);
    // 1.4922 * 100^0.6859 = 1.4922 * 10^1.3718 = 1.4922 * 23.5397
    EXPECT_NEAR(HCUToSRM(100), 35.12587, 1e-4);
    EXPECT_THROW(HCUToSRM(1e308 * 10), Error);
}

}  // namespace
}  // namespace tw

#include "document/StyleRange.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

TEST(StyleRange, ReadsEveryFormOfALabel) {
    EXPECT_EQ(RangeOfLabel("1.045 - 1.060"), (StyleRange{1.045, 1.06}));
    EXPECT_EQ(RangeOfLabel("4.5 - 6.2 abv"), (StyleRange{4.5, 6.2}));
    EXPECT_EQ(RangeOfLabel(">= 1.010"), (StyleRange{1.01, {}}));
    EXPECT_EQ(RangeOfLabel("<= 8 SRM"), (StyleRange{{}, 8}));
    EXPECT_EQ(RangeOfLabel("5.0 abv"), (StyleRange{5.0, 5.0}));
    EXPECT_EQ(RangeOfLabel(""), std::nullopt);
    EXPECT_EQ(RangeOfLabel("about right"), std::nullopt);
    EXPECT_EQ(RangeOfLabel("5 - x"), std::nullopt);
}

TEST(StyleRange, ReadsTheFirstNumberOfAFigure) {
    EXPECT_EQ(FigureOf("1.052"), 1.052);
    EXPECT_EQ(FigureOf("5.5% abv"), 5.5);
    EXPECT_EQ(FigureOf("8 SRM (11 HCU)"), 8);
    EXPECT_EQ(FigureOf(">50 SRM (300 HCU)"), 50);
    EXPECT_EQ(FigureOf("-0.4% abv"), -0.4);
    EXPECT_EQ(FigureOf(".86 volumes"), .86);
    EXPECT_EQ(FigureOf(""), std::nullopt);
}

TEST(StyleRange, CountsItsEndsAsWithin) {
    const StyleRange both{4, 6};
    EXPECT_EQ(PlaceIn(both, 3.9), RangePlace::Below);
    EXPECT_EQ(PlaceIn(both, 4), RangePlace::Within);
    EXPECT_EQ(PlaceIn(both, 6), RangePlace::Within);
    EXPECT_EQ(PlaceIn(both, 6.1), RangePlace::Above);
    EXPECT_EQ(PlaceIn({{}, 6}, -9), RangePlace::Within);
    EXPECT_EQ(PlaceIn({4, {}}, 99), RangePlace::Within);
}

TEST(StyleRange, TakesTheMiddleHalfOfItsBar) {
    const RangeScale middle = ScaleOf({4, 6}, 5);
    EXPECT_DOUBLE_EQ(middle.bandStart, 0.25);
    EXPECT_DOUBLE_EQ(middle.bandEnd, 0.75);
    EXPECT_DOUBLE_EQ(middle.mark, 0.5);
    EXPECT_DOUBLE_EQ(ScaleOf({4, 6}, 4).mark, 0.25);
    EXPECT_DOUBLE_EQ(ScaleOf({4, 6}, 7).mark, 1);
    EXPECT_DOUBLE_EQ(ScaleOf({4, 6}, 700).mark, 1);
    EXPECT_DOUBLE_EQ(ScaleOf({4, 6}, -700).mark, 0);
}

TEST(StyleRange, RunsToTheEndOfTheBarWhereItIsOpen) {
    EXPECT_DOUBLE_EQ(ScaleOf({25, {}}, 25).bandEnd, 1);
    EXPECT_DOUBLE_EQ(ScaleOf({25, {}}, 25).mark, 0.25);
    EXPECT_DOUBLE_EQ(ScaleOf({{}, 8}, 8).bandStart, 0);
    EXPECT_DOUBLE_EQ(ScaleOf({{}, 8}, 8).mark, 0.75);
}

TEST(StyleRange, OfOneValueIsStillSeen) {
    const RangeScale scale = ScaleOf({5, 5}, 5);
    EXPECT_LT(scale.bandStart, 0.5);
    EXPECT_GT(scale.bandEnd, 0.5);
    EXPECT_DOUBLE_EQ(scale.mark, 0.5);
    EXPECT_DOUBLE_EQ(ScaleOf({0, 0}, 0).mark, 0.5);
}

}  // namespace
}  // namespace tw::test

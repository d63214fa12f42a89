#include <cmath>
#include <gtest/gtest.h>

#include "values/NumberText.h"

namespace tw {
namespace {

struct Case {
    double value;
    std::string_view pattern;
    std::string_view text;
};

void ExpectFormatted(const std::vector<Case>& cases) {
    for (const Case& c : cases)
        EXPECT_EQ(FormatNumber(c.value, c.pattern), c.text) << c.value << " as " << c.pattern;
}

TEST(FormatNumber, WritesEveryDisplayFormat) {
    ExpectFormatted({{1.05, "0.##0", "1.050"},
                     {1, "0.##0", "1.000"},
                     {1.0484, "0.##0", "1.048"},
                     {1.05, "<= 0.##0", "<= 1.050"},
                     {1.05, ">= 0.##0", ">= 1.050"},
                     {0.05234, "0.0% abv", "5.2% abv"},
                     {5.25, "0.0 abv", "5.3 abv"},
                     {12.4, "0", "12"},
                     {12.5, "0 SRM", "13 SRM"},
                     {0.4, "0", "0"},
                     {2.5, "0.00 volumes", "2.50 volumes"},
                     {12.3456, "0.##0\u00B0 Plato (", "12.346\u00B0 Plato ("},
                     {75, "0.#0", "75.00"},
                     {5.05, "0.0", "5.1"},
                     {164.6, "0 per 12 fl.oz.", "165 per 12 fl.oz."},
                     {28.04, "0.0\u00B0 F", "28.0\u00B0 F"},
                     {-2.25, "0.0\u00B0 C", "-2.3\u00B0 C"},
                     {5, "0.#0 gal.", "5.00 gal."}});
}

TEST(FormatNumber, ShowsAPlaceholderOfChoiceOnlyIfNeeded) {
    ExpectFormatted({{0, "#.0", ".0"},
                     {0.5, "#.0", ".5"},
                     {0.96, "#.0", "1.0"},
                     {12.34, "#.0", "12.3"},
                     {-0.5, "#.0", "-.5"},
                     {0.004, "#.00", ".00"},
                     {150, "#.00", "150.00"},
                     {1.5, "0.###", "1.5"},
                     {2, "0.###", "2"},
                     {1.2346, "0.###", "1.235"},
                     {7, "#", "7"},
                     {0, "#", ""}});
}

TEST(FormatNumber, FillsUpWithZeros) {
    ExpectFormatted({{1.05, "000000000000.000000000000", "000000000001.050000000000"},
                     {0, "000000000000.000000000000", "000000000000.000000000000"},
                     {-2.5, "000000000000.000000000000", "-000000000002.500000000000"},
                     {123456789012.25, "000000000000.000000000000", "123456789012.250000000000"},
                     {1234567890123.0, "000000000000.000000000000", "1234567890123.000000000000"},
                     {1e-12, "000000000000.000000000000", "000000000000.000000000001"},
                     {7, "#00", "07"},
                     {0.001, "0.0000", "0.0010"}});
}

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalText) {
    ExpectFormatted({{0.5, "0", "1"},
                     {1.5, "0", "2"},
                     {2.5, "0", "3"},
                     {-2.5, "0", "-3"},
                     {1.005, "0.00", "1.01"},  // the double is slightly below
                     {2.675, "0.00", "2.68"},
                     {1.0045, "0.##0", "1.005"},
                     {0.045, "0.0%", "4.5%"},
                     {0.0445, "0.0%", "4.5%"},
                     {9.995, "0.00", "10.00"},
                     {99.95, "0.0", "100.0"},
                     {0.0949, "0.0", "0.1"},
                     {0.05, "0.0", "0.1"},
                     {0.0499, "0.0", "0.0"},
                     {0.49999999999999994, "0", "0"}});
}

TEST(FormatNumber, ShiftsTheDecimalTextForPercent) {
    // 0.285 * 100 is 28.499999999999996 in binary.
    ExpectFormatted({{0.285, "0%", "29%"},
                     {1, "0%", "100%"},
                     {0, "0.0% abv", "0.0% abv"},
                     {0.000012, "0.000%", "0.001%"}});
}

TEST(FormatNumber, ShowsNoSignForANumberThatRoundsToZero) {
    ExpectFormatted({{-0.04, "0.0", "0.0"},
                     {-0.0, "0.0", "0.0"},
                     {-0.4, "0 SRM", "0 SRM"},
                     {-0.0004, "0.0% abv", "0.0% abv"},
                     {-0.05, "0.0", "-0.1"}});
}

TEST(FormatNumber, KeepsTheTextAroundThePlaceholders) {
    ExpectFormatted({{5, "about 0.0 (or so)", "about 5.0 (or so)"},
                     {5, "no placeholder", "no placeholder"},
                     {5, "", ""},
                     {0.25, "x.00", "x.25"},
                     {5, "0.0 and 0.0", "5.0 and 0.0"}});
}

TEST(FormatNumber, WritesTheWholeRangeOfDoubles) {
    EXPECT_EQ(FormatNumber(1e300, "0.0"), "1" + std::string(300, '0') + ".0");
    EXPECT_EQ(FormatNumber(1e-300, "0.0"), "0.0");
    EXPECT_EQ(FormatNumber(1.7976931348623157e308, "0%"), "17976931348623157" + std::string(294, '0') + "%");
}

struct Rounding {
    double value;
    int decimals;
    std::string_view text;
    double rounded;
};

TEST(FormatQuantity, ReturnsTheRoundedNumberAndItsShortestText) {
    const std::vector<Rounding> cases{{5.004, 0, "5", 5},
                                      {5.006, 0, "5.01", 5.01},
                                      {5.25, 0, "5.25", 5.25},
                                      {5.0, 0, "5", 5},
                                      {1.2345, 3, "1.235", 1.235},
                                      {1.005, 0, "1.01", 1.01},
                                      {-1.005, 0, "-1.01", -1.01},
                                      {0.06, 1, "0.1", 0.1},
                                      {0.05, 1, "0.1", 0.1},
                                      {0.04, 1, "0", 0},
                                      {5.004, -3, "5", 5},
                                      {9.999, 2, "10", 10},
                                      {99.996, 0, "100", 100},
                                      {0.000499, 3, "0", 0},
                                      {0.0005, 3, "0.001", 0.001},
                                      {100000.004, 0, "100000", 100000},
                                      {2.5, 100, "2.5", 2.5},
                                      {1e-9, 2147483647, "0.000000001", 1e-9},
                                      {1e22, 0, "10000000000000000000000", 1e22},
                                      {123456789012345.67, 1, "123456789012345.7", 123456789012345.7}};
    for (const Rounding& c : cases) {
        const RoundedQuantity rounded = FormatQuantity(c.value, c.decimals);
        EXPECT_EQ(rounded.text, c.text) << c.value;
        EXPECT_EQ(rounded.value, c.rounded) << c.value;
    }
}

TEST(FormatQuantity, LeavesNoSignOnZero) {
    for (const double start : {-0.0, -0.001, -0.0049}) {
        const RoundedQuantity rounded = FormatQuantity(start, 0);
        EXPECT_EQ(rounded.text, "0");
        EXPECT_EQ(rounded.value, 0);
        EXPECT_FALSE(std::signbit(rounded.value)) << start;
    }
}

TEST(FormatQuantity, ReturnsTheTextOfTheNumberThatItReturns) {
    for (int i = -20000; i < 20000; ++i) {
        const double start = i * 0.0137 + i * 1e-9;
        const RoundedQuantity rounded = FormatQuantity(start, 0);
        ASSERT_EQ(rounded.text, NumberText(rounded.value));
        ASSERT_NEAR(rounded.value, start, 0.005 + 1e-9);
        const RoundedQuantity again = FormatQuantity(rounded.value, 0);
        ASSERT_EQ(again.text, rounded.text);
        ASSERT_EQ(again.value, rounded.value);
    }
}

}  // namespace
}  // namespace tw

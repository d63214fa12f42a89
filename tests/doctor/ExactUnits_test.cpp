// The quantities that texts of recipes state, in exact units.
#include "doctor/ExactUnits.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

TEST(ExactUnits, WeightsWithTheirUnits) {
    EXPECT_DOUBLE_EQ(KilogramsIn("4.5 kg").value(), 4.5);
    EXPECT_DOUBLE_EQ(KilogramsIn(" 28 g ").value(), 0.028);
    EXPECT_DOUBLE_EQ(KilogramsIn("9 lb 4 oz").value(), 9.25 * 0.45359237);
    EXPECT_DOUBLE_EQ(KilogramsIn("1/2 oz").value(), 0.5 * 0.028349523125);
    EXPECT_DOUBLE_EQ(KilogramsIn("2 1/4 lbs").value(), 2.25 * 0.45359237);
    for (const char* const none : {"", "4.5", "kg", "4 gal", "1/0 lb", "a lot", "4 lb and more"})
        EXPECT_FALSE(KilogramsIn(none)) << none;
}

TEST(ExactUnits, VolumesWithTheirUnits) {
    EXPECT_DOUBLE_EQ(LitresIn("5 gal").value(), 18.92705892);
    EXPECT_DOUBLE_EQ(LitresIn("23 L").value(), 23);
    EXPECT_DOUBLE_EQ(LitresIn("1 gal 2 qt").value(), 1.5 * 3.785411784);
    EXPECT_DOUBLE_EQ(LitresIn("128 fl oz").value(), 3.785411784);
    EXPECT_DOUBLE_EQ(LitresIn("1 pt 112 Fl. Oz").value(), 3.785411784);
    EXPECT_FALSE(LitresIn("8 fl"));
    EXPECT_FALSE(LitresIn("5"));
}

TEST(ExactUnits, TheUnitAtTheEndOfAnAmount) {
    EXPECT_EQ(UnitWordOf("9.25 lb"), "lb");
    EXPECT_EQ(UnitWordOf(" 9 lb 4 oz. "), "oz");
    EXPECT_EQ(UnitWordOf("8 fl oz"), "fl oz");
    EXPECT_EQ(UnitWordOf("8"), "");
}

TEST(ExactUnits, TimesWithAndWithoutAUnit) {
    EXPECT_DOUBLE_EQ(MinutesIn("60 min").value(), 60);
    EXPECT_DOUBLE_EQ(MinutesIn("60").value(), 60);
    EXPECT_DOUBLE_EQ(MinutesIn("7 days").value(), 10080);
    EXPECT_DOUBLE_EQ(MinutesIn("1 1/2 h").value(), 90);
    EXPECT_DOUBLE_EQ(MinutesIn("2 weeks").value(), 20160);
    EXPECT_FALSE(MinutesIn("a while"));
    EXPECT_FALSE(MinutesIn(""));
}

TEST(ExactUnits, AmountsOfAnyKind) {
    EXPECT_EQ(AmountIn("5 g").value().of, ForeignAmount::Of::Mass);
    EXPECT_EQ(AmountIn("1 tsp").value().of, ForeignAmount::Of::Volume);
    EXPECT_EQ(AmountIn("2").value().of, ForeignAmount::Of::Pieces);
    EXPECT_EQ(AmountIn("1 pkg").value().of, ForeignAmount::Of::Pieces);
    EXPECT_FALSE(AmountIn("some"));
}

}  // namespace
}  // namespace tw

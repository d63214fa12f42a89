#include "values/SettingText.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

TEST(SettingText, FlagsAreWordsOrNumbers) {
    bool value = false;
    EXPECT_TRUE(ReadFlag("true", value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(ReadFlag("False", value));
    EXPECT_FALSE(value);
    EXPECT_TRUE(ReadFlag("-1", value));
    EXPECT_TRUE(value);
    EXPECT_TRUE(ReadFlag("0", value));
    EXPECT_FALSE(value);
    EXPECT_FALSE(ReadFlag("yes", value));
    EXPECT_FALSE(ReadFlag("", value));
}

TEST(SettingText, WholeNumbersStayWithinTheirRange) {
    int value = 7;
    EXPECT_FALSE(ReadWhole("61", 1, 60, value));
    EXPECT_FALSE(ReadWhole("x", 1, 60, value));
    EXPECT_EQ(value, 7);
    EXPECT_TRUE(ReadWhole(" 59.5 ", 1, 60, value));
    EXPECT_EQ(value, 60);
}

TEST(SettingText, MoreDigitsThanANumberHoldsAreNoNumber) {
    double value = 7;
    EXPECT_FALSE(ReadReal(std::string(400, '9'), value));
    EXPECT_EQ(value, 7);
}

}  // namespace
}  // namespace tw::test

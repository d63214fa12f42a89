#include "values/SettingText.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

TEST(SettingText, FlagsAreWordsOrNumbers) {
    EXPECT_EQ(ReadFlag("true"), true);
    EXPECT_EQ(ReadFlag("False"), false);
    EXPECT_EQ(ReadFlag("-1"), true);
    EXPECT_EQ(ReadFlag("0"), false);
    EXPECT_EQ(ReadFlag("yes"), std::nullopt);
    EXPECT_EQ(ReadFlag(""), std::nullopt);
}

TEST(SettingText, WholeNumbersStayWithinTheirRange) {
    EXPECT_EQ(ReadWhole("61", 1, 60), std::nullopt);
    EXPECT_EQ(ReadWhole("x", 1, 60), std::nullopt);
    EXPECT_EQ(ReadWhole(" 59.5 ", 1, 60), 60);
}

TEST(SettingText, MoreDigitsThanANumberHoldsAreNoNumber) {
    EXPECT_EQ(ReadReal(std::string(400, '9')), std::nullopt);
}

TEST(SettingText, WhatWasNotReadLeavesItsField) {
    int field = 7;
    EXPECT_FALSE(TakeInto(field, ReadWhole("x", 1, 60)));
    EXPECT_EQ(field, 7);
    EXPECT_TRUE(TakeInto(field, ReadWhole("8", 1, 60)));
    EXPECT_EQ(field, 8);
}

}  // namespace
}  // namespace tw::test

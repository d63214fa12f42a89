#include "values/Text.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

TEST(Trim, TakesBlanksAloneFromBothEnds) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(Trim("\u00A0a"), "\u00A0a");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(IsBlank, KnowsBlanksAlone) {
    EXPECT_TRUE(IsBlank(""));
    EXPECT_TRUE(IsBlank("   "));
    EXPECT_FALSE(IsBlank("\t"));
    EXPECT_FALSE(IsBlank(" a "));
}

TEST(Upper, MapsBeyondAscii) {
    EXPECT_EQ(Upper("Gal."), "GAL.");
    EXPECT_EQ(Upper("[`{z"), "[`{Z");
    EXPECT_EQ(Upper("k\u00F6lsch"), "K\u00D6LSCH");
    EXPECT_EQ(Upper("\u0436\u0438\u0432\u043E"), "\u0416\u0418\u0412\u041E");
    EXPECT_EQ(Upper("\U00010428"), "\U00010400");
    EXPECT_EQ(Upper("\u00B0"), "\u00B0");
    EXPECT_EQ(Upper(""), "");
}

TEST(Upper, KeepsBytesThatAreNoText) {
    EXPECT_EQ(Upper("a\xFF"
                    "b"),
              "A\xFF"
              "B");
    EXPECT_EQ(Upper("\xC3"), "\xC3");
    EXPECT_EQ(Upper("\xE2\x82z"), "\xE2\x82Z");
    EXPECT_EQ(Upper(std::string_view("a\0b", 3)), std::string_view("A\0B", 3));
}

TEST(SameName, ComparesTrimmedWithoutCase) {
    EXPECT_TRUE(SameName(" Old Ale ", "old ale"));
    EXPECT_TRUE(SameName("K\u00D6LSCH", "k\u00F6lsch"));
    EXPECT_TRUE(SameName("", "   "));
    EXPECT_FALSE(SameName("Old Ale", "OldAle"));
    EXPECT_FALSE(SameName("K\u00D6LSCH", "kolsch"));
    EXPECT_FALSE(SameName("a", "ab"));
}

int Sign(int order) {
    return (order > 0) - (order < 0);
}

struct Order {
    std::string_view a;
    std::string_view b;
    int sign;
};

TEST(CompareNoCase, SortsByUpperCaseCodePoints) {
    for (const Order& c : std::vector<Order>{{"", "", 0},
                                             {"", "a", -1},
                                             {"abc", "ABC", 0},
                                             {"abc", "ABD", -1},
                                             {"abc", "ab", 1},
                                             {" a", "a", -1},
                                             {"a_", "aB", 1},  // "_" sorts after the upper-case letters
                                             {"k\u00F6", "K\u00D6", 0},
                                             {"kz", "k\u00F6", -1},
                                             {"\u00E4", "\u00F6", -1},
                                             {"\uFFFD", "\U00010400", -1},
                                             {"a\u0131", "AI", 0},  // a dotless i becomes I in upper case
                                             {"a\xFF", "a\xFE", 1}}) {
        EXPECT_EQ(Sign(CompareNoCase(c.a, c.b)), c.sign) << c.a << " " << c.b;
        EXPECT_EQ(Sign(CompareNoCase(c.b, c.a)), -c.sign) << c.a << " " << c.b;
    }
}

TEST(ReplaceAll, GoesFromLeftToRight) {
    EXPECT_EQ(ReplaceAll("O'Hara's", "'", "''"), "O''Hara''s");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
    EXPECT_EQ(ReplaceAll("", "x", "y"), "");
    EXPECT_EQ(ReplaceAll("xx", "x", ""), "");
}

}  // namespace
}  // namespace tw

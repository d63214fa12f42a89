#include <gtest/gtest.h>

#include "platform/Error.h"
#include "values/QuantityParsers.h"

namespace tw {
namespace {

struct Cut {
    std::string token;
    std::string rest;
    bool operator==(const Cut&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Cut& cut) {
    return out << "[" << cut.token << "][" << cut.rest << "]";
}

Cut CutOf(std::string_view text) {
    const std::string_view token = GetToken(text);
    return {std::string(token), std::string(text)};
}

TEST(Tokeniser, GivesAnEmptyTokenForAnEmptyText) {
    EXPECT_EQ(CutOf(""), (Cut{"", ""}));
}

TEST(Tokeniser, EndsANumberBeforeTheFirstOtherCharacter) {
    EXPECT_EQ(CutOf("5 GAL"), (Cut{"5", "GAL"}));
    EXPECT_EQ(CutOf("5GAL"), (Cut{"5", "GAL"}));
    EXPECT_EQ(CutOf("5.25"), (Cut{"5.25", ""}));
    EXPECT_EQ(CutOf("1/2 QT"), (Cut{"1/2", "QT"}));
    EXPECT_EQ(CutOf(".5 QT"), (Cut{".5", "QT"}));
    EXPECT_EQ(CutOf("1,000"), (Cut{"1", ",000"}));
}

TEST(Tokeniser, TakesAMinusOnlyInTheFirstPlace) {
    EXPECT_EQ(CutOf("-5"), (Cut{"-5", ""}));
    EXPECT_EQ(CutOf("1-2"), (Cut{"1", "-2"}));
    EXPECT_EQ(CutOf("-X"), (Cut{"-", "X"}));
}

TEST(Tokeniser, EndsAWordBeforeABlankOrATab) {
    EXPECT_EQ(CutOf("FL OZ"), (Cut{"FL", "OZ"}));
    EXPECT_EQ(CutOf("FL\tOZ"), (Cut{"FL", "\tOZ"}));
    EXPECT_EQ(CutOf("GALLONS"), (Cut{"GALLONS", ""}));
}

TEST(Tokeniser, EndsAWordBehindItsFirstPoint) {
    EXPECT_EQ(CutOf("GAL.5"), (Cut{"GAL.", "5"}));
    EXPECT_EQ(CutOf("GAL."), (Cut{"GAL.", ""}));
    EXPECT_EQ(CutOf("A.B.C"), (Cut{"A.", "B.C"}));
}

// A line break does not end a word.
TEST(Tokeniser, KeepsLineBreaksInAWord) {
    EXPECT_EQ(CutOf("GAL\r\nX"), (Cut{"GAL\r\nX", ""}));
    EXPECT_EQ(CutOf("GAL\nX Y"), (Cut{"GAL\nX", "Y"}));
}

TEST(Tokeniser, LeftTrimsTheRestOfBlanksButNotOfTabs) {
    EXPECT_EQ(CutOf("5    GAL"), (Cut{"5", "GAL"}));
    EXPECT_EQ(CutOf("5 \tGAL"), (Cut{"5", "\tGAL"}));
    EXPECT_EQ(CutOf(" 5 GAL"), (Cut{"", "5 GAL"}));
}

TEST(Tokeniser, DropsALeadingTilde) {
    EXPECT_EQ(CutOf("~5 gal"), (Cut{"5", "gal"}));
    EXPECT_EQ(CutOf("~  5 gal  "), (Cut{"5", "gal"}));
    EXPECT_EQ(CutOf("~"), (Cut{"", ""}));
    EXPECT_EQ(CutOf("~~5"), (Cut{"~5", ""}));
    EXPECT_EQ(CutOf("5~"), (Cut{"5", "~"}));
}

TEST(Tokeniser, CutsFromTheFirstBracketOn) {
    EXPECT_EQ(CutOf("30 SRM (75 HCU)"), (Cut{"30", "SRM"}));
    EXPECT_EQ(CutOf("30 (a) (b)"), (Cut{"30", ""}));
    EXPECT_EQ(CutOf("(5)"), (Cut{"", ""}));
    EXPECT_EQ(CutOf("~(5)"), (Cut{"", ""}));
}

// The first character is not read again after the bracket has been cut, so a blank there
// turns a number into a word.
TEST(Tokeniser, KeepsTheKindOfItsFirstCharacterWhenABracketIsCut) {
    EXPECT_EQ(CutOf(" 5.5 (x)"), (Cut{"5.", "5"}));
    EXPECT_EQ(CutOf(" 1/2 3 (x)"), (Cut{"1/2", "3"}));
}

struct Numeral {
    std::string_view text;
    double value;
};

TEST(ParseReal, AcceptsSignDigitsAndOnePoint) {
    constexpr Numeral kGood[] = {{"0", 0},      {"5", 5},  {"-5", -5}, {"1.050", 1.05}, {".5", 0.5},
                                 {"-.5", -0.5}, {"5.", 5}, {"007", 7}, {"-0.25", -0.25}};
    for (const Numeral& good : kGood) {
        EXPECT_EQ(ParseReal(good.text), good.value) << good.text;
    }
}

TEST(ParseReal, RefusesEverythingElse) {
    for (const std::string_view bad : {"", " ", ".", "-", "-.", "+5", " 5", "5 ", "5e3", "1,000", "1.2.3",
                                       "--5", "5-", "0x10", "inf", "nan", "1/2", "\xC2\xB2"}) {
        EXPECT_FALSE(ParseReal(bad)) << bad;
    }
}

TEST(ParseWholeNumber, RefusesAPoint) {
    EXPECT_FALSE(ParseWholeNumber("5."));
    EXPECT_FALSE(ParseWholeNumber("5.0"));
    EXPECT_FALSE(ParseWholeNumber(""));
    EXPECT_EQ(ParseWholeNumber("-12"), -12);
}

TEST(ParseFraction, IsAQuotientOfWholeNumbers) {
    EXPECT_EQ(ParseFraction("1/2"), 0.5);
    EXPECT_EQ(ParseFraction("-3/4"), -0.75);
    EXPECT_EQ(ParseFraction("1/-2"), -0.5);
    EXPECT_EQ(ParseFraction("0/7"), 0);
}

TEST(ParseFraction, RefusesAnythingElse) {
    for (const std::string_view bad : {"", "1", "/", "1/", "/2", "1/2.5", "1.5/2", "1/2/3", "1 / 2", "a/b"}) {
        EXPECT_FALSE(ParseFraction(bad)) << bad;
    }
}

template <typename Call>
std::string RaisedBy(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.WithNumber();
    }
    return "nothing";
}

TEST(ParseFraction, RaisesForAZeroDenominator) {
    for (const std::string_view text : {"1/0", "0/0", "-5/000", "1/-0"}) {
        EXPECT_EQ(RaisedBy([&] { ParseFraction(text); }), "Division by zero (11)") << text;
    }
}

struct Mixed {
    bool read;
    double value;
    std::string rest;
    bool operator==(const Mixed&) const = default;
};

Mixed MixedOf(std::string_view token, std::string_view rest) {
    const std::optional<double> read = ParseMixedNumber(token, rest);
    return {read.has_value(), read.value_or(99), std::string(rest)};
}

TEST(ParseMixedNumber, AddsAFractionBehindAWholeNumber) {
    EXPECT_EQ(MixedOf("2", "1/2 QT"), (Mixed{true, 2.5, "QT"}));
    EXPECT_EQ(MixedOf("2", "1/2"), (Mixed{true, 2.5, ""}));
    EXPECT_EQ(MixedOf("2", "~1/2 QT"), (Mixed{true, 2.5, "QT"}));
    EXPECT_EQ(MixedOf("2", "-1/2"), (Mixed{true, 1.5, ""}));
}

// The fraction is added even to a negative whole number.
TEST(ParseMixedNumber, AddsTheFractionToANegativeNumber) {
    EXPECT_EQ(MixedOf("-2", "1/2"), (Mixed{true, -1.5, ""}));
}

TEST(ParseMixedNumber, LeavesTheRestWithoutAFraction) {
    EXPECT_EQ(MixedOf("2", "QT"), (Mixed{true, 2, "QT"}));
    EXPECT_EQ(MixedOf("2", "3 QT"), (Mixed{true, 2, "3 QT"}));
    EXPECT_EQ(MixedOf("2", "1/2.5 QT"), (Mixed{true, 2, "1/2.5 QT"}));
    EXPECT_EQ(MixedOf("2", "~ QT/X"), (Mixed{true, 2, "~ QT/X"}));
    EXPECT_EQ(MixedOf("2.5", "1/2"), (Mixed{true, 2.5, "1/2"}));
    EXPECT_EQ(MixedOf("1/2", "1/4"), (Mixed{true, 0.5, "1/4"}));
}

TEST(ParseMixedNumber, RefusesWhatIsNoNumber) {
    EXPECT_EQ(MixedOf("", "5"), (Mixed{false, 99, "5"}));
    EXPECT_EQ(MixedOf("GAL", "5"), (Mixed{false, 99, "5"}));
    EXPECT_EQ(MixedOf("1/2.5", ""), (Mixed{false, 99, ""}));
}

TEST(ParseMixedNumber, RaisesForAZeroDenominatorBehindAWholeNumber) {
    EXPECT_EQ(RaisedBy([] { MixedOf("5", "1/0 GAL"); }), "Division by zero (11)");
}

TEST(ParseMixedNumber, RaisesWhenASumLeavesTheRangeOfADouble) {
    const std::string largest = "17976931348623157" + std::string(292, '0');
    EXPECT_EQ(RaisedBy([&] { MixedOf(largest, largest + "/1"); }), "Overflow (6)");
}

}  // namespace
}  // namespace tw

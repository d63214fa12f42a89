#include "values/NumberText.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "platform/Error.h"

namespace tw {
namespace {

struct Case {
    double value;
    std::string text;
};

// Returns before, then digit count times, then behind.
std::string Repeated(std::string before, std::size_t count, char digit, std::string_view behind = "") {
    before.append(count, digit);
    return before.append(behind);
}

TEST(NumberText, IsTheShortestFixedNotation) {
    const std::vector<Case> cases{{0, "0"},
                                  {-0.0, "0"},
                                  {5, "5"},
                                  {-5, "-5"},
                                  {5.25, "5.25"},
                                  {1.05, "1.05"},
                                  {0.1, "0.1"},
                                  {-0.5, "-0.5"},
                                  {1.0 / 3, "0.3333333333333333"},
                                  {100000, "100000"},
                                  {0.0001, "0.0001"},
                                  {-0.00001, "-0.00001"},
                                  {1.5e-7, "0.00000015"},
                                  {123456.789, "123456.789"},
                                  {9007199254740991.0, "9007199254740991"},
                                  {9007199254740992.0, "9007199254740992"},
                                  {1e22, "10000000000000000000000"},
                                  {-1e15, "-1000000000000000"}};
    for (const Case& c : cases) {
        EXPECT_EQ(NumberText(c.value), c.text);
        std::string appended = "x";
        AppendNumberText(appended, c.value);
        EXPECT_EQ(appended, "x" + c.text);
    }
}

// 2^64 is 18446744073709551616; seventeen digits distinguish it from the neighbouring doubles.
TEST(NumberText, FillsALargeNumberWithZeros) {
    EXPECT_EQ(NumberText(18446744073709551616.0), "18446744073709552000");
    EXPECT_EQ(NumberText(-1.25e20), "-125000000000000000000");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::max()), Repeated("17976931348623157", 292, '0'));
}

TEST(NumberText, WritesTheSmallestNumbersInFixedNotation) {
    EXPECT_EQ(NumberText(std::numeric_limits<double>::denorm_min()), Repeated("0.", 323, '0', "5"));
    EXPECT_EQ(NumberText(std::numeric_limits<double>::min()), Repeated("0.", 307, '0', "22250738585072014"));
}

void ExpectRoundTrip(double value) {
    const std::string text = NumberText(value);
    ASSERT_EQ(ReadNumber(text), value) << text;
    ASSERT_EQ(text.find('e'), std::string::npos) << text;
}

TEST(NumberText, ReadsBackAsTheSameDouble) {
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> everyday(-1000, 1000);
    for (int i = 0; i < 50000; ++i) {
        const auto any = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        if (std::isfinite(any)) ExpectRoundTrip(any);
        const double number = everyday(random);
        ExpectRoundTrip(number);
        ExpectRoundTrip(std::round(number * 100) / 100);
        ExpectRoundTrip(std::round(number * 1e13));
    }
}

TEST(NumberText, HasNoDigitToSpare) {
    std::mt19937_64 random(12);
    std::uniform_real_distribution<double> everyday(1, 1000);
    for (int i = 0; i < 5000; ++i) {
        const double value = everyday(random);
        std::string text = NumberText(value);
        ASSERT_NE(text.back(), '0');
        text.pop_back();
        const std::optional<double> below = ReadNumber(text);
        ASSERT_TRUE(below);
        ASSERT_NE(*below, value) << text;
    }
}

TEST(ReadNumber, ReadsTheNearestDouble) {
    for (const std::string& text :
         {std::string("0.1"), std::string("1.050"), std::string("123456789012345"),
          std::string("12345678901234567"), std::string("0.000000000000001"), std::string("9007199254740993"),
          std::string("0.30000000000000004"), std::string("2.2250738585072011") + "0000000",
          Repeated("1", 300, '0'), Repeated("0.", 320, '0', "1")}) {
        EXPECT_EQ(ReadNumber(text), std::strtod(text.c_str(), nullptr)) << text;
    }
}

TEST(ReadNumber, RefusesWhatIsNotANumberAsAWhole) {
    for (const char* const text :
         {"", "-", ".", "1e5", "+1", " 1", "1 ", "1,5", "NaN", "1.2.3", "--1", "1-"}) {
        EXPECT_EQ(ReadNumber(text), std::nullopt) << text;
    }
}

TEST(ReadNumber, TakesDigitsBelowTheRangeForZero) {
    EXPECT_EQ(ReadNumber(Repeated("0.", 400, '0', "1")), 0);
    EXPECT_EQ(ReadNumber(Repeated("-.", 400, '0', "1")), 0);
}

TEST(ReadNumber, RaisesForDigitsBeyondTheRange) {
    for (const std::string& text :
         {std::string(310, '9'), Repeated("-", 310, '9', ".5"), Repeated("18", 307, '0')}) {
        try {
            ReadNumber(text);
            ADD_FAILURE() << text;
        } catch (const Error& error) {
            EXPECT_EQ(error.WithNumber(), "Overflow (6)");
        }
    }
    EXPECT_EQ(ReadNumber(std::string(310, '9') + "x"), std::nullopt);
}

}  // namespace
}  // namespace tw

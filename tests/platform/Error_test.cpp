#include "platform/Error.h"

#include <gtest/gtest.h>
#include <limits>

namespace tw {
namespace {

TEST(Error, CarriesSourceDescriptionAndNumber) {
    const Error error("TWNode.[PUT]Key", "Key is not unique", 35602);
    EXPECT_EQ(error.Source(), "TWNode.[PUT]Key");
    EXPECT_EQ(error.Description(), "Key is not unique");
    EXPECT_EQ(error.Number(), 35602);
    EXPECT_STREQ(error.what(), "Key is not unique");
}

TEST(Error, HasTheFormsOfTheBoxes) {
    const Error error("Database", "No current record", -3021);
    EXPECT_EQ(error.WithNumber(), "No current record (-3021)");
    EXPECT_EQ(error.WithSource(), "Database\r\nNo current record (-3021)");
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

TEST(Arithmetic, RaisesWithItsNumber) {
    EXPECT_EQ(RaisedBy([] { RaiseDivisionByZero(); }), "Division by zero (11)");
    EXPECT_EQ(RaisedBy([] { RaiseOverflow(); }), "Overflow (6)");
}

TEST(Divide, GivesTheQuotient) {
    EXPECT_EQ(Divide(1, 4), 0.25);
    EXPECT_EQ(Divide(0, -3), 0);
}

TEST(Divide, RaisesInsteadOfInfinityAndNaN) {
    EXPECT_EQ(RaisedBy([] { Divide(1, 0); }), "Division by zero (11)");
    EXPECT_EQ(RaisedBy([] { Divide(0, 0); }), "Division by zero (11)");
    EXPECT_EQ(RaisedBy([] { Divide(1, -0.0); }), "Division by zero (11)");
    EXPECT_EQ(RaisedBy([] { Divide(1e300, 1e-300); }), "Overflow (6)");
}

TEST(Finite, PassesNumbersAndRaisesForTheRest) {
    EXPECT_EQ(Finite(-2.5), -2.5);
    EXPECT_EQ(RaisedBy([] { Finite(std::numeric_limits<double>::infinity()); }), "Overflow (6)");
    EXPECT_EQ(RaisedBy([] { Finite(std::numeric_limits<double>::quiet_NaN()); }), "Overflow (6)");
}

}  // namespace
}  // namespace tw

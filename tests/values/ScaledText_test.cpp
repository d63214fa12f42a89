// Tests of amounts that keep their units when they are scaled, with figures calculated by hand.
#include "values/ScaledText.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "values/QuantityParsers.h"

namespace tw::test {
namespace {

using enum AmountKind;

struct Case {
    AmountKind kind;
    const char* typed;
    double factor;
    const char* scaled;
};

void Expect(const Case& c) {
    const auto scaled = ScaledText(c.typed, c.factor, c.kind);
    EXPECT_EQ(scaled.value_or("(nothing)"), c.scaled) << c.typed << " times " << c.factor;
}

TEST(ScaledText, KeepsTheUnitAsItWasTyped) {
    for (const Case& c : std::initializer_list<Case>{
             {Pounds, "8 lb 4 oz", 2, "16 lb 8 oz"},
             {Pounds, "250 g", 2, "500 g"},
             {Pounds, "4.2 kg", 0.5, "2.1 kg"},
             {Pounds, "12 oz", 1.5, "18 oz"},
             {Pounds, "10", 2, "20"},
             {Pounds, "10 lbs.", 0.25, "2.5 lbs."},
             {Pounds, "250g", 2, "500g"},
             {Pounds, "3  LB", 2, "6  LB"},
             {Volume, "20 L", 2, "40 L"},
             {Volume, "2 1/2 qt", 2, "5 qt"},
             {Volume, "5 gal", 2, "10 gal"},
             {Volume, "64 fl oz", 0.5, "32 fl oz"},
             {Volume, "64 oz", 0.5, "32 oz"},
             {Volume, "10 p", 0.5, "5 p"},
             {Volume, "500 ml", 3, "1500 ml"},
             {Ounces, "1.5 oz", 2, "3 oz"},
             {Ounces, "4", 2, "8"},
             {Ounces, "1 lb", 0.5, "0.5 lb"},
             {Grams, "5 grams", 2, "10 grams"},
             {Grams, "3", 2, "6"},
             {Grams, "0.2 oz", 2, "0.4 oz"},
             {HopAmount, "8 AAU", 2, "16 AAU"},
             {HopAmount, "20 IBUs", 1.5, "30 IBUs"},
             {HopAmount, "28 g", 0.5, "14 g"},
             {HopAmount, "2", 2, "4"},
             {Pressure, "10 psi", 1.5, "15 psi"},
             {Pressure, "70 kPa", 2, "140 kPa"},
             {Pressure, "0.7 atm", 0.5, "0.35 atm"},
             {Pressure, "12", 0.5, "6"},
         })
        Expect(c);
}

TEST(ScaledText, RoundsAsTheUnitIsMeasured) {
    for (const Case& c : std::initializer_list<Case>{
             // 1/3: 83.333 g, 0.0833 kg, 3.3333 lb, 1.6667 oz, 6.6667 L, 166.67 ml
             {Pounds, "250 g", 1.0 / 3, "83.3 g"},
             {Pounds, "0.25 kg", 1.0 / 3, "0.083 kg"},
             {Pounds, "10 lb", 1.0 / 3, "3.33 lb"},
             {Ounces, "5 oz", 1.0 / 3, "1.67 oz"},
             {Volume, "20 L", 1.0 / 3, "6.67 L"},
             {Volume, "500 ml", 1.0 / 3, "166.7 ml"},
             {HopAmount, "20 g", 1.0 / 3, "6.7 g"},
             {Grams, "5 g", 1.0 / 3, "1.667 g"},
             {HopAmount, "8 AAU", 1.0 / 3, "2.67 AAU"},
             {Pressure, "70 kPa", 1.0 / 3, "23.3 kPa"},
             {Pressure, "0.7 atm", 1.0 / 3, "0.233 atm"},
             // A tie goes up: 0.125 oz.
             {Ounces, "0.25 oz", 0.5, "0.13 oz"},
             // 0.004 oz and 0.02 g would both vanish.
             {Ounces, "0.04 oz", 0.1, "0.004 oz"},
             {HopAmount, "2 g", 0.01, "0.02 g"},
             {HopAmount, "2 g", 0, "0 g"},
         })
        Expect(c);
}

TEST(ScaledText, KeepsPoundsAndOuncesTogether) {
    for (const Case& c : std::initializer_list<Case>{
             // 132 oz halved are 66 oz.
             {Pounds, "8 lb 4 oz", 0.5, "4 lb 2 oz"},
             {Pounds, "8 lb 8 oz", 2, "17 lb 0 oz"},
             {Pounds, "1 lb 0 oz", 0.5, "0 lb 8 oz"},
             // 35 / 3 = 11.667 oz, 39 * 10 / 3 = 130 oz
             {Pounds, "2 lb 3 oz", 1.0 / 3, "0 lb 11.7 oz"},
             {Pounds, "2 lb 7 oz", 10.0 / 3, "8 lb 2 oz"},
             // 31.98 oz are nearer to 2 pounds than to 1 lb 15.9 oz.
             {Pounds, "1 lb 15.98 oz", 1, "2 lb 0 oz"},
             // 32.04 oz, and 0.04 oz
             {Pounds, "16 lb 0.32 oz", 0.125, "2 lb 0 oz"},
             {Pounds, "0 lb 0.32 oz", 0.125, "0 lb 0.04 oz"},
             {Pounds, "2 lb 3 oz (about)", 2, "4 lb 6 oz"},
             {Pounds, "2 lbs. 3", 2, "4 lbs. 6"},
             {Pounds, "1 pound 1 ounce", 2, "2 pounds 2 ounces"},
             {Ounces, "1 lb 2 oz", 2, "2 lb 4 oz"},
             {HopAmount, "1 lb 2 oz", 0.5, "0 lb 9 oz"},
             {Grams, "1 lb 2 oz", 2, "2 lb 4 oz"},
         })
        Expect(c);
}

TEST(ScaledText, WritesWordsInTheRightNumber) {
    for (const Case& c : std::initializer_list<Case>{
             {Volume, "1 cup", 2, "2 cups"},
             {Volume, "2 gallons", 0.5, "1 gallon"},
             {Volume, "1 GALLON", 2, "2 GALLONS"},
             {Volume, "1/2 gallon", 2, "1 gallon"},
             {Volume, "1 fluid ounce", 3, "3 fluid ounces"},
             {Volume, "1 gal", 2, "2 gal"},
             {Pounds, "1 lb", 2, "2 lb"},
             {Pounds, "3 lbs", 2, "6 lbs"},
         })
        Expect(c);
}

TEST(ScaledText, DropsRemarksButKeepsTheSignOfAnEstimate) {
    Expect({Volume, "5 gal (19 L)", 2, "10 gal"});
    Expect({Volume, "~5 gal (about)", 2, "~10 gal"});
    Expect({Volume, " 5 gal", 2, " 10 gal"});
    Expect({Pounds, "8 lb ~4 oz", 2, "16 lb ~8 oz"});
    Expect({Volume, "5 (about)", 2, "10"});
}

TEST(ScaledText, GivesNothingForWhatItCannotRead) {
    for (const AmountKind kind : {Volume, Pounds, Ounces, Grams, HopAmount, Pressure})
        for (const char* const typed :
             {"", "  ", "some", "5 stone", "-5", "lb 5", "5 lb 3 g", "5 lb more", "(5 gal)", "5 gal 2 qt"})
            EXPECT_FALSE(ScaledText(typed, 2, kind)) << typed;
    EXPECT_FALSE(ScaledText("5 gal", 2, Pounds));
    EXPECT_FALSE(ScaledText("5 lb", 2, Volume));
    EXPECT_FALSE(ScaledText("8 AAU", 2, Ounces));
    EXPECT_FALSE(ScaledText("5 lb 2 oz", 2, Pressure));
}

TEST(ScaledText, RaisesTheErrorsOfArithmetic) {
    EXPECT_THROW(ScaledText("1/0 gal", 2, Volume), Error);
    EXPECT_THROW(ScaledText("1" + std::string(307, '0') + " lb", 1e10, Pounds), Error);
}

// The text says the scaled amount: it is read as the old number times the factor, within its rounding.
TEST(ScaledText, IsReadAsTheScaledAmount) {
    struct Reader {
        AmountKind kind;
        const char* validator;
        std::initializer_list<const char*> typed;
        double rounding;  // half of the coarsest step, in the unit of the validator
    };
    for (const Reader& reader : std::initializer_list<Reader>{
             {Volume,
              "ValidateVolume",
              {"5.3 gal", "19 L", "7 1/2 qt", "9 pts", "700 ml", "33 cups"},
              0.0051},
             {Pounds, "ValidatePounds", {"8 lb 4 oz", "8.3 lbs.", "3.7 kg", "411 g", "37 oz"}, 0.0051},
             {Ounces, "ValidateOunces", {"1 3/4 oz", "28 g", "1 lb 3 oz", "0.1 kg"}, 0.051},
             {Grams, "ValidateGrams", {"3.417 g", "0.12 oz"}, 0.15},
             {Pressure, "ValidatePressure", {"11.3 psi", "83 kPa", "0.9 atm"}, 0.0077}}) {
        const Validator validate = FindValidator(reader.validator);
        ASSERT_NE(validate, nullptr) << reader.validator;
        for (const char* const typed : reader.typed) {
            for (const double factor : {0.3, 0.7, 1.0, 1.3, 2.0, 3.7}) {
                const auto scaled = ScaledText(typed, factor, reader.kind);
                ASSERT_TRUE(scaled) << typed;
                EXPECT_NEAR(*validate(*scaled), *validate(typed) * factor, reader.rounding)
                    << typed << " times " << factor << " is " << *scaled;
            }
        }
    }
}

}  // namespace
}  // namespace tw::test

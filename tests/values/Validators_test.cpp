#include <gtest/gtest.h>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/QuantityParsers.h"
#include "values/RecordingMessages.h"
#include "values/Split.h"
#include "values/Text.h"

namespace tw {
namespace {

using test::RecordingMessages;

struct Case {
    std::string_view text;
    double value;
};

void ExpectAccepted(Validator validator, const std::vector<Case>& cases) {
    for (const Case& good : cases) {
        const Reading<double> read = validator(good.text);
        ASSERT_TRUE(read) << "[" << good.text << "]";
        EXPECT_DOUBLE_EQ(*read, good.value) << "[" << good.text << "]";
    }
}

void ExpectRefused(Validator validator, std::string_view message,
                   const std::vector<std::string_view>& texts) {
    for (const std::string_view text : texts) {
        const Reading<double> read = validator(text);
        ASSERT_FALSE(read) << "[" << text << "]";
        RecordingMessages messages;
        ShowRefusal(messages, read.Why());
        EXPECT_EQ(messages.shown, std::vector<std::string>{"Invalid Entry|" + std::string(message)})
            << "[" << text << "]";
    }
}

const Validator kAll[] = {ValidateVolume,  ValidateGravity,     ValidatePercent,
                          ValidatePounds,  ValidateGrams,       ValidateOunces,
                          ValidateMinutes, ValidateTemperature, ValidatePressure};

// Returns the examples of an advice.
std::vector<std::string_view> ExamplesIn(std::string_view advice) {
    constexpr std::string_view kBeginning = "For example ";
    if (!advice.starts_with(kBeginning)) return {};
    advice.remove_prefix(kBeginning.size());
    std::vector<std::string_view> examples = Split(advice, ',');
    for (std::string_view& example : examples) example = Trim(example);
    return examples;
}

TEST(Validators, AdviseExamplesThatTheyAccept) {
    for (const Validator validator : kAll) {
        const Reading<double> read = validator("what");
        ASSERT_FALSE(read);
        const auto examples = ExamplesIn(read.Why().advice);
        EXPECT_GE(examples.size(), 2U) << read.Why().advice;
        for (const std::string_view example : examples) EXPECT_TRUE(validator(example)) << example;
    }
}

TEST(Validators, TakeABlankTextForZero) {
    for (const Validator validator : kAll) ExpectAccepted(validator, {{"", 0}, {" ", 0}, {"      ", 0}});
}

TEST(Validators, TakeATabForText) {
    for (const Validator validator : kAll) EXPECT_FALSE(validator("\t"));
}

TEST(ValidateVolume, ConvertsEveryUnitToGallons) {
    ExpectAccepted(ValidateVolume, {{"5", 5},
                                    {"5 G", 5},
                                    {"5gal", 5},
                                    {"5 gal.", 5},
                                    {"5  gal", 5},
                                    {"~5 gal (about)", 5},
                                    {"2 1/2", 2.5},
                                    {"2 1/2 qt", 0.625},
                                    {"1/2 gal", 0.5},
                                    {"8 P", 1},
                                    {"4 c", 0.25},
                                    {"64 oz", 0.5},
                                    {"64 fl. oz.", 0.5},
                                    {"128 tbsp", 0.5},
                                    {"384 tsp", 0.5},
                                    {"3.785 l", 1},
                                    {"19 liters", 19 / 3.785},
                                    {"3785 ml", 1}});
}

TEST(ValidateVolume, RefusesWhatIsNoVolume) {
    ExpectRefused(ValidateVolume, "Please enter a valid volume",
                  {"x", "5 gal extra", "1/2.5 gal", "5 lb", "1,000", "1-2", "GAL.5", "(5 gal)", "12 P P",
                   "5 gallonss"});
}

TEST(ValidateVolume, RefusesZeroAndLess) {
    ExpectRefused(ValidateVolume, "Please enter a positive volume",
                  {"0", "0 gal", "-5 gal", "-0", "-1 fl oz", "0/5 l"});
}

TEST(ValidateGravity, ReadsSpecificGravityAndPlato) {
    ExpectAccepted(ValidateGravity, {{"1.050", 1.05},
                                     {"1.050 SG", 1.05},
                                     {"12 P", PlatoToSG(12)},
                                     {"12 PL.", PlatoToSG(12)},
                                     {"12 DEG PLATO", PlatoToSG(12)},
                                     {"12 \u00B0 Plato", PlatoToSG(12)},
                                     {"12.4 \u00B0 Plato (1.050)", PlatoToSG(12.4)},
                                     {"0 P", 1},
                                     {"12", 12}});
}

TEST(ValidateGravity, RefusesTheRest) {
    ExpectRefused(ValidateGravity, "Please enter a valid gravity", {"12\u00B0P", "12 DEG", "1.05 gal", "x"});
    ExpectRefused(ValidateGravity, "Please enter a positive gravity", {"0", "-1.05", "-1000 P"});
}

TEST(ValidatePercent, HoldsZeroToAHundred) {
    ExpectAccepted(ValidatePercent,
                   {{"50%", 50}, {"50", 50}, {"50 %", 50}, {"0", 0}, {"100", 100}, {"5.", 5}});
    ExpectRefused(ValidatePercent, "Please enter a valid percentage",
                  {"1/2", "1/0", "50 %%", "50 percent", "5 1/2%"});
    ExpectRefused(ValidatePercent, "Please enter a percentage (0 to 100)", {"100.1", "-0.1", "-5%"});
}

TEST(ValidatePounds, ConvertsEveryUnitToPounds) {
    ExpectAccepted(ValidatePounds, {{"2", 2},
                                    {"2 lb 3 oz", 2.1875},
                                    {"2 lb 3", 2.1875},
                                    {"8 oz", 0.5},
                                    {"1 kg", 1000 / 453.59},
                                    {"1 K", 1000 / 453.59},
                                    {"5 G", 5 / 453.59},
                                    {"0", 0},
                                    {"0 oz", 0}});
    ExpectRefused(ValidatePounds, "Please enter a valid weight", {"5 gal", "2 oz 3 lb", "2 lb 3 g", "x"});
    ExpectRefused(ValidatePounds, "Please enter a positive weight", {"-2", "-1 kg", "-1 lb 3 oz"});
}

TEST(ValidateGrams, ConvertsEveryUnitToGrams) {
    ExpectAccepted(
        ValidateGrams,
        {{"2", 2}, {"2 g", 2}, {"2 kg", 2000}, {"2 oz", 56.7}, {"2 lb", 907.18}, {"1 lb 8 oz", 680.385}});
    ExpectRefused(ValidateGrams, "Please enter a valid weight", {"5 tsp"});
    ExpectRefused(ValidateGrams, "Please enter a positive weight", {"-5 g"});
}

TEST(ValidateOunces, ConvertsEveryUnitToOunces) {
    ExpectAccepted(ValidateOunces, {{"2", 2}, {"2 oz", 2}, {"2 lb", 32}, {"28.35 g", 1}, {"1 kg", 35.274}});
    ExpectRefused(ValidateOunces, "Please enter a valid weight", {"5 fl oz", "5 AAU"});
    ExpectRefused(ValidateOunces, "Please enter a positive weight", {"-5"});
}

// 16 ounces of 28.35 grams are not a pound of 453.59 grams.
TEST(Weights, KeepTheirOwnFactorOnEachPath) {
    EXPECT_DOUBLE_EQ(ValidateOunces("453.6 g").ValueOr(-1), 16);
    EXPECT_GT(ValidatePounds("453.6 g").ValueOr(-1), 1);
}

TEST(ValidateMinutes, ReadsMinutesHoursAndSeconds) {
    ExpectAccepted(ValidateMinutes, {{"60", 60},
                                     {"1:30", 1.5},
                                     {"1:30 H", 90},
                                     {"1:30:30 hr", 90.5},
                                     {"90 S", 1.5},
                                     {"1/2 hour", 30},
                                     {"0", 0},
                                     {"2 m", 2}});
    ExpectRefused(ValidateMinutes, "Please enter a valid length of time",
                  {"1:30:15", "1/2 S", "1 day", "1:"});
    ExpectRefused(ValidateMinutes, "Please enter a positive time", {"-1", "-1:30"});
}

TEST(ValidateTemperature, HoldsZeroToTwoHundredAndTwelveFahrenheit) {
    ExpectAccepted(ValidateTemperature, {{"68", 68},
                                         {"68 DEG F", 68},
                                         {"20 C", 68},
                                         {"20 \u00B0 C", 68},
                                         {"100 C", 212},
                                         {"0", 0},
                                         {"212 F", 212}});
    ExpectRefused(ValidateTemperature, "Please enter a valid temperature", {"20\u00B0C", "68 X", "5 gal"});
    ExpectRefused(ValidateTemperature, "Please enter a reasonable temperature",
                  {"101 C", "-5", "213", "0 K"});
}

TEST(ValidateTemperature, ReadsKelvin) {
    EXPECT_NEAR(ValidateTemperature("300 K").ValueOr(-1), 80.33, 1e-9);
}

TEST(ValidatePressure, ConvertsEveryUnitToPsi) {
    ExpectAccepted(ValidatePressure, {{"12", 12},
                                      {"12 psi", 12},
                                      {"6.894757 kPa", 1},
                                      {"6894.757 Pa", 1},
                                      {"1.5 ATM", 22.04385},
                                      {"0", 0}});
    ExpectRefused(ValidatePressure, "Please enter a valid pressure", {"1/2", "5 1/0 psi", "5 bar"});
    ExpectRefused(ValidatePressure, "Please enter a positive pressure", {"-1", "-1 atm"});
}

TEST(Validators, PassOnADivisionByZeroWithoutABox) {
    for (const std::string_view text : {"1/0", "5 1/0 gal", "5 1/0 nonsense"}) {
        for (const Validator validator : {ValidateVolume, ValidateGravity, ValidatePounds, ValidateGrams,
                                          ValidateOunces, ValidateMinutes, ValidateTemperature}) {
            try {
                (void)validator(text);
                ADD_FAILURE() << text;
            } catch (const Error& error) {
                EXPECT_EQ(error.WithNumber(), "Division by zero (11)");
            }
        }
    }
}

TEST(Validators, RaiseOverflowInsteadOfAnInfiniteNumber) {
    const std::string large = "1" + std::string(307, '0');
    EXPECT_THROW(ValidateGrams(large + " kg"), Error);
    EXPECT_THROW(ValidateGrams(large + " lb"), Error);
    EXPECT_THROW(ValidateGravity(large + " P"), Error);
    EXPECT_THROW(ValidatePressure(large + "0 atm"), Error);
    EXPECT_THROW(ValidateVolume(std::string(400, '1')), Error);
}

}  // namespace
}  // namespace tw

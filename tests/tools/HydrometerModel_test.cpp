// Tests of the hydrometer correction: its formula, the order of its checks, and the result
// when an entry is missing.
#include "tools/HydrometerModel.h"

#include <gmock/gmock.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using Strings = std::vector<std::string>;

class Hydrometer : public testing::Test {
  protected:
    // Types all three entries, corrects once and returns the result.
    std::string Correct(const char* reading, const char* temperature, const char* calibration) {
        model.TypeInto("txtActRead", reading);
        model.TypeInto("txtActTemp", temperature);
        model.TypeInto("cmbCalTemp", calibration);
        refused = model.UpdateCorrection();
        return model.Text("txtCalRead");
    }
    MessageRecorder messages;
    HydrometerModel model{messages};
    std::string refused;
};

// 1.00130346 - 0.00808332744 + 0.007345893456 - 0.000502893248 at 60 °F, and 1.00130346 - 0.01077776992 +
// 0.013059366144 - 0.001192043254 at 80 °F.
TEST(WaterDensity, FollowsItsCubic) {
    EXPECT_NEAR(WaterDensity(60), 1.000063132768, 1e-12);
    EXPECT_NEAR(WaterDensity(80), 1.002393012970, 1e-11);
    EXPECT_EQ(WaterDensity(0), 1.00130346);
}

TEST_F(Hydrometer, OpensEmptyWithTheFirstCalibration) {
    std::string shown;
    for (const DialogControl& control : model.Controls()) shown += control.name + "=" + control.text + ";";
    EXPECT_EQ(model.FormName(), "frmHydrometer");
    EXPECT_EQ(shown, "txtActRead=;txtActTemp=;cmbCalTemp=60.0 F (15.6 C);txtCalRead=;");
    EXPECT_THAT(HydrometerModel::CalibrationEntries(), ElementsAre("60.0 F (15.6 C)", "20.0 C (68.0 F)"));
}

// 1.05 * 1.002393013 / 1.000063133 = 1.052446, in degrees Plato 1328.6607 - 668.96 -
// 860.0073 + 213.2595 = 12.953.
TEST_F(Hydrometer, RaisesAWarmReading) {
    EXPECT_EQ(Correct("1.050", "80", "60.0 F (15.6 C)"), "1.052 (12.953° Plato)");
    EXPECT_EQ(refused, "");
    EXPECT_EQ(messages.log, Strings{});
}

// 1.05 is 12.3743425 degrees Plato.
TEST_F(Hydrometer, EqualTemperaturesKeepTheReading) {
    EXPECT_EQ(Correct("1.050", "68", "20.0 C (68.0 F)"), "1.050 (12.374° Plato)");
    EXPECT_EQ(Correct("1.050", "15 C", "59"), "1.050 (12.374° Plato)");
}

// 12 degrees Plato are 1.0484099 by one fitted curve, which is 11.997 degrees Plato by the other.
TEST_F(Hydrometer, TakesAReadingInPlato) {
    EXPECT_EQ(Correct("12 P", "60", "60.0 F (15.6 C)"), "1.048 (11.997° Plato)");
}

TEST_F(Hydrometer, ChecksTemperatureThenReadingThenCalibration) {
    EXPECT_EQ(Correct("x", "y", "z"), "");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid temperature"});
    EXPECT_EQ(refused, "txtActTemp");
    Correct("x", "213", "z");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a reasonable temperature"});
    EXPECT_EQ(refused, "txtActTemp");
    Correct("0", "80", "z");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a positive gravity"});
    EXPECT_EQ(refused, "txtActRead");
    Correct("1.050", "80", "z");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid temperature"});
    EXPECT_EQ(refused, "cmbCalTemp");
    EXPECT_EQ(model.Text("cmbCalTemp"), "z") << "the text stays for mending";
}

TEST_F(Hydrometer, AnEmptyEntryLeavesTheOldResultWithoutAWord) {
    const std::string result = Correct("1.050", "80", "60");
    ASSERT_NE(result, "");
    EXPECT_EQ(Correct("", "80", "60"), result);
    EXPECT_EQ(Correct("1.060", " ", "60"), result);
    EXPECT_EQ(Correct("1.060", "80", ""), result);
    // Entries after the empty one are not checked.
    EXPECT_EQ(Correct("x", "", "z"), result);
    EXPECT_EQ(refused, "");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(Hydrometer, ABadEntryKeepsTheOldResult) {
    const std::string result = Correct("1.050", "80", "60");
    EXPECT_EQ(Correct("x", "80", "60"), result);
}

TEST_F(Hydrometer, AnArithmeticErrorHasItsBoxAndTheGuardOpensAgain) {
    EXPECT_EQ(Correct("1/0", "80", "60"), "");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Error] Division by zero (11)"});
    EXPECT_EQ(refused, "txtActRead");
    const std::string huge(200, '9');
    Correct(huge.c_str(), "80", "60");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Error] Overflow (6)"});
    EXPECT_NE(Correct("1.050", "80", "60"), "");
}

TEST_F(Hydrometer, DoesNotRunIntoItself) {
    std::string inner = "not run";
    messages.whileShowing = [&] { inner = model.UpdateCorrection(); };
    Correct("x", "80", "60");
    EXPECT_EQ(messages.log.size(), 1U);
    EXPECT_EQ(inner, "");
}

TEST_F(Hydrometer, TakesItsThreeEntriesAsLeft) {
    EXPECT_TRUE(model.SetControl("txtActRead", "x"));
    EXPECT_EQ(messages.log, Strings{}) << "there is no temperature yet";
    EXPECT_TRUE(model.SetControl("txtActTemp", "80"));
    EXPECT_EQ(messages.TakeLog(), Strings{"[Invalid Entry] Please enter a valid gravity"});
    EXPECT_TRUE(model.SetControl("txtActRead", "1.050"));
    EXPECT_EQ(model.Text("txtCalRead"), "1.052 (12.953° Plato)");
    EXPECT_FALSE(model.SetControl("txtCalRead", "1"));
    EXPECT_FALSE(model.SetControl("txtFG", "1"));
    EXPECT_FALSE(model.Press("cmdClose"));
    EXPECT_TRUE(model.Press("cmdEscape"));
    EXPECT_FALSE(model.IsOpen());
}

}  // namespace
}  // namespace tw::test

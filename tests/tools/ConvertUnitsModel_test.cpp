// Tests of the unit converter: how a text in one box changes the others.
#include "tools/ConvertUnitsModel.h"

#include <gmock/gmock.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using Strings = std::vector<std::string>;

const std::string kInvalid = "[Error] Invalid numeric value!";

class Converter : public testing::Test {
  protected:
    Strings Texts() const {
        Strings texts;
        for (int box = 0; box < model.BoxCount(); ++box) texts.push_back(model.Text(box));
        return texts;
    }
    MessageRecorder messages;
    ConvertUnitsModel model{messages};
};

TEST_F(Converter, OpensOnTheFirstKindWithEmptyBoxes) {
    std::string shown;
    for (const DialogControl& control : model.Controls()) shown += control.name + "=" + control.text + ";";
    EXPECT_EQ(model.FormName(), "frmConvertUnits");
    EXPECT_EQ(shown, "cmbType=Mass/Weight;labelType=Unit Type;Text1=;Text2=;Text3=;Text4=;");
}

TEST_F(Converter, FillsEveryOtherBox) {
    model.SetKind(QuantityKind::Volume);
    EXPECT_TRUE(model.Enter(0, "1"));
    EXPECT_THAT(Texts(), ElementsAre("1", "4", "8", "16", "128", "256", "768", "3.785", "3785"));
}

TEST_F(Converter, WritesFiguresWithSixDecimalsAtMostAndNoIdleZeros) {
    model.SetKind(QuantityKind::Temperature);
    model.Enter(0, "212");
    EXPECT_THAT(Texts(), ElementsAre("212", "100", "373.15"));
    model.SetKind(QuantityKind::Gravity);
    // Exactly 12.3743425; halves are rounded away from zero.
    model.Enter(0, "1.05");
    EXPECT_THAT(Texts(), ElementsAre("1.05", "12.374343"));
}

TEST_F(Converter, LeavesTheBoxItselfAsItIsTyped) {
    model.SetKind(QuantityKind::Volume);
    model.Enter(1, "~2 1/2 qt (about)");
    EXPECT_EQ(model.Text(1), "~2 1/2 qt (about)");
    // 2.5 quarts.
    EXPECT_EQ(model.Text(0), "0.625");
}

TEST_F(Converter, ReadsNumbersAsFieldsDoButNoUnits) {
    model.SetKind(QuantityKind::Volume);
    // The unit after the number is ignored: these are 5 gallons.
    for (const char* text : {"5", " 5 ", "5 qt", "5gal", "4 2/2", "10/2", "5.0"}) {
        model.Enter(0, text);
        EXPECT_EQ(model.Text(1), "20") << text;
    }
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(Converter, ANegativeWholeNumberTakesItsFractionByAddition) {
    model.SetKind(QuantityKind::Temperature);
    // -2 + 1/2 = -1.5, as in the fields of a recipe; -1.5 + 273.15 = 271.65.
    model.Enter(1, "-2 1/2");
    EXPECT_EQ(model.Text(2), "271.65");
}

TEST_F(Converter, ABlankTextEmptiesTheOthers) {
    for (const char* text : {"", "   "}) {
        model.Enter(1, "16");
        ASSERT_EQ(model.Text(0), "1");
        EXPECT_TRUE(model.Enter(1, text));
        EXPECT_THAT(Texts(), ElementsAre("", text, "", ""));
    }
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(Converter, ATextThatIsNoNumberHasItsBoxAndLeavesTheOthers) {
    model.Enter(0, "1");
    const Strings before = Texts();
    for (const char* text : {"abc", "-", ".", "1/", "1.5/2", "gal 5", "(5)", "1.2.3", "+5"}) {
        EXPECT_FALSE(model.Enter(0, text)) << text;
        EXPECT_EQ(messages.TakeLog(), Strings{kInvalid}) << text;
        EXPECT_EQ(model.Text(1), before[1]);
        EXPECT_EQ(model.Text(3), before[3]);
    }
}

TEST_F(Converter, AFailureOfTheArithmeticIsSilentAndOver) {
    model.Enter(0, "1");
    for (const std::string& text : {std::string("1/0"), std::string(400, '2'), std::string(308, '9')}) {
        EXPECT_TRUE(model.Enter(0, text));
        EXPECT_EQ(model.Text(1), "16") << "left as it was";
    }
    EXPECT_EQ(messages.log, Strings{});
    // Entries are converted again.
    model.Enter(0, "2");
    EXPECT_EQ(model.Text(1), "32");
}

TEST_F(Converter, DoesNotRunIntoItself) {
    messages.whileShowing = [&] { model.Enter(1, "16"); };
    model.Enter(0, "abc");
    EXPECT_EQ(messages.log, Strings{kInvalid});
    EXPECT_EQ(model.Text(0), "abc");
    EXPECT_EQ(model.Text(2), "");
}

// "1/2" and "-5" are typed one character at a time; incomplete numbers are accepted meanwhile.
TEST_F(Converter, ABeginningOfANumberWaitsForTheNextKey) {
    model.SetKind(QuantityKind::Temperature);
    for (const char* text : {"-", "-4", "-40"}) model.TypeInto(0, text);
    EXPECT_EQ(model.Text(1), "-40");
    for (const char* text : {"1", "1/", "1/2", "", ".", ".5", " ", " -", "~"}) model.TypeInto(1, text);
    EXPECT_EQ(messages.log, Strings{});
    model.TypeInto(1, "1/2");
    // 0.5 * 9 / 5 + 32
    EXPECT_EQ(model.Text(0), "32.9");
    model.TypeInto(1, "1/");
    EXPECT_EQ(model.Text(0), "32.9");
    // An incomplete number is refused when the box is left.
    EXPECT_FALSE(model.ConvertFromBox(1));
    EXPECT_EQ(messages.TakeLog(), Strings{kInvalid});
    for (const char* text : {"a", "1.5/", "1.2."}) {
        model.TypeInto(1, text);
        EXPECT_EQ(messages.TakeLog(), Strings{kInvalid}) << text;
    }
}

// Leaving a box converts its text, which is rounded.
TEST_F(Converter, LeavingABoxConvertsFromItsRoundedFigure) {
    model.SetKind(QuantityKind::Volume);
    model.Enter(6, "1");
    // 1 / 768 = 0.00130208...
    EXPECT_EQ(model.Text(0), "0.001302");
    model.ConvertFromBox(0);
    // 0.001302 * 768
    EXPECT_EQ(model.Text(6), "0.999936");
    EXPECT_EQ(model.Text(0), "0.001302");
}

TEST_F(Converter, AnotherKindShowsItsBoxesEmpty) {
    model.Enter(0, "1");
    EXPECT_TRUE(model.SetControl("cmbType", "Pressure"));
    EXPECT_EQ(model.Kind(), QuantityKind::Pressure);
    EXPECT_THAT(Texts(), ElementsAre("", "", "", ""));
    EXPECT_EQ(model.Label(0), "Pounds per Square Inch");
    model.Enter(0, "1");
    EXPECT_TRUE(model.SetControl("cmbType", "Pressure"));
    EXPECT_EQ(model.Text(3), "6894.757") << "no other kind, no change";
}

TEST_F(Converter, TakesTheControlsThatItShows) {
    EXPECT_TRUE(model.SetControl("Text2", "16"));
    EXPECT_EQ(model.Text(0), "1");
    EXPECT_FALSE(model.SetControl("Text5", "1")) << "weights have four boxes";
    EXPECT_FALSE(model.SetControl("cmbType", "Length"));
    EXPECT_FALSE(model.SetControl("labelType", "x"));
    EXPECT_FALSE(model.Press("cmdOK"));
    EXPECT_TRUE(model.IsOpen());
    EXPECT_TRUE(model.Press("cmdClose"));
    EXPECT_FALSE(model.IsOpen());
}

}  // namespace
}  // namespace tw::test

// Tests of texts that are too wide for their place on paper. Positions are calculated as in PrintLayout_test:
// a line has 90 characters of 10 points, the left column 45 and the right column 42; their further lines have
// 88, 43 and 40 and begin 0.15 inches further right and 0.175 inches lower.
#include <gtest/gtest.h>

#include "reports/PrintLayout.h"
#include "reports/PrintedRecipe.h"
#include "support/LongRecipe.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;
using Kind = PrintStep::Kind;

std::string Letters(std::size_t count, char letter = 'x') {
    return std::string(count, letter);
}

class LongLinesTest : public testing::Test {
  protected:
    void SetUp() override { Begin("Porter"); }
    void Begin(const std::string& title) {
        layout.BeginPrint(std::make_unique<StepRecorder>(kLetterPaper, measure, steps), title);
    }
    const PrintStep& Step(std::size_t number) const { return steps.steps.at(number + 1); }
    Strings Texts() const {
        Strings texts;
        for (const PrintStep& step : steps.steps)
            if (step.kind == Kind::Text) texts.push_back(step.text);
        return texts;
    }
    double End(const PrintStep& step) const { return step.x1 + measure.SizeOf(step.font, step.text).width; }
    void ExpectAt(const PrintStep& step, double x, double y) {
        EXPECT_NEAR(step.x1, x, 1e-9) << step.text;
        EXPECT_NEAR(step.y1, y, 1e-9) << step.text;
    }

    FixedMeasure measure;
    PrintSteps steps;
    TWPrinter printer;
    PrintLayout layout{printer};
};

TEST_F(LongLinesTest, AWideTextGoesOnBelowItselfALittleFurtherIn) {
    layout.PrintLine(Letters(60) + " " + Letters(60, 'y') + " z");
    layout.PrintLine("next");
    EXPECT_EQ(Texts(), (Strings{Letters(60), Letters(60, 'y') + " z", "next"}));
    ExpectAt(Step(0), 0.5, 0.5);
    ExpectAt(Step(1), 0.65, 0.675);
    ExpectAt(Step(2), 0.5, 0.85);
}

TEST_F(LongLinesTest, WithoutABlankItBreaksBetweenLetters) {
    layout.PrintLine(Letters(90));
    layout.PrintLine(Letters(200, 'y'));
    EXPECT_EQ(Texts(), (Strings{Letters(90), Letters(90, 'y'), Letters(88, 'y'), Letters(22, 'y')}));
}

TEST_F(LongLinesTest, ALabelKeepsItsFaceAndItsTextGoesOnInItsOwn) {
    layout.PrintLabel("Source Water: ");
    layout.PrintLine(Letters(50) + " " + Letters(50, 'y'));
    EXPECT_EQ(Texts(), (Strings{"Source Water: ", Letters(50), Letters(50, 'y')}));
    EXPECT_TRUE(Step(0).font.bold);
    EXPECT_FALSE(Step(1).font.bold);
    ExpectAt(Step(2), 0.65, 0.675);
    EXPECT_FALSE(Step(2).font.bold);
}

TEST_F(LongLinesTest, ABreakMayFallIntoTheTextBefore) {
    layout.PrintText("Bottle beer at a temperature of " + Letters(55));
    layout.PrintLine(" and prime");
    EXPECT_EQ(Texts(), (Strings{"Bottle beer at a temperature of " + Letters(55), "and prime"}));
}

TEST_F(LongLinesTest, BothColumnsBreakAndTheNextRowStandsBelowTheTallest) {
    layout.PrintTwoColumns({Letters(100), "b", Letters(42, 'c'), Letters(43, 'd')});
    EXPECT_EQ(Texts(),
              (Strings{Letters(45), Letters(42, 'c'), Letters(43), Letters(12), "b", Letters(42, 'd'), "d"}));
    ExpectAt(Step(1), 4.5, 0.5);
    ExpectAt(Step(2), 0.65, 0.675);
    ExpectAt(Step(3), 0.65, 0.85);
    ExpectAt(Step(4), 0.5, 1.025);
    ExpectAt(Step(6), 4.65, 1.2);
    layout.PrintLine("next");
    ExpectAt(Step(7), 0.5, 1.375);
}

TEST_F(LongLinesTest, ALastRowOnTheLeftAloneKeepsToItsColumn) {
    layout.PrintTwoColumns({Letters(46)});
    EXPECT_EQ(Texts(), (Strings{Letters(45), "x"}));
}

TEST_F(LongLinesTest, TheSwatchGoesOnBelowWhereThereIsNoRoomForIt) {
    layout.SecondColumn();
    layout.PrintLabel("Color: ");
    layout.PrintText(Letters(34) + " ");
    layout.PrintSwatch({1, 2, 3});
    layout.NewLine();
    EXPECT_EQ(Texts(), (Strings{"Color: ", Letters(34)}));
    EXPECT_EQ(Step(2).kind, Kind::Box);
    ExpectAt(Step(2), 4.65, 0.675);
}

TEST_F(LongLinesTest, APageBreaksBetweenTheLinesOfARow) {
    for (int i = 0; i < 56; ++i) layout.PrintLine(std::to_string(i));
    layout.PrintTwoColumns({Letters(46), Letters(43, 'y')});
    layout.PrintLine("next");
    ASSERT_EQ(steps.Pages(), 2);
    const Strings texts = Texts();
    EXPECT_EQ(Strings(texts.end() - 6, texts.end()),
              (Strings{Letters(45), Letters(42, 'y'), "Porter - Page 1", "x", "y", "next"}));
    ExpectAt(*(steps.steps.end() - 3), 0.65, 0.5);
    ExpectAt(*(steps.steps.end() - 2), 4.65, 0.5);
    ExpectAt(*(steps.steps.end() - 1), 0.5, 0.675);
}

TEST_F(LongLinesTest, AWideTitleIsSetSmaller) {
    // 50 characters of 18 points fill the 7.5 inches, and so do 60 characters of 15 points.
    layout.PrintTitle(Letters(50), 18);
    layout.PrintTitle(Letters(60), 18);
    layout.PrintTitle(Letters(112), 14);
    EXPECT_EQ(Step(0).font.points, 18);
    EXPECT_EQ(Step(1).font, (PrintFont{"Times New Roman", 15, true, false}));
    ExpectAt(Step(1), 0.5, 0.5 + 0.3 * 1.05);
    EXPECT_EQ(Step(2).font.points, 8);
    layout.PrintLine("next");
    // 15 points are 0.25 inches high, 8 points 0.13333.
    ExpectAt(Step(3), 0.5, 0.5 + (0.3 + 0.25 + 1.6 / 12) * 1.05);
    EXPECT_EQ(Step(3).font, (PrintFont{"Arial", 10, false, false}));
}

TEST_F(LongLinesTest, ATitleThatIsTooWideInTheSmallestSizeIsBrokenAndEachLineCentred) {
    layout.PrintTitle(Letters(100) + " " + Letters(30, 'y'), 14);
    EXPECT_EQ(Texts(), (Strings{Letters(100), Letters(30, 'y')}));
    EXPECT_EQ(Step(1).font.points, 8);
    // 30 characters of 8 points are 2 inches of the 7.5.
    ExpectAt(Step(1), 0.5 + 5.5 / 2, 0.5 + 1.6 / 12 * 1.05);
}

TEST_F(LongLinesTest, AWideFooterTakesTheLineAboveAndStillEndsAtTheMargin) {
    Begin(Letters(200));
    layout.EndPrint();
    // 112 characters of 8 points in 7.5 inches.
    EXPECT_EQ(Texts(), (Strings{Letters(112), Letters(88) + " - Page" + " 1"}));
    EXPECT_NEAR(End(Step(0)), 8, 1e-9);
    EXPECT_NEAR(End(Step(1)), 8, 1e-9);
    EXPECT_NEAR(Step(0).y1, 11 - 2 * 1.6 / 12, 1e-9);
    EXPECT_NEAR(Step(1).y1, 11 - 1.6 / 12, 1e-9);
}

TEST_F(LongLinesTest, AFooterKeepsToTheLowerMarginAndKeepsItsPageNumber) {
    Begin(Letters(std::size_t{6} * 112, 'a') + Letters(20, 'z'));
    layout.EndPrint();
    EXPECT_EQ(Texts(), (Strings{Letters(112, 'a'), Letters(112, 'a'), Letters(20, 'z') + " - Page 1"}));
}

TEST_F(LongLinesTest, NothingLeavesItsColumnOrTheSheetHoweverLongTheTextsAre) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        LongTexts texts(seed);
        RecipeRecord recipe;
        FillWithLongTexts(recipe, texts);
        for (const PrintSize page : {kLetterPaper, PrintSize{7.77, 11.19}, PrintSize{4, 6}}) {
            const PrintSteps printed = LayOutRecipe(recipe, page, measure);
            EXPECT_EQ(OutOfBounds(printed, measure), Strings{}) << "seed " << seed;
        }
    }
}

// Every letter of the recipe is printed, and no other one.
TEST_F(LongLinesTest, NoLetterIsLostWhereALineBreaks) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        LongTexts texts(seed);
        std::string expected, printed;
        Begin("Porter");
        for (int i = 0; i < 20; ++i) {
            const std::string left = texts.Next(), right = texts.Next();
            expected += left + right;
            layout.PrintText(left);
            layout.NewLine();
            layout.PrintText(right);
            layout.NewLine();
        }
        for (const PrintStep& step : steps.steps)
            if (step.kind == Kind::Text && !step.font.italic) printed += step.text;
        EXPECT_EQ(ReplaceAll(printed, " ", ""), ReplaceAll(expected, " ", "")) << "seed " << seed;
    }
}

TEST_F(LongLinesTest, TheRuleSeesWhatRunsOver) {
    const PrintFont font{"Arial", 10, false, false};
    const auto text = [&](double x, double y, std::size_t letters) {
        return PrintStep{Kind::Text, x, y, 0, 0, font, Letters(letters)};
    };
    const auto faults = [&](const std::vector<PrintStep>& texts) {
        std::vector<PrintStep> all{PrintStep{Kind::Page}};
        for (const PrintStep& step : texts) all.push_back(step);
        return OutOfBounds({"", kLetterPaper, all}, measure).size();
    };
    EXPECT_EQ(faults({text(0.5, 1, 90), text(0.5, 2, 45), text(4.5, 2, 42)}), 0U);
    EXPECT_EQ(faults({text(0.5, 1, 91)}), 1U);
    EXPECT_EQ(faults({text(0.4, 1, 1)}), 1U);
    EXPECT_EQ(faults({text(0.5, 10.9, 1)}), 1U);
    EXPECT_EQ(faults({text(0.5, 2, 46), text(4.5, 2, 1)}), 1U);
    EXPECT_EQ(faults({text(0.5, 2, 46), PrintStep{Kind::Page}, text(4.5, 2, 1)}), 0U);
}

}  // namespace
}  // namespace tw::test

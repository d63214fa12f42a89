// Positions are calculated with FixedMeasure: at 10 points, a character is 0.6 * 10 / 72 = 0.083333 inches
// wide and a line 1.2 * 10 / 72 = 0.166667 inches high; a line moves the cursor by 0.175 inches. On letter
// paper the text is between 0.5 and 8 inches across and ends 10.5 inches down: 90 characters, 57 lines.
#include "reports/PrintLayout.h"

#include <gtest/gtest.h>

#include "reports/PrintSteps.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;
using Kind = PrintStep::Kind;

class PrintLayoutTest : public testing::Test {
  protected:
    void SetUp() override { Begin(kLetterPaper); }
    void Begin(PrintSize page) {
        layout.BeginPrint(std::make_unique<StepRecorder>(page, measure, steps), "Porter");
    }

    Strings Texts(int page = 0) const {
        Strings texts;
        for (const PrintStep& step : steps.steps) {
            if (step.kind == Kind::Page && page-- < 0) break;
            if (step.kind == Kind::Text && page < 0) texts.push_back(step.text);
        }
        return texts;
    }
    const PrintStep& Last() const { return steps.steps.back(); }
    // Ends the line and returns its texts in order.
    std::vector<PrintStep> EndLine() {
        const std::size_t before = steps.steps.size();
        layout.NewLine();
        return {steps.steps.begin() + static_cast<std::ptrdiff_t>(before), steps.steps.end()};
    }
    void Lines(int count) {
        for (int i = 0; i < count; ++i) layout.PrintLine("line " + std::to_string(i));
    }

    FixedMeasure measure;
    PrintSteps steps;
    TWPrinter printer;
    PrintLayout layout{printer};
};

TEST_F(PrintLayoutTest, TextBeginsHalfAnInchFromTheCornerAndGoesOnBehindItself) {
    layout.PrintText("abc");
    layout.PrintText("d");
    const std::vector<PrintStep> line = EndLine();
    ASSERT_EQ(line.size(), 2U);
    EXPECT_NEAR(line[0].x1, 0.5, 1e-9);
    EXPECT_NEAR(line[0].y1, 0.5, 1e-9);
    EXPECT_EQ(line[0].font, (PrintFont{"Arial", 10, false, false}));
    EXPECT_NEAR(line[1].x1, 0.75, 1e-9);
    EXPECT_NEAR(line[1].y1, 0.5, 1e-9);
}

TEST_F(PrintLayoutTest, ALineIsFiveHundredthsHigherThanItsText) {
    layout.PrintLine("abc");
    layout.PrintLine("");
    layout.PrintLine("d");
    EXPECT_NEAR(Last().x1, 0.5, 1e-9);
    EXPECT_NEAR(Last().y1, 0.5 + 2 * 0.175, 1e-9);
}

TEST_F(PrintLayoutTest, LabelsAreBoldAndTheTextBehindThemIsNot) {
    layout.PrintLabel("OG: ");
    layout.PrintText("1.050");
    const std::vector<PrintStep> line = EndLine();
    ASSERT_EQ(line.size(), 2U);
    EXPECT_TRUE(line[0].font.bold);
    EXPECT_FALSE(line[1].font.bold);
    EXPECT_NEAR(line[1].x1, 0.5 + 4 * 0.0833333, 1e-6);
}

TEST_F(PrintLayoutTest, ASubscriptIsSmallerAndLowerAndTheLineGoesOn) {
    layout.PrintLabel("CO");
    layout.PrintSubscript("2");
    layout.PrintText("x");
    const std::vector<PrintStep> line = EndLine();
    ASSERT_EQ(line.size(), 3U);
    EXPECT_TRUE(line[1].font.bold);
    EXPECT_LT(line[1].font.points, 10);
    EXPECT_NEAR(line[1].y1, 0.5 + 0.3 / 6, 1e-9);
    EXPECT_NEAR(line[2].y1, 0.5, 1e-9);
    EXPECT_EQ(line[2].font, (PrintFont{"Arial", 10, false, false}));
}

TEST_F(PrintLayoutTest, ASectionHasAGapBelowIt) {
    layout.PrintSection("Hops");
    EXPECT_EQ(Last().font, (PrintFont{"Arial", 12, true, true}));
    layout.PrintLine("x");
    // 12 points are 0.2 inches high: 1.05 times that, and a quarter of it.
    EXPECT_NEAR(Last().y1, 0.5 + 0.21 + 0.05, 1e-9);
}

TEST_F(PrintLayoutTest, TitlesAreCentredBetweenTheMargins) {
    layout.PrintTitle("Porter", 18);
    EXPECT_EQ(Last().font, (PrintFont{"Times New Roman", 18, true, false}));
    // Six characters of 0.15 inches in 7.5 inches.
    EXPECT_NEAR(Last().x1, 0.5 + (7.5 - 0.9) / 2, 1e-9);
}

TEST_F(PrintLayoutTest, ARuleRunsAcrossThePage) {
    layout.PrintRule();
    EXPECT_EQ(Last().kind, Kind::Line);
    EXPECT_NEAR(Last().x1, 0.5, 1e-9);
    EXPECT_NEAR(Last().x2, 8, 1e-9);
    EXPECT_NEAR(Last().y1, 0.5 + 0.8 / 6, 1e-9);
    EXPECT_NEAR(Last().y2, Last().y1, 1e-9);
}

TEST_F(PrintLayoutTest, TheSwatchIsThreeLettersLargeAndInItsColor) {
    layout.PrintSwatch({10, 20, 30});
    layout.PrintText("x");
    const std::vector<PrintStep> line = EndLine();
    ASSERT_EQ(line.size(), 2U);
    EXPECT_EQ(line[0].kind, Kind::Box);
    EXPECT_EQ(line[0].color, (Rgb{10, 20, 30}));
    EXPECT_NEAR(line[0].x2 - line[0].x1, 0.25, 1e-9);
    EXPECT_NEAR(line[0].y2 - line[0].y1, 1.0 / 6, 1e-9);
    EXPECT_NEAR(line[1].x1, 0.5, 1e-9);
}

TEST_F(PrintLayoutTest, SmallNotesAreItalic) {
    layout.PrintSmallNote("  Amounts");
    EXPECT_EQ(Last().font, (PrintFont{"Arial", 8, false, true}));
}

TEST_F(PrintLayoutTest, APageBreaksBeforeTheLineThatWouldCrossItsMargin) {
    // Line 57 would end at 0.5 + 57 * 0.175 + 0.166667 = 10.641667.
    Lines(57);
    EXPECT_EQ(steps.Pages(), 1);
    layout.PrintLine("the next");
    ASSERT_EQ(steps.Pages(), 2);
    EXPECT_EQ(Texts(0).back(), "Porter - Page 1");
    EXPECT_EQ(Texts(1), (Strings{"the next"}));
    EXPECT_NEAR(Last().y1, 0.5, 1e-9);
}

TEST_F(PrintLayoutTest, OnlyATextBreaksThePage) {
    Lines(57);
    for (int i = 0; i < 20; ++i) layout.NewLine();
    layout.PrintRule();
    layout.NewLine();
    EXPECT_EQ(steps.Pages(), 1);
}

TEST_F(PrintLayoutTest, AfterAPageBreakTheTextHasItsOwnFont) {
    Lines(57);
    layout.PrintLabel("Bold: ");
    layout.NewLine();
    ASSERT_EQ(steps.Pages(), 2);
    EXPECT_EQ(Last().font, (PrintFont{"Arial", 10, true, false}));
    const PrintStep& footer = *(steps.steps.end() - 3);
    EXPECT_EQ(footer.text, "Porter - Page 1");
    EXPECT_EQ(footer.font, (PrintFont{"Arial", 8, false, true}));
}

TEST_F(PrintLayoutTest, TheFooterEndsAtTheRightMarginAndAtTheFootOfThePage) {
    layout.EndPrint();
    EXPECT_EQ(Last().text, "Porter - Page 1");
    // 15 characters of 8 points.
    EXPECT_NEAR(Last().x1, 8 - 15 * 0.6 * 8 / 72, 1e-9);
    EXPECT_NEAR(Last().y1, 11 - 1.2 * 8 / 72, 1e-9);
}

TEST_F(PrintLayoutTest, PagesAreNumberedFromOne) {
    Lines(57 * 2 + 1);
    layout.EndPrint();
    EXPECT_EQ(Texts(1).back(), "Porter - Page 2");
    EXPECT_EQ(Texts(2).back(), "Porter - Page 3");
}

TEST_F(PrintLayoutTest, AnOddRowOfTwoColumnsGoesLeft) {
    layout.PrintTwoColumns({"a", "b", "c", "d", "e"});
    EXPECT_EQ(Texts(), (Strings{"a", "d", "b", "e", "c"}));
    EXPECT_NEAR(Last().x1, 0.5, 1e-9);
    EXPECT_NEAR(Last().y1, 0.5 + 2 * 0.175, 1e-9);
}

TEST_F(PrintLayoutTest, AnEvenNumberOfRowsFillsBothColumns) {
    layout.PrintTwoColumns({"a", "b", "c", "d"});
    EXPECT_EQ(Texts(), (Strings{"a", "c", "b", "d"}));
    // The second column starts a quarter of an inch after the middle of the page.
    EXPECT_NEAR(Last().x1, 4.5, 1e-9);
}

TEST_F(PrintLayoutTest, TwoRowsStandOnOneLineAndOneStandsLeft) {
    layout.PrintTwoColumns({"a", "b"});
    EXPECT_NEAR(Last().x1, 4.5, 1e-9);
    EXPECT_NEAR(Last().y1, 0.5, 1e-9);
    layout.PrintTwoColumns({"c"});
    EXPECT_NEAR(Last().x1, 0.5, 1e-9);
    layout.PrintTwoColumns({});
    EXPECT_EQ(Texts(), (Strings{"a", "b", "c"}));
}

TEST_F(PrintLayoutTest, LinesBreakAtTheLastBlankThatFits) {
    const std::string first = std::string(44, 'a') + " " + std::string(45, 'b');
    layout.PrintWrapped(first + " " + std::string(20, 'c'));
    EXPECT_EQ(Texts(), (Strings{first, std::string(20, 'c')}));
}

TEST_F(PrintLayoutTest, ATextThatJustFitsIsNotBroken) {
    layout.PrintWrapped(std::string(90, 'a'));
    layout.PrintWrapped(std::string(91, 'b'));
    EXPECT_EQ(Texts(), (Strings{std::string(90, 'a'), std::string(90, 'b'), "b"}));
}

TEST_F(PrintLayoutTest, AWordLongerThanTheLineIsCutByCharacters) {
    layout.PrintWrapped("a " + std::string(200, 'w') + " z");
    EXPECT_EQ(Texts(),
              (Strings{"a", std::string(90, 'w'), std::string(90, 'w'), std::string(20, 'w') + " z"}));
}

TEST_F(PrintLayoutTest, WholeCharactersAreCutNotBytes) {
    std::string umlauts;
    for (int i = 0; i < 91; ++i) umlauts += "ü";
    layout.PrintWrapped(umlauts);
    EXPECT_EQ(Texts(), (Strings{umlauts.substr(0, 180), "ü"}));
}

TEST_F(PrintLayoutTest, OneBlankGoesAtTheBreakAndAnIndentStays) {
    layout.PrintWrapped("  " + std::string(80, 'a') + "  " + std::string(80, 'b'));
    // The line breaks at the second of the two blanks; the first one stays.
    EXPECT_EQ(Texts(), (Strings{"  " + std::string(80, 'a') + " ", std::string(80, 'b')}));
}

TEST_F(PrintLayoutTest, AnIndentBeforeAWordThatIsTooLongIsAPlaceToBreak) {
    layout.PrintWrapped("  " + std::string(100, 'c'));
    EXPECT_EQ(Texts(), (Strings{" ", std::string(90, 'c'), std::string(10, 'c')}));
    layout.PrintWrapped(" " + std::string(100, 'd'));
    // The empty text before the blank is a line.
    EXPECT_EQ(Texts().at(3), std::string(90, 'd'));
    EXPECT_NEAR(Last().y1, 0.5 + 5 * 0.175, 1e-9);
}

TEST_F(PrintLayoutTest, EmptyLinesStay) {
    layout.PrintWrapped("a\r\n\r\n   \nb");
    EXPECT_EQ(Texts(), (Strings{"a", "b"}));
    EXPECT_NEAR(Last().y1, 0.5 + 3 * 0.175, 1e-9);
}

TEST_F(PrintLayoutTest, ABlankTextPrintsNothing) {
    layout.PrintWrapped("   ");
    layout.PrintWrapped("");
    layout.PrintLine("x");
    EXPECT_NEAR(Last().y1, 0.5, 1e-9);
}

TEST_F(PrintLayoutTest, APageTooSmallForALineStillEnds) {
    Begin({0.8, 0.6});
    layout.PrintWrapped("some words");
    layout.EndPrint();
    // One page for each character except the blank.
    EXPECT_EQ(steps.Pages(), 1 + 9);
}

TEST_F(PrintLayoutTest, AVeryLongLineIsWrappedInAFewMeasurements) {
    class Counting final : public TextMeasure {
      public:
        PrintSize SizeOf(const PrintFont& font, std::string_view text) const override {
            bytes += text.size();
            return FixedMeasure().SizeOf(font, text);
        }
        mutable std::size_t bytes = 0;
    } counting;
    layout.BeginPrint(std::make_unique<StepRecorder>(kLetterPaper, counting, steps), "Porter");
    const std::size_t length = 100'000;
    layout.PrintWrapped(std::string(length, 'x'));
    EXPECT_LT(counting.bytes, 25 * length);
}

TEST_F(PrintLayoutTest, RecordedStepsPlayBackAsTheyWere) {
    layout.PrintTitle("Porter", 18);
    layout.PrintRule();
    layout.PrintSwatch({1, 2, 3});
    Lines(60);
    layout.EndPrint();
    PrintSteps copy;
    PlaySteps(steps, std::make_unique<StepRecorder>(kLetterPaper, measure, copy));
    EXPECT_EQ(copy, steps);
    EXPECT_EQ(copy.title, "Porter");
}

}  // namespace
}  // namespace tw::test

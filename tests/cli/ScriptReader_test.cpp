// Tests of reading script lines: words, texts, quotes, escapes, numbers, answers to dialogs.
#include "cli/ScriptReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tw {
namespace {

using testing::HasSubstr;

// Returns the reason why taking fails; empty if it succeeds.
template <typename Taking>
std::string ReasonOf(std::string_view line, Taking taking) {
    Arguments arguments(line);
    try {
        taking(arguments);
    } catch (const ScriptError& error) {
        return error.Reason();
    }
    return {};
}

std::string TextOf(std::string_view line) {
    return Arguments(line).Text();
}

std::string BadText(std::string_view line) {
    return ReasonOf(line, [](Arguments& a) { a.Text(); });
}

std::string BadWord(std::string_view line) {
    return ReasonOf(line, [](Arguments& a) { a.Word("NAME"); });
}

std::string BadNumber(std::string_view line) {
    return ReasonOf(line, [](Arguments& a) { a.Number("N"); });
}

std::string BadInteger(std::string_view line) {
    return ReasonOf(line, [](Arguments& a) { a.Integer("N", 0, 8); });
}

TEST(Arguments, SeparateWordsByAnyNumberOfBlanks) {
    Arguments arguments("  cell   gridGrain 1  ");
    EXPECT_EQ(arguments.Word("NAME"), "cell");
    EXPECT_EQ(arguments.Word("NAME"), "gridGrain");
    EXPECT_EQ(arguments.Word("NAME"), "1");
    EXPECT_TRUE(arguments.AtEnd());
}

TEST(Arguments, TakeATabForAnOrdinaryCharacter) {
    EXPECT_EQ(Arguments("a\tb c").Word("NAME"), "a\tb");
}

TEST(Arguments, ReadAQuotedWordBeforeOthers) {
    Arguments arguments(R"("Hop  \"Zeus\"" rest)");
    EXPECT_EQ(arguments.Word("NAME"), "Hop  \"Zeus\"");
    EXPECT_EQ(arguments.Word("NAME"), "rest");
}

TEST(Arguments, KeepAQuoteInsideABareWord) {
    EXPECT_EQ(Arguments("6\"pot").Word("NAME"), "6\"pot");
}

TEST(Arguments, NameTheWordThatIsMissing) {
    EXPECT_EQ(BadWord("   "), "NAME is missing");
}

TEST(Arguments, TakeTheRestOfTheLineAsText) {
    EXPECT_EQ(TextOf("  5 gal  (about)  "), "5 gal  (about)");
    EXPECT_EQ(TextOf(R"(a\nb "c")"), R"(a\nb "c")");
    EXPECT_EQ(TextOf(""), "");
}

TEST(Arguments, ReadEveryEscapeOfAQuotedText) {
    EXPECT_EQ(TextOf(R"("\"\\\n\r\t")"), "\"\\\n\r\t");
    EXPECT_EQ(TextOf(R"("  ")"), "  ");
    EXPECT_EQ(TextOf(R"("")"), "");
}

TEST(Arguments, RefuseMalformedQuotes) {
    EXPECT_EQ(BadText(R"("open)"), "the closing double quote is missing");
    EXPECT_EQ(BadText(R"("ends in \)"), "the closing double quote is missing");
    EXPECT_EQ(BadText(R"("\x")"), "there is no escape \"\\x\"");
    EXPECT_EQ(BadText(R"("a"b)"), "a blank must follow the closing double quote");
    EXPECT_EQ(BadText(R"("a" b)"), "nothing may follow here, but there is 'b'");
}

TEST(Arguments, TakeALastNameBareOrQuotedButNeverMissing) {
    EXPECT_EQ(Arguments("Old Ale").LastName("NAME"), "Old Ale");
    EXPECT_EQ(Arguments(R"("Old Ale")").LastName("NAME"), "Old Ale");
    EXPECT_EQ(ReasonOf("", [](Arguments& a) { a.LastName("NAME"); }), "NAME is missing");
}

TEST(Arguments, ReadNumbersAsTheProgramDoes) {
    EXPECT_EQ(Arguments("1.050").Number("N"), 1.05);
    EXPECT_EQ(Arguments("-.5").Number("N"), -0.5);
    for (const char* bad : {"+1", "1e3", "1,5", "x", "-", "."})
        EXPECT_EQ(BadNumber(bad), "N must be a number, not '" + std::string(bad) + "'") << bad;
    EXPECT_EQ(BadNumber(std::string(400, '9')), "N is too large a number");
}

TEST(Arguments, KeepWholeNumbersWithinTheirRange) {
    EXPECT_EQ(Arguments("0").Integer("N", 0, 8), 0);
    EXPECT_EQ(Arguments("8").Integer("N", 0, 8), 8);
    for (const char* bad : {"9", "-1", "1.0", "x", "99999999999999999999999"})
        EXPECT_EQ(BadInteger(bad), "N must be a whole number from 0 to 8, not '" + std::string(bad) + "'")
            << bad;
    EXPECT_THAT(BadInteger(std::string(400, '9')), HasSubstr("whole number"));
}

TEST(Arguments, KnowTheTwoWordsOfAChoice) {
    EXPECT_TRUE(Arguments("yes").Choice("S", "yes", "no"));
    EXPECT_FALSE(Arguments("no").Choice("S", "yes", "no"));
    EXPECT_EQ(ReasonOf("Yes", [](Arguments& a) { a.Choice("S", "yes", "no"); }),
              "S must be yes or no, not 'Yes'");
}

TEST(Arguments, RefuseWhatIsLeftOver) {
    EXPECT_EQ(ReasonOf("x", [](Arguments& a) { a.End(); }), "nothing may follow here, but there is 'x'");
    EXPECT_EQ(ReasonOf("", [](Arguments& a) { a.End(); }), "");
}

TEST(Arguments, KeepZeroBytes) {
    const std::string line("a\0b", 3);
    EXPECT_EQ(TextOf(line), line);
}

TEST(EscapeText, KeepsOneLine) {
    EXPECT_EQ(EscapeText("a\\b\r\nc\td \"e\" °"), "a\\\\b\\r\\nc\\td \"e\" °");
}

std::string BadAnswer(std::string_view text) {
    try {
        ReadDialogAnswer(text);
    } catch (const ScriptError& error) {
        return error.Reason();
    }
    return {};
}

TEST(DialogAnswer, IsAButtonAlone) {
    const DialogAnswer answer = ReadDialogAnswer(" cmdOK ");
    EXPECT_TRUE(answer.entries.empty());
    EXPECT_EQ(answer.button, "cmdOK");
}

TEST(DialogAnswer, HoldsEntriesInTheirOrder) {
    const DialogAnswer answer =
        ReadDialogAnswer("gridInfo(0,1) = 4.5 ;txtDesc=\"a; \\\"b\\\"\" ; Text1=x=y; cmdOK");
    using Entry = std::pair<std::string, std::string>;
    EXPECT_EQ(answer.entries,
              (std::vector<Entry>{{"gridInfo(0,1)", "4.5"}, {"txtDesc", "a; \"b\""}, {"Text1", "x=y"}}));
    EXPECT_EQ(answer.button, "cmdOK");
}

TEST(DialogAnswer, TakesAnEmptyValue) {
    EXPECT_EQ(ReadDialogAnswer("Text1=;cmdOK").entries.front().second, "");
}

TEST(DialogAnswer, EndsWithItsButton) {
    EXPECT_EQ(BadAnswer(""), "the answer to a dialog ends with a button");
    EXPECT_EQ(BadAnswer("Text1=x"), "the answer to a dialog ends with a button");
    EXPECT_EQ(BadAnswer("cmdOK; Text1=x"), "the button comes last in an answer, not 'cmdOK'");
    EXPECT_EQ(BadAnswer("Text1=\"x\" y; cmdOK"), "a ';' must follow a quoted value");
}

}  // namespace
}  // namespace tw

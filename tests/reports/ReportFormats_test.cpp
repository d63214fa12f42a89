#include <gtest/gtest.h>

#include "reports/MakeReportWriter.h"
#include "reports/ReportText.h"
#include "reports/ReportUnits.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

class MemoryStream final : public ReportStream {
  public:
    void Write(std::string_view written) override { text += written; }
    std::string text;
};

class ReportFormatsTest : public testing::Test {
  protected:
    std::unique_ptr<ReportWriter> Make(ReportType type) { return MakeReportWriter(type, options, stream); }
    std::unique_ptr<ReportWriter> Text(const char* columns = "20") {
        options.numColumns = columns;
        return Make(ReportType::Text);
    }
    const std::string& Out() const { return stream.text; }
    std::string TakeOut() { return std::exchange(stream.text, {}); }

    ReportOptions options;
    MemoryStream stream;
};

// Plain text.

TEST_F(ReportFormatsTest, ALabelAndItsValueShareALine) {
    const auto report = Text();
    report->WriteLabel("OG: ", false);
    report->WriteText("1.050", false);
    report->ReportNewLine();
    EXPECT_EQ(Out(), "OG: 1.050\r\n");
}

TEST_F(ReportFormatsTest, TextReportsHaveNoHeadAndNoFoot) {
    const auto report = Text();
    report->BeginReport();
    report->EndReport();
    EXPECT_EQ(Out(), "");
}

TEST_F(ReportFormatsTest, CentredTextEndsItsLineBehindHalfOfTheRoomAndOneBlank) {
    const auto report = Text();
    report->WriteTitle("Porter", true);
    report->WriteText("Brown", true);
    EXPECT_EQ(Out(), "        Porter\r\n        Brown\r\n");  // (20 - 6) / 2 + 1, (20 - 5) / 2 + 1
}

TEST_F(ReportFormatsTest, AnEmptyCentredTextIsAnEmptyLine) {
    Text()->WriteText("", true);
    EXPECT_EQ(Out(), "\r\n");
}

TEST_F(ReportFormatsTest, CentredTextBehindAnOpenLineBeginsANewOne) {
    const auto report = Text();
    report->WriteText("open", false);
    report->WriteTitle("Porter", true);
    EXPECT_EQ(Out(), "open\r\n        Porter\r\n");
}

TEST_F(ReportFormatsTest, LongTextBreaksAtTheLastBlankBeforeTheWidth) {
    const auto report = Text();
    report->WriteText("one two three four five six seven", false);
    EXPECT_EQ(Out(), "one two three four\r\nfive six seven");
}

TEST_F(ReportFormatsTest, ABlankBehindTheWidthIsNoPlaceToBreak) {
    // The text before the second blank is as long as the line, so the blank itself is beyond it.
    const auto report = Text("7");
    report->WriteText("one two three", false);
    EXPECT_EQ(Out(), "one\r\ntwo\r\nthree");
}

TEST_F(ReportFormatsTest, ALongWordIsCut) {
    const auto report = Text("5");
    report->WriteText("abcdefghijkl", false);
    EXPECT_EQ(Out(), "abcde\r\nfghij\r\nkl");
}

TEST_F(ReportFormatsTest, CharactersCountNotBytes) {
    const auto report = Text("3");
    report->WriteText("üüüü", false);
    EXPECT_EQ(Out(), "üüü\r\nü");
}

TEST_F(ReportFormatsTest, ATextOfExactlyTheWidthIsOneLine) {
    const auto report = Text("5");
    report->WriteText("abcde", false);
    report->ReportNewLine();
    EXPECT_EQ(Out(), "abcde\r\n");
}

TEST_F(ReportFormatsTest, WhatStandsOnTheLineTakesItsRoom) {
    const auto report = Text("10");
    report->WriteLabel("Label: ", false);
    report->WriteText("ab cd", false);
    // Three characters remain after the label: "ab" fits, "cd" goes to the next line.
    EXPECT_EQ(Out(), "Label: ab\r\ncd");
}

TEST_F(ReportFormatsTest, AValueMayRunPastTheWidthByItsLabel) {
    const auto report = Text("10");
    report->WriteText("1234567", false);
    report->WriteText("abc", false);
    // Only the length of the last piece counts: 3 characters are used, 7 remain.
    report->WriteText("1234567", false);
    EXPECT_EQ(Out(), "1234567abc1234567");
}

TEST_F(ReportFormatsTest, AFullLineEndsBeforeTheNextText) {
    const auto report = Text("5");
    report->WriteText("abcde", false);
    report->WriteText("fg", false);
    EXPECT_EQ(Out(), "abcde\r\nfg");
}

TEST_F(ReportFormatsTest, LinesOfTheNotesStay) {
    const auto report = Text();
    report->WriteText("a\r\n\r\nb\r\n", false);
    EXPECT_EQ(Out(), "a\r\n\r\nb\r\n");
}

TEST_F(ReportFormatsTest, AWidthThatIsNoneWrapsNothing) {
    const std::string text(500, 'x');
    for (const char* columns : {"0", "-5", "abc", ""}) {
        const auto report = Text(columns);
        report->WriteText(text, false);
        EXPECT_EQ(TakeOut(), text) << columns;
        report->ReportNewLine();
        TakeOut();
        report->WriteTitle("Porter", true);
        EXPECT_EQ(TakeOut(), "Porter\r\n") << columns;
    }
}

TEST_F(ReportFormatsTest, AWidthOfOneCharacterStillEnds) {
    const auto report = Text("1");
    report->WriteLabel("a", false);
    report->WriteText("b c", false);
    EXPECT_EQ(Out(), "a\r\nb\r\nc");
}

TEST_F(ReportFormatsTest, TextSeparators) {
    Text()->ReportSeparator();
    EXPECT_EQ(TakeOut(), "\f\r\n");
    options.pageBreak = false;
    Text()->ReportSeparator();
    EXPECT_EQ(TakeOut(), "\r\n\r\n");
}

TEST_F(ReportFormatsTest, ARecipeBehindASeparatorBeginsAtTheLeft) {
    const auto report = Text();
    report->WriteText("the last of the note", false);
    report->ReportSeparator();
    report->WriteTitle("Porter", true);
    EXPECT_EQ(Out(), "the last of the note\f\r\n        Porter\r\n");
}

// HTML.

TEST_F(ReportFormatsTest, HtmlHeadAndFoot) {
    options.bgColor = 0xCCDDEE;  // blue, green, red
    options.text.color = 0x000080;
    const auto report = Make(ReportType::Html);
    report->BeginReport();
    EXPECT_EQ(TakeOut(),
              "<HTML>\r\n<HEAD>\r\n<TITLE>Tunwright Recipes</TITLE>\r\n</HEAD>\r\n"
              "<BODY BGCOLOR=\"#EEDDCC\" TEXT=\"#800000\">\r\n");
    report->EndReport();
    EXPECT_EQ(TakeOut(), "</BODY>\r\n</HTML>\r\n");
}

TEST_F(ReportFormatsTest, HtmlTextsTakeTheirFonts) {
    const auto report = Make(ReportType::Html);
    report->WriteTitle("General", false);
    EXPECT_EQ(TakeOut(), "<FONT FACE=\"MS Sans Serif\" COLOR=\"#000000\" SIZE=3><B>General</B></FONT>\r\n");
    report->WriteText("1.050", false);
    EXPECT_EQ(TakeOut(), "<FONT FACE=\"MS Sans Serif\" COLOR=\"#000000\" SIZE=2>1.050</FONT>\r\n");
    report->WriteTitle("Porter", true);
    EXPECT_EQ(
        TakeOut(),
        "<CENTER><FONT FACE=\"MS Sans Serif\" COLOR=\"#000000\" SIZE=3><B>Porter</B></FONT></CENTER>\r\n");
}

TEST_F(ReportFormatsTest, HtmlTagsNestInTheirOrder) {
    options.label = {.face = "Arial",
                     .points = 5,
                     .bold = true,
                     .italic = true,
                     .underline = true,
                     .strikethru = true,
                     .color = 0x0000FF};
    Make(ReportType::Html)->WriteLabel("x", false);
    // Sizes below 6 points become 0.
    EXPECT_EQ(
        Out(),
        "<FONT FACE=\"Arial\" COLOR=\"#FF0000\" SIZE=0><B><I><U><STRIKE>x</STRIKE></U></I></B></FONT>\r\n");
}

TEST_F(ReportFormatsTest, HtmlLinesAndSeparators) {
    Make(ReportType::Html)->ReportNewLine();
    EXPECT_EQ(TakeOut(), "<BR>\r\n");
    Make(ReportType::Html)->ReportSeparator();
    EXPECT_EQ(TakeOut(), "<BR><HR><BR>\r\n");
    options.horizontalRulers = false;
    Make(ReportType::Html)->ReportSeparator();
    EXPECT_EQ(TakeOut(), "<P>&nbsp;</P>\r\n");
}

TEST(ReportText, HtmlNamesWhatIsMarkupAndNumbersWhatIsBeyondAscii) {
    EXPECT_EQ(HtmlText("a & \"b\" <c> &amp;"), "a &amp; &quot;b&quot; &lt;c&gt; &amp;amp;");
    EXPECT_EQ(HtmlText("12° Kölsch 🍺"), "12&#176; K&#246;lsch &#127866;");
    EXPECT_EQ(HtmlText("a\xFF"
                       "b"),
              "a&#65533;b");
}

TEST(ReportText, RichTextEscapesItsOwnCharacters) {
    EXPECT_EQ(RichText("a\\b{c}"), "a\\\\b\\{c\\}");
}

TEST(ReportText, RichTextWritesUnicodeWithAByteForOldReaders) {
    EXPECT_EQ(RichText("°"), "\\u176\\'b0");
    EXPECT_EQ(RichText("€"), "\\u8364\\'80");
    EXPECT_EQ(RichText("Ž"), "\\u381\\'8e");
    EXPECT_EQ(RichText("ř"), "\\u345?");
    EXPECT_EQ(RichText("麦"), "\\u-24922?");          // 40614 - 65536
    EXPECT_EQ(RichText("🍺"), "\\u-10180?\\u-8326?");  // D83C DF7A
}

// Rich text.

TEST_F(ReportFormatsTest, RichTextHeadAndFoot) {
    options.title.face = "Arial";
    options.title.color = 0x0000FF;
    options.text.backColor = 0x00FFFF;
    const auto report = Make(ReportType::RichText);
    report->BeginReport();
    EXPECT_EQ(TakeOut(),
              "{\\rtfl\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1033\\deflangfe1033\r\n"
              "{\\fonttbl {\\f0\\fnil Arial;}{\\f1\\fnil MS Sans Serif;}{\\f2\\fnil MS Sans Serif;}}\r\n"
              "{\\colortbl;\\red0\\green0\\blue0;\\red255\\green255\\blue255;"
              "\\red255\\green0\\blue0;\\red255\\green255\\blue255;"
              "\\red0\\green0\\blue0;\\red255\\green255\\blue255;"
              "\\red0\\green0\\blue0;\\red255\\green255\\blue0;}\r\n"
              "\\viewkind1\\pard\\plain\r\n");
    report->EndReport();
    EXPECT_EQ(TakeOut(), "}\r\n");
}

TEST_F(ReportFormatsTest, RichTextTakesItsColorsAndAlwaysFontZero) {
    options.label.italic = options.label.underline = options.label.strikethru = true;
    const auto report = Make(ReportType::RichText);
    report->WriteTitle("Porter", true);
    EXPECT_EQ(TakeOut(), "{\\qc\\cf3\\highlight4\\f0\\fs24\\b Porter\\par}\r\n");
    report->WriteLabel("OG: ", false);
    EXPECT_EQ(TakeOut(), "{\\cf5\\highlight6\\f0\\fs20\\b\\i\\ul\\strike OG: }\r\n");
    report->WriteText("1.050", false);
    EXPECT_EQ(TakeOut(), "{\\cf7\\highlight8\\f0\\fs20 1.050}\r\n");
}

TEST_F(ReportFormatsTest, RichTextLinesAndSeparators) {
    Make(ReportType::RichText)->ReportNewLine();
    EXPECT_EQ(TakeOut(), "\\par\r\n");
    Make(ReportType::RichText)->ReportSeparator();
    EXPECT_EQ(TakeOut(), "\\page\r\n");
    options.pageBreak = false;
    Make(ReportType::RichText)->ReportSeparator();
    EXPECT_EQ(TakeOut(), "\\par\\par\r\n");
}

// Units.

TEST(ReportUnits, EachGroupStartsOnItsFirstOption) {
    const ReportUnits units;
    for (const ReportUnitGroup& group : ReportUnitGroups())
        for (const auto& option : group.options)
            EXPECT_EQ(units.IsChosen(option.name), &option == group.options.data()) << option.name;
}

TEST(ReportUnits, AnOptionTakesThePlaceOfTheOthersOfItsGroup) {
    ReportUnits units;
    EXPECT_TRUE(units.Choose("optHopGrams"));
    EXPECT_TRUE(units.IsChosen("optHopGrams"));
    EXPECT_FALSE(units.IsChosen("optHopAsIs"));
    EXPECT_TRUE(units.IsChosen("optGrAsIs"));
    EXPECT_FALSE(units.Choose("optHopStone"));
    EXPECT_FALSE(units.IsChosen("optHopStone"));
}

TEST(ReportUnits, Gravity) {
    ReportUnits units;
    EXPECT_EQ(units.Gravity(1.05), "1.050");
    EXPECT_EQ(units.Gravity(std::nullopt), "");
    units.Choose("optSGPlato");
    // 1262.45 * 1.048 - 668.96 - 776.43 * 1.048^2 + 182.94 * 1.048^3 = 11.8995 less 2e-6
    EXPECT_EQ(units.Gravity(1.048), "11.899° Plato");
    EXPECT_EQ(units.Gravity(std::nullopt), "");
}

TEST(ReportUnits, AlcoholByVolumeIsAsStored) {
    EXPECT_EQ(ReportUnits().Alcohol(" 5.2% abv ", 1.012), "5.2% abv");
    EXPECT_EQ(ReportUnits().Alcohol(std::nullopt, 1.012), "");
}

TEST(ReportUnits, AlcoholByWeight) {
    ReportUnits units;
    units.Choose("optAlcBW");
    EXPECT_EQ(units.Alcohol("5.2% abv", 1.012), "4.1% abw");  // 5.2 * 0.794 / 1.012 = 4.08
    EXPECT_EQ(units.Alcohol("5.2", 1.012), "4.1% abw");
    EXPECT_EQ(units.Alcohol("strong", 1.012), "?");
    EXPECT_EQ(units.Alcohol("", 1.012), "?");
    EXPECT_EQ(units.Alcohol("5.2% abv", 0.0), "?");
    EXPECT_EQ(units.Alcohol(std::nullopt, 1.012), "");
    EXPECT_EQ(units.Alcohol("5.2% abv", std::nullopt), "");
}

TEST(ReportUnits, Volume) {
    ReportUnits units;
    EXPECT_EQ(units.Volume("20 qt", 5.0), "20 qt");
    EXPECT_EQ(units.Volume(std::nullopt, 5.0), "");
    units.Choose("optVolGallons");
    EXPECT_EQ(units.Volume("20 qt", 5.0), "5.00 Gallons");
    EXPECT_EQ(units.Volume("20 qt", std::nullopt), "");
    units.Choose("optVolLiters");
    EXPECT_EQ(units.Volume("20 qt", 5.0), "18.93 Liters");  // 18.925
}

// Stored options.

TEST(ReportOptions, AnEmptyStoreGivesTheDefaults) {
    MemorySettings port;
    const SettingsStore store(port);
    for (const ReportType type : {ReportType::Text, ReportType::Html, ReportType::RichText})
        EXPECT_EQ(LoadReportOptions(store, type), ReportOptions());
}

TEST(ReportOptions, WhatIsSavedIsReadBack) {
    MemorySettings port;
    const SettingsStore store(port);
    ReportOptions options;
    options.pageBreak = false;
    options.title = {.face = "Arial",
                     .points = 10.5,
                     .bold = false,
                     .italic = true,
                     .underline = true,
                     .strikethru = true,
                     .color = 255,
                     .backColor = 65280};
    options.label.backColor = 1;
    SaveReportOptions(store, ReportType::RichText, options);
    EXPECT_EQ(LoadReportOptions(store, ReportType::RichText), options);
    // The other types have their own options.
    EXPECT_EQ(LoadReportOptions(store, ReportType::Html), ReportOptions());
    EXPECT_EQ(LoadReportOptions(store, ReportType::Text), ReportOptions());
}

TEST(ReportOptions, TheTextForms) {
    MemorySettings port;
    ReportOptions options;
    options.numColumns = " 60 ";
    SaveReportOptions(SettingsStore(port), ReportType::Text, options);
    EXPECT_EQ(port.written, (std::vector<std::string>{"NumColumns= 60 ", "PageBreak=1", "Append=0"}));
    port.written.clear();
    SaveReportOptions(SettingsStore(port), ReportType::Html, ReportOptions());
    EXPECT_EQ(port.written.size(), 23u);
    EXPECT_EQ(port.written.at(1), "HorzRuler=1");
    EXPECT_EQ(port.written.at(3), "TitleSize=12");
    EXPECT_EQ(port.written.at(4), "TitleBold=True");
    EXPECT_EQ(port.written.at(5), "TitleItalic=False");
}

TEST(ReportOptions, AValueOfAnotherFormIsTheDefault) {
    MemorySettings port;
    port.Put("HTMLOptions", "TitleSize", "large");
    port.Put("HTMLOptions", "HorzRuler", "maybe");
    port.Put("HTMLOptions", "BGColor", "99999999999999");
    port.Put("HTMLOptions", "LabelBold", "False");
    ReportOptions expected;
    expected.label.bold = false;
    EXPECT_EQ(LoadReportOptions(SettingsStore(port), ReportType::Html), expected);
}

TEST(ReportOptions, DefaultsByKey) {
    EXPECT_EQ(ReportOptionDefault("TextOptions", "NumColumns"), "75");
    EXPECT_EQ(ReportOptionDefault("HTMLOptions", "TitleSize"), "12");
    EXPECT_EQ(ReportOptionDefault("HTMLOptions", "TitleBColor"), std::nullopt);
    EXPECT_EQ(ReportOptionDefault("RTFOptions", "TextBColor"), "16777215");
    EXPECT_EQ(ReportOptionDefault("RTFOptions", "HorzRuler"), std::nullopt);
    EXPECT_EQ(ReportOptionDefault("Elsewhere", "PageBreak"), std::nullopt);
}

}  // namespace
}  // namespace tw::test

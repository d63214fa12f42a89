// Each repair by hand: the text of the file, the text that it becomes, the findings with their lines.
#include "exchange/XmlMend.h"

#include <pugixml.hpp>

#include "exchange/ExchangeLimits.h"
#include "exchange/HtmlWords.h"
#include "exchange/MendLog.h"
#include "exchange/XmlLookahead.h"
#include "exchange/XmlVocabulary.h"
#include "platform/Error.h"

namespace tw {
namespace {

using std::string_literals::operator""s;

constexpr std::string_view kHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

std::string Codes(const Findings& findings) {
    std::string codes;
    for (const Finding& each : findings.All()) {
        if (!codes.empty()) codes += ", ";
        codes += std::string(WordOf(each.code)) + " " + each.place.substr(each.place.find(' ') + 1);
    }
    return codes;
}

struct Case {
    std::string file;
    std::string mended;  // behind the header
    std::string codes;   // "bare-ampersand 3" is one in line 3
};

// Mends each file as it is stated, and the result once more, which changes nothing.
void Check(const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        SCOPED_TRACE(each.file);
        Findings findings;
        const std::string mended = MendXml(each.file, findings);
        EXPECT_EQ(mended, std::string(kHeader) + each.mended);
        EXPECT_EQ(Codes(findings), each.codes);
        pugi::xml_document document;
        EXPECT_TRUE(document.load_buffer(mended.data(), mended.size(), pugi::parse_full));
        Findings again;
        EXPECT_EQ(MendXml(mended, again), mended);
        for (const Finding& finding : again.All())
            EXPECT_EQ(finding.severity, Severity::Note) << finding.text;
    }
}

TEST(XmlMend, SoundFilesStayAsTheyAre) {
    Check({
        {"<HOPS><HOP><NAME>Fuggle</NAME></HOP></HOPS>", "<HOPS><HOP><NAME>Fuggle</NAME></HOP></HOPS>", ""},
        {"<?xml version='1.0'?>\n<!-- a -->\r\n<HOPS/>\n", "\n<!-- a -->\r\n<HOPS/>\n", ""},
        {"<HOPS a='1' b=\"<'>\"/>", "<HOPS a='1' b=\"&lt;'>\"/>", "bare-less-than 1"},
        {"<HOPS a = '1'\n b=\"2 > 1\" ></HOPS >", "<HOPS a = '1'\n b=\"2 > 1\" ></HOPS>", ""},
        {"<HOPS><HOP><NOTES>1 > 0 &amp; &lt;b&gt; &#176;&#xB0;</NOTES></HOP></HOPS>",
         "<HOPS><HOP><NOTES>1 > 0 &amp; &lt;b&gt; &#176;&#xB0;</NOTES></HOP></HOPS>", ""},
        {"<HOPS><HOP><NOTES><![CDATA[a < b && <c>]]></NOTES></HOP></HOPS>",
         "<HOPS><HOP><NOTES>a &lt; b &amp;&amp; &lt;c&gt;</NOTES></HOP></HOPS>", ""},
        {"<HOPS><HOP><OWN><NAME>x</NAME><x.y-z:w/></OWN></HOP></HOPS>",
         "<HOPS><HOP><OWN><NAME>x</NAME><x.y-z:w/></OWN></HOP></HOPS>", ""},
        // A field of another record is left where it is as long as all tags are in order.
        {"<EQUIPMENTS><EQUIPMENT><EFFICIENCY>70</EFFICIENCY><NAME/></EQUIPMENT></EQUIPMENTS>",
         "<EQUIPMENTS><EQUIPMENT><EFFICIENCY>70</EFFICIENCY><NAME/></EQUIPMENT></EQUIPMENTS>", ""},
        {"<?xml-stylesheet href='a'?><HOPS/>", "<HOPS/>", ""},
        {"<beer><HOPS/></beer>", "<beer><HOPS/></beer>", "wrapped 1"},
        {"<RECIPE><NAME>a</NAME></RECIPE>", "<RECIPE><NAME>a</NAME></RECIPE>", "recipe-as-root 1"},
    });
}

TEST(XmlMend, Characters) {
    Check({
        {"<HOPS><HOP><NAME>A\x01\x02X</NAME>\n<NOTES>\x0B</NOTES></HOP></HOPS>",
         "<HOPS><HOP><NAME>AX</NAME>\n<NOTES></NOTES></HOP></HOPS>",
         "control-character 1, control-character 2"},
        {"<HO\x03PS/>\r\n\xEF\xBF\xBE\xEF\xBF\xBF", "<HOPS/>\r\n",
         "control-character 1, control-character 2"},
        {"<HOPS>a\0</HOPS>"s, "<HOPS>a</HOPS>", "control-character 1"},
        {"<HOPS>&#0;&#x1F;&#xD800;&#x110000;&#99999999999;&#X41;&#x9;</HOPS>", "<HOPS>&#x41;&#x9;</HOPS>",
         "control-character 1, control-character 1, control-character 1, control-character 1, "
         "control-character 1"},
        {"<HOPS>\nA & B &c; &amp &AMP; &#; &#x; &#1a; &</HOPS>",
         "<HOPS>\nA &amp; B &amp;c; &amp;amp &amp;AMP; &amp;#; &amp;#x; &amp;#1a; &amp;</HOPS>",
         "bare-ampersand 2, bare-ampersand 2, bare-ampersand 2, bare-ampersand 2, bare-ampersand 2, "
         "bare-ampersand 2, bare-ampersand 2, bare-ampersand 2"},
        {"<HOPS>66&deg;\n&frac12;&nbsp;&Eacute;&eacute;</HOPS>", "<HOPS>66°\n½\u00A0Éé</HOPS>",
         "html-entity 1, html-entity 2, html-entity 2, html-entity 2, html-entity 2"},
        {"<HOPS>]>]]&#1;>></HOPS>", "<HOPS>]>]]&gt;></HOPS>", "control-character 1, bare-less-than 1"},
        {"<HOPS>a]]>b]]<!-- -- -->></HOPS>", "<HOPS>a]]&gt;b]]&gt;</HOPS>",
         "bare-less-than 1, bare-less-than 1"},
    });
}

TEST(XmlMend, LessThanInTexts) {
    Check({
        {"<HOP><NOTES>a < b << c <3 <- <john@example.org> <http://example.org></NOTES></HOP>",
         "<HOP><NOTES>a &lt; b &lt;&lt; c &lt;3 &lt;- &lt;john@example.org> "
         "&lt;http://example.org></NOTES></HOP>",
         "bare-less-than 1, bare-less-than 1, bare-less-than 1, bare-less-than 1, bare-less-than 1, "
         "bare-less-than 1, bare-less-than 1"},
        {"<HOP><NOTES>a<b>b</b>\n<BR/><P>c</P><brewed></NOTES></HOP>",
         "<HOP><NOTES>a&lt;b>b&lt;/b>\n&lt;BR/>&lt;P>c&lt;/P>&lt;brewed></NOTES></HOP>",
         "bare-less-than 1, bare-less-than 1, bare-less-than 2, bare-less-than 2, bare-less-than 2, "
         "bare-less-than 2"},
        {"<HOP><NOTES>a<a href='x&y'>b</a></NOTES></HOP>",
         "<HOP><NOTES>a&lt;a href='x&amp;y'>b&lt;/a></NOTES></HOP>",
         "bare-ampersand 1, bare-less-than 1, bare-less-than 1"},
        {"<HOP><NOTES><a b=\"<\">c</NOTES></HOP>", "<HOP><NOTES>&lt;a b=\"&lt;\">c</NOTES></HOP>",
         "bare-less-than 1"},
        // The word in brackets is no tag, since nothing closes it and NOTES is closed.
        {"<HOP><NOTES>wait <TIME> minutes</NOTES><TIME>5</TIME></HOP>",
         "<HOP><NOTES>wait &lt;TIME> minutes</NOTES><TIME>5</TIME></HOP>", "bare-less-than 1"},
        {"<HOP><NOTES>no <FORM> here", "<HOP><NOTES>no </NOTES></HOP>", "unclosed-tag 1, truncated 1"},
        {"<HOP><NOTES><form>x</form> a</NOTES><TIME>1</TIME></HOP>",
         "<HOP><NOTES>&lt;form>x&lt;/form> a</NOTES><TIME>1</TIME></HOP>",
         "bare-less-than 1, bare-less-than 1"},
    });
}

TEST(XmlMend, ClosingTags) {
    Check({
        // Misspelt by a letter that is missing, doubled, swapped or wrong; by case; without name, slash or
        // end.
        {"<HOPS><HOP><ALPHA>5</ALPA><BETA>4</BETTA><TIME>6</TMIE><USE>Boil</UZE></HOP></HOPS>",
         "<HOPS><HOP><ALPHA>5</ALPHA><BETA>4</BETA><TIME>6</TIME><USE>Boil</USE></HOP></HOPS>",
         "misspelt-close 1, misspelt-close 1, misspelt-close 1, misspelt-close 1"},
        {"<HOPS><HOP><ALPHA>5</alpha></HOP></HOPS>", "<HOPS><HOP><ALPHA>5</ALPHA></HOP></HOPS>",
         "tag-case 1"},
        {"<HOPS><HOP><ALPHA>5</></HOP></HOPS>", "<HOPS><HOP><ALPHA>5</ALPHA></HOP></HOPS>",
         "misspelt-close 1"},
        {"<HOPS><HOP><ALPHA>5<ALPHA>\n<BETA>4<BETA/></HOP></HOPS>",
         "<HOPS><HOP><ALPHA>5</ALPHA>\n<BETA>4</BETA></HOP></HOPS>", "misspelt-close 1, misspelt-close 2"},
        {"<HOPS><HOP><ALPHA>5</ALPHA\n<BETA>4</BETA></HOP</HOPS>",
         "<HOPS><HOP><ALPHA>5</ALPHA>\n<BETA>4</BETA></HOP></HOPS>", "misspelt-close 1, misspelt-close 2"},
        {"<HOPS><HOP><ALPHA>5</ ALPHA></HOP></HOPS>", "<HOPS><HOP><ALPHA>5</ALPHA></HOP></HOPS>", ""},
        {"<HOPS><HOP><ALPHA>5</FORM><BETA>4</BETA></HOP></HOPS>",
         "<HOPS><HOP><ALPHA>5</ALPHA><BETA>4</BETA></HOP></HOPS>", "misspelt-close 1"},
        // HOP and HOPS differ by a letter: what follows decides.
        {"<HOPS><HOP><TIME>1</TIME></HOPS><HOP><TIME>2</TIME></HOP></HOPS>",
         "<HOPS><HOP><TIME>1</TIME></HOP><HOP><TIME>2</TIME></HOP></HOPS>", "misspelt-close 1"},
        {"<RECIPE><HOPS><HOP><TIME>1</TIME></HOP></HOP><NAME>a</NAME></RECIPE>",
         "<RECIPE><HOPS><HOP><TIME>1</TIME></HOP></HOPS><NAME>a</NAME></RECIPE>",
         "recipe-as-root 1, misspelt-close 1"},
        {"<RECIPE><HOPS><HOP><TIME>1</TIME></HOPS><NAME>a</NAME></RECIPE>",
         "<RECIPE><HOPS><HOP><TIME>1</TIME></HOP></HOPS><NAME>a</NAME></RECIPE>",
         "recipe-as-root 1, unclosed-tag 1"},
        // Doubled and stray ones.
        {"<HOPS><HOP><TIME>1</TIME></TIME></HOP></HOP></HOPS></HOPS>",
         "<HOPS><HOP><TIME>1</TIME></HOP></HOPS>", "stray-close 1, stray-close 1, stray-close 1"},
        {"<HOPS><HOP><TIME>1</HOPS>2</TIME></HOP></HOPS>", "<HOPS><HOP><TIME>12</TIME></HOP></HOPS>",
         "stray-close 1"},
        {"<RECIPES><RECIPE><HOPS></RECIPE><HOP/></HOPS></RECIPE></RECIPES>",
         "<RECIPES><RECIPE><HOPS><HOP/></HOPS></RECIPE></RECIPES>", "stray-close 1"},
        // The opening tag was the misspelt one.
        {"<HOPS><HOP><TMIE>1</TIME></HOP></HOPS>", "<HOPS><HOP><TIME>1</TIME></HOP></HOPS>",
         "misspelt-close 1"},
    });
}

TEST(XmlMend, MissingClosingTags) {
    Check({
        {"<HOPS>\n<HOP>\n<TIME>1\n<USE>Boil\n</HOP><HOP>\n<TIME>2</TIME></HOPS>",
         "<HOPS>\n<HOP>\n<TIME>1\n</TIME><USE>Boil\n</USE></HOP><HOP>\n<TIME>2</TIME></HOP></HOPS>",
         "unclosed-tag 3, unclosed-tag 4, unclosed-tag 5"},
        {"<RECIPES><RECIPE><HOPS><HOP><NAME>a</NAME><MISCS/></RECIPE><RECIPE></RECIPE></RECIPES>",
         "<RECIPES><RECIPE><HOPS><HOP><NAME>a</NAME></HOP></HOPS><MISCS/></RECIPE><RECIPE></RECIPE></"
         "RECIPES>",
         "unclosed-tag 1, unclosed-tag 1"},
        {"<RECIPES><RECIPE><NAME>a</NAME><RECIPE><NAME>b</NAME></RECIPE></RECIPES>",
         "<RECIPES><RECIPE><NAME>a</NAME></RECIPE><RECIPE><NAME>b</NAME></RECIPE></RECIPES>",
         "unclosed-tag 1"},
        // STYLE has a NAME, RECIPE has none yet.
        {"<RECIPES><RECIPE><STYLE><NAME>s</NAME><NAME>r</NAME></RECIPE></RECIPES>",
         "<RECIPES><RECIPE><STYLE><NAME>s</NAME></STYLE><NAME>r</NAME></RECIPE></RECIPES>", "unclosed-tag 1"},
        // Neither has NOTES: the indentation tells, and without one they stay within STYLE.
        {"<RECIPES>\n <RECIPE>\n  <STYLE>\n   <NAME>s</NAME>\n  <NOTES>n</NOTES>\n </RECIPE></RECIPES>",
         "<RECIPES>\n <RECIPE>\n  <STYLE>\n   <NAME>s</NAME>\n  </STYLE><NOTES>n</NOTES>\n "
         "</RECIPE></RECIPES>",
         "unclosed-tag 3"},
        {"<RECIPES>\n <RECIPE>\n  <STYLE>\n   <NAME>s</NAME>\n   <NOTES>n</NOTES>\n </RECIPE></RECIPES>",
         "<RECIPES>\n <RECIPE>\n  <STYLE>\n   <NAME>s</NAME>\n   <NOTES>n</NOTES>\n "
         "</STYLE></RECIPE></RECIPES>",
         "unclosed-tag 3"},
        {"<RECIPES><RECIPE><STYLE><NAME>s</NAME><NOTES>n</NOTES></RECIPE></RECIPES>",
         "<RECIPES><RECIPE><STYLE><NAME>s</NAME><NOTES>n</NOTES></STYLE></RECIPE></RECIPES>",
         "unclosed-tag 1"},
        // Unknown fields, empty and with text.
        {"<HOPS><HOP><OWN>x<TIME>1</TIME><MINE><USE>Boil</USE></HOP></HOPS>",
         "<HOPS><HOP><OWN>x</OWN><TIME>1</TIME><MINE></MINE><USE>Boil</USE></HOP></HOPS>",
         "unclosed-tag 1, unclosed-tag 1"},
        {"<hops><hop><notes>x<own>y</own></hop></hops>",
         "<HOPS><HOP><NOTES>x</NOTES><own>y</own></HOP></HOPS>", "unclosed-tag 1, tag-case 1"},
        {"<HOPS><HOP><TIME 1</TIME></HOP></HOPS>", "<HOPS><HOP><TIME> 1</TIME></HOP></HOPS>",
         "unclosed-tag 1"},
    });
}

TEST(XmlMend, Roots) {
    Check({
        {"<HOPS><HOP/></HOPS>\n<YEASTS/>\n", "<RECORD_SETS><HOPS><HOP/></HOPS>\n<YEASTS/></RECORD_SETS>\n",
         "several-roots 2"},
        {"<RECIPE><NAME>a</NAME></RECIPE>\n<RECIPE/>",
         "<RECIPES><RECIPE><NAME>a</NAME></RECIPE>\n<RECIPE/></RECIPES>",
         "recipe-as-root 1, several-roots 2"},
        {"<RECIPES><RECIPE/>\n<HOPS></HOPS><STYLES/>",
         "<RECORD_SETS><RECIPES><RECIPE/>\n</RECIPES><HOPS></HOPS><STYLES/></RECORD_SETS>",
         "unclosed-tag 1, several-roots 2"},
        {"Saved by hand\n<?xml version=\"1.0\"?>\n<HOPS/> and < more &\n", "\n\n<HOPS/>\n",
         "wrapped 1, wrapped 3"},
        {"\xEF\xBB\xBF\n <HOPS/>", "\n <HOPS/>", ""},
        {"<!-- a -- b -->\n<HOPS/><!-- c --->", "\n<HOPS/>", ""},
    });
}

TEST(XmlMend, Doctypes) {
    Check({
        {"<!DOCTYPE HOPS>\n<HOPS/>", "\n<HOPS/>", "doctype 1"},
        {"<!DOCTYPE HOPS SYSTEM \"a>b\" [\n<!ENTITY x \"]>\">\n<!-- ' ] -->\n<?p ]?>]\n>\n<HOPS>&x;</HOPS>",
         "\n\n\n\n\n<HOPS>&amp;x;</HOPS>", "doctype 1, bare-ampersand 6"},
        {"<!doctype HOPS [ <!ENTITY a \"&#0;\">\n<HOPS/>", "\n<HOPS/>", "doctype 1"},
        {"<!DOCTYPE brewer's>\n<HOPS><HOP><NAME>Bob's</NAME></HOP></HOPS>",
         "\n<HOPS><HOP><NAME>Bob's</NAME></HOP></HOPS>", "doctype 1"},
    });
}

TEST(XmlMend, CutFiles) {
    Check({
        {"<HOPS><HOP><NAME>a</NAME><ALPHA>5.", "<HOPS><HOP><NAME>a</NAME></HOP></HOPS>", "truncated 1"},
        {"<HOPS>\n<HOP><NAME>a</NAME></HOP>\n<HOP><NAME", "<HOPS>\n<HOP><NAME>a</NAME></HOP>\n</HOPS>",
         "truncated 3"},
        {"<HOPS><HOP><NAME>a</NAME></HO", "<HOPS><HOP><NAME>a</NAME></HOP></HOPS>", "truncated 1"},
        {"<HOPS><HOP><NAME>a</NAME></HOP><!-- ", "<HOPS><HOP><NAME>a</NAME></HOP></HOPS>", "truncated 1"},
        {"<HOPS><HOP><NAME>a</NAME><NOTES><![CDATA[b", "<HOPS><HOP><NAME>a</NAME></HOP></HOPS>",
         "truncated 1"},
        {"<HOPS><HOP><NAME>a</NAME><", "<HOPS><HOP><NAME>a</NAME></HOP></HOPS>", "truncated 1"},
        {"<HOPS><HOP><NAME>a</NAME><!-", "<HOPS><HOP><NAME>a</NAME></HOP></HOPS>", "truncated 1"},
        {"<HOPS/><!-- a", "<HOPS/>", "truncated 1"},
        {"<RECIPES><RECIPE><NAME>a</NAME><OWN><NAME>x</NAME>",
         "<RECIPES><RECIPE><NAME>a</NAME><OWN><NAME>x</NAME></OWN></RECIPE></RECIPES>", "truncated 1"},
        {"<RECIPES>", "<RECIPES></RECIPES>", "truncated 1"},
    });
}

TEST(XmlMend, Attributes) {
    Check({
        {"<HOPS a=1 b='x & y' a=2 c d=\"e<f\"><HOP/></HOPS>",
         "<HOPS a=\"1\" b='x &amp; y' c=\"\" d=\"e&lt;f\"><HOP/></HOPS>",
         "bare-ampersand 1, duplicate 1, bare-less-than 1, unclosed-tag 1"},
        {"<hops\n a=\"b\"c='d'><HOP/></hops>", "<HOPS a=\"b\" c='d'\n><HOP/></HOPS>", "tag-case 1"},
        {"<HOPS a=\"b><HOP c=\"d\"/></HOPS>", "<HOPS a=\"b\"><HOP c=\"d\"/></HOPS>", "unclosed-tag 1"},
    });
}

TEST(XmlMend, Encodings) {
    Check({
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<HOPS a=\"\xFC\"/>", "\n<HOPS a=\"ü\"/>", ""},
        {"note\n<?xml version=\"1.0\" encoding=\"System\"?>\n<HOPS/>", "\n\n<HOPS/>",
         "encoding 2, wrapped 1"},
    });
}

TEST(XmlMend, SentencesNameWhatWasDone) {
    Findings findings;
    MendXml("x\n<hops><HOP><TIME>5</TMIE></HOP></USE></hops>", findings);
    std::vector<std::string> texts;
    for (const Finding& each : findings.All()) texts.push_back(each.text);
    EXPECT_THAT(texts, testing::ElementsAre(
                           "Text outside of the records was left out: \"x\".",
                           "The tag \"/TMIE\" was read as \"/TIME\".",
                           "The tag \"/USE\" closes nothing; it was left out.",
                           "2 tags are not written in capital letters; they were read as if they were."));
}

std::string Repeated(std::string_view text, std::size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    for (; count > 0; --count) all += text;
    return all;
}

std::string Refusal(const std::string& file) {
    Findings findings;
    try {
        MendXml(file, findings);
    } catch (const Error& error) {
        return error.Description();
    }
    return {};
}

TEST(XmlMend, LimitsRefuseTheFile) {
    EXPECT_THAT(Refusal(std::string(kMostExchangeBytes + 1, ' ')), testing::HasSubstr("64 MB"));
    EXPECT_THAT(Refusal(""), testing::HasSubstr("no tags"));
    EXPECT_THAT(Refusal("\x01\x02 any words"), testing::HasSubstr("no tags"));
    const std::size_t most = kMostExchangeDepth;
    EXPECT_EQ(Refusal(Repeated("<X>", most) + Repeated("</X>", most)), "");
    EXPECT_THAT(Refusal(Repeated("<X>", most + 1) + Repeated("</X>", most + 1)), testing::HasSubstr("256"));
    EXPECT_THAT(Refusal(Repeated("<X>", 200'000) + Repeated("</X>", 200'000)), testing::HasSubstr("256"));
    EXPECT_EQ(Refusal("<HOPS>" + Repeated("<HOP/>", kMostExchangeRecords) + "</HOPS>"), "");
    EXPECT_THAT(Refusal("<HOPS>" + Repeated("<HOP/>", kMostExchangeRecords + 1) + "</HOPS>"),
                testing::HasSubstr("100,000"));
    EXPECT_THAT(Refusal("<HOPS>" + Repeated("&", 250'001) + "</HOPS>"), testing::HasSubstr("faults"));
    EXPECT_THAT(Refusal("<HOPS>" + Repeated("<", 250'001) + "</HOPS>"), testing::HasSubstr("faults"));
}

// What would take hours if any of it were looked at again and again. A test that hangs is one that fails.
TEST(XmlMend, HostileFilesAreAnsweredAtOnce) {
    constexpr std::size_t kBytes = 256 * 1024;
    for (const char* part :
         {"<a>",         "<HOP>",        "</a>",           "<",    "&",      "<!--",
          "<![CDATA[",   "<!DOCTYPE [",  "<!DOCTYPE \"",   "<?a ", "<a b='", "<a b=\"c ",
          "<HOP><NAME>", "<HOPS></HOP>", "<STYLE><NOTES>", "\"'<", "]]>",    "<NAME>a<NAME>",
          "\x01a\n",     "<NOTES></p>",  "&lol9;",         "\xC3", "\xE4\r"}) {
        SCOPED_TRACE(part);
        const std::string many = Repeated(part, kBytes / std::string_view(part).size());
        for (const std::string& file : {many, "<RECIPES><RECIPE><NOTES>" + many}) {
            const std::string refusal = Refusal(file);
            EXPECT_LT(refusal.size(), 300U);
        }
    }
}

TEST(XmlMend, AnExplosionOfEntitiesStaysText) {
    std::string file = "<!DOCTYPE HOPS [<!ENTITY l0 \"lol\">";
    for (int i = 1; i < 10; ++i)
        file += "<!ENTITY l" + std::to_string(i) + " \"" + Repeated("&l" + std::to_string(i - 1) + ";", 10) +
                "\">";
    Findings findings;
    EXPECT_EQ(MendXml(file + "]><HOPS>&l9;</HOPS>", findings),
              std::string(kHeader) + "<HOPS>&amp;l9;</HOPS>");
}

TEST(HtmlWords, EntitiesAndTags) {
    EXPECT_EQ(CharacterOfEntity("nbsp"), 0xA0);
    EXPECT_EQ(CharacterOfEntity("Eacute"), 0xC9);
    EXPECT_EQ(CharacterOfEntity("euro"), 0x20AC);
    EXPECT_EQ(CharacterOfEntity("amp"), std::nullopt);
    EXPECT_EQ(CharacterOfEntity("EACUTE"), std::nullopt);
    EXPECT_TRUE(IsHtmlTag("br"));
    EXPECT_TRUE(IsHtmlTag("Span"));
    EXPECT_FALSE(IsHtmlTag("HOP"));
    EXPECT_EQ(FindHtmlTag("b"), HtmlTag::WithinLine);
    EXPECT_EQ(FindHtmlTag("li"), HtmlTag::LineBreak);
    EXPECT_EQ(FindHtmlTag("P"), HtmlTag::ParagraphBreak);
    EXPECT_EQ(NumberOfReference("#65"), 65U);
    EXPECT_EQ(NumberOfReference("#X41"), 0x41U);
    EXPECT_EQ(NumberOfReference("#99999999999"), UINT32_MAX);
    EXPECT_EQ(NumberOfReference("#6a"), std::nullopt);
    EXPECT_EQ(NumberOfReference("amp"), std::nullopt);
}

// What is refused in any case is not looked through to its end.
TEST(XmlSurvey, CountsStrayTagsOfHtmlAsFaults) {
    constexpr std::size_t kMany = 1'000'000;
    EXPECT_TRUE(Survey("<HOPS></b></b></HOPS>", kMany, kMany).balanced);
    EXPECT_FALSE(Survey("<HOPS>" + Repeated("</b>", kMostFaults + 1) + "</HOPS>", kMany, kMany).balanced);
}

TEST(CountLineBreaks, CountsEveryKindOnce) {
    EXPECT_EQ(CountLineBreaks(""), 0U);
    EXPECT_EQ(CountLineBreaks("a\nb\r\nc\rd"), 3U);
    EXPECT_EQ(CountLineBreaks("\r\r\n\n\r"), 4U);
    EXPECT_EQ(CountLineBreaks("\n"), 1U);
}

TEST(XmlVocabulary, SlipsOfTyping) {
    EXPECT_TRUE(Resembles("HPO", "HOP"));
    EXPECT_TRUE(Resembles("HO", "HOP"));
    EXPECT_TRUE(Resembles("HOPP", "HOP"));
    EXPECT_FALSE(Resembles("H", "HOP"));
    EXPECT_FALSE(Resembles("NAME", "TIME"));
    EXPECT_TRUE(Resembles("fermentabel", "FERMENTABLE"));
    EXPECT_TRUE(Resembles("OGG", "OG"));
    EXPECT_FALSE(Resembles("FGG", "OG"));
}

}  // namespace
}  // namespace tw

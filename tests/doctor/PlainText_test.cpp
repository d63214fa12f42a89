#include "doctor/PlainText.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

TEST(PlainText, TagsOfHtmlBecomeLines) {
    EXPECT_EQ(PlainText("<p>First&nbsp;line</p><p>Second <b>line</b></p>"), "First line\r\nSecond line");
    EXPECT_EQ(PlainText("<ul><li>one</li><li class='a'>two</li></ul>"), "one\r\ntwo");
    EXPECT_EQ(PlainText("a<br/>b<BR>c<hr />d"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(PlainText("<html><body>Drink <i>cold</i>.</body></html>"), "Drink cold.");
}

TEST(PlainText, ReferencesOfHtmlBecomeCharacters) {
    EXPECT_EQ(PlainText("<p>&lt;b&gt; &amp;lt; &quot;&apos;&#39;&#x41; 20&deg; &eacute;</p>"),
              "<b> &lt; \"''A 20\u00B0 \u00E9");
    // What is none stays.
    EXPECT_EQ(PlainText("<p>malt & hops; &none; &#1; &</p>"), "malt & hops; &none; &#1; &");
}

TEST(PlainText, TextWithoutTagsStaysAsItIs) {
    EXPECT_EQ(PlainText("\n One\nTwo < three &amp; <four>\r\rfive \r\n"),
              "One\r\nTwo < three &amp; <four>\r\n\r\nfive");
    EXPECT_EQ(PlainText(" \t\r\n"), "");
    EXPECT_EQ(PlainText("<p"), "<p");
}

// Looking for the end of each tag up to the end of the text would take minutes.
TEST(PlainText, ManyTagsWithoutAnEndTakeNoTime) {
    std::string text;
    for (int i = 0; i < 1'000'000; ++i) text += "<p ";
    EXPECT_EQ(PlainText(text + "."), text + ".");
    const std::string brackets(4'000'000, '<');
    EXPECT_EQ(PlainText(brackets + " > <b>x"), brackets + " > x");
}

}  // namespace
}  // namespace tw::test

#include "values/Utf8.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

TEST(Utf8, TellsTheCodePointAtTheFront) {
    EXPECT_EQ(FrontCodePoint("ab").value, 'a');
    EXPECT_EQ(FrontCodePoint("ab").bytes, 1U);
    EXPECT_EQ(FrontCodePoint("\u00E9t\u00E9").value, 0xE9);
    EXPECT_EQ(FrontCodePoint("\u00E9t\u00E9").bytes, 2U);
    EXPECT_EQ(FrontCodePoint("\U0001F37A!").value, 0x1F37A);
    EXPECT_EQ(FrontCodePoint("\U0001F37A!").bytes, 4U);
}

TEST(Utf8, CountsAByteThatIsNoUtf8AsOneCodePoint) {
    // A continuation byte alone, and a truncated code point.
    for (const char* text : {"\x80z", "\xE2\x82"}) {
        EXPECT_EQ(FrontCodePoint(text).value, kNoCodePoint);
        EXPECT_EQ(FrontCodePoint(text).bytes, 1U);
        EXPECT_EQ(CodePointCount(text), 2U);
    }
}

TEST(Utf8, AppendsWhatItReads) {
    std::string text;
    for (const std::int32_t codePoint : {0x61, 0xE9, 0x20AC, 0x1F37A}) AppendCodePoint(text, codePoint);
    EXPECT_EQ(text, "a\u00E9\u20AC\U0001F37A");
}

TEST(Utf8, FindsCodePointsByTheirNumber) {
    EXPECT_EQ(CodePointOffset("\u00E9t\u00E9", 1), 2U);
    EXPECT_EQ(CodePointOffset("\u00E9t\u00E9", 2), 3U);
    EXPECT_EQ(CodePointOffset("\u00E9t\u00E9", 9), 5U);
}

TEST(CodePointCount, CountsABrokenByteAsOne) {
    EXPECT_EQ(CodePointCount(""), 0u);
    EXPECT_EQ(CodePointCount("abc"), 3u);
    EXPECT_EQ(CodePointCount("k\u00F6lsch"), 6u);
    EXPECT_EQ(CodePointCount("\U00010400"), 1u);
    EXPECT_EQ(CodePointCount("\xFF\xFE"), 2u);
    EXPECT_EQ(CodePointCount("a\xC3"), 2u);
}

TEST(Utf8, KnowsWhatCannotBeSeen) {
    EXPECT_FALSE(IsInvisible(' '));
    EXPECT_FALSE(IsInvisible(0xE9));
    EXPECT_TRUE(IsInvisible('\t'));
    EXPECT_TRUE(IsInvisible(0xA0));    // no-break space
    EXPECT_TRUE(IsInvisible(0x200B));  // zero-width space
}

}  // namespace
}  // namespace tw

#include "values/Split.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace tw {
namespace {

using testing::ElementsAre;

TEST(Split, HasOnePartMoreThanSeparators) {
    EXPECT_THAT(Split("a,b,c", ','), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Split(",a,,", ','), ElementsAre("", "a", "", ""));
    EXPECT_THAT(Split("a", ','), ElementsAre("a"));
    EXPECT_THAT(Split("", ','), ElementsAre(""));
}

TEST(Split, CutsThePartBeforeASeparator) {
    std::string_view text = "name=a=b";
    EXPECT_EQ(CutPart(text, '='), "name");
    EXPECT_EQ(text, "a=b");
    EXPECT_EQ(CutPart(text, ';'), "a=b");
    EXPECT_EQ(text, "");
    EXPECT_EQ(CutPart(text, ';'), "");
}

TEST(Split, FindsTheWordsBetweenBlanksTabsAndLineEnds) {
    std::vector<std::string> words;
    const auto keep = [&](std::string_view word) { words.emplace_back(word); };
    ForEachWord(" pale\tale\r\n  malt ", keep);
    EXPECT_THAT(words, ElementsAre("pale", "ale", "malt"));
    words.clear();
    ForEachWord(" \t", keep);
    ForEachWord("", keep);
    EXPECT_TRUE(words.empty());
}

}  // namespace
}  // namespace tw

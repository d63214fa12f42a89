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

}  // namespace
}  // namespace tw

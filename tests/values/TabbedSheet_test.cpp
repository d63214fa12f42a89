#include "values/TabbedSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace tw {
namespace {

using testing::ElementsAre;

TEST(TabbedSheet, NumbersItsLinesFromTheHeader) {
    std::istringstream text("name\tweight\nPale\t5\n\nMunich\t");
    const TabbedSheet sheet = ReadTabbedSheet(text);
    EXPECT_EQ(sheet.header, "name\tweight");
    ASSERT_EQ(sheet.lines.size(), 3U);
    EXPECT_EQ(sheet.lines[0].number, 2);
    EXPECT_THAT(sheet.lines[0].Cells(), ElementsAre("Pale", "5"));
    EXPECT_THAT(sheet.lines[1].Cells(), ElementsAre(""));
    EXPECT_EQ(sheet.lines[2].number, 4);
    EXPECT_THAT(sheet.lines[2].Cells(), ElementsAre("Munich", ""));
}

TEST(TabbedSheet, OfNoTextHasNoHeader) {
    std::istringstream text;
    const TabbedSheet sheet = ReadTabbedSheet(text);
    EXPECT_EQ(sheet.header, "");
    EXPECT_TRUE(sheet.lines.empty());
}

}  // namespace
}  // namespace tw

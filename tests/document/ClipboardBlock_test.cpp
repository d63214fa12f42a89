#include "document/ClipboardBlock.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

using Block = ClipboardBlock;

TEST(ClipboardBlock, LinesEndWithACarriageReturnAndCellsAreParted) {
    EXPECT_EQ(JoinBlock({{"8 lb", "36"}, {"", "ä 麦"}}), "8 lb\t36\r\tä 麦\r");
    EXPECT_EQ(JoinBlock({{""}}), "\r");
}

TEST(ClipboardBlock, ATextWithoutAnythingIsOneEmptyCell) {
    EXPECT_EQ(SplitBlock(""), (Block{{""}}));
    EXPECT_EQ(SplitBlock("\r"), (Block{{""}}));
    EXPECT_EQ(SplitBlock("\r\n"), (Block{{""}}));
}

TEST(ClipboardBlock, LinesOfOtherProgramsGiveNoStrayRows) {
    EXPECT_EQ(SplitBlock("a\tb\r\n\tc\r\n"), (Block{{"a", "b"}, {"", "c"}}));
    EXPECT_EQ(SplitBlock("a\rb"), (Block{{"a"}, {"b"}}));
    // Only the line end of the last line starts no further row.
    EXPECT_EQ(SplitBlock("a\r\r"), (Block{{"a"}, {""}}));
    // A line feed alone does not start a row.
    EXPECT_EQ(SplitBlock("a\nb\n"), (Block{{"ab"}}));
}

TEST(ClipboardBlock, ShortRowsAreFilled) {
    EXPECT_EQ(SplitBlock("a\rb\tc\td\r\te"), (Block{{"a", "", ""}, {"b", "c", "d"}, {"", "e", ""}}));
}

TEST(ClipboardBlock, ComesBackAsItWas) {
    for (const Block& block :
         {Block{{""}}, Block{{"a"}, {""}}, Block{{"", ""}, {"1/2 oz", "It's"}, {"", "x"}}})
        EXPECT_EQ(SplitBlock(JoinBlock(block)), block);
}

}  // namespace
}  // namespace tw::test

#include "catalogue/CellGrid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using testing::IsEmpty;

CellGrid GridOf(CatalogueKind catalogue) {
    return CellGrid(FormOf(catalogue).rows);
}

TEST(CellGrid, HasAColumnForEachEndOfARange) {
    const CellGrid styles = GridOf(CatalogueKind::Style), waters = GridOf(CatalogueKind::Water);
    EXPECT_EQ(styles.Rows(), 6);
    EXPECT_EQ(styles.Cols(), 2);
    EXPECT_EQ(waters.Cols(), 1);
    EXPECT_EQ(CellGrid::NameOf(5, 1), "gridInfo(5,1)");
}

TEST(CellGrid, AnEntryCountsOnceItIsLeft) {
    CellGrid hops = GridOf(CatalogueKind::Hop);
    MessageRecorder messages;
    EXPECT_TRUE(hops.Type(0, 0, "4.5"));
    EXPECT_FALSE(hops.Type(0, 0, "4.5"));
    EXPECT_FALSE(hops.Value(0, 0));
    EXPECT_TRUE(hops.Leave(0, 0, messages));
    EXPECT_EQ(hops.Value(0, 0), 4.5);
    hops.Type(0, 0, "  ");
    EXPECT_TRUE(hops.Leave(0, 0, messages));
    EXPECT_FALSE(hops.Value(0, 0));
    EXPECT_THAT(messages.TakeLog(), IsEmpty());
}

TEST(CellGrid, ARefusedEntryGivesWayToTheLastGoodOne) {
    CellGrid waters = GridOf(CatalogueKind::Water);
    MessageRecorder messages;
    waters.Load(0, 0, 52);
    waters.Type(0, 0, "much");
    EXPECT_FALSE(waters.Leave(0, 0, messages));
    EXPECT_EQ(waters.Text(0, 0), "52");
    EXPECT_EQ(waters.Value(0, 0), 52);
    EXPECT_EQ(messages.TakeLog().size(), 1U);
    waters.Clear();
    EXPECT_EQ(waters.Text(0, 0), "");
    EXPECT_FALSE(waters.Value(0, 0));
}

TEST(CellGrid, ALoadedNumberKeepsAllItsDigits) {
    CellGrid waters = GridOf(CatalogueKind::Water);
    MessageRecorder messages;
    waters.Load(2, 0, 0.1 + 0.2);
    EXPECT_TRUE(waters.Leave(2, 0, messages));
    EXPECT_EQ(waters.Value(2, 0), 0.1 + 0.2);
}

}  // namespace
}  // namespace tw::test

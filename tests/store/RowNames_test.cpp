#include "store/RowNames.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

class RowNames : public testing::Test {
  protected:
    RowNames() { db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade'), ('Baker''s')"); }
    const std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
};

TEST_F(RowNames, AreFoundTrimmedAndInAnyCase) {
    EXPECT_EQ(IdByName(*db, "HOPS", "  baker's "), 2);
    EXPECT_EQ(IdByName(*db, "HOPS", "Fuggle"), 0);
    EXPECT_EQ(RowsByName(*db, "HOPS", "NAME, ID", "CASCADE").Fields("ID").Integer(), 1);
    EXPECT_TRUE(RowsByName(*db, "HOPS", "NAME", "").AtEnd());
}

TEST_F(RowNames, AreToldByTheirIds) {
    EXPECT_EQ(NameById(*db, "HOPS", 1), "Cascade");
    EXPECT_EQ(NameById(*db, "HOPS", 3), std::nullopt);
}

}  // namespace
}  // namespace tw::test

#include "store/DatabaseId.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

TEST(DatabaseId, IsMadeOnDemandAndGoesWithTheFile) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a.mdb");
    MakeMainDatabase(path);
    std::string id;
    {
        const auto db = OpenMainDatabase(path);
        EXPECT_EQ(DatabaseId(*db), "");
        id = EnsureDatabaseId(*db);
        EXPECT_EQ(id.size(), 32u);
        EXPECT_EQ(id.find_first_not_of("0123456789abcdef"), std::string::npos) << id;
        EXPECT_EQ(EnsureDatabaseId(*db), id);
    }
    std::filesystem::rename(path, folder.File("b.mdb"));
    EXPECT_EQ(DatabaseId(*OpenMainDatabase(folder.File("b.mdb"))), id);
}

TEST(DatabaseId, IsAnotherForEachDatabase) {
    EXPECT_NE(EnsureDatabaseId(*CreateMainDatabaseInMemory()),
              EnsureDatabaseId(*CreateMainDatabaseInMemory()));
}

}  // namespace
}  // namespace tw::test

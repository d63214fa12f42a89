// Tests of the statements that a database keeps compiled.
#include "store/StatementCache.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "StoreSupport.h"
#include "store/Schema.h"
#include "store/SqliteHandle.h"

namespace tw::test {
namespace {

class StatementCacheTest : public testing::Test {
  protected:
    sqlite3_stmt* Compile(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle.get(), sql.c_str(), -1, &statement, nullptr), SQLITE_OK);
        return statement;
    }
    // The number of statements of the database that are not finalized.
    int Living() {
        int count = 0;
        for (sqlite3_stmt* each = nullptr; (each = sqlite3_next_stmt(handle.get(), each)) != nullptr;)
            ++count;
        return count;
    }

    SqliteHandle handle = OpenMemoryDatabase();
    StatementCache cache;
};

TEST_F(StatementCacheTest, ReturnsAStatementOfTheSameTextOnce) {
    sqlite3_stmt* const one = Compile("SELECT 1");
    cache.GiveBack(one);
    EXPECT_EQ(cache.Take("SELECT 2"), nullptr);
    EXPECT_EQ(cache.Take("SELECT 1"), one);
    EXPECT_EQ(cache.Take("SELECT 1"), nullptr);
    cache.GiveBack(one);
}

TEST_F(StatementCacheTest, AnIdleStatementHasNoRowAndNoValue) {
    sqlite3_stmt* const statement = Compile("SELECT ?");
    sqlite3_bind_int(statement, 1, 7);
    ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
    cache.GiveBack(statement);
    EXPECT_EQ(sqlite3_stmt_busy(statement), 0);
    ASSERT_EQ(sqlite3_step(cache.Take("SELECT ?")), SQLITE_ROW);
    EXPECT_EQ(sqlite3_column_type(statement, 0), SQLITE_NULL);
    cache.GiveBack(statement);
}

TEST_F(StatementCacheTest, KeepsTheStatementsUsedLast) {
    const auto text = [](std::size_t i) { return "SELECT " + std::to_string(i); };
    for (std::size_t i = 0; i <= StatementCache::kMost; ++i) cache.GiveBack(Compile(text(i)));
    EXPECT_EQ(Living(), static_cast<int>(StatementCache::kMost));
    EXPECT_EQ(cache.Take(text(0)), nullptr);
    // Using the oldest one makes the next one the oldest.
    cache.GiveBack(cache.Take(text(1)));
    cache.GiveBack(Compile(text(0)));
    EXPECT_EQ(cache.Take(text(2)), nullptr);
    cache.Clear();
    EXPECT_EQ(Living(), 0);
}

TEST_F(StatementCacheTest, AStatementThatFailedIsNotKept) {
    sqlite3_stmt* const failing = Compile("SELECT abs(-9223372036854775808)");
    EXPECT_EQ(sqlite3_step(failing), SQLITE_ERROR);
    cache.GiveBack(failing);
    EXPECT_EQ(Living(), 0);
}

TEST_F(StatementCacheTest, KeepsNothingOnceClosed) {
    sqlite3_stmt* const one = Compile("SELECT 1");
    cache.Close();
    cache.GiveBack(one);
    EXPECT_EQ(Living(), 0);
}

class CachedStatements : public testing::Test {
  protected:
    std::string FirstName(std::string_view name) {
        const Recordset rows = db->OpenRecordset("SELECT NAME FROM HOPS WHERE NAME = ?", {name});
        return rows.AtEnd() ? std::string() : rows.Fields(0).Text();
    }
    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
};

TEST_F(CachedStatements, HaveTheValuesOfEachUse) {
    for (const char* const name : {"Cascade", "Fuggle"})
        db->Execute("INSERT INTO HOPS (NAME) VALUES (?)", {name});
    EXPECT_EQ(FirstName("Fuggle"), "Fuggle");
    EXPECT_EQ(FirstName("Saaz"), "");
    EXPECT_EQ(FirstName("Cascade"), "Cascade");
}

TEST_F(CachedStatements, OfOneTextAreIndependentWhileBothAreRead) {
    for (const char* const name : {"Cascade", "Fuggle"})
        db->Execute("INSERT INTO HOPS (NAME) VALUES (?)", {name});
    const char* const sql = "SELECT NAME FROM HOPS ORDER BY NAME";
    Recordset outer = db->OpenRecordset(sql);
    {
        Recordset inner = db->OpenRecordset(sql);
        inner.MoveNext();
        EXPECT_EQ(inner.Fields(0).Text(), "Fuggle");
    }
    EXPECT_EQ(outer.Fields(0).Text(), "Cascade");
    outer.MoveNext();
    EXPECT_EQ(outer.Fields(0).Text(), "Fuggle");
}

TEST_F(CachedStatements, SeeAChangeOfTheSchema) {
    db->ExecuteNative("CREATE TABLE CASKS (NAME TEXT)");
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM CASKS").FieldCount(), 1);
    db->ExecuteNative("ALTER TABLE CASKS ADD COLUMN SIZE DOUBLE");
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM CASKS").FieldCount(), 2);
    db->ExecuteNative("DROP TABLE CASKS");
    try {
        db->OpenRecordset("SELECT * FROM CASKS");
        ADD_FAILURE() << "the table is gone";
    } catch (const Error& error) {
        EXPECT_EQ(error.Source(), "Database");
    }
}

TEST_F(CachedStatements, DoNotOutliveATableThatItsUnitHasUndone) {
    {
        UnitOfWork unit(*db);
        db->ExecuteNative("CREATE TABLE CASKS (NAME TEXT)");
        EXPECT_TRUE(db->OpenRecordset("SELECT * FROM CASKS").AtEnd());
        unit.Abandon();
    }
    try {
        db->OpenRecordset("SELECT * FROM CASKS");
        ADD_FAILURE() << "the table is gone";
    } catch (const Error& error) {
        EXPECT_EQ(error.Source(), "Database");
    }
}

}  // namespace
}  // namespace tw::test

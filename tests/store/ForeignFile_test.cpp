// Tests with files of other people that contain what no recipe file needs.
#include "store/ForeignFile.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/ExchangeFile.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

using std::chrono::milliseconds;

class ForeignFile : public testing::Test {
  protected:
    ForeignFile() {
        const auto file = Database::CreateDatabase(path, kExchangeLocale);
        CreateExchangeTables(*CreateMainDatabaseInMemory(), *file);
    }
    void Change(const std::string& sql) const { Database::OpenDatabase(path, false)->ExecuteNative(sql); }
    std::string Refusal() const {
        return ErrorOf([&] { Database::OpenForeign(path); }).Description();
    }
    // Adds enough rows for several thousand steps of SQLite's virtual machine.
    void AddRecipes() const {
        Change(
            "WITH RECURSIVE N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 2000) INSERT INTO "
            "RECIPES "
            "(NAME) SELECT 'Ale ' || I FROM N");
    }
    // Reads the names in an order for which there is no index.
    static std::string LastNote(Database& file) {
        return Cell(file, "SELECT NAME FROM RECIPES ORDER BY NOTES, NAME");
    }

    const TemporaryFolder folder;
    const std::string path = folder.File("a.TWR");
};

TEST_F(ForeignFile, IsReadAndWrittenAsAnyOther) {
    const auto file = Database::OpenForeign(path);
    file->Execute("INSERT INTO RECIPES (NAME, CREATED_WHEN) VALUES ('Mild', '01/31/2024 12:00:00')");
    EXPECT_EQ(Cell(*file, "SELECT NAME FROM RECIPES WHERE UCASE(TRIM(NAME)) = 'MILD'"), "Mild");
    EXPECT_THROW(file->Execute("INSERT INTO RECIPES (CREATED_WHEN) VALUES ('x')"), Error);
}

TEST_F(ForeignFile, WithAViewInATablesPlaceIsRefused) {
    Change("DROP TABLE RECIPE_HOPS; CREATE VIEW Recipe_hops AS SELECT 1 AS RECIPE_ID");
    EXPECT_EQ(Refusal(), "'" + path + "' is no recipe file: 'Recipe_hops' is no table.");
}

TEST_F(ForeignFile, WithAVirtualTableIsRefused) {
    Change("DROP TABLE RECIPES; CREATE VIRTUAL TABLE RECIPES USING rtree(ID, A, B)");
    EXPECT_EQ(Refusal(), "'" + path + "' is no recipe file: 'RECIPES' is no table.");
}

TEST_F(ForeignFile, RunsNoViewAndNoTrigger) {
    Change(
        "CREATE VIEW ENDLESS AS WITH RECURSIVE N(I) AS (SELECT 1 UNION ALL SELECT I FROM N) SELECT I FROM N; "
        "CREATE TRIGGER T AFTER INSERT ON RECIPES BEGIN DELETE FROM RECIPES; END");
    const auto file = Database::OpenForeign(path);
    EXPECT_THROW(file->OpenRecordset("SELECT * FROM ENDLESS"), Error);
    file->Execute("INSERT INTO RECIPES (NAME) VALUES ('Mild')");
    EXPECT_EQ(Cell(*file, "SELECT COUNT(*) FROM RECIPES"), "1");
}

TEST_F(ForeignFile, IsTrustedNoMoreInMemory) {
    Change("CREATE TRIGGER T AFTER INSERT ON RECIPES BEGIN DELETE FROM RECIPES; END");
    const auto file = Database::ForeignFromImage(Database::OpenForeign(path)->Image());
    file->Execute("INSERT INTO RECIPES (NAME) VALUES ('Mild')");
    EXPECT_EQ(Cell(*file, "SELECT COUNT(*) FROM RECIPES"), "1");
    EXPECT_THROW(file->ExecuteNative("DROP TABLE RECIPES"), Error);
    EXPECT_EQ(Cell(*Database::ForeignFromImage(file->Image()), "SELECT NAME FROM RECIPES"), "Mild");
}

TEST_F(ForeignFile, DoesNothingButReadAndWriteItsRows) {
    const auto file = Database::OpenForeign(path);
    for (const std::string& sql : {"ATTACH '" + folder.File("b.mdb") + "' AS B",
                                   std::string("CREATE TABLE A (B)"), std::string("DROP TABLE RECIPES"),
                                   std::string("PRAGMA user_version=7"), std::string("SELECT RANDOMBLOB(9)")})
        EXPECT_THROW(file->ExecuteNative(sql), Error) << sql;
}

TEST_F(ForeignFile, IsNotReadOnAndOn) {
    AddRecipes();
    // Each reading of the clock is a quarter of a second later, so the limit is reached at the 41st.
    int looks = 0;
    const auto file = Database::OpenForeign(path, [&] { return milliseconds(250 * looks++); });
    EXPECT_EQ(ErrorOf([&] {
                  while (looks < 1000) LastNote(*file);
              }).WithNumber(),
              "Reading the file took too long. (9)");
    // One reading at opening, 40 within the limit, one beyond it.
    EXPECT_EQ(looks, 42);
    // After progress, the time starts again.
    file->MarkProgress();
    EXPECT_EQ(LastNote(*file), "Ale 1");
}

TEST_F(ForeignFile, IsNotHurriedByTheTimeBetweenItsStatements) {
    AddRecipes();
    // A day passes between two statements, while a message box is open.
    milliseconds now{};
    const auto file = Database::OpenForeign(path, [&] { return now; });
    for (int i = 0; i < 30; ++i) {
        now += std::chrono::hours(24);
        EXPECT_EQ(LastNote(*file), "Ale 1");
    }
}

TEST_F(ForeignFile, StopsWhenItIsToldTo) {
    AddRecipes();
    const auto file = Database::OpenForeign(path, [] { return milliseconds(0); });
    int asked = 0;
    file->SetWatch([&] { return ++asked < 3; });
    EXPECT_EQ(ErrorOf([&] { LastNote(*file); }).Number(), Database::kInterruptedNumber);
    EXPECT_EQ(asked, 3);
    file->SetWatch({});
    EXPECT_EQ(LastNote(*file), "Ale 1");
}

TEST_F(ForeignFile, LetsARecordsetOutliveIt) {
    AddRecipes();
    auto file = Database::OpenForeign(path);
    Recordset rows = file->OpenRecordset("SELECT NAME FROM RECIPES");
    file.reset();
    int count = 0;
    for (; !rows.AtEnd(); rows.MoveNext()) ++count;
    EXPECT_EQ(count, 2000);
}

}  // namespace
}  // namespace tw::test

// Tests of the operations of databases, recordsets and fields.
#include "store/Database.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

class DatabaseTest : public testing::Test {
  protected:
    void Run(std::string_view sql) { db->Execute(sql); }
    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
};

TEST_F(DatabaseTest, CountsTheRowsOfTheLastStatement) {
    Run("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    EXPECT_EQ(db->RecordsAffected(), 1);
    Run("INSERT INTO HOPS (NAME) VALUES ('Fuggle')");
    Run("UPDATE HOPS SET USAGE = 'Aroma'");
    EXPECT_EQ(db->RecordsAffected(), 2);
    Run("UPDATE HOPS SET USAGE = 'Aroma' WHERE NAME = 'nobody'");
    EXPECT_EQ(db->RecordsAffected(), 0);
    Run("DELETE FROM HOPS");
    EXPECT_EQ(db->RecordsAffected(), 2);
}

TEST_F(DatabaseTest, CountsNothingAfterAFailure) {
    Run("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    EXPECT_THROW(Run("INSERT INTO HOPS (NOTHING) VALUES (1)"), Error);
    EXPECT_EQ(db->RecordsAffected(), 0);
}

TEST_F(DatabaseTest, CountsWrittenRowsAndNothingElse) {
    const std::int64_t start = db->ChangeCount();
    Run("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    Run("INSERT INTO HOPS (NAME) VALUES ('Fuggle')");
    EXPECT_EQ(db->ChangeCount(), start + 2);
    Run("DELETE FROM HOPS");
    EXPECT_EQ(db->ChangeCount(), start + 4);
    db->OpenRecordset("SELECT NAME FROM HOPS");
    Run("DELETE FROM HOPS");
    EXPECT_EQ(db->ChangeCount(), start + 4);
}

TEST_F(DatabaseTest, RaisesTheStoresDescriptionAndNumber) {
    const Error error = ErrorOf([&] { Run("DELETE FROM NOWHERE"); });
    EXPECT_EQ(error.WithSource(), "Database\r\nno such table: NOWHERE (1)");
    const Error select = ErrorOf([&] { db->OpenRecordset("SELECT ABSENT FROM HOPS"); });
    EXPECT_EQ(select.WithSource(), "Database\r\nno such column: ABSENT (1)");
}

TEST_F(DatabaseTest, KeepsSelectsAndChangesApart) {
    EXPECT_EQ(ErrorOf([&] { Run("SELECT * FROM HOPS"); }).Description(), "A SELECT is not executed.");
    EXPECT_EQ(ErrorOf([&] { db->OpenRecordset("DELETE FROM HOPS"); }).Description(),
              "A recordset is opened on a SELECT.");
}

TEST_F(DatabaseTest, RunsNothingOfASecondStatement) {
    Run("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    EXPECT_THROW(Run("DELETE FROM STYLES; DELETE FROM HOPS"), Error);
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM HOPS"), "1");
}

TEST_F(DatabaseTest, ReadsForwardToTheEnd) {
    Run("INSERT INTO HOPS (NAME) VALUES ('Cascade'), ('Fuggle')");
    Recordset rows = db->OpenRecordset("SELECT NAME FROM HOPS ORDER BY NAME");
    ASSERT_FALSE(rows.AtEnd());
    EXPECT_EQ(rows.Fields(0).Text(), "Cascade");
    rows.MoveNext();
    EXPECT_EQ(rows.Fields(0).Text(), "Fuggle");
    rows.MoveNext();
    EXPECT_TRUE(rows.AtEnd());
    rows.MoveFirst();
    EXPECT_EQ(rows.Fields(0).Text(), "Cascade");
}

TEST_F(DatabaseTest, StandsAtTheEndOfAnEmptyResult) {
    Recordset rows = db->OpenRecordset("SELECT * FROM HOPS");
    EXPECT_TRUE(rows.AtEnd());
    EXPECT_EQ(ErrorOf([&] { rows.Fields(0); }).WithSource(), "Recordset\r\nNo current record. (21)");
    EXPECT_EQ(ErrorOf([&] { rows.Fields("NAME"); }).Source(), "Recordset");
    EXPECT_EQ(ErrorOf([&] { rows.MoveNext(); }).Source(), "Recordset");
    EXPECT_EQ(rows.FieldCount(), 6);
    EXPECT_EQ(rows.FieldName(1), "NAME");
}

TEST_F(DatabaseTest, FindsFieldsByNameWithoutCaseAndByPosition) {
    Run("INSERT INTO RECIPE_ADJUNCTS (NAME, WHEN, DURATION) VALUES ('Moss', 'Boil', '15 min')");
    Recordset rows = db->OpenRecordset("SELECT * FROM RECIPE_ADJUNCTS");
    EXPECT_EQ(rows.Fields("When").Text(), "Boil");
    EXPECT_EQ(rows.Fields("duration").Text(), "15 min");
    EXPECT_EQ(rows.Fields("Name").Name(), "NAME");
    EXPECT_EQ(rows.Fields(5).Name(), "WHEN");
    EXPECT_EQ(ErrorOf([&] { rows.Fields("USAGE"); }).Description(),
              "Item not found in this collection: 'USAGE'.");
    EXPECT_EQ(ErrorOf([&] { rows.Fields(6); }).Description(), "Item not found in this collection.");
    EXPECT_EQ(ErrorOf([&] { rows.Fields(-1); }).Number(), 25);
}

TEST_F(DatabaseTest, GivesEachColumnItsDeclaredType) {
    Run("INSERT INTO STYLES (NAME, CREATED_WHEN, TYPE, OG_LO) VALUES ('Mild', '01/31/2024 12:00:00', 1, "
        "1.05)");
    Run("INSERT INTO GRAIN_TYPES (GRAIN) VALUES (TRUE)");
    Recordset rows = db->OpenRecordset("SELECT NAME, DESCR, CREATED_WHEN, TYPE, OG_LO, ID FROM STYLES");
    EXPECT_EQ(rows.Fields(0).Type(), FieldType::Text);
    EXPECT_EQ(rows.Fields(1).Type(), FieldType::Memo);
    EXPECT_EQ(rows.Fields(2).Type(), FieldType::Date);
    EXPECT_EQ(rows.Fields(3).Type(), FieldType::Long);
    EXPECT_EQ(rows.Fields(4).Type(), FieldType::Double);
    EXPECT_EQ(rows.Fields(5).Type(), FieldType::Long);
    EXPECT_EQ(db->OpenRecordset("SELECT GRAIN FROM GRAIN_TYPES").Fields(0).Type(), FieldType::Boolean);
}

TEST_F(DatabaseTest, GivesAnExpressionTheTypeOfItsValue) {
    Recordset rows = db->OpenRecordset("SELECT 1, 1.5, 'a', NULL");
    EXPECT_EQ(rows.Fields(0).Type(), FieldType::Long);
    EXPECT_EQ(rows.Fields(1).Type(), FieldType::Double);
    EXPECT_EQ(rows.Fields(2).Type(), FieldType::Text);
    EXPECT_EQ(rows.Fields(3).Type(), FieldType::Text);
}

TEST_F(DatabaseTest, ReadsValuesInEveryForm) {
    Run("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE, PPG_LO) VALUES ('12.5', TRUE, 4, 36.5)");
    Recordset rows = db->OpenRecordset("SELECT NAME, GRAIN, GRAIN_TYPE, PPG_LO, PPG_HI FROM GRAINS");
    EXPECT_EQ(rows.Fields(0).Value(), Value("12.5"));
    EXPECT_EQ(rows.Fields(0).Number(), 12.5);
    EXPECT_EQ(rows.Fields(0).Integer(), 12);
    EXPECT_EQ(rows.Fields(1).Value(), Value(true));
    EXPECT_EQ(rows.Fields(1).Text(), "TRUE");
    EXPECT_EQ(rows.Fields(1).Integer(), 1);
    EXPECT_EQ(rows.Fields(2).Value(), Value(4.0));
    EXPECT_EQ(rows.Fields(2).Text(), "4");
    EXPECT_TRUE(rows.Fields(2).Boolean());
    EXPECT_EQ(rows.Fields(3).Text(), "36.5");
    EXPECT_EQ(rows.Fields(3).Integer(), 36);
    EXPECT_TRUE(rows.Fields(4).IsNull());
    EXPECT_EQ(rows.Fields(4).Value(), Value(Null{}));
    EXPECT_EQ(rows.Fields(4).Text(), "");
    EXPECT_EQ(rows.Fields(4).Number(), 0);
    EXPECT_FALSE(rows.Fields(4).Boolean());
}

TEST_F(DatabaseTest, GivesZeroForATextThatIsNoNumber) {
    Recordset rows = db->OpenRecordset("SELECT 'five', ''");
    EXPECT_EQ(rows.Fields(0).Number(), 0);
    EXPECT_EQ(rows.Fields(0).Integer(), 0);
    EXPECT_EQ(rows.Fields(1).Number(), 0);
}

TEST_F(DatabaseTest, TellsWholeNumbersFromAllElse) {
    Recordset rows =
        db->OpenRecordset("SELECT -7, 9007199254740993, 4.0, 4.5, 1e300, 1e999, '4', NULL, -0.5");
    EXPECT_EQ(rows.Fields(0).WholeNumber(), -7);
    EXPECT_EQ(rows.Fields(1).WholeNumber(), 9007199254740993);
    EXPECT_EQ(rows.Fields(2).WholeNumber(), 4);
    for (int i = 3; i < rows.FieldCount(); ++i) EXPECT_EQ(rows.Fields(i).WholeNumber(), std::nullopt) << i;
}

TEST_F(DatabaseTest, NeverGivesInfinity) {
    Recordset rows = db->OpenRecordset("SELECT 1e999, 1e300");
    EXPECT_EQ(ErrorOf([&] { rows.Fields(0).Number(); }).Description(), "Overflow");
    EXPECT_EQ(ErrorOf([&] { rows.Fields(0).Text(); }).Description(), "Overflow");
    EXPECT_EQ(ErrorOf([&] { rows.Fields(1).Integer(); }).Description(), "Overflow");
}

TEST_F(DatabaseTest, ReadsOnInAResultWhoseRowsAreDeleted) {
    Run("INSERT INTO RECIPES (NAME, FOLDER_ID) VALUES ('A', 1), ('B', 1), ('C', 1), ('D', 2)");
    int seen = 0;
    for (Recordset rows = db->OpenRecordset("SELECT ID FROM RECIPES WHERE FOLDER_ID = 1"); !rows.AtEnd();
         rows.MoveNext(), ++seen)
        Run("DELETE FROM RECIPES WHERE ID = " + rows.Fields(0).Text());
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(Cell(*db, "SELECT NAME FROM RECIPES"), "D");
}

TEST_F(DatabaseTest, LetsARecordsetOutliveItsDatabase) {
    Run("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    const Recordset rows = db->OpenRecordset("SELECT NAME FROM HOPS");
    db.reset();
    EXPECT_EQ(rows.Fields(0).Text(), "Cascade");
}

TEST_F(DatabaseTest, IsAtTheEndOnceClosed) {
    Recordset rows = db->OpenRecordset("SELECT 1");
    rows.Close();
    EXPECT_TRUE(rows.AtEnd());
    EXPECT_EQ(rows.FieldCount(), 0);
    EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }).Description(), "The recordset is closed.");
}

TEST_F(DatabaseTest, ShowsEachStatementToTheHookBeforeItRuns) {
    std::vector<std::string> seen;
    db->SetStatementHook([&](std::string_view sql) { seen.emplace_back(sql); });
    Run("INSERT INTO HOPS (NAME) VALUES (\"Cascade\")");
    db->OpenRecordset("SELECT NAME FROM HOPS");
    EXPECT_EQ(seen, (std::vector<std::string>{"INSERT INTO HOPS (NAME) VALUES (\"Cascade\")",
                                              "SELECT NAME FROM HOPS"}));
}

TEST_F(DatabaseTest, ShowsTheHookEachStatementWithItsValues) {
    std::vector<std::string> seen;
    db->SetStatementHook([&](std::string_view sql) { seen.emplace_back(sql); });
    db->Execute("INSERT INTO HOPS (NAME, DESCR, AA_LO, AA_HI) VALUES (?, '?', ?, ?)", {"Brewer's", 5, 6.5});
    db->OpenRecordset("SELECT [?] FROM (SELECT 1 AS [?]) WHERE ? AND ? IS NULL", {true, Null()});
    EXPECT_EQ(seen, (std::vector<std::string>{
                        "INSERT INTO HOPS (NAME, DESCR, AA_LO, AA_HI) VALUES ('Brewer''s', '?', 5, 6.5)",
                        "SELECT [?] FROM (SELECT 1 AS [?]) WHERE TRUE AND NULL IS NULL"}));
}

TEST_F(DatabaseTest, TakesValuesInTheirOrder) {
    // A number with five decimals becomes a parameter of SQLite as well.
    const Recordset row = db->OpenRecordset("SELECT ?, 1.00003, ?, '?', ?", {"O'Hara \"x\"", 7, Null()});
    EXPECT_EQ(row.Fields(0).Text(), "O'Hara \"x\"");
    EXPECT_EQ(row.Fields(1).Number(), 1.00003);
    EXPECT_EQ(row.Fields(2).Integer(), 7);
    EXPECT_EQ(row.Fields(3).Text(), "?");
    EXPECT_TRUE(row.Fields(4).IsNull());
}

// A bound value stores the same as its literal.
TEST_F(DatabaseTest, StoresAValueAsItsLiteral) {
    const SqlValues values = {"Baker's",
                              "",
                              std::string("a\0b", 3),
                              "\u00C9t\u00E9",
                              0,
                              -5,
                              std::int64_t{9007199254740993},
                              5.0,
                              -5.0,
                              5.25,
                              0.1 + 0.2,
                              1e17,
                              1e18,
                              -1e300,
                              true,
                              false,
                              Null(),
                              std::optional<double>(),
                              std::optional<double>(2.5)};
    for (const char* type : {"TEXT", "DOUBLE", "INTEGER", "BOOLEAN", "LONGTEXT", ""}) {
        db->ExecuteNative("DROP TABLE IF EXISTS T; CREATE TABLE T (A " + std::string(type) + ")");
        for (const SqlValue& value : values) {
            db->Execute("INSERT INTO T (A) VALUES (?)", {value});
            db->Execute("INSERT INTO T (A) VALUES (" + value.Literal() + ")");
            const Recordset kinds = db->OpenRecordset(
                "SELECT COUNT(*), COUNT(DISTINCT typeof(A) || quote(A)) FROM T WHERE NOT A IS NULL");
            EXPECT_EQ(kinds.Fields(1).Integer(), kinds.Fields(0).Integer() / 2) << type << value.Literal();
            db->Execute("DELETE FROM T");
        }
    }
}

TEST_F(DatabaseTest, KeepsTheValuesOfARecordsetThatRunsAgain) {
    Run("INSERT INTO HOPS (NAME) VALUES ('A long name of a hop that is kept elsewhere')");
    std::string name = "A long name of a hop that is kept elsewhere";
    Recordset rows = db->OpenRecordset("SELECT NAME FROM HOPS WHERE NAME = ?", {name});
    ASSERT_FALSE(rows.AtEnd());
    rows.MoveFirst();
    EXPECT_EQ(rows.Fields(0).Text(), name);
}

TEST_F(DatabaseTest, RefusesAnotherNumberOfValues) {
    EXPECT_THROW(db->OpenRecordset("SELECT ?", {1, 2}), Error);
    EXPECT_THROW(db->OpenRecordset("SELECT ?, ?", {1}), Error);
    EXPECT_THROW(db->Execute("DELETE FROM HOPS WHERE NAME = '?'", {"A"}), Error);
}

TEST(SqlText, DoublesApostrophesOnly) {
    EXPECT_EQ(DoubleQuotes("Baker's \"Best\""), "Baker''s \"Best\"");
    EXPECT_EQ(SqlText("''"), "''''''");
    EXPECT_EQ(SqlText(""), "''");
    std::string out = "NAME = ";
    AppendSqlText(out, "O'Brien");
    EXPECT_EQ(out, "NAME = 'O''Brien'");
}

}  // namespace
}  // namespace tw::test

// The operations of databases, recordsets and fields.
#include "store/Database.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"

namespace tw::test {
namespace {

class DatabaseTest : public testing::Test {
  protected:
    void Run(std::string_view sql) { db->Execute(sql); }
    std::unique_ptr<Database> db = Database::CreateInMemory();
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

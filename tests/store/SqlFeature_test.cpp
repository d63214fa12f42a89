// Tests of the SQL that the windows rely on, feature by feature, with the real schema.
#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/Schema.h"
#include "store/SqliteHandle.h"

namespace tw::test {
namespace {

class SqlFeature : public testing::Test {
  protected:
    void Run(std::string_view sql) { db->Execute(sql); }
    Rows Get(std::string_view sql) { return Select(*db, sql); }
    std::string Get1(std::string_view sql) { return Cell(*db, sql); }
    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
};

TEST_F(SqlFeature, TakesABoolColumnAsAPredicate) {
    Run("INSERT INTO GRAINS (GRAIN, NAME, GRAIN_TYPE) VALUES (TRUE, 'Munich', 1)");
    Run("INSERT INTO GRAINS (GRAIN, NAME, GRAIN_TYPE) VALUES (FALSE, 'Syrup', 1)");
    Run("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    EXPECT_EQ(Get1("SELECT NAME FROM GRAINS WHERE GRAIN"), "Munich");
    EXPECT_EQ(Get1("SELECT NAME FROM GRAINS WHERE NOT GRAIN"), "Syrup");
    EXPECT_EQ(Get1("SELECT NAME FROM GRAINS WHERE GRAIN = FALSE"), "Syrup");
    EXPECT_EQ(Get("SELECT GRAINS.NAME FROM GRAINS, GRAIN_TYPES WHERE NOT GRAINS.GRAIN"), (Rows{{"Syrup"}}));
}

TEST_F(SqlFeature, TellsFoldersOfBothTreesApart) {
    Run("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Recipes', FALSE)");
    Run("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Styles', TRUE)");
    EXPECT_EQ(Get("SELECT NAME FROM FOLDERS WHERE STYLE AND PARENT_ID = 0"), (Rows{{"Styles"}}));
    EXPECT_EQ(Get("SELECT NAME FROM FOLDERS WHERE NOT STYLE AND ID = 1"), (Rows{{"Recipes"}}));
    EXPECT_EQ(Get("SELECT NAME FROM FOLDERS WHERE NOT STYLE AND ID = 2"), Rows{});
}

TEST_F(SqlFeature, StoresTrueFalseAndNull) {
    Run("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES (NULL, TRUE)");
    EXPECT_EQ(Get("SELECT NAME, GRAIN FROM GRAIN_TYPES"), (Rows{{"NULL", "TRUE"}}));
    Run("UPDATE GRAIN_TYPES SET NAME = 'x', GRAIN = FALSE");
    EXPECT_EQ(Get("SELECT NAME, GRAIN FROM GRAIN_TYPES"), (Rows{{"x", "FALSE"}}));
    Run("UPDATE GRAIN_TYPES SET GRAIN = NULL");
    EXPECT_EQ(Get("SELECT NAME FROM GRAIN_TYPES WHERE GRAIN IS NULL"), (Rows{{"x"}}));
}

TEST_F(SqlFeature, ComparesTextWithoutCase) {
    Run("INSERT INTO RECIPES (NAME, NOTES) VALUES ('Pale Ale', 'Memo Text')");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE NAME = 'pALE aLE'"), "Pale Ale");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE 'PALE ALE' = NAME"), "Pale Ale");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE NOTES = 'memo text'"), "Pale Ale");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE NAME <> 'pale ale'"), "no row");
}

TEST_F(SqlFeature, ComparesTextWithoutCaseBeyondAscii) {
    Run("INSERT INTO RECIPES (NAME) VALUES ('Kölsch Ärger Žižka Ωμέγα')");
    EXPECT_EQ(Get1("SELECT COUNT(*) FROM RECIPES WHERE NAME = 'KÖLSCH äRGER žIŽKA ωΜΈΓΑ'"), "1");
    EXPECT_EQ(Get1("SELECT COUNT(*) FROM RECIPES WHERE NAME = 'Kolsch Arger Zizka Ωμέγα'"), "0");
}

TEST_F(SqlFeature, UpperCasesAndTrims) {
    Run("INSERT INTO RECIPES (NAME) VALUES ('  Kölsch  ')");
    EXPECT_EQ(Get1("SELECT UCASE(TRIM(NAME)) FROM RECIPES"), "KÖLSCH");
    EXPECT_EQ(Get1("SELECT LCASE(NAME) FROM RECIPES WHERE UCASE(TRIM(NAME)) = 'KÖLSCH'"), "  kölsch  ");
    EXPECT_EQ(Get1("SELECT COUNT(*) FROM RECIPES WHERE TRIM(NAME) = 'kölsch'"), "1");
    EXPECT_EQ(Get("SELECT UCASE(NULL), UCASE(12)"), (Rows{{"NULL", "12"}}));
}

TEST_F(SqlFeature, TakesDoubleQuotedLiterals) {
    Run("INSERT INTO RECIPES (NAME) VALUES ('Name')");
    Run("INSERT INTO RECIPES (NAME) VALUES ('Other')");
    // The text equals the name of a column but is a literal all the same.
    EXPECT_EQ(Get("SELECT NAME FROM RECIPES WHERE UCASE(NAME) = \"NAME\""), (Rows{{"Name"}}));
    EXPECT_EQ(Get("SELECT NAME FROM RECIPES WHERE NAME = \"NOTES\""), Rows{});
}

TEST_F(SqlFeature, BreaksOnANameWithADoubleQuoteBetweenDoubleQuotes) {
    // The statements that compare with double-quoted literals do not double the quotes in them.
    EXPECT_THROW(Get("SELECT ID FROM RECIPES WHERE UCASE(NAME) = \"THE \"BEST\" ALE\""), Error);
}

TEST_F(SqlFeature, TakesNamesWithQuotesInEveryStatement) {
    const std::string name = SqlText("Baker's \"Best\" Bitter");
    Run("INSERT INTO RECIPES (NAME) VALUES (" + name + ")");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE NAME = " + name), "Baker's \"Best\" Bitter");
    Run("UPDATE RECIPES SET NOTES = " + name + " WHERE NAME = " + name);
    EXPECT_EQ(db->RecordsAffected(), 1);
    Run("DELETE FROM RECIPES WHERE NOTES = " + name);
    EXPECT_EQ(db->RecordsAffected(), 1);
}

TEST_F(SqlFeature, WorksOutMidPoints) {
    Run("INSERT INTO GRAINS (NAME, PPG_LO, PPG_HI, COLOR_LO) VALUES ('Munich', 33, 36, 8)");
    EXPECT_EQ(Get("SELECT NAME, (PPG_LO+PPG_HI)/2, (COLOR_LO+COLOR_HI)/2 FROM GRAINS WHERE NAME = 'munich'"),
              (Rows{{"Munich", "34.5", "NULL"}}));
    Run("INSERT INTO HOPS (NAME) VALUES ('Unknown')");
    EXPECT_EQ(Get1("SELECT (AA_LO+AA_HI)/2 FROM HOPS"), "NULL");
    Run("INSERT INTO YEAST (NAME, AA_LO, AA_HI) VALUES ('Ale', 73, 78)");
    EXPECT_EQ(Get1("SELECT (AA_LO+AA_HI)/2 FROM YEAST WHERE NAME = 'Ale'"), "75.5");
    Run("INSERT INTO SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Corn', 84, 93)");
    EXPECT_EQ(Get1("SELECT (FERMENT_LO+FERMENT_HI)/2 FROM SUGARS WHERE NAME = 'Corn'"), "88.5");
}

TEST_F(SqlFeature, OrdersTextWithoutCase) {
    Run("INSERT INTO HOPS (NAME) VALUES ('challenger'), ('Bravo'), ('éclair'), ('Zeus'), ('admiral'), "
        "('Élan')");
    const Rows expected{{"admiral"}, {"Bravo"}, {"challenger"}, {"Zeus"}, {"éclair"}, {"Élan"}};
    EXPECT_EQ(Get("SELECT NAME FROM HOPS ORDER BY NAME"), expected);
    EXPECT_EQ(Get("SELECT NAME FROM HOPS ORDER BY 1"), expected);
}

TEST_F(SqlFeature, Counts) {
    Run("INSERT INTO GRAINS (NAME, GRAIN_TYPE) VALUES ('A', 1), ('B', 1), ('C', NULL)");
    EXPECT_EQ(Get1("SELECT COUNT(*) FROM GRAINS"), "3");
    EXPECT_EQ(Get1("SELECT COUNT(GRAIN_TYPE) FROM GRAINS"), "2");
    EXPECT_EQ(Get1("SELECT COUNT(GRAIN_TYPE) FROM GRAINS WHERE GRAIN_TYPE = 9"), "0");
    EXPECT_EQ(db->OpenRecordset("SELECT COUNT(*) FROM GRAINS").Fields(0).Integer(), 3);
}

TEST_F(SqlFeature, SelectsDistinctWithoutCase) {
    Run("INSERT INTO HOPS (NAME, USAGE) VALUES ('A', 'Aroma'), ('B', 'AROMA'), ('C', 'Ärger'), ('D', "
        "'äRGER')");
    EXPECT_EQ(Get("SELECT DISTINCT USAGE FROM HOPS").size(), 2U);
}

TEST_F(SqlFeature, NamesColumnsByTheirAliases) {
    Run("INSERT INTO FOLDERS (NAME, STYLE, CREATED_WHEN) VALUES ('F', FALSE, '01/31/2024 12:00:00')");
    Recordset rows = db->OpenRecordset(
        "SELECT CREATED_WHEN, MODIFIED_WHEN, NULL AS CHILDREN_MODIFIED_WHEN FROM FOLDERS WHERE ID = 1 AND "
        "NOT STYLE");
    EXPECT_EQ(rows.FieldName(2), "CHILDREN_MODIFIED_WHEN");
    EXPECT_TRUE(rows.Fields("children_modified_when").IsNull());
    EXPECT_TRUE(rows.Fields("MODIFIED_WHEN").IsNull());
    Recordset aliases = db->OpenRecordset("SELECT NAME AS TITLE, -1 AS ID FROM FOLDERS");
    EXPECT_EQ(aliases.Fields("Title").Text(), "F");
    EXPECT_EQ(aliases.Fields("ID").Integer(), -1);
}

TEST_F(SqlFeature, QualifiesTheSharedNamesOfAJoin) {
    Run("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    Run("INSERT INTO GRAINS (GRAIN, NAME, GRAIN_TYPE) VALUES (TRUE, 'Munich', 1)");
    Recordset rows = db->OpenRecordset(
        "SELECT * FROM GRAINS, GRAIN_TYPES WHERE GRAINS.GRAIN AND GRAINS.GRAIN_TYPE = GRAIN_TYPES.ID ORDER "
        "BY "
        "GRAINS.GRAIN_TYPE, GRAINS.NAME");
    EXPECT_EQ(rows.Fields("GRAINS.NAME").Text(), "Munich");
    EXPECT_EQ(rows.Fields("grain_types.name").Text(), "Base");
    EXPECT_EQ(rows.Fields("GRAIN_TYPE").Integer(), 1);
    EXPECT_EQ(rows.Fields("GRAINS.GRAIN_TYPE").Name(), "GRAIN_TYPE");
    EXPECT_EQ(rows.Fields("GRAIN_TYPES.ID").Name(), "GRAIN_TYPES.ID");
    EXPECT_EQ(rows.FieldName(0), "GRAINS.ID");
    EXPECT_THROW(rows.Fields("NAME"), Error);
    EXPECT_THROW(rows.Fields("GRAIN_TYPES.DESCR"), Error);
}

TEST_F(SqlFeature, QualifiesANameThatStandsThreeTimes) {
    Run("INSERT INTO HOPS (NAME) VALUES ('H')");
    Run("INSERT INTO YEAST (NAME) VALUES ('Y')");
    Run("INSERT INTO SALTS (NAME) VALUES ('S')");
    Recordset rows = db->OpenRecordset("SELECT HOPS.NAME, YEAST.NAME, SALTS.NAME FROM HOPS, YEAST, SALTS");
    EXPECT_EQ(rows.FieldName(0), "HOPS.NAME");
    EXPECT_EQ(rows.FieldName(1), "YEAST.NAME");
    EXPECT_EQ(rows.FieldName(2), "SALTS.NAME");
    EXPECT_EQ(rows.Fields("SALTS.NAME").Text(), "S");
}

TEST_F(SqlFeature, TakesDatesFromText) {
    Run("INSERT INTO RECIPES (NAME, CREATED_WHEN) VALUES ('A', '12/31/2023 23:59:59')");
    Run("INSERT INTO RECIPES (NAME, CREATED_WHEN) VALUES ('B', '01/01/2024 00:00:00')");
    Run("INSERT INTO RECIPES (NAME, CREATED_WHEN) VALUES ('C', '01/01/2024 00:00:01')");
    EXPECT_EQ(Get("SELECT NAME FROM RECIPES ORDER BY CREATED_WHEN DESC"), (Rows{{"C"}, {"B"}, {"A"}}));
    EXPECT_EQ(Get("SELECT NAME FROM RECIPES WHERE CREATED_WHEN > '01/01/2024 00:00:00'"), (Rows{{"C"}}));
    EXPECT_EQ(Get1("SELECT CREATED_WHEN FROM RECIPES WHERE NAME = 'A'"), "12/31/2023 23:59:59");
}

TEST_F(SqlFeature, RefusesATextThatIsNoDate) {
    for (const std::string text :
         {"yesterday", "2024-01-31 12:00:00", "1/31/2024 12:00:00", "01/31/2024", ""})
        EXPECT_THROW(Run("INSERT INTO RECIPES (CREATED_WHEN) VALUES (" + SqlText(text) + ")"), Error) << text;
    Run("INSERT INTO RECIPES (CREATED_WHEN) VALUES (NULL)");
    EXPECT_EQ(db->RecordsAffected(), 1);
}

TEST_F(SqlFeature, TakesReservedWordsAsBareColumns) {
    Run("INSERT INTO RECIPE_ADJUNCTS (NAME, WHEN) VALUES ('Moss', 'Boil')");
    Run("UPDATE RECIPE_ADJUNCTS SET WHEN = 'Mash' WHERE WHEN = 'boil'");
    EXPECT_EQ(Get1("SELECT WHEN FROM RECIPE_ADJUNCTS ORDER BY WHEN"), "Mash");
    Run("INSERT INTO HOPS (NAME, USAGE) VALUES ('A', 'Aroma')");
    EXPECT_EQ(Get1("SELECT USAGE FROM HOPS WHERE USAGE = 'aroma'"), "Aroma");
    Run("INSERT INTO YEAST (NAME, TYPE) VALUES ('A', 2)");
    EXPECT_EQ(Get1("SELECT TYPE FROM YEAST WHERE TYPE = 2"), "2");
    Run("INSERT INTO FOLDERS (NAME, STYLE) VALUES ('A', TRUE)");
    EXPECT_EQ(Get1("SELECT STYLE FROM FOLDERS WHERE STYLE"), "TRUE");
}

TEST_F(SqlFeature, TakesAnUnknownColumnAsAnError) {
    EXPECT_THROW(Get("SELECT WHEN FROM HOPS"), Error);
    EXPECT_THROW(Get("SELECT NAME FROM HOPS WHERE NAME = Cascade"), Error);
}

TEST_F(SqlFeature, KeepsTextLetterForLetter) {
    for (const std::string text :
         {"1.050", "007", " x ", "1e5", "-0", "0x10", "9007199254740993", "", "TRUE"}) {
        Run("DELETE FROM RECIPES");
        Run("INSERT INTO RECIPES (NAME, NOTES, OG) VALUES ('A', " + SqlText(text) + ", " + SqlText(text) +
            ")");
        EXPECT_EQ(Get("SELECT NOTES, OG FROM RECIPES"), (Rows{{text, text}}));
    }
    Run("UPDATE RECIPES SET OG = 1.5");
    EXPECT_EQ(db->OpenRecordset("SELECT OG FROM RECIPES").Fields(0).Value(), Value("1.5"));
}

TEST_F(SqlFeature, KeepsANulInsideAText) {
    using namespace std::string_literals;
    const std::string text = "a\0b"s;
    Run("INSERT INTO RECIPES (NAME) VALUES (" + SqlText(text) + ")");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE NAME = " + SqlText(text)), text);
    EXPECT_EQ(Get1("SELECT UCASE(NAME) FROM RECIPES"), "A\0B"s);
}

TEST_F(SqlFeature, KeepsBytesThatAreNoUtf8) {
    Run("INSERT INTO RECIPES (NAME) VALUES ('a\xff\xc3')");
    EXPECT_EQ(Get1("SELECT NAME FROM RECIPES WHERE NAME = 'A\xff\xc3'"), "a\xff\xc3");
    EXPECT_EQ(Get1("SELECT LCASE(UCASE(NAME)) FROM RECIPES"), "a\xff\xc3");
}

TEST_F(SqlFeature, NeverUsesACounterAgain) {
    Run("INSERT INTO RECIPES (NAME) VALUES ('A')");
    Run("INSERT INTO RECIPES (NAME) VALUES ('B')");
    EXPECT_EQ(Get1("SELECT ID FROM RECIPES WHERE NAME = 'B'"), "2");
    Run("DELETE FROM RECIPES");
    Run("INSERT INTO RECIPES (NAME) VALUES ('C')");
    EXPECT_EQ(Get1("SELECT ID FROM RECIPES"), "3");
}

// Returns SQLite's query plan for the statement.
std::string Plan(sqlite3* handle, const std::string& sql) {
    const auto append = [](void* plan, int, char** cells, char**) {
        static_cast<std::string*>(plan)->append(cells[3]).append("\n");
        return 0;
    };
    std::string plan;
    const std::string explain = "EXPLAIN QUERY PLAN " + sql;
    EXPECT_EQ(sqlite3_exec(handle, explain.c_str(), append, &plan, nullptr), SQLITE_OK) << sql;
    return plan;
}

TEST(SqlPlan, ReadsTheTreeByIndexesAlone) {
    const TemporaryFolder folder;
    MakeMainDatabase(folder.File("a.mdb"));
    const SqliteHandle handle = OpenDatabaseFile(folder.File("a.mdb"), FileUse::Shared).handle;
    for (const std::string sql :
         {"SELECT NAME, ID FROM RECIPES ORDER BY NAME",
          "SELECT NAME, ID FROM RECIPES WHERE STYLE_ID = 0 ORDER BY NAME",
          "SELECT NAME, ID FROM RECIPES WHERE FOLDER_ID = 0 ORDER BY NAME",
          "SELECT NAME, ID FROM STYLES ORDER BY NAME",
          "SELECT NAME, ID FROM STYLES WHERE FOLDER_ID = 0 ORDER BY NAME",
          "SELECT NAME, ID FROM FOLDERS WHERE STYLE AND PARENT_ID = 0 ORDER BY NAME",
          "SELECT NAME, ID FROM FOLDERS WHERE NOT STYLE AND PARENT_ID = 0 ORDER BY NAME"}) {
        const std::string plan = Plan(handle.get(), sql);
        EXPECT_NE(plan.find("COVERING INDEX"), std::string::npos) << sql << ": " << plan;
        EXPECT_EQ(plan.find("TEMP B-TREE"), std::string::npos) << sql << ": " << plan;
    }
}

}  // namespace
}  // namespace tw::test

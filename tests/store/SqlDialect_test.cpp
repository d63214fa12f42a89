#include "store/SqlDialect.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"

namespace tw::test {
namespace {

std::string Sql(std::string_view text) {
    return TranslateSql(text).sql;
}
std::string Refusal(std::string_view text) {
    return ErrorOf([&] { TranslateSql(text); }).Description();
}

TEST(SqlDialect, LeavesAPlainStatementAsItIs) {
    EXPECT_EQ(Sql("SELECT NAME, ID FROM RECIPES WHERE NAME = 'Dark ''n'' Mild' ORDER BY 1"),
              "SELECT NAME, ID FROM RECIPES WHERE NAME = 'Dark ''n'' Mild' ORDER BY 1");
}

TEST(SqlDialect, TellsTheKindOfStatement) {
    EXPECT_EQ(TranslateSql("select 1").kind, StatementKind::Select);
    EXPECT_EQ(TranslateSql("  Insert INTO A VALUES (1)").kind, StatementKind::Insert);
    EXPECT_EQ(TranslateSql("\r\n\tUPDATE A SET B = 1").kind, StatementKind::Update);
    EXPECT_EQ(TranslateSql("DELETE FROM A").kind, StatementKind::Delete);
}

TEST(SqlDialect, TurnsDoubleQuotedTextIntoALiteral) {
    EXPECT_EQ(Sql("SELECT ID FROM A WHERE NAME = \"NAME\""), "SELECT ID FROM A WHERE NAME = 'NAME'");
    EXPECT_EQ(Sql("SELECT \"it's \"\"so\"\"\""), "SELECT 'it''s \"so\"'");
    EXPECT_EQ(Sql("SELECT \"\""), "SELECT ''");
}

TEST(SqlDialect, KeepsLiteralsApartThatTouch) {
    EXPECT_EQ(Sql("SELECT 'a'\"b\"'c'"), "SELECT 'a' 'b' 'c'");
    EXPECT_EQ(Sql("SELECT x\"41\""), "SELECT x '41'");
}

TEST(SqlDialect, LeavesQuotesInsideTheOtherKindAlone) {
    EXPECT_EQ(Sql("SELECT 'say \"WHEN\"; -- /* ?'"), "SELECT 'say \"WHEN\"; -- /* ?'");
}

TEST(SqlDialect, QuotesTheColumnWhen) {
    EXPECT_EQ(Sql("INSERT INTO A (NAME, WHEN) VALUES ('WHEN', 'when')"),
              "INSERT INTO A (NAME, [WHEN]) VALUES ('WHEN', 'when')");
    EXPECT_EQ(Sql("SELECT When, CREATED_WHEN FROM A ORDER BY A.WHEN"),
              "SELECT [When], CREATED_WHEN FROM A ORDER BY A.[WHEN]");
}

TEST(SqlDialect, LeavesTheKeywordWhenInsideCase) {
    EXPECT_EQ(Sql("SELECT CASE WHEN A.WHEN = '' THEN 1 END, WHEN FROM A"),
              "SELECT CASE WHEN A.[WHEN] = '' THEN 1 END, [WHEN] FROM A");
    EXPECT_EQ(Sql("SELECT CASE 1 WHEN 1 THEN CASE WHEN 2 THEN 3 END WHEN 4 THEN 5 END, WHEN"),
              "SELECT CASE 1 WHEN 1 THEN CASE WHEN 2 THEN 3 END WHEN 4 THEN 5 END, [WHEN]");
}

TEST(SqlDialect, ComparesTextFunctionsWithoutCase) {
    EXPECT_EQ(Sql("SELECT * FROM A WHERE UCASE(TRIM(NAME)) = \"X\" AND (TRIM = 1)"),
              "SELECT * FROM A WHERE UCASE(TRIM(NAME) COLLATE TWTEXT) COLLATE TWTEXT = 'X' AND (TRIM = 1)");
    EXPECT_EQ(Sql("SELECT A.TRIM, (1)"), "SELECT A.TRIM, (1)");
}

TEST(SqlDialect, WritesANulInsideALiteralAsAnExpression) {
    using namespace std::string_literals;
    EXPECT_EQ(Sql("SELECT 'a\0b''c'"s), "SELECT ('a'||char(0)||'b''c')");
}

TEST(SqlDialect, HandsLongNumbersOverAsNumbers) {
    const DialectStatement statement = TranslateSql(
        "UPDATE A SET B = 1.0521, C = -0.33333, D = 1.125, E = 12345678901234567890, F = '1.0521'");
    EXPECT_EQ(statement.sql, "UPDATE A SET B = ?, C = -?, D = 1.125, E = ?, F = '1.0521'");
    EXPECT_EQ(statement.numbers, (std::vector<double>{1.0521, 0.33333, 12345678901234567890.0}));
    for (const std::string text : {"SELECT 1.0521e3", "SELECT 1.0521x", "SELECT .12345", "SELECT A1.12345"})
        EXPECT_EQ(Sql(text), text);
}

TEST(SqlDialect, TellsWhichParametersTheValuesAre) {
    const DialectStatement statement =
        TranslateSql("SELECT ? FROM A WHERE B = 1.00003 AND C = ? AND D = '?' AND E = 1.00007", 2);
    EXPECT_EQ(statement.sql, "SELECT ? FROM A WHERE B = ? AND C = ? AND D = '?' AND E = ?");
    EXPECT_EQ(statement.numbers, (std::vector<double>{1.00003, 1.00007}));
    EXPECT_EQ(statement.values, (std::vector<int>{1, 3}));
}

TEST(SqlDialect, DropsOneSemicolonAtTheEnd) {
    EXPECT_EQ(Sql("SELECT 1 ; \r\n"), "SELECT 1 ");
}

TEST(SqlDialect, RefusesASecondStatement) {
    EXPECT_EQ(Refusal("SELECT 1; DELETE FROM RECIPES"),
              "Characters found after the end of the SQL statement.");
}

TEST(SqlDialect, RefusesComments) {
    EXPECT_EQ(Refusal("SELECT 1 -- hidden"), "A statement holds no comments (--).");
    EXPECT_EQ(Refusal("SELECT 1 /* hidden */"), "A statement holds no comments (/*).");
}

TEST(SqlDialect, RefusesOtherStatements) {
    for (const std::string word :
         {"PRAGMA", "ATTACH", "DROP", "CREATE", "EXPLAIN", "REPLACE", "VACUUM", "BEGIN"})
        EXPECT_EQ(Refusal(word + " x"),
                  "A statement begins with SELECT, INSERT, UPDATE or DELETE, not with '" + word + "'.");
    EXPECT_EQ(Refusal("(SELECT 1)"), "A statement begins with SELECT, INSERT, UPDATE or DELETE.");
    EXPECT_EQ(Refusal("1"), "The SQL text holds no statement.");
    EXPECT_EQ(Refusal(""), "The SQL text holds no statement.");
    EXPECT_EQ(Refusal(" ;"), "The SQL text holds no statement.");
}

TEST(SqlDialect, RefusesAQueryThatMightNeverEnd) {
    EXPECT_EQ(Refusal("SELECT (WITH RECURSIVE C AS (SELECT 1 UNION ALL SELECT 1 FROM C) SELECT 1 FROM C)"),
              "WITH is not supported.");
}

TEST(SqlDialect, RefusesUnfinishedTexts) {
    EXPECT_EQ(Refusal("SELECT 'abc"), "A text in the SQL statement is not finished.");
    EXPECT_EQ(Refusal("SELECT \"abc"), "A text in the SQL statement is not finished.");
    EXPECT_EQ(Refusal("SELECT 'abc''"), "A text in the SQL statement is not finished.");
    EXPECT_EQ(Refusal("SELECT [abc"), "A name in brackets is not finished.");
    EXPECT_EQ(Refusal("SELECT `abc"), "A name in brackets is not finished.");
}

TEST(SqlDialect, RefusesParametersAndStrayCharacters) {
    using namespace std::string_literals;
    const std::string refusal = "A character stands in the SQL text that has no meaning there.";
    for (const std::string& text : {"SELECT ?"s, "SELECT :a"s, "SELECT @a"s, "SELECT $a"s, "SELECT \0 1"s})
        EXPECT_EQ(Refusal(text), refusal);
    EXPECT_EQ(Refusal("SELECT [a\0b]"s), "A name in brackets holds a character that has no meaning there.");
}

TEST(SqlDialect, RaisesErrorsOfTheDatabase) {
    const Error error = ErrorOf([] { TranslateSql("DROP TABLE RECIPES"); });
    EXPECT_EQ(error.Source(), "Database");
    EXPECT_EQ(error.Number(), 1);
}

}  // namespace
}  // namespace tw::test

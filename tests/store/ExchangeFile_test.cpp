#include "store/ExchangeFile.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

class ExchangeFileTest : public testing::Test {
  protected:
    void Make() { CreateExchangeTables(*main, *file); }
    // Returns the names of the columns of a table, in order.
    static std::string Columns(Database& database, const std::string& table) {
        std::string names;
        for (const auto& row : Select(database, "SELECT name FROM pragma_table_info(" + SqlText(table) + ")"))
            names += row[0] + " ";
        return names;
    }
    // Returns the indexes of a table as "INDEX(COLUMN COLUMN )", sorted by name.
    static Rows Indexes(Database& database, const std::string& table) {
        Rows all;
        for (const auto& row : Select(database, "SELECT name, [unique] FROM pragma_index_list(" +
                                                    SqlText(table) + ") ORDER BY name")) {
            std::string columns;
            for (const auto& column :
                 Select(database, "SELECT name, [desc] FROM pragma_index_xinfo(" + SqlText(row[0]) +
                                      ") WHERE [key] = 1 ORDER BY seqno"))
                columns += column[0] + (column[1] == "1" ? " DESC " : " ");
            all.push_back({row[0], row[1], columns});
        }
        return all;
    }

    const TemporaryFolder folder;
    const std::unique_ptr<Database> main = CreateMainDatabaseInMemory();
    const std::unique_ptr<Database> file = Database::CreateDatabase(folder.File("a.TWR"), kExchangeLocale);
};

TEST_F(ExchangeFileTest, HoldsTheSevenRecipeTablesAlone) {
    Make();
    EXPECT_EQ(Select(*file,
                     "SELECT name FROM sqlite_schema WHERE type = 'table' AND NOT name GLOB 'sqlite*' "
                     "ORDER BY name"),
              (Rows{{"RECIPES"},
                    {"RECIPE_ADJUNCTS"},
                    {"RECIPE_GRAINS"},
                    {"RECIPE_HOPS"},
                    {"RECIPE_LOG"},
                    {"RECIPE_SALTS"},
                    {"RECIPE_SUGARS"}}));
}

class ExchangeCopyTest : public testing::Test {
  protected:
    TargetFile Target(std::string_view name) const { return {folder.File(name), own}; }
    // Creates a file of that name that contains one recipe of that name.
    void MakeFile(const std::string& name, const std::string& recipe) {
        ExchangeCopy copy(*main);
        copy.Contents().Execute("INSERT INTO RECIPES (NAME) VALUES (" + SqlText(recipe) + ")");
        copy.Save(Target(name));
    }
    Rows Names(const std::string& name) const {
        return Select(*Database::OpenDatabase(folder.File(name), false),
                      "SELECT NAME FROM RECIPES ORDER BY NAME");
    }
    std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.File("")))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    const TemporaryFolder folder;
    const OwnFiles own;
    const std::unique_ptr<Database> main = CreateMainDatabaseInMemory();
};

TEST_F(ExchangeCopyTest, TheFileComesWithSaveAndNothingBesideIt) {
    ExchangeCopy copy(*main);
    copy.Contents().Execute("INSERT INTO RECIPES (NAME) VALUES ('Mild')");
    EXPECT_TRUE(Files().empty());
    copy.Save(Target("a.TWR"));
    EXPECT_EQ(Files(), std::vector<std::string>{"a.TWR"});
    EXPECT_EQ(Names("a.TWR"), Rows{{"Mild"}});
    // It is a normal file, which can also be opened exclusively and written.
    const auto file = Database::OpenDatabase(folder.File("a.TWR"), true);
    file->Execute("INSERT INTO RECIPES (NAME) VALUES ('Bock')");
    EXPECT_EQ(Cell(*file, "SELECT integrity_check FROM pragma_integrity_check"), "ok");
}

TEST_F(ExchangeCopyTest, AnOlderFileIsAddedToAndKeptFromOthersMeanwhile) {
    MakeFile("a.TWR", "Mild");
    {
        ExchangeCopy copy(Database::OpenDatabase(folder.File("a.TWR"), false));
        copy.Contents().Execute("INSERT INTO RECIPES (NAME) VALUES ('Bock')");
        const auto other = Database::OpenDatabase(folder.File("a.TWR"), false);
        EXPECT_EQ(ErrorOf([&] { other->Execute("DELETE FROM RECIPES"); }).Description(),
                  "database is locked");
        copy.Save(Target("a.TWR"));
    }
    EXPECT_EQ(Names("a.TWR"), (Rows{{"Bock"}, {"Mild"}}));
    EXPECT_EQ(Files(), std::vector<std::string>{"a.TWR"});
}

TEST_F(ExchangeCopyTest, WhatACrashHasLeftBesideTheOldFileDoesNotReachTheNewOne) {
    MakeFile("a.TWR", "Mild");
    EXPECT_TRUE(DiesIn([&] {
        const auto file = Database::OpenDatabase(folder.File("a.TWR"), false);
        file->ExecuteNative("PRAGMA cache_size=1; PRAGMA cache_spill=1; BEGIN");
        for (int i = 0; i < 1000; ++i) file->Execute("INSERT INTO RECIPES (NAME) VALUES ('half done')");
        raise(SIGKILL);
    }));
    ASSERT_EQ(Files(), (std::vector<std::string>{"a.TWR", "a.TWR-journal"}));
    MakeFile("a.TWR", "Bock");
    EXPECT_EQ(Names("a.TWR"), Rows{{"Bock"}});
    EXPECT_EQ(Files(), std::vector<std::string>{"a.TWR"});
}

TEST_F(ExchangeCopyTest, AFileWithALogBesideItIsTakenInWhole) {
    MakeFile("a.TWR", "Mild");
    EXPECT_TRUE(DiesIn([&] {
        const auto file = Database::OpenDatabase(folder.File("a.TWR"), false);
        file->ExecuteNative("PRAGMA journal_mode=WAL");
        file->Execute("INSERT INTO RECIPES (NAME) VALUES ('Bock')");
        raise(SIGKILL);
    }));
    ASSERT_EQ(Files(), (std::vector<std::string>{"a.TWR", "a.TWR-shm", "a.TWR-wal"}));
    ExchangeCopy copy(Database::OpenDatabase(folder.File("a.TWR"), false));
    copy.Contents().Execute("INSERT INTO RECIPES (NAME) VALUES ('Porter')");
    copy.Save(Target("a.TWR"));
    EXPECT_EQ(Names("a.TWR"), (Rows{{"Bock"}, {"Mild"}, {"Porter"}}));
    EXPECT_EQ(Files(), std::vector<std::string>{"a.TWR"});
}

TEST_F(ExchangeFileTest, HasTheSameColumnsInTheirOrderButTheNameOfTheStyle) {
    Make();
    for (const char* table :
         {"RECIPE_ADJUNCTS", "RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_LOG", "RECIPE_SALTS", "RECIPE_SUGARS"})
        EXPECT_EQ(Columns(*file, table), Columns(*main, table));
    std::string expected = Columns(*main, "RECIPES");
    expected.replace(expected.find("STYLE_ID"), 8, "STYLE_NAME");
    EXPECT_EQ(Columns(*file, "RECIPES"), expected);
}

TEST_F(ExchangeFileTest, AStyleIsATextOfFiftyThatMayBeLeftOutOrEmpty) {
    Make();
    EXPECT_EQ(Select(*file,
                     "SELECT type, [notnull], dflt_value FROM pragma_table_info('RECIPES') "
                     "WHERE name = 'STYLE_NAME'"),
              (Rows{{"TEXT(50)", "0", "''"}}));
    file->Execute("INSERT INTO RECIPES (NAME) VALUES ('Mild')");
    file->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME) VALUES ('Stout', '')");
    file->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME) VALUES ('Porter', NULL)");
    EXPECT_EQ(Select(*file, "SELECT STYLE_NAME FROM RECIPES ORDER BY ID"), (Rows{{""}, {""}, {"NULL"}}));
    EXPECT_EQ(file->OpenRecordset("SELECT STYLE_NAME FROM RECIPES").TypeOf(0), FieldType::Text);
}

TEST_F(ExchangeFileTest, HasTheSameIndexesWithTheNameOfTheStyleInPlaceOfItsId) {
    Make();
    EXPECT_EQ(Indexes(*file, "RECIPE_HOPS"), (Rows{{"RECIPE_HOPS_RECIPE_ID", "0", "RECIPE_ID "}}));
    EXPECT_EQ(Indexes(*file, "RECIPES"),
              (Rows{{"RECIPES_FOLDER_ID_NAME", "0", "FOLDER_ID NAME "},
                    {"RECIPES_NAME_STYLE_ID_FOLDER_ID", "0", "NAME STYLE_NAME FOLDER_ID "},
                    {"RECIPES_STYLE_ID_NAME", "0", "STYLE_NAME NAME "}}));
}

TEST_F(ExchangeFileTest, CountsIdsThatAreNeverUsedAgain) {
    Make();
    for (const char* sql : {"INSERT INTO RECIPES (NAME) VALUES ('Mild')", "DELETE FROM RECIPES",
                            "INSERT INTO RECIPES (NAME) VALUES ('Stout')"})
        file->Execute(sql);
    EXPECT_EQ(Cell(*file, "SELECT ID FROM RECIPES"), "2");
}

TEST_F(ExchangeFileTest, ComparesNamesWithoutRegardToCase) {
    Make();
    file->Execute("INSERT INTO RECIPES (NAME) VALUES ('Weißbier ÄÖ')");
    EXPECT_EQ(Cell(*file, "SELECT ID FROM RECIPES WHERE NAME = 'weißbier äö'"), "1");
}

TEST_F(ExchangeFileTest, EveryTableWhoseNameBeginsWithRecipeTravelsWithItsRules) {
    main->ExecuteNative(
        "CREATE TABLE \"Recipe \"\"x\" (\"a b\" INTEGER NOT NULL, \"desc\" TEXT DEFAULT 'it''s', PLACE LONG);"
        "CREATE UNIQUE INDEX \"i x\" ON \"Recipe \"\"x\" (\"a b\" DESC, \"desc\");"
        "CREATE INDEX partly ON \"Recipe \"\"x\" (PLACE) WHERE PLACE > 0;"
        "CREATE INDEX computed ON \"Recipe \"\"x\" (PLACE + 1);"
        "CREATE TABLE MY_RECIPES (a INTEGER)");
    Make();
    EXPECT_EQ(Columns(*file, "Recipe \"x"), "a b desc PLACE ");
    EXPECT_EQ(Columns(*file, "MY_RECIPES"), "");
    EXPECT_EQ(Indexes(*file, "Recipe \"x"), (Rows{{"i x", "1", "a b DESC desc "}}));
    file->ExecuteNative("INSERT INTO \"Recipe \"\"x\" (\"a b\") VALUES (1)");
    EXPECT_EQ(Cell(*file, "SELECT [desc] FROM [Recipe \"x]"), "it's");
    EXPECT_EQ(ErrorOf([&] {
                  file->ExecuteNative("INSERT INTO \"Recipe \"\"x\" (\"a b\") VALUES (NULL)");
              }).Number(),
              19);  // SQLite's number for a violated constraint
}

TEST_F(ExchangeFileTest, AFileThatHoldsATableIsRefusedWhole) {
    file->ExecuteNative("CREATE TABLE RECIPE_LOG (a INTEGER)");
    EXPECT_EQ(ErrorOf([&] { Make(); }).Description(), "table \"RECIPE_LOG\" already exists");
}

}  // namespace
}  // namespace tw::test

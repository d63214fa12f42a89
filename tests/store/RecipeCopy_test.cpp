#include "store/RecipeCopy.h"

#include <csignal>
#include <deque>
#include <gtest/gtest.h>
#include <unistd.h>

#include "StoreSupport.h"
#include "store/ExchangeFile.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

// Answers from a queue that the test fills, aborts if it is empty, and records the questions.
class Host : public CopyHost {
  public:
    bool Continue(const std::string& name, int number, int total) override {
        log.push_back(std::to_string(number) + "/" + std::to_string(total) + " " + name);
        return number != stopAt;
    }
    ConflictAnswer ResolveConflict(const std::string& name, const std::string& freeName) override {
        conflicts.push_back(name);
        freeNames.push_back(freeName);
        if (answers.empty()) return {};
        ConflictAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    bool ContinueAfter(const std::string& text) override {
        errors.push_back(text);
        return goOn;
    }
    void DebugText(const std::string& text) override { debug.push_back(text); }

    std::deque<ConflictAnswer> answers;
    bool goOn = true;
    int stopAt = -1;
    Strings log, conflicts, freeNames, errors, debug;
};

const ConflictAnswer kOverwrite{ConflictResponse::Overwrite, ""};
const ConflictAnswer kSkip{ConflictResponse::Skip, ""};
const ConflictAnswer kAbort{ConflictResponse::Abort, ""};

ConflictAnswer RenameTo(const std::string& name) {
    return {ConflictResponse::Rename, name};
}

class RecipeCopyTest : public testing::Test {
  protected:
    RecipeCopyTest() {
        CreateExchangeTables(*main, *file);
        // FullRecipe has style 7 and is in folder 3.
        main->Execute("INSERT INTO STYLES (ID, NAME) VALUES (7, 'Dry Stout')");
    }

    RecipeCopier Copier() { return {*main, *file, host}; }
    void Export(const Strings& names) { Copier().ExportRecipes(names); }
    void Import(const Strings& names, std::int64_t folderId = 0) {
        Copier().ImportRecipes(names, folderId, unknown);
    }
    // Adds a recipe to the file, as another brewer might have sent it.
    void PutIntoFile(const std::string& name, const std::string& style = "") {
        file->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME, FOLDER_ID) VALUES (" + SqlText(name) + ", " +
                      SqlText(style) + ", 99)");
    }
    void PutIntoMain(const std::string& name) {
        main->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + SqlText(name) + ", 0, 5)");
    }
    static Rows Names(Database& database) { return Select(database, "SELECT NAME FROM RECIPES ORDER BY ID"); }
    std::string MainName() { return Cell(*main, "SELECT NAME FROM RECIPES"); }

    const TemporaryFolder folder;
    const std::unique_ptr<Database> main = CreateMainDatabaseInMemory();
    const std::unique_ptr<Database> file = Database::CreateDatabase(folder.File("a.TWR"), kExchangeLocale);
    Host host;
    StylesNotImported unknown;
};

TEST_F(RecipeCopyTest, ARecipeComesBackAsItWentButForItsSugarsAndItsFolder) {
    StoredRecipe recipe = FullRecipe("Mild", 3);
    InsertRecipe(*main, recipe);
    Export({"Mild"});
    main->Execute("DELETE FROM RECIPES");
    for (const char* table : {"GRAINS", "HOPS", "SALTS", "ADJUNCTS", "LOG", "SUGARS"})
        main->Execute("DELETE FROM RECIPE_" + std::string(table));
    Import({"Mild"}, 4);
    recipe[GridId::Priming].clear();
    recipe.folderId = 4;
    EXPECT_EQ(Describe(*ReadRecipe(*main, "Mild")), Describe(recipe));
    EXPECT_EQ(host.conflicts, Strings{});
    EXPECT_EQ(host.errors, Strings{});
    EXPECT_EQ(unknown, StylesNotImported{});
}

TEST_F(RecipeCopyTest, TheFileHoldsTheNameOfTheStyleTheOldFolderAndNoSugars) {
    InsertRecipe(*main, FullRecipe("Mild"));
    PutIntoMain("Plain");
    main->Execute("INSERT INTO RECIPES (NAME, STYLE_ID) VALUES ('Lost Style', 55)");
    main->Execute("INSERT INTO RECIPES (NAME) VALUES ('No Style')");
    Export({"Mild", "Plain", "Lost Style", "No Style"});
    EXPECT_EQ(Select(*file, "SELECT ID, NAME, STYLE_NAME, FOLDER_ID FROM RECIPES ORDER BY ID"),
              (Rows{{"1", "Mild", "Dry Stout", "3"},
                    {"2", "Plain", "", "5"},
                    {"3", "Lost Style", "", "NULL"},
                    {"4", "No Style", "", "NULL"}}));
    EXPECT_EQ(Cell(*main, "SELECT COUNT(*) FROM RECIPE_SUGARS"), "2");
    EXPECT_EQ(Cell(*file, "SELECT COUNT(*) FROM RECIPE_SUGARS"), "0");
}

TEST_F(RecipeCopyTest, LinesReferToTheIdThatTheRecipeHasWhereItStands) {
    PutIntoFile("First");
    InsertRecipe(*main, FullRecipe("Mild"));
    Export({"Mild"});
    EXPECT_EQ(Select(*file, "SELECT RECIPE_ID, ROW_ID, NAME FROM RECIPE_HOPS ORDER BY ROW_ID"),
              (Rows{{"2", "0", "Goldings 0"}, {"2", "1", "Goldings 1"}}));
}

TEST_F(RecipeCopyTest, ValuesOfEveryTypeKeepThemselves) {
    file->Execute(
        "INSERT INTO RECIPES (NAME, CREATED_WHEN, MODIFIED_WHEN, BOTTLED, OG_DATA, TV_DATA, NOTES, "
        "NUMBATCHES) "
        "VALUES ('Mild', '12/31/1999 23:59:58', NULL, FALSE, 0.30000000000000004, -0.000000000001, '007', "
        "'1.050')");
    file->Execute(
        "INSERT INTO RECIPE_HOPS (RECIPE_ID, ROW_ID, NAME, HOP_SOCK, DRY, AA_DATA) "
        "VALUES (1, 0, NULL, TRUE, NULL, 5.123456789012345)");
    Import({"Mild"});
    EXPECT_EQ(Select(*main,
                     "SELECT CREATED_WHEN, MODIFIED_WHEN, BOTTLED, NOTES, NUMBATCHES, KEG_VOLS, BV "
                     "FROM RECIPES"),
              (Rows{{"12/31/1999 23:59:58", "NULL", "FALSE", "007", "1.050", "NULL", "NULL"}}));
    const Recordset row = main->OpenRecordset("SELECT OG_DATA, TV_DATA FROM RECIPES");
    EXPECT_EQ(row.Fields(0).Number(), 0.30000000000000004);
    EXPECT_EQ(row.Fields(1).Number(), -0.000000000001);
    EXPECT_EQ(Select(*main, "SELECT NAME, HOP_SOCK, DRY FROM RECIPE_HOPS"), (Rows{{"NULL", "TRUE", "NULL"}}));
    EXPECT_EQ(main->OpenRecordset("SELECT AA_DATA FROM RECIPE_HOPS").Fields(0).Number(), 5.123456789012345);
}

TEST_F(RecipeCopyTest, TextsTravelLetterForLetter) {
    using std::string_literals::operator""s;
    const Strings texts = {std::string(10000, 'n'),
                           "Dry's \"Best\" 'Stout'",
                           "a\tb\r\nc\x01\x7f",
                           "nul\0inside"s,
                           "\xd7\x91\xd7\x99\xd7\xa8\xd7\x94 \xe2\x80\xae"
                           "abc",
                           "\xff\xfe no UTF-8",
                           "; DROP TABLE RECIPES --"};
    for (const std::string& text : texts) {
        main->Execute("INSERT INTO RECIPES (NAME, NOTES, STYLE_ID) VALUES (" + SqlText(text) + ", " +
                      SqlText(text) + ", 0)");
        Export({text});
        main->Execute("DELETE FROM RECIPES");
        Import({text});
        EXPECT_EQ(Select(*main, "SELECT NAME, NOTES FROM RECIPES"), (Rows{{text, text}}));
        main->Execute("DELETE FROM RECIPES");
    }
    EXPECT_EQ(host.errors, Strings{});
}

TEST_F(RecipeCopyTest, ANameIsFoundInAnyCaseAndWithBlanksAndTheRecipeTakesIt) {
    PutIntoFile("  Ärger ");
    Import({" äRGER  "});
    // The main database stores names trimmed.
    EXPECT_EQ(MainName(), "äRGER");
    Export({"ÄRGER"});
    EXPECT_EQ(host.conflicts, Strings{"ÄRGER"});
}

TEST_F(RecipeCopyTest, AMissingRecipeIsToldAndTheNextOneComesAfterOk) {
    PutIntoFile("Mild");
    Import({"Dry's", "Mild"});
    EXPECT_EQ(host.errors, Strings{"Recipe 'Dry's' does not exist in Import File !"});
    EXPECT_EQ(MainName(), "Mild");
    Export({"Nothing"});
    EXPECT_EQ(host.errors.back(), "Recipe 'Nothing' does not exist in Recipe Database !");
}

TEST_F(RecipeCopyTest, CancelAtAMissingRecipeStopsTheRun) {
    PutIntoFile("Mild");
    host.goOn = false;
    Import({"Nothing", "Mild"});
    EXPECT_EQ(MainName(), "no row");
}

TEST_F(RecipeCopyTest, TheRunTellsItsProgressAndStopsWhenCalledOff) {
    for (const char* name : {"A", "B", "C"}) PutIntoFile(name);
    host.stopAt = 2;
    Import({"A", "B", "C"});
    EXPECT_EQ(host.log, (Strings{"0/3 A", "1/3 B", "2/3 C"}));
    EXPECT_EQ(Names(*main), (Rows{{"A"}, {"B"}}));
}

TEST_F(RecipeCopyTest, AnOverwrittenRecipeGoesWithFiveOfItsSetsOfLines) {
    InsertRecipe(*main, FullRecipe("MILD"));
    const std::string oldId = Cell(*main, "SELECT ID FROM RECIPES");
    PutIntoFile("Mild");
    file->Execute("INSERT INTO RECIPE_HOPS (RECIPE_ID, ROW_ID, NAME) VALUES (1, 0, 'Saaz')");
    host.answers = {kOverwrite};
    Import({"Mild"}, 8);
    EXPECT_EQ(host.conflicts, Strings{"Mild"});
    EXPECT_EQ(Select(*main, "SELECT NAME, FOLDER_ID, STYLE_ID FROM RECIPES"), (Rows{{"Mild", "8", "0"}}));
    EXPECT_EQ(Select(*main, "SELECT NAME FROM RECIPE_HOPS"), Rows{{"Saaz"}});
    for (const char* table : {"GRAINS", "SALTS", "ADJUNCTS", "LOG"})
        EXPECT_EQ(Cell(*main, "SELECT COUNT(*) FROM RECIPE_" + std::string(table)), "0") << table;
    // The sugars of the old recipe remain.
    EXPECT_EQ(Cell(*main, "SELECT COUNT(*) FROM RECIPE_SUGARS WHERE RECIPE_ID = " + oldId), "2");
}

TEST_F(RecipeCopyTest, ASkippedRecipeIsLeftOutAndTheNextOneComes) {
    PutIntoMain("Mild");
    for (const char* name : {"Mild", "Stout"}) PutIntoFile(name);
    host.answers = {kSkip};
    Import({"Mild", "Stout"}, 8);
    EXPECT_EQ(Select(*main, "SELECT NAME, FOLDER_ID FROM RECIPES ORDER BY ID"),
              (Rows{{"Mild", "5"}, {"Stout", "8"}}));
}

TEST_F(RecipeCopyTest, AbortKeepsWhatWasCopiedBefore) {
    PutIntoMain("Mild");
    for (const char* name : {"Bock", "Mild", "Stout"}) PutIntoFile(name);
    host.answers = {kAbort};
    Import({"Bock", "Mild", "Stout"});
    EXPECT_EQ(Names(*main), (Rows{{"Mild"}, {"Bock"}}));
}

TEST_F(RecipeCopyTest, ARenamedRecipeIsAskedAboutUntilItsNameIsFree) {
    for (const char* name : {"Mild", "Stout"}) PutIntoMain(name);
    PutIntoFile("Mild");
    host.answers = {RenameTo("  STOUT "), RenameTo(" Mild 2  ")};
    Import({"Mild"});
    EXPECT_EQ(host.conflicts, (Strings{"Mild", "STOUT"}));
    EXPECT_EQ(Names(*main), (Rows{{"Mild"}, {"Stout"}, {"Mild 2"}}));
}

TEST_F(RecipeCopyTest, EachQuestionComesWithANameThatIsFreeAtTheDestination) {
    for (const char* name : {"Mild", "mild (2)", "Porter (2)"}) PutIntoMain(name);
    for (const char* name : {"Mild", "Porter (2)", "Mild (4)"}) PutIntoFile(name);
    host.answers = {RenameTo("Mild (3)"), kSkip, kSkip};
    Import({"Mild", "Porter (2)"});
    EXPECT_EQ(host.freeNames, (Strings{"Mild (3)", "Porter (3)"}));
    // The next question also counts the names that this run has given.
    Import({"Mild"});
    EXPECT_EQ(host.freeNames.back(), "Mild (4)");
}

TEST(RecipeNamesTest, AFreeNameCountsOnFromTheNumberOfTheName) {
    RecipeNames names;
    names.Put("Mild", 1);
    EXPECT_EQ(names.FreeName("Mild"), "Mild (2)");
    EXPECT_EQ(names.FreeName(" Mild (7) "), "Mild (8)");
    names.Put("MILD (8)", 2);
    EXPECT_EQ(names.FreeName("Mild (7)"), "Mild (9)");
    // Only a short number counts.
    EXPECT_EQ(names.FreeName("Vintage (2019)"), "Vintage (2019) (2)");
    EXPECT_EQ(names.FreeName("Mild (dark)"), "Mild (dark) (2)");
    EXPECT_EQ(names.FreeName("Mild ()"), "Mild () (2)");
    EXPECT_EQ(names.FreeName("(2)"), "(2) (2)");
}

TEST_F(RecipeCopyTest, ARunReturnsHowManyRecipesWereCopied) {
    for (const char* name : {"Bock", "Mild", "Stout"}) PutIntoFile(name);
    PutIntoMain("Mild");
    host.answers = {kSkip};
    EXPECT_EQ(Copier().ImportRecipes(Strings{"Bock", "Mild", "Nothing", "Stout"}, 0, unknown), 2);
    host.answers = {kOverwrite, kAbort};
    EXPECT_EQ(Copier().ImportRecipes(Strings{"Bock", "Mild", "Stout"}, 0, unknown), 1);
    EXPECT_EQ(Copier().ExportRecipes(Strings{}), 0);
}

TEST_F(RecipeCopyTest, ARenamedRecipeMayOverwriteTheOneOfItsNewName) {
    for (const char* name : {"Mild", "Stout"}) PutIntoMain(name);
    PutIntoFile("Mild");
    host.answers = {RenameTo("stout"), kOverwrite};
    Import({"Mild"});
    EXPECT_EQ(Names(*main), (Rows{{"Mild"}, {"stout"}}));
}

TEST_F(RecipeCopyTest, ANameTwiceInTheListMeetsItself) {
    PutIntoFile("Mild");
    host.answers = {kSkip};
    Import({"Mild", "mild"});
    EXPECT_EQ(host.conflicts, Strings{"mild"});
    EXPECT_EQ(Names(*main), Rows{{"Mild"}});
}

TEST_F(RecipeCopyTest, AppendingTwiceMeetsEachNameAgain) {
    for (const char* name : {"Mild", "Stout"}) PutIntoMain(name);
    Export({"Mild", "Stout"});
    host.answers = {kOverwrite, RenameTo("Stout 2")};
    Export({"Mild", "Stout"});
    EXPECT_EQ(host.conflicts, (Strings{"Mild", "Stout"}));
    EXPECT_EQ(Names(*file), (Rows{{"Stout"}, {"Mild"}, {"Stout 2"}}));
    EXPECT_EQ(Names(*main), (Rows{{"Mild"}, {"Stout"}}));
}

TEST_F(RecipeCopyTest, AStyleIsFoundByItsNameAndAnUnknownOneIsTold) {
    PutIntoFile("Known", "dry STOUT");
    PutIntoFile("Unknown", "O'Malley's");
    PutIntoFile("None", "");
    file->Execute("INSERT INTO RECIPES (NAME, STYLE_NAME) VALUES ('Null', NULL)");
    PutIntoMain("Unknown");
    unknown = {{"left", "over"}};
    host.answers = {RenameTo("Unknown 2")};
    Import({"Known", "Unknown", "None", "Null"});
    EXPECT_EQ(unknown, (StylesNotImported{{"Unknown 2", "O'Malley's"}}));
    EXPECT_EQ(Select(*main, "SELECT NAME, STYLE_ID FROM RECIPES ORDER BY ID"),
              (Rows{{"Unknown", "0"}, {"Known", "7"}, {"Unknown 2", "0"}, {"None", "0"}, {"Null", "0"}}));
}

TEST_F(RecipeCopyTest, ARecipeOverwrittenInOneRunIsToldOnceWithItsLastStyle) {
    PutIntoFile("Mild", "First");
    PutIntoFile("Other", "Second");
    PutIntoMain("Other");
    host.answers = {RenameTo("Mild"), kOverwrite};
    Import({"Mild", "Other"});
    EXPECT_EQ(unknown, (StylesNotImported{{"Mild", "Second"}}));
}

TEST_F(RecipeCopyTest, AnEmptyNameIsLeftOut) {
    PutIntoFile("");
    Import({""});
    EXPECT_EQ(host.errors, Strings{});
    EXPECT_EQ(MainName(), "no row");
}

TEST_F(RecipeCopyTest, AColumnOfAnUnknownTypeFailsAndWhatWasCopiedStays) {
    PutIntoFile("Mild");
    PutIntoFile("Stout");
    file->ExecuteNative(
        "ALTER TABLE RECIPES ADD COLUMN PHOTO BLOB; UPDATE RECIPES SET PHOTO = x'00' WHERE ID = 2");
    main->ExecuteNative("ALTER TABLE RECIPES ADD COLUMN PHOTO BLOB");
    // The 51 columns of a recipe without its ID, and PHOTO. Type 11 is a column of bytes.
    EXPECT_EQ(ErrorOf([&] { Import({"Mild", "Stout"}); }).Description(), "50 values for 51 columns");
    EXPECT_EQ(host.debug, Strings{"column PHOTO of table RECIPES is of type 11 (?)"});
    EXPECT_EQ(Names(*main), Rows{{"Mild"}});
}

TEST_F(RecipeCopyTest, AColumnOfAnUnknownTypeInALineNamesItsTable) {
    PutIntoFile("Mild");
    file->ExecuteNative(
        "DROP TABLE RECIPE_LOG; CREATE TABLE RECIPE_LOG (RECIPE_ID INTEGER, ROW_ID INTEGER, NOTES BLOB);"
        "INSERT INTO RECIPE_LOG VALUES (1, 0, x'01')");
    EXPECT_EQ(ErrorOf([&] { Import({"Mild"}); }).Description(), "2 values for 3 columns");
    EXPECT_EQ(host.debug, Strings{"column NOTES of table RECIPE_LOG is of type 11 (?)"});
    EXPECT_EQ(MainName(), "Mild");
}

TEST_F(RecipeCopyTest, AColumnThatTheDestinationLacksFails) {
    file->ExecuteNative("ALTER TABLE RECIPES ADD COLUMN \"my [own\" TEXT");
    PutIntoFile("Mild");
    EXPECT_EQ(ErrorOf([&] { Import({"Mild"}); }).Description(), "table RECIPES has no column named my [own");
    EXPECT_EQ(MainName(), "no row");
}

TEST_F(RecipeCopyTest, AColumnThatCannotBeNamedFails) {
    file->ExecuteNative("ALTER TABLE RECIPES ADD COLUMN \"a]b\" TEXT");
    PutIntoFile("Mild");
    EXPECT_EQ(ErrorOf([&] { Import({"Mild"}); }).Description(), "The field 'a]b' cannot be copied.");
}

TEST_F(RecipeCopyTest, AColumnThatTheSourceLacksStaysNull) {
    file->ExecuteNative("ALTER TABLE RECIPES DROP COLUMN NOTES");
    PutIntoFile("Mild");
    Import({"Mild"});
    EXPECT_EQ(Cell(*main, "SELECT NOTES FROM RECIPES"), "NULL");
}

TEST_F(RecipeCopyTest, AMissingTableFailsWithItsErrorAndWhatWasCopiedStays) {
    file->ExecuteNative("DROP TABLE RECIPE_HOPS");
    PutIntoFile("Mild");
    PutIntoFile("Stout");
    file->Execute("INSERT INTO RECIPE_GRAINS (RECIPE_ID, ROW_ID, NAME) VALUES (1, 0, 'Malt')");
    EXPECT_EQ(ErrorOf([&] { Import({"Mild", "Stout"}); }).Description(), "no such table: RECIPE_HOPS");
    EXPECT_EQ(Names(*main), Rows{{"Mild"}});
    EXPECT_EQ(Cell(*main, "SELECT NAME FROM RECIPE_GRAINS"), "Malt");
    file->ExecuteNative("DROP TABLE RECIPES");
    EXPECT_EQ(ErrorOf([&] { Import({"Stout"}); }).Description(), "no such table: RECIPES");
}

TEST_F(RecipeCopyTest, ARecipeIsOverwrittenWhollyOrNotAtAll) {
    InsertRecipe(*main, FullRecipe("Mild"));
    const std::string before = Dump(*main);
    PutIntoFile("Mild");
    file->ExecuteNative("DROP TABLE RECIPE_SALTS");
    host.answers = {kOverwrite};
    EXPECT_EQ(ErrorOf([&] { Import({"Mild"}); }).Description(), "no such table: RECIPE_SALTS");
    EXPECT_EQ(Dump(*main), before);
}

TEST_F(RecipeCopyTest, ANumberThatIsATextIsCopiedAsOneAndNeverRunAsSql) {
    PutIntoFile("Mild");
    file->ExecuteNative("UPDATE RECIPES SET OG_DATA = '1); DELETE FROM RECIPES --', BOTTLED = 'perhaps'");
    PutIntoMain("Other");
    Import({"Mild"});
    EXPECT_EQ(Select(*main, "SELECT NAME, OG_DATA, BOTTLED FROM RECIPES ORDER BY ID"),
              (Rows{{"Other", "NULL", "NULL"}, {"Mild", "1); DELETE FROM RECIPES --", "FALSE"}}));
}

TEST_F(RecipeCopyTest, ARowThatTheDestinationDropsIsToldAndTheNextOneComes) {
    PutIntoMain("Mild");
    file->ExecuteNative("CREATE TRIGGER t BEFORE INSERT ON RECIPES BEGIN SELECT RAISE(IGNORE); END");
    Export({"Mild", "Mild"});
    EXPECT_EQ(host.errors, (Strings(2, "Unknown error inserting recipe !")));
    EXPECT_EQ(Names(*file), Rows{});
}

TEST_F(RecipeCopyTest, ARowThatTheDestinationDropsTakesNoOthersPlace) {
    PutIntoMain("Mild");
    PutIntoFile("Mild");
    file->ExecuteNative("CREATE TRIGGER t BEFORE INSERT ON RECIPES BEGIN SELECT RAISE(IGNORE); END");
    host.answers = {kOverwrite};
    Export({"Mild"});
    EXPECT_EQ(host.errors, Strings{"Unknown error inserting recipe !"});
    EXPECT_EQ(Names(*file), Rows{{"Mild"}});
}

TEST_F(RecipeCopyTest, OfTwoRecipesOfOneNameTheOldestIsCopiedAndOverwritten) {
    for (const char* style : {"Old", "New"}) PutIntoFile("Mild", style);
    for (const char* name : {"Mild", "mild"}) PutIntoMain(name);
    host.answers = {kOverwrite};
    Import({"Mild"});
    EXPECT_EQ(unknown, (StylesNotImported{{"Mild", "Old"}}));
    EXPECT_EQ(Select(*main, "SELECT ID, NAME FROM RECIPES ORDER BY ID"),
              (Rows{{"2", "mild"}, {"3", "Mild"}}));
}

TEST_F(RecipeCopyTest, ARunLooksAtTheNamesOfTheDestinationOnce) {
    for (const char* name : {"A", "B"}) PutIntoFile(name);
    int statements = 0;
    main->SetStatementHook([&](std::string_view) { ++statements; });
    Import({"A", "B"});
    // One query of the names, and for each recipe an INSERT and a query of its ID: no lines, no style.
    EXPECT_EQ(statements, 1 + 2 * 2);
}

TEST_F(RecipeCopyTest, ACrashInAnImportLeavesTheOldDatabaseWhole) {
    const std::string path = folder.File("Tunwright.mdb");
    MakeMainDatabase(path);
    InsertRecipe(*main, FullRecipe("Mild", 1));
    InsertRecipe(*main, FullRecipe("Stout", 1));
    Export({"Mild", "Stout"});
    InsertRecipe(*OpenMainDatabase(path), FullRecipe("Mild", 2));
    const std::string bytes = ReadFile(path);
    const std::string before = Dump(*OpenMainDatabase(path));
    int statement = 0;
    for (bool died = true; died; ++statement) {
        WriteFile(path, bytes);
        died = DiesIn([&] {
            const auto db = OpenMainDatabase(path);
            db->ExecuteNative("PRAGMA cache_size=3");
            DieAt(*db, statement);
            const auto source = Database::OpenDatabase(folder.File("a.TWR"), false);
            host.answers = {kOverwrite};
            RecipeCopier(*db, *source, host).ImportRecipes(Strings{"Mild", "Stout"}, 0, unknown);
        });
        const auto db = OpenMainDatabase(path);
        if (died) {
            EXPECT_EQ(Dump(*db), before) << "killed before statement " << statement;
        } else {
            EXPECT_EQ(Names(*db), (Rows{{"Mild"}, {"Stout"}}));
        }
    }
    // The names. For the first recipe: a DELETE, the query of the style, the INSERT, the query of the ID, 5
    // DELETEs and 6 lines. For the second one: the same without DELETEs. Then the run that survives.
    EXPECT_EQ(statement, 1 + 15 + 9 + 1);
}

}  // namespace
}  // namespace tw::test

// Tests of what a newer version of the product changes in a database that is in use.
#include "store/CatalogueUpdate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "SmallCatalogue.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DateTime kNow{.year = 2026, .month = 11, .day = 21, .hour = 8, .minute = 0, .second = 0};

// A database created by version 1 of the small catalogue. Each test then edits the files into version 2.
class CatalogueUpdateTest : public SmallCatalogue {
  protected:
    void SetUp() override {
        SmallCatalogue::SetUp();
        Append("version.txt", "1\n");
        ASSERT_THAT(Load(), IsEmpty());
        Replace("version.txt", "2\n");
    }
    bool Update() { return UpdateCatalogue(folder_.string(), *database_, kNow); }
    void Sql(const std::string& sql) { database_->Execute(sql); }
    void AddHop() const { Append("hops.tsv", "New Hop\tAroma\t\t\t4\t6\tLemon.\t\n"); }
    void AddStyle() const {
        Append("styles.tsv", "Kellerbier\t\t\tPale Beer\tLager\t\t1.045\t1.051\t\t\t\t\t\t\t\t\t\t\tHazy.\n");
    }
    void CorrectWildHop() const {
        Edit("hops.tsv", "Wild Hop\t\t\t\t\t\t\t", "Wild Hop\tAroma\t\t\t3\t5\tMild.\t");
    }
    // Makes the database one of the first release, which stored no folders, codes or other names.
    void AgeTheDatabase() {
        database_->ExecuteNative(
            "UPDATE CATALOGUE_BASE SET CONTENT = substr(CONTENT, 1, instr(CONTENT, 'FOLDER=') - 1)"
            " WHERE SHEET = 'STYLES';"
            "DROP TABLE CATALOGUE_FACTS; DROP TABLE CATALOGUE_ALIASES;");
    }
    // The guide drops one style and moves others to other folders; each was the only style of its folder.
    void ChangeTheGuide() const {
        Edit("styles.tsv", "Fruit Beer\t29A\tBeer 2021\tOther Beer\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\n", "");
        Edit("styles.tsv", "Pils\t5D\tBeer 2021\tPale Beer", "Pils\t5D\tBeer 2021\tBitter Beer");
        Edit("styles.tsv", "Helles\t5D\tBeer 2021\tPale Beer", "Helles\t4A\tBeer 2021\tMild Beer");
        Append("former.tsv",
               "Fruit Beer\tstyle\tgone\t\nPils\tstyle\tmoved\tPale Beer\nHelles\tstyle\tmoved\tPale "
               "Beer\n");
    }
    std::vector<std::string> StylesInFolders() {
        return Rows(
            "SELECT STYLES.NAME, FOLDERS.NAME FROM STYLES, FOLDERS WHERE STYLES.FOLDER_ID = FOLDERS.ID ORDER "
            "BY STYLES.NAME");
    }
    std::vector<std::string> WildHops() {
        return Rows("SELECT NAME, USAGE, DESCR, AA_LO, AA_HI FROM HOPS WHERE NAME = 'Wild Hop'");
    }
};

TEST_F(CatalogueUpdateTest, ChangesNothingWhenTheFilesAreTheSame) {
    Replace("version.txt", "1\n");
    int statements = 0;
    database_->SetStatementHook(
        [&](std::string_view sql) { statements += sql.starts_with("SELECT") ? 0 : 1; });
    EXPECT_FALSE(Update());
    EXPECT_EQ(statements, 0);
}

TEST_F(CatalogueUpdateTest, AddsARowThatTheProductNeverDelivered) {
    AddHop();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT NAME, USAGE, DESCR, AA_LO, AA_HI FROM HOPS WHERE NAME = 'New Hop'"),
                ElementsAre("New Hop|Aroma|Lemon.|4|6"));
}

TEST_F(CatalogueUpdateTest, CorrectsARowThatStandsAsDelivered) {
    CorrectWildHop();
    EXPECT_TRUE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|Aroma|Mild.|3|5"));
}

TEST_F(CatalogueUpdateTest, CorrectsARowThatItsEditorSavedUnchanged) {
    // The editors delete and insert rows, so the row has a new ID.
    Sql("DELETE FROM HOPS WHERE NAME = 'Wild Hop'");
    Sql("INSERT INTO HOPS (NAME, USAGE, DESCR) VALUES ('Wild Hop', '', '')");
    CorrectWildHop();
    EXPECT_TRUE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|Aroma|Mild.|3|5"));
}

TEST_F(CatalogueUpdateTest, LeavesAChangedRowAlone) {
    Sql("UPDATE HOPS SET AA_LO = 9 WHERE NAME = 'Wild Hop'");
    CorrectWildHop();
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|||9|NULL"));
}

TEST_F(CatalogueUpdateTest, LeavesAChangedRowAloneForever) {
    Sql("UPDATE HOPS SET AA_LO = 3 WHERE NAME = 'Wild Hop'");
    CorrectWildHop();
    Update();
    Edit("hops.tsv", "Mild.", "Very mild.");
    Replace("version.txt", "3\n");
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|||3|NULL"));
}

TEST_F(CatalogueUpdateTest, DoesNotBringBackARemovedRow) {
    Sql("DELETE FROM HOPS WHERE NAME = 'Wild Hop'");
    CorrectWildHop();
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), IsEmpty());
}

TEST_F(CatalogueUpdateTest, LeavesARenamedRowAloneAndAddsNoTwin) {
    Sql("UPDATE HOPS SET NAME = 'My Hop' WHERE NAME = 'Wild Hop'");
    CorrectWildHop();
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT NAME FROM HOPS ORDER BY NAME"), ElementsAre("Brewer's Gold", "My Hop"));
    EXPECT_THAT(Rows("SELECT AA_LO FROM HOPS WHERE NAME = 'My Hop'"), ElementsAre("NULL"));
}

TEST_F(CatalogueUpdateTest, AnotherSpellingOfTheNameIsTheBrewersToo) {
    Sql("UPDATE HOPS SET NAME = 'WILD HOP' WHERE NAME = 'Wild Hop'");
    CorrectWildHop();
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("WILD HOP|||NULL|NULL"));
}

TEST_F(CatalogueUpdateTest, LeavesTheBrewersOwnRowOfANewNameAlone) {
    Sql("INSERT INTO HOPS (NAME, USAGE, DESCR, AA_LO, AA_HI) VALUES ('NEW HOP', 'Mine', 'Garden', 1, 2)");
    AddHop();
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT NAME, USAGE FROM HOPS WHERE NAME = 'New Hop'"), ElementsAre("NEW HOP|Mine"));
}

TEST_F(CatalogueUpdateTest, ARowThatTheProductDropsStays) {
    Edit("hops.tsv", "Wild Hop\t\t\t\t\t\t\t\n", "");
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|||NULL|NULL"));
}

TEST_F(CatalogueUpdateTest, CorrectsARowOfEachTable) {
    Edit("grains.tsv", "1.8\t2\tA base.", "1.8\t2.5\tA base.");
    Edit("yeast.tsv", "72\t78", "73\t79");
    Edit("water_profiles.tsv", "7\t15", "8\t15");
    Edit("salts.tsv", "61.5", "61.6");
    Edit("sugars.tsv", "97\t100", "98\t100");
    Edit("styles.tsv", "22\t40", "22\t45");
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT COLOR_HI FROM GRAINS WHERE NAME = 'Pale Malt'"), ElementsAre("2.5"));
    EXPECT_THAT(Rows("SELECT AA_LO, AA_HI FROM YEAST WHERE NAME = 'Kölsch Yeast'"), ElementsAre("73|79"));
    EXPECT_THAT(Rows("SELECT CA FROM WATER_PROFILES"), ElementsAre("8"));
    EXPECT_THAT(Rows("SELECT CA FROM SALTS"), ElementsAre("61.6"));
    EXPECT_THAT(Rows("SELECT FERMENT_LO FROM SUGARS WHERE NAME = 'Cane'"), ElementsAre("98"));
    EXPECT_THAT(Rows("SELECT IBU_HI, CREATED_WHEN, MODIFIED_WHEN FROM STYLES WHERE NAME = 'Pils'"),
                ElementsAre("45|02/29/2024 13:05:07|11/21/2026 08:00:00"));
}

TEST_F(CatalogueUpdateTest, DatesThatTheProductMadeUpGo) {
    Sql("UPDATE FOLDERS SET CREATED_WHEN = '01/01/2024 00:00:00', MODIFIED_WHEN = '01/01/2024 00:00:00'");
    Sql("UPDATE FOLDERS SET MODIFIED_WHEN = '03/01/2024 09:00:00' WHERE NAME = 'Other Beer'");
    Sql("UPDATE STYLES SET CREATED_WHEN = '01/01/2024 00:00:00' WHERE NAME = 'Helles'");
    // A recipe folder of the brewer, created in the very same second.
    Sql("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN) VALUES "
        "(0, 'Winter', FALSE, '01/01/2024 00:00:00')");
    AddHop();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT NAME, CREATED_WHEN, MODIFIED_WHEN FROM FOLDERS ORDER BY NAME"),
                ElementsAre("Other Beer|NULL|03/01/2024 09:00:00", "Pale Beer|NULL|NULL",
                            "Winter|01/01/2024 00:00:00|NULL"));
    EXPECT_THAT(Rows("SELECT CREATED_WHEN, MODIFIED_WHEN FROM STYLES WHERE NAME = 'Helles'"),
                ElementsAre("NULL|02/29/2024 13:05:07"));
}

TEST_F(CatalogueUpdateTest, AnUntouchedStyleFollowsTheGuideIntoAnotherFolder) {
    AgeTheDatabase();
    ChangeTheGuide();
    EXPECT_TRUE(Update());
    EXPECT_THAT(StylesInFolders(), ElementsAre("Helles|Mild Beer", "Pils|Bitter Beer"));
    EXPECT_THAT(Rows("SELECT CREATED_WHEN, MODIFIED_WHEN FROM STYLES WHERE NAME = 'Pils'"),
                ElementsAre("02/29/2024 13:05:07|11/21/2026 08:00:00"));
    // The folders that the guide no longer has are empty and are deleted too.
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS ORDER BY NAME"), ElementsAre("Bitter Beer", "Mild Beer"));
}

TEST_F(CatalogueUpdateTest, LaterReleasesKnowByThemselvesWhereAStyleWas) {
    Edit("styles.tsv", "Pils\t5D\tBeer 2021\tPale Beer", "Pils\t5D\tBeer 2021\tBitter Beer");
    EXPECT_TRUE(Update());
    EXPECT_THAT(StylesInFolders(),
                ElementsAre("Fruit Beer|Other Beer", "Helles|Pale Beer", "Pils|Bitter Beer"));
}

TEST_F(CatalogueUpdateTest, StylesAndFoldersThatTheBrewerTouchedStayWhereTheyAre) {
    AgeTheDatabase();
    Sql("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Mine', TRUE)");
    Sql("UPDATE STYLES SET FOLDER_ID = 3 WHERE NAME = 'Pils'");
    Sql("UPDATE STYLES SET IBU_HI = 33 WHERE NAME = 'Helles'");
    Sql("UPDATE STYLES SET NAME = 'Berry Beer' WHERE NAME = 'Fruit Beer'");
    ChangeTheGuide();
    EXPECT_FALSE(Update());
    EXPECT_THAT(StylesInFolders(), ElementsAre("Berry Beer|Other Beer", "Helles|Pale Beer", "Pils|Mine"));
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS ORDER BY NAME"),
                ElementsAre("Mine", "Other Beer", "Pale Beer"));
}

TEST_F(CatalogueUpdateTest, StylesStayInAFolderThatTheBrewerRenamed) {
    AgeTheDatabase();
    Sql("UPDATE FOLDERS SET NAME = 'Yellow' WHERE NAME = 'Pale Beer'");
    Sql("UPDATE FOLDERS SET NAME = 'Rest' WHERE NAME = 'Other Beer'");
    ChangeTheGuide();
    EXPECT_TRUE(Update());
    EXPECT_THAT(StylesInFolders(), ElementsAre("Helles|Yellow", "Pils|Yellow"));
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS ORDER BY NAME"), ElementsAre("Rest", "Yellow"));
}

TEST_F(CatalogueUpdateTest, AFolderThatHoldsTheBrewersOwnStays) {
    AgeTheDatabase();
    Sql("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (1, 'Mine', TRUE)");
    Sql("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('My Cherry', 2)");
    ChangeTheGuide();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS ORDER BY NAME"),
                ElementsAre("Bitter Beer", "Mild Beer", "Mine", "Other Beer", "Pale Beer"));
}

TEST_F(CatalogueUpdateTest, AStyleOfARecipeStaysAlthoughTheGuideDropsIt) {
    AgeTheDatabase();
    Sql("INSERT INTO RECIPES (NAME, STYLE_ID) SELECT 'Cherry', ID FROM STYLES WHERE NAME = 'Fruit Beer'");
    ChangeTheGuide();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT RECIPES.NAME, STYLES.NAME FROM RECIPES, STYLES WHERE STYLE_ID = STYLES.ID"),
                ElementsAre("Cherry|Fruit Beer"));
    EXPECT_THAT(StylesInFolders(),
                ElementsAre("Fruit Beer|Other Beer", "Helles|Mild Beer", "Pils|Bitter Beer"));
    // A later release deletes it once no recipe has that style.
    Sql("DELETE FROM RECIPES");
    Replace("version.txt", "3\n");
    EXPECT_TRUE(Update());
    EXPECT_THAT(StylesInFolders(), ElementsAre("Helles|Mild Beer", "Pils|Bitter Beer"));
}

TEST_F(CatalogueUpdateTest, ADroppedIngredientGoesWhenItStandsAsDelivered) {
    Edit("hops.tsv", "Wild Hop\t\t\t\t\t\t\t\n", "");
    Append("former.tsv", "Wild Hop\thop\tgone\t\n");
    EXPECT_TRUE(Update());
    EXPECT_THAT(WildHops(), IsEmpty());
    // The deletion was not remembered, so a later release that contains it again delivers it again.
    Replace("former.tsv", "name\tkind\tfate\tfolder\n");
    Append("hops.tsv", "Wild Hop\tAroma\t\t\t3\t5\tMild.\t\n");
    Replace("version.txt", "3\n");
    EXPECT_TRUE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|Aroma|Mild.|3|5"));
}

TEST_F(CatalogueUpdateTest, ADroppedGrainTakesItsTypeAlongWhenItWasTheLast) {
    Edit("grains.tsv", "Honey\textract\tSugar\t\t\t\t\t\tsecondary\n", "");
    Edit("aliases.tsv", "Sugar\tfermentable\tHoney\nMiel\tfermentable\tHoney\n", "");
    Append("former.tsv", "Honey\tfermentable\tgone\t\n");
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT NAME FROM GRAINS"), ElementsAre("Pale Malt"));
    EXPECT_THAT(Rows("SELECT NAME FROM GRAIN_TYPES"), ElementsAre("Base Malt"));
}

TEST_F(CatalogueUpdateTest, ASecondStartChangesNothingMore) {
    AgeTheDatabase();
    ChangeTheGuide();
    EXPECT_TRUE(Update());
    const std::int64_t changes = database_->ChangeCount();
    EXPECT_FALSE(Update());
    EXPECT_EQ(database_->ChangeCount(), changes);
}

TEST_F(CatalogueUpdateTest, RowsWhoseFiguresStayKeepTheirDates) {
    AgeTheDatabase();
    AddHop();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT DISTINCT MODIFIED_WHEN FROM STYLES"), ElementsAre("02/29/2024 13:05:07"));
}

TEST_F(CatalogueUpdateTest, BringsCodesAndOtherNamesAndReplacesThemAsAWhole) {
    AgeTheDatabase();
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT CODE FROM CATALOGUE_FACTS WHERE NAME = 'Pils'"), ElementsAre("5D"));
    EXPECT_THAT(Rows("SELECT NAME FROM CATALOGUE_ALIASES WHERE ALIAS = 'BG'"), ElementsAre("Brewer's Gold"));
    Edit("aliases.tsv", "BG\thop\tBrewer's Gold", "Wilding\thop\tWild Hop");
    Replace("version.txt", "3\n");
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT ALIAS, NAME FROM CATALOGUE_ALIASES WHERE SHEET = 'HOPS'"),
                ElementsAre("Wilding|Wild Hop"));
}

TEST_F(CatalogueUpdateTest, AMovedStyleIsCorrectedWhereItIs) {
    Sql("UPDATE STYLES SET FOLDER_ID = 0 WHERE NAME = 'Pils'");
    Edit("styles.tsv", "22\t40", "22\t45");
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT FOLDER_ID, IBU_HI FROM STYLES WHERE NAME = 'Pils'"), ElementsAre("0|45"));
}

TEST_F(CatalogueUpdateTest, ANewStyleGoesIntoTheRenamedFolder) {
    Sql("UPDATE FOLDERS SET NAME = 'Yellow' WHERE NAME = 'Pale Beer'");
    AddStyle();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT FOLDERS.NAME FROM STYLES, FOLDERS WHERE STYLES.FOLDER_ID = FOLDERS.ID AND "
                     "STYLES.NAME = 'Kellerbier'"),
                ElementsAre("Yellow"));
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS ORDER BY NAME"), ElementsAre("Other Beer", "Yellow"));
}

TEST_F(CatalogueUpdateTest, ANewStyleOfARemovedFolderGoesUnderTheRoot) {
    Sql("UPDATE STYLES SET FOLDER_ID = 0");
    Sql("DELETE FROM FOLDERS WHERE NAME = 'Pale Beer'");
    AddStyle();
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT FOLDER_ID FROM STYLES WHERE NAME = 'Kellerbier'"), ElementsAre("0"));
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS"), ElementsAre("Other Beer"));
}

TEST_F(CatalogueUpdateTest, ANewFolderComesWithItsStyle) {
    Append("styles.tsv", "Gose\t\t\tSour Beer\tLactic\t\t\t\t\t\t\t\t\t\t\t\t\t\tSalt.\n");
    EXPECT_TRUE(Update());
    EXPECT_THAT(
        Rows("SELECT FOLDERS.NAME, FOLDERS.CREATED_WHEN FROM STYLES, FOLDERS WHERE STYLES.FOLDER_ID = "
             "FOLDERS.ID AND STYLES.NAME = 'Gose'"),
        ElementsAre("Sour Beer|11/21/2026 08:00:00"));
}

TEST_F(CatalogueUpdateTest, AGrainThatChangesItsTypeBringsTheNewAndDropsTheEmptyOne) {
    Append("grain_types.tsv", "Honeys\textract\n");
    Edit("grains.tsv", "Honey\textract\tSugar", "Honey\textract\tHoneys");
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT NAME FROM GRAIN_TYPES WHERE NOT GRAIN"), ElementsAre("Honeys"));
    EXPECT_THAT(
        Rows("SELECT GRAIN_TYPES.NAME FROM GRAINS, GRAIN_TYPES WHERE GRAINS.GRAIN_TYPE = GRAIN_TYPES.ID "
             "AND GRAINS.NAME = 'Honey'"),
        ElementsAre("Honeys"));
}

TEST_F(CatalogueUpdateTest, AGrainPutUnderAnotherTypeIsChanged) {
    Sql("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Mine', TRUE)");
    Sql("UPDATE GRAINS SET GRAIN_TYPE = 3 WHERE NAME = 'Pale Malt'");
    Edit("grains.tsv", "1.8\t2\tA base.", "1.8\t2.5\tA base.");
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT COLOR_HI FROM GRAINS WHERE NAME = 'Pale Malt'"), ElementsAre("2"));
}

TEST_F(CatalogueUpdateTest, AnOlderVersionOfTheProductTakesNothingBack) {
    CorrectWildHop();
    Update();
    Edit("hops.tsv", "Mild.", "Old.");
    Replace("version.txt", "1\n");
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|Aroma|Mild.|3|5"));
}

TEST_F(CatalogueUpdateTest, OtherFilesOfTheSameVersionCountToo) {
    Replace("version.txt", "1\n");
    CorrectWildHop();
    EXPECT_TRUE(Update());
}

TEST_F(CatalogueUpdateTest, ADatabaseWithoutAMemoryOfDeliveriesStaysAsItIs) {
    database_->ExecuteNative("DROP TABLE CATALOGUE_BASE");
    Sql("DELETE FROM HOPS WHERE NAME = 'Wild Hop'");
    AddHop();
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT NAME FROM HOPS"), ElementsAre("Brewer's Gold"));
    EXPECT_THAT(Rows("SELECT ALIAS FROM CATALOGUE_ALIASES WHERE SHEET = 'HOPS'"), ElementsAre("BG"));
    // From then on, the database is updated like any other.
    Append("hops.tsv", "Later Hop\tAroma\t\t\t4\t6\t\t\n");
    Edit("hops.tsv", "Dark fruit.", "Blackcurrant.");
    EXPECT_TRUE(Update());
    EXPECT_THAT(Rows("SELECT NAME, DESCR FROM HOPS ORDER BY NAME"),
                ElementsAre("Brewer's Gold|Blackcurrant.", "Later Hop|"));
}

TEST_F(CatalogueUpdateTest, AFirstLookThatIsBrokenOffBringsNothingBackLater) {
    database_->ExecuteNative("DROP TABLE CATALOGUE_BASE");
    Sql("DELETE FROM HOPS WHERE NAME = 'Wild Hop'");
    int left = 1;
    database_->SetStatementHook([&](std::string_view sql) {
        if (!sql.starts_with("SELECT") && left-- == 0) throw Error("Disk", "Full", 1);
    });
    EXPECT_THROW(Update(), Error);
    database_->SetStatementHook({});
    EXPECT_FALSE(Update());
    EXPECT_THAT(WildHops(), IsEmpty());
}

// All changes at once, in a file of the first release.
class WholeUpdateTest : public CatalogueUpdateTest {
  protected:
    void SetUp() override {
        SmallCatalogue::SetUp();  // NOLINT(bugprone-parent-virtual-call): without its parent's
        Append("version.txt", "1\n");
        database_ = Database::CreateDatabase(First(), "");
        CreateSchema(*database_);
        ASSERT_THAT(Load(), IsEmpty());
        AgeTheDatabase();
        database_.reset();
        Replace("version.txt", "2\n");
        ChangeTheGuide();
        CorrectWildHop();
        AddHop();
        StartOver();
    }
    std::string First() const { return (folder_ / "first.mdb").string(); }
    std::string Path() const { return (folder_ / "Tunwright.mdb").string(); }
    void StartOver() {
        database_.reset();
        std::filesystem::copy_file(First(), Path(), std::filesystem::copy_options::overwrite_existing);
        Open();
    }
    void Open() {
        database_.reset();
        database_ = Database::OpenDatabase(Path(), true);
    }
    bool HasOtherNames() {
        return !Rows("SELECT name FROM sqlite_schema WHERE name = 'CATALOGUE_ALIASES'").empty();
    }
    // Returns what a brewer sees and what is stored about deliveries.
    std::vector<std::string> Whole() {
        std::vector<std::string> rows = Shown();
        for (std::string& row : Rows("SELECT SHEET, NAME, CONTENT FROM CATALOGUE_BASE ORDER BY SHEET, NAME"))
            rows.push_back(std::move(row));
        return rows;
    }
    std::vector<std::string> Shown() {
        std::vector<std::string> rows = StylesInFolders();
        std::vector<std::string> selects = {"SELECT NAME FROM FOLDERS ORDER BY NAME",
                                            "SELECT NAME, AA_LO, DESCR FROM HOPS ORDER BY NAME"};
        if (HasOtherNames()) selects.emplace_back("SELECT SHEET, ALIAS_KEY, NAME FROM CATALOGUE_ALIASES");
        for (const std::string& select : selects)
            for (std::string& row : Rows(select)) rows.push_back(std::move(row));
        return rows;
    }
};

TEST_F(WholeUpdateTest, ACrashInItsMiddleLeavesTheOldDatabaseWhole) {
    const std::vector<std::string> before = Whole();
    database_.reset();
    int statement = 0;
    for (bool died = true; died; ++statement) {
        StartOver();
        database_.reset();
        died = test::DiesIn([&] {
            Open();
            database_->ExecuteNative("PRAGMA cache_size=3");
            test::DieAt(*database_, statement);
            Update();
        });
        Open();
        if (died) {
            ASSERT_EQ(Whole(), before) << "killed before statement " << statement;
        }
    }
    EXPECT_GT(statement, 30);
    EXPECT_THAT(StylesInFolders(), ElementsAre("Helles|Mild Beer", "Pils|Bitter Beer"));
    EXPECT_TRUE(HasOtherNames());
}

TEST_F(WholeUpdateTest, GoesOnAfterAFailureWhereverThatIs) {
    Update();
    const std::vector<std::string> whole = Shown();
    bool failed = true;
    for (int statement = 0; failed; ++statement) {
        StartOver();
        int left = statement;
        database_->SetStatementHook([&](std::string_view) {
            if (left-- == 0) throw Error("Disk", "Full", 1);
        });
        failed = false;
        try {
            Update();
        } catch (const Error&) {
            failed = true;
        }
        database_->SetStatementHook({});
        Update();
        ASSERT_EQ(Shown(), whole) << "failed at statement " << statement;
    }
}

TEST_F(CatalogueUpdateTest, FaultyOrMissingFilesChangeNothing) {
    AddHop();
    Edit("hops.tsv", "New Hop\tAroma\t\t\t4", "New Hop\tAroma\t\t\t7");
    EXPECT_FALSE(Update());
    std::filesystem::remove(folder_ / "hops.tsv");
    EXPECT_FALSE(Update());
    EXPECT_THAT(Rows("SELECT NAME FROM HOPS ORDER BY NAME"), ElementsAre("Brewer's Gold", "Wild Hop"));
}

TEST_F(CatalogueUpdateTest, GoesOnAfterAFailureInTheMiddle) {
    CorrectWildHop();
    AddHop();
    int left = 1;
    database_->SetStatementHook([&](std::string_view sql) {
        if (!sql.starts_with("SELECT") && left-- == 0) throw Error("Disk", "Full", 1);
    });
    EXPECT_THROW(Update(), Error);
    database_->SetStatementHook({});
    EXPECT_TRUE(Update());
    EXPECT_THAT(WildHops(), ElementsAre("Wild Hop|Aroma|Mild.|3|5"));
    EXPECT_THAT(Rows("SELECT NAME FROM HOPS WHERE NAME = 'New Hop'"), ElementsAre("New Hop"));
    EXPECT_FALSE(Update());
}

}  // namespace
}  // namespace tw

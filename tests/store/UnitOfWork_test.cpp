// Tests of units of work: complete or undone after a crash, and with what was done so far after a failure.
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

#include "StoreSupport.h"
#include "store/RowNames.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

// Saves a recipe: deletes the old one and inserts the new one.
void Save(Database& database, const StoredRecipe& recipe) {
    UnitOfWork unit(database);
    const std::int64_t old = IdByName(database, "RECIPES", recipe.name);
    if (NameById(database, "RECIPES", old)) {
        database.Execute("DELETE FROM RECIPES WHERE ID = ?", {old});
        for (const std::string lines : {"RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
            database.Execute("DELETE FROM " + lines + " WHERE RECIPE_ID = ?", {old});
    }
    InsertRecipe(database, recipe);
    unit.Commit();
}

StoredRecipe NewRecipe() {
    StoredRecipe recipe = FullRecipe("Mild", 3);
    recipe[FieldId::Notes].text = std::string(20000, 'n');  // more pages than the old one
    return recipe;
}

class Crash : public testing::Test {
  protected:
    Crash() {
        MakeMainDatabase(path_);
        const auto db = OpenMainDatabase(path_);
        InsertRecipe(*db, FullRecipe("Mild"));
        InsertRecipe(*db, FullRecipe("Other"));
        old_ = Dump(*db);
    }
    const TemporaryFolder folder_;
    const std::string path_ = folder_.File("Tunwright.mdb");
    std::string old_;
};

TEST_F(Crash, LeavesTheOldRecipeWholeAtEveryStatement) {
    const std::string bytes = ReadFile(path_);
    int statement = 0;
    for (bool died = true; died; ++statement) {
        WriteFile(path_, bytes);
        died = DiesIn([&] {
            const auto db = OpenMainDatabase(path_);
            // A small cache, so that half-done pages reach the file before the end.
            db->ExecuteNative("PRAGMA cache_size=3");
            DieAt(*db, statement);
            Save(*db, NewRecipe());
        });
        const auto db = OpenMainDatabase(path_);
        if (died) {
            EXPECT_EQ(Dump(*db), old_) << "killed before statement " << statement;
        } else {
            EXPECT_EQ(Describe(*ReadRecipe(*db, "Mild")), Describe(NewRecipe()));
        }
    }
    // 2 look-ups, 5 DELETEs, INSERT, look-up, 3 UPDATEs and 7 times 3 lines, then the run that survives.
    EXPECT_EQ(statement, 33 + 1);
}

TEST_F(Crash, LeavesTheOldRecipeWholeBeforeTheUnitEnds) {
    const std::string bytes = ReadFile(path_);
    EXPECT_TRUE(DiesIn([&] {
        const auto db = OpenMainDatabase(path_);
        db->ExecuteNative("PRAGMA cache_size=3");
        const UnitOfWork unit(*db);
        Save(*db, NewRecipe());
        raise(SIGKILL);
    }));
    EXPECT_NE(ReadFile(path_), bytes) << "nothing was half-written";
    EXPECT_EQ(Dump(*OpenMainDatabase(path_)), old_);
}

TEST_F(Crash, KeepsTheNewRecipeOnceTheUnitHasEnded) {
    EXPECT_TRUE(DiesIn([&] {
        const auto db = OpenMainDatabase(path_);
        Save(*db, NewRecipe());
        raise(SIGKILL);
    }));
    EXPECT_EQ(Describe(*ReadRecipe(*OpenMainDatabase(path_), "Mild")), Describe(NewRecipe()));
}

// Returns the dump of a new database after these statements, each run on its own.
std::string DumpAfter(const std::vector<std::string>& statements) {
    const auto db = CreateMainDatabaseInMemory();
    InsertRecipe(*db, FullRecipe("Mild"));
    for (const std::string& sql : statements) db->Execute(sql);
    return Dump(*db);
}

TEST(Failure, LeavesWhatWasDoneBeforeEveryStatement) {
    int statement = 0;
    for (bool failed = true; failed; ++statement) {
        const auto db = CreateMainDatabaseInMemory();
        InsertRecipe(*db, FullRecipe("Mild"));
        std::vector<std::string> done;
        int count = 0;
        db->SetStatementHook([&](std::string_view sql) {
            if (count++ == statement) throw Error("Test", "the disk is on fire", 1);
            if (!sql.starts_with("SELECT")) done.emplace_back(sql);
        });
        failed = false;
        try {
            Save(*db, NewRecipe());
        } catch (const Error& error) {
            failed = true;
            EXPECT_EQ(error.Description(), "the disk is on fire");
        }
        db->SetStatementHook(nullptr);
        EXPECT_EQ(Dump(*db), DumpAfter(done)) << "failed at statement " << statement;
    }
    EXPECT_EQ(statement, 33 + 1);
}

TEST(Failure, OfOneStatementLeavesTheOthersOfItsUnit) {
    const auto db = CreateMainDatabaseInMemory();
    {
        UnitOfWork unit(*db);
        db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
        EXPECT_THROW(
            db->Execute("INSERT INTO RECIPES (NAME, CREATED_WHEN) VALUES ('A', NULL), ('B', 'no date')"),
            Error);
        db->Execute("INSERT INTO HOPS (NAME) VALUES ('Fuggle')");
        unit.Commit();
    }
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM HOPS"), "2");
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM RECIPES"), "0");
}

TEST(UnitOfWork, EndsWithItsScope) {
    const TemporaryFolder folder;
    MakeMainDatabase(folder.File("a.mdb"));
    {
        const auto db = OpenMainDatabase(folder.File("a.mdb"));
        const UnitOfWork unit(*db);
        db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    }
    EXPECT_EQ(Cell(*OpenMainDatabase(folder.File("a.mdb")), "SELECT NAME FROM HOPS"), "Cascade");
}

TEST(UnitOfWork, IsOneUnitWithThoseInside) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a.mdb");
    MakeMainDatabase(path);
    EXPECT_TRUE(DiesIn([&] {
        const auto db = OpenMainDatabase(path);
        const UnitOfWork outer(*db);
        {
            UnitOfWork inner(*db);
            db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
            inner.Commit();
        }
        raise(SIGKILL);
    }));
    EXPECT_EQ(Cell(*OpenMainDatabase(path), "SELECT COUNT(*) FROM HOPS"), "0");
}

TEST(UnitOfWork, AbandonedTakesBackWhatItHasWritten) {
    const auto db = CreateMainDatabaseInMemory();
    const std::string old = Dump(*db);
    {
        UnitOfWork unit(*db);
        db->Execute("INSERT INTO HOPS (NAME) VALUES ('Saaz')");
        unit.Abandon();
        // The unit has ended; what follows is not part of it.
        unit.Commit();
        unit.Abandon();
    }
    EXPECT_EQ(Dump(*db), old);
    UnitOfWork next(*db);
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Saaz')");
    next.Commit();
    EXPECT_NE(Dump(*db), old);
}

TEST(UnitOfWork, AbandonedWithinAnotherLeavesTheMatterToThatOne) {
    const auto db = CreateMainDatabaseInMemory();
    const std::string old = Dump(*db);
    UnitOfWork outer(*db);
    {
        UnitOfWork inner(*db);
        db->Execute("INSERT INTO HOPS (NAME) VALUES ('Saaz')");
        inner.Abandon();
    }
    EXPECT_NE(Dump(*db), old);
    outer.Abandon();
    EXPECT_EQ(Dump(*db), old);
}

TEST(UnitOfWork, RunsNothingMoreOnceTheDiskHasUndoneIt) {
    const auto db = CreateMainDatabaseInMemory();
    UnitOfWork unit(*db);
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    db->ExecuteNative("ROLLBACK");  // SQLite itself does so when the disk is full
    EXPECT_EQ(ErrorOf([&] { db->Execute("INSERT INTO HOPS (NAME) VALUES ('Fuggle')"); }).Description(),
              "The operation was undone by an earlier error.");
    EXPECT_EQ(ErrorOf([&] { unit.Commit(); }).Description(), "The operation was undone by an earlier error.");
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM HOPS"), "0");
}

TEST(UnitOfWork, TellsTheErrorThatUndidItWhateverIsTriedThen) {
    const TemporaryFolder folder;
    MakeMainDatabase(folder.File("a.mdb"));
    const auto db = OpenMainDatabase(folder.File("a.mdb"));
    // Simulates a full disk.
    db->ExecuteNative("PRAGMA max_page_count=1");
    const std::string full = "Database\r\ndatabase or disk is full (13)";
    {
        UnitOfWork unit(*db);
        const std::string insert =
            "INSERT INTO HOPS (NAME, DESCR) VALUES ('Saaz', '" + std::string(9000, 'x') + "')";
        EXPECT_EQ(ErrorOf([&] { db->Execute(insert); }).WithSource(), full);
        EXPECT_EQ(ErrorOf([&] { db->OpenRecordset("SELECT * FROM HOPS"); }).WithSource(), full);
        EXPECT_EQ(ErrorOf([&] { unit.Commit(); }).WithSource(), full);
    }
    // The error is forgotten at the end of its unit.
    UnitOfWork next(*db);
    db->ExecuteNative("ROLLBACK");
    EXPECT_EQ(ErrorOf([&] { next.Commit(); }).Description(), "The operation was undone by an earlier error.");
}

TEST(UnitOfWork, RunsWhatWaitsForItsEndHoweverItEnds) {
    const auto db = CreateMainDatabaseInMemory();
    std::string log;
    const auto wait = [&](const char* word) {
        db->AfterUnit([&log, &db, word] {
            log += word;
            log += Cell(*db, "SELECT COUNT(*) FROM HOPS");
        });
    };
    const std::string insert = "INSERT INTO HOPS (NAME) VALUES ('Saaz')";
    wait("none");
    EXPECT_EQ(log, "none0");
    {
        UnitOfWork outer(*db);
        {
            const UnitOfWork inner(*db);
            db->Execute(insert);
            wait(" commit");
        }
        EXPECT_EQ(log, "none0");
        outer.Commit();
    }
    EXPECT_EQ(log, "none0 commit1");
    {
        UnitOfWork unit(*db);
        db->Execute(insert);
        wait(" abandon");
        unit.Abandon();
    }
    {
        const UnitOfWork unit(*db);
        db->Execute(insert);
        wait(" undone");
        db->ExecuteNative("ROLLBACK");
    }
    EXPECT_EQ(log, "none0 commit1 abandon1 undone1");
}

TEST(UnitOfWork, LeavesTheOldStateWhenTheDiskRefuses) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a.mdb");
    MakeMainDatabase(path);
    const auto db = Database::OpenDatabase(path, false);
    const auto reader = Database::OpenDatabase(path, false);
    reader->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    {
        UnitOfWork unit(*db);
        db->Execute("DELETE FROM HOPS");
        const Recordset reading = reader->OpenRecordset("SELECT NAME FROM HOPS");
        EXPECT_EQ(ErrorOf([&] { unit.Commit(); }).WithSource(), "Database\r\ndatabase is locked (5)");
    }
    EXPECT_EQ(Cell(*db, "SELECT NAME FROM HOPS"), "Cascade");
    // The next unit starts normally.
    UnitOfWork(*db).Commit();
}

}  // namespace
}  // namespace tw::test

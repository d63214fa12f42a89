// Tests of opening and creating database files: what is refused, and that the file is then unchanged.
#include <array>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "StoreSupport.h"
#include "store/Schema.h"
#include "store/SqliteHandle.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

class Opening : public testing::Test {
  protected:
    // Opens the file as the main database and expects a refusal that changes no byte. Returns its
    // description without the path.
    std::string Refusal() {
        const std::string before = ReadFile(path_);
        const Error error = ErrorOf([&] { OpenMainDatabase(path_); });
        EXPECT_EQ(ReadFile(path_), before);
        EXPECT_FALSE(fs::exists(path_ + "-journal"));
        EXPECT_EQ(error.Source(), "Database");
        const std::string quoted = "'" + path_ + "' ";
        EXPECT_EQ(error.Description().substr(0, quoted.size()), quoted) << error.Description();
        return error.Description().substr(std::min(quoted.size(), error.Description().size()));
    }

    const TemporaryFolder folder_;
    const std::string path_ = folder_.File("Tunwright.mdb");
};

// A child process that keeps the file open until this object is destroyed.
class Holder {
  public:
    Holder(const std::string& path, bool exclusive) {
        std::array<int, 2> ready{};
        std::array<int, 2> release{};
        if (pipe(ready.data()) != 0 || pipe(release.data()) != 0) throw std::runtime_error("no pipe");
        child_ = fork();
        if (child_ == 0) {
            close(release[1]);
            Hold(path, exclusive, ready[1], release[0]);
        }
        close(ready[1]);
        close(release[0]);
        char byte = 0;
        if (read(ready[0], &byte, 1) != 1) throw std::runtime_error("the holder could not open the file");
        close(ready[0]);
        release_ = release[1];
    }
    ~Holder() {
        close(release_);
        int status = 0;
        waitpid(child_, &status, 0);
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

  private:
    [[noreturn]] static void Hold(const std::string& path, bool exclusive, int ready, int release) {
        try {
            const auto db = Database::OpenDatabase(path, exclusive);
            const UnitOfWork* const unit = exclusive ? nullptr : new UnitOfWork(*db);
            char byte = 'r';
            if (write(ready, &byte, 1) == 1) (void)!read(release, &byte, 1);
            delete unit;
        } catch (const Error&) {
            _exit(1);
        }
        _exit(0);
    }
    pid_t child_ = 0;
    int release_ = -1;
};

TEST_F(Opening, OpensAMainDatabaseWithoutChangingIt) {
    MakeMainDatabase(path_);
    const std::string before = ReadFile(path_);
    OpenMainDatabase(path_).reset();
    EXPECT_EQ(ReadFile(path_), before);
    EXPECT_FALSE(fs::exists(path_ + "-journal"));
}

TEST_F(Opening, LeavesNoJournalBehindAfterWriting) {
    MakeMainDatabase(path_);
    {
        const auto db = OpenMainDatabase(path_);
        db->Execute("INSERT INTO HOPS (NAME) VALUES ('Cascade')");
    }
    EXPECT_FALSE(fs::exists(path_ + "-journal"));
    EXPECT_EQ(Cell(*OpenMainDatabase(path_), "SELECT NAME FROM HOPS"), "Cascade");
}

TEST_F(Opening, RefusesAMissingFile) {
    const Error error = ErrorOf([&] { OpenMainDatabase(path_); });
    EXPECT_EQ(error.Description(), "Could not find file '" + path_ + "'.");
    EXPECT_FALSE(fs::exists(path_));
    EXPECT_EQ(ErrorOf([] { OpenMainDatabase(""); }).Description(), "Could not find file ''.");
    EXPECT_EQ(ErrorOf([] { OpenMainDatabase(":memory:"); }).Description(), "Could not find file ':memory:'.");
}

TEST_F(Opening, RefusesANameThatHoldsANul) {
    MakeMainDatabase(path_);
    const std::string name = path_ + '\0' + "x";
    EXPECT_EQ(ErrorOf([&] { OpenMainDatabase(name); }).Number(), SQLITE_CANTOPEN);
}

TEST_F(Opening, RefusesAFolder) {
    fs::create_directory(path_);
    EXPECT_EQ(ErrorOf([&] { OpenMainDatabase(path_); }).Description(), "'" + path_ + "' is a folder.");
}

TEST_F(Opening, RefusesAPipe) {
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { OpenMainDatabase(path_); }).Description(), "'" + path_ + "' is not a file.");
}

TEST_F(Opening, RefusesATextFile) {
    WriteFile(path_, "This is a letter to a friend.\n" + std::string(5000, 'x'));
    EXPECT_EQ(Refusal(), "is not a database.");
    WriteFile(path_, "short");
    EXPECT_EQ(Refusal(), "is not a database.");
}

TEST_F(Opening, RefusesAnEmptyFile) {
    WriteFile(path_, "");
    EXPECT_EQ(Refusal(), "is empty.");
}

// Removes the write permission of a file or folder during its lifetime. The program obeys it even when run by
// the administrator, who could write anyway.
class Protected {
  public:
    explicit Protected(fs::path path) : path_(std::move(path)), before_(fs::status(path_).permissions()) {
        fs::permissions(path_, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                        fs::perm_options::remove);
    }
    ~Protected() { fs::permissions(path_, before_); }
    Protected(const Protected&) = delete;
    Protected& operator=(const Protected&) = delete;

  private:
    fs::path path_;
    fs::perms before_;
};

// Expects that the database can be read and that nothing changes it.
void ExpectReadOnly(const std::string& path) {
    const std::string before = ReadFile(path);
    {
        const auto db = OpenMainDatabase(path);
        EXPECT_TRUE(db->ReadOnly());
        EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM HOPS"), "0");
        const Error refusal = ErrorOf([&] { db->Execute("INSERT INTO HOPS (NAME) VALUES ('Saaz')"); });
        EXPECT_EQ(refusal.WithNumber(), "The database is write-protected: nothing can be saved in it. (8)");
        EXPECT_EQ(ErrorOf([&] { UnitOfWork unit(*db); }).Number(), 8);
        EXPECT_EQ(ErrorOf([&] { db->ExecuteNative("DELETE FROM HOPS"); }).Number(), 8);
    }
    EXPECT_EQ(ReadFile(path), before);
}

TEST_F(Opening, OpensAWriteProtectedFileToBeRead) {
    MakeMainDatabase(path_);
    const Protected file(path_);
    ExpectReadOnly(path_);
    // A file that is only read may be write-protected, such as an exchange file on a disc.
    EXPECT_FALSE(Database::OpenDatabase(path_, false)->ReadOnly());
}

TEST_F(Opening, OpensAFileInAWriteProtectedFolderToBeRead) {
    MakeMainDatabase(path_);
    const fs::path link = folder_.File("elsewhere");
    fs::create_directory(link);
    fs::create_symlink(path_, link / "Link.mdb");
    {
        const Protected folder(fs::path(path_).parent_path());
        ExpectReadOnly(path_);
        // The folder of the file itself matters, not that of a link to it.
        ExpectReadOnly(link / "Link.mdb");
    }
    EXPECT_FALSE(OpenMainDatabase(path_)->ReadOnly());
}

// The system itself refuses writing; it would not refuse the administrator.
TEST_F(Opening, OpensTheFileOfAnotherUserToBeRead) {
    if (geteuid() != 0) GTEST_SKIP() << "only the administrator can become another user";
    MakeMainDatabase(path_);
    fs::permissions(fs::path(path_).parent_path(), fs::perms(0755));
    fs::permissions(path_, fs::perms(0644));
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t kNobody = 65534;
        bool readOnly = false;
        try {
            readOnly = setuid(kNobody) == 0 && OpenMainDatabase(path_)->ReadOnly();
        } catch (const Error&) {
            readOnly = false;
        }
        _exit(readOnly ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

// Leaves the database half-written, with the journal that restores it. If inHeader, the journal includes
// the page of the header.
void CrashIn(const std::string& path, bool inHeader = false) {
    ASSERT_TRUE(DiesIn([&] {
        const auto db = OpenMainDatabase(path);
        db->ExecuteNative("PRAGMA cache_size=3");
        const UnitOfWork unit(*db);
        if (inHeader) db->ExecuteNative("PRAGMA user_version=9");
        for (int i = 0; i < 50; ++i)
            db->Execute("INSERT INTO HOPS (NAME, DESCR) VALUES ('Saaz', '" + std::string(3000, 'x') + "')");
        raise(SIGKILL);
    }));
    ASSERT_TRUE(fs::exists(path + "-journal"));
}

TEST_F(Opening, SaysWhatAHalfWrittenFileNeedsThatCannotBeWritten) {
    MakeMainDatabase(path_);
    CrashIn(path_);
    for (const bool exclusive : {true, false}) {
        const Protected folder(fs::path(path_).parent_path());
        EXPECT_EQ(ErrorOf([&] { Database::OpenDatabase(path_, exclusive); }).Description(),
                  "'" + path_ +
                      "' was left half-written by a crash and must be put right first, but it cannot be "
                      "written. Allow writing to the file and to its folder, then start Tunwright again.");
    }
    EXPECT_EQ(Cell(*OpenMainDatabase(path_), "SELECT COUNT(*) FROM HOPS"), "0");
}

TEST_F(Opening, RefusesAFileWithSeveralNames) {
    MakeMainDatabase(path_);
    const std::string other = folder_.File("Other.mdb");
    fs::create_hard_link(path_, other);
    EXPECT_EQ(Refusal(),
              "has several names (hard links). After a crash under one of them, another would open a damaged "
              "database. Delete the other names, or make a copy of the file and use that.");
    // An exchange file may have any number of names.
    EXPECT_NO_THROW(Database::OpenDatabase(path_, false));
    fs::remove(other);
    EXPECT_NO_THROW(OpenMainDatabase(path_));
}

class OtherName : public Opening, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(Crash, OtherName, testing::Bool());

TEST_P(OtherName, IsToldWhenACrashHasLeftItHalfWritten) {
    const std::string other = folder_.File("Before.mdb");
    MakeMainDatabase(other);
    CrashIn(other, GetParam());
    fs::rename(other, path_);
    const Error error = ErrorOf([&] { OpenMainDatabase(path_); });
    EXPECT_EQ(error.Description(),
              "'" + path_ + "' may have been left half-written by a crash while it was called '" + other +
                  "': '" + other +
                  "-journal' is still there. Give the database that name again and start Tunwright with it. "
                  "If it never had that name, move 'Before.mdb-journal' to another folder.");
    // Follows the advice of the message.
    fs::rename(path_, other);
    EXPECT_EQ(Cell(*OpenMainDatabase(other), "SELECT COUNT(*) FROM HOPS"), "0");
}

TEST_P(OtherName, IsNotTakenFromTheJournalsOfOthers) {
    MakeMainDatabase(path_);
    const std::string other = folder_.File("Other.mdb");
    MakeMainDatabase(other);
    // The other database is larger than this one, so none of its journals can restore this one.
    OpenMainDatabase(other)->Execute("INSERT INTO HOPS (DESCR) VALUES ('" + std::string(9000, 'x') + "')");
    CrashIn(other, GetParam());
    EXPECT_NO_THROW(OpenMainDatabase(path_)) << "its own database is there";
    fs::rename(other, folder_.File("Moved.mdb"));
    EXPECT_NO_THROW(OpenMainDatabase(path_)) << "another state";
    const std::string journal = ReadFile(other + "-journal");
    EXPECT_EQ(ErrorOf([&] { OpenMainDatabase(folder_.File("Moved.mdb")); }).Number(), SQLITE_CANTOPEN);
    WriteFile(other + "-journal", "no journal");
    EXPECT_NO_THROW(OpenMainDatabase(path_)) << "no journal at all";
    WriteFile(other + "-journal", std::string(journal.size(), '\0') + journal);
    EXPECT_NO_THROW(OpenMainDatabase(path_)) << "a journal that was put out of use";
    WriteFile(other + "-journal", journal.substr(0, 28));
    EXPECT_NO_THROW(OpenMainDatabase(path_)) << "a journal without a page";
}

TEST_F(Opening, RefusesATruncatedFile) {
    MakeMainDatabase(path_);
    const std::string whole = ReadFile(path_);
    const std::size_t page = 4096;
    for (const std::size_t length : {std::size_t{16}, std::size_t{99}}) {
        WriteFile(path_, whole.substr(0, length));
        EXPECT_EQ(Refusal(), "is cut short.") << length;
    }
    // Cut inside the first page, after some pages, inside the last page, and one byte short; SQLite itself
    // notices some of these.
    for (const std::size_t length : {std::size_t{100}, std::size_t{1000}, page, 3 * page, whole.size() - page,
                                     whole.size() - page / 2, whole.size() - 1}) {
        WriteFile(path_, whole.substr(0, length));
        const std::string refusal = Refusal();
        EXPECT_TRUE(refusal == "is cut short." || refusal.starts_with("is damaged: ") ||
                    refusal == "is not a database.")
            << length << ": " << refusal;
    }
    WriteFile(path_, whole);
    EXPECT_NO_THROW(OpenMainDatabase(path_));
}

TEST_F(Opening, RefusesGarbageBehindTheMagic) {
    std::string garbage(20000, '\0');
    unsigned state = 12345;
    for (char& c : garbage) {
        state = state * 1103515245U + 12345U;
        c = static_cast<char>(state >> 16U);
    }
    garbage.replace(0, 16, std::string("SQLite format 3\0", 16));
    WriteFile(path_, garbage);
    const std::string refusal = Refusal();
    EXPECT_TRUE(refusal.starts_with("is damaged: ") || refusal == "is not a database.") << refusal;
}

TEST_F(Opening, RefusesADamagedSchema) {
    MakeMainDatabase(path_);
    std::string bytes = ReadFile(path_);
    bytes.replace(100, 900, std::string(900, '\x7f'));
    WriteFile(path_, bytes);
    EXPECT_TRUE(Refusal().starts_with("is damaged: "));
}

TEST_F(Opening, RefusesADatabaseOfAnotherSchema) {
    Database::CreateDatabase(path_, "")->ExecuteNative("CREATE TABLE LETTERS (A TEXT)");
    EXPECT_EQ(Refusal(), "is no Tunwright database: it has no table FOLDERS.");
}

TEST_F(Opening, RefusesAFileThatAnotherProcessHolds) {
    MakeMainDatabase(path_);
    {
        const Holder holder(path_, true);
        EXPECT_EQ(Refusal(), "is in use by another program.");
        EXPECT_EQ(ErrorOf([&] { Database::OpenDatabase(path_, false); }).Number(), SQLITE_BUSY);
    }
    EXPECT_NO_THROW(OpenMainDatabase(path_));
}

TEST_F(Opening, RefusesAFileThatAnotherProcessIsWriting) {
    MakeMainDatabase(path_);
    const Holder holder(path_, false);
    EXPECT_EQ(Refusal(), "is in use by another program.");
}

TEST_F(Opening, RefusesASecondOpeningInTheSameProcessAndKeepsTheLock) {
    MakeMainDatabase(path_);
    const auto db = OpenMainDatabase(path_);
    EXPECT_EQ(Refusal(), "is in use by another program.");
    // The refused opening has not released the lock.
    EXPECT_THROW(Holder(path_, true), std::runtime_error);
}

TEST_F(Opening, MakesAnEmptyDatabase) {
    const std::string path = folder_.File("new.TWR");
    Database::CreateDatabase(path, ";LANGID=0x0409;CP=1252;COUNTRY=0").reset();
    const auto db = Database::OpenDatabase(path, false);
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM sqlite_schema"), "0");
    EXPECT_EQ(db->Path(), path);
}

TEST_F(Opening, MakesNoDatabaseOverAFile) {
    WriteFile(path_, "a letter");
    EXPECT_EQ(ErrorOf([&] { Database::CreateDatabase(path_, ""); }).Description(),
              "'" + path_ + "' exists already.");
    EXPECT_EQ(ReadFile(path_), "a letter");
}

TEST_F(Opening, MakesNoDatabaseInAMissingFolder) {
    const std::string path = folder_.File("missing/new.TWR");
    EXPECT_EQ(ErrorOf([&] { Database::CreateDatabase(path, ""); }).Number(), SQLITE_CANTOPEN);
}

TEST_F(Opening, TakesOddFileNamesAsTheyAre) {
    for (const std::string name : {"file:a.mdb?mode=memory", ":memory:", "a b%20.mdb", "Bräu.mdb"}) {
        MakeMainDatabase(folder_.File(name));
        EXPECT_TRUE(fs::is_regular_file(folder_.File(name))) << name;
        EXPECT_NO_THROW(OpenMainDatabase(folder_.File(name))) << name;
    }
}

}  // namespace
}  // namespace tw::test

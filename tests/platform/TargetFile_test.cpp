#include "platform/TargetFile.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Descriptor.h"
#include "support/FilesTest.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

class TargetFileTest : public FilesTest {
  protected:
    TargetFileTest() : oldMask(umask(022)) {}
    ~TargetFileTest() override { umask(oldMask); }

    TargetFile Target(const std::string& name) const { return {File(name), own}; }
    // Writes the file and returns the error; empty if there was none.
    std::string Failure(const std::string& name) const {
        try {
            Target(name).Replace("new");
            return {};
        } catch (const Error& error) {
            return error.Description();
        }
    }
    std::string Message(const std::string& name, const std::string& what) const {
        return "'" + File(name) + "' " + what;
    }
    // Returns the name of the file that a killed program leaves for a.txt.
    std::string Leftover() const { return ".a.txt" + std::string(kUnderWay); }

    OwnFiles own;
    mode_t oldMask;
};

TEST_F(TargetFileTest, MakesReplacesAndAppends) {
    Target("a.txt").Replace("one");
    EXPECT_EQ(Content("a.txt"), "one");
    Target("a.txt").Append(", two");
    EXPECT_EQ(Content("a.txt"), "one, two");
    Target("a.txt").Replace("three");
    EXPECT_EQ(Content("a.txt"), "three");
    Target("b.txt").Append("first");
    EXPECT_EQ(Content("b.txt"), "first");
    Target("b.txt").Replace("");
    EXPECT_EQ(Content("b.txt"), "");
    EXPECT_EQ(Files(), 2);
}

TEST_F(TargetFileTest, AppendsToMoreThanOneBuffer) {
    const std::string much(200'000, 'x');
    Put("a.txt", much);
    Target("a.txt").Append("y");
    EXPECT_EQ(Content("a.txt"), much + "y");
}

TEST_F(TargetFileTest, ANewFileFollowsTheUmaskAndAPrivateOneDoesNot) {
    Target("a.txt").Replace("x");
    EXPECT_EQ(Mode("a.txt"), 0644u);
    umask(0);
    Target("b.txt").Replace("x");
    EXPECT_EQ(Mode("b.txt"), 0666u);
    TargetFile(File("c.txt"), own, TargetFile::Readers::OwnerAlone).Replace("x");
    EXPECT_EQ(Mode("c.txt"), 0600u);
}

TEST_F(TargetFileTest, AnOlderFileKeepsItsMode) {
    for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
        Put("a.txt", "old");
        ASSERT_EQ(chmod(File("a.txt").c_str(), mode), 0);
        Target("a.txt").Replace("new");
        EXPECT_EQ(Mode("a.txt"), mode);
        Target("a.txt").Append("er");
        EXPECT_EQ(Mode("a.txt"), mode);
        EXPECT_EQ(Content("a.txt"), "newer");
    }
}

TEST_F(TargetFileTest, ALinkStaysALink) {
    fs::create_directory(File("sub"));
    Put("sub/real.txt", "old");
    fs::create_symlink("sub/real.txt", File("a.txt"));
    fs::create_symlink("a.txt", File("b.txt"));
    Target("b.txt").Replace("new");
    EXPECT_TRUE(fs::is_symlink(File("a.txt")));
    EXPECT_TRUE(fs::is_symlink(File("b.txt")));
    EXPECT_EQ(Content("sub/real.txt"), "new");
    // Even one whose file is missing.
    fs::remove(File("sub/real.txt"));
    Target("b.txt").Replace("again");
    EXPECT_TRUE(fs::is_symlink(File("a.txt")));
    EXPECT_EQ(Content("sub/real.txt"), "again");
}

TEST_F(TargetFileTest, WhatIsNoFileIsRefused) {
    fs::create_directory(File("sub"));
    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    fs::create_symlink("/dev/full", File("device"));
    EXPECT_EQ(Failure("sub"), Message("sub", "is a folder."));
    EXPECT_EQ(Failure("new/"), Message("new/", "is a folder."));
    EXPECT_EQ(Failure("pipe"), Message("pipe", "is not a file."));
    EXPECT_EQ(Failure("device"), Message("device", "is not a file."));
    EXPECT_THROW(TargetFile("", own), Error);
    EXPECT_THROW(TargetFile(std::string("a\0b", 3), own), Error);
    EXPECT_EQ(Files(), 3);
}

TEST_F(TargetFileTest, AMissingFolderIsToldWithTheReason) {
    EXPECT_EQ(Failure("none/a.txt"), Message("none/a.txt", "cannot be written: No such file or directory."));
    Put("file", "x");
    EXPECT_EQ(Failure("file/a.txt"), Message("file/a.txt", "cannot be written: Not a directory."));
}

TEST_F(TargetFileTest, AWriteProtectedFileIsRefused) {
    Put("a.txt", "old");
    ASSERT_EQ(chmod(File("a.txt").c_str(), 0444), 0);
    EXPECT_EQ(Failure("a.txt"), Message("a.txt", "is write-protected."));
    EXPECT_EQ(Content("a.txt"), "old");
}

TEST_F(TargetFileTest, AFileOfTheProgramsOwnIsRefused) {
    Put("beer.mdb", "recipes");
    own.AddDatabase(File("beer.mdb"));
    EXPECT_EQ(Failure("beer.mdb"), Message("beer.mdb", "is the database of the recipes themselves."));
    EXPECT_EQ(Content("beer.mdb"), "recipes");
}

TEST_F(TargetFileTest, AFullDiskLeavesTheOlderFileAndNothingBeside) {
    Put("a.txt", "old");
    // A limit on the size of files simulates a full disk. Its signal would end the test.
    const auto before = signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit tight{100, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    std::string text;
    try {
        Target("a.txt").Replace(std::string(1000, 'x'));
    } catch (const Error& error) {
        text = error.Description();
        EXPECT_EQ(error.Number(), EFBIG);
    }
    setrlimit(RLIMIT_FSIZE, &old);
    signal(SIGXFSZ, before);
    EXPECT_EQ(text, Message("a.txt", "cannot be written: File too large."));
    EXPECT_EQ(Content("a.txt"), "old");
    EXPECT_EQ(Files(), 1);
}

TEST_F(TargetFileTest, WhatAKilledProgramHasLeftIsWrittenOver) {
    Put("a.txt", "old");
    Put(Leftover(), "half a fil");
    Target("a.txt").Replace("new");
    EXPECT_EQ(Content("a.txt"), "new");
    EXPECT_EQ(Files(), 1);
}

TEST_F(TargetFileTest, AFileThatAnotherProgramIsWritingIsLeftToIt) {
    Put("a.txt", "old");
    Put(Leftover(), "half a fil");
    const Descriptor other(open(File(Leftover()).c_str(), O_WRONLY));
    ASSERT_EQ(flock(other.Number(), LOCK_EX), 0);
    EXPECT_EQ(Failure("a.txt"), Message("a.txt", "cannot be written: Device or resource busy."));
    EXPECT_EQ(Content("a.txt"), "old");
    EXPECT_EQ(Content(Leftover()), "half a fil");
}

TEST_F(TargetFileTest, WhatStandsInTheWayAndIsNoLeftoverIsNotTouched) {
    Put("precious.txt", "x");
    fs::create_symlink(File("precious.txt"), File(Leftover()));
    EXPECT_NE(Failure("a.txt"), "");
    EXPECT_EQ(Content("precious.txt"), "x");
    fs::remove(File(Leftover()));
    ASSERT_EQ(mkfifo(File(Leftover()).c_str(), 0600), 0);
    EXPECT_NE(Failure("a.txt"), "");
    EXPECT_TRUE(fs::is_fifo(File(Leftover())));
}

TEST_F(TargetFileTest, TheLongestNameCanBeWritten) {
    const std::string name(255, 'n');
    Target(name).Replace("x");
    EXPECT_EQ(Content(name), "x");
    Target(name).Append("y");
    EXPECT_EQ(Content(name), "xy");
    EXPECT_EQ(Files(), 1);
}

}  // namespace
}  // namespace tw::test

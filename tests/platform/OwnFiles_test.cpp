#include "platform/OwnFiles.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/SettingsFile.h"
#include "support/FilesTest.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

class OwnFilesTest : public FilesTest {
  protected:
    // Returns the error for that name; empty if it may be written.
    std::string Refusal(const std::string& path) const {
        try {
            own.Check(path);
            return {};
        } catch (const OwnFileError& error) {
            return error.Description();
        }
    }
    OwnFiles own;
};

TEST_F(OwnFilesTest, TheDatabaseIsKnownByEveryPathToIt) {
    Put("beer.mdb", "recipes");
    fs::create_directory(File("sub"));
    fs::create_symlink(File("beer.mdb"), File("link.txt"));
    fs::create_symlink(folder, File("folder-link"));
    fs::create_hard_link(File("beer.mdb"), File("hard.txt"));
    own.AddDatabase(File("beer.mdb"));
    for (const char* name :
         {"beer.mdb", "sub/../beer.mdb", "link.txt", "folder-link/beer.mdb", "hard.txt", "./beer.mdb"})
        EXPECT_EQ(Refusal(File(name)), "'" + File(name) + "' is the database of the recipes themselves.");
    EXPECT_EQ(Refusal(File("beer.txt")), "");
    EXPECT_EQ(Refusal(File("beer.mdb2")), "");
}

TEST_F(OwnFilesTest, ADatabaseThatWasOpenedThroughALinkIsKnownByItsOwnName) {
    Put("beer.mdb", "recipes");
    fs::create_symlink(File("beer.mdb"), File("link.mdb"));
    own.AddDatabase(File("link.mdb"));
    EXPECT_NE(Refusal(File("beer.mdb")), "");
    EXPECT_NE(Refusal(File("link.mdb")), "");
    EXPECT_NE(Refusal(File("beer.mdb-journal")), "");
    EXPECT_NE(Refusal(File("link.mdb-journal")), "");
}

TEST_F(OwnFilesTest, WhatTheStoreKeepsBesideTheDatabaseCountsBeforeItIsThere) {
    Put("beer.mdb", "recipes");
    own.AddDatabase(File("beer.mdb"));
    for (const char* name : {"beer.mdb-journal", "beer.mdb-wal", "beer.mdb-shm"})
        EXPECT_EQ(Refusal(File(name)), "'" + File(name) + "' belongs to the database of the recipes.");
}

TEST_F(OwnFilesTest, EverythingBelowAFolderCounts) {
    own.AddFolder(File("unsaved"), "is kept for unsaved recipes");
    EXPECT_EQ(Refusal(File("unsaved/ab/1.unsaved")),
              "'" + File("unsaved/ab/1.unsaved") + "' is kept for unsaved recipes.");
    EXPECT_EQ(Refusal(File("unsaved.txt")), "");
    fs::create_directory(File("unsaved"));
    fs::create_symlink(File("unsaved"), File("link"));
    EXPECT_NE(Refusal(File("link/1.unsaved")), "");
}

TEST_F(OwnFilesTest, AFileInUseCountsForTheTimeOfAScope) {
    Put("ales.TWR", "x");
    {
        const FileInUse reading(own, File("ales.TWR"), "is being imported");
        EXPECT_EQ(Refusal(File("ales.TWR")), "'" + File("ales.TWR") + "' is being imported.");
    }
    EXPECT_EQ(Refusal(File("ales.TWR")), "");
}

TEST_F(OwnFilesTest, ARingOfLinksHasAnEnd) {
    fs::create_symlink(File("b"), File("a"));
    fs::create_symlink(File("a"), File("b"));
    own.AddDatabase(File("beer.mdb"));
    EXPECT_EQ(Refusal(File("a")), "");
}

TEST_F(OwnFilesTest, TheAdviceSaysWhatToDoForThese) {
    EXPECT_EQ(FileAdvice(OwnFileError("x", "is the file of the settings")),
              "'x' is the file of the settings. Please choose another name.");
    EXPECT_EQ(FileAdvice(Error("TargetFile", "'x' is a folder.", 21)), "'x' is a folder.");
}

class SettingsFileTest : public FilesTest {
  protected:
    std::string Refusal(const char* settings) const {
        try {
            CheckSettingsFile(File(settings), File("beer.mdb"));
            return {};
        } catch (const Error& error) {
            return error.Description();
        }
    }
    std::string Refused(const char* name, const std::string& what) const {
        return "'" + File(name) + "' " + what + ". Please choose another file for the settings.";
    }
};

TEST_F(SettingsFileTest, AFileOfSettingsOrNoneIsFine) {
    EXPECT_EQ(Refusal("kept.ini"), "");
    Put("kept.ini", "[Settings]\nBoilVol=5\n");
    EXPECT_EQ(Refusal("kept.ini"), "");
    Put("kept.ini", "");
    EXPECT_EQ(Refusal("kept.ini"), "");
}

TEST_F(SettingsFileTest, ADatabaseIsRefused) {
    const std::string database("SQLite format 3\0...", 19);
    Put("beer.mdb", "");
    Put("other.mdb", database);
    fs::create_symlink(File("beer.mdb"), File("link.ini"));
    const std::string itself = "is the database of the recipes themselves";
    EXPECT_EQ(Refusal("beer.mdb"), Refused("beer.mdb", itself));
    EXPECT_EQ(Refusal("link.ini"), Refused("link.ini", itself));
    EXPECT_EQ(Refusal("beer.mdb-journal"),
              Refused("beer.mdb-journal", "belongs to the database of the recipes"));
    EXPECT_EQ(Refusal("other.mdb"), Refused("other.mdb", "is a database"));
}

TEST_F(SettingsFileTest, WhatIsNoFileIsRefused) {
    fs::create_directory(File("folder"));
    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    EXPECT_EQ(Refusal("folder"), Refused("folder", "is a folder"));
    EXPECT_EQ(Refusal("pipe"), Refused("pipe", "is not a file"));
}

}  // namespace
}  // namespace tw::test

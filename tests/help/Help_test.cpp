// Tests of which page is shown, in which file, and of the messages if it cannot be shown.
#include "help/Help.h"

#include <fstream>
#include <gtest/gtest.h>

#include "help/SystemTextFiles.h"
#include "support/RecordingHelp.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

class HelpTest : public testing::Test {
  protected:
    void SetUp() override {
        MakeHelpDatabase(folder.Path(),
                         "INSERT INTO CONTEXT_HELP VALUES ('frmMain', '?', 'window.html'),"
                         " ('frmDocument', 'Tab2', 'malts.html'), ('frmColor', '?', 'home.html');");
        files.files[Base() + "index_template.dat"] = "<a>$START_PAGE</a> and $START_PAGE";
    }
    std::string Base() const { return folder.Path().string() + "/"; }
    std::string Index() const { return Base() + "OnlineHelp/index.html"; }
    std::string TempIndex() const { return Base() + "OnlineHelp/temp_index.html"; }

    TemporaryFolder folder;
    MessageRecorder messages;
    RecordingBrowser browser;
    MemoryFiles files;
    Help help{folder.Path().string(), messages, browser, files};
};

TEST_F(HelpTest, APageIsShownInAFrameThatStartsWithIt) {
    help.ShowHelpPage("hops.html");
    EXPECT_EQ(browser.opened, Strings{TempIndex()});
    EXPECT_EQ(files.files[TempIndex()], "<a>hops.html</a> and hops.html");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HelpTest, TheHomePageIsTheIndexItselfInAnyCaseAndNothingIsWritten) {
    for (const char* page : {"", "   ", "home.html", "HOME.HTML", " Home.html "}) {
        browser.opened.clear();
        help.ShowHelpPage(page);
        EXPECT_EQ(browser.opened, Strings{Index()}) << "'" << page << "'";
    }
    EXPECT_FALSE(files.files.contains(TempIndex()));
}

TEST_F(HelpTest, AContextShowsItsPage) {
    help.ShowContextHelp("frmDocument", "Tab2");
    EXPECT_EQ(files.files[TempIndex()], "<a>malts.html</a> and malts.html");
    help.ShowContextHelp("frmColor", "?");
    EXPECT_EQ(browser.opened, (Strings{TempIndex(), Index()}));
}

TEST_F(HelpTest, AnEmptyFormShowsTheHomePageWithoutADatabase) {
    std::filesystem::remove(folder.Path() / "help.mdb");
    help.ShowContextHelp("", "Tab2");
    EXPECT_EQ(browser.opened, Strings{Index()});
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HelpTest, AContextWithoutARowIsToldAndOpensNothing) {
    help.ShowContextHelp("frmDocument", "Tab9");
    EXPECT_EQ(messages.log, Strings{"[Error Loading Help Topic] Error: Topic Not Found"});
    EXPECT_EQ(browser.opened, Strings{});
}

// The context is put into the query unescaped.
TEST_F(HelpTest, AnApostropheIsNotDoubled) {
    EXPECT_THROW(help.ShowContextHelp("frmMain", "it's"), Error);
    EXPECT_THROW(help.ShowContextHelp("frm'", "?"), Error);
    EXPECT_EQ(browser.opened, Strings{});
}

TEST_F(HelpTest, AMissingOrBrokenDatabaseIsAnErrorOfTheStore) {
    std::ofstream(folder.Path() / "help.mdb", std::ios::trunc) << "no database";
    EXPECT_THROW(help.ShowContextHelp("frmMain", "?"), Error);
    std::filesystem::remove(folder.Path() / "help.mdb");
    try {
        help.ShowContextHelp("frmMain", "?");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.Description(), "Could not find file '" + Base() + "help.mdb'.");
    }
    EXPECT_EQ(browser.opened, Strings{});
}

TEST_F(HelpTest, AnOpenHelpDatabaseDoesNotKeepOthersOut) {
    const auto reader = Database::OpenDatabase(help.DatabasePath(), false);
    const Recordset rows = reader->OpenRecordset("SELECT * FROM CONTEXT_HELP");
    help.ShowContextHelp("frmMain", "?");
    EXPECT_EQ(browser.opened, Strings{TempIndex()});
}

TEST_F(HelpTest, AWriteProtectedDatabaseIsRead) {
    std::filesystem::permissions(folder.Path() / "help.mdb", std::filesystem::perms::owner_read);
    help.ShowContextHelp("frmMain", "?");
    EXPECT_EQ(browser.opened, Strings{TempIndex()});
}

TEST_F(HelpTest, AMissingTemplateAndAFolderThatTakesNoFileAreTold) {
    files.writable = false;
    help.ShowHelpPage("hops.html");
    EXPECT_EQ(messages.TakeLog(),
              Strings{"[Error Showing Help] Error Browsing to Help Page: no way to write " + TempIndex()});
    files.files.clear();
    help.ShowHelpPage("hops.html");
    EXPECT_EQ(messages.TakeLog(), Strings{"[Error Showing Help] Error Browsing to Help Page: no file " +
                                          Base() + "index_template.dat"});
    EXPECT_FALSE(help.WriteHelpIndex(TempIndex(), "x", Base() + "index_template.dat"));
    EXPECT_EQ(browser.opened, Strings{});
}

TEST_F(HelpTest, APageNamedAsTheTokenIsPutInOnce) {
    EXPECT_TRUE(help.WriteHelpIndex("target", "$START_PAGE", Base() + "index_template.dat"));
    EXPECT_EQ(files.files["target"], "<a>$START_PAGE</a> and $START_PAGE");
}

TEST_F(HelpTest, EveryCodeBelow33HasItsReason) {
    const std::map<int, std::string> reasons = {
        {-1, "Unknown Error"},
        {0, "Out of Memory"},
        {1, "Unknown Error"},
        {2, "File or Path Not Found"},
        {3, "File or Path Not Found"},
        {4, "Unknown Error"},
        {5, "Access Denied"},
        {8, "Out of Memory"},
        {11, "The .EXE File is Invalid"},
        {25, "Unknown Error"},
        {26, "A Sharing Violation Occurred"},
        {27, "No Program is Associated with this File Extension"},
        {28, "The DDE Operation Failed"},
        {29, "The DDE Operation Failed"},
        {30, "The DDE Operation Failed"},
        {31, "No Program is Associated with this File Extension"},
        {32, "DLL Not Found"},
    };
    for (const auto& [code, reason] : reasons) {
        browser.code = code;
        help.ShowHelpPage("");
        EXPECT_EQ(messages.TakeLog(),
                  Strings{"[Error Showing Help] An error occurred opening the help document " + Index() +
                          "\r\n" + reason})
            << code;
    }
    for (const int code : {33, 42}) {
        browser.code = code;
        help.ShowHelpPage("");
        EXPECT_EQ(messages.log, Strings{}) << code;
    }
}

TEST_F(HelpTest, ASeparatorAtTheFoldersEndIsNotDoubled) {
    Help withSeparator(Base(), messages, browser, files);
    withSeparator.ShowHelpPage("");
    EXPECT_EQ(browser.opened, Strings{Index()});
    EXPECT_EQ(withSeparator.DatabasePath(), help.DatabasePath());
}

TEST(SystemTextFilesTest, GiveBackWhatWasWrittenByteForByte) {
    const TemporaryFolder folder;
    const std::string file = (folder.Path() / "a.txt").string();
    const OwnFiles own;
    SystemTextFiles files(own);
    const std::string text("a\r\nb\0\xff\n", 7);
    files.Write(file, "much longer than what comes");
    files.Write(file, text);
    EXPECT_EQ(files.Read(file), text);
    files.Write(file, "");
    EXPECT_EQ(files.Read(file), "");
}

TEST(SystemTextFilesTest, NameTheFileThatCannotBeUsed) {
    const TemporaryFolder folder;
    const OwnFiles own;
    SystemTextFiles files(own);
    const auto description = [](const auto& operation) {
        try {
            operation();
        } catch (const Error& error) {
            return error.Description();
        }
        return std::string("no error");
    };
    const std::string missing = (folder.Path() / "none" / "a.txt").string(), path = folder.Path().string();
    EXPECT_EQ(description([&] { files.Read(missing); }),
              "'" + missing + "' cannot be read: No such file or directory.");
    EXPECT_EQ(description([&] { files.Write(missing, "x"); }),
              "'" + missing + "' cannot be written: No such file or directory.");
    EXPECT_EQ(description([&] { files.Read(path); }), "'" + path + "' cannot be read: Is a directory.");
}

}  // namespace
}  // namespace tw::test

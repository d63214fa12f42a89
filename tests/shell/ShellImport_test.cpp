#include <fstream>

#include "shell/ShellTest.h"

namespace tw::test {
namespace {

class ShellImportTest : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        std::ofstream(file) << "a text, no recipes";
    }

    // The message for a file that is not a database, which shows that the file was accepted.
    static std::string Taken(const std::string& path) {
        return "[Error] File not recognized.\r\n\"" + path + "\" is not valid Tunwright Recipe file";
    }
    static std::string Missing(const std::string& path) {
        return "[Invalid Import File] An error occurred trying to import a file:\r\n  " + path +
               "\r\nThis file could not be found.";
    }

    const ScratchFolder folder;
    const std::string file = folder.File("Old Ale.twr");
};

TEST_F(ShellImportTest, ImportsAFileWithAndWithoutQuotes) {
    for (const std::string& path : {file, "\"" + file + "\"", "\"" + file}) {
        shell.Opened()->files.ImportFromPath(path);
        EXPECT_EQ(outside.messages.TakeLog(), Strings{Taken(file)}) << path;
    }
}

TEST_F(ShellImportTest, AQuoteInTheNameOfAFileIsPartOfIt) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.File(""));
    std::ofstream("\"quoted\"") << "x";
    shell.Opened()->files.ImportFromPath("\"quoted\"");
    std::filesystem::current_path(before);
    EXPECT_EQ(outside.messages.log, Strings{Taken("\"quoted\"")});
}

TEST_F(ShellImportTest, AMissingFileIsReportedOnlyIfItStoodInQuotes) {
    shell.Opened()->files.ImportFromPath("/no/Such.twr");
    shell.Opened()->files.ImportFromPath("");
    EXPECT_EQ(outside.messages.log, Strings{});
    shell.Opened()->files.ImportFromPath("\"/no/Such.twr\"");
    EXPECT_EQ(outside.messages.TakeLog(), Strings{Missing("/no/Such.twr")});
    shell.Opened()->files.ImportFromPath("\"");
    EXPECT_EQ(outside.messages.TakeLog(), Strings{Missing("")});
}

TEST_F(ShellImportTest, AFolderIsNoFile) {
    shell.Opened()->files.ImportFromPath(folder.File(""));
    EXPECT_EQ(outside.messages.log, Strings{});
}

}  // namespace
}  // namespace tw::test

// Runs the build tool that creates the initial database, as a process.
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "store/Database.h"
#include "store/Schema.h"

namespace tw {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

struct Outcome {
    int status = -1;
    std::string output;  // standard output and standard error
};

Outcome RunTool(const std::string& arguments) {
    Outcome outcome;
    FILE* pipe = popen(("'" MAKE_DATABASE "' " + arguments + " 2>&1").c_str(), "r");
    if (pipe == nullptr) return outcome;
    std::array<char, 4096> buffer{};
    for (std::size_t count = 0; (count = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
        outcome.output.append(buffer.data(), count);
    }
    const int status = pclose(pipe);
    if (WIFEXITED(status)) outcome.status = WEXITSTATUS(status);
    return outcome;
}

class MakeDatabase : public testing::Test {
  protected:
    void SetUp() override {
        folder_ = fs::path(testing::TempDir()) / ("make_database_" + std::to_string(getpid()));
        fs::create_directories(folder_ / "out");
        fs::copy(CATALOGUE_FOLDER, folder_ / "in");
    }
    void TearDown() override { fs::remove_all(folder_); }

    Outcome Make() const { return RunTool("'" + In() + "' '" + Target() + "'"); }
    std::string In() const { return (folder_ / "in").string(); }
    std::string Target() const { return (folder_ / "out" / "Tunwright.mdb").string(); }
    std::vector<std::string> OutFiles() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_ / "out"))
            names.push_back(entry.path().filename());
        return names;
    }

    fs::path folder_;
};

TEST_F(MakeDatabase, MakesADatabaseOfTheWholeSchemaAndNothingBesideIt) {
    const Outcome outcome = Make();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(OutFiles(), ElementsAre("Tunwright.mdb"));
    const auto database = Database::OpenDatabase(Target(), true);
    EXPECT_NO_THROW(CheckSchema(*database));
    EXPECT_FALSE(database->OpenRecordset("SELECT * FROM STYLES WHERE NAME = 'American IPA'").AtEnd());
    EXPECT_TRUE(database->OpenRecordset("SELECT * FROM RECIPES").AtEnd());
}

TEST_F(MakeDatabase, LeavesAnExistingTargetAloneWhateverItHolds) {
    std::ofstream(Target()) << "recipes of years";
    fs::remove(fs::path(In()) / "hops.tsv");
    EXPECT_EQ(Make().status, 0);
    std::ifstream stream(Target());
    std::string text;
    std::getline(stream, text);
    EXPECT_EQ(text, "recipes of years");
    EXPECT_THAT(OutFiles(), ElementsAre("Tunwright.mdb"));
}

TEST_F(MakeDatabase, NamesFileAndLineOfAProblemAndLeavesNothingHalfMade) {
    std::ofstream(fs::path(In()) / "grain_types.tsv", std::ios::app) << "Odd Malt\n";
    const Outcome outcome = Make();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, In() + "/grain_types.tsv:12: the row has 1 cells, not 2\n");
    EXPECT_THAT(OutFiles(), IsEmpty());
}

TEST_F(MakeDatabase, StartsAfreshOverWhatABrokenRunLeft) {
    std::ofstream(Target() + ".part") << "half";
    EXPECT_EQ(Make().status, 0);
    EXPECT_THAT(OutFiles(), ElementsAre("Tunwright.mdb"));
}

TEST_F(MakeDatabase, FailsWhereItCannotWrite) {
    const Outcome outcome =
        RunTool("'" + In() + "' '" + (folder_ / "missing" / "Tunwright.mdb").string() + "'");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("missing/Tunwright.mdb: "));
    EXPECT_THAT(outcome.output, EndsWith("\n"));
}

TEST_F(MakeDatabase, GivesStylesAndFoldersNoDate) {
    ASSERT_EQ(Make().status, 0);
    const auto database = Database::OpenDatabase(Target(), true);
    for (const std::string table : {"STYLES", "FOLDERS"})
        for (const std::string column : {"CREATED_WHEN", "MODIFIED_WHEN"}) {
            EXPECT_FALSE(database->OpenRecordset("SELECT * FROM " + table).AtEnd());
            EXPECT_TRUE(
                database->OpenRecordset("SELECT * FROM " + table + " WHERE NOT " + column + " IS NULL")
                    .AtEnd())
                << table << "." << column;
        }
}

TEST_F(MakeDatabase, RefusesWrongArguments) {
    EXPECT_EQ(RunTool("").status, 2);
    EXPECT_EQ(RunTool("'" + In() + "'").status, 2);
}

}  // namespace
}  // namespace tw

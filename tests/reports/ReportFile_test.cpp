#include "reports/ReportFile.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

#include "platform/Error.h"
#include "store/Schema.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

class ReportFileTest : public testing::Test {
  protected:
    void SetUp() override {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        folder = fs::path(testing::TempDir()) / (std::string("tunwright_report_") + info->name());
        fs::remove_all(folder);
        fs::create_directories(folder);
        request.path = (folder / "report.txt").string();
        database->Execute("INSERT INTO STYLES (NAME) VALUES ('Brown Porter')");
        database->Execute(
            "INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, OG_DATA, FG_DATA, ABV, COLOR, IBU, CO2_VOLS, "
            "BV, "
            "BV_DATA, FV, FV_DATA, BG_DATA, NOTES) VALUES ('Porter', 1, 0, 1.05, 1.012, '5.2% abv', "
            "' 30 SRM (80 HCU) ', '28', '2.40 volumes', '6 gal', 6, '5 gal', 5, 1.042, 'Good.')");
        database->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('O''Hara', 0, 0)");
    }
    void TearDown() override { fs::remove_all(folder); }

    bool Create(std::vector<std::string> names) {
        request.names = std::move(names);
        return CreateReportFile(*database, store, request, own, outside.messages);
    }
    std::string Content() const {
        std::ifstream file(request.path, std::ios::binary);
        std::stringstream content;
        content << file.rdbuf();
        return content.str();
    }
    void Put(std::string_view text) const { std::ofstream(request.path, std::ios::binary) << text; }
    // Returns the number of files in the folder.
    int Files() const {
        return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }
    void ExpectRefused() {
        EXPECT_FALSE(Create({"Porter"}));
        EXPECT_EQ(
            outside.messages.TakeLog(),
            (std::vector<std::string>{"[Error] Could not create report file \"" + request.path + "\""}));
    }

    fs::path folder;
    RecordingPlatform outside;
    SettingsStore store{outside.settings};
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    OwnFiles own;
    ReportRequest request;
};

const char* const kPorter =
    "                                   Porter\r\n"
    "                                Brown Porter\r\n"
    "\r\n"
    "General\r\n"
    "Original Gravity: 1.050\r\n"
    "Final Gravity: 1.012\r\n"
    "Alcohol Content: 5.2% abv\r\n"
    "Color: 30 SRM (80 HCU)\r\n"
    "Bitterness: 28 IBUs\r\n"
    "Carbonation: 2.40 volumes of CO2\r\n"
    "Boil Volume: 6 gal\r\n"
    "Total Volume: 5 gal\r\n"
    "Boil Gravity: 1.042\r\n"
    "Water Treatment\r\n"
    "Malts and Grains\r\n"
    "Extracts and Sugars\r\n"
    "Hops\r\n"
    "Other Adjuncts\r\n"
    "Carbonation\r\n"
    "Notes\r\n"
    "Good.\f\r\n";

TEST_F(ReportFileTest, AWholeTextReport) {
    EXPECT_TRUE(Create({"Porter"}));
    EXPECT_EQ(Content(), kPorter);
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(ReportFileTest, ARecipeWithoutFiguresHasEmptyValues) {
    EXPECT_TRUE(Create({"O'Hara"}));
    EXPECT_EQ(
        Content(),
        "                                   O'Hara\r\n\r\n\r\nGeneral\r\n"
        "Original Gravity: \r\nFinal Gravity: \r\nAlcohol Content: \r\nColor: \r\nBitterness:  IBUs\r\n"
        "Carbonation:  of CO2\r\nBoil Volume: \r\nTotal Volume: \r\nBoil Gravity: \r\n"
        "Water Treatment\r\nMalts and Grains\r\nExtracts and Sugars\r\nHops\r\nOther Adjuncts\r\n\f\r\n");
}

TEST_F(ReportFileTest, ADeletedRecipeIsPassedOverButItsSeparatorStays) {
    EXPECT_TRUE(Create({"Gone", "Porter", "Gone too"}));
    EXPECT_EQ(Content(), std::string("\f\r\n") + kPorter + "\f\r\n");
    EXPECT_TRUE(outside.messages.log.empty());
}

TEST_F(ReportFileTest, TheLastRecipeOfHtmlAndRichTextHasNoSeparator) {
    request.type = ReportType::Html;
    EXPECT_TRUE(Create({"Gone", "Gone"}));
    EXPECT_EQ(Content(),
              "<HTML>\r\n<HEAD>\r\n<TITLE>Tunwright Recipes</TITLE>\r\n</HEAD>\r\n"
              "<BODY BGCOLOR=\"#FFFFFF\" TEXT=\"#000000\">\r\n<BR><HR><BR>\r\n</BODY>\r\n</HTML>\r\n");
    request.type = ReportType::RichText;
    EXPECT_TRUE(Create({"Gone"}));
    EXPECT_TRUE(Content().ends_with("\\viewkind1\\pard\\plain\r\n}\r\n"));
}

TEST_F(ReportFileTest, TheUnitsThatWereAskedFor) {
    request.units.Choose("optSGPlato");
    request.units.Choose("optAlcBW");
    request.units.Choose("optVolLiters");
    EXPECT_TRUE(Create({"Porter"}));
    EXPECT_NE(Content().find("Alcohol Content: 4.1% abw\r\n"), std::string::npos);
    EXPECT_NE(Content().find("Total Volume: 18.93 Liters\r\n"), std::string::npos);
    EXPECT_NE(Content().find("° Plato\r\n"), std::string::npos);
}

TEST_F(ReportFileTest, AnOlderFileIsReplaced) {
    Put("old");
    EXPECT_TRUE(Create({"Porter"}));
    EXPECT_EQ(Content(), kPorter);
    EXPECT_EQ(Files(), 1);
}

TEST_F(ReportFileTest, TextReportsCanBeAppended) {
    outside.settings.Put("TextOptions", "Append", "1");
    EXPECT_TRUE(Create({"Porter"}));
    EXPECT_EQ(Content(), kPorter);
    EXPECT_TRUE(Create({"Porter"}));
    EXPECT_EQ(Content(), std::string(kPorter) + kPorter);
    // The other types do not have this option.
    outside.settings.Put("HTMLOptions", "Append", "1");
    request.type = ReportType::Html;
    EXPECT_TRUE(Create({}));
    EXPECT_TRUE(Content().starts_with("<HTML>"));
}

TEST_F(ReportFileTest, AFileThatCannotBeMadeIsTold) {
    request.path = (folder / "missing" / "report.txt").string();
    ExpectRefused();
    request.path = folder.string();
    ExpectRefused();
    request.path = "";
    ExpectRefused();
}

TEST_F(ReportFileTest, ADeviceIsRefused) {
    request.path = "/dev/full";
    ExpectRefused();
    outside.settings.Put("TextOptions", "Append", "1");
    ExpectRefused();
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(ReportFileTest, APipeIsRefusedAndNotWaitedFor) {
    ASSERT_EQ(mkfifo(request.path.c_str(), 0600), 0);
    ExpectRefused();
    outside.settings.Put("TextOptions", "Append", "1");
    ExpectRefused();
    EXPECT_TRUE(fs::is_fifo(request.path));
}

TEST_F(ReportFileTest, AFileOfTheProgramsOwnIsRefusedWithTheReason) {
    Put("the recipes");
    own.AddDatabase(request.path);
    ExpectRefused();
    EXPECT_EQ(outside.messages.advice, "'" + request.path +
                                           "' is the database of the recipes themselves. "
                                           "Please choose another name.");
    outside.settings.Put("TextOptions", "Append", "1");
    ExpectRefused();
    EXPECT_EQ(Content(), "the recipes");
}

TEST_F(ReportFileTest, AFailureInTheMiddleLeavesTheOlderFile) {
    Put("old");
    database->SetStatementHook([](std::string_view) { throw Error("store", "lost", 1); });
    ExpectRefused();
    EXPECT_EQ(Content(), "old");
    EXPECT_EQ(Files(), 1);
}

TEST_F(ReportFileTest, AFailureInTheMiddleAppendsNothing) {
    outside.settings.Put("TextOptions", "Append", "1");
    Put("old");
    {
        ReportFile file(request.path, true, own);
        file.Write(std::string(100'000, 'x'));
    }
    EXPECT_EQ(Content(), "old");
    fs::remove(request.path);
    { ReportFile(request.path, true, own).Write("x"); }
    EXPECT_EQ(Files(), 0);
}

TEST_F(ReportFileTest, ALinkStaysALinkAndAFileKeepsItsPermissions) {
    const fs::path target = folder / "target.txt";
    std::ofstream(target) << "old";
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(target, request.path);
    EXPECT_TRUE(Create({"Porter"}));
    EXPECT_TRUE(fs::is_symlink(request.path));
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Content(), kPorter);
}

}  // namespace
}  // namespace tw::test

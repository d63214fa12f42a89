// Tests that the settings store on QSettings returns every text unchanged.
#include "platform/qt/QtSettings.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace tw {
namespace {

using Layer = SettingsPort::Layer;

class QtSettingsTest : public testing::Test {
  protected:
    void SetUp() override {
        const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = std::filesystem::path(testing::TempDir()) / (std::string("QtSettingsTest-") + info->name());
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::string File() const { return (folder_ / "settings.ini").string(); }
    void Write(const std::string& text) const { std::ofstream(File(), std::ios::binary) << text; }

    // Writes the text in one run of the program and returns what the next run reads.
    std::optional<std::string> RoundTrip(const std::string& text) const {
        EXPECT_TRUE(QtSettings::OfFile(File())->Write(Layer::User, "Settings", "Key", text));
        return QtSettings::OfFile(File())->Read(Layer::User, "Settings", "Key");
    }

    std::filesystem::path folder_;
};

TEST_F(QtSettingsTest, BringsAnyTextBack) {
    for (const std::string text :
         {"",           " ",          "  two blanks  ", "007",          "1.050",
          "1e3",        "0x10",       "true",           "False",        "a, b, c",
          ",",          "a;b",        "@ByteArray(x)",  "@Invalid()",   "@",
          "100%",       "%2F",        "a\\b",           "\\x41",        "a\r\nb\tc",
          "\"quoted\"", "[Settings]", "Key=1",          "# no comment", "Märzen 12 °P",
          "日本"}) {
        EXPECT_EQ(RoundTrip(text), text);
    }
    const std::string withZero("a\0b", 3);
    EXPECT_EQ(RoundTrip(withZero), withZero);
}

TEST_F(QtSettingsTest, ALinkStaysALinkAndAFileKeepsItsMode) {
    Write("[Settings]\nKey=old\n");
    std::filesystem::permissions(File(), static_cast<std::filesystem::perms>(0640));
    const std::string link = (folder_ / "link.ini").string();
    std::filesystem::create_symlink(File(), link);
    EXPECT_TRUE(QtSettings::OfFile(link)->Write(Layer::User, "Settings", "Key", "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(std::filesystem::status(File()).permissions(), static_cast<std::filesystem::perms>(0640));
    EXPECT_EQ(QtSettings::OfFile(File())->Read(Layer::User, "Settings", "Key"), "new");
}

TEST_F(QtSettingsTest, NamesItsFiles) {
    EXPECT_EQ(QtSettings::OfFile(File())->Files().at(0), File());
    EXPECT_FALSE(QtSettings::OfUser()->Files().at(0).empty());
}

TEST_F(QtSettingsTest, KeepsSectionsAndKeysApart) {
    const auto store = QtSettings::OfFile(File());
    store->Write(Layer::User, "A/B", "C", "1");
    store->Write(Layer::User, "A", "B/C", "2");
    store->Write(Layer::User, "General", "C", "3");
    store->Write(Layer::User, "A%2FB", "C", "4");
    EXPECT_EQ(store->Read(Layer::User, "A/B", "C"), "1");
    EXPECT_EQ(store->Read(Layer::User, "A", "B/C"), "2");
    EXPECT_EQ(store->Read(Layer::User, "General", "C"), "3");
    EXPECT_EQ(store->Read(Layer::User, "A%2FB", "C"), "4");
}

TEST_F(QtSettingsTest, ReadsAFileWrittenByHand) {
    Write("[Settings]\nHopForm=2\nWaterProfile=Burton-on-Trent, Moderate\nBoilVol=007\n");
    const auto store = QtSettings::OfFile(File());
    EXPECT_EQ(store->Read(Layer::User, "Settings", "HopForm"), "2");
    EXPECT_EQ(store->Read(Layer::User, "Settings", "WaterProfile"), "Burton-on-Trent, Moderate");
    EXPECT_EQ(store->Read(Layer::User, "Settings", "BoilVol"), "007");
    EXPECT_EQ(store->Read(Layer::User, "Settings", "TotalVol"), std::nullopt);
    EXPECT_EQ(store->Read(Layer::User, "MRU", "HopForm"), std::nullopt);
}

TEST_F(QtSettingsTest, SaysThatALayerCannotBeWritten) {
    // There is a file in place of the folder of the settings file.
    Write("x");
    EXPECT_FALSE(QtSettings::OfFile(File() + "/in.ini")->Write(Layer::User, "Settings", "Key", "1"));
}

TEST_F(QtSettingsTest, KeepsTheMachinesLayerApart) {
    const auto store = QtSettings::OfFile(File());
    store->Write(Layer::User, "Settings", "KeyOfThisTestAlone", "1");
    EXPECT_EQ(store->Read(Layer::Machine, "Settings", "KeyOfThisTestAlone"), std::nullopt);
}

}  // namespace
}  // namespace tw

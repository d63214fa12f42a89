#include "shell/Settings.h"

#include <gtest/gtest.h>
#include <utility>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

class SettingsTest : public testing::Test {
  protected:
    Settings Load() {
        Settings settings;
        settings.LoadWindowKeys(store);
        settings.LoadProgramKeys(store);
        return settings;
    }
    MemorySettings port;
    SettingsStore store{port};
};

TEST_F(SettingsTest, AnEmptyStoreGivesTheDefaults) {
    const Settings s = Load();
    EXPECT_EQ(s.mainLeft, 1000);
    EXPECT_EQ(s.mainTop, 1000);
    EXPECT_EQ(s.mainWidth, 6500);
    EXPECT_EQ(s.mainHeight, 6500);
    EXPECT_EQ(s.iconStyle, 0);
    EXPECT_EQ(s.buttonStyle, 0);
    EXPECT_EQ(s.childState, 0);
    EXPECT_FALSE(s.appendRows);
    EXPECT_EQ(s.hopForm, 0);
    EXPECT_TRUE(s.hopSocks);
    EXPECT_EQ(s.hopExtraction, "1.0");
    EXPECT_EQ(s.grainExtraction, "40%");
    EXPECT_EQ(s.waterProfile, "");
    EXPECT_EQ(s.packaging, 0);
    EXPECT_EQ(s.boilVol, "");
    EXPECT_EQ(s.totalVol, "");
    EXPECT_EQ(s.ibuMethod, 0);
    EXPECT_EQ(s.reportType, 0);
    EXPECT_FALSE(s.copyHeaders);
    EXPECT_FALSE(s.pasteMismatchSize);
    EXPECT_TRUE(s.showAssistantAtStartup);
    EXPECT_FALSE(s.doAutoSave);
    EXPECT_EQ(s.doAutoSaveEvery, 5);
    EXPECT_TRUE(s.askBeforeNonUndoableChange);
    EXPECT_TRUE(s.quickPrintFromToolbar);
    EXPECT_EQ(s.gridReadOnlyBg, std::nullopt);
    EXPECT_EQ(s.gridTotalBg, std::nullopt);
    EXPECT_EQ(s.gridReadOnlyFg, std::nullopt);
    EXPECT_EQ(s.gridTotalFg, std::nullopt);
    EXPECT_EQ(s.lpMaxIter, 1000);
    EXPECT_FALSE(s.undoScaling);
    EXPECT_FALSE(s.keepTypedUnits);
    EXPECT_TRUE(s.scaleBoilVol);
    EXPECT_TRUE(s.keepBitterness);
    EXPECT_TRUE(s.keepCarbonation);
    EXPECT_TRUE(s.figureStrip);
    EXPECT_FALSE(s.metricExamples);
}

// Whoever never touches what a newer version added keeps a store that older versions know whole.
TEST_F(SettingsTest, AnAddedKeyIsStoredOnlyWhileItDiffersFromItsDefault) {
    Settings s = Load();
    s.Store(store);
    EXPECT_EQ(store.GetSetting("Settings", "UndoScaling", "missing"), "missing");
    EXPECT_EQ(store.GetSetting("Settings", "KeepBitterness", "missing"), "missing");
    s.undoScaling = true;
    s.keepBitterness = false;
    s.Store(store);
    EXPECT_EQ(store.GetSetting("Settings", "UndoScaling", "missing"), "True");
    EXPECT_EQ(store.GetSetting("Settings", "KeepBitterness", "missing"), "False");
    EXPECT_TRUE(Load().undoScaling);
    EXPECT_FALSE(Load().keepBitterness);
    s.undoScaling = false;
    s.Store(store);
    EXPECT_EQ(store.GetSetting("Settings", "UndoScaling", "missing"), "missing");
}

TEST_F(SettingsTest, EveryKeyHasItsDefaultText) {
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"MainLeft", "1000"},
        {"MainTop", "1000"},
        {"MainWidth", "6500"},
        {"MainHeight", "6500"},
        {"IconStyle", "0"},
        {"ButtonStyle", "0"},
        {"ChildState", "0"},
        {"AppendRows", "False"},
        {"HopForm", "0"},
        {"HopSocks", "1"},
        {"HopExtraction", "1.0"},
        {"GrainExtraction", "40%"},
        {"WaterProfile", ""},
        {"Packaging", "0"},
        {"BoilVol", ""},
        {"TotalVol", ""},
        {"IBUMethod", "0"},
        {"ReportType", "0"},
        {"CopyHeaders", "0"},
        {"PasteMismatchSize", "0"},
        {"ShowAssistantAtStartup", "1"},
        {"DoAutoSave", "0"},
        {"DoAutoSaveEvery", "5"},
        {"AskBeforeNonUndoableChange", "1"},
        {"QuickPrintFromToolbar", "1"},
        {"GridReadOnlyBg", "65535"},
        {"GridTotalBg", "65280"},
        {"GridReadOnlyFg", "1"},
        {"GridTotalFg", "1"},
        {"LPMaxIter", "1000"},
    };
    for (const auto& [key, text] : expected) EXPECT_EQ(Settings::DefaultOf("Settings", key), text) << key;
}

TEST_F(SettingsTest, TheOtherSectionsHaveTheirDefaults) {
    EXPECT_EQ(Settings::DefaultOf("MRU", "File0"), "");
    EXPECT_EQ(Settings::DefaultOf("MRU", "File5"), "");
    EXPECT_EQ(Settings::DefaultOf("MRU", "File6"), std::nullopt);
    EXPECT_EQ(Settings::DefaultOf("TextOptions", "NumColumns"), "75");
    EXPECT_EQ(Settings::DefaultOf("TextOptions", "PageBreak"), "1");
    EXPECT_EQ(Settings::DefaultOf("TextOptions", "Append"), "0");
    EXPECT_EQ(Settings::DefaultOf("HTMLOptions", "BGColor"), "16777215");
    EXPECT_EQ(Settings::DefaultOf("HTMLOptions", "HorzRuler"), "1");
    EXPECT_EQ(Settings::DefaultOf("HTMLOptions", "PageBreak"), std::nullopt);
    EXPECT_EQ(Settings::DefaultOf("HTMLOptions", "TitleBColor"), std::nullopt);
    EXPECT_EQ(Settings::DefaultOf("RTFOptions", "PageBreak"), "1");
    EXPECT_EQ(Settings::DefaultOf("RTFOptions", "BGColor"), std::nullopt);
    EXPECT_EQ(Settings::DefaultOf("RTFOptions", "HorzRuler"), std::nullopt);
    for (const char* prefix : {"Title", "Label", "Text"}) {
        EXPECT_EQ(Settings::DefaultOf("RTFOptions", std::string(prefix) + "BColor"), "16777215");
    }
    EXPECT_EQ(Settings::DefaultOf("Elsewhere", "PageBreak"), std::nullopt);
    EXPECT_EQ(Settings::DefaultOf("Settings", "hopform"), std::nullopt);
}

TEST_F(SettingsTest, TheFontGroupsHaveTheirDefaults) {
    for (const char* section : {"HTMLOptions", "RTFOptions"}) {
        for (const std::string prefix : {"Title", "Label", "Text"}) {
            EXPECT_EQ(Settings::DefaultOf(section, prefix + "Font"), "MS Sans Serif");
            EXPECT_EQ(Settings::DefaultOf(section, prefix + "Size"), prefix == "Title" ? "12" : "10");
            EXPECT_EQ(Settings::DefaultOf(section, prefix + "Bold"), prefix == "Text" ? "0" : "1");
            for (const char* key : {"Italic", "Underline", "Strikethru", "Color"}) {
                EXPECT_EQ(Settings::DefaultOf(section, prefix + key), "0") << prefix << key;
            }
        }
    }
}

TEST_F(SettingsTest, TheWindowsKeysAndTheProgramsKeysAreReadApart) {
    port.Put("Settings", "MainLeft", "20");
    port.Put("Settings", "ButtonStyle", "1");
    port.Put("Settings", "ChildState", "2");
    port.Put("Settings", "LPMaxIter", "7");
    Settings window;
    window.LoadWindowKeys(store);
    EXPECT_EQ(window.mainLeft, 20);
    EXPECT_EQ(window.buttonStyle, 1);
    EXPECT_EQ(window.childState, 0);
    EXPECT_EQ(window.lpMaxIter, 1000);
    Settings program;
    program.LoadProgramKeys(store);
    EXPECT_EQ(program.mainLeft, 1000);
    EXPECT_EQ(program.buttonStyle, 0);
    EXPECT_EQ(program.childState, 2);
    EXPECT_EQ(program.lpMaxIter, 7);
}

TEST_F(SettingsTest, BooleansAreReadAsWordsAndAsNumbers) {
    const std::vector<std::pair<std::string, bool>> forms = {
        {"True", true}, {"False", false}, {"true", true}, {"FALSE", false}, {"1", true},
        {"0", false},   {"-1", true},     {"0.5", true},  {"00", false}};
    for (const auto& [text, value] : forms) {
        Settings s;
        s.copyHeaders = !value;
        EXPECT_TRUE(s.Take("CopyHeaders", text));
        EXPECT_EQ(s.copyHeaders, value) << text;
    }
}

TEST_F(SettingsTest, ATextOfAnotherFormCountsAsTheDefault) {
    for (const char* text : {"", "five", "32768", "-32769", "1e3", "99999999999999999999"}) {
        Settings s;
        s.doAutoSaveEvery = 30;
        EXPECT_TRUE(s.Take("DoAutoSaveEvery", text));
        EXPECT_EQ(s.doAutoSaveEvery, 5) << text;
    }
    Settings s;
    s.hopSocks = false;
    s.mainLeft = 1;
    EXPECT_TRUE(s.Take("HopSocks", "maybe"));
    EXPECT_TRUE(s.Take("MainLeft", std::string(400, '9')));
    EXPECT_TRUE(s.hopSocks);
    EXPECT_EQ(s.mainLeft, 1000);
}

TEST_F(SettingsTest, ColoursTake32Bits) {
    Settings s;
    EXPECT_TRUE(s.Take("GridTotalBg", "16777215"));
    EXPECT_EQ(s.gridTotalBg, 16777215);
    EXPECT_TRUE(s.Take("GridTotalBg", "2147483648"));
    EXPECT_EQ(s.gridTotalBg, std::nullopt);
}

TEST_F(SettingsTest, AColourThatWasNeverChosenIsNotStored) {
    Settings s = Load();
    s.gridTotalBg = 255;
    s.Store(store);
    EXPECT_EQ(port.Read(SettingsPort::Layer::User, "Settings", "GridTotalBg"), "255");
    for (const char* key : {"GridReadOnlyBg", "GridReadOnlyFg", "GridTotalFg"})
        EXPECT_EQ(port.Read(SettingsPort::Layer::User, "Settings", key), std::nullopt) << key;
    // Resetting the colour removes it from the store.
    s.gridTotalBg.reset();
    s.Store(store);
    EXPECT_EQ(port.Read(SettingsPort::Layer::User, "Settings", "GridTotalBg"), std::nullopt);
}

TEST_F(SettingsTest, AStoredColourIsChosenEvenIfItIsTheDefault) {
    port.Put("Settings", "GridReadOnlyBg", "65535");
    const Settings s = Load();
    EXPECT_EQ(s.gridReadOnlyBg, 65535);
    EXPECT_EQ(s.gridReadOnlyFg, std::nullopt);
}

// Versions without tints stored all four colours at every exit.
TEST_F(SettingsTest, TheFourDefaultsTogetherAreNoChoice) {
    port.Put("Settings", "GridReadOnlyBg", "65535");
    port.Put("Settings", "GridTotalBg", "65280");
    port.Put("Settings", "GridReadOnlyFg", "1");
    port.Put("Settings", "GridTotalFg", "1");
    EXPECT_EQ(Load().gridReadOnlyBg, std::nullopt);
    EXPECT_EQ(Load().gridTotalFg, std::nullopt);
    port.Put("Settings", "GridTotalFg", "2");
    EXPECT_EQ(Load().gridReadOnlyBg, 65535);
    EXPECT_EQ(Load().gridTotalFg, 2);
}

TEST_F(SettingsTest, AnUnknownKeyIsRefused) {
    Settings s;
    EXPECT_FALSE(s.Take("NoSuchKey", "1"));
    EXPECT_FALSE(s.Take("", "1"));
}

TEST_F(SettingsTest, ShutDownWritesEveryKeyInItsOrderAndForm) {
    Settings s = Load();
    s.gridReadOnlyBg = 65535, s.gridTotalBg = 65280, s.gridReadOnlyFg = 1, s.gridTotalFg = 1;
    s.Store(store);
    EXPECT_EQ(port.written, (Strings{"ChildState=0",
                                     "AppendRows=0",
                                     "HopForm=0",
                                     "HopSocks=True",
                                     "HopExtraction=1.0",
                                     "GrainExtraction=40%",
                                     "WaterProfile=",
                                     "Packaging=0",
                                     "BoilVol=",
                                     "TotalVol=",
                                     "IBUMethod=0",
                                     "ReportType=0",
                                     "CopyHeaders=False",
                                     "PasteMismatchSize=False",
                                     "ShowAssistantAtStartup=True",
                                     "DoAutoSave=False",
                                     "DoAutoSaveEvery=5",
                                     "AskBeforeNonUndoableChange=True",
                                     "QuickPrintFromToolbar=True",
                                     "IconStyle=0",
                                     "ButtonStyle=0",
                                     "GridReadOnlyBg=65535",
                                     "GridTotalBg=65280",
                                     "GridReadOnlyFg=1",
                                     "GridTotalFg=1"}));
}

TEST_F(SettingsTest, AppendRowsIsWrittenAsANumber) {
    Settings s;
    s.appendRows = true;
    s.Store(store);
    EXPECT_EQ(port.Read(SettingsPort::Layer::User, "Settings", "AppendRows"), "1");
    EXPECT_TRUE(Load().appendRows);
}

TEST_F(SettingsTest, TheGeometryIsWrittenByItselfAndComesBack) {
    Settings s;
    s.mainLeft = -120.5;
    s.mainTop = 15;
    s.mainWidth = 12000;
    s.mainHeight = 9000.25;
    s.StoreGeometry(store);
    EXPECT_EQ(port.written,
              (Strings{"MainLeft=-120.5", "MainTop=15", "MainWidth=12000", "MainHeight=9000.25"}));
    EXPECT_EQ(Load().mainLeft, -120.5);
    EXPECT_EQ(Load().mainHeight, 9000.25);
}

TEST_F(SettingsTest, TheIterationLimitIsHonouredAndLeftAlone) {
    port.Put("Settings", "LPMaxIter", "25");
    Settings s = Load();
    EXPECT_EQ(s.lpMaxIter, 25);
    s.lpMaxIter = 99;
    s.Store(store);
    s.StoreGeometry(store);
    EXPECT_EQ(port.Read(SettingsPort::Layer::User, "Settings", "LPMaxIter"), "25");
}

}  // namespace
}  // namespace tw::test

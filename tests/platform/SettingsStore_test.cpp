#include "platform/SettingsStore.h"

#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Layer = SettingsPort::Layer;

TEST(SettingsStore, TheUsersValueHidesTheMachines) {
    MemorySettings port;
    port.Put("Settings", "BoilVol", "6 gal", Layer::Machine);
    port.Put("Settings", "BoilVol", "7 gal", Layer::User);
    EXPECT_EQ(SettingsStore(port).GetSetting("Settings", "BoilVol", "x"), "7 gal");
}

TEST(SettingsStore, FallsBackToTheMachineAndThenToTheDefault) {
    MemorySettings port;
    port.Put("Settings", "BoilVol", "6 gal", Layer::Machine);
    const SettingsStore store(port);
    EXPECT_EQ(store.GetSetting("Settings", "BoilVol", "x"), "6 gal");
    EXPECT_EQ(store.GetSetting("Settings", "TotalVol", "x"), "x");
    EXPECT_EQ(store.GetSetting("MRU", "BoilVol", "x"), "x");
}

TEST(SettingsStore, AnEmptyStoredTextIsAValue) {
    MemorySettings port;
    port.Put("Settings", "HopExtraction", "");
    EXPECT_EQ(SettingsStore(port).GetSetting("Settings", "HopExtraction", "1.0"), "");
}

TEST(SettingsStore, AValueOfMoreThan255BytesReadsAsNotPresent) {
    MemorySettings port;
    const SettingsStore store(port);
    const std::string longest(255, 'a');
    port.Put("MRU", "File0", longest);
    EXPECT_EQ(store.GetSetting("MRU", "File0", "x"), longest);
    port.Put("MRU", "File0", longest + "a");
    EXPECT_EQ(store.GetSetting("MRU", "File0", "x"), "x");
    port.Put("MRU", "File0", "machine", Layer::Machine);
    EXPECT_EQ(store.GetSetting("MRU", "File0", "x"), "machine");
}

TEST(SettingsStore, CountsBytesNotCharacters) {
    MemorySettings port;
    std::string name;
    for (int i = 0; i < 128; ++i) name += "ö";  // 256 bytes
    port.Put("MRU", "File0", name);
    EXPECT_EQ(SettingsStore(port).GetSetting("MRU", "File0", "x"), "x");
}

TEST(SettingsStore, SavesForTheUserAlone) {
    MemorySettings port;
    SettingsStore(port).SaveSetting("Settings", "HopForm", "2", false);
    EXPECT_EQ(port.Read(Layer::User, "Settings", "HopForm"), "2");
    EXPECT_EQ(port.Read(Layer::Machine, "Settings", "HopForm"), std::nullopt);
}

TEST(SettingsStore, SavesForTheMachineOrElseForTheUser) {
    MemorySettings port;
    const SettingsStore store(port);
    store.SaveSetting("Settings", "HopForm", "1", true);
    EXPECT_EQ(port.Read(Layer::Machine, "Settings", "HopForm"), "1");
    EXPECT_EQ(port.Read(Layer::User, "Settings", "HopForm"), std::nullopt);
    port.machineWritable = false;
    store.SaveSetting("Settings", "HopForm", "2", true);
    EXPECT_EQ(port.Read(Layer::Machine, "Settings", "HopForm"), "1");
    EXPECT_EQ(port.Read(Layer::User, "Settings", "HopForm"), "2");
}

TEST(SettingsStore, ForgetsTheUsersTextAlone) {
    MemorySettings port;
    const SettingsStore store(port);
    port.Put("Settings", "HopForm", "1", Layer::Machine);
    store.SaveSetting("Settings", "HopForm", "2", false);
    store.ForgetSetting("Settings", "HopForm");
    EXPECT_EQ(store.GetSetting("Settings", "HopForm", "0"), "1");
    store.ForgetSetting("Settings", "NoSuchKey");
}

TEST(SettingsStore, AStoreThatCannotBeWrittenEndsSilently) {
    MemorySettings port;
    port.userWritable = false;
    EXPECT_NO_THROW(SettingsStore(port).SaveSetting("Settings", "HopForm", "2", false));
    EXPECT_TRUE(port.values.empty());
}

}  // namespace
}  // namespace tw::test

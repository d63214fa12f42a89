#include "shell/RecentList.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

class RecentListTest : public testing::Test {
  protected:
    void Fill(const Strings& topFirst) {
        std::for_each(topFirst.rbegin(), topFirst.rend(), [&](const std::string& name) { list.Add(name); });
    }
    bool Visible(std::string_view item) const { return bar.FindItem(item)->visible; }
    std::string Stored(const std::string& key) {
        return port.Read(SettingsPort::Layer::User, "MRU", key).value_or("(none)");
    }
    MemorySettings port;
    SettingsStore store{port};
    CommandBar bar;
    RecentList list{bar};
};

TEST_F(RecentListTest, LoadingClosesGaps) {
    port.Put("MRU", "File1", "Pale Ale");
    port.Put("MRU", "File4", "Stout");
    port.Put("MRU", "File6", "Beyond");
    list.Load(store);
    EXPECT_EQ(list.Captions(), (Strings{"&1 Pale Ale", "&2 Stout"}));
    EXPECT_TRUE(Visible("mnuFileMRU(1)"));
    EXPECT_FALSE(Visible("mnuFileMRU(2)"));
}

TEST_F(RecentListTest, AnEmptyStoreShowsNothing) {
    list.Load(store);
    EXPECT_EQ(list.Captions(), Strings{});
    EXPECT_EQ(list.NameOf(0), "");
}

TEST_F(RecentListTest, TheFirstEntryShowsTheUpperSeparatorAlone) {
    bar.SetVisible(CommandId::FileBar5, false);
    list.Add("Pale Ale");
    EXPECT_EQ(list.Captions(), (Strings{"&1 Pale Ale"}));
    EXPECT_TRUE(Visible("mnuFileBar5"));
    EXPECT_FALSE(Visible("mnuFileBar7"));
}

TEST_F(RecentListTest, ANewNameComesToTheTopAndRenumbersTheOthers) {
    Fill({"B", "C"});
    list.Add("A");
    EXPECT_EQ(list.Captions(), (Strings{"&1 A", "&2 B", "&3 C"}));
}

TEST_F(RecentListTest, TheSeventhNamePushesTheLastOut) {
    Fill({"A", "B", "C", "D", "E", "F"});
    list.Add("G");
    EXPECT_EQ(list.Captions(), (Strings{"&1 G", "&2 A", "&3 B", "&4 C", "&5 D", "&6 E"}));
}

TEST_F(RecentListTest, AKnownNameMovesToTheTop) {
    Fill({"A", "B", "C", "D"});
    list.Add(" c ");
    EXPECT_EQ(list.Captions(), (Strings{"&1 c", "&2 A", "&3 B", "&4 D"}));
}

TEST_F(RecentListTest, TheTopNameStaysAsItIs) {
    Fill({"Pale Ale", "B"});
    list.Add("PALE ALE");
    EXPECT_EQ(list.Captions(), (Strings{"&1 Pale Ale", "&2 B"}));
}

TEST_F(RecentListTest, NamesCompareBeyondAsciiWithoutCase) {
    Fill({"A", "Märzen"});
    list.Add("MÄRZEN");
    EXPECT_EQ(list.Captions(), (Strings{"&1 MÄRZEN", "&2 A"}));
}

TEST_F(RecentListTest, AnAmpersandIsDoubledInTheCaptionAlone) {
    list.Add("Bread & Butter && Co");
    EXPECT_EQ(list.Captions(), (Strings{"&1 Bread && Butter &&&& Co"}));
    EXPECT_EQ(list.NameOf(0), "Bread & Butter && Co");
    list.Store(store);
    EXPECT_EQ(Stored("File0"), "Bread & Butter && Co");
    list.Add("Other");
    EXPECT_EQ(list.NameOf(1), "Bread & Butter && Co");
    list.Remove("bread & butter && co");
    EXPECT_EQ(list.Captions(), (Strings{"&1 Other"}));
}

TEST_F(RecentListTest, StoringLeavesTheValuesBeyondTheLastEntry) {
    port.Put("MRU", "File0", "A");
    port.Put("MRU", "File1", "B");
    port.Put("MRU", "File2", "C");
    list.Load(store);
    list.Remove("A");
    list.Store(store);
    EXPECT_EQ(port.written, (Strings{"File0=B", "File1=C"}));
    EXPECT_EQ(Stored("File2"), "C");
}

TEST_F(RecentListTest, RemovingClosesTheGapAndKeepsTheSeparator) {
    Fill({"A", "B", "C"});
    list.Remove(" b");
    EXPECT_EQ(list.Captions(), (Strings{"&1 A", "&2 C"}));
    EXPECT_FALSE(Visible("mnuFileMRU(2)"));
    EXPECT_TRUE(Visible("mnuFileBar5"));
}

TEST_F(RecentListTest, RemovingFromAFullListClearsTheLastSlot) {
    Fill({"A", "B", "C", "D", "E", "F"});
    list.Remove("F");
    EXPECT_EQ(list.Captions(), (Strings{"&1 A", "&2 B", "&3 C", "&4 D", "&5 E"}));
    EXPECT_EQ(bar.FindItem("mnuFileMRU(5)")->caption, "");
    list.Remove("A");
    EXPECT_EQ(list.Captions(), (Strings{"&1 B", "&2 C", "&3 D", "&4 E"}));
}

TEST_F(RecentListTest, RemovingTheLastEntryHidesTheUpperSeparator) {
    list.Add("A");
    list.Remove("A");
    EXPECT_EQ(list.Captions(), Strings{});
    EXPECT_FALSE(Visible("mnuFileBar5"));
}

TEST_F(RecentListTest, RemovingAnUnknownNameChangesNothing) {
    list.Remove("Nobody");
    EXPECT_TRUE(Visible("mnuFileBar5"));
    Fill({"A"});
    list.Remove("Nobody");
    list.Remove("");
    EXPECT_EQ(list.Captions(), (Strings{"&1 A"}));
}

TEST_F(RecentListTest, RenamingKeepsThePosition) {
    Fill({"A", "B", "C"});
    list.Rename("b", " Rock & Roll ");
    EXPECT_EQ(list.Captions(), (Strings{"&1 A", "&2 Rock && Roll", "&3 C"}));
    list.Rename("Nobody", "X");
    EXPECT_EQ(list.NameOf(1), "Rock & Roll");
    EXPECT_EQ(list.Captions().size(), 3u);
}

TEST_F(RecentListTest, SlotsHaveTheirItemNames) {
    EXPECT_EQ(RowOf(RecentCommand(0)).name, "mnuFileMRU(0)");
    EXPECT_EQ(list.NameOf(-1), "");
    EXPECT_EQ(list.NameOf(kRecentSlots), "");
}

}  // namespace
}  // namespace tw::test

#include "tree/TreeItems.h"

#include "ObjectsTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Recorder : public TreeItemsObserver {
  public:
    void TreeReset(bool done) override { log.push_back(done ? "filled" : "filling"); }
    void TreeItemChanged(int item) override { log.emplace_back("changed " + std::to_string(item)); }
    void TreeItemExpanded(int item) override { log.emplace_back("expanded " + std::to_string(item)); }
    void TreeSelectionChanged() override { log.emplace_back("selected"); }
    Lines Take() { return std::exchange(log, {}); }
    Lines log;
};

// Fills the items with a, b below a, c below b, and then d.
void FillSample(TreeItems& items) {
    items.Fill([](TreeView& view) {
        view.Clear();
        const TreeViewItem a = view.Add(TreeViewItem::Top, "F:1", "a", "folder closed", "folder open");
        const TreeViewItem b = view.Add(a, "F:2", "b", "folder closed", "folder open");
        view.Add(b, "R:3:3", "c", "document", "document");
        view.Add(TreeViewItem::Top, "F:4", "d", "folder closed", "folder open");
    });
}

TEST(TreeItems, KeepsWhatATreeFillsIn) {
    TreeItems items;
    FillSample(items);
    EXPECT_THAT(items.Children(TreeItems::kNone), ElementsAre(0, 3));
    EXPECT_THAT(items.Children(0), ElementsAre(1));
    EXPECT_THAT(items.Children(3), IsEmpty());
    EXPECT_EQ(items.Parent(2), 1);
    EXPECT_EQ(items.Parent(0), TreeItems::kNone);
    EXPECT_EQ(items.Row(3), 1);
    EXPECT_EQ(items.Key(2), "R:3:3");
    EXPECT_EQ(items.Text(2), "c");
    EXPECT_EQ(items.Icon(0, false), NodeIcon::FolderClosed);
    EXPECT_EQ(items.Icon(0, true), NodeIcon::FolderOpen);
    EXPECT_EQ(items.Find("F:4"), 3);
    EXPECT_EQ(items.Find("F:9"), TreeItems::kNone);
}

TEST(TreeItems, ChoosingAnEntryOpensWhatStandsAboveIt) {
    TreeItems items;
    FillSample(items);
    EXPECT_TRUE(items.SelectKey("R:3:3"));
    EXPECT_TRUE(items.IsExpanded(0));
    EXPECT_TRUE(items.IsExpanded(1));
    EXPECT_FALSE(items.IsExpanded(2));
    EXPECT_EQ(items.SelectedKey(), "R:3:3");
    EXPECT_FALSE(items.SelectKey("F:9"));
    EXPECT_EQ(items.SelectedKey(), "R:3:3");
    items.Select(TreeItems::kNone);
    EXPECT_EQ(items.SelectedKey(), "");
}

TEST(TreeItems, AnotherFillingKeepsWhatIsOpenAndChosen) {
    TreeItems items;
    FillSample(items);
    items.SelectKey("R:3:3");
    FillSample(items);
    EXPECT_EQ(items.SelectedKey(), "R:3:3");
    EXPECT_TRUE(items.IsExpanded(0));
    items.Fill([](TreeView& view) {
        view.Add(TreeViewItem::Top, "F:0", "new", "", "");
        view.Add(TreeViewItem::Top, "F:1", "a", "", "");
    });
    EXPECT_EQ(items.Selected(), TreeItems::kNone);
    EXPECT_FALSE(items.IsExpanded(0));
    EXPECT_TRUE(items.IsExpanded(1));
}

TEST(TreeItems, TellsOfEveryChangeOnce) {
    TreeItems items;
    Recorder recorder;
    items.SetObserver(&recorder);
    FillSample(items);
    EXPECT_THAT(recorder.Take(), ElementsAre("filling", "filled"));
    items.Select(1);
    items.Select(1);
    EXPECT_THAT(recorder.Take(), ElementsAre("expanded 0", "selected"));
    items.Expand(0);
    items.Expand(0, false);
    EXPECT_THAT(recorder.Take(), ElementsAre("expanded 0"));
    items.SetText(3, "other");
    EXPECT_THAT(recorder.Take(), ElementsAre("changed 3"));
    EXPECT_EQ(items.Text(3), "other");
}

TEST(TreeItems, AFolderWithAHundredThousandEntriesFills) {
    constexpr int kEntries = 100000;
    TreeItems items;
    items.Fill([](TreeView& view) {
        const TreeViewItem top = view.Add(TreeViewItem::Top, "F:0", "all", "", "");
        for (int i = 1; i <= kEntries; ++i)
            view.Add(top, "R:" + std::to_string(i) + ":3", "recipe", "document", "document");
    });
    EXPECT_EQ(items.Children(0).size(), static_cast<std::size_t>(kEntries));
    EXPECT_TRUE(items.SelectKey("R:100000:3"));
    EXPECT_EQ(items.Row(items.Selected()), kEntries - 1);
}

}  // namespace
}  // namespace tw::test

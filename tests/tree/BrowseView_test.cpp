// Tests of what the windows that list recipes remember.
#include "tree/BrowseView.h"

#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

class BrowseViews : public testing::Test {
  protected:
    std::string Stored(const char* key) { return store.GetSetting("Windows", key, "nothing"); }
    BrowseView Loaded() const {
        BrowseView view;
        LoadBrowseView(store, view);
        return view;
    }

    RecordingPlatform outside;
    SettingsStore store{outside.settings};
};

TEST_F(BrowseViews, AnEmptyStoreChangesNothing) {
    BrowseView view;
    view.look = {ListViewType::SmallIcons, 3, true};
    view.columns = {{1, 2}};
    view.stylesPage = true;
    view.recipeEntry = "F:3";
    view.treeWidth = 5;
    const BrowseView before = view;
    LoadBrowseView(store, view);
    EXPECT_EQ(view.look, before.look);
    EXPECT_EQ(view.columns, before.columns);
    EXPECT_TRUE(view.stylesPage);
    EXPECT_EQ(view.recipeEntry, "F:3");
    EXPECT_EQ(view.treeWidth, 5);
}

TEST_F(BrowseViews, WhatIsStoredComesBack) {
    BrowseView view;
    view.look = {ListViewType::Details, 15, true};
    view.columns = {{0, 3600}, {15, 0}, {7, 900}};
    view.stylesPage = true;
    view.recipeEntry = "F:3";
    view.styleEntry = "S:4:1";
    view.treeWidth = 4200;
    StoreBrowseView(store, view, {});
    EXPECT_EQ(Stored("ListColumns"), "0:3600 15 7:900");
    EXPECT_EQ(Stored("ListOrder"), "15 descending");
    const BrowseView loaded = Loaded();
    EXPECT_EQ(loaded.look, view.look);
    EXPECT_EQ(loaded.columns, view.columns);
    EXPECT_TRUE(loaded.stylesPage);
    EXPECT_EQ(loaded.recipeEntry, "F:3");
    EXPECT_EQ(loaded.styleEntry, "S:4:1");
    EXPECT_EQ(loaded.treeWidth, 4200);
}

TEST_F(BrowseViews, OnlyWhatHasChangedIsStored) {
    BrowseView before;
    before.look.viewType = ListViewType::Details;
    BrowseView view = before;
    StoreBrowseView(store, view, before);
    EXPECT_EQ(Stored("ListView"), "nothing");
    // Even what has been set back to its default.
    view.look.viewType = ListViewType::List;
    StoreBrowseView(store, view, before);
    EXPECT_EQ(Stored("ListView"), "2");
    EXPECT_EQ(Stored("ListOrder"), "nothing");
    EXPECT_EQ(Stored("ListColumns"), "nothing");
}

TEST_F(BrowseViews, WhatIsMalformedIsIgnored) {
    const auto put = [&](const char* key, const char* text) {
        store.SaveSetting("Windows", key, text, false);
    };
    for (const char* type : {"4", "-1", "x"}) {
        put("ListView", type);
        EXPECT_EQ(Loaded().look.viewType, ListViewType::List) << type;
    }
    for (const char* order : {"16", "-1", "descending", " descending"}) {
        put("ListOrder", order);
        EXPECT_EQ(Loaded().look, ListLook()) << order;
    }
    for (const char* columns : {"16", "0 1 0", "0  1", "a:3", ":4", "0,1"}) {
        put("ListColumns", columns);
        EXPECT_EQ(Loaded().columns, ColumnLayout()) << columns;
    }
    // A width is not worth losing the order for.
    put("ListColumns", "2:-5 1:x 0:99999999");
    EXPECT_EQ(Loaded().columns, (ColumnLayout{{2, 0}, {1, 0}, {0, 0}}));
    for (const char* width : {"-1", "x", "99999999"}) {
        put("ExplorerTreeWidth", width);
        EXPECT_EQ(Loaded().treeWidth, 0) << width;
    }
    put("ExplorerPage", "perhaps");
    EXPECT_FALSE(Loaded().stylesPage);
}

}  // namespace
}  // namespace tw::test

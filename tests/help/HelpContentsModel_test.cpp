// Tests of the tree of topics and the page of the selected topic.
#include "help/HelpContentsModel.h"

#include <gtest/gtest.h>

#include "support/RecordingHelp.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

class HelpContents : public testing::Test {
  protected:
    void Make(const std::string& rows) {
        MakeHelpDatabase(folder.Path(), rows.empty() ? "" : "INSERT INTO HELP_CONTENTS VALUES " + rows + ";");
    }
    HelpContentsModel Open() { return {help, messages}; }
    // Returns "name(child child)" for each topic in the list.
    static std::string Shape(const HelpContentsModel& model, const std::vector<int>& topics) {
        std::string shape;
        for (const int topic : topics) {
            const HelpTopic& entry = model.Topics()[static_cast<std::size_t>(topic)];
            shape += (shape.empty() ? "" : " ") + entry.name;
            if (!entry.children.empty()) shape += "(" + Shape(model, entry.children) + ")";
        }
        return shape;
    }

    TemporaryFolder folder;
    MessageRecorder messages;
    RecordingBrowser browser;
    MemoryFiles files;
    Help help{folder.Path().string(), messages, browser, files};
};

TEST_F(HelpContents, TopicsStandBelowTheirParentsInTheOrderOfTheirNumbers) {
    Make(
        "(7, 'Hops', 'hops.html', 3), (3, 'Recipes', 'recipes.html', -1), (5, 'Malts', 'malts.html', 3),"
        " (1, 'Welcome', 'home.html', -1), (20, 'Tinseth', 'ibu.html', 7), (10, 'Water', 'w.html', 3)");
    const HelpContentsModel model = Open();
    EXPECT_EQ(Shape(model, model.TopLevel()), "Welcome Recipes(Malts Hops(Tinseth) Water)");
    EXPECT_EQ(model.Topics().front().key, "T1");
    EXPECT_EQ(model.Topics().front().page, "home.html");
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HelpContents, StartsOnTheFirstTopicAndDoublesTheAmpersandsOfTheLabel) {
    Make("(1, 'Malts & Grains && more', 'm.html', -1), (2, 'Hops', 'h.html', -1)");
    HelpContentsModel model = Open();
    EXPECT_EQ(model.Selected(), 0);
    EXPECT_EQ(model.SelectedText(), "Malts && Grains &&&& more");
    model.Select(1);
    EXPECT_EQ(model.SelectedText(), "Hops");
}

TEST_F(HelpContents, ADoubleClickShowsThePageOfTheSelectedTopic) {
    Make("(1, 'Welcome', 'home.html', -1), (2, 'Hops', 'hops.html', 1)");
    files.files[folder.Path().string() + "/index_template.dat"] = "$START_PAGE";
    HelpContentsModel model = Open();
    EXPECT_TRUE(model.SetControl("TreeView1", "Hops"));
    EXPECT_TRUE(model.Press("TreeView1"));
    EXPECT_EQ(files.files[folder.Path().string() + "/OnlineHelp/temp_index.html"], "hops.html");
    EXPECT_TRUE(model.IsOpen());
    EXPECT_FALSE(model.SetControl("TreeView1", "Gone"));
    EXPECT_FALSE(model.SetControl("lblSel", "Hops"));
    EXPECT_FALSE(model.Press("cmdOK"));
    model.CloseBox();
    EXPECT_FALSE(model.IsOpen());
}

TEST_F(HelpContents, AMissingDatabaseIsToldAndLeavesAnEmptyTree) {
    HelpContentsModel model = Open();
    EXPECT_EQ(messages.log, Strings{"[Error Loading Help Topics] Error: Could not find file '" +
                                    help.DatabasePath() + "'."});
    EXPECT_TRUE(model.Topics().empty());
    EXPECT_EQ(model.Selected(), HelpTopic::kTop);
    EXPECT_EQ(model.SelectedText(), "");
    model.ShowSelected();
    EXPECT_EQ(browser.opened, Strings{});
}

TEST_F(HelpContents, ATableThatIsMissingIsTold) {
    Database::CreateDatabase(help.DatabasePath(), "");
    Open();
    ASSERT_EQ(messages.log.size(), 1U);
    EXPECT_TRUE(messages.log[0].starts_with("[Error Loading Help Topics] Error: "));
}

TEST_F(HelpContents, WithoutTopicsNothingIsSelected) {
    Make("");
    EXPECT_EQ(Open().Selected(), HelpTopic::kTop);
    EXPECT_EQ(messages.log, Strings{});
}

TEST_F(HelpContents, ARingOfTopicsEndsWhereItCloses) {
    Make("(1, 'A', 'a.html', -1), (2, 'B', 'b.html', 1), (1, 'A', 'a.html', 2)");
    const HelpContentsModel model = Open();
    EXPECT_EQ(Shape(model, model.TopLevel()), "A(B)");
    EXPECT_EQ(messages.log, Strings{"[Error Loading Help Topics] Error: The topic 1 is listed twice"});
}

TEST_F(HelpContents, ATopicThatIsItsOwnParentIsOutOfReach) {
    Make("(1, 'A', 'a.html', -1), (2, 'B', 'b.html', 2), (3, 'C', 'c.html', 9)");
    const HelpContentsModel model = Open();
    EXPECT_EQ(Shape(model, model.TopLevel()), "A");
    EXPECT_EQ(messages.log, Strings{});
}

}  // namespace
}  // namespace tw::test

// Tests of the links and the check box of the assistant.
#include "help/AssistantModel.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

TEST(Assistant, EachLinkClosesTheWindowAndNamesItsCommand) {
    const std::vector<std::pair<std::string, std::string>> links = {{"New", "mnuFileNew"},
                                                                    {"Open", "mnuFileOpen"},
                                                                    {"Explore", "mnuToolsExplorer"},
                                                                    {"Database", "mnuToolsDataSetup"},
                                                                    {"Help", "mnuHelpAuto"}};
    for (const auto& [name, command] : links) {
        for (const char* kind : {"img", "lbl"}) {
            AssistantModel model(true);
            EXPECT_TRUE(model.Press(kind + name));
            EXPECT_FALSE(model.IsOpen());
            EXPECT_EQ(RowOf(model.Chosen().value()).name, command);
        }
    }
}

TEST(Assistant, OkAndTheCloseBoxRunNothing) {
    AssistantModel byButton(true), byBox(true);
    EXPECT_TRUE(byButton.Press("cmdOK"));
    byBox.CloseBox();
    for (const AssistantModel* model : {&byButton, &byBox}) {
        EXPECT_FALSE(model->IsOpen());
        EXPECT_EQ(model->Chosen(), std::nullopt);
    }
}

TEST(Assistant, HasNoOtherControls) {
    AssistantModel model(true);
    for (const char* name : {"New", "cmdNew", "imgNews", "lbl", ""}) EXPECT_FALSE(model.Press(name)) << name;
    EXPECT_FALSE(model.SetControl("chkShowAtStartup", "maybe"));
    EXPECT_FALSE(model.SetControl("lblNew", "yes"));
    EXPECT_TRUE(model.IsOpen());
}

TEST(Assistant, TheCheckBoxShowsAndTakesTheSetting) {
    AssistantModel model(false);
    EXPECT_EQ(model.Controls().front().name, "chkShowAtStartup");
    EXPECT_EQ(model.Controls().front().text, "no");
    EXPECT_TRUE(model.SetControl("chkShowAtStartup", "yes"));
    EXPECT_TRUE(model.ShowAtStartup());
    EXPECT_EQ(model.Controls()[3].text, "Explore recipes, styles and folders");
}

}  // namespace
}  // namespace tw::test

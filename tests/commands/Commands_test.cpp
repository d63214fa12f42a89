// Tests of the command tables for errors that no compiler detects.
#include "commands/Commands.h"

#include <cctype>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>

#include "commands/PopupCommands.h"

namespace tw::test {
namespace {

TEST(Commands, EachIsFoundByItsControlNameAlone) {
    std::set<std::string_view> names;
    for (const CommandRow& row : AllCommandRows()) {
        EXPECT_TRUE(row.name.starts_with("mnu")) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name << " stands there twice";
        EXPECT_EQ(FindCommandId(row.name), row.id);
        EXPECT_EQ(RowOf(row.id).name, row.name);
    }
    EXPECT_EQ(names.size(), kCommandCount);
    for (const char* name : {"", "mnuFile", "mnufilenew", "mnuFileMRU", "mnuFileMRU(6)", "New"})
        EXPECT_EQ(FindCommandId(name), std::nullopt) << name;
}

TEST(Commands, EachStandsInTheMenuOfItsName) {
    EXPECT_EQ(MenuOf(CommandId::FileNew), TopMenu::File);
    EXPECT_EQ(MenuOf(CommandId::FileExit), TopMenu::File);
    EXPECT_EQ(MenuOf(CommandId::EditHydroCalibration), TopMenu::Edit);
    EXPECT_EQ(MenuOf(CommandId::EditAppendFlag), TopMenu::Edit);
    EXPECT_EQ(MenuOf(CommandId::ToolBar1), TopMenu::Tools);
    EXPECT_EQ(MenuOf(CommandId::WindowTileVertical), TopMenu::Window);
    EXPECT_EQ(MenuOf(CommandId::HelpAbout), TopMenu::Help);
}

TEST(Commands, RecentRecipesAreCountedFromZero) {
    EXPECT_EQ(RowOf(RecentCommand(0)).name, "mnuFileMRU(0)");
    EXPECT_EQ(RowOf(RecentCommand(kRecentSlots - 1)).name, "mnuFileMRU(5)");
}

// A duplicate key or position would hide a command.
TEST(Commands, NoTwoShareAKeyOrAPlaceInTheToolbar) {
    std::set<std::string_view> keys, buttons;
    std::set<int> places;
    for (const CommandRow& row : AllCommandRows()) {
        if (!row.keys.empty()) {
            EXPECT_TRUE(keys.insert(row.keys).second) << row.name;
        }
        if (row.button.key.empty()) continue;
        EXPECT_TRUE(buttons.insert(row.button.key).second) << row.name;
        EXPECT_TRUE(places.insert(row.button.place).second) << row.name;
    }
    EXPECT_EQ(buttons.size(), 17u);
}

char AccessKeyOf(std::string_view caption) {
    const std::size_t mark = caption.find('&');
    if (mark == std::string_view::npos) return 0;
    return static_cast<char>(std::tolower(static_cast<unsigned char>(caption[mark + 1])));
}

// Of two items with the same access key, neither could be chosen by it.
TEST(Commands, NoTwoItemsOfAMenuShowTheSameAccessKey) {
    std::set<std::pair<TopMenu, char>> used;
    for (const CommandRow& row : AllCommandRows()) {
        const char key = AccessKeyOf(ShownCaption(row, row.caption));
        if (key != 0) {
            EXPECT_TRUE(used.emplace(MenuOf(row.id), key).second) << row.name;
        }
    }
    EXPECT_EQ(ShownCaption(RowOf(CommandId::FileDoctor), RowOf(CommandId::FileDoctor).caption),
              "I&mport from Other Programs...");
    EXPECT_EQ(ShownCaption(RowOf(CommandId::FileOpen), "&Open..."), "&Open...");
}

TEST(Commands, EveryCommandOnARecipeWaitsForOne) {
    for (const CommandRow& row : AllCommandRows()) {
        if (row.caption == kSeparator) continue;
        EXPECT_EQ(row.needs == Needs::ActiveRecipe, MenuOf(row.id) == TopMenu::Edit) << row.name;
    }
}

TEST(Commands, EntriesAreCommittedBeforeWhatLooksAtThem) {
    for (const CommandRow& row : AllCommandRows()) {
        if (row.caption == kSeparator) continue;
        const bool onRows = row.id == CommandId::EditInsert || row.id == CommandId::EditDelete;
        const bool opensRecipe = row.id == CommandId::HelpSample;
        const TopMenu menu = MenuOf(row.id);
        EXPECT_EQ(row.commitsEntry, onRows || opensRecipe || (menu != TopMenu::Edit && menu != TopMenu::Help))
            << row.name;
    }
}

TEST(PopupCommands, HaveControlNames) {
    EXPECT_EQ(NameOf(PopupCommand::Open), "mnuOpen");
    EXPECT_EQ(NameOf(PopupCommand::Details), "mnuDetails");
    EXPECT_EQ(NameOf(PopupCommand::ResetColors), "mnuResetColors");
    EXPECT_EQ(NameOf(PopupCommand::SortDescending), "mnuPopupSortDesc");
    EXPECT_EQ(NameOf({PopupCommand::ArrangeBy, 3}), "mnuArrangeBy(3)");
}

}  // namespace
}  // namespace tw::test

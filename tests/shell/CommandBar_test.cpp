#include "shell/CommandBar.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

// Caption, key and initial state ("", "off", "hidden") of a menu item. Separators are left out.
using ItemRow = std::tuple<std::string, std::string, std::string, std::string>;

std::vector<ItemRow> ItemsOf(const CommandBar& bar, std::string_view menu) {
    std::vector<ItemRow> rows;
    for (const MenuItem& item : bar.Items()) {
        if (item.menu != menu || item.IsSeparator()) continue;
        rows.emplace_back(item.name, item.caption, item.shortcut,
                          !item.visible   ? "hidden"
                          : !item.enabled ? "off"
                                          : "");
    }
    return rows;
}

TEST(CommandBar, TheTopLevelMenus) {
    Strings captions;
    const CommandBar bar;
    for (const MenuItem& menu : bar.Menus()) captions.push_back(std::string(menu.name) + " " + menu.caption);
    EXPECT_EQ(captions, (Strings{"mnuFile &File", "mnuEdit &Edit", "mnuTools &Tools", "mnuWindow &Window",
                                 "mnuHelp &Help"}));
    EXPECT_EQ(bar.FindItem("mnuWindow")->caption, "&Window");
}

TEST(CommandBar, TheFileMenu) {
    EXPECT_EQ(ItemsOf(CommandBar(), "mnuFile"),
              (std::vector<ItemRow>{
                  {"mnuFileNew", "&New", "Ctrl+N", ""},
                  {"mnuFileOpen", "&Open...", "Ctrl+O", ""},
                  {"mnuFileClose", "&Close", "", "off"},
                  {"mnuFileCloseAll", "Clos&e All", "", "off"},
                  {"mnuFileSave", "&Save", "Ctrl+S", "off"},
                  {"mnuFileSaveAs", "Save &As...", "", "off"},
                  {"mnuFileSaveAll", "Save A&ll", "", "off"},
                  {"mnuFileImport", "&Import...", "", ""},
                  {"mnuFileExport", "Expo&rt...", "", ""},
                  {"mnuFileDoctor", "Import from &Other Programs...", "", ""},
                  {"mnuFileExportOther", "Export for Other Pro&grams...", "", ""},
                  {"mnuFileCarried", "Carried &Data...", "", "off"},
                  {"mnuFileDelete", "&Delete...", "Ctrl+D", ""},
                  {"mnuFilePrint", "&Print...", "Ctrl+P", "off"},
                  {"mnuFilePreview", "Print Pre&view...", "Ctrl+Shift+P", "off"},
                  {"mnuFileReport", "Create Report...", "", "hidden"},
                  {"mnuFileMRU(0)", "", "", "hidden"},
                  {"mnuFileMRU(1)", "", "", "hidden"},
                  {"mnuFileMRU(2)", "", "", "hidden"},
                  {"mnuFileMRU(3)", "", "", "hidden"},
                  {"mnuFileMRU(4)", "", "", "hidden"},
                  {"mnuFileMRU(5)", "", "", "hidden"},
                  {"mnuFileExit", "E&xit", "", ""},
              }));
}

TEST(CommandBar, TheEditMenu) {
    EXPECT_EQ(ItemsOf(CommandBar(), "mnuEdit"),
              (std::vector<ItemRow>{
                  {"mnuEditHydroCalibration", "&Hydrometer Calibration...", "", "hidden"},
                  {"mnuEditBottleCalc", "&Bottle Volume Calculator...", "", "hidden"},
                  {"mnuEditWaterCalc", "&Water Volume Calculator...", "", "hidden"},
                  {"mnuEditUndo", "&Undo", "Ctrl+Z", "off"},
                  {"mnuEditRedo", "&Redo", "Ctrl+Y", "off"},
                  {"mnuEditCut", "Cu&t", "Ctrl+X", "off"},
                  {"mnuEditCopy", "&Copy", "Ctrl+C", "off"},
                  {"mnuEditPaste", "&Paste", "Ctrl+V", "off"},
                  {"mnuEditClear", "Delete", "", "off"},
                  {"mnuEditSelectAll", "Select &All", "Ctrl+A", "off"},
                  {"mnuEditInsert", "&Insert Row", "", "off"},
                  {"mnuEditDelete", "&Delete Row", "", "off"},
                  {"mnuEditAppendFlag", "&Append on Insert", "Ctrl+I", ""},
              }));
    EXPECT_FALSE(CommandBar().FindItem("mnuEditAppendFlag")->checked);
}

TEST(CommandBar, TheToolsMenu) {
    EXPECT_EQ(ItemsOf(CommandBar(), "mnuTools"),
              (std::vector<ItemRow>{
                  {"mnuToolsDataSetup", "&Database Setup...", "F4", ""},
                  {"mnuToolsExplorer", "Recipe &Explorer...", "F5", ""},
                  {"mnuToolsAssistant", "Tunwright &Assistant...", "F3", ""},
                  {"mnuToolsResizeRecipe", "&Resize Recipe...", "", "off"},
                  {"mnuToolsChangeStrength", "Adjust &Strength...", "", "off"},
                  {"mnuToolsChangeBitterness", "Adjust &Bitterness...", "", "off"},
                  {"mnuToolsChangeCO2", "Adjust &Carbonation...", "", "off"},
                  {"mnuToolsUnits", "Convert &Units...", "", ""},
                  {"mnuToolsHydrometer", "&Hydrometer Calibration...", "", ""},
                  {"mnuToolsColorScale", "Co&lor Scales...", "", ""},
                  {"mnuToolsHopUtil", "Hop Utilization &Graphs...", "", ""},
                  {"mnuToolsOptions", "&Options...", "F6", ""},
                  {"mnuToolsBrewhouse", "Your Bre&whouse...", "", ""},
              }));
}

TEST(CommandBar, TheWindowAndHelpMenus) {
    EXPECT_EQ(ItemsOf(CommandBar(), "mnuWindow"),
              (std::vector<ItemRow>{{"mnuWindowCascade", "&Cascade", "", "off"},
                                    {"mnuWindowTileHorizontal", "Tile &Horizontal", "", "off"},
                                    {"mnuWindowTileVertical", "Tile &Vertical", "", "off"}}));
    EXPECT_EQ(ItemsOf(CommandBar(), "mnuHelp"),
              (std::vector<ItemRow>{{"mnuHelpContents", "&Contents...", "", ""},
                                    {"mnuHelpAuto", "&Help...", "F1", ""},
                                    {"mnuHelpNews", "What's &New", "", ""},
                                    {"mnuHelpSample", "Open a &Sample Recipe", "", ""},
                                    {"mnuHelpAbout", "&About Tunwright...", "", ""}}));
}

TEST(CommandBar, TheSeparatorsAndWhichOfThemStartHidden) {
    Strings visible;
    Strings hidden;
    const CommandBar bar;
    for (const MenuItem& item : bar.Items()) {
        if (item.IsSeparator()) (item.visible ? visible : hidden).emplace_back(item.name);
    }
    EXPECT_EQ(visible, (Strings{"mnuFileBar0", "mnuFileBar1", "mnuFileBar2", "mnuFileBar3", "mnuFileBar4",
                                "mnuFileBar5", "mnuEditBar1", "mnuEditBar2", "mnuEditBar3", "mnuToolBar1",
                                "mnuToolBar2", "mnuToolBar3", "mnuHelpBar"}));
    EXPECT_EQ(hidden, (Strings{"mnuFileBar6", "mnuFileBar7", "mnuEditBar0"}));
}

TEST(CommandBar, NoTwoSeparatorsMeetAndNoneStandsAtAnEnd) {
    const CommandBar bar;
    for (const MenuItem& menu : bar.Menus()) {
        std::vector<const MenuItem*> shown;
        for (const MenuItem& item : bar.Items()) {
            if (item.menu == menu.name && item.visible) shown.push_back(&item);
        }
        ASSERT_FALSE(shown.empty());
        EXPECT_FALSE(shown.front()->IsSeparator()) << menu.name;
        EXPECT_FALSE(shown.back()->IsSeparator()) << menu.name;
        EXPECT_EQ(std::adjacent_find(shown.begin(), shown.end(),
                                     [](auto* a, auto* b) { return a->IsSeparator() && b->IsSeparator(); }),
                  shown.end())
            << menu.name;
    }
}

TEST(CommandBar, TheToolbar) {
    using Row = std::tuple<std::string, std::string, std::string, std::string>;
    std::vector<Row> rows;
    const CommandBar bar;
    for (const ToolButton& b : bar.Buttons()) {
        rows.emplace_back(b.key, b.toolTip, b.image, b.menuItem);
        EXPECT_EQ(b.tag, b.image);
    }
    EXPECT_EQ(rows, (std::vector<Row>{
                        {"New", "New", "New", "mnuFileNew"},
                        {"Open", "Open", "Open", "mnuFileOpen"},
                        {"Save", "Save", "SaveTransparent", "mnuFileSave"},
                        {"Cut", "Cut", "Cut", "mnuEditCut"},
                        {"Copy", "Copy", "CopyTransparent", "mnuEditCopy"},
                        {"Paste", "Paste", "PasteTransparent", "mnuEditPaste"},
                        {"Undo", "Undo", "Undo", "mnuEditUndo"},
                        {"Redo", "Redo", "Redo", "mnuEditRedo"},
                        {"Insert", "Insert Row", "Insert", "mnuEditInsert"},
                        {"Delete", "Delete Row", "Delete", "mnuEditDelete"},
                        {"Volume", "Resize Recipe", "Gal", "mnuToolsResizeRecipe"},
                        {"Strength", "Adjust Strength", "OG", "mnuToolsChangeStrength"},
                        {"Bitterness", "Adjust Bitterness", "IBU", "mnuToolsChangeBitterness"},
                        {"Carbonation", "Adjust Carbonation", "CO2", "mnuToolsChangeCO2"},
                        {"Print", "Print", "PrintTransparent", "mnuFilePrint"},
                        {"Explorer", "Recipe Explorer", "Explorer", "mnuToolsExplorer"},
                        {"Setup", "Database Setup", "Setup", "mnuToolsDataSetup"},
                    }));
}

TEST(CommandBar, AButtonStartsOffExactlyWhenItsMenuItemDoes) {
    const CommandBar bar;
    for (const ToolButton& button : bar.Buttons()) {
        const MenuItem* item = bar.FindItem(button.menuItem);
        ASSERT_TRUE(item) << button.key;
        EXPECT_EQ(button.enabled, item->enabled) << button.key;
    }
    EXPECT_TRUE(bar.FindButton("New")->enabled);
    EXPECT_FALSE(bar.FindButton("Save")->enabled);
}

TEST(CommandBar, AButtonWithATwinChangesItsImageAndTag) {
    CommandBar bar;
    bar.SetButtonEnabled(CommandId::FileSave, true);
    EXPECT_TRUE(bar.FindButton("Save")->enabled);
    EXPECT_EQ(bar.FindButton("Save")->image, "Save");
    EXPECT_EQ(bar.FindButton("Save")->tag, "Save");
    bar.SetButtonEnabled(CommandId::FileSave, false);
    EXPECT_EQ(bar.FindButton("Save")->image, "SaveTransparent");
    EXPECT_EQ(bar.FindButton("Save")->tag, "SaveTransparent");
    bar.SetButtonEnabled(CommandId::FileOpen, false);
    EXPECT_EQ(bar.FindButton("Open")->image, "Open");
}

TEST(CommandBar, UnknownNamesAreNotFound) {
    const CommandBar bar;
    EXPECT_EQ(bar.FindItem("mnuFileNope"), nullptr);
    EXPECT_EQ(bar.FindItem(""), nullptr);
    EXPECT_EQ(bar.FindButton("new"), nullptr);
}

class ChangeLog : public CommandObserver {
  public:
    void MenuItemChanged(const MenuItem& item) override { log.emplace_back(item.name); }
    void ToolButtonChanged(const ToolButton& button) override { log.emplace_back(button.key); }
    Strings log;
};

TEST(CommandBar, TheObserverHearsOfChangesAlone) {
    CommandBar bar;
    ChangeLog changes;
    bar.SetObserver(&changes);
    bar.SetEnabled(CommandId::FileNew, true);
    bar.SetVisible(CommandId::FileBar5, true);
    bar.SetChecked(CommandId::EditAppendFlag, false);
    bar.SetCaption(CommandId::FileNew, "&New");
    bar.SetButtonEnabled(CommandId::FileSave, false);
    EXPECT_EQ(changes.log, Strings{});
    bar.SetEnabled(CommandId::FileNew, false);
    bar.SetVisible(CommandId::FileBar5, false);
    bar.SetChecked(CommandId::EditAppendFlag, true);
    bar.SetCaption(CommandId::EditUndo, "&Undo x");
    bar.SetButtonEnabled(CommandId::FileSave, true);
    EXPECT_EQ(changes.log,
              (Strings{"mnuFileNew", "mnuFileBar5", "mnuEditAppendFlag", "mnuEditUndo", "Save"}));
}

}  // namespace
}  // namespace tw::test

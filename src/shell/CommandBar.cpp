#include "shell/CommandBar.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace tw {
namespace {

enum Start { kOn, kOff, kHidden };

struct MenuRow {
    std::string_view name;
    std::string_view caption;
    std::string_view shortcut = {};
    Start start = kOn;
};

constexpr MenuRow kMenus[] = {
    {"mnuFile", "&File"},     {"mnuEdit", "&Edit"}, {"mnuTools", "&Tools"},
    {"mnuWindow", "&Window"}, {"mnuHelp", "&Help"},
};

constexpr std::string_view kBar = "-";

constexpr MenuRow kFileItems[] = {
    {"mnuFileNew", "&New", "Ctrl+N"},
    {"mnuFileOpen", "&Open...", "Ctrl+O"},
    {"mnuFileBar0", kBar},
    {"mnuFileClose", "&Close", "", kOff},
    {"mnuFileCloseAll", "Clos&e All", "", kOff},
    {"mnuFileBar1", kBar},
    {"mnuFileSave", "&Save", "Ctrl+S", kOff},
    {"mnuFileSaveAs", "Save &As...", "", kOff},
    {"mnuFileSaveAll", "Save A&ll", "", kOff},
    {"mnuFileBar2", kBar},
    {"mnuFileImport", "&Import..."},
    {"mnuFileExport", "Expo&rt..."},
    {"mnuFileBar3", kBar},
    {"mnuFileDelete", "&Delete...", "Ctrl+D"},
    {"mnuFileBar4", kBar},
    {"mnuFilePrint", "&Print...", "Ctrl+P", kOff},
    {"mnuFilePreview", "Print Pre&view...", "Ctrl+Shift+P", kOff},
    {"mnuFileBar5", kBar},
    {"mnuFileReport", "Create Report...", "", kHidden},
    {"mnuFileBar6", kBar, "", kHidden},
    {"mnuFileMRU(0)", "", "", kHidden},
    {"mnuFileMRU(1)", "", "", kHidden},
    {"mnuFileMRU(2)", "", "", kHidden},
    {"mnuFileMRU(3)", "", "", kHidden},
    {"mnuFileMRU(4)", "", "", kHidden},
    {"mnuFileMRU(5)", "", "", kHidden},
    {"mnuFileBar7", kBar, "", kHidden},
    {"mnuFileExit", "E&xit"},
};

constexpr MenuRow kEditItems[] = {
    {"mnuEditHydroCalibration", "&Hydrometer Calibration...", "", kHidden},
    {"mnuEditBottleCalc", "&Bottle Volume Calculator...", "", kHidden},
    {"mnuEditWaterCalc", "&Water Volume Calculator...", "", kHidden},
    {"mnuEditBar0", kBar, "", kHidden},
    {"mnuEditUndo", "&Undo", "Ctrl+Z", kOff},
    {"mnuEditRedo", "&Redo", "Ctrl+Y", kOff},
    {"mnuEditBar1", kBar},
    {"mnuEditCut", "Cu&t", "Ctrl+X", kOff},
    {"mnuEditCopy", "&Copy", "Ctrl+C", kOff},
    {"mnuEditPaste", "&Paste", "Ctrl+V", kOff},
    {"mnuEditClear", "Delete", "", kOff},
    {"mnuEditBar2", kBar},
    {"mnuEditSelectAll", "Select &All", "Ctrl+A", kOff},
    {"mnuEditBar3", kBar},
    {"mnuEditInsert", "&Insert Row", "", kOff},
    {"mnuEditDelete", "&Delete Row", "", kOff},
    {"mnuEditAppendFlag", "&Append on Insert", "Ctrl+I"},
};

constexpr MenuRow kToolsItems[] = {
    {"mnuToolsDataSetup", "&Database Setup...", "F4"},
    {"mnuToolsExplorer", "Recipe &Explorer...", "F5"},
    {"mnuToolsAssistant", "Tunwright &Assistant...", "F3"},
    {"mnuToolBar1", kBar},
    {"mnuToolsResizeRecipe", "&Resize Recipe...", "", kOff},
    {"mnuToolsChangeStrength", "Adjust &Strength...", "", kOff},
    {"mnuToolsChangeBitterness", "Adjust &Bitterness...", "", kOff},
    {"mnuToolsChangeCO2", "Adjust &Carbonation...", "", kOff},
    {"mnuToolBar2", kBar},
    {"mnuToolsUnits", "Convert &Units..."},
    {"mnuToolsHydrometer", "&Hydrometer Calibration..."},
    {"mnuToolsColorScale", "Co&lor Scales..."},
    {"mnuToolsHopUtil", "Hop Utilization &Graphs..."},
    {"mnuToolBar3", kBar},
    {"mnuToolsOptions", "&Options...", "F6"},
};

constexpr MenuRow kWindowItems[] = {
    {"mnuWindowCascade", "&Cascade", "", kOff},
    {"mnuWindowTileHorizontal", "Tile &Horizontal", "", kOff},
    {"mnuWindowTileVertical", "Tile &Vertical", "", kOff},
};

constexpr MenuRow kHelpItems[] = {
    {"mnuHelpContents", "&Contents..."},
    {"mnuHelpAuto", "&Help...", "F1"},
    {"mnuHelpBar", kBar},
    {"mnuHelpAbout", "&About Tunwright..."},
};

struct ButtonRow {
    std::string_view key;
    std::string_view toolTip;
    std::string_view image;
    std::string_view menuItem;
    int group;
};

constexpr ButtonRow kButtons[] = {
    {"New", "New", "New", "mnuFileNew", 0},
    {"Open", "Open", "Open", "mnuFileOpen", 0},
    {"Save", "Save", "SaveTransparent", "mnuFileSave", 0},
    {"Cut", "Cut", "Cut", "mnuEditCut", 1},
    {"Copy", "Copy", "CopyTransparent", "mnuEditCopy", 1},
    {"Paste", "Paste", "PasteTransparent", "mnuEditPaste", 1},
    {"Undo", "Undo", "Undo", "mnuEditUndo", 2},
    {"Redo", "Redo", "Redo", "mnuEditRedo", 2},
    {"Insert", "Insert Row", "Insert", "mnuEditInsert", 3},
    {"Delete", "Delete Row", "Delete", "mnuEditDelete", 3},
    {"Volume", "Resize Recipe", "Gal", "mnuToolsResizeRecipe", 4},
    {"Strength", "Adjust Strength", "OG", "mnuToolsChangeStrength", 4},
    {"Bitterness", "Adjust Bitterness", "IBU", "mnuToolsChangeBitterness", 4},
    {"Carbonation", "Adjust Carbonation", "CO2", "mnuToolsChangeCO2", 4},
    {"Print", "Print", "PrintTransparent", "mnuFilePrint", 5},
    {"Explorer", "Recipe Explorer", "Explorer", "mnuToolsExplorer", 6},
    {"Setup", "Database Setup", "Setup", "mnuToolsDataSetup", 6},
};

template <std::size_t N>
void AppendMenu(std::vector<MenuItem>& items, std::string_view menu, const MenuRow (&rows)[N]) {
    for (const MenuRow& row : rows) {
        MenuItem item;
        item.name = row.name;
        item.caption = row.caption;
        item.shortcut = row.shortcut;
        item.menu = menu;
        item.enabled = row.start != kOff;
        item.visible = row.start != kHidden;
        items.push_back(std::move(item));
    }
}

}  // namespace

CommandBar::CommandBar() {
    AppendMenu(menus_, "", kMenus);
    AppendMenu(items_, "mnuFile", kFileItems);
    AppendMenu(items_, "mnuEdit", kEditItems);
    AppendMenu(items_, "mnuTools", kToolsItems);
    AppendMenu(items_, "mnuWindow", kWindowItems);
    AppendMenu(items_, "mnuHelp", kHelpItems);
    for (const ButtonRow& row : kButtons) {
        const MenuItem& item = Item(row.menuItem);
        buttons_.push_back({std::string(row.key), std::string(row.toolTip), std::string(row.image),
                            std::string(row.image), std::string(row.menuItem), row.group, item.enabled});
    }
}

const MenuItem* CommandBar::FindItem(std::string_view name) const {
    for (const auto* list : {&items_, &menus_}) {
        const auto found = std::ranges::find(*list, name, &MenuItem::name);
        if (found != list->end()) return &*found;
    }
    return nullptr;
}

const ToolButton* CommandBar::FindButton(std::string_view key) const {
    const auto found = std::ranges::find(buttons_, key, &ToolButton::key);
    return found == buttons_.end() ? nullptr : &*found;
}

MenuItem& CommandBar::Item(std::string_view name) {
    const auto found = std::ranges::find(items_, name, &MenuItem::name);
    assert(found != items_.end());
    return *found;
}

ToolButton& CommandBar::Button(std::string_view key) {
    const auto found = std::ranges::find(buttons_, key, &ToolButton::key);
    assert(found != buttons_.end());
    return *found;
}

void CommandBar::SetCaption(std::string_view name, std::string_view caption) {
    MenuItem& item = Item(name);
    if (item.caption == caption) return;
    item.caption = caption;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetEnabled(std::string_view name, bool enabled) {
    MenuItem& item = Item(name);
    if (item.enabled == enabled) return;
    item.enabled = enabled;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetVisible(std::string_view name, bool visible) {
    MenuItem& item = Item(name);
    if (item.visible == visible) return;
    item.visible = visible;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetChecked(std::string_view name, bool checked) {
    MenuItem& item = Item(name);
    if (item.checked == checked) return;
    item.checked = checked;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetButtonEnabled(std::string_view key, bool enabled) {
    SetButton(Button(key), enabled, false);
}

void CommandBar::SetButtonWithTwin(std::string_view key, bool enabled) {
    SetButton(Button(key), enabled, true);
}

void CommandBar::SetButton(ToolButton& button, bool enabled, bool twin) {
    if (button.enabled == enabled) return;
    button.enabled = enabled;
    if (twin) {
        button.image = enabled ? button.key : button.key + "Transparent";
        button.tag = button.image;
    }
    if (observer_) observer_->ToolButtonChanged(button);
}

}  // namespace tw

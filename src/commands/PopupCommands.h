// The commands of the popup menus: those of the lists of folders and recipes (explorer, open and save
// dialog), of the lists for choosing recipes, and of the colors in the options.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tw {

enum class PopupCommand : std::uint8_t {
    Open,
    Delete,
    Rename,
    NewFolder,
    NewStyle,
    RenameFolder,
    DeleteFolder,
    // The views, in the order of ListViewType.
    LargeIcons,
    SmallIcons,
    List,
    Details,
    ArrangeBy,  // one menu item per column
    LineUp,
    SortAscending,
    SortDescending,
    ResetColors,
};

struct PopupRow {
    PopupCommand id;
    std::string_view name;  // of the control; for ArrangeBy without the index
    const char* caption;  // "&" marks the access key; empty for ArrangeBy, which shows the name of its column
};

// A command together with its argument.
struct PopupChoice {
    // Implicit, so that a command that needs no column can be passed as it is.
    PopupChoice(PopupCommand chosen, int arrangeColumn = 0) : command(chosen), column(arrangeColumn) {}
    PopupCommand command;
    int column;  // for ArrangeBy, counted from 0; otherwise 0
    bool operator==(const PopupChoice&) const = default;
};

// The control names of the menus themselves.
inline constexpr const char* kListPopup = "mnuPopupList";  // of the explorer's list
inline constexpr const char* kTreePopup = "mnuPopupTree";  // of the explorer's tree
inline constexpr const char* kOpenSavePopup = "mnuPopup";  // of the open and save dialog's list
inline constexpr const char* kViewMenu = "mnuView";        // a submenu of kListPopup, kOpenSavePopup
inline constexpr const char* kArrangeMenu = "mnuArrange";  // a submenu of the same two

// The caption of NewFolder in the menu of the open and save dialog. That menu has no "New Style" command, so
// N is free as the access key.
inline constexpr const char* kOpenSaveNewFolderCaption = "&New Folder";

const PopupRow& RowOf(PopupCommand id);
// Returns the control name of the menu item; for ArrangeBy with its column as the index.
std::string NameOf(PopupChoice choice);

}  // namespace tw

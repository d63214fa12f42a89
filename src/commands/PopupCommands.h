// The commands of the popup menus: of the lists of folders and recipes (explorer, open and save dialog), of
// the lists to choose recipes from, and of the colors in the options.
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
    ArrangeBy,  // one item a column
    LineUp,
    SortAscending,
    SortDescending,
    ResetColors,
};

struct PopupRow {
    PopupCommand id;
    std::string_view name;  // control name; of ArrangeBy without the index
    const char* caption;    // "&" marks the access key; of ArrangeBy empty, it shows its column
};

// A command as it is run.
struct PopupChoice {
    // Implicit, so that a command without a column stands for itself.
    PopupChoice(PopupCommand chosen, int arrangeColumn = 0) : command(chosen), column(arrangeColumn) {}
    PopupCommand command;
    int column;  // of ArrangeBy, from 0; 0 otherwise
    bool operator==(const PopupChoice&) const = default;
};

// The menus themselves, by their control names.
inline constexpr const char* kListPopup = "mnuPopupList";  // of the explorer's list
inline constexpr const char* kTreePopup = "mnuPopupTree";  // of the explorer's tree
inline constexpr const char* kOpenSavePopup = "mnuPopup";  // of the open and save dialog's list
inline constexpr const char* kViewMenu = "mnuView";        // a sub-menu of both
inline constexpr const char* kArrangeMenu = "mnuArrange";  // likewise

// NewFolder in the menu of the open and save dialog: no "New Style" stands beside it there, so that N is its
// access key.
inline constexpr const char* kOpenSaveNewFolderCaption = "&New Folder";

const PopupRow& RowOf(PopupCommand id);
// The control name of the item, such as that of ArrangeBy with its column as the index.
std::string NameOf(PopupChoice choice);

}  // namespace tw

#include "commands/PopupCommands.h"

#include <cstddef>

namespace tw {
namespace {

constexpr PopupRow kPopupCommands[] = {
    {PopupCommand::Open, "mnuOpen", "&Open"},
    {PopupCommand::Delete, "mnuDelete", "&Delete"},
    {PopupCommand::Rename, "mnuRename", "&Rename"},
    {PopupCommand::NewFolder, "mnuNewFolder", "New &Folder"},
    {PopupCommand::NewStyle, "mnuNewStyle", "New &Style"},
    {PopupCommand::RenameFolder, "mnuRenameFolder", "&Rename"},
    {PopupCommand::DeleteFolder, "mnuDeleteFolder", "&Delete"},
    {PopupCommand::LargeIcons, "mnuLargeIcons", "Lar&ge Icons"},
    {PopupCommand::SmallIcons, "mnuSmallIcons", "S&mall Icons"},
    {PopupCommand::List, "mnuList", "&List"},
    {PopupCommand::Details, "mnuDetails", "&Details"},
    {PopupCommand::ArrangeBy, "mnuArrangeBy", ""},
    {PopupCommand::LineUp, "mnuLineUp", "Line &Up Icons"},
    {PopupCommand::SortAscending, "mnuPopupSortAsc", "Sort &Ascending"},
    {PopupCommand::SortDescending, "mnuPopupSortDesc", "Sort &Descending"},
    {PopupCommand::ResetColors, "mnuResetColors", "&Reset"},
};

constexpr bool StandsInOrder() {
    std::size_t next = 0;
    for (const PopupRow& row : kPopupCommands)
        if (row.id != static_cast<PopupCommand>(next++)) return false;
    return true;
}
static_assert(StandsInOrder(), "the rows stand in the order of PopupCommand");

}  // namespace

const PopupRow& RowOf(PopupCommand id) {
    return kPopupCommands[static_cast<std::size_t>(id)];
}

std::string NameOf(PopupChoice choice) {
    std::string name(RowOf(choice.command).name);
    if (choice.command == PopupCommand::ArrangeBy) name += "(" + std::to_string(choice.column) + ")";
    return name;
}

}  // namespace tw

// How the windows that list recipes were last left: the explorer, and the open and save dialog.
#pragma once

#include <string>
#include <vector>

#include "platform/SettingsStore.h"
#include "tree/NodeList.h"

namespace tw {

// A column at its place, and the width that the brewer gave it, in twips; 0 if it fits its contents.
struct ShownColumn {
    int column = 0;
    int width = 0;
    bool operator==(const ShownColumn&) const = default;
};
// All columns from the left, including hidden ones; empty if the brewer has changed nothing.
using ColumnLayout = std::vector<ShownColumn>;

struct BrowseView {
    ListLook look;
    ColumnLayout columns;
    // What only the explorer has.
    bool stylesPage = false;
    std::string recipeEntry, styleEntry;  // the keys of the selected entries; empty for the root folders
    int treeWidth = 0;                    // in twips; 0 for the usual width
};

// Loads what is stored in the section of the windows. What is missing or malformed keeps its value.
void LoadBrowseView(const SettingsStore& store, BrowseView& view);
// Stores what differs from before, so that a window that is only looked at leaves no trace.
void StoreBrowseView(const SettingsStore& store, const BrowseView& view, const BrowseView& before);

}  // namespace tw

// The columns and rows of a list.
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "tree/NodeIcon.h"

namespace tw {

// What a column contains, for sorting.
enum class ListColumnKind {
    Text,
    Number,  // numbers, ranges "{lo}-{hi}", numbers followed by a unit
    Date,    // the form of ListDate
};

struct ListColumn {
    std::string title;
    ListColumnKind kind = ListColumnKind::Text;
    bool showsColor = false;  // the cell shows the colour of the row
    std::string note = {};    // what the title omits, such as the unit
    // How windows show the column. Scripts see the columns in their order, with their titles.
    std::string caption = {};  // shorter than the title; empty if the title is shown
    int place = kNoPlace;      // the columns with a place are shown first, in its order
    bool hidden = false;

    static constexpr int kNoPlace = std::numeric_limits<int>::max();
    const std::string& Caption() const { return caption.empty() ? title : caption; }
};

struct ListRow {
    std::string key;  // identifies the row in its list; empty for a group row
    // One text per column, the name first. A cell without a value contains blanks; it is never empty.
    std::vector<std::string> cells;
    NodeIcon icon = NodeIcon::None;
    bool isFolder = false;  // always sorted before the others
    bool isGroup = false;   // a heading over rows, which cannot be selected
    int group = 0;          // rows are sorted within their group; a heading belongs to the group below it
    std::optional<double> hcu = std::nullopt;  // colour of the malt or beer, in homebrew colour units (HCU)
    // What a window shows or the filter searches in addition to the cells.
    std::string code = {};                     // shown before the name
    std::string origin = {};                   // the source of the row, such as "Beer style guide of 2021"
    std::vector<std::string> otherNames = {};  // other names of the row, and other texts by which it is found
};

}  // namespace tw

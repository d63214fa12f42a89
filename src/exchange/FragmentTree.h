// The text of a recipe from another program as a tree that a brewer can read.
#pragma once

#include <string>
#include <vector>

#include "store/CarriedData.h"

namespace tw {

// A tag of BeerXML or a member of BeerJSON. A record has its name as its value, an element of a JSON array
// its place, from 1, as its name; an amount with a unit is one value, such as "28 g".
struct FragmentNode {
    std::string name;
    std::string value = {};  // without blanks at its ends; empty for a node that only holds others
    std::vector<FragmentNode> children = {};
    bool operator==(const FragmentNode&) const = default;
};

// Deeper texts are shown as they stand.
inline constexpr int kMostFragmentLevels = 256;

// Returns the tree of a fragment. For a text that is not of its format, or of an unknown one, that is a
// single node "text" with all of it.
FragmentNode ReadFragment(const CarriedFragment& fragment);

}  // namespace tw

// What a recipe carries from other programs, as the lines of a tree.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "store/CarriedData.h"

namespace tw {

struct CarriedField {
    static constexpr int kTop = -1;

    std::string name;
    std::string value;         // empty for a field that only holds others
    std::size_t fragment = 0;  // the index of the fragment
    int level = 0;             // 0 for the whole fragment
    int parent = kTop;         // the index of the field above; kTop for level 0

    // Returns "NAME: VALUE", or the name alone if there is no value.
    std::string Line() const;
};

// Returns the fields of all fragments; a field stands before those that it holds.
std::vector<CarriedField> ReadCarriedFields(std::span<const CarriedFragment> fragments);
// Returns the line of a field and of each below it, two blanks a level, each with a line end. REQUIRES: index
// is that of a field.
std::string BranchText(std::span<const CarriedField> fields, std::size_t index);

}  // namespace tw

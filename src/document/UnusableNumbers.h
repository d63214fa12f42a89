// Numbers of a stored recipe that no formula can work with: damage, or another program's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record/RecipeRecord.h"

namespace tw {

// Where a text stands before such a number, in the words of the window: "Total Volume", "Grain row 2, Amount
// (lbs)". A field without a text counts for nothing, whatever its number is.
std::vector<std::string> UnusableNumbers(const RecipeRecord& record);

// The text of the box that tells of them, once for all.
std::string UnusableNumbersText(std::string_view recipe, const std::vector<std::string>& fields);

}  // namespace tw

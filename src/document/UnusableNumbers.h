// Finds numbers of a stored recipe with which no formula can work: they are damaged, or another program
// wrote them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record/RecipeRecord.h"

namespace tw {

// Returns the fields and cells with such a number, as the window names them: "Total Volume", "Grain row 2,
// Amount (lbs)". A field or cell without a text is ignored, whatever its number is.
std::vector<std::string> UnusableNumbers(const RecipeRecord& record);

// Returns the text of one message about all these fields.
std::string UnusableNumbersText(std::string_view recipe, const std::vector<std::string>& fields);

}  // namespace tw

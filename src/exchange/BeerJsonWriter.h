// Writes recipes as BeerJSON 1.0. docs/exchange.md lists which fact becomes which member.
#pragma once

#include <span>
#include <string>

#include "exchange/ExportedRecipe.h"

namespace tw {

// Returns a file with the recipes, in UTF-8 and indented, that satisfies the schema of the format. A recipe
// with a fragment, which is BeerJSON, keeps everything of it but what has changed and what the schema
// forbids. Amounts have the unit of their text where it is one quantity in a unit of the format. What the
// format cannot say is written as closely as it can and told. Raises nothing.
std::string WriteBeerJson(std::span<const ExportedRecipe> recipes, Findings& findings);

}  // namespace tw

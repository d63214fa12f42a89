// Writes recipes as BeerXML 1.0. docs/exchange.md lists which fact becomes which tag.
#pragma once

#include <span>
#include <string>

#include "exchange/ExportedRecipe.h"

namespace tw {

// Returns a file with the recipes, in UTF-8, that has every required tag, the words of closed lists as the
// format spells them, and optional tags only with a value. A recipe with a fragment, which is BeerXML, keeps
// everything of it but what has changed: unknown tags, attributes and the spelling of texts included. What
// the format cannot say is written as closely as it can and told. Raises nothing.
std::string WriteBeerXml(std::span<const ExportedRecipe> recipes, Findings& findings);

}  // namespace tw

// Turns BeerXML 1.0 into recipes that no format shapes. docs/exchange.md lists which tag becomes what.
#pragma once

#include <string_view>

#include "exchange/ForeignRecipe.h"

namespace tw {

// Adds everything that a BeerXML text contains to file, and what is odd about it to the findings. Record sets
// and records are found at any depth, in any order, in any case. The text is well-formed UTF-8; if it is not,
// what stands before the first fault is read, with a finding. Raises an Error for more records than
// kMostExchangeRecords.
//
// A recipe's stated figures are those that the other program has calculated (EST_OG, EST_FG, EST_ABV), since
// they are compared with the ones calculated here; measured or stated ones (OG, FG, ABV) only without them.
void ReadBeerXml(std::string_view text, ForeignFile& file);

}  // namespace tw

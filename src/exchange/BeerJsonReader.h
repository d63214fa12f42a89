// Turns BeerJSON 1.0 into recipes that no format shapes. docs/exchange.md lists which key becomes what.
#pragma once

#include <string_view>

#include "exchange/ForeignRecipe.h"

namespace tw {

// Adds everything that the bytes of a BeerJSON file contain to file, and what is odd about it to the
// findings. Raises nothing: a file that is no BeerJSON, or beyond a limit, leaves nothing but a finding
// "refused"; of a text that breaks off, what is complete is read.
//
// When an ingredient is added follows from its timing: add_to_boil is a first wort where its step is the
// first one and heats, a whirlpool where the step stays below 95 degrees Celsius, else the boil. The minutes
// are the time before the end of the boil, else the duration; everywhere else the duration counts first.
// Adding to the second fermentation step, or a later one, is Secondary.
void ReadBeerJson(std::string_view bytes, ForeignFile& file);

}  // namespace tw

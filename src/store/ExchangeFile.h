// The file in which recipes travel between brewers (*.TWR): a database of the recipe tables alone, with
// styles by their names.
#pragma once

#include <string_view>

#include "store/Database.h"

namespace tw {

// The locale text that the file is created with.
inline constexpr std::string_view kExchangeLocale = ";LANGID=0x0409;CP=1252;COUNTRY=0";

// Makes in file every table of main whose name begins with RECIPE, in any case: the same columns in their
// order with their rules, and the same indexes. RECIPES.STYLE_ID alone becomes STYLE_NAME, a text of 50
// characters, empty where none is given; an index over the one goes over the other. Raises the store's error.
// REQUIRES: file holds none of the tables.
void CreateExchangeTables(Database& main, Database& file);

}  // namespace tw

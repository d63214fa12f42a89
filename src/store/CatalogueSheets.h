// The product's catalogue as its files hold it: one folder of eight sheets, read and checked as a whole.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "store/CatalogueFile.h"

namespace tw {

// The words of the columns called "type" of styles and yeasts. The place of a word is its code in the TYPE
// columns of the database.
inline constexpr std::array<std::string_view, 5> kYeastTypes = {"Ale", "Lager", "Wheat", "Lactic",
                                                                "Wine/Mead/Cider"};

// The sheets of one folder.
struct CatalogueSheets {
    CatalogueSheet grainTypes, grains, hops, yeast, waters, salts, sugars, styles;
};

// Reads grain_types.tsv, grains.tsv, hops.tsv, yeast.tsv, water_profiles.tsv, salts.tsv, sugars.tsv and
// styles.tsv of folder and checks every row, also against the rows of the other files that it names.
// Everything wrong goes to the end of problems.
CatalogueSheets ReadCatalogue(const std::string& folder, CatalogueProblems& problems);

}  // namespace tw

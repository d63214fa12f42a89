// The product's catalogue as its files hold it: one folder of ten sheets, read and checked as a whole.
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

// The words of the columns called "kind" of aliases and of former rows.
inline constexpr std::array<std::string_view, 7> kNameKinds = {"fermentable", "hop",   "yeast", "style",
                                                               "salt",        "sugar", "water"};
// The table with the rows that such a word means; empty for any other word.
std::string_view TableOfNameKind(std::string_view word);

// The words of the column "fate" of former rows: what became of a row that an earlier release delivered.
inline constexpr std::string_view kGone = "gone";
inline constexpr std::string_view kMoved = "moved";  // a style, into another folder

// The sheets of one folder.
struct CatalogueSheets {
    CatalogueSheet grainTypes, grains, hops, yeast, waters, salts, sugars, styles;
    CatalogueSheet aliases;  // other names of rows
    CatalogueSheet former;   // rows that earlier releases delivered otherwise
};

// The files of one folder: those of the sheets in the order in which they are read.
inline constexpr std::array<const char*, 10> kCatalogueFiles = {
    "grain_types.tsv", "grains.tsv", "hops.tsv",   "yeast.tsv",   "water_profiles.tsv",
    "salts.tsv",       "sugars.tsv", "styles.tsv", "aliases.tsv", "former.tsv"};

// Reads those files of folder and checks every row, also against the rows of the other files that it names.
// Everything wrong goes to the end of problems.
CatalogueSheets ReadCatalogue(const std::string& folder, CatalogueProblems& problems);

}  // namespace tw

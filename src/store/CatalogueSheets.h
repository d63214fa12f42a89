// The program's catalogue as it is delivered in files: one folder of ten sheets, read and checked as a whole.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "store/CatalogueFile.h"

namespace tw {

// The words in the "type" columns of styles and yeasts. The index of a word is its number in the TYPE columns
// of the database.
inline constexpr std::array<std::string_view, 5> kYeastTypes = {"Ale", "Lager", "Wheat", "Lactic",
                                                                "Wine/Mead/Cider"};

// The words in the "kind" columns of aliases and former rows.
inline constexpr std::array<std::string_view, 7> kNameKinds = {"fermentable", "hop",   "yeast", "style",
                                                               "salt",        "sugar", "water"};
// Returns the table that contains the rows of that kind; empty for an unknown word.
std::string_view TableOfNameKind(std::string_view word);

// The words in the "fate" column of former rows: what happened to a row that an earlier release delivered.
inline constexpr std::string_view kGone = "gone";
inline constexpr std::string_view kMoved = "moved";  // only for styles: moved to another folder

// The sheets of one folder.
struct CatalogueSheets {
    CatalogueSheet grainTypes, grains, hops, yeast, waters, salts, sugars, styles;
    CatalogueSheet aliases;  // other names of rows
    CatalogueSheet former;   // rows of earlier releases that have since been removed or moved
};

// The files of the sheets, in the order in which they are read.
inline constexpr std::array<const char*, 10> kCatalogueFiles = {
    "grain_types.tsv", "grains.tsv", "hops.tsv",   "yeast.tsv",   "water_profiles.tsv",
    "salts.tsv",       "sugars.tsv", "styles.tsv", "aliases.tsv", "former.tsv"};

// Reads the files of folder and checks every row, including its references to rows of other files. Appends
// all errors to problems.
CatalogueSheets ReadCatalogue(const std::string& folder, CatalogueProblems& problems);

}  // namespace tw

// The lists of the catalogue: styles, ingredients and waters. This is the only place that defines their names
// and the tables that contain their rows.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tw {

// In the order of the numbers by which scripts identify the pickers. Grains and extracts are two kinds,
// although they share a table.
enum class CatalogueKind : int { Style, Grain, Extract, Hop, Yeast, Water, Salt, Sugar };
inline constexpr int kCatalogueKinds = 8;

// The order in which database setup lists them.
inline constexpr std::array<CatalogueKind, kCatalogueKinds> kSetupOrder = {
    CatalogueKind::Style, CatalogueKind::Grain, CatalogueKind::Extract, CatalogueKind::Hop,
    CatalogueKind::Yeast, CatalogueKind::Sugar, CatalogueKind::Water,   CatalogueKind::Salt};

struct CatalogueRowWords {
    std::string_view word;       // one row: "hop variety"
    std::string_view plural;     // the name of the list in database setup
    std::string_view picked;     // one row, as the title of the picker names it
    std::string_view table;      // the table with the rows
    std::string_view condition;  // selects them from a shared table: the end of a WHERE clause
    std::string_view sheetWord;  // their "kind" in the sheets of aliases and of former rows
};

// Indexed by kind.
inline constexpr std::array<CatalogueRowWords, kCatalogueKinds> kCatalogueWords = {{
    {"style", "Styles", "Style", "STYLES", "", "style"},
    {"grain", "Grains", "Grain", "GRAINS", " AND GRAIN", "fermentable"},
    {"extract", "Extracts", "Extract", "GRAINS", " AND NOT GRAIN", "fermentable"},
    {"hop variety", "Hop Varieties", "Hop Variety", "HOPS", "", "hop"},
    {"yeast", "Yeasts", "Yeast", "YEAST", "", "yeast"},
    {"water profile", "Water Profiles", "Water Profile", "WATER_PROFILES", "", "water"},
    {"treatment salt", "Treatment Salts", "Treatment", "SALTS", "", "salt"},
    {"priming sugar", "Priming Sugars", "Priming Sugar", "SUGARS", "", "sugar"},
}};

constexpr const CatalogueRowWords& WordsOf(CatalogueKind kind) {
    return kCatalogueWords[static_cast<std::size_t>(kind)];
}
// Returns the word for one row: "style", "hop variety".
constexpr std::string_view WordOf(CatalogueKind kind) {
    return WordsOf(kind).word;
}
// Returns the name of the table with the rows.
constexpr std::string_view TableOf(CatalogueKind kind) {
    return WordsOf(kind).table;
}

}  // namespace tw

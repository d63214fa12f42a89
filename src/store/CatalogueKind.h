// The lists of the catalogue: the styles, the ingredients, the waters. What they are called and where their
// rows are is told here alone.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tw {

// In the order of the numbers by which a script names their pickers. Grains and extracts are told apart,
// though they share a table.
enum class CatalogueKind : int { Style, Grain, Extract, Hop, Yeast, Water, Salt, Sugar };
inline constexpr int kCatalogueKinds = 8;

// The order in which database setup offers them.
inline constexpr std::array<CatalogueKind, kCatalogueKinds> kSetupOrder = {
    CatalogueKind::Style, CatalogueKind::Grain, CatalogueKind::Extract, CatalogueKind::Hop,
    CatalogueKind::Yeast, CatalogueKind::Sugar, CatalogueKind::Water,   CatalogueKind::Salt};

struct CatalogueRowWords {
    std::string_view word;       // one of the rows
    std::string_view plural;     // the list, as database setup offers it
    std::string_view picked;     // one of the rows, in the title of the picker
    std::string_view table;      // holds the rows
    std::string_view condition;  // that tells them from others in the table, behind a WHERE
    std::string_view sheetWord;  // of the sheets of other names and of former rows
};

// By kind.
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
// What one of the rows is called: "style", "hop variety".
constexpr std::string_view WordOf(CatalogueKind kind) {
    return WordsOf(kind).word;
}
// The table that holds the rows.
constexpr std::string_view TableOf(CatalogueKind kind) {
    return WordsOf(kind).table;
}

}  // namespace tw

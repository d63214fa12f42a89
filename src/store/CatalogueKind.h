// The kinds of names that the catalogue knows.
#pragma once

#include <string_view>

namespace tw {

// Grains and extracts are told apart here, though they share a table.
enum class CatalogueKind : int { Style, Grain, Extract, Hop, Yeast, Water, Salt, Sugar };

// The table that holds the rows of a kind.
constexpr std::string_view TableOf(CatalogueKind kind) {
    switch (kind) {
        case CatalogueKind::Style:
            return "STYLES";
        case CatalogueKind::Grain:
        case CatalogueKind::Extract:
            return "GRAINS";
        case CatalogueKind::Hop:
            return "HOPS";
        case CatalogueKind::Yeast:
            return "YEAST";
        case CatalogueKind::Water:
            return "WATER_PROFILES";
        case CatalogueKind::Salt:
            return "SALTS";
        case CatalogueKind::Sugar:
            return "SUGARS";
    }
    return {};
}

}  // namespace tw

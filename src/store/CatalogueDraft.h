// A row proposed for the catalogue, with what is known of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/CatalogueKind.h"

namespace tw {

// A figure as the brewer has typed it. For a range, column is its beginning: "PPG" for PPG_LO and PPG_HI.
struct DraftFigure {
    std::string_view column;
    std::string text;
};

struct CatalogueDraft {
    CatalogueKind kind;
    std::string name;
    std::vector<DraftFigure> figures;
};

}  // namespace tw

// The lists from which a recipe's style, ingredients and waters are picked.
#pragma once

#include "store/CatalogueKind.h"

namespace tw {

enum class PickList : int { Style, Grain, Extract, Hop, Yeast, Water, Treatment, Sugar };
inline constexpr int kPickLists = 8;

// The kind of the rows of a list.
constexpr CatalogueKind KindOf(PickList list) {
    switch (list) {
        case PickList::Style:
            return CatalogueKind::Style;
        case PickList::Grain:
            return CatalogueKind::Grain;
        case PickList::Extract:
            return CatalogueKind::Extract;
        case PickList::Hop:
            return CatalogueKind::Hop;
        case PickList::Yeast:
            return CatalogueKind::Yeast;
        case PickList::Water:
            return CatalogueKind::Water;
        case PickList::Treatment:
            return CatalogueKind::Salt;
        case PickList::Sugar:
            return CatalogueKind::Sugar;
    }
    return CatalogueKind::Style;
}

}  // namespace tw

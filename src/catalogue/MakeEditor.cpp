#include "catalogue/CatalogueEditor.h"
#include "catalogue/GrainEditor.h"
#include "catalogue/StyleEditor.h"

namespace tw {

std::unique_ptr<CatalogueEditor> MakeEditor(CatalogueKind catalogue, const CatalogueContext& context) {
    switch (catalogue) {
        case CatalogueKind::Style:
            return std::make_unique<StyleEditor>(context);
        case CatalogueKind::Grain:
        case CatalogueKind::Extract:
            return std::make_unique<GrainEditor>(catalogue, context);
        default:
            return std::make_unique<CatalogueEditor>(catalogue, context);
    }
}

}  // namespace tw

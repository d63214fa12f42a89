#include "catalogue/CatalogueEditor.h"
#include "catalogue/GrainEditor.h"
#include "catalogue/StyleEditor.h"

namespace tw {

std::unique_ptr<CatalogueEditor> MakeEditor(Catalogue catalogue, const CatalogueContext& context) {
    switch (catalogue) {
        case Catalogue::Styles:
            return std::make_unique<StyleEditor>(context);
        case Catalogue::Grains:
        case Catalogue::Extracts:
            return std::make_unique<GrainEditor>(catalogue, context);
        default:
            return std::make_unique<CatalogueEditor>(catalogue, context);
    }
}

}  // namespace tw

#include "store/CatalogueLoader.h"

#include "store/CatalogueUpdate.h"

namespace tw {

CatalogueProblems LoadCatalogue(const std::string& folder, Database& database,
                                const std::optional<DateTime>& created) {
    CatalogueProblems problems;
    const CatalogueSheets catalogue = ReadCatalogue(folder, problems);
    if (problems.empty()) DeliverCatalogue(folder, catalogue, database, created);
    return problems;
}

}  // namespace tw

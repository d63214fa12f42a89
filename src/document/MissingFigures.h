// Tells which rows of a recipe give nothing to its figures, and why: a name that the catalogue does not know
// is taken, but fills no other cell of its row.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "document/CatalogueLookup.h"
#include "record/RecipeRecord.h"
#include "store/CatalogueDraft.h"

namespace tw {

class MissingFigures {
  public:
    // All references must outlive the object. Nothing is cached: each call reads the record and, for rows
    // with empty cells, the catalogue.
    MissingFigures(const RecipeRecord& record, const CatalogueLookup& catalogue)
        : record_(record), catalogue_(catalogue) {}

    // Returns why a data row gives nothing: "Not in the catalogue: gives no gravity until you enter its PPG".
    // Empty if the row has all that it needs, or no name. Raises the store's errors.
    std::string ReasonOf(const Grid& grid, int row) const;

    // Returns what a figure lacks, one sentence for each row: "Hull Malt gives no gravity until you enter its
    // PPG". Rows without an amount do not count. The alcohol lacks what the original gravity does, and the
    // finished gravity. Empty if the figure lacks nothing.
    std::vector<std::string> ReasonsOf(FieldId figure) const;

    // Returns what the catalogue could be given for a row whose name it does not know: the name and the
    // figures entered; nullopt for any other row. Raises the store's errors.
    std::optional<CatalogueDraft> DraftOf(const Grid& grid, int row) const;

  private:
    bool Knows(const Grid& grid, int row) const;

    const RecipeRecord& record_;
    const CatalogueLookup& catalogue_;
};

}  // namespace tw

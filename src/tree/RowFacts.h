// What the catalogue knows of the rows of a list beyond their cells: codes, guides, laboratories, other
// names.
#pragma once

#include <map>
#include <string>

#include "store/CatalogueNames.h"
#include "tree/ListTable.h"

namespace tw {

class RowFacts {
  public:
    // Reads all facts of that kind.
    RowFacts(Database& database, CatalogueKind kind);

    // Gives the row the facts on the row of the catalogue that its first cell names; nothing when there are
    // none.
    void AddTo(ListRow& row) const;

  private:
    CatalogueKind kind_;
    std::map<std::string, CatalogueFacts> facts_;
};

// The guides whose codes the styles carry, for a line below their lists: "Beer style guide of 2021, ...".
// Empty for a database without codes.
std::string StyleGuides(Database& database);

}  // namespace tw

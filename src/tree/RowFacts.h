// What the catalogue knows about the rows of a list in addition to their cells: codes, guides, laboratories,
// other names.
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

    // Adds to row the facts about the catalogue row that its first cell names, if there are any.
    void AddTo(ListRow& row) const;

  private:
    CatalogueKind kind_;
    std::map<std::string, CatalogueFacts> facts_;
};

// Returns the guides to which the codes of the styles refer, for a line below their lists: "Beer style guide
// of 2021, ...". Empty for a database without codes.
std::string StyleGuides(Database& database);

}  // namespace tw

// What the rows of the catalogue are also called: trade names, older names, other spellings, codes of styles
// and of products. It stands in two tables beside those of the catalogue, which the product fills and nobody
// edits:
//
// - CATALOGUE_FACTS: SHEET the table, NAME the row's name, CODE a style's or a product's code, SOURCE the
//   guide of a style, the origin of a hop or the laboratory of a yeast, FORM the form of a hop or yeast;
// - CATALOGUE_ALIASES: SHEET the table, ALIAS_KEY the other name in upper case, ALIAS as it is written, NAME
//   the name of the row that it stands for.
//
// Both name their rows as the product delivered them, so what they say of a row that its brewer has renamed
// or removed leads nowhere. A database without the tables knows every row by its name alone.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/CatalogueKind.h"
#include "store/CatalogueSheets.h"
#include "store/Database.h"

namespace tw {

// What the catalogue knows of a row beyond its columns. What it does not know is empty.
struct CatalogueFacts {
    std::string code;    // "18B", "WLP001"
    std::string source;  // "Beer 2021", "Slovenia", "White Labs"
    std::string form;    // "Cryo", "Dry"
    std::vector<std::string> aliases;
};

class CatalogueNames {
  public:
    // REQUIRES: database lives for as long. Nothing is kept: each call sees the database as it is.
    explicit CatalogueNames(Database& database) : database_(database) {}

    // The stored name of the row that typed stands for, without regard to case: the row of that name, else,
    // also without regard to blanks at the ends, the one that it is an alias of, else the only one of that
    // code. Nothing when there is no such row. A few look-ups by index.
    std::optional<std::string> RowOf(CatalogueKind kind, std::string_view typed) const;

    // The facts on all rows of the table of kind by Upper of their names; rows without any have no entry.
    // Grains and extracts come together. For lists and for matching that needs all names at once.
    std::map<std::string, CatalogueFacts> FactsOf(CatalogueKind kind) const;

    // The different sources of those facts, in alphabetical order.
    std::vector<std::string> SourcesOf(CatalogueKind kind) const;

  private:
    std::optional<std::string> NamedRow(CatalogueKind kind, std::string_view name) const;
    bool HasTables() const;

    Database& database_;
};

// Makes the two tables if need be and replaces all that they hold by what the sheets say.
void WriteCatalogueNames(const CatalogueSheets& catalogue, Database& database);

}  // namespace tw

// Other names of catalogue rows: trade names, older names, other spellings, codes of styles and of products.
// They are stored in two tables that only the program fills and nobody edits:
//
// - CATALOGUE_FACTS: SHEET is the row's table, NAME the row's name, CODE the code of a style or product,
//   SOURCE the guide of a style, the origin of a hop or the laboratory of a yeast, FORM that of a hop or
//   yeast;
// - CATALOGUE_ALIASES: SHEET is the row's table, ALIAS_KEY the other name in upper case, ALIAS the other name
//   as written, NAME the name of the row.
//
// Both tables use the names under which the rows were delivered, so entries for a row that the brewer has
// renamed or deleted have no effect. In a database without these tables, every row has just its own name.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/CatalogueKind.h"
#include "store/CatalogueSheets.h"
#include "store/Database.h"
#include "values/NameMatch.h"

namespace tw {

// What is known about a row beyond its columns. Unknown facts are empty.
struct CatalogueFacts {
    std::string code;    // "18B", "WLP001"
    std::string source;  // "Beer 2021", "Slovenia", "White Labs"
    std::string form;    // "Cryo", "Dry"
    std::vector<std::string> aliases;

    // The aliases and the code: the other names under which the row is found.
    std::vector<std::string> OtherNames() const;
};

class CatalogueNames {
  public:
    // REQUIRES: database outlives this object. Nothing is cached: each call reads the database.
    explicit CatalogueNames(Database& database) : database_(database) {}

    // Returns the stored name of the row that typed means: the row of that name, else the row that has it as
    // an alias, else the only row with that code. Case is ignored throughout, and spaces at the ends of
    // aliases and codes are, too. nullopt if there is no such row. Takes a few indexed queries.
    std::optional<std::string> RowOf(CatalogueKind kind, std::string_view typed) const;

    // Returns the facts about all rows in the table of kind, keyed by Upper() of their names; rows without
    // facts are absent. Grains and extracts, which share a table, are returned together. For code that needs
    // all names at once, such as lists and matching.
    std::map<std::string, CatalogueFacts> FactsOf(CatalogueKind kind) const;

    // Returns the names of all rows, sorted, to be searched by those facts, too.
    NameList NamesOf(CatalogueKind kind) const;
    // Returns the given names in their order; those of catalogue rows have the rows' other names.
    NameList WithOtherNames(CatalogueKind kind, std::span<const std::string> names) const;

    // Returns the distinct non-empty sources of those facts, in alphabetical order.
    std::vector<std::string> SourcesOf(CatalogueKind kind) const;

  private:
    std::optional<std::string> NamedRow(CatalogueKind kind, std::string_view name) const;
    bool HasTables() const;

    Database& database_;
};

// Creates the two tables if they are missing and replaces all their rows with those of the sheets.
void WriteCatalogueNames(const CatalogueSheets& catalogue, Database& database);

}  // namespace tw

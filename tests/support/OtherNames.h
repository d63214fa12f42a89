// Codes and other names of catalogue entries in a test's database.
#pragma once

#include <string>
#include <string_view>

#include "store/CatalogueNames.h"

namespace tw::test {

inline void AddAlias(Database& database, CatalogueKind kind, std::string_view alias, std::string_view name) {
    database.Execute("INSERT INTO CATALOGUE_ALIASES (SHEET, ALIAS_KEY, ALIAS, NAME) SELECT " +
                     SqlText(TableOf(kind)) + ", UCASE(" + SqlText(alias) + "), " + SqlText(alias) + ", " +
                     SqlText(name));
}

inline void AddFacts(Database& database, CatalogueKind kind, std::string_view name, std::string_view code,
                     std::string_view source, std::string_view form = "") {
    database.Execute("INSERT INTO CATALOGUE_FACTS (SHEET, NAME, CODE, SOURCE, FORM) VALUES (" +
                     SqlText(TableOf(kind)) + ", " + SqlText(name) + ", " + SqlText(code) + ", " +
                     SqlText(source) + ", " + SqlText(form) + ")");
}

// Creates the tables, empty.
inline void AddOtherNames(Database& database) {
    WriteCatalogueNames(CatalogueSheets{}, database);
}

}  // namespace tw::test

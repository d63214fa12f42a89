// Fills the catalogue tables of a new database from a folder of text files.
#pragma once

#include <optional>
#include <string>

#include "platform/DateTime.h"
#include "store/CatalogueFile.h"
#include "store/Database.h"

namespace tw {

// Reads the files of folder (kCatalogueFiles), checks every row and writes them, in the order of the files'
// lines, as one unit of work; each folder that a style names becomes a style folder directly under the root.
// Style folders and styles get created as both their dates, or none. Returns everything that is wrong with
// the files, by file and line; nothing is written unless that is empty. Raises the store's error when a
// statement fails. REQUIRES: the catalogue tables of database are empty.
CatalogueProblems LoadCatalogue(const std::string& folder, Database& database,
                                const std::optional<DateTime>& created);

}  // namespace tw

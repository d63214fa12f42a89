// Fills the catalogue tables of a new database from a folder of text files.
#pragma once

#include <optional>
#include <string>

#include "platform/DateTime.h"
#include "store/CatalogueFile.h"
#include "store/Database.h"

namespace tw {

// Reads and checks the files of folder (kCatalogueFiles) and inserts their rows, in the order of the lines,
// as one unit of work. Each folder that a style names becomes a style folder directly below the root.
// created, or NULL, is written as both dates of the style folders and styles. Returns all errors in the
// files, by file and line; nothing is written unless there are none. Raises the store's error if a statement
// fails. REQUIRES: the catalogue tables of database are empty.
CatalogueProblems LoadCatalogue(const std::string& folder, Database& database,
                                const std::optional<DateTime>& created);

}  // namespace tw

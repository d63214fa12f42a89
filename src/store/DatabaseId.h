// The id of a database, which goes with the file wherever it is moved, and into its copies.
#pragma once

#include <string>

#include "store/Database.h"

namespace tw {

// Empty for a database that has got none yet. Raises the store's error.
std::string DatabaseId(Database& database);
// The id; a new one is written when there is none. Raises the store's error.
std::string EnsureDatabaseId(Database& database);

}  // namespace tw

// The id of a database. It stays with the file wherever that is moved, and copies of the file share it.
#pragma once

#include <string>

#include "store/Database.h"

namespace tw {

// Returns the id; empty if the database has none yet. Raises the store's error.
std::string DatabaseId(Database& database);
// Returns the id, writing a new one if there is none. Raises the store's error.
std::string EnsureDatabaseId(Database& database);

}  // namespace tw

// The file that the brewer names for the settings when the program starts.
#pragma once

#include <string>

namespace tw {

// Raises an Error that says why and what to do when that file cannot hold the settings: it is the database, a
// file of that one or any other database, a folder, a device or pipe. A missing file is fine. database is
// what the program will open.
void CheckSettingsFile(const std::string& settings, const std::string& database);

}  // namespace tw

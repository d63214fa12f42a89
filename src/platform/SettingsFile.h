// The check of a settings file that the brewer names when starting the program.
#pragma once

#include <string>

namespace tw {

// Raises Error, with the reason and the advice to choose another file, if settings cannot be used as the
// settings file: it is the database or one of its journals, any other database, a folder, a device or a pipe.
// A missing file is fine. database is the path that the program will open.
void CheckSettingsFile(const std::string& settings, const std::string& database);

}  // namespace tw

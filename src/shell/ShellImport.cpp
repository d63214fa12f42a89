// Recipe files that reach the program by their path: from the command line, from other programs, dropped.
#include <filesystem>

#include "shell/Shell.h"

namespace tw {
namespace {

bool IsFile(const std::string& path) {
    std::error_code failure;
    return std::filesystem::is_regular_file(path, failure);
}

// path without the quote that it begins with, and the one at its end.
std::string Unquoted(std::string_view path) {
    path.remove_prefix(1);
    if (path.ends_with('"')) path.remove_suffix(1);
    return std::string(path);
}

}  // namespace

void Shell::ImportFromPath(std::string_view path) {
    Guard([&] {
        const std::string asGiven(path);
        if (IsFile(asGiven)) return ImportFile(asGiven);
        // Only a path that began with a quote is worth a box: this asymmetry is intended.
        if (!path.starts_with('"')) return;
        const std::string file = Unquoted(path);
        if (IsFile(file)) return ImportFile(file);
        platform_.messages.ShowMessage(
            "Invalid Import File",
            "An error occurred trying to import a file:\r\n  " + file + "\r\nThis file could not be found.");
    });
}

}  // namespace tw

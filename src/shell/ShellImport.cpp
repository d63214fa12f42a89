// Recipe files that reach the program by their path: from the command line, from other programs, dropped.
#include "shell/ImportPath.h"
#include "shell/Shell.h"

namespace tw {

void Shell::ImportFromPath(std::string_view path) {
    Guard([&] {
        const std::string asGiven(path);
        if (IsFile(asGiven)) return ImportFile(asGiven);
        // Only a path that began with a quote is worth a box: this asymmetry is intended.
        if (!path.starts_with('"')) return;
        const std::string file(Unquoted(path));
        if (IsFile(file)) return ImportFile(file);
        platform_.messages.ShowMessage(
            "Invalid Import File",
            "An error occurred trying to import a file:\r\n  " + file + "\r\nThis file could not be found.");
    });
}

void Shell::BringToFront() {
    if (view_ != nullptr) view_->BringToFront();
}

void Shell::CommandsWait() {
    if (view_ != nullptr) view_->OutsideCommandsWait();
}

}  // namespace tw

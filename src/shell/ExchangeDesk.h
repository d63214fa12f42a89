// Import and export of recipe files within the program, and files that other programs pass by path.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OwnFiles.h"
#include "shell/CommandStates.h"
#include "shell/DoctorDesk.h"
#include "shell/DoctorDialogs.h"
#include "shell/DocumentManager.h"
#include "shell/OpenedDatabase.h"
#include "shell/StatusNotice.h"

namespace tw {

class RecipeExchange;

class ExchangeDesk {
  public:
    // All arguments must outlive the object.
    ExchangeDesk(OpenedDatabase& data, DoctorDesk& doctor, DocumentManager& documents, CommandStates& states,
                 OwnFiles& own, StatusNotice& notice, ViewSlot& view)
        : data_(data),
          doctor_(doctor),
          documents_(documents),
          states_(states),
          own_(own),
          notice_(notice),
          view_(view) {}

    // All of these functions show their errors in message boxes, and do nothing while another of them
    // is running.

    // Both show all their dialogs, beginning with that of the file or of the recipes.
    void Import();
    void Export();
    // Exports for other brewing programs, with its dialogs.
    void ExportOther();
    // Shows the dialogs that ask for the recipes and the folder. A file of another brewing program is shown
    // in the window of ImportForeign instead.
    void ImportFile(const std::string& path);
    // Shows the window that imports from other programs, after a dialog that asks for files.
    void ImportForeign();
    // Without names, imports all recipes of the file. A file of another brewing program is imported, too.
    void ImportRecipes(const std::string& path, std::int64_t folderId,
                       const std::optional<std::vector<std::string>>& names);
    // If append is true, adds to an existing file instead of replacing it.
    void ExportRecipes(const std::string& path, bool append, const std::vector<std::string>& names);
    // Imports a file whose path comes from the command line, a drop or another program; quotes around the
    // path are removed if there is no file under the path as given. Reports a missing file only if the path
    // began with a quote; scripts rely on that. Shows errors as RunShowingErrors does.
    void ImportFromPath(std::string_view path);
    // ImportFromPath for each of several files, in order; those of other brewing programs are shown in one
    // window.
    void ImportFromPaths(const std::vector<std::string>& paths);
    // True while recipes are being imported or exported.
    bool IsRunning() const { return running_; }

  private:
    // Imports without the window.
    void ImportForeign(const std::string& path, std::int64_t folderId,
                       const std::optional<std::vector<std::string>>& names);
    void ShowDoctor(const std::vector<std::string>& paths);
    DoctorDialogs Doctoring();
    // Runs one import or export, unless another one is running.
    void Run(const std::function<void(RecipeExchange&)>& operation);
    // Reads the tree from the database again, and updates whatever depends on it.
    void RebuildTree();

    OpenedDatabase& data_;
    DoctorDesk& doctor_;
    DocumentManager& documents_;
    CommandStates& states_;
    OwnFiles& own_;
    StatusNotice& notice_;
    ViewSlot& view_;
    bool running_ = false;
};

}  // namespace tw

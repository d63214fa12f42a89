// Recipe files: what the program does around an import or export, and files that reach it by their path.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OwnFiles.h"
#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/OpenedDatabase.h"
#include "shell/StatusNotice.h"

namespace tw {

class RecipeExchange;

class ExchangeDesk {
  public:
    // All must outlive the object.
    ExchangeDesk(OpenedDatabase& data, DocumentManager& documents, CommandStates& states, OwnFiles& own,
                 StatusNotice& notice, ViewSlot& view)
        : data_(data), documents_(documents), states_(states), own_(own), notice_(notice), view_(view) {}

    // All of these show what goes wrong in boxes, and do nothing while another one of them runs.

    // With all dialogs.
    void Import();
    void Export();
    // Asks for the recipes and the folder in dialogs.
    void ImportFile(const std::string& path);
    // No names stand for all of the file.
    void ImportRecipes(const std::string& path, std::int64_t folderId,
                       const std::optional<std::vector<std::string>>& names);
    // append adds to a file that exists instead of replacing it.
    void ExportRecipes(const std::string& path, bool append, const std::vector<std::string>& names);
    // A file by its path, as the command line, a drop or another program tells it: imports it, even by the
    // path without the quotes around it. One that is missing is told only when its path began with a quote:
    // intended. Errors are shown as RunShowingErrors does.
    void ImportFromPath(std::string_view path);
    // Whether recipes are being copied from or to a file.
    bool IsRunning() const { return running_; }

  private:
    // Runs one import or export; none within another one.
    void Run(const std::function<void(RecipeExchange&)>& operation);
    // Brings the tree and what stands on it in line with the database.
    void RebuildTree();

    OpenedDatabase& data_;
    DocumentManager& documents_;
    CommandStates& states_;
    OwnFiles& own_;
    StatusNotice& notice_;
    ViewSlot& view_;
    bool running_ = false;
};

}  // namespace tw

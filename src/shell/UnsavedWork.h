// Keeps unsaved work outside the database while the program runs, and offers it at the next start.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>

#include "platform/Ports.h"
#include "shell/DocumentManager.h"
#include "shell/Recovery.h"
#include "shell/RecoveryModel.h"
#include "shell/ShellView.h"
#include "shell/StatusNotice.h"
#include "store/Database.h"

namespace tw {

class UnsavedWork final : public LostRecipes {
  public:
    // newDocument opens a blank document. All arguments must outlive the object.
    UnsavedWork(DocumentManager& documents, StatusNotice& notice, ViewSlot& view, Platform& platform,
                std::function<RecipeDocument&()> newDocument);

    // Keeps unsaved work below that folder from now on, in files of that database. Before Start and after End
    // nothing is kept: all other functions do nothing.
    void Start(const std::string& folder, const std::string& databasePath, Database& database);
    void End() { recovery_.reset(); }

    // The document has been edited: notifies the window that Keep must be called.
    void Edited(const RecipeDocument& document);
    // Writes recovery files of the recipes edited since the last call. Those that cannot be written are tried
    // again at the next call, for which the window is notified; until then the notice says so.
    void Keep();
    // The document's edits have been saved or given up: deletes its recovery file.
    void Forget(const RecipeDocument& document);
    // Offers what the last run has left unsaved; shows no dialog if there is nothing.
    void Offer();

    // LostRecipes
    bool Restore(const LostRecipe& lost) override;
    void Discard(const LostRecipe& lost) override;

  private:
    void ReportPutAside(const std::string& file);

    DocumentManager& documents_;
    StatusNotice& notice_;
    ViewSlot& view_;
    Platform& platform_;
    std::function<RecipeDocument&()> newDocument_;
    std::unique_ptr<Recovery> recovery_;  // nullptr while nothing is kept
    std::set<std::string> editedKeys_;    // keys of documents whose latest edits are not in their files
};

}  // namespace tw

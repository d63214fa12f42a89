// Unsaved work outside the database: kept while the program runs, offered at the next start.
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
    // newDocument opens a blank document. All must outlive the object.
    UnsavedWork(DocumentManager& documents, StatusNotice& notice, ViewSlot& view, Platform& platform,
                std::function<RecipeDocument&()> newDocument);

    // Keeps unsaved work below that folder from now on, in files of that database. Before, and behind End,
    // nothing is kept: everything here does nothing then.
    void Start(const std::string& folder, const std::string& databasePath, Database& database);
    void End() { recovery_.reset(); }

    // That document has been edited: Keep is due, which the window is told.
    void Edited(const RecipeDocument& document);
    // Writes the recipes that were edited since the last call into their files. What cannot be written waits
    // for the next call, for which the window is told to wait; the notice says so until nothing waits.
    void Keep();
    // The document's edits are saved, or given up.
    void Forget(const RecipeDocument& document);
    // Offers what the last run left unsaved; shows nothing when that is nothing.
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
    std::set<std::string> editedKeys_;    // documents with edits that are not in their files
};

}  // namespace tw

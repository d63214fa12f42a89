#include "shell/UnsavedWork.h"

#include <utility>

#include "document/RecipeSnapshot.h"
#include "platform/Error.h"
#include "store/DatabaseId.h"

namespace tw {
namespace {

// Returns the database's id for the recovery files; empty if it cannot have one.
std::string IdFor(Database& database) {
    try {
        return database.ReadOnly() ? DatabaseId(database) : EnsureDatabaseId(database);
    } catch (const Error&) {
        // The recovery files are then found by the database's path; the next start tries again.
        return {};
    }
}

}  // namespace

UnsavedWork::UnsavedWork(DocumentManager& documents, StatusNotice& notice, ViewSlot& view, Platform& platform,
                         std::function<RecipeDocument&()> newDocument)
    : documents_(documents),
      notice_(notice),
      view_(view),
      platform_(platform),
      newDocument_(std::move(newDocument)) {}

void UnsavedWork::Start(const std::string& folder, const std::string& databasePath, Database& database) {
    recovery_ = std::make_unique<Recovery>(folder, databasePath, IdFor(database));
}

void UnsavedWork::Edited(const RecipeDocument& document) {
    if (!recovery_) return;
    editedKeys_.insert(document.Key());
    view_->UnsavedWorkWaits();
}

void UnsavedWork::Keep() {
    if (!recovery_) return;
    std::set<std::string> notKept;
    for (const auto& document : documents_.All())
        if (editedKeys_.contains(document->Key()) && document->Changed() &&
            !recovery_->Keep(document->Key(), document->Storage().TakeSnapshot()))
            notKept.insert(document->Key());
    editedKeys_ = std::move(notKept);
    const bool wasNotKept = notice_.UnsavedNotKept();
    notice_.SetUnsavedNotKept(!editedKeys_.empty());
    notice_.Update();
    if (!editedKeys_.empty())
        view_->UnsavedWorkWaits();
    else if (wasNotKept)
        view_->SayBriefly("Unsaved work is being kept again.");
}

void UnsavedWork::Forget(const RecipeDocument& document) {
    if (!recovery_) return;
    editedKeys_.erase(document.Key());
    recovery_->Forget(document.Key());
    if (!editedKeys_.empty()) return;
    notice_.SetUnsavedNotKept(false);
    notice_.Update();
}

void UnsavedWork::ReportPutAside(const std::string& file) {
    platform_.messages.ShowMessage(
        "Unsaved Changes",
        "Unsaved changes of an earlier run cannot be read. They are left in the file\r\n  " + file);
}

void UnsavedWork::Offer() {
    if (!recovery_) return;
    FoundRecipes found = recovery_->Find();
    for (const std::string& file : found.putAside) ReportPutAside(file);
    if (found.lost.empty()) return;
    RecoveryModel dialog(*this, platform_.messages, std::move(found.lost));
    platform_.dialogs.ShowModal(dialog);
}

bool UnsavedWork::Restore(const LostRecipe& lost) {
    RecipeDocument& document = newDocument_();
    try {
        document.Storage().Restore(lost.snapshot);
    } catch (const Error&) {
        documents_.Remove(document);
        ReportPutAside(recovery_->PutAside(lost.file));
        return false;
    }
    recovery_->Adopt(document.Key(), lost.file);
    return true;
}

void UnsavedWork::Discard(const LostRecipe& lost) {
    recovery_->Discard(lost.file);
}

}  // namespace tw

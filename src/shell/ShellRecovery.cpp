// Unsaved work outside the database: kept while the program runs, offered at the next start.
#include <utility>

#include "document/RecipeSnapshot.h"
#include "shell/RecoveryModel.h"
#include "shell/Shell.h"
#include "store/DatabaseId.h"

namespace tw {

void Shell::SetRecoveryFolder(std::string folder) {
    recoveryRoot_ = std::move(folder);
    own_.AddFolder(recoveryRoot_, "is kept for unsaved recipes");
}

void Shell::DocumentEdited(const RecipeDocument& document) {
    if (!recovery_) return;
    editedKeys_.insert(document.Key());
    if (view_) view_->UnsavedWorkWaits();
}

void Shell::KeepUnsavedWork() {
    if (!recovery_) return;
    std::set<std::string> notKept;
    for (const auto& document : documents_)
        if (editedKeys_.contains(document->Key()) && document->Changed() &&
            !recovery_->Keep(document->Key(), document->Storage().TakeSnapshot()))
            notKept.insert(document->Key());
    editedKeys_ = std::move(notKept);
    const bool wasNotKept = std::exchange(unsavedNotKept_, !editedKeys_.empty());
    UpdateNotice();
    if (!view_) return;
    if (unsavedNotKept_) view_->UnsavedWorkWaits();
    if (wasNotKept && !unsavedNotKept_) view_->SayBriefly("Unsaved work is being kept again.");
}

void Shell::ForgetUnsavedWork(const RecipeDocument& document) {
    if (!recovery_) return;
    editedKeys_.erase(document.Key());
    recovery_->Forget(document.Key());
    if (!editedKeys_.empty()) return;
    unsavedNotKept_ = false;
    UpdateNotice();
}

std::string Shell::IdForRecovery() {
    try {
        return database_->ReadOnly() ? DatabaseId(*database_) : EnsureDatabaseId(*database_);
    } catch (const Error&) {
        // The files go by the database's path then; the next start tries again.
        return {};
    }
}

void Shell::UpdateNotice() {
    std::string notice;
    const auto add = [&](bool applies, std::string_view text) {
        if (!applies) return;
        if (!notice.empty()) notice += ' ';
        notice += text;
    };
    add(database_ && database_->ReadOnly(), "Write-protected: recipes cannot be saved.");
    add(tree_ && !tree_->IsUpToDate(), "The lists are not up to date: the database cannot be read.");
    add(unsavedNotKept_, "Unsaved work is not being kept: save your recipes.");
    if (notice == notice_) return;
    notice_ = std::move(notice);
    if (view_) view_->NoticeChanged(notice_);
}

void Shell::ReportPutAside(const std::string& file) {
    platform_.messages.ShowMessage(
        "Unsaved Changes",
        "Unsaved changes of an earlier run cannot be read. They are left in the file\r\n  " + file);
}

void Shell::OfferRecovery() {
    if (!recovery_) return;
    FoundRecipes found = recovery_->Find();
    for (const std::string& file : found.putAside) ReportPutAside(file);
    if (found.lost.empty()) return;
    RecoveryModel dialog(*this, platform_.messages, std::move(found.lost));
    platform_.dialogs.ShowModal(dialog);
}

bool Shell::RestoreLostRecipe(const LostRecipe& lost) {
    RecipeDocument& document = CreateDocumentWindow("");
    try {
        document.Storage().Restore(lost.snapshot);
    } catch (const Error&) {
        DeleteWindow(document);
        ReportPutAside(recovery_->PutAside(lost.file));
        return false;
    }
    recovery_->Adopt(document.Key(), lost.file);
    return true;
}

void Shell::DiscardLostRecipe(const LostRecipe& lost) {
    recovery_->Discard(lost.file);
}

}  // namespace tw

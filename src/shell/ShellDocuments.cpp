// The open documents of the shell: how they come, go, are saved, and hear of what happens in the database.
#include <algorithm>

#include "shell/Shell.h"
#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {

void Shell::Activate(RecipeDocument& document) {
    if (active_ != &document) {
        active_ = &document;
        std::erase(useOrder_, &document);
        useOrder_.push_back(&document);
        document.Focus().Activate();
    }
    if (view_) view_->DocumentActivated(&document);
}

RecipeDocument& Shell::CreateDocumentWindow(std::string_view name) {
    // The counter rises for every window, so that untitled numbers skip where recipes were opened: intended.
    ++windowCounter_;
    documents_.push_back(
        std::make_unique<RecipeDocument>(*this, platform_, *database_, colors_, windowCounter_));
    RecipeDocument& document = *documents_.back();
    document.SetKey(std::to_string(nextDocKey_++));
    EnableClose(true);
    EnableWindowMenu(true);
    if (view_) view_->DocumentOpened(document);
    Activate(document);
    if (IsBlank(name)) return document;
    try {
        document.Storage().Open(name);
    } catch (...) {
        // A recipe that was read in part must never be saved over the whole one.
        DeleteWindow(document);
        throw;
    }
    return document;
}

void Shell::LoadDoc(std::string_view name) {
    const auto open =
        std::ranges::find_if(documents_, [&](const auto& document) { return document->OrigName() == name; });
    if (open == documents_.end()) {
        CreateDocumentWindow(name);
        return;
    }
    Activate(**open);
    platform_.messages.Beep();
}

void Shell::OpenByName(std::string_view name) {
    const std::string trimmed(Trim(name));
    if (!RecipeExists(*database_, trimmed)) {
        platform_.messages.ShowMessage("Could not find recipe", "Recipe '" + trimmed + "' no longer exists!");
        return;
    }
    LoadDoc(trimmed);
}

bool Shell::CloseDocument(RecipeDocument& document) {
    // An entry that is still being typed counts, so that it is asked about.
    if (!Guard([&] { document.Focus().Focus().FlushEdits(); })) return false;
    if (document.Changed()) {
        Activate(document);
        const std::string question =
            "Recipe '" + document.BeerName() + "' has changed. Do you wish to save your changes?";
        const Answer answer = platform_.messages.Ask("Unsaved Changes", question, Question::YesNoCancel);
        if (answer == Answer::Yes) {
            // A save that could not write its rows reports success and leaves the document changed.
            if (!SaveRecipe(document, false) || document.Changed()) return false;
        } else if (answer != Answer::No) {
            return false;
        }
    }
    DeleteWindow(document);
    return true;
}

void Shell::DeleteWindow(RecipeDocument& document) {
    if (view_) view_->DocumentClosing(document);
    std::erase(useOrder_, &document);
    ForgetUnsavedWork(document);
    const bool wasActive = active_ == &document;
    if (wasActive) active_ = nullptr;
    std::erase_if(documents_, [&](const auto& open) { return open.get() == &document; });
    if (documents_.empty()) {
        DarkenDocumentCommands();
        if (view_) view_->DocumentActivated(nullptr);
    } else if (wasActive) {
        Activate(*useOrder_.back());
    } else {
        CheckEnableSaveAll();
    }
}

void Shell::DarkenDocumentCommands() {
    EnableClose(false);
    EnableWindowMenu(false);
    EnableSave(false);
    EnableInsert(false);
    EnableDelete(false);
    EnableCopyPaste(false, false);
    EnableUndo(false, "");
    EnableRedo(false, "");
    EnableResizeRecipe(false);
    EnableChangeStrength(false);
    EnableChangeBitterness(false);
    EnableChangeCarbonation(false);
}

bool Shell::TrySave(const std::function<void(bool& ok)>& save) {
    bool ok = false;
    try {
        save(ok);
    } catch (const Error& error) {
        treeObjects_->Reload();
        DeletionEnded();
        platform_.messages.ShowMessage("Error", "Error during save:\r\n" + error.WithNumber());
        return false;
    }
    treeObjects_->CatchUp();
    return ok;
}

bool Shell::SaveRecipe(RecipeDocument& document, bool silent) {
    if (IsBlank(document.BeerName()) || document.FolderID() < 0) return !silent && SaveRecipeAs(document);
    return TrySave([&](bool& ok) {
        if (silent)
            document.Focus().Focus().FlushEditsQuietly();
        else
            document.Focus().Focus().FlushEdits();
        const bool renamed = !SameName(document.BeerName(), document.OrigName());
        if (silent && renamed && RecipeExists(*database_, document.BeerName())) return;
        ok = document.Storage().Save(SaveAs::No, silent ? Asking::Quietly : Asking::Aloud);
        FollowUnfinishedSave(document, ok);
    });
}

void Shell::SetDoAutoSave(bool on) {
    const bool wasOn = settings_.doAutoSave;
    settings_.doAutoSave = on;
    SwitchAutoSave(wasOn);
}

void Shell::SwitchAutoSave(bool wasOn) {
    const bool on = settings_.doAutoSave;
    if (on == wasOn) return;
    if (on) autoSaveMinutes_.Reset();
    if (view_) view_->AutoSaveSwitched(on);
}

void Shell::TickAutoSave() {
    // The time that saving takes is not counted. A save within the one unit of an import would be lost with
    // it.
    if (!settings_.doAutoSave || autoSaving_ || exchanging_ || !database_ || database_->ReadOnly()) return;
    if (!autoSaveMinutes_.Tick(!documents_.empty(), settings_.doAutoSaveEvery)) return;
    ShowAutoSave();
    autoSaveMinutes_.Reset();
}

void Shell::ShowAutoSave() {
    if (documents_.empty() || autoSaving_) return;
    autoSaving_ = true;
    AutoSaveModel progress(*this);
    Guard([&] { platform_.dialogs.ShowModal(progress); });
    autoSaving_ = false;
}

bool Shell::SaveRecipeAs(RecipeDocument& document) {
    std::unique_ptr<OpenSaveModel> dialog;
    const bool shown = TrySave([&](bool& ok) {
        document.Focus().Focus().FlushEdits();
        dialog = std::make_unique<OpenSaveModel>(OpenSaveModel::Style::Save, Access(), browse_);
        dialog->SetRecipe(document.Caption(), document.FolderID());
        platform_.dialogs.ShowModal(*dialog);
        ok = true;
    });
    if (!shown || dialog->Cancelled()) return false;
    browse_ = dialog->Fields();
    return SaveRecipeUnder(document, dialog->BeerName(), dialog->FolderID(), true);
}

bool Shell::SaveRecipeUnder(RecipeDocument& document, std::string_view name, std::int64_t folderId,
                            bool silent) {
    return TrySave([&](bool& ok) {
        document.Focus().Focus().FlushEdits();
        ok = document.Storage().SaveUnder(name, folderId, silent ? Asking::Quietly : Asking::Aloud);
        FollowUnfinishedSave(document, ok);
    });
}

void Shell::FollowUnfinishedSave(const RecipeDocument& document, bool ok) {
    if (ok && document.Changed()) treeObjects_->Reload();
}

void Shell::DeleteRecipe(std::string_view name) {
    objects_->DeleteRecipeByName(Trim(name));
}

void Shell::RecipeStored(std::string_view name) {
    objects_->AddRecipeNodesByName(name);
    CheckEnableDelete();
}

void Shell::AddToMRU(std::string_view name) {
    recent_.Add(name);
}

void Shell::DocumentRenamed(const RecipeDocument& document) {
    CheckEnableSaveAll();
    if (!document.Changed()) ForgetUnsavedWork(document);
    if (view_) view_->DocumentRenamed(document);
}

void Shell::UpdateDocsOfColorChange() {
    if (!view_) return;
    for (const auto& document : documents_) view_->GridColorsChanged(*document);
}

// A notice may end in a document that opens or closes others, so that the collection is looked at anew each
// time.
template <class Notice>
void Shell::ForEachDocument(Notice notice) {
    for (std::size_t i = 0; i < documents_.size(); ++i) notice(*documents_[i]);
}

void Shell::NotifyRecipeMoved(const std::string& name, std::int64_t folderId) {
    ForEachDocument([&](RecipeDocument& document) { document.Notices().NotifyRecipeMoved(name, folderId); });
}

void Shell::NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) {
    ForEachDocument(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeNewStyle(name, styleId); });
}

void Shell::NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) {
    recent_.Rename(oldName, newName);
    ForEachDocument(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeRenamed(oldName, newName); });
}

void Shell::NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) {
    ForEachDocument(
        [&](RecipeDocument& document) { document.Notices().NotifyStyleRenamed(styleId, newName); });
}

void Shell::NotifyRecipeDeleted(const std::string& name) {
    recent_.Remove(name);
    ForEachDocument([&](RecipeDocument& document) { document.Notices().NotifyRecipeDeleted(name); });
}

void Shell::NotifyRecipeFolderDeleted(std::int64_t folderId) {
    if (browse_.nodeKey == "F:" + std::to_string(folderId)) browse_.nodeKey = kRecipeFoldersKey;
    ForEachDocument(
        [&](RecipeDocument& document) { document.Notices().NotifyRecipeFolderDeleted(folderId); });
}

void Shell::NotifyStyleDeleted(std::int64_t styleId) {
    ForEachDocument([&](RecipeDocument& document) { document.Notices().NotifyStyleDeleted(styleId); });
}

void Shell::DeletionEnded() {
    try {
        CheckEnableDelete();
    } catch (const Error&) {
        // It comes on top of an error that is being told already; the commands stay as they are.
        return;
    }
}

}  // namespace tw

#include "shell/RecipeSaver.h"

#include <memory>
#include <string>

#include "platform/ErrorBox.h"
#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {

bool RecipeSaver::Try(const std::function<bool()>& save) {
    bool saved = false;
    try {
        saved = save();
    } catch (const Error& error) {
        data_.treeObjects.Reload();
        notices_.DeletionEnded();
        data_.platform.messages.ShowMessage("Error", "Error during save:\r\n" + error.WithNumber());
        return false;
    }
    data_.treeObjects.CatchUp();
    return saved;
}

bool RecipeSaver::Save(RecipeDocument& document, Asking asking) {
    if (IsBlank(document.BeerName()) || document.FolderID() < 0)
        return asking == Asking::Aloud && SaveAs(document);
    return Try([&] {
        if (asking == Asking::Quietly)
            document.Focus().FlushEditsQuietly();
        else
            document.Focus().FlushEdits();
        const bool renamed = !SameName(document.BeerName(), document.OrigName());
        if (asking == Asking::Quietly && renamed && RecipeExists(*data_.database, document.BeerName()))
            return false;
        const bool saved = document.Storage().Save(tw::SaveAs::No, asking);
        Follow(document, saved, asking);
        return saved;
    });
}

bool RecipeSaver::SaveAs(RecipeDocument& document) {
    std::unique_ptr<OpenSaveModel> dialog;
    const bool shown = Try([&] {
        document.Focus().FlushEdits();
        dialog = std::make_unique<OpenSaveModel>(OpenSaveModel::Style::Save, data_.Access(), browse_);
        dialog->SetRecipe(document.Caption(), document.FolderID());
        data_.platform.dialogs.ShowModal(*dialog);
        return true;
    });
    if (!shown || dialog->Cancelled()) return false;
    browse_ = dialog->Fields();
    return SaveUnder(document, dialog->BeerName(), dialog->FolderID(), Asking::Quietly);
}

bool RecipeSaver::SaveUnder(RecipeDocument& document, std::string_view name, std::int64_t folderId,
                            Asking asking) {
    return Try([&] {
        document.Focus().FlushEdits();
        const bool saved = document.Storage().SaveUnder(name, folderId, asking);
        // The brewer has answered the dialog, even if nothing else is asked.
        Follow(document, saved, Asking::Aloud);
        return saved;
    });
}

void RecipeSaver::Follow(const RecipeDocument& document, bool saved, Asking asking) {
    if (!saved) return;
    if (document.Changed())
        data_.treeObjects.Reload();
    else if (asking == Asking::Aloud)
        view_->SayBriefly("Saved " + document.OrigName());
}

void RecipeSaver::SaveAll() {
    // By index: while a message is shown, a document may be closed.
    for (std::size_t i = 0; i < documents_.All().size(); ++i) {  // NOLINT(modernize-loop-convert)
        RunShowingErrors(data_.platform.messages, [&] {
            documents_.All()[i]->Focus().FlushEdits();
            Save(*documents_.All()[i]);
        });
    }
}

bool RecipeSaver::Close(RecipeDocument& document) {
    // A pending entry is committed first, so that it counts as a change.
    if (!RunShowingErrors(data_.platform.messages, [&] { document.Focus().FlushEdits(); })) return false;
    if (document.Changed()) {
        documents_.Activate(document);
        const std::string question =
            "Recipe '" + document.BeerName() + "' has changed. Do you wish to save your changes?";
        const Answer answer = data_.platform.messages.Ask("Unsaved Changes", question, Question::YesNoCancel);
        if (answer == Answer::Yes) {
            // A save that could not write its rows returns true and leaves the document changed.
            if (!Save(document) || document.Changed()) return false;
        } else if (answer != Answer::No) {
            return false;
        }
    }
    documents_.Remove(document);
    return true;
}

bool RecipeSaver::CloseAll() {
    while (!documents_.All().empty()) {
        if (!Close(*documents_.All().front())) return false;
    }
    return true;
}

}  // namespace tw

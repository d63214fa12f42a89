#include "shell/RecipeDesk.h"

#include <string>

#include "document/SampleRecipe.h"
#include "store/RecipeRows.h"
#include "tree/ExplorerModel.h"
#include "values/Text.h"

namespace tw {

RecipeDesk::RecipeDesk(OpenedDatabase& data, DocumentManager& documents, DocumentHost& host,
                       CommandStates& states, CatalogueDesk& catalogue, OpenSaveFields& browse,
                       ViewSlot& view)
    : data_(data),
      documents_(documents),
      host_(host),
      states_(states),
      catalogue_(catalogue),
      browse_(browse),
      view_(view) {}

RecipeDocument& RecipeDesk::Create(std::string_view name) {
    RecipeDocument& document = documents_.Create(host_, *data_.database);
    if (!IsBlank(name)) FillOrRemove(document, [&] { document.Storage().Open(name); });
    return document;
}

void RecipeDesk::FillOrRemove(RecipeDocument& document, const std::function<void()>& fill) {
    try {
        fill();
    } catch (...) {
        // A partly read recipe must never be saved over the complete one.
        documents_.Remove(document);
        throw;
    }
}

void RecipeDesk::OpenSample(TypingUnits units) {
    RecipeDocument& document = documents_.Create(host_, *data_.database);
    FillOrRemove(document, [&] { FillSample(document, units); });
}

void RecipeDesk::Load(std::string_view name) {
    RecipeDocument* const open = documents_.Find(name);
    if (open == nullptr) {
        Create(name);
        return;
    }
    documents_.Activate(*open);
    data_.platform.messages.Beep();
}

void RecipeDesk::OpenByName(std::string_view name) {
    const std::string trimmed(Trim(name));
    if (!RecipeExists(*data_.database, trimmed)) {
        data_.platform.messages.ShowMessage("Could not find recipe",
                                            "Recipe '" + trimmed + "' no longer exists!");
        return;
    }
    Load(trimmed);
}

void RecipeDesk::ShowOpenDialog() {
    data_.treeObjects.CatchUp();
    OpenSaveModel dialog(OpenSaveModel::Style::Open, data_.Access(), browse_);
    data_.platform.dialogs.ShowModal(dialog);
    if (dialog.Cancelled()) return;
    browse_ = dialog.Fields();
    Load(dialog.BeerName());
}

void RecipeDesk::ShowDeleteDialog() {
    data_.treeObjects.CatchUp();
    OpenSaveModel dialog(OpenSaveModel::Style::Delete, data_.Access(), browse_);
    data_.platform.dialogs.ShowModal(dialog);
    if (dialog.Cancelled()) return;
    data_.objects.DeleteRecipeByName(dialog.BeerName());
    FollowRecipes();
    browse_ = dialog.Fields();
}

void RecipeDesk::ShowExplorer() {
    data_.treeObjects.CatchUp();
    const auto editStyle = [this](const std::string& name, std::int64_t folderId) {
        return catalogue_.EditStyle(name, folderId);
    };
    ExplorerModel explorer(data_.Access(), {[this](const std::string& name) { Load(name); }, editStyle});
    explorer.SetLook(browse_.look);
    data_.platform.dialogs.ShowModal(explorer);
    browse_.look = explorer.Look();
    FollowRecipes();
}

void RecipeDesk::FollowRecipes() {
    states_.CheckEnableDelete();
    // The suggestions in the empty window may have changed.
    if (documents_.Active() == nullptr) view_->DocumentActivated(nullptr);
}

}  // namespace tw

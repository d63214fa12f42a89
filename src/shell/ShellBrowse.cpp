// The windows of the shell in which recipes are looked for: the open and delete dialogs and the explorer.
#include "shell/Shell.h"

namespace tw {

void Shell::ShowOpenDialog() {
    treeObjects_->CatchUp();
    OpenSaveModel dialog(OpenSaveModel::Style::Open, Access(), browse_);
    platform_.dialogs.ShowModal(dialog);
    if (dialog.Cancelled()) return;
    browse_ = dialog.Fields();
    LoadDoc(dialog.BeerName());
}

void Shell::ShowDeleteDialog() {
    treeObjects_->CatchUp();
    OpenSaveModel dialog(OpenSaveModel::Style::Delete, Access(), browse_);
    platform_.dialogs.ShowModal(dialog);
    if (dialog.Cancelled()) return;
    DeleteRecipe(dialog.BeerName());
    CheckEnableDelete();
    // What the empty window offers may be another.
    if (!active_ && view_) view_->DocumentActivated(nullptr);
    browse_ = dialog.Fields();
}

void Shell::ShowExplorer() {
    treeObjects_->CatchUp();
    const auto editStyle = [this](const std::string& name, std::int64_t folderId) {
        return EditStyle(name, folderId);
    };
    ExplorerModel explorer(Access(), {[this](const std::string& name) { LoadDoc(name); }, editStyle});
    explorer.SetLook(browse_.look);
    platform_.dialogs.ShowModal(explorer);
    browse_.look = explorer.Look();
    CheckEnableDelete();
    if (!active_ && view_) view_->DocumentActivated(nullptr);
}

}  // namespace tw

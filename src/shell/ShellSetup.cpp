// The windows of the catalogue: database setup, the editor of a style, and what the pickers show to be read.
#include "catalogue/CatalogueEditor.h"
#include "catalogue/DBSetupModel.h"
#include "catalogue/StyleEditor.h"
#include "shell/Shell.h"
#include "values/Text.h"

namespace tw {

CatalogueContext Shell::Catalogues() {
    return {*database_, *tree_, *objects_, platform_.messages, platform_.dialogs, platform_.clock};
}

void Shell::CatalogueChanged() {
    for (const auto& document : documents_) document->Notices().DBChanged();
}

void Shell::ShowDatabaseSetup() {
    const CatalogueContext context = Catalogues();
    DBSetupModel setup(context);
    // The documents follow also when an error ends the window.
    Guard([&] { platform_.dialogs.ShowModal(setup); });
    CatalogueChanged();
}

std::optional<std::string> Shell::EditStyle(std::string_view name, std::int64_t folderId) {
    const CatalogueContext context = Catalogues();
    StyleEditor editor(context);
    if (IsBlank(name))
        editor.StartInFolder(folderId);
    else
        editor.SetName(name);
    platform_.dialogs.ShowModal(editor);
    if (editor.Selection().empty()) return std::nullopt;
    CatalogueChanged();
    return editor.Selection();
}

void Shell::ViewCatalogueRow(CatalogueKind type, ListTable& items) {
    const CatalogueContext context = Catalogues();
    const auto editor = MakeEditor(type, context);
    ObjectNavigator navigator(items);
    if (editor->Folders() == nullptr) editor->SetNavigator(navigator);
    editor->SetName(items.Row(items.Selected()).key);
    editor->SetReadOnly();
    platform_.dialogs.ShowModal(*editor);
}

}  // namespace tw

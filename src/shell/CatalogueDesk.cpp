#include "shell/CatalogueDesk.h"

#include "catalogue/CatalogueEditor.h"
#include "catalogue/DatabaseSetupModel.h"
#include "catalogue/StyleEditor.h"
#include "platform/ErrorBox.h"
#include "tree/CataloguePickerModel.h"
#include "values/Text.h"

namespace tw {

CatalogueContext CatalogueDesk::Context() {
    return data_.Catalogue();
}

void CatalogueDesk::ShowSetup() {
    const CatalogueContext context = Context();
    DatabaseSetupModel setup(context);
    // The documents are updated even if an error ends the dialog.
    RunShowingErrors(context.messages, [&] { context.dialogs.ShowModal(setup); });
    documents_.CatalogueChanged();
}

std::optional<std::string> CatalogueDesk::EditStyle(std::string_view name, std::int64_t folderId) {
    const CatalogueContext context = Context();
    StyleEditor editor(context);
    if (IsBlank(name))
        editor.StartInFolder(folderId);
    else
        editor.SetName(name);
    context.dialogs.ShowModal(editor);
    if (editor.Selection().empty()) return std::nullopt;
    documents_.CatalogueChanged();
    return editor.Selection();
}

void CatalogueDesk::Pick(RecipeDocument& document, CatalogueKind list, const std::string& name) {
    CataloguePickerModel picker(list, *data_.database, data_.tree, name);
    picker.SetViewer([this](CatalogueKind type, ListTable& items) { ViewRow(type, items); });
    data_.platform.dialogs.ShowModal(picker);
    if (!picker.Cancelled()) document.Picks().Take(list, picker.Answer());
}

void CatalogueDesk::Add(RecipeDocument& document, const CatalogueDraft& draft) {
    const CatalogueContext context = Context();
    const auto editor = MakeEditor(draft.kind, context);
    editor->StartWith(draft);
    context.dialogs.ShowModal(*editor);
    if (editor->Selection().empty()) return;
    documents_.CatalogueChanged();
    document.Picks().TakeAdded(draft.kind, editor->Selection());
}

void CatalogueDesk::ViewRow(CatalogueKind type, ListTable& items) {
    const CatalogueContext context = Context();
    const auto editor = MakeEditor(type, context);
    ObjectNavigator navigator(items);
    if (editor->Folders() == nullptr) editor->SetNavigator(navigator);
    editor->SetName(items.Row(items.Selected()).key);
    editor->SetReadOnly();
    context.dialogs.ShowModal(*editor);
}

}  // namespace tw

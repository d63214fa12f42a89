#include "tree/CataloguePickerModel.h"

#include "store/CatalogueNames.h"
#include "tree/ListFormats.h"
#include "tree/NodeKey.h"
#include "tree/RowFacts.h"
#include "values/Text.h"

namespace tw {

CataloguePickerModel::CataloguePickerModel(CatalogueKind type, Database& database, const TWTree& tree,
                                           std::string_view name)
    : FormModel(kFormName),
      type_(type),
      filler_(database, tree),
      name_(CatalogueNames(database).RowOf(type, Trim(name)).value_or(std::string(name))),
      guides_(type == CatalogueKind::Style ? StyleGuides(database) : std::string()) {
    AddControls({{"lvItems", [this] { return items_.SelectedText(); },
                  [this](std::string_view text) { return items_.SelectText(text); }}});
    if (HasFolders())
        AddControls({{"treeFolders", [this] { return folders_.SelectedKey(); },
                      [this](std::string_view key) { return ChooseFolder(key); }}});
    AddButtons({
        {"cmdOK", [this] { TakeRow(); }, [this] { return OkEnabled(); }},
        {"cmdView", [this] { viewer_(type_, items_); }, [this] { return ViewEnabled(); }},
        {"cmdCancel", [this] { Close(); }},
    });
    folders_.Fill([&](TreeView& view) {
        if (HasFolders()) tree.PopulateTreeViewForStyleList(view);
    });
    for (const int folder : folders_.Children(TreeItems::kNone)) folders_.Expand(folder);
    // Without the system folder in the tree, styles can still be chosen.
    if (!HasFolders() || !ChooseFolder(kAllStylesKey)) Fill(-1);
}

std::string CataloguePickerModel::Title() const {
    return "Select " + std::string(WordsOf(type_).picked);
}

void CataloguePickerModel::Fill(std::int64_t folderId) {
    if (type_ == CatalogueKind::Style)
        filler_.FillStyles(items_, folderId);
    else
        filler_.Fill(items_, type_);
    items_.Select(items_.FindNearest(name_));
}

bool CataloguePickerModel::ChooseFolder(std::string_view key) {
    if (!folders_.SelectKey(key)) return false;
    Fill(IdOfKey(key));
    return true;
}

void CataloguePickerModel::TakeRow() {
    const ListRow& row = items_.Row(items_.Selected());
    answer_ = row.key;
    // Without a description, only the name: a " - " alone would become part of it.
    if (type_ == CatalogueKind::Yeast && !IsBlank(row.cells[1])) answer_ += " - " + row.cells[1];
    Accept();
}

}  // namespace tw

#include "tree/LvShowModel.h"

#include <array>

#include "store/CatalogueNames.h"
#include "store/ObjectKeys.h"
#include "tree/ListFormats.h"
#include "tree/RowFacts.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, kPickLists> kTitles = {
    "Select Style", "Select Grain",         "Select Extract",   "Select Hop Variety",
    "Select Yeast", "Select Water Profile", "Select Treatment", "Select Priming Sugar"};

}  // namespace

LvShowModel::LvShowModel(PickList type, Database& database, const TWTree& tree, std::string_view name)
    : type_(type),
      filler_(database, tree),
      name_(CatalogueNames(database).RowOf(KindOf(type), Trim(name)).value_or(std::string(name))),
      guides_(type == PickList::Style ? StyleGuides(database) : std::string()) {
    folders_.Fill([&](TreeView& view) {
        if (HasFolders()) tree.PopulateTreeViewForStyleList(view);
    });
    for (const int folder : folders_.Children(TreeItems::kNone)) folders_.Expand(folder);
    // A tree without its system folder still lets a style be chosen.
    if (!HasFolders() || !ChooseFolder(kAllStylesKey)) Fill(-1);
}

std::string LvShowModel::Title() const {
    return std::string(kTitles[static_cast<std::size_t>(type_)]);
}

void LvShowModel::Fill(std::int64_t folderId) {
    switch (type_) {
        case PickList::Style:
            filler_.FillStyles(items_, folderId);
            break;
        case PickList::Grain:
        case PickList::Extract:
            filler_.FillGrains(items_, type_ == PickList::Grain);
            break;
        case PickList::Hop:
            filler_.FillHops(items_);
            break;
        case PickList::Yeast:
            filler_.FillYeast(items_);
            break;
        case PickList::Water:
            filler_.FillWaterProfiles(items_);
            break;
        case PickList::Treatment:
            filler_.FillSalts(items_);
            break;
        case PickList::Sugar:
            filler_.FillSugars(items_);
            break;
    }
    items_.Select(items_.FindNearest(name_));
}

bool LvShowModel::ChooseFolder(std::string_view key) {
    if (!folders_.SelectKey(key)) return false;
    Fill(IdOfKey(key));
    return true;
}

std::vector<DialogControl> LvShowModel::Controls() const {
    std::vector<DialogControl> controls = {{"lvItems", items_.SelectedText()}};
    if (HasFolders()) controls.push_back({"treeFolders", folders_.SelectedKey()});
    return controls;
}

bool LvShowModel::SetControl(std::string_view name, std::string_view text) {
    if (name == "treeFolders") return HasFolders() && ChooseFolder(text);
    if (name != "lvItems") return false;
    for (int row = 0; row < items_.Count(); ++row)
        if (SameName(items_.Row(row).cells.front(), text) && items_.Select(row)) return true;
    return false;
}

bool LvShowModel::Press(std::string_view button) {
    if (button == "cmdOK") {
        if (OkEnabled()) Accept();
    } else if (button == "cmdView") {
        if (ViewEnabled()) viewer_(type_, items_);
    } else if (button == "cmdCancel") {
        CloseBox();
    } else {
        return false;
    }
    return true;
}

void LvShowModel::Accept() {
    const ListRow& row = items_.Row(items_.Selected());
    answer_ = row.key;
    // Without a description there is nothing to part from the name: a " - " alone would become part of it.
    if (type_ == PickList::Yeast && !IsBlank(row.cells[1])) answer_ += " - " + row.cells[1];
    cancelled_ = false;
    open_ = false;
}

}  // namespace tw

// The way from a style or a cell to its catalogue and back.
#include "document/PitchedYeast.h"
#include "document/RecipeDocument.h"
#include "values/Text.h"

namespace tw {

std::optional<PickList> RecipeDocument::PickListOf(const Grid& grid, int row, int col) const {
    const RecipeRecord& r = record_;
    if (!CanEdit(grid, row, col)) return std::nullopt;
    if (&grid == &r.gridWater && col == WaterCol::Profile) return PickList::Water;
    // Other notes than those of a pitched yeast are nobody's name.
    if (&grid == &r.gridLog && col == LogCol::Notes &&
        SameName(grid.Text(row, LogCol::Action), "PITCHED YEAST"))
        return PickList::Yeast;
    if (col != 0) return std::nullopt;
    if (&grid == &r.gridGrain) return PickList::Grain;
    if (&grid == &r.gridExtract) return PickList::Extract;
    if (&grid == &r.gridHops) return PickList::Hop;
    if (&grid == &r.gridTreatment) return PickList::Treatment;
    if (&grid == &r.gridPriming) return PickList::Sugar;
    return std::nullopt;
}

void RecipeDocument::BrowseStyles() {
    host_.PickFromCatalogue(*this, PickList::Style, record_.cmbStyle.Text());
}

bool RecipeDocument::BrowseCell(Grid& grid) {
    const int row = grid.CurrentRow(), col = grid.CurrentCol();
    if (grid.Selection() != GridRange{row, col, row, col}) return false;
    const std::optional<PickList> list = PickListOf(grid, row, col);
    if (!list) return false;
    const std::string& text = grid.Text(row, col);
    host_.PickFromCatalogue(*this, *list,
                            std::string(*list == PickList::Yeast ? PitchedYeastName(text) : Trim(text)));
    return true;
}

void RecipeDocument::TakeChoice(PickList list, std::string_view name) {
    switch (list) {
        case PickList::Style:
            ChangeStyle(name);
            return;
        case PickList::Grain:
            return ChangeGrain(name);
        case PickList::Extract:
            return ChangeExtract(name);
        case PickList::Hop:
            return ChangeHop(name);
        case PickList::Yeast:
            return ChangeYeast(name);
        case PickList::Water:
            return ChangeWater(name);
        case PickList::Treatment:
            return ChangeSalt(name);
        case PickList::Sugar:
            return ChangeSugar(name);
    }
}

}  // namespace tw

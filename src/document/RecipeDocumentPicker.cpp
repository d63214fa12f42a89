// The way from a style or a cell to its catalogue and back.
#include "calc/GridRules.h"
#include "document/PitchedYeast.h"
#include "document/RecipeDocument.h"
#include "values/Text.h"

namespace tw {

std::optional<PickList> RecipeDocument::PickListOf(const Grid& grid, int row, int col) const {
    if (!CanEdit(grid, row, col)) return std::nullopt;
    // Other notes than those of a pitched yeast are nobody's name.
    if (grid.Id() == GridId::Log && col == LogCol::Notes &&
        SameName(grid.Text(row, LogCol::Action), "PITCHED YEAST"))
        return PickList::Yeast;
    switch (RuleOf(grid, col).names) {
        case CellNames::Grains:
            return PickList::Grain;
        case CellNames::Extracts:
            return PickList::Extract;
        case CellNames::Hops:
            return PickList::Hop;
        case CellNames::Sugars:
            return PickList::Sugar;
        case CellNames::Salts:
            return PickList::Treatment;
        case CellNames::Waters:
            return PickList::Water;
        default:
            return std::nullopt;
    }
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

#include "document/CataloguePicks.h"

#include <string>

#include "document/DocumentHost.h"
#include "document/RowFiller.h"
#include "platform/ScopeGuard.h"
#include "record/CellRules.h"
#include "values/Text.h"

namespace tw {

std::optional<CatalogueKind> CataloguePicks::ListOf(const Grid& grid, int row, int col) const {
    if (!cells_.CanEdit(grid, row, col)) return std::nullopt;
    const CellNames names = RuleOf(grid, col).names;
    // Notes contain a name only if their row pitches a yeast.
    if (names == CellNames::PitchedYeast && !PitchesYeast(grid, row)) return std::nullopt;
    return CatalogueOf(names);
}

void CataloguePicks::BrowseStyles() {
    recipe_.PickFromCatalogue(CatalogueKind::Style, recipe_.record.cmbStyle.Text());
}

void CataloguePicks::BrowseYeast() {
    const ScopedValue choosing(choosesYeast_, true);
    recipe_.PickFromCatalogue(CatalogueKind::Yeast, yeast_.Name());
}

bool CataloguePicks::BrowseCell(Grid& grid) {
    const int row = grid.CurrentRow(), col = grid.CurrentCol();
    if (grid.Selection() != GridRange{row, col, row, col}) return false;
    const std::optional<CatalogueKind> list = ListOf(grid, row, col);
    if (!list) return false;
    const std::string& text = grid.Text(row, col);
    recipe_.PickFromCatalogue(
        *list, std::string(*list == CatalogueKind::Yeast ? PitchedYeastName(text) : Trim(text)));
    return true;
}

bool CataloguePicks::CanAdd(const Grid& grid) const {
    return missing_.DraftOf(grid, grid.CurrentRow()).has_value();
}

void CataloguePicks::AddCurrent(const Grid& grid) {
    if (const auto draft = missing_.DraftOf(grid, grid.CurrentRow())) recipe_.AddToCatalogue(*draft);
}

void CataloguePicks::Take(CatalogueKind list, std::string_view name) {
    if (list == CatalogueKind::Style)
        style_.ChangeStyle(name);
    else if (choosesYeast_)
        yeast_.Choose(name);
    else
        Enter(list, name, false);
}

void CataloguePicks::TakeAdded(CatalogueKind list, std::string_view name) {
    Enter(list, name, true);
}

// again: fills the row even if it has that name already.
void CataloguePicks::Enter(CatalogueKind list, std::string_view name, bool again) {
    const std::optional<CellNames> names = CellNamesOf(list);
    for (Grid* const grid : recipe_.record.Grids())
        for (int col = 0; col < grid->Cols(); ++col)
            if (RuleOf(*grid, col).names == names) {
                OneStep step(recipe_, ChangeType::Selection);
                // An unchanged text would not be looked up.
                if (again) cells_.EditCell(*grid, grid->CurrentRow(), col, "", Asking::Quietly);
                cells_.EditCell(*grid, grid->CurrentRow(), col, name, Asking::Quietly);
                step.Keep();
            }
}

}  // namespace tw

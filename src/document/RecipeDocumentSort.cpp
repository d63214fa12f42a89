// Sorting a grid by a click on a column's header.
#include <algorithm>
#include <numeric>

#include "calc/GridRules.h"
#include "document/RecipeDocument.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

double SortNumber(const Grid& grid, int row, int col) {
    if (grid.IsCheckBox(row, col)) return grid.Checked(row, col) ? 1 : 0;
    double shown = 0;
    // A computed cell counts by the number that its text shows.
    if (grid.ColumnAt(col).readOnly && ReadNumber(grid.Text(row, col), shown)) return shown;
    return grid.Number(row, col);
}

}  // namespace

// The order of the data rows by the column; a blank comes first, equal rows keep their order.
std::vector<int> RecipeDocument::SortedOrder(const Grid& grid, int col) const {
    const bool byNumber = RuleOf(grid, col).SortsByNumber();
    const auto before = [&](int a, int b) {
        const int rowA = Grid::FixedRows() + a;
        const int rowB = Grid::FixedRows() + b;
        if (!byNumber) return CompareNoCase(grid.Text(rowA, col), grid.Text(rowB, col)) < 0;
        const bool blankA = !grid.IsCheckBox(rowA, col) && grid.Empty(rowA, col);
        const bool blankB = !grid.IsCheckBox(rowB, col) && grid.Empty(rowB, col);
        if (blankA || blankB) return blankA && !blankB;
        return SortNumber(grid, rowA, col) < SortNumber(grid, rowB, col);
    };
    std::vector<int> order(static_cast<std::size_t>(grid.DataRows()));
    std::iota(order.begin(), order.end(), 0);
    if (sortDescending_)
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return before(b, a); });
    else
        std::stable_sort(order.begin(), order.end(), before);
    return order;
}

void RecipeDocument::ClickHeader(Grid& grid, int col) {
    if (!grid.RowsCanChange() || !grid.HasCell(0, col)) return;
    if (col == sortColumn_)
        sortDescending_ = !sortDescending_;
    else
        sortColumn_ = col;
    if (!FlushEdits() || grid.DataRows() < 2) return;
    const RedrawHold hold(view_);
    const std::vector<int> order = SortedOrder(grid, col);
    if (std::is_sorted(order.begin(), order.end())) return;
    std::vector<int> inverse(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        inverse[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
    const EditRecorder::Edit edit{ControlType::Grid, ChangeType::Sort, {}, 0, col};
    recorder_.RecordEdit(grid.Name(), EditValue::OfOrder(std::move(inverse)), EditValue::OfOrder(order),
                         edit);
    grid.OrderRows(order);
    MarkChanged();
}

// A sort that is undone or done again shows where.
void RecipeDocument::OrderGrid(Grid& grid, const std::vector<int>& order, int col) {
    if (order.size() != static_cast<std::size_t>(grid.DataRows())) return;
    grid.OrderRows(order);
    grid.SetCurrent(Grid::FixedRows(), col);
    RefreshRowCommands();
}

}  // namespace tw

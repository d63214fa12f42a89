#include "doctor/RecipeComparison.h"

#include <algorithm>

#include "document/RowFiller.h"
#include "record/CellRules.h"
#include "values/Text.h"

namespace tw {
namespace {

// The grids whose rows are lines of a foreign recipe.
constexpr GridId kLineGrids[] = {GridId::Grain,     GridId::Extract,  GridId::Hops, GridId::Water,
                                 GridId::Treatment, GridId::Adjuncts, GridId::Log};

// The text by which a row and a planned line are paired.
std::string NameIn(const Grid& grid, int row) {
    switch (grid.Id()) {
        case GridId::Log:
            return PitchesYeast(grid, row) ? std::string(PitchedYeastName(grid.Text(row, LogCol::Notes)))
                                           : grid.Text(row, LogCol::Action);
        case GridId::Water:
            return grid.Text(row, WaterCol::Profile);
        default:
            return grid.Text(row, 0);
    }
}

std::string NameOf(const PlannedLine& line) {
    if (line.grid != GridId::Log) return line.cells.front().text;
    const bool pitches = SameName(line.cells.front().text, kPitchedYeast);
    return pitches ? std::string(PitchedYeastName(line.cells.back().text)) : line.cells.front().text;
}

bool SaysTheSame(const Grid& grid, int row, const PlannedLine& line) {
    if (grid.Id() == GridId::Hops && grid.Checked(row, HopCol::DryHopped) != line.dry) return false;
    return std::ranges::all_of(line.cells, [&](const PlannedCell& cell) {
        return Trim(grid.Text(row, cell.col)) == Trim(cell.text);
    });
}

bool IsWritten(const Grid& grid, int row) {
    if (grid.Id() != GridId::Water) return !IsBlankRow(grid, row);
    if (row != WaterRow::Source) return false;
    // The first cell is the name of the row.
    for (int col = WaterCol::Profile; col < grid.Cols(); ++col)
        if (!grid.Empty(row, col)) return true;
    return false;
}

}  // namespace

std::size_t RecipeComparison::Unchanged() const {
    return static_cast<std::size_t>(std::ranges::count_if(rows, &ComparedRow::unchanged));
}

RecipeComparison Compare(const RecipeRecord& record, const RecipePlan& plan) {
    RecipeComparison result;
    std::vector<const PlannedLine*> left;
    for (const PlannedLine& line : plan.lines)
        if (std::ranges::find(kLineGrids, line.grid) != std::end(kLineGrids)) left.push_back(&line);
    for (const GridId id : kLineGrids) {
        const Grid& grid = record[id];
        for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
            if (IsWritten(grid, row)) result.rows.push_back({&grid, row});
    }
    const auto pair = [&](ComparedRow& row, bool same) {
        if (row.line) return;
        const std::string name = NameIn(*row.grid, row.row);
        const auto found = std::ranges::find_if(left, [&](const PlannedLine* line) {
            return line->grid == row.grid->Id() && SameName(NameOf(*line), name) &&
                   (!same || SaysTheSame(*row.grid, row.row, *line));
        });
        if (found == left.end()) return;
        row.line = *found;
        row.unchanged = same;
        left.erase(found);
    };
    // Of several rows of one name, those that still say the same take their lines first.
    for (const bool same : {true, false})
        for (ComparedRow& row : result.rows) pair(row, same);
    result.gone = std::move(left);
    return result;
}

}  // namespace tw

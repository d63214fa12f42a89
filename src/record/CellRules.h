// What the cells of the grids are: the one list of all columns. Whoever shows, validates, looks up, sorts,
// stores or prints a cell asks here.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "record/Grid.h"

namespace tw {

class RecipeCalculator;

// What a cell of the column accepts from the brewer. The number behind a quantity is in the unit named.
enum class CellTakes : std::uint8_t {
    RowLabel,  // nothing: the fixed name of its row
    Computed,  // nothing: a figure of the program
    AnyText,   // no number behind it
    Pounds,
    Ounces,
    Grams,
    Percent,
    Minutes,      // any text without a number in a dry-hopped row
    HopAmount,    // ounces, AAUs or IBUs (CellValue::Kind)
    HopForm,      // one of kHopForms; the number is its index
    PlainNumber,  // not negative, without a unit
    KegPsi,       // psi for which the keg has a carbonation
    YesNo         // a check box
};

// The names that a cell's list offers.
enum class CellNames : std::uint8_t {
    None,
    Grains,
    Extracts,
    Hops,
    Sugars,
    Salts,
    Waters,
    PitchedYeast,  // of the catalogue, in the rows whose action pitches one; no list drops down
    UsedAdjuncts,  // those of the stored recipes
    HopForms,      // a closed list: no other text
    TimesToAdd,
    LogActions
};

// How a column is stored.
enum class CellStored : std::uint8_t {
    No,
    Text,
    Quantity,  // text and number: the columns X and X_DATA
    Number,    // the number alone
    BareText,  // the text alone, which must be a number; NULL for a blank one
    Form,      // the index of a hop form
    Flag
};

struct CellRule {
    std::string_view header;
    CellTakes takes = CellTakes::AnyText;
    std::string_view column = {};  // of its table; empty for a cell that is not stored
    CellStored stored = CellStored::No;
    CellNames names = CellNames::None;
    std::string_view numberWord = {};  // what the messages of a PlainNumber call it
    std::string_view pattern = {};     // how a computed number is shown

    // Words stand at the left, numbers at the right.
    bool HoldsWords() const {
        return takes == CellTakes::RowLabel || takes == CellTakes::AnyText || takes == CellTakes::HopForm;
    }
    bool ReadOnly() const { return takes == CellTakes::RowLabel || takes == CellTakes::Computed; }
    bool CheckBox() const { return takes == CellTakes::YesNo; }
    // Rows are sorted by the number behind the cell, by the state of a check box, or else by the text.
    bool SortsByNumber() const { return takes != CellTakes::AnyText && takes != CellTakes::HopForm; }
};

// Stands for the column where several cells of a row have changed.
inline constexpr int kWholeRow = -1;

// Where the rows of a grid are stored: as lines of a table,
struct LineTable {
    std::string_view name;  // empty for none
    // A column that tells the lines of two grids apart, and its value for this grid; empty for none.
    std::string_view flagColumn = {};
    bool flag = false;
};
// or in the recipe's own row, a set of columns for each of the first rows: this stands before their names.
using ColumnPrefixes = std::span<const std::string_view>;

struct GridRule {
    GridId id;
    std::string_view name;     // of the control
    std::string_view caption;  // what the grid holds, for its window and for screen readers
    std::span<const CellRule> columns;
    LineTable lines;
    ColumnPrefixes prefixes = {};
    int totalsRows = 0;         // rows behind the data that are no data
    int leastDataRows = 0;      // a delete never leaves fewer
    bool rowsCanChange = true;  // rows can be inserted and deleted
    // The figures that follow a commit in that cell, without look-ups; col may be kWholeRow. nullptr for
    // none.
    void (*committed)(RecipeCalculator& calculator, Grid& grid, int row, int col) = nullptr;
    // The figures that follow the removal of a row. nullptr for none.
    void (*removed)(RecipeCalculator& calculator, Grid& grid) = nullptr;
};

// All grids, in the order of GridId.
std::span<const GridRule> GridRules();
// Both in constant time.
const GridRule& RuleOf(GridId id);
inline const GridRule& RuleOf(const Grid& grid) {
    return RuleOf(grid.Id());
}
// REQUIRES: 0 <= col < grid.Cols().
inline const CellRule& RuleOf(const Grid& grid, int col) {
    return RuleOf(grid.Id()).columns[static_cast<std::size_t>(col)];
}

}  // namespace tw

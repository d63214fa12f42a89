// The rules of the grids' cells: the only list of all columns. All code that shows, validates, looks up,
// sorts, stores or prints a cell uses these rules.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "record/Grid.h"

namespace tw {

class RecipeCalculator;

// What the brewer may enter into a cell of the column. A quantity's number is in the unit named.
enum class CellTakes : std::uint8_t {
    RowLabel,  // nothing: the fixed name of the row
    Computed,  // nothing: the program calculates the cell
    AnyText,   // any text, without a number
    Pounds,
    Ounces,
    Grams,
    Percent,
    Minutes,      // free text without a number in a dry-hopped row
    HopAmount,    // ounces, AAUs or IBUs (CellValue::Kind)
    HopForm,      // one of kHopForms; the number is its index
    PlainNumber,  // not negative, without a unit
    KegPsi,       // psi at which the keg has a non-negative carbonation
    YesNo         // nothing but a check box
};

// Returns the unit in which a text that names none is read, in the words of the printed recipe; empty if a
// column takes no amount in a unit.
constexpr std::string_view DefaultUnit(CellTakes takes) {
    switch (takes) {
        case CellTakes::Pounds:
            return "pounds";
        case CellTakes::Ounces:
        case CellTakes::HopAmount:
            return "ounces";
        case CellTakes::Grams:
            return "grams";
        case CellTakes::Minutes:
            return "minutes";
        case CellTakes::Percent:
            return "percent";
        case CellTakes::KegPsi:
            return "PSI";
        default:
            return {};
    }
}

// The names offered by the drop-down list of a cell.
enum class CellNames : std::uint8_t {
    None,
    Grains,
    Extracts,
    Hops,
    Sugars,
    Salts,
    Waters,
    PitchedYeast,  // from the catalogue, in rows whose action pitches yeast; not dropped down
    UsedAdjuncts,  // the adjuncts of the stored recipes
    HopForms,      // the only texts that the cell accepts
    TimesToAdd,
    LogActions
};

// How a column is stored in the database.
enum class CellStored : std::uint8_t {
    No,
    Text,
    Quantity,  // text and number, in the columns X and X_DATA
    Number,    // the number alone
    BareText,  // the text alone, which must be a number; NULL if blank
    Form,      // the index of a hop form
    Flag
};

// When Tab stops at a column. Shift+Tab and the cursor keys reach every cell.
enum class CellStop : std::uint8_t {
    Always,
    WhileBlank,  // the catalogue usually fills the cell
    Never        // the catalogue or the settings fill the cell
};

struct CellRule {
    std::string_view header;
    CellTakes takes = CellTakes::AnyText;
    std::string_view column = {};  // the name in its table; empty for a cell that is not stored
    CellStored stored = CellStored::No;
    CellNames names = CellNames::None;
    std::string_view numberWord = {};  // for a PlainNumber: the word for the number in messages
    std::string_view pattern = {};     // for a Computed number: the format in which it is shown
    CellStop stop = CellStop::Always;

    // True if the cells contain words, which are aligned left; numbers are aligned right.
    bool HoldsWords() const {
        return takes == CellTakes::RowLabel || takes == CellTakes::AnyText || takes == CellTakes::HopForm;
    }
    bool ReadOnly() const { return takes == CellTakes::RowLabel || takes == CellTakes::Computed; }
    bool CheckBox() const { return takes == CellTakes::YesNo; }
    // True if rows are sorted by the cell's number or check state, false if by its text.
    bool SortsByNumber() const { return takes != CellTakes::AnyText && takes != CellTakes::HopForm; }
};

// The table in which a grid's rows are stored, each as a line.
struct LineTable {
    std::string_view name;  // empty for none
    // A column that distinguishes the lines of two grids in one table, and its value for this grid; empty if
    // the table belongs to one grid.
    std::string_view flagColumn = {};
    bool flag = false;
};
// The first rows of a grid without such a table are stored in the recipe's own row, with one set of columns
// for each grid row. These prefixes precede the names of the columns.
using ColumnPrefixes = std::span<const std::string_view>;

struct GridRule {
    GridId id;
    std::string_view name;     // of the control
    std::string_view caption;  // describes the grid, in its window and for screen readers
    std::span<const CellRule> columns;
    LineTable lines;
    ColumnPrefixes prefixes = {};
    int totalsRows = 0;         // read-only rows after the data rows
    int leastDataRows = 0;      // deleting rows never leaves fewer
    bool rowsCanChange = true;  // rows can be inserted and deleted
    // Calculates the figures that depend on the cell just committed, without looking up the catalogue; col
    // may be kWholeRow. nullptr if there are none.
    void (*committed)(RecipeCalculator& calculator, Grid& grid, int row, int col) = nullptr;
    // Calculates the figures that depend on a row just removed. nullptr if there are none.
    void (*removed)(RecipeCalculator& calculator, Grid& grid) = nullptr;
};

// All grids, in the order of GridId.
std::span<const GridRule> GridRules();
// Return the rule of a grid. Constant time.
const GridRule& RuleOf(GridId id);
inline const GridRule& RuleOf(const Grid& grid) {
    return RuleOf(grid.Id());
}
// REQUIRES: 0 <= col < grid.Cols().
inline const CellRule& RuleOf(const Grid& grid, int col) {
    return RuleOf(grid.Id()).columns[static_cast<std::size_t>(col)];
}

// True if Tab stops at the cell. REQUIRES: grid.HasCell(row, col).
bool IsTabStop(const Grid& grid, int row, int col);
// True if all cells of a row are empty; the form of a hop does not count as text.
bool IsBlankRow(const Grid& grid, int row);

}  // namespace tw

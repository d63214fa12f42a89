// One file of the catalogue tables: lines of cells between tabs under a header row, read and checked against
// the columns that the file must have.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// Something wrong in a catalogue file. Lines count from 1, the header row included.
struct CatalogueProblem {
    std::string file;
    int line = 1;
    std::string what;

    // "{file}:{line}: {what}".
    std::string Text() const;
};

using CatalogueProblems = std::vector<CatalogueProblem>;

// What the cells of one column may hold. A column whose header ends in "_lo" stands directly before its
// "_hi": both are given or both are blank, and the low one is not above the high one.
struct CatalogueColumn {
    enum class Kind { Text, Word, Number };

    std::string_view header;
    Kind kind = Kind::Text;
    bool required = false;                         // a blank cell is a problem
    std::span<const std::string_view> words = {};  // all that a cell of a Word column may say
    double least = 0;                              // the bounds of a Number column, themselves allowed
    double most = 0;
    bool partsNames = false;  // a name may occur once for each different cell of this column
};

// A line below the header row.
struct CatalogueRow {
    std::span<const CatalogueColumn> columns;
    int line = 0;
    std::vector<std::string> cells;  // as many as there are columns
    std::vector<std::optional<double>>
        numbers;  // by column; nothing for a blank cell or one that is no number

    // By the header of the column. REQUIRES: there is such a column.
    const std::string& Text(std::string_view header) const { return cells[IndexOf(header)]; }
    const std::optional<double>& Number(std::string_view header) const { return numbers[IndexOf(header)]; }

  private:
    std::size_t IndexOf(std::string_view header) const;
};

struct CatalogueSheet {
    std::string file;
    bool readable =
        false;  // false when the file is missing or its header row is another one; there are no rows then
    std::vector<CatalogueRow> rows;
};

// Reads the file at path; columns must outlive the result. The first column is the name of the row: it is
// never blank, holds no double quote, and occurs once, without regard to case. Everything wrong goes to the
// end of problems: a missing file, another header row, bytes that are not UTF-8, characters that cannot be
// seen, a wrong number of cells, blanks at a cell's ends or doubled inside, and whatever columns rules out. A
// faulty row is still among the rows, so that its name is known.
CatalogueSheet ReadCatalogueFile(const std::string& path, std::span<const CatalogueColumn> columns,
                                 CatalogueProblems& problems);

}  // namespace tw

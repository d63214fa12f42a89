// One file of the catalogue: lines of cells separated by tabs below a header row, read and checked against
// the columns that the file must have.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// An error in a catalogue file. Lines are counted from 1, including the header row.
struct CatalogueProblem {
    std::string file;
    int line = 1;
    std::string what;

    // Returns "{file}:{line}: {what}".
    std::string Text() const;
};

using CatalogueProblems = std::vector<CatalogueProblem>;

// What the cells of one column may contain. A column whose header ends in "_lo" must be directly before its
// "_hi" column: both cells have a value or both are blank, and the low value must not exceed the high one.
struct CatalogueColumn {
    enum class Kind { Text, Word, Number };

    std::string_view header;
    Kind kind = Kind::Text;
    bool required = false;                         // a blank cell is a problem
    std::span<const std::string_view> words = {};  // for Word: all texts that a cell may contain
    double least = 0;                              // for Number: the bounds, inclusive
    double most = 0;
    bool partsNames = false;  // rows with different cells in this column may have the same name
};

// A line below the header row.
struct CatalogueRow {
    std::span<const CatalogueColumn> columns;
    int line = 0;
    std::vector<std::string> cells;              // one per column
    std::vector<std::optional<double>> numbers;  // by column; nullopt for a blank cell or an invalid number

    // By the header of the column. REQUIRES: the column exists.
    const std::string& Text(std::string_view header) const { return cells[IndexOf(header)]; }
    const std::optional<double>& Number(std::string_view header) const { return numbers[IndexOf(header)]; }

  private:
    std::size_t IndexOf(std::string_view header) const;
};

struct CatalogueSheet {
    std::string file;
    bool readable = false;  // false, without rows, if the file is missing or has a wrong header row
    std::vector<CatalogueRow> rows;
};

// Reads the file at path; columns must outlive the result. The first column is the name of the row: it must
// not be blank, must not contain a double quote, and must be unique regardless of case. Appends every error
// to problems: a missing file, a wrong header row, invalid UTF-8, invisible characters, a wrong number of
// cells, spaces at either end of a cell or doubled inside, and everything that columns excludes. A faulty row
// is included in the result nevertheless, so that its name is known.
CatalogueSheet ReadCatalogueFile(const std::string& path, std::span<const CatalogueColumn> columns,
                                 CatalogueProblems& problems);

}  // namespace tw

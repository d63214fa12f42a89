// What an editor holds of a row of its catalogue, and how that is read from and written to the row. The
// derived editors hold what only one catalogue has: the types of grains, the folders of styles.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/CellGrid.h"
#include "catalogue/EditorForm.h"
#include "store/Database.h"

namespace tw {

// A drop-down list with its text.
struct EditorList {
    // Chooses an entry. A text that is not an entry is accepted only if freeText is set or if it is the
    // present text. False, without a change, if it is not accepted.
    bool Choose(std::string_view entry);

    std::vector<std::string> entries;
    std::string text;
    bool freeText = false;  // accepts texts that are not entries
};

struct EditorEntry {
    explicit EditorEntry(const EditorForm& form) : cells(form.rows) {}

    std::string name;         // Text1
    std::string text2;        // Text2
    std::string description;  // txtDesc
    EditorList combo1, combo2;
    CellGrid cells;
};

// Column names with their values, in the order of an INSERT.
using ColumnValues = std::vector<std::pair<std::string, SqlValue>>;

// Blanks the entry and fills its lists, some of them from the database. Raises the store's error.
void ClearEntry(EditorEntry& entry, const EditorForm& form, Database& database);
// Reads the current row of the recordset. Raises the store's error; entry may then contain a part of the row.
void ReadEntry(EditorEntry& entry, const EditorForm& form, const Recordset& row);
// Returns the columns with which the entry is stored under that name. ownValue returns the value of a column
// that an entry does not hold. A blank end of a range is handled as form.blank says.
ColumnValues ValuesOf(const EditorEntry& entry, const EditorForm& form, const std::string& name,
                      const std::function<SqlValue(ColumnSource)>& ownValue);
// Inserts one row. Raises the store's error.
void InsertRow(Database& database, std::string_view table, const ColumnValues& values);

}  // namespace tw

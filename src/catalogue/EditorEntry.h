// What an editor holds of a row of its catalogue, and how that is read from the row and written to it. What
// one catalogue alone has (the types of the grains, the folders of the styles) stands in the editors derived
// for it.
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

// A list with its box.
struct EditorList {
    // Takes an entry; one that is none only when the list takes any text or the box shows it already. False,
    // and nothing changes, for another text.
    bool Choose(std::string_view entry);

    std::vector<std::string> entries;
    std::string text;
    bool freeText = false;  // takes texts that are no entries, too
};

struct EditorEntry {
    explicit EditorEntry(const EditorForm& form) : cells(form.rows) {}

    std::string name;         // Text1
    std::string text2;        // Text2
    std::string description;  // txtDesc
    EditorList combo1, combo2;
    CellGrid cells;
};

// The values of columns by their names, in the order of an INSERT.
using ColumnValues = std::vector<std::pair<std::string, SqlValue>>;

// Blanks the entry and fills its lists, some of them from the database.
void ClearEntry(EditorEntry& entry, const EditorForm& form, Database& database);
// Takes the row that the recordset is at. Raises the store's error; the entry may hold a part of the row
// then.
void ReadEntry(EditorEntry& entry, const EditorForm& form, const Recordset& row);
// The entry as it is stored under a name. ownValue: the value of a column that an entry does not hold. A
// blank range end is left out or NULL, as the form says.
ColumnValues ValuesOf(const EditorEntry& entry, const EditorForm& form, const std::string& name,
                      const std::function<SqlValue(ColumnSource)>& ownValue);
// Raises the store's error.
void InsertRow(Database& database, std::string_view table, const ColumnValues& values);

}  // namespace tw

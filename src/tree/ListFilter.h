// The filter of the lists: which rows fit a typed text, and how well.
#pragma once

#include <string_view>
#include <vector>

#include "tree/ListRow.h"
#include "values/NameMatch.h"

namespace tw {

// Returns what a filter searches, one entry per row. A row is found by its name, and less well by its code,
// by its other names, and by words spread over these and its cells. Headings are never found.
NameList SearchedNames(const std::vector<ListRow>& rows);

struct FilteredRows {
    std::vector<ListRow> rows;
    std::vector<NameMatch> matches;  // how well each row fits; without meaning for a heading
};

// Returns the rows that fit the typed text, and the headings over them: groups in their order, the best rows
// of a group first. REQUIRES: names is SearchedNames(rows), typed contains a word.
FilteredRows FilterRows(const std::vector<ListRow>& rows, const NameList& names, std::string_view typed);

// Returns the index of the row that fits best: of several equally good ones, the one with that key, else the
// first. -1 if no row fits.
int BestRow(const FilteredRows& filtered, std::string_view preferredKey);

}  // namespace tw

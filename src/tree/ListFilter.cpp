#include "tree/ListFilter.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace tw {

NameList SearchedNames(const std::vector<ListRow>& rows) {
    NameList names;
    for (const ListRow& row : rows) {
        if (row.isGroup) {
            names.Add("");
            continue;
        }
        std::vector<std::string> others = row.otherNames;
        others.push_back(row.code);
        std::string all;
        for (const std::string& text : others) all.append(text).append(" ");
        for (const std::string& text : row.cells) all.append(text).append(" ");
        others.push_back(std::move(all));
        names.Add(row.cells.front(), others);
    }
    return names;
}

FilteredRows FilterRows(const std::vector<ListRow>& rows, const NameList& names, std::string_view typed) {
    std::vector<std::optional<NameMatch>> matches(rows.size());
    for (const FoundName& found : names.Find(typed)) matches[found.index] = found.match;

    std::vector<std::size_t> shown;
    for (std::size_t begin = 0; begin < rows.size();) {
        // A group: its heading, if it has one, and its rows.
        std::size_t end = begin + 1;
        while (end < rows.size() && !rows[end].isGroup && rows[end].group == rows[begin].group) ++end;
        const std::size_t first = begin + (rows[begin].isGroup ? 1 : 0);
        const std::size_t shownBefore = shown.size();
        if (first != begin) shown.push_back(begin);
        for (std::size_t row = first; row < end; ++row)
            if (matches[row]) shown.push_back(row);
        const auto members = shown.begin() + static_cast<std::ptrdiff_t>(shownBefore + first - begin);
        std::ranges::stable_sort(members, shown.end(), {}, [&](std::size_t row) { return *matches[row]; });
        if (members == shown.end()) shown.resize(shownBefore);
        begin = end;
    }

    FilteredRows filtered;
    for (const std::size_t row : shown) {
        filtered.rows.push_back(rows[row]);
        filtered.matches.push_back(matches[row].value_or(NameMatch::AliasWords));
    }
    return filtered;
}

int BestRow(const FilteredRows& filtered, std::string_view preferredKey) {
    int best = -1;
    for (std::size_t row = 0; row < filtered.rows.size(); ++row) {
        if (filtered.rows[row].isGroup) continue;
        const NameMatch match = filtered.matches[row];
        if (best >= 0) {
            const NameMatch bestMatch = filtered.matches[static_cast<std::size_t>(best)];
            const bool preferred = match == bestMatch && filtered.rows[row].key == preferredKey;
            if (match >= bestMatch && !preferred) continue;
        }
        best = static_cast<int>(row);
    }
    return best;
}

}  // namespace tw

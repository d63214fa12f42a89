#include "tree/ListTable.h"

#include <algorithm>
#include <compare>
#include <cstdint>
#include <numeric>
#include <optional>
#include <tuple>

#include "platform/Error.h"
#include "tree/ListFormats.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// What a cell contains, in the order in which a column is sorted.
enum class Content : std::uint8_t { Blank, Figure, Text };

// The key by which rows are sorted. Members are compared in order.
struct SortKey {
    int group = 0;
    bool isMember = false;  // follows the heading
    bool isObject = false;  // follows the folders
    // The value of the cell, the only part that a descending order reverses.
    struct Value {
        Content content = Content::Blank;
        double first = 0, second = 0;
        std::string text;
        auto operator<=>(const Value&) const = default;
    } value;
};

// Removes the number at the beginning of text and returns it; nullopt if there is none.
std::optional<double> TakeNumber(std::string_view& text) {
    std::size_t end = text.starts_with('-') ? 1 : 0;
    end = std::min(text.find_first_not_of("0123456789.", end), text.size());
    try {
        const std::optional<double> number = ReadNumber(text.substr(0, end));
        if (number) text.remove_prefix(end);
        return number;
    } catch (const Error&) {
        return std::nullopt;  // outside the range of a double
    }
}

SortKey::Value ValueOf(std::string_view cell, ListColumnKind kind) {
    SortKey::Value value;
    std::string_view text = Trim(cell);
    if (text.empty()) return value;
    value.content = Content::Text;
    if (kind == ListColumnKind::Number) {
        if (const auto low = TakeNumber(text)) {
            value.content = Content::Figure;
            value.first = value.second = *low;
            if (text.starts_with('-')) {
                text.remove_prefix(1);
                value.second = TakeNumber(text).value_or(*low);
            }
            return value;
        }
    } else if (kind == ListColumnKind::Date) {
        if (const auto when = ReadListDate(text)) {
            constexpr double kMonths = 12, kDays = 31, kHours = 24, kMinutes = 60;
            value.content = Content::Figure;
            value.first =
                ((((when->year * kMonths) + when->month) * kDays + when->day) * kHours + when->hour) *
                    kMinutes +
                when->minute;
            return value;
        }
    }
    value.text = Upper(text);
    return value;
}

// Returns the indices of the rows in the order of a column, folders first within their group.
std::vector<std::size_t> SortedOrder(const std::vector<ListRow>& rows, int column, ListColumnKind kind,
                                     bool descending) {
    std::vector<SortKey> keys;
    keys.reserve(rows.size());
    for (const ListRow& row : rows)
        keys.push_back({row.group, !row.isGroup, !row.isFolder,
                        ValueOf(row.cells[static_cast<std::size_t>(column)], kind)});
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        const SortKey &x = keys[a], &y = keys[b];
        const auto placeX = std::tie(x.group, x.isMember, x.isObject);
        const auto placeY = std::tie(y.group, y.isMember, y.isObject);
        if (placeX != placeY) return placeX < placeY;
        return descending ? y.value < x.value : x.value < y.value;
    });
    return order;
}

std::vector<ListRow> Arranged(std::vector<ListRow> rows, const std::vector<std::size_t>& order) {
    std::vector<ListRow> arranged;
    arranged.reserve(rows.size());
    for (const std::size_t from : order) arranged.push_back(std::move(rows[from]));
    return arranged;
}

bool BeginsWith(std::string_view text, std::string_view upperBeginning) {
    const std::size_t length = CodePointOffset(text, CodePointCount(upperBeginning));
    return Upper(text.substr(0, length)) == upperBeginning;
}

}  // namespace

void ListTable::TellChanged() {
    if (observer_) observer_->ListChanged();
}

void ListTable::SetColumns(std::vector<ListColumn> columns) {
    columns_ = std::move(columns);
    Clear();
}

int ListTable::ColumnOf(std::string_view title) const {
    const auto found = std::ranges::find_if(
        columns_, [&](const ListColumn& column) { return SameName(column.title, title); });
    return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

std::vector<int> ListTable::ColumnsByPlace() const {
    std::vector<int> order(columns_.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {},
                             [&](int column) { return columns_[static_cast<std::size_t>(column)].place; });
    return order;
}

void ListTable::Fit(ListRow& row) const {
    row.cells.resize(columns_.size());
    for (std::string& cell : row.cells)
        if (cell.empty()) cell = kNoNumber;
}

void ListTable::SetRows(std::vector<ListRow> rows) {
    rows_ = std::move(rows);
    for (ListRow& row : rows_) Fit(row);
    if (!filter_.empty()) {
        unfiltered_ = std::move(rows_);
        searched_.reset();
        rows_ = Filtered().rows;
    }
    selected_ = kNoRow;
    chosen_.clear();
    sortColumn_ = -1;
    sortDescending_ = false;
    TellChanged();
}

void ListTable::Add(ListRow row) {
    Fit(row);
    if (!filter_.empty()) {
        unfiltered_.push_back(std::move(row));
        searched_.reset();
        rows_ = Filtered().rows;
    } else {
        rows_.push_back(std::move(row));
    }
    TellChanged();
}

void ListTable::Remove(int row) {
    if (!filter_.empty()) {
        const auto same = [&](const ListRow& other) {
            return other.key == Row(row).key && other.cells == Row(row).cells;
        };
        unfiltered_.erase(std::ranges::find_if(unfiltered_, same));
        searched_.reset();
    }
    rows_.erase(rows_.begin() + row);
    std::erase(chosen_, row);
    for (int& chosen : chosen_) chosen -= chosen > row ? 1 : 0;
    if (selected_ == row)
        selected_ = chosen_.empty() ? kNoRow : chosen_.front();
    else if (selected_ > row)
        --selected_;
    TellChanged();
}

FilteredRows ListTable::Filtered() {
    if (!searched_) searched_ = SearchedNames(unfiltered_);
    return FilterRows(unfiltered_, *searched_, filter_);
}

void ListTable::SetFilter(std::string_view text) {
    const std::string filter(Trim(text));
    if (filter == filter_) return;
    const std::string chosen = selected_ == kNoRow ? std::string() : Row(selected_).key;
    if (filter_.empty()) {
        unfiltered_ = std::move(rows_);
        searched_.reset();
    }
    filter_ = filter;
    if (filter_.empty()) {
        rows_ = std::move(unfiltered_);
        selected_ = chosen.empty() ? kNoRow : FindKey(chosen);
        if (selected_ == kNoRow) selected_ = FirstRow();
    } else {
        FilteredRows filtered = Filtered();
        selected_ = BestRow(filtered, chosen);
        rows_ = std::move(filtered.rows);
    }
    chosen_.clear();
    if (selected_ != kNoRow) chosen_.push_back(selected_);
    TellChanged();
    if (observer_) observer_->ListSelectionChanged();
}

void ListTable::SetCell(int row, int column, std::string_view text) {
    ListRow& changed = rows_[static_cast<std::size_t>(row)];
    changed.cells[static_cast<std::size_t>(column)] = text;
    Fit(changed);
    if (observer_) observer_->ListRowChanged(row);
}

int ListTable::FindKey(std::string_view key) const {
    const auto found = std::ranges::find_if(
        rows_, [&](const ListRow& row) { return !row.isGroup && std::string_view(row.key) == key; });
    return found == rows_.end() ? kNoRow : static_cast<int>(found - rows_.begin());
}

std::string ListTable::SelectedText() const {
    return selected_ == kNoRow ? std::string() : Row(selected_).cells.front();
}

bool ListTable::Select(int row) {
    if (row < 0 || row >= Count() || Row(row).isGroup) return false;
    Choose({row}, row);
    return true;
}

bool ListTable::SelectText(std::string_view text) {
    for (int row = 0; row < Count(); ++row)
        if (SameName(Row(row).cells.front(), text) && Select(row)) return true;
    return false;
}

void ListTable::Choose(std::vector<int> rows, int selected) {
    std::erase_if(rows, [&](int row) { return row < 0 || row >= Count() || Row(row).isGroup; });
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (!std::ranges::binary_search(rows, selected)) selected = rows.empty() ? kNoRow : rows.front();
    if (rows == chosen_ && selected == selected_) return;
    chosen_ = std::move(rows);
    selected_ = selected;
    if (observer_) observer_->ListSelectionChanged();
}

bool ListTable::IsChosen(int row) const {
    return std::ranges::binary_search(chosen_, row);
}

void ListTable::SelectNone() {
    Choose({}, kNoRow);
}

int ListTable::FirstRow() const {
    const auto found = std::ranges::find_if(rows_, [](const ListRow& row) { return !row.isGroup; });
    return found == rows_.end() ? kNoRow : static_cast<int>(found - rows_.begin());
}

void ListTable::FollowOrder(const std::vector<std::size_t>& order) {
    int selected = kNoRow;
    std::vector<int> chosen;
    for (std::size_t to = 0; to < order.size(); ++to) {
        const int from = static_cast<int>(order[to]);
        if (from == selected_) selected = static_cast<int>(to);
        if (IsChosen(from)) chosen.push_back(static_cast<int>(to));
    }
    selected_ = selected;
    chosen_ = std::move(chosen);
}

void ListTable::Sort(int column, bool descending) {
    const ListColumnKind kind = columns_[static_cast<std::size_t>(column)].kind;
    std::vector<std::size_t> order = SortedOrder(rows_, column, kind, descending);
    FollowOrder(order);
    rows_ = Arranged(std::move(rows_), order);
    order = SortedOrder(unfiltered_, column, kind, descending);
    unfiltered_ = Arranged(std::move(unfiltered_), order);
    searched_.reset();
    sortColumn_ = column;
    sortDescending_ = descending;
    TellChanged();
}

int ListTable::FindNearest(std::string_view name) const {
    const std::string wanted = Upper(Trim(name));
    int nearest = kNoRow;
    std::string nearestText;
    for (int i = 0; !wanted.empty() && i < Count(); ++i) {
        if (Row(i).isGroup) continue;
        std::string text = Upper(Trim(Row(i).cells.front()));
        if (text == wanted) return i;
        if (text > wanted || (nearest != kNoRow && text <= nearestText)) continue;
        nearest = i;
        nearestText = std::move(text);
    }
    return nearest == kNoRow ? FirstRow() : nearest;
}

int ListTable::FindTyped(std::string_view beginning, int start) const {
    if (beginning.empty()) return kNoRow;
    const std::string wanted = Upper(beginning);
    const auto begins = [&](const std::string& text) { return BeginsWith(text, wanted); };
    const auto firstOf = [&](const auto& isFound) {
        for (int i = 0; i < Count(); ++i) {
            const int row = (std::max(start, 0) + i) % Count();
            if (!Row(row).isGroup && isFound(Row(row))) return row;
        }
        return kNoRow;
    };
    const int named = firstOf([&](const ListRow& row) { return begins(row.cells.front()); });
    if (named != kNoRow) return named;
    return firstOf(
        [&](const ListRow& row) { return begins(row.code) || std::ranges::any_of(row.otherNames, begins); });
}

}  // namespace tw

// A list with columns, as a plain object: the rows of the explorer, the catalogue and the pickers. A widget
// shows it and forwards the brewer's actions.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tree/ListFilter.h"
#include "tree/ListRow.h"
#include "values/NameMatch.h"

namespace tw {

class ListTableObserver {
  public:
    virtual ~ListTableObserver() = default;
    // Columns or rows have changed.
    virtual void ListChanged() = 0;
    virtual void ListSelectionChanged() = 0;
    // Only cells of that row have changed.
    virtual void ListRowChanged(int /*row*/) { ListChanged(); }
};

class ListTable {
  public:
    static constexpr int kNoRow = -1;

    void SetObserver(ListTableObserver* observer) { observer_ = observer; }

    const std::vector<ListColumn>& Columns() const { return columns_; }
    // Sets the columns and removes all rows.
    void SetColumns(std::vector<ListColumn> columns);
    // Returns the index of the column with that title, ignoring case; -1 if there is none.
    int ColumnOf(std::string_view title) const;

    // Returns the columns in the order in which windows show them at first, including hidden ones.
    std::vector<int> ColumnsByPlace() const;

    const std::vector<ListRow>& Rows() const { return rows_; }
    int Count() const { return static_cast<int>(rows_.size()); }
    // REQUIRES: the row exists.
    const ListRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    // Replaces all rows; none is selected. Missing cells become "  ", surplus cells are dropped.
    void SetRows(std::vector<ListRow> rows);
    void Clear() { SetRows({}); }
    // Appends the row.
    void Add(ListRow row);
    // Removes the row from the list and from the selection. REQUIRES: the row exists.
    void Remove(int row);
    // REQUIRES: the row exists.
    void SetKey(int row, std::string key) { rows_[static_cast<std::size_t>(row)].key = std::move(key); }
    // The row keeps its position, even if the list is sorted. REQUIRES: the row and the column exist.
    void SetCell(int row, int column, std::string_view text);
    // Returns the first row of exactly that key, or kNoRow.
    int FindKey(std::string_view key) const;

    // Shows only rows that fit text (ListFilter), best first, and the headings over them; shows all rows if
    // text is blank. Rows added later are filtered too. The row that fits best is selected; of several
    // equally good ones, the one selected before or else the first.
    void SetFilter(std::string_view text);
    const std::string& Filter() const { return filter_; }

    // The selected row, or of several the one selected last; kNoRow if none is.
    int Selected() const { return selected_; }
    // All selected rows, in ascending order.
    const std::vector<int>& Chosen() const { return chosen_; }
    bool IsChosen(int row) const;
    // The text in the first column of the selected row; empty if none is selected.
    std::string SelectedText() const;
    // Selects only that row. False, without a change, for a group row or if there is no such row.
    bool Select(int row);
    // Selects the first row with that text in its first column, ignoring case and surrounding blanks. False,
    // without a change, if there is none.
    bool SelectText(std::string_view text);
    // Selects exactly those rows, ignoring group rows and invalid indices. selected becomes the row selected
    // last if it is among them; otherwise the first of them does.
    void Choose(std::vector<int> rows, int selected);
    void SelectNone();
    // The first row that can be selected, or kNoRow.
    int FirstRow() const;

    // Sorts the rows within their groups, folders first: texts ignoring case, numbers and dates by value, and
    // blanks before all others. Equal rows keep their order, even if descending. Selected rows stay selected.
    // REQUIRES: the column exists.
    void Sort(int column, bool descending = false);
    // The column by which the list was last sorted; -1 if it has not been sorted since it was filled.
    int SortColumn() const { return sortColumn_; }
    bool SortDescending() const { return sortDescending_; }

    // Returns the row to select for a name, ignoring case and surrounding blanks: the row of that name, else
    // the one whose text is the greatest that sorts before it, else the first, as for an empty name. kNoRow
    // if no row can be selected.
    int FindNearest(std::string_view name) const;
    // Returns the row to select for typed letters: the first row from start on, continuing at the top, whose
    // text begins with them, ignoring case; else the first whose code or other name does; else kNoRow.
    int FindTyped(std::string_view beginning, int start) const;

  private:
    void Fit(ListRow& row) const;
    // Keeps the selected rows selected at the positions that order gives them.
    void FollowOrder(const std::vector<std::size_t>& order);
    // Returns the rows that fit the filter.
    FilteredRows Filtered();
    void TellChanged();

    std::vector<ListColumn> columns_;
    std::vector<ListRow> rows_;
    std::string filter_;
    std::vector<ListRow> unfiltered_;   // all rows, while there is a filter
    std::optional<NameList> searched_;  // the names of unfiltered_; nullopt after a change
    int selected_ = kNoRow;             // one of chosen_
    std::vector<int> chosen_;           // in ascending order
    int sortColumn_ = -1;
    bool sortDescending_ = false;
    ListTableObserver* observer_ = nullptr;
};

}  // namespace tw

// A list with columns as a plain object: the rows of the explorer, the catalogue and the pickers. A widget
// shows it and passes on what the brewer does.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tree/NodeIcon.h"

namespace tw {

// What a column holds, for sorting.
enum class ListColumnKind {
    Text,
    Number,  // numbers, ranges "{lo}-{hi}", numbers with a unit behind them
    Date,    // the form of ListDate
};

struct ListColumn {
    std::string title;
    ListColumnKind kind = ListColumnKind::Text;
    bool showsColor = false;  // the colour of the row stands in it
    std::string note = {};    // what the title leaves out, such as the unit
};

struct ListRow {
    std::string key;  // names the row in its list; empty for a group row
    // One text for each column, the name first. A cell without a value holds blanks, never nothing.
    std::vector<std::string> cells;
    NodeIcon icon = NodeIcon::None;
    bool isFolder = false;  // stands before the others, however the list is sorted
    bool isGroup = false;   // a heading over rows, which nobody can choose
    int group = 0;          // rows are sorted within their group; a heading belongs to the group below it
    std::optional<double> hcu = std::nullopt;  // the colour of the malt or beer, in homebrew colour units
    // What a window shows and the filter searches besides the cells. No cell holds it.
    std::string code = {};                     // stands before the name
    std::string origin = {};                   // where the row comes from: "Beer style guide of 2021"
    std::vector<std::string> otherNames = {};  // what the row is called, too, and what else it is found by
};

class ListTableObserver {
  public:
    virtual ~ListTableObserver() = default;
    // Columns or rows are others.
    virtual void ListChanged() = 0;
    virtual void ListSelectionChanged() = 0;
    // A cell of that row alone is another.
    virtual void ListRowChanged(int /*row*/) { ListChanged(); }
};

class ListTable {
  public:
    static constexpr int kNoRow = -1;

    void SetObserver(ListTableObserver* observer) { observer_ = observer; }

    const std::vector<ListColumn>& Columns() const { return columns_; }
    // Takes all rows away.
    void SetColumns(std::vector<ListColumn> columns);
    // The column of that title without regard to case, -1 for none.
    int ColumnOf(std::string_view title) const;

    const std::vector<ListRow>& Rows() const { return rows_; }
    int Count() const { return static_cast<int>(rows_.size()); }
    // REQUIRES: there is such a row.
    const ListRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    // Replaces all rows; none is selected. Missing cells become "  ", those beyond the columns are dropped.
    void SetRows(std::vector<ListRow> rows);
    void Clear() { SetRows({}); }
    // Puts the row behind all others.
    void Add(ListRow row);
    // REQUIRES: there is such a row. The selection goes with its row.
    void Remove(int row);
    // REQUIRES: there is such a row.
    void SetKey(int row, std::string key) { rows_[static_cast<std::size_t>(row)].key = std::move(key); }
    // REQUIRES: there is such a row and such a column. The row stays where it is, however the list is sorted.
    void SetCell(int row, int column, std::string_view text);
    // The first row of that key, letter for letter; kNoRow for none.
    int FindKey(std::string_view key) const;

    // Shows only the rows in which each word of text occurs, in any cell or at the beginning of a word of the
    // code or of another name, without regard to case, and the headings over them; all rows for a blank text.
    // Rows that come later are filtered, too. The chosen row stays chosen while it is shown; else the first
    // one is.
    void SetFilter(std::string_view text);
    const std::string& Filter() const { return filter_; }

    // The chosen row, of several the one that was chosen last; kNoRow without one.
    int Selected() const { return selected_; }
    // All chosen rows, from the top.
    const std::vector<int>& Chosen() const { return chosen_; }
    bool IsChosen(int row) const;
    // The text of the chosen row's first column; empty without one.
    std::string SelectedText() const;
    // Chooses that row alone. False, and nothing changes, for a group row and for none.
    bool Select(int row);
    // Chooses the first row with that text in its first column, compared without regard to case and blanks at
    // the ends. False, and nothing changes, without one.
    bool SelectText(std::string_view text);
    // Chooses those rows and no other; group rows and what is no row are passed over. selected becomes the
    // one chosen last when it is among them, otherwise the first of them does.
    void Choose(std::vector<int> rows, int selected);
    void SelectNone();
    // The first row that can be chosen; kNoRow in a list without one.
    int FirstRow() const;

    // Sorts the rows within their groups, folders first, texts without regard to case, numbers and dates by
    // what they mean and blanks before all others; equal rows keep their order, also when descending. The
    // chosen rows stay chosen. REQUIRES: there is such a column.
    void Sort(int column, bool descending = false);
    // What the list was last sorted by; -1 for rows as they were filled.
    int SortColumn() const { return sortColumn_; }
    bool SortDescending() const { return sortDescending_; }

    // The row to choose for a name, compared without regard to case and blanks at the ends: the row of that
    // name, else the one with the greatest text that sorts before it, else the first; the first also for an
    // empty name. kNoRow in a list without rows to choose.
    int FindNearest(std::string_view name) const;
    // What typing finds: the first row from start on, and then from the top, whose text begins so, without
    // regard to case; without one the first whose code or other name does. kNoRow for none.
    int FindTyped(std::string_view beginning, int start) const;

  private:
    void Fit(ListRow& row) const;
    // Keeps the chosen rows chosen where order puts them.
    void FollowOrder(const std::vector<std::size_t>& order);
    // The rows that the filter lets pass.
    std::vector<ListRow> Filtered() const;
    bool PassesFilter(const ListRow& row, const std::vector<std::string>& words) const;
    void TellChanged();

    std::vector<ListColumn> columns_;
    std::vector<ListRow> rows_;
    std::string filter_;
    std::vector<ListRow> unfiltered_;  // all rows, while there is a filter
    int selected_ = kNoRow;            // one of chosen_
    std::vector<int> chosen_;          // in ascending order
    int sortColumn_ = -1;
    bool sortDescending_ = false;
    ListTableObserver* observer_ = nullptr;
};

}  // namespace tw

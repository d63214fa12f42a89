// Steps through the rows of the list from which an editor was opened.
#pragma once

#include <string>

#include "tree/ListTable.h"

namespace tw {

// Skips group headings and folders, which have no editor.
class ObjectNavigator {
  public:
    // REQUIRES: list outlives this object.
    explicit ObjectNavigator(ListTable& list) : list_(list) {}

    ListTable& ListView() const { return list_; }
    // True if the list has group headings.
    bool IsGrainView() const;

    // Each moves the selection of the list and returns the name of the row selected; if there is no such
    // row, returns an empty name and moves nothing. GetFirst and GetLast succeed even if their row is
    // selected already.
    std::string GetNext() { return MoveTo(Next()); }
    std::string GetPrevious() { return MoveTo(Previous()); }
    std::string GetFirst() { return MoveTo(First()); }
    std::string GetLast() { return MoveTo(Last()); }

    // True if the step leads to another row than the selected one.
    bool EnableNext() const { return Next() != ListTable::kNoRow; }
    bool EnablePrevious() const { return Previous() != ListTable::kNoRow; }
    bool EnableFirst() const { return IsOther(First()); }
    bool EnableLast() const { return IsOther(Last()); }

  private:
    // Returns the first suitable row from start on; step is +1 or -1.
    int Find(int start, int step) const;
    int First() const { return Find(0, 1); }
    int Last() const { return Find(list_.Count() - 1, -1); }
    int Next() const { return Find(list_.Selected() + 1, 1); }
    int Previous() const { return Find(list_.Selected() - 1, -1); }
    bool IsOther(int row) const { return row != ListTable::kNoRow && row != list_.Selected(); }
    std::string MoveTo(int row);

    ListTable& list_;
};

}  // namespace tw

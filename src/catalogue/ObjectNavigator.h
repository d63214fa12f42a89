// Steps through the rows of the list behind an editor.
#pragma once

#include <string>

#include "tree/ListTable.h"

namespace tw {

// Headings of groups and folders are passed over: no editor shows them.
class ObjectNavigator {
  public:
    // REQUIRES: the list lives for as long.
    explicit ObjectNavigator(ListTable& list) : list_(list) {}

    ListTable& ListView() const { return list_; }
    // Whether the list has headings of groups.
    bool IsGrainView() const;

    // Each moves the list's selection and gives the name of the row there; an empty name, and nothing moves,
    // when there is no such row. GetFirst and GetLast also find the row that is selected already.
    std::string GetNext() { return MoveTo(Next()); }
    std::string GetPrevious() { return MoveTo(Previous()); }
    std::string GetFirst() { return MoveTo(First()); }
    std::string GetLast() { return MoveTo(Last()); }

    // Whether the step reaches another row than the selected one.
    bool EnableNext() const { return Next() != ListTable::kNoRow; }
    bool EnablePrevious() const { return Previous() != ListTable::kNoRow; }
    bool EnableFirst() const { return IsOther(First()); }
    bool EnableLast() const { return IsOther(Last()); }

  private:
    // The nearest row from start on, in steps of +1 or -1.
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

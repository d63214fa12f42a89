// The interface of a grid's widget for the binding of its document.
#pragma once

class QWidget;

namespace tw {

class GridWidget {
  public:
    virtual ~GridWidget() = default;

    // These show what has changed in the grid. row and col are the Grid's indexes.
    virtual void ShowCell(int row, int col) = 0;
    virtual void ShowRowInserted(int row) = 0;
    virtual void ShowRowRemoved(int row) = 0;
    virtual void ShowCurrentCell() = 0;
    // Fits the column widths to the contents, after the grid was filled.
    virtual void FitGridColumns() = 0;
    // Shows the changes made while redraw was held.
    virtual void ShowHeldChanges() = 0;
    // Marks the column by which the rows are sorted, -1 for none.
    virtual void ShowSortMark(int col) = 0;
    // Repaints with the current colours.
    virtual void ShowColors() = 0;

    // Commits and closes the open cell editor. False if its entry was refused.
    virtual bool CommitEditor() = 0;
    // Called before the grid is destroyed; the widget must not use it afterwards.
    virtual void Detach() = 0;
    virtual QWidget& Widget() = 0;
};

}  // namespace tw

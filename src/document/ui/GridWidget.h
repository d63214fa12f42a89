// The widget of a grid as the binding of its document sees it.
#pragma once

class QWidget;

namespace tw {

class GridWidget {
  public:
    virtual ~GridWidget() = default;

    // What has happened to the grid. Rows and columns are those of the Grid.
    virtual void ShowCell(int row, int col) = 0;
    virtual void ShowRowInserted(int row) = 0;
    virtual void ShowRowRemoved(int row) = 0;
    virtual void ShowCurrentCell() = 0;
    // The grid was filled anew: the columns are fitted to their contents.
    virtual void FitGridColumns() = 0;
    // Shows the changes made while redraw was held.
    virtual void ShowHeldChanges() = 0;
    // Marks the column by which the rows are sorted, -1 for none.
    virtual void ShowSortMark(int col) = 0;
    // Repaints with the present colours.
    virtual void ShowColors() = 0;

    // Commits and closes the open cell editor. False if its entry was refused.
    virtual bool CommitEditor() = 0;
    // The grid is about to be destroyed; the widget must not use it any more.
    virtual void Detach() = 0;
    virtual QWidget& Widget() = 0;
};

}  // namespace tw

// The widget of one grid of a recipe: shows and edits the data rows. A second view, fixed below it, shows the
// totals rows.
#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>
#include <functional>
#include <optional>
#include <vector>

#include "document/ui/DocumentBinding.h"
#include "document/ui/GridCursor.h"
#include "document/ui/GridDelegate.h"
#include "document/ui/GridModel.h"
#include "document/ui/GridWidget.h"

namespace tw {

// Returns the column widths of a filled grid, in pixels. If autoWidths plus 7 for each column leave some of
// clientWidth unused, each width is autoWidth plus an equal share of the rest, rounded down; otherwise they
// are autoWidths.
std::vector<int> FitColumns(std::vector<int> autoWidths, int clientWidth);

class GridView final : public QTableView, public GridWidget, private CellHost {
    Q_OBJECT
  public:
    // name is the grid's accessible name. binding and grid must outlive the view, unless Detach is
    // called first.
    GridView(DocumentBinding& binding, Grid& grid, const QString& name, QWidget* parent);

    Grid* TheGrid() const { return grid_; }
    GridModel& Model() const { return *model_; }
    DocumentBinding& Binding() const { return binding_; }
    // Returns the row height in pixels: 1.6 lines of text.
    int RowHeight() const override;
    // The interface for the delegates of this view and of the view of its totals.
    CellHost& Cells() { return *this; }
    // The height of the header and all rows, in pixels.
    int ContentHeight() const;
    // The width of all columns, in pixels.
    int ContentWidth() const;
    // Sets the view of the totals rows, whose columns then follow this view's. model is the model of totals.
    // Both must outlive this view's last event.
    void SetTotals(QTableView& totals, GridModel& model);
    // Makes a cell of the grid, which may be a total, the current cell; if extends is true, extends the
    // selected block to it instead.
    void MoveTo(int row, int col, bool extends) { cursor_.MoveTo(row, col, extends); }
    // Commits an open editor first.
    void BrowseSoon() override;
    // Call if the first column contains dates: a double click on it, or Alt+Down in any data cell, then
    // requests a calendar.
    void SetHasDates() { hasDates_ = true; }

    // GridWidget
    void ShowCell(int row, int col) override;
    void ShowRowInserted(int row) override;
    void ShowRowRemoved(int row) override;
    void ShowCurrentCell() override;
    void FitGridColumns() override;
    void ShowHeldChanges() override;
    void ShowSortMark(int col) override;
    void ShowColors() override;
    bool CommitEditor() override;
    void Detach() override;
    QWidget& Widget() override { return *this; }

    // True if all data rows are blank. The form of a hop does not count as text.
    bool IsBlankGrid() const;

    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

  signals:
    // The size of the content may have changed, or whether the grid is blank.
    void ContentChanged();
    void CalendarRequested(int row);

  public slots:
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // CellHost
    bool IsCurrentCell(const QModelIndex& cell) const override;
    CellList ListOf(const QModelIndex& cell) const override;
    void SetEditor(QWidget* editor, const QModelIndex& cell) override;

    void BuildHeader();
    void Connect();
    void Toggle(const QModelIndex& cell);
    void BrowseCatalogue();
    void SortBy(int col);
    // Adds a row below the last one for typing, and moves to its first cell. False if the grid takes none.
    bool Grow();
    // Moves as Enter does: to the cell below, or from the end of the last row to a new one.
    void StepDown();
    // Takes back a row added for typing that the brewer has left without typing.
    void WithdrawSoon();
    // Returns true if the key has been handled.
    bool HandleOwnKey(const QKeyEvent& key);
    void ShowFocus();
    QAction* MakeAddAction();
    // Returns the lower left corner of the current cell, in screen coordinates.
    QPoint PlaceOfCurrentCell() const;
    void FollowRows(const std::function<void()>& change);
    // Selects this view's selection, or its current cell, in the record.
    void TellSelection();
    // Returns the selected block as cells of the record, or just the current cell if it is outside
    // that block.
    std::optional<GridRange> SelectedRange() const;
    void KeepEditor();
    // True if the column is too narrow for the text of that cell.
    bool WantsMoreRoom(int row, int col) const;

    DocumentBinding& binding_;
    Grid* grid_;
    GridModel* model_;
    QTableView* totals_ = nullptr;  // nullptr if there are no totals, and so is totalsModel_
    GridModel* totalsModel_ = nullptr;
    GridCursor cursor_;
    QPointer<QWidget> editor_;
    QPersistentModelIndex editedCell_;
    bool committing_ = false;  // the entry is being validated
    bool refused_ = false;     // the last commit was refused; the editor stays
    bool following_ = false;   // the rows or the selection are being changed by the record, not by the brewer
    bool stale_ = false;       // the record has changed while redraw was held
    bool sorting_ = false;
    bool fitting_ = false;       // the column widths are being set by FitGridColumns, not by the brewer
    bool widthsChosen_ = false;  // the brewer has resized a column
    bool hasDates_ = false;
};

}  // namespace tw

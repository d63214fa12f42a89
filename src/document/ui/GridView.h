// The widget of one grid of a recipe: the data rows, edited by the keyboard, with the totals rows pinned
// below.
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

// Column widths of a filled grid: autoWidths as they are; when they and 7 for each column leave some of
// clientWidth, each gets the integer part of an equal share. Pixels.
std::vector<int> FitColumns(std::vector<int> autoWidths, int clientWidth);

class GridView final : public QTableView, public GridWidget, private CellHost {
    Q_OBJECT
  public:
    // name: what the grid is called to assistive programs.
    GridView(DocumentBinding& binding, Grid& grid, const QString& name, QWidget* parent);

    Grid* TheGrid() const { return grid_; }
    GridModel& Model() const { return *model_; }
    DocumentBinding& Binding() const { return binding_; }
    // Row height in pixels: 1.6 lines.
    int RowHeight() const override;
    // What delegates of this view and of its totals ask.
    CellHost& Cells() { return *this; }
    // Height of header and rows.
    int ContentHeight() const;
    // The width of all columns.
    int ContentWidth() const;
    // Ties the view of the rows behind the data to this one, whose columns it follows. model is what it
    // shows; both must outlive this view's last event.
    void SetTotals(QTableView& totals, GridModel& model);
    // Makes a cell of the grid, one of the totals too, the current one, or the end of the selected block.
    void MoveTo(int row, int col, bool extends) { cursor_.MoveTo(row, col, extends); }
    // An open editor is committed first.
    void BrowseSoon() override;
    // The first column holds dates: a double click and Alt+Down ask for a calendar instead of an editor.
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

    // True when all data rows are blank (a form alone is no text).
    bool IsBlankGrid() const;

    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

  signals:
    // The content's size or whether the grid is blank may have changed.
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
    // True when the key has been used up.
    bool HandleOwnKey(const QKeyEvent& key);
    void ShowFocus();
    // The lower left corner of the current cell on the screen.
    QPoint PlaceOfCurrentCell() const;
    void FollowRows(const std::function<void()>& change);
    // Makes this view's selection, or its current cell, the record's.
    void TellSelection();
    // The selected block as cells of the record; the current cell alone when it lies outside.
    std::optional<GridRange> SelectedRange() const;
    void KeepEditor();
    // A text has come that the column is too narrow for.
    bool WantsMoreRoom(int row, int col) const;

    DocumentBinding& binding_;
    Grid* grid_;
    GridModel* model_;
    QTableView* totals_ = nullptr;  // nullptr without totals, like the next one
    GridModel* totalsModel_ = nullptr;
    GridCursor cursor_;
    QPointer<QWidget> editor_;
    QPersistentModelIndex editedCell_;
    bool committing_ = false;  // the entry is being validated
    bool refused_ = false;     // the last commit was refused; the editor stays
    bool following_ = false;   // the rows or the selection change by the record, not by the brewer
    bool stale_ = false;       // changes have come while redraw was held
    bool sorting_ = false;
    bool fitting_ = false;       // the column widths are ours, not the brewer's
    bool widthsChosen_ = false;  // the brewer has dragged a column
    bool hasDates_ = false;
};

}  // namespace tw

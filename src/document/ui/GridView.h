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
#include "document/ui/GridModel.h"

namespace tw {

class TotalsView;

// Column widths of a filled grid: autoWidths as they are; when they and 7 for each column leave some of
// clientWidth, each gets the integer part of an equal share. Pixels.
std::vector<int> FitColumns(std::vector<int> autoWidths, int clientWidth);

class GridView final : public QTableView {
    Q_OBJECT
  public:
    // name: what the grid is called to assistive programs.
    GridView(DocumentBinding& binding, Grid& grid, const QString& name, QWidget* parent);

    Grid* TheGrid() const { return grid_; }
    GridModel& Model() const { return *model_; }
    DocumentBinding& Binding() const { return binding_; }
    // Row height in pixels: 1.6 lines.
    int RowHeight() const;
    // Height of header and rows.
    int ContentHeight() const;
    // The width of all columns.
    int ContentWidth() const;
    // The rows behind the data, whose columns follow these; nullptr for none.
    void SetTotals(TotalsView* totals);
    // Makes a cell of the grid, one of the totals too, the current one, or the end of the selected block.
    void MoveTo(int row, int col, bool extends) { cursor_.MoveTo(row, col, extends); }
    // Lets the brewer choose the current cell's name from its catalogue, if it has one, as soon as the
    // present event is over. An open editor is committed first.
    void BrowseSoon();
    // The first column holds dates: a double click and Alt+Down ask for a calendar instead of an editor.
    void SetHasDates() { hasDates_ = true; }

    // What the grid's object has done.
    void ShowCell(int row, int col);
    void ShowRowInserted(int row);
    void ShowRowRemoved(int row);
    void ShowCurrentCell();
    // The changes that came while redraw was held.
    void ShowHeldChanges();
    // Whether a cell of this view or of its totals is the record's current one.
    bool IsCurrentCell(const QModelIndex& cell) const;
    // Repaints with the present colours.
    void ShowColors();
    void Detach();

    void FitGridColumns();
    // True when all data rows are blank (a form alone is no text).
    bool IsBlankGrid() const;

    // The one open editor and its cell; the delegate tells.
    void SetEditor(QWidget* editor, const QModelIndex& cell);
    // The cell's list for an editor about to open.
    CellList ListOf(const QModelIndex& cell) const;
    // Commits and closes the open editor. False when its entry was refused.
    bool CommitEditor();

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
    void BuildHeader();
    void Connect();
    void Toggle(const QModelIndex& cell);
    void BrowseCatalogue();
    void SortBy(int col);
    void ShowSortMark(int col);
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
    TotalsView* totals_ = nullptr;
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

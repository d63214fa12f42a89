// A grid of the recipe as a Qt model: either its data rows or its totals rows. Its only own data is the row
// count last reported to the views.
#pragma once

#include <QAbstractTableModel>

#include "document/ui/DocumentBinding.h"

namespace tw {

class GridModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum class Part { Data, Totals };
    // The role of the reason why a row gives nothing to the figures, in the cell with its name: a QString, or
    // nothing.
    static constexpr int kGapRole = Qt::UserRole;
    // The role of a quiet text behind that of a cell, such as the weight behind an amount in IBUs: a QString.
    static constexpr int kAsideRole = Qt::UserRole + 1;

    // view shows the rows and owns the model; the colours are derived from its palette. binding and grid must
    // outlive the model, unless Detach is called first.
    GridModel(DocumentBinding& binding, Grid& grid, Part part, QWidget* view);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Convert between rows of the model and rows of the grid. ModelRow returns -1 for a row of the
    // other part.
    int GridRow(int modelRow) const { return modelRow + FirstRow(); }
    int ModelRow(int gridRow) const;
    bool IsCheckBox(const QModelIndex& index) const;
    bool CanEdit(const QModelIndex& index) const;
    // True for the column behind those of the grid, which shows the shares of the rows (GridAsides.h).
    bool IsShares(int col) const;
    // True if the cell is painted as a total.
    bool IsTotal(const QModelIndex& index) const;
    // True if the cell's name can be chosen from a catalogue.
    bool HasCatalogue(const QModelIndex& index) const;
    // Returns right for numbers, left for texts, centre for check boxes.
    static Qt::Alignment AlignmentOf(const Grid& grid, int col);

    // Call these after the grid has changed.
    void CellChanged(int gridRow);
    void RowInserted(int gridRow);
    void RowRemoved(int gridRow);
    // Everything but the row count may have changed, including the colours.
    void AllChanged();
    // Removes all rows and stops using the grid.
    void Detach();

  private:
    int FirstRow() const;
    int CountRows() const;
    // Returns invalid colours for a cell that is painted in the window's own colours.
    CellColors ColorsOf(int row, int col) const;
    QVariant FontOf(int row, int col) const;
    QString Spoken(int row, int col) const;
    QVariant ShareOf(int row, int role) const;
    QString AsideOf(int row, int col) const;
    void SharesChanged();
    QString GapOf(const QModelIndex& index) const;
    QVariant ExactText(int row, int col) const;
    QVariant TipOf(const QModelIndex& index) const;

    DocumentBinding& binding_;
    const QWidget& view_;
    Grid* grid_;
    Part part_;
    int rows_;
};

}  // namespace tw

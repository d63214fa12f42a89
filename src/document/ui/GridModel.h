// A grid of the recipe as a Qt model: either its data rows or its totals rows. It holds nothing but the row
// count that the views have been told of.
#pragma once

#include <QAbstractTableModel>

#include "document/ui/DocumentBinding.h"

namespace tw {

class GridModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum class Part { Data, Totals };

    // view: the widget that shows the rows; its palette gives the tints.
    GridModel(DocumentBinding& binding, Grid& grid, Part part, QWidget* view);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // The grid's row of a model row, and back; -1 for a row of the other part.
    int GridRow(int modelRow) const { return modelRow + FirstRow(); }
    int ModelRow(int gridRow) const;
    bool IsCheckBox(const QModelIndex& index) const;
    bool CanEdit(const QModelIndex& index) const;
    // Whether the cell is one of a row of totals.
    bool IsTotal(const QModelIndex& index) const;
    // Whether the cell's name can be chosen from a catalogue.
    bool HasCatalogue(const QModelIndex& index) const;
    // Numbers stand at the right, texts at the left.
    static Qt::Alignment AlignmentOf(const Grid& grid, int col);

    // After the grid has changed.
    void CellChanged(int gridRow, int col);
    void RowInserted(int gridRow);
    void RowRemoved(int gridRow);
    // Colours or everything else may be another.
    void AllChanged();
    // No rows from now on.
    void Detach();

  private:
    int FirstRow() const;
    int CountRows() const;
    // Invalid colours for a cell that is painted like the rest of the window.
    CellColors ColorsOf(int row, int col) const;
    QVariant FontOf(int row, int col) const;
    QString Spoken(int row, int col) const;

    DocumentBinding& binding_;
    const QWidget& view_;
    Grid* grid_;
    Part part_;
    int rows_;
};

}  // namespace tw

// The model that provides the rows of a list to Qt's views.
#pragma once

#include <QAbstractTableModel>
#include <functional>

#include "calc/BeerColor.h"
#include "tree/ListTable.h"
#include "tree/ui/KeyDrag.h"

namespace tw {

class ListPaneModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    ListPaneModel(const ListTable& list, QObject* parent);

    // Returns a row's name as it is shown, after its code.
    static QString NameOf(const ListRow& row);
    // Lets names be edited in place. canRename returns whether a row's name may be edited, rename whether the
    // new name was accepted.
    void SetRename(std::function<bool(int row)> canRename, std::function<bool(const QString& name)> rename);
    // Lets rows be dragged, and other objects be dropped on them.
    void SetDrag(KeyDrag drag) { drag_ = std::move(drag); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override { return KeyMimeTypes(); }
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    // Notify the views that all rows, or that one, have changed.
    void Reset();
    void TellRow(int row) { emit dataChanged(index(row, 0), index(row, columnCount() - 1)); }

  private:
    QVariant DecorationOf(const ListRow& row, const ListColumn& column, bool first) const;
    QString TipOf(const ListRow& row, std::size_t col) const;

    const ListTable& list_;
    ColorTable colors_;
    std::function<bool(int)> canRename_;
    std::function<bool(const QString&)> rename_;
    KeyDrag drag_;
};

}  // namespace tw

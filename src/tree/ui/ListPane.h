// The widget of a list: rows with a picture, columns that a click on their header sorts by, and rows that
// are found by typing their beginning.
#pragma once

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QTreeView>

#include "calc/BeerColor.h"
#include "tree/ListTable.h"

namespace tw {

class ListPaneModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    ListPaneModel(const ListTable& list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void Reset();

  private:
    QVariant DecorationOf(const ListRow& row, const ListColumn& column, bool first) const;

    const ListTable& list_;
    ColorTable colors_;
};

class ListPane final : public QTreeView, private ListTableObserver {
    Q_OBJECT
  public:
    // Shows the list from now on. name: what it is called to assistive programs. REQUIRES: the list lives
    // for as long.
    ListPane(ListTable& list, const QString& name, QWidget* parent);
    ~ListPane() override;

    // What stands over a list without rows.
    void SetHint(const QString& hint);
    // Makes the columns as wide as what they hold; the first takes what is left.
    void FitColumns();

    void keyboardSearch(const QString& search) override;

  signals:
    // A double click, or Enter, on a row that can be chosen.
    void RowActivated();
    // Another row is chosen, or none.
    void ChosenChanged();
    // Rows have come, gone or moved; the chosen one may be another.
    void RowsChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void ListChanged() override;
    void ListSelectionChanged() override;
    void ShowSelection();
    void SortBy(int column);

    ListTable& list_;
    ListPaneModel* model_;
    QString hint_;
    QString firstTitle_;  // tells one catalogue's columns from another's
    QString typed_;
    QElapsedTimer sinceTyped_;
    bool following_ = false;  // the selection changes by the list, not by the brewer
    bool fitting_ = false;
    bool widthsChosen_ = false;  // the brewer has dragged a column
};

}  // namespace tw

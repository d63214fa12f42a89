// The widget of a list: rows with a picture, columns that a click on their header sorts by, and rows that
// are found by typing their beginning.
#pragma once

#include <QTreeView>
#include <functional>
#include <vector>

#include "tree/NodeList.h"
#include "tree/ui/RowView.h"

namespace tw {

class ListPane final : public RowView<QTreeView> {
    Q_OBJECT
  public:
    // Shows the list from now on. name: what it is called to assistive programs. REQUIRES: the list lives
    // for as long.
    ListPane(ListTable& list, const QString& name, QWidget* parent);

    // What a click on a column's header does; without it the list is sorted by the column, then the other way
    // round.
    void SetSort(std::function<void(int column)> sort) { sort_ = std::move(sort); }
    // Makes the columns as wide as what they hold, the first takes what is left. Where that is too much, the
    // widest texts are cut for the figures, unless not even that brings all columns into sight.
    void FitColumns();
    // How wide the list is in which all columns are as wide as what they hold, a long text no wider than a
    // limit.
    int WantedWidth() const;

  signals:
    // A double click, or Enter, on a row that can be chosen.
    void RowActivated();
    // Another row is chosen, or none.
    void ChosenChanged();
    // The list holds other rows, or in another order.
    void RowsChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // One pass, for a viewport that is room wide.
    void FitColumnsInto(int room);
    std::vector<int> WantedWidths() const;
    // Takes from the widest texts what all columns are wider than room.
    void NarrowTexts(std::vector<int>& widths, int room) const;
    void TellActivated() override { emit RowActivated(); }
    void TellChosen() override { emit ChosenChanged(); }
    void ShowRows() override;
    void PlaceFolderColumn();
    void SortBy(int column);

    std::function<void(int)> sort_;
    QString firstTitle_;  // tells one catalogue's columns from another's
    bool fitting_ = false;
    bool widthsChosen_ = false;  // the brewer has dragged a column
};

}  // namespace tw

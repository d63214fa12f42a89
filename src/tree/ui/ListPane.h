// The widget that shows a list in columns. A click on a column's header sorts by it, and typing the beginning
// of a row finds it.
#pragma once

#include <QTreeView>
#include <functional>
#include <vector>

#include "tree/BrowseView.h"
#include "tree/ui/RowView.h"

namespace tw {

class ListPane final : public RowView<QTreeView> {
    Q_OBJECT
  public:
    // Shows the list. name: its name for screen readers. REQUIRES: list outlives the widget.
    ListPane(ListTable& list, const QString& name, QWidget* parent);

    // Sets what a click on a column's header does. Without it, the list is sorted by the column, and in
    // reverse by a second click.
    void SetSort(std::function<void(int column)> sort) { sort_ = std::move(sort); }
    // Lets the brewer drag columns to other places, all but the first. Shows the columns as layout says, now
    // and whenever the list is shown or filled, and changes it when the brewer moves or resizes one.
    // REQUIRES: layout outlives the widget; it may be shared with other lists of the same columns.
    void SetLayout(ColumnLayout& layout);
    // Makes the columns as wide as their contents; the first gets the rest of the width. If they do
    // not fit, the widest texts are cut off in favour of the numbers, unless not even that would make
    // all columns visible.
    void FitColumns();
    // Returns the width, in pixels, in which all columns are as wide as their contents, where a long text
    // only counts up to a limit.
    int WantedWidth() const;

  signals:
    // A row that can be selected was double-clicked, or Enter was pressed on it.
    void RowActivated();
    // The selection has changed.
    void ChosenChanged();
    // The rows or their order have changed.
    void RowsChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // Does one pass of FitColumns, for a viewport that is room pixels wide.
    void FitColumnsInto(int room);
    std::vector<int> WantedWidths() const;
    // Reduces the widest texts until all columns together fit into room. Does nothing if they cannot be
    // reduced enough.
    void NarrowTexts(std::vector<int>& widths, int room) const;
    void TellActivated() override { emit RowActivated(); }
    void TellChosen() override { emit ChosenChanged(); }
    void ShowRows() override;
    // Puts the columns into their places, hides those that are hidden, and gives those their width that the
    // brewer has chosen.
    void PlaceColumns();
    // Returns all columns from the left: those of the layout, then the others in their usual order.
    std::vector<int> ColumnOrder() const;
    void KeepLayout();
    // Opens the menu of the header, which brings back the usual places and widths.
    void ShowHeaderMenu(const QPoint& place);
    double DotsPerInch() const;
    void SortBy(int column);
    // The column right of that one, or the leftmost one if there is none.
    int NextColumn(int column) const;
    bool IsHidden(int column) const { return list_.Columns()[static_cast<std::size_t>(column)].hidden; }

    std::function<void(int)> sort_;
    ColumnLayout* layout_ = nullptr;
    QString firstTitle_;         // the title of the first column, by which a change of catalogue is noticed
    bool fitting_ = false;       // the columns are being placed or resized, not by the brewer
    bool widthsChosen_ = false;  // the brewer has dragged the border of a column
};

}  // namespace tw

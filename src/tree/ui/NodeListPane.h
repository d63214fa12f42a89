// The widget of a NodeList (lvNames), which shows it as icons or with all its columns. Names are edited in
// place, and rows can be dragged.
#pragma once

#include <QWidget>

#include "tree/BrowseView.h"
#include "tree/ui/KeyDrag.h"

class QAbstractItemView;

namespace tw {

class IconPane;
class ListPane;
class ListPaneModel;

class NodeListPane final : public QWidget {
    Q_OBJECT
  public:
    // Shows the list. name: its name for screen readers. multi: whether several rows can be selected. layout:
    // see ListPane::SetLayout. REQUIRES: list and layout outlive the widget.
    NodeListPane(NodeList& list, const QString& name, bool multi, ColumnLayout& layout, QWidget* parent);
    ~NodeListPane() override;

    // Sets what is called with the name typed for a row; it returns false to reject the name.
    void SetRename(std::function<bool(const QString& name)> rename);
    void SetDrag(KeyDrag drag);
    // Changes the way in which the list is shown.
    void SetView(ListViewType type);
    // Updates the hint, and opens the editor of the name that is being edited according to the list, unless
    // it is already open.
    void ShowState();
    // The widget that shows the rows at present.
    QAbstractItemView& View() const;
    // True if the editor of a name is open.
    bool IsEditing() const;

  signals:
    // A row was double-clicked, or Enter was pressed on it.
    void RowActivated();
    void ChosenChanged();
    // The header of a column was clicked.
    void SortAsked(int column);
    void MenuAsked(const QPoint& globalPlace);
    // The editor of a name has closed.
    void EditEnded();

  private:
    template <class Pane>
    void Connect(Pane& pane);
    ListPaneModel& Model() const;

    NodeList& list_;
    QString name_;
    bool multi_;
    ColumnLayout& layout_;
    std::function<bool(const QString&)> rename_;
    KeyDrag drag_;
    ListPane* details_ = nullptr;  // exactly one of the two exists
    IconPane* icons_ = nullptr;
};

}  // namespace tw

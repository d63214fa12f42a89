// The widget of a NodeList (lvNames): as icons or with all its columns, with names that are edited in place
// and rows that are dragged.
#pragma once

#include <QWidget>

#include "tree/NodeList.h"
#include "tree/ui/KeyDrag.h"

class QAbstractItemView;

namespace tw {

class IconPane;
class ListPane;
class ListPaneModel;

class NodeListPane final : public QWidget {
    Q_OBJECT
  public:
    // Shows the list from now on; multi: whether several rows can be chosen. name: what it is called to
    // assistive programs. REQUIRES: the list lives for as long.
    NodeListPane(NodeList& list, const QString& name, bool multi, QWidget* parent);
    ~NodeListPane() override;

    // What runs with the name typed over a row; false takes it back.
    void SetRename(std::function<bool(const QString& name)> rename);
    void SetDrag(KeyDrag drag);
    // Shows it so from now on.
    void SetView(ListViewType type);
    // Opens the name that the list says is being edited, if it is not open already; shows the hint.
    void ShowState();
    // The widget that has the rows at present.
    QAbstractItemView& View() const;
    // Whether a name is being typed.
    bool IsEditing() const;

  signals:
    // A double click, or Enter, on a row.
    void RowActivated();
    void ChosenChanged();
    // A click on the header of a column.
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
    std::function<bool(const QString&)> rename_;
    KeyDrag drag_;
    ListPane* details_ = nullptr;  // one of the two is there
    IconPane* icons_ = nullptr;
};

}  // namespace tw

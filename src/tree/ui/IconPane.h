// The widget that shows a list as icons: large ones above the names, or small ones beside them, in rows
// or in columns.
#pragma once

#include <QListView>

#include "tree/NodeList.h"
#include "tree/ui/RowView.h"

namespace tw {

class IconPane final : public RowView<QListView> {
    Q_OBJECT
  public:
    // Shows the list. name: its name for screen readers. REQUIRES: list outlives the widget.
    IconPane(ListTable& list, const QString& name, QWidget* parent);

    // REQUIRES: kind is not Details.
    void SetKind(ListViewType kind);

  signals:
    // A row was double-clicked, or Enter was pressed on it.
    void RowActivated();
    // The selection has changed.
    void ChosenChanged();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void TellActivated() override { emit RowActivated(); }
    void TellChosen() override { emit ChosenChanged(); }
    void ShowRows() override { FitGrid(); }
    void FitGrid();
    void SetPlace(const QSize& place);

    ListViewType kind_ = ListViewType::List;
};

}  // namespace tw

// The widget of a list as icons: large ones over their names, small ones beside them in rows, or in columns.
#pragma once

#include <QListView>

#include "tree/NodeList.h"
#include "tree/ui/RowView.h"

namespace tw {

class IconPane final : public RowView<QListView> {
    Q_OBJECT
  public:
    // Shows the list from now on. name: what it is called to assistive programs. REQUIRES: the list lives
    // for as long.
    IconPane(ListTable& list, const QString& name, QWidget* parent);

    // Any but Details.
    void SetKind(ListViewType kind);

  signals:
    // A double click, or Enter, on a row.
    void RowActivated();
    // Other rows are chosen, or none.
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

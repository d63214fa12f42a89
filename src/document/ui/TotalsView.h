// The totals rows below a grid's data rows. They behave as rows of that grid: the view of the data rows keeps
// the focus, and its keys work here too.
#pragma once

#include <QTableView>

namespace tw {

class GridModel;
class GridView;

class TotalsView final : public QTableView {
    Q_OBJECT
  public:
    // rows shows the data rows of the same grid and must outlive the view's last event.
    TotalsView(GridView& rows, QWidget* parent);

    GridModel& Model() const { return *model_; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    GridView& rows_;
    GridModel* model_;
};

}  // namespace tw

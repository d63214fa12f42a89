// A grid together with its totals rows, which stay visible below the data rows, and a grey line that says
// what to type while the grid is blank.
#pragma once

#include <QFrame>

#include "document/ui/GridView.h"

class QLabel;

namespace tw {

class TotalsView;

class GridPanel final : public QFrame {
    Q_OBJECT
  public:
    // name: the grid's name for screen readers. hint: what to type; may be empty.
    GridPanel(DocumentBinding& binding, Grid& grid, const QString& name, const QString& hint,
              QWidget* parent);

    GridView& View() const { return *view_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    int TotalsHeight() const;
    // room: the height in pixels for the rows and their scroll bars.
    int WideBarHeight(int room) const;
    // Places the rows, and the totals below the last row, or at the bottom if there is no room for all rows.
    void Arrange();
    void LookHint();

    GridView* view_;
    TotalsView* totals_ = nullptr;
    QLabel* hint_ = nullptr;
};

}  // namespace tw

// The header row of a grid: bold, flat, with each text aligned like the cells below it.
#pragma once

#include <QHeaderView>

namespace tw {

class GridHeader final : public QHeaderView {
    Q_OBJECT
  public:
    explicit GridHeader(QWidget* parent);

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    void paintEvent(QPaintEvent* event) override;
    QSize sectionSizeFromContents(int section) const override;
    void changeEvent(QEvent* event) override;

  private:
    void PaintSortMark(QPainter& painter, const QRect& rect) const;
};

// Returns the distance between a cell's text and its edge, in pixels.
int CellPadding(const QWidget& widget);

}  // namespace tw

// The picture of the colour scales: beer from pale to black with the marks of the scale on both sides, and a
// pointer that the arrow keys and the mouse move.
#pragma once

#include <QWidget>

#include "tools/ColorScaleModel.h"

namespace tw {

class ColorScaleView final : public QWidget {
    Q_OBJECT
  public:
    // The model must outlive the view, which reads it and moves its pointer.
    ColorScaleView(ColorScaleModel& model, QWidget* parent);

    // Returns the colour of beer of that many homebrew colour units.
    QColor ColorAt(double hcu) const;
    // Returns the place of the gradient, in pixels; its height is the length of the picture.
    QRect Picture() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    // The brewer has moved the pointer.
    void Moved();

  protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void MoveTo(int step);
    void MoveTo(const QPoint& place);
    void PaintGradient(QPainter& painter, const QRect& picture) const;
    void PaintColumn(QPainter& painter, const QRect& picture, const ScaleColumn& column, bool left) const;
    void PaintPointer(QPainter& painter, const QRect& picture) const;

    ColorScaleModel& model_;
    ColorTable colors_;
};

}  // namespace tw

// The picture of the hop utilisation explorer: three curves told apart by line and mark, named at their ends,
// and an upright line at the boil time that is being read, which the arrow keys and the mouse move.
#pragma once

#include <QWidget>

#include "tools/HopUtilisationModel.h"

namespace tw {

// Draws a curve's line from start to end with its mark in the middle. unit is the size of the drawing's unit
// of length in pixels.
void PaintCurveSample(QPainter& painter, IbuMethod method, const QPalette& palette, const QLineF& line,
                      double unit);

class UtilisationGraphView final : public QWidget {
    Q_OBJECT
  public:
    // The model must outlive the view, which reads it and moves its boil time.
    UtilisationGraphView(HopUtilisationModel& model, QWidget* parent);

    // The curves of the model's gravity.
    void ShowModel();
    // Where the curves are.
    GraphArea Area() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    // The brewer has moved to another boil time.
    void Moved();

  protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void MoveTo(int minutes);
    void PaintAxes(QPainter& painter, const GraphArea& area) const;
    void PaintCurve(QPainter& painter, const GraphArea& area, IbuMethod method) const;
    void PaintNames(QPainter& painter, const GraphArea& area) const;
    void PaintTime(QPainter& painter, const GraphArea& area) const;

    HopUtilisationModel& model_;
    std::array<Curve, kMethods> curves_;
};

}  // namespace tw

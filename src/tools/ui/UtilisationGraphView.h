// The picture of the hop utilisation explorer: three curves that differ in line and mark, named at their
// ends, and an upright line at the boil time that is read, which the arrow keys and the mouse move.
#pragma once

#include <QWidget>

#include "tools/HopUtilisationModel.h"

namespace tw {

// Draws a line in the style of a curve, with its mark in the middle. unit is the widget's unit of distances
// (platform/qt/Appearance.h) in pixels.
void PaintCurveSample(QPainter& painter, IbuMethod method, const QPalette& palette, const QLineF& line,
                      double unit);

class UtilisationGraphView final : public QWidget {
    Q_OBJECT
  public:
    // The model must outlive the view, which reads it and moves its boil time.
    UtilisationGraphView(HopUtilisationModel& model, QWidget* parent);

    // Shows the curves of the model's gravity.
    void ShowModel();
    // Returns the place of the curves, in pixels.
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

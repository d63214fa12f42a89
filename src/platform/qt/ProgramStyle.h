// Fusion with edges that stay visible: on a dark palette its boxes, option buttons and entry fields would
// melt into the ground.
#pragma once

#include <QProxyStyle>

namespace tw {

// Paints a check box in rect: an edge, the base, and a tick when checked.
void PaintCheckIndicator(QPainter& painter, const QRect& rect, const QPalette& palette, bool checked);

class ProgramStyle final : public QProxyStyle {
    Q_OBJECT
  public:
    // Installs the style when the desktop has none of its own but Fusion.
    static void Install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    // Lists drop down below their boxes instead of covering the screen.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

  private:
    ProgramStyle();
};

}  // namespace tw

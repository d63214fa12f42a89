// Qt's Fusion style with edges that stay visible: with its own edges, check boxes, option buttons and entry
// fields are hard to see on a dark palette.
#pragma once

#include <QProxyStyle>

namespace tw {

// Paints a check box in rect: an edge, a background, and a tick if checked.
void PaintCheckIndicator(QPainter& painter, const QRect& rect, const QPalette& palette, bool checked);

class ProgramStyle final : public QProxyStyle {
    Q_OBJECT
  public:
    // Installs the style, but only if the desktop would use plain Fusion.
    static void Install();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    // Makes drop-down lists open below their boxes instead of over them.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

  private:
    ProgramStyle();
};

}  // namespace tw

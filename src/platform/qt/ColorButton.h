// A button that shows a colour; the brewer presses it to choose another.
#pragma once

#include <QColor>
#include <QPushButton>

namespace tw {

class ColorButton final : public QPushButton {
    Q_OBJECT
  public:
    // what is the accessible name; the accessible description is the colour.
    ColorButton(const QString& what, QWidget* parent);

    const QColor& Shown() const { return color_; }
    void Show(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QColor color_;
};

}  // namespace tw

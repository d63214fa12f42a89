// A button that shows a colour and is pressed to choose another.
#pragma once

#include <QColor>
#include <QPushButton>

namespace tw {

class ColorButton final : public QPushButton {
    Q_OBJECT
  public:
    // what: the accessible name; the colour is its description.
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

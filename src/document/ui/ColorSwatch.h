// The area beside the beer's colour that is filled with it.
#pragma once

#include <QWidget>

#include "record/Controls.h"

namespace tw {

class ColorSwatch final : public QWidget {
    Q_OBJECT
  public:
    explicit ColorSwatch(QWidget* parent = nullptr);
    void SetColor(Rgb color);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QColor color_ = Qt::white;
};

}  // namespace tw

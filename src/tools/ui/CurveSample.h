// A sample of one method's curve, its line and its mark, to stand beside its name.
#pragma once

#include <QWidget>

#include "calc/Hops.h"

namespace tw {

class CurveSample final : public QWidget {
    Q_OBJECT
  public:
    CurveSample(IbuMethod method, QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    IbuMethod method_;
};

}  // namespace tw

// Shows a few toolbar pictures of one icon set, as a sample to choose by.
#pragma once

#include <QWidget>

namespace tw {

class IconStrip final : public QWidget {
    Q_OBJECT
  public:
    // name is the accessible name.
    IconStrip(int iconStyle, const QString& name, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    int Side() const;

    int iconStyle_;
};

}  // namespace tw

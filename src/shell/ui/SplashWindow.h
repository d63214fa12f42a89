// The picture in front of the main window during start-up.
#pragma once

#include <QWidget>

namespace tw {

class SplashWindow final : public QWidget {
    Q_OBJECT
  public:
    static constexpr const char* kFormName = "frmSplash";

    // Creates the splash in the size of its picture, centred on parent.
    explicit SplashWindow(QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;
};

}  // namespace tw

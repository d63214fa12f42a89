// The picture that stands over the main window while the program gets ready: it goes as soon as that is done.
#pragma once

#include <QWidget>

namespace tw {

class SplashWindow final : public QWidget {
    Q_OBJECT
  public:
    static constexpr const char* kFormName = "frmSplash";

    // Sized to its picture, in the middle of parent.
    explicit SplashWindow(QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;
};

}  // namespace tw

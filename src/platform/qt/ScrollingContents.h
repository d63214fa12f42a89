// The contents of a dialog that may be higher than a small screen. They are shown whole where there is room,
// and scroll where there is not.
#pragma once

#include <QScrollArea>

namespace tw {

class ScrollingContents final : public QScrollArea {
    Q_OBJECT
  public:
    // Owns contents, and has its accessible name. REQUIRES: contents is laid out by a layout.
    ScrollingContents(QWidget* contents, QWidget* parent);
    ~ScrollingContents() override;

    // As large as the contents ask for.
    QSize sizeHint() const override;
    // As wide as the contents need beside a scroll bar, so that they scroll up and down only.
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    // Scrolls to a control of the contents that has got the focus, by whichever key.
    void ShowFocused(QWidget* now);
};

}  // namespace tw

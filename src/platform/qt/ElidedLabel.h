// A line of text that may be too long for its space: it is then cut short with an ellipsis, and its tool tip
// shows more.
#pragma once

#include <QLabel>

namespace tw {

class ElidedLabel final : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent);
    // Sets the text. Line breaks are shown as spaces.
    void SetFullText(const QString& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowText();

    QString full_;
};

}  // namespace tw

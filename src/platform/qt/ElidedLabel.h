// A line of text that may be longer than its place: it ends in three dots there, and its tool tip shows more.
#pragma once

#include <QLabel>

namespace tw {

class ElidedLabel final : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent);
    // A line break shows as a blank.
    void SetFullText(const QString& text);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowText();

    QString full_;
};

}  // namespace tw

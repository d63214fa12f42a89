// A link of the assistant: a picture with an underlined line next to it.
#pragma once

#include <QAbstractButton>
#include <QIcon>

namespace tw {

class AssistantLinkButton final : public QAbstractButton {
    Q_OBJECT
  public:
    AssistantLinkButton(const QIcon& picture, const QString& caption, QWidget* parent);

    // If on, draws the link as the one that a click or Enter follows.
    void Highlight(bool on);
    bool IsHighlighted() const { return highlighted_; }
    // True if the pointer is on the link.
    bool IsPointedAt() const { return pointedAt_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    // Reached: the pointer or the focus has entered the link. Left: it has left.
    void Reached();
    void Left();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int PictureSide() const;

    bool highlighted_ = false;
    bool pointedAt_ = false;
};

}  // namespace tw

// One link of the assistant: a picture and an underlined line beside it.
#pragma once

#include <QAbstractButton>
#include <QIcon>

namespace tw {

class AssistantLinkButton final : public QAbstractButton {
    Q_OBJECT
  public:
    AssistantLinkButton(const QIcon& picture, const QString& caption, QWidget* parent);

    // Drawn as the one link that a click or Enter would follow.
    void Highlight(bool on);
    bool IsHighlighted() const { return highlighted_; }
    // Whether the pointer is on it.
    bool IsPointedAt() const { return pointedAt_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    // The pointer or the focus has come; it has gone.
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

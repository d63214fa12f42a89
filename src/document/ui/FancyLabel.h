// A caption on a horizontal rule of two lines at half its height, such as "Basic" on the first tab.
#pragma once

#include <QColor>
#include <QWidget>

namespace tw {

class FancyLabel final : public QWidget {
    Q_OBJECT
    // If true, the control is as wide as its caption.
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    // Distance of the caption from the left edge, in twips (a twentieth of a point).
    Q_PROPERTY(int CaptionOffset READ CaptionOffset WRITE SetCaptionOffset)
    // The colours. An invalid colour means that of the system: button text, button face, button shadow and
    // 3-D highlight, in this order.
    Q_PROPERTY(QColor ForeColor MEMBER foreColor_)
    Q_PROPERTY(QColor BackColor MEMBER backColor_)
    Q_PROPERTY(QColor LineColor MEMBER lineColor_)
    Q_PROPERTY(QColor HiLiteColor MEMBER hiLiteColor_)

  public:
    explicit FancyLabel(const QString& caption, QWidget* parent = nullptr);

    bool AutoSize() const { return autoSize_; }
    void SetAutoSize(bool autoSize);
    const QString& Caption() const { return caption_; }
    void SetCaption(const QString& caption);
    int CaptionOffset() const { return captionOffset_; }
    void SetCaptionOffset(int twips);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    int OffsetPixels() const;

    QString caption_;
    QColor foreColor_, backColor_, lineColor_, hiLiteColor_;
    int captionOffset_ = 200;
    bool autoSize_ = false;
};

}  // namespace tw

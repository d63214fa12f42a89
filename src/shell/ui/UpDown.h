// Two arrows that step the number in the box next to them.
#pragma once

#include <QWidget>

namespace tw {

class UpDown final : public QWidget {
    Q_OBJECT
  public:
    // upName and downName are the accessible names of the arrows.
    UpDown(const QString& upName, const QString& downName, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    // by is 1 or -1. An arrow that is held down repeats.
    void Stepped(int by);

  private:
    void AddArrow(Qt::ArrowType arrow, const QString& name, int by);
};

}  // namespace tw

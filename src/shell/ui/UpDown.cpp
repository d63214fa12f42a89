#include "shell/ui/UpDown.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "platform/qt/Appearance.h"

namespace tw {

UpDown::UpDown(const QString& upName, const QString& downName, QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    AddArrow(Qt::UpArrow, upName, 1);
    AddArrow(Qt::DownArrow, downName, -1);
}

void UpDown::AddArrow(Qt::ArrowType arrow, const QString& name, int by) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    // The focus stays in the box, whose arrow keys also step the number.
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    button->setAccessibleName(name);
    button->setToolTip(name);
    connect(button, &QToolButton::clicked, this, [this, by] { emit Stepped(by); });
    layout()->addWidget(button);
}

QSize UpDown::sizeHint() const {
    return QSize(3, 4) * Unit(*this);
}

}  // namespace tw

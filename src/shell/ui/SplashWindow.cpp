#include "shell/ui/SplashWindow.h"

#include <QPainter>

#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "shell/Version.h"
#include "shell/ui/Icons.h"

namespace tw {

SplashWindow::SplashWindow(QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String(kFormName));
    setAccessibleName(tr("Tunwright is starting"));
    resize(sizeHint());
    move(parent->rect().center() - rect().center());
}

QSize SplashWindow::sizeHint() const {
    return QSize(44, 26) * Unit(*this);
}

void SplashWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int unit = Unit(*this), side = unit * 14;
    const QRect picture(unit * 3, (height() - side) / 2, side, side);
    ProgramIcon().paint(&painter, picture);
    QFont title = BoldFont(FigureFont(FigureFont(font())));
    painter.setFont(title);
    painter.setPen(Accent(palette()));
    const QRect text = rect().adjusted(picture.right() + unit * 2, 0, -unit, 0);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, ToQt(kProgramTitle));
}

}  // namespace tw

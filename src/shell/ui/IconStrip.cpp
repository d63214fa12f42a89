#include "shell/ui/IconStrip.h"

#include <QPainter>
#include <iterator>

#include "platform/qt/Appearance.h"
#include "shell/ui/Icons.h"

namespace tw {
namespace {

constexpr std::string_view kSamples[] = {"New", "Open", "Save", "OG", "IBU"};

}  // namespace

IconStrip::IconStrip(int iconStyle, const QString& name, QWidget* parent)
    : QWidget(parent), iconStyle_(iconStyle) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int IconStrip::Side() const {
    return Unit(*this) * 3;
}

QSize IconStrip::sizeHint() const {
    const int count = static_cast<int>(std::size(kSamples));
    return {count * Side() + (count - 1) * Unit(*this), Side()};
}

void IconStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRect place(0, 0, Side(), Side());
    for (const std::string_view image : kSamples) {
        ToolIcon(image, iconStyle_).paint(&painter, place);
        place.translate(Side() + Unit(*this), 0);
    }
}

}  // namespace tw

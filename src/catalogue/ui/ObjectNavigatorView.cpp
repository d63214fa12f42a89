#include "catalogue/ui/ObjectNavigatorView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

struct StepButton {
    const char* name;
    const char* caption;
    const char* key;
    bool forward;
    bool toEnd;
    bool (ObjectNavigator::*enabled)() const;
};

constexpr std::array<StepButton, 4> kButtons{
    {{"cmdFirst", QT_TRANSLATE_NOOP("ObjectNavigatorView", "First entry"), "Ctrl+Shift+PgUp", false, true,
      &ObjectNavigator::EnableFirst},
     {"cmdPrevious", QT_TRANSLATE_NOOP("ObjectNavigatorView", "Previous entry"), "Ctrl+PgUp", false, false,
      &ObjectNavigator::EnablePrevious},
     {"cmdNext", QT_TRANSLATE_NOOP("ObjectNavigatorView", "Next entry"), "Ctrl+PgDown", true, false,
      &ObjectNavigator::EnableNext},
     {"cmdLast", QT_TRANSLATE_NOOP("ObjectNavigatorView", "Last entry"), "Ctrl+Shift+PgDown", true, true,
      &ObjectNavigator::EnableLast}}};

// Draws an arrow, with a bar at its tip for the steps to the first and last row.
QPixmap Arrow(const StepButton& button, int size, qreal ratio, const QColor& color) {
    QPixmap picture(QSize(size, size) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.translate(size / 2.0, size / 2.0);
    if (!button.forward) painter.scale(-1, 1);
    const double reach = size * 0.26, height = size * 0.32, bar = size * 0.12;
    const double shift = button.toEnd ? -bar / 2 : 0;
    painter.drawPolygon(
        QPolygonF({{-reach + shift, -height}, {reach + shift, 0.0}, {-reach + shift, height}}));
    if (button.toEnd) painter.drawRect(QRectF(reach + shift, -height, bar, 2 * height));
    return picture;
}

}  // namespace

ObjectNavigatorView::ObjectNavigatorView(ObjectNavigator* navigator, QWidget* parent)
    : QWidget(parent), navigator_(navigator) {
    setObjectName(QStringLiteral("objNavView"));
    setAccessibleName(tr("Steps through the list"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t i = 0; i < kButtons.size(); ++i) {
        const StepButton& what = kButtons[i];
        auto* button = new QToolButton(this);
        button->setObjectName(QLatin1String(what.name));
        button->setAccessibleName(tr(what.caption));
        button->setAutoRaise(true);
        button->setShortcut(QKeySequence(QLatin1String(what.key)));
        button->setToolTip(QStringLiteral("%1 (%2)").arg(
            tr(what.caption), QKeySequence(QLatin1String(what.key)).toString(QKeySequence::NativeText)));
        // A click must not take the focus: leaving a cell would check its text, but a step discards it.
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, this, [this, name = what.name] { emit StepPressed(name); });
        row->addWidget(button);
        buttons_[i] = button;
    }
    ShowIcons();
    ShowState();
}

void ObjectNavigatorView::ShowState() {
    for (std::size_t i = 0; i < kButtons.size(); ++i)
        buttons_[i]->setEnabled(navigator_ != nullptr && (navigator_->*kButtons[i].enabled)());
}

void ObjectNavigatorView::ShowIcons() {
    const int size = Unit(*this) * 2;
    const qreal ratio = devicePixelRatioF();
    for (std::size_t i = 0; i < kButtons.size(); ++i) {
        QIcon icon;
        icon.addPixmap(
            Arrow(kButtons[i], size, ratio, palette().color(QPalette::Active, QPalette::ButtonText)));
        icon.addPixmap(
            Arrow(kButtons[i], size, ratio, palette().color(QPalette::Disabled, QPalette::ButtonText)),
            QIcon::Disabled);
        buttons_[i]->setIcon(icon);
        buttons_[i]->setIconSize({size, size});
    }
}

void ObjectNavigatorView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) ShowIcons();
}

}  // namespace tw

#include "platform/qt/SvgIcon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

#include "platform/qt/Appearance.h"

// The resources of a static library must be registered explicitly, outside any namespace.
static void RegisterIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace tw {
namespace {

constexpr double kDisabledOpacity = 0.38;

// Those of the sixteen classic colours that vanish or glare on a dark background, each with its replacement.
constexpr std::pair<const char*, const char*> kOnDark[] = {
    {"#ffffff", "#4a4642"}, {"#000080", "#8fc1ff"}, {"#008000", "#6fd36f"}, {"#800000", "#ff9a8f"},
    {"#008080", "#43b8b8"}, {"#808000", "#c9b35a"}, {"#c0c0c0", "#7d766f"}, {"#ffff00", "#ffe38a"},
    {"#00ffff", "#8fe8e8"}, {"#00ff00", "#5fae5f"}, {"#ff0000", "#ff6b5e"}};

QByteArray ReadSvg(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Returns the drawing in the colours of a palette; "currentColor" becomes the palette's text colour.
QByteArray Recolored(QByteArray svg, const QPalette& palette, SvgInk ink) {
    const QColor outline = palette.color(QPalette::Active, QPalette::ButtonText);
    if (ink == SvgInk::Classic && IsDark(palette))
        for (const auto& [light, dark] : kOnDark) svg.replace(light, dark);
    return svg.replace("currentColor", outline.name().toLatin1());
}

class SvgIconEngine final : public QIconEngine {
  public:
    SvgIconEngine(QString path, SvgInk ink) : path_(std::move(path)), ink_(ink) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        if (mode != QIcon::Disabled) {
            Render(*painter, rect);
            return;
        }
        // Greyed as a whole, so that overlapping parts do not show through each other.
        const double scale = painter->device()->devicePixelRatioF();
        QImage picture(rect.size() * scale, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter whole(&picture);
        Render(whole, QRect(QPoint(), rect.size()));
        whole.end();
        const double opacity = painter->opacity();
        painter->setOpacity(opacity * kDisabledOpacity);
        painter->drawImage(rect, picture);
        painter->setOpacity(opacity);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QString key = QStringLiteral("%1|%2|%3x%4|%5|%6")
                                .arg(path_)
                                .arg(static_cast<int>(ink_))
                                .arg(size.width())
                                .arg(size.height())
                                .arg(mode == QIcon::Disabled)
                                .arg(QApplication::palette().color(QPalette::ButtonText).rgb());
        QPixmap picture;
        if (QPixmapCache::find(key, &picture)) return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }

    QIconEngine* clone() const override { return new SvgIconEngine(*this); }

  private:
    void Render(QPainter& painter, const QRect& rect) const {
        QSvgRenderer(Recolored(ReadSvg(path_), QApplication::palette(), ink_)).render(&painter, rect);
    }

    QString path_;
    SvgInk ink_;
};

}  // namespace

QIcon SvgIcon(const QString& path, SvgInk ink) {
    RegisterIcons();
    return QFile::exists(path) ? QIcon(new SvgIconEngine(path, ink)) : QIcon();
}

}  // namespace tw

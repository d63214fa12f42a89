#include "shell/ui/MainGeometry.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include "platform/qt/Appearance.h"
#include "platform/qt/ScreenRoom.h"

namespace tw {
namespace {

// Keys that only the windows use, separate from the program's settings.
constexpr std::string_view kWindowsSection = "Windows";
constexpr std::string_view kStateKey = "MainState";
constexpr std::string_view kMaximized = "2";
constexpr std::string_view kNormal = "0";

// The size at the first start, in multiples of Unit: all tabs of a recipe side by side, and its first page
// without scrolling.
constexpr QSize kFirstUnits(156, 100);

bool IsFirstStart(const SettingsStore& store) {
    return store.GetSetting(kSettingsSection, "MainWidth", {}).empty();
}

QRect StoredGeometry(const Settings& settings, double dotsPerInch) {
    const auto pixels = [&](double twips) { return PixelsOfTwips(twips, dotsPerInch); };
    return {pixels(settings.mainLeft), pixels(settings.mainTop), pixels(settings.mainWidth),
            pixels(settings.mainHeight)};
}

}  // namespace

QSize FirstSize(const QWidget& window) {
    return kFirstUnits * Unit(window);
}

QRect GeometryOf(const Settings& settings, double dotsPerInch, const QSize& least, const QRect& room) {
    const QRect stored = StoredGeometry(settings, dotsPerInch);
    return FittedInto({stored.topLeft(), stored.size().expandedTo(least)}, room);
}

void ApplyGeometry(QMainWindow& window, const Settings& settings, const SettingsStore& store) {
    const QPoint center = StoredGeometry(settings, window.screen()->logicalDotsPerInch()).center();
    if (QScreen* const screen = QGuiApplication::screenAt(center)) window.setScreen(screen);
    const QScreen& screen = *window.screen();
    const QSize least = IsFirstStart(store) ? FirstSize(window) : window.minimumSize();
    const QRect geometry = GeometryOf(settings, screen.logicalDotsPerInch(), least, RoomOf(window));
    window.setMinimumSize(window.minimumSize().boundedTo(geometry.size()));
    window.resize(geometry.size());
    window.move(geometry.topLeft());
    if (store.GetSetting(kWindowsSection, kStateKey, kNormal) == kMaximized)
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void KeepGeometry(const QMainWindow& window, Settings& settings, const SettingsStore& store) {
    const double dotsPerInch = window.screen()->logicalDotsPerInch();
    QRect geometry(window.pos(), window.size());
    // normalGeometry excludes the frame, whereas QWidget::move includes it; without this correction the
    // window would move down with every start.
    if (window.isMaximized())
        geometry = window.normalGeometry().translated(window.pos() - window.geometry().topLeft());
    settings.mainLeft = TwipsOfPixels(geometry.left(), dotsPerInch);
    settings.mainTop = TwipsOfPixels(geometry.top(), dotsPerInch);
    settings.mainWidth = TwipsOfPixels(geometry.width(), dotsPerInch);
    settings.mainHeight = TwipsOfPixels(geometry.height(), dotsPerInch);
    store.SaveSetting(kWindowsSection, kStateKey, window.isMaximized() ? kMaximized : kNormal, false);
}

}  // namespace tw

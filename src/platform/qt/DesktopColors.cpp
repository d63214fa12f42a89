#include "platform/qt/DesktopColors.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "platform/qt/Appearance.h"

namespace tw {
namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
constexpr uint kPreferDark = 1;

// The portal wraps the number in one variant or, in its older call, in two.
uint Number(QVariant value) {
    while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

bool EnvironmentIsDark() {
    const QString theme = qEnvironmentVariable("GTK_THEME").toLower();
    return theme.endsWith(QLatin1String(":dark")) || theme.endsWith(QLatin1String("-dark"));
}

}  // namespace

DesktopColors::DesktopColors() : themed_(IsDark(QApplication::palette())) {
    if (EnvironmentIsDark()) Apply(true);
}

void DesktopColors::Follow() {
    if (themed_ || qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage ask = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    ask << kGroup << kKey;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(ask), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* answer) {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError() && Number(QVariant::fromValue(reply.value())) == kPreferDark) Apply(true);
        answer->deleteLater();
    });
}

void DesktopColors::SettingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == kGroup && key == kKey) Apply(Number(value.variant()) == kPreferDark);
}

void DesktopColors::Apply(bool dark) {
    if (themed_ || dark == dark_) return;
    dark_ = dark;
    // An empty palette restores the system's palette.
    QApplication::setPalette(dark ? DarkPalette() : QPalette());
}

}  // namespace tw

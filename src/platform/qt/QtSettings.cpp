#include "platform/qt/QtSettings.h"

#include <QStringList>

namespace tw {
namespace {

constexpr auto kOrganisation = "Quillon Labs";
constexpr auto kProgram = "Tunwright";

QString FromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A section is a group in the file, so a slash in its name must be escaped or it would start a nested group.
QString Name(std::string_view part) {
    return FromUtf8(part).replace('%', "%25").replace('/', "%2F");
}

QString Path(std::string_view section, std::string_view key) {
    return Name(section) + '/' + Name(key);
}

// QSettings reads an unquoted value with a comma, as edited by hand, as a list; this restores the text.
QString TextOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(", ");
    return value.toString();
}

}  // namespace

QtSettings::QtSettings(std::unique_ptr<QSettings> user)
    : user_(std::move(user)),
      machine_(std::make_unique<QSettings>(QSettings::SystemScope, kOrganisation, kProgram)) {
    // The layers are combined by SettingsStore, not by QSettings.
    user_->setFallbacksEnabled(false);
    machine_->setFallbacksEnabled(false);
}

std::unique_ptr<QtSettings> QtSettings::OfUser() {
    auto user = std::make_unique<QSettings>(QSettings::UserScope, kOrganisation, kProgram);
    return std::unique_ptr<QtSettings>(new QtSettings(std::move(user)));
}

std::unique_ptr<QtSettings> QtSettings::OfFile(const std::string& path) {
    auto user = std::make_unique<QSettings>(FromUtf8(path), QSettings::IniFormat);
    return std::unique_ptr<QtSettings>(new QtSettings(std::move(user)));
}

std::optional<std::string> QtSettings::Read(Layer layer, std::string_view section, std::string_view key) {
    const QVariant value = Of(layer).value(Path(section, key));
    if (!value.isValid()) return std::nullopt;
    return TextOf(value).toStdString();
}

std::vector<std::string> QtSettings::Files() const {
    return {user_->fileName().toStdString(), machine_->fileName().toStdString()};
}

bool QtSettings::Write(Layer layer, std::string_view section, std::string_view key, std::string_view value) {
    QSettings& settings = Of(layer);
    if (!settings.isWritable()) return false;
    settings.setValue(Path(section, key), FromUtf8(value));
    return settings.status() != QSettings::AccessError;
}

void QtSettings::Remove(Layer layer, std::string_view section, std::string_view key) {
    QSettings& settings = Of(layer);
    if (settings.isWritable()) settings.remove(Path(section, key));
}

}  // namespace tw

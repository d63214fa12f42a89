#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>

#include "platform/qt/Appearance.h"
#include "platform/qt/GenericDialog.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScreenRoom.h"

namespace tw {
namespace {

// Each size is stored as "WIDTHxHEIGHT" in twips under the name of its form.
constexpr std::string_view kSection = "Windows";

}  // namespace

void QtDialogs::Register(std::string formName, Factory factory) {
    factories_[std::move(formName)] = std::move(factory);
}

std::unique_ptr<QDialog> QtDialogs::Make(DialogModel& dialog, QWidget* parent) const {
    const auto found = factories_.find(dialog.FormName());
    if (found == factories_.end()) return std::make_unique<GenericDialog>(dialog, parent);
    return found->second(dialog, parent);
}

QSize QtDialogs::KeptSize(const QDialog& window) const {
    const auto stored = sizes_.Read(SettingsPort::Layer::User, kSection, FromQt(window.objectName()));
    const QStringList sides = ToQt(stored.value_or(std::string())).split(QLatin1Char('x'));
    if (sides.size() != 2) return {};
    const double dots = window.screen()->logicalDotsPerInch();
    return {PixelsOfTwips(sides[0].toInt(), dots), PixelsOfTwips(sides[1].toInt(), dots)};
}

void QtDialogs::SetSize(QDialog& window) const {
    QSize wanted = KeptSize(window);
    if (wanted.isEmpty() && !window.testAttribute(Qt::WA_Resized)) {
        // adjustSize() stops at two thirds of the screen, which may be too small for the contents.
        window.adjustSize();
        wanted = window.size().expandedTo(window.sizeHint());
    }
    ResizeIntoRoom(window, wanted.isEmpty() ? window.size() : wanted);
}

void QtDialogs::KeepSize(const QDialog& window) const {
    const double dots = window.screen()->logicalDotsPerInch();
    const QString size = QStringLiteral("%1x%2").arg(TwipsOfPixels(window.width(), dots));
    sizes_.Write(SettingsPort::Layer::User, kSection, FromQt(window.objectName()),
                 FromQt(size.arg(TwipsOfPixels(window.height(), dots))));
}

void QtDialogs::ShowModal(DialogModel& dialog) {
    const std::unique_ptr<QDialog> window = Make(dialog, QApplication::activeWindow());
    SetSize(*window);
    const QSize opened = window->size();
    if (help_) InstallHelpKey(*window, dialog.FormName(), help_);
    window->exec();
    // Only a size that the brewer changed is stored; any other size is derived again from the screen and
    // the font.
    if (window->size() != opened) KeepSize(*window);
    if (dialog.IsOpen()) dialog.CloseBox();
}

}  // namespace tw

#include "platform/qt/HelpKey.h"

#include <QDialog>
#include <QShortcut>
#include <QTabWidget>

namespace tw {

void InstallHelpKey(QDialog& window, const std::string& form, const HelpOpener& open) {
    auto* key = new QShortcut(Qt::Key_F1, &window);
    QObject::connect(key, &QShortcut::activated, &window, [&window, form, open] {
        const auto* tabs = window.findChild<QTabWidget*>();
        open(form, tabs ? tabs->currentIndex() + 1 : 0);
    });
}

}  // namespace tw

#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QDialog>

#include "platform/qt/GenericDialog.h"

namespace tw {

void QtDialogs::Register(std::string formName, Factory factory) {
    factories_[std::move(formName)] = std::move(factory);
}

std::unique_ptr<QDialog> QtDialogs::Make(DialogModel& dialog, QWidget* parent) const {
    const auto found = factories_.find(dialog.FormName());
    if (found == factories_.end()) return std::make_unique<GenericDialog>(dialog, parent);
    return found->second(dialog, parent);
}

void QtDialogs::ShowModal(DialogModel& dialog) {
    const std::unique_ptr<QDialog> window = Make(dialog, QApplication::activeWindow());
    window->exec();
    if (dialog.IsOpen()) dialog.CloseBox();
}

}  // namespace tw

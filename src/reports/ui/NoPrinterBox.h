// The box of a computer without a printer: a NoPrinterModel in a message box of the desktop.
#pragma once

#include <QMessageBox>
#include <memory>

#include "platform/DialogModel.h"

namespace tw {

class NoPrinterBox final : public QMessageBox {
    Q_OBJECT
  public:
    // The model must outlive the box.
    NoPrinterBox(DialogModel& model, QWidget* parent);
    // Makes the windows of NoPrinterModels.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);

  private:
    QPushButton* AddChoice(const char* name, const QString& caption, ButtonRole role);

    DialogModel& model_;
};

}  // namespace tw

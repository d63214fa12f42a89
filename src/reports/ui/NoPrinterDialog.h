// The window shown when the computer has no printer (frmNoPrinter).
#pragma once

#include <QDialog>

#include "platform/DialogModel.h"

namespace tw {

class NoPrinterDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the window.
    NoPrinterDialog(DialogModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void Press(const char* button);

    DialogModel& model_;
};

}  // namespace tw

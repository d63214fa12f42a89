// The dialog that selects recipes and a format to export for other brewing programs (frmExportOther).
#pragma once

#include <QDialog>

#include "shell/ExportOtherModel.h"

class QPushButton;

namespace tw {

class ExportOtherDialog final : public QDialog {
    Q_OBJECT
  public:
    ExportOtherDialog(ExportOtherModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void ShowButtons();

    ExportOtherModel& model_;
    QPushButton* next_;
};

}  // namespace tw

// The window that tells how an exported file differs from its recipes (frmExportFindings).
#pragma once

#include <QDialog>

#include "doctor/ExportFindingsModel.h"

namespace tw {

class ExportFindingsDialog final : public QDialog {
    Q_OBJECT
  public:
    ExportFindingsDialog(ExportFindingsModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    ExportFindingsModel& model_;
};

}  // namespace tw

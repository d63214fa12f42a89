// The dialog that selects recipes to import or export (frmImportExport).
#pragma once

#include <QDialog>

#include "shell/ImportExportModel.h"

class QPushButton;

namespace tw {

class ImportExportDialog final : public QDialog {
    Q_OBJECT
  public:
    ImportExportDialog(ImportExportModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void ShowButtons();

    ImportExportModel& model_;
    QPushButton* next_;
};

}  // namespace tw

// The window in which the recipes to import or export are picked.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/ImportExportModel.h"

class QPushButton;

namespace tw {

class frmImportExport final : public QDialog {
    Q_OBJECT
  public:
    frmImportExport(ImportExportModel& model, QWidget* parent);
    // The window of an ImportExportModel. REQUIRES: model is one.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void ShowButtons();

    ImportExportModel& model_;
    QPushButton* next_;
};

}  // namespace tw

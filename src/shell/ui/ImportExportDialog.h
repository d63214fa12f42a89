// The dialog that selects recipes to import or export (frmImportExport).
#pragma once

#include "shell/ImportExportModel.h"
#include "shell/ui/RecipePickDialog.h"

namespace tw {

class ImportExportDialog final : public RecipePickDialog {
    Q_OBJECT
  public:
    ImportExportDialog(ImportExportModel& model, QWidget* parent);
};

}  // namespace tw

// The dialog that selects recipes and a format to export for other brewing programs (frmExportOther).
#pragma once

#include "shell/ExportOtherModel.h"
#include "shell/ui/RecipePickDialog.h"

namespace tw {

class ExportOtherDialog final : public RecipePickDialog {
    Q_OBJECT
  public:
    ExportOtherDialog(ExportOtherModel& model, QWidget* parent);
};

}  // namespace tw

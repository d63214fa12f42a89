// The dialog that lists the recipes imported without their style (frmStylesNotImported).
#pragma once

#include <QDialog>

#include "shell/StylesNotImportedModel.h"

namespace tw {

class StylesNotImportedDialog final : public QDialog {
    Q_OBJECT
  public:
    StylesNotImportedDialog(StylesNotImportedModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    QWidget* MakeGrid();

    StylesNotImportedModel& model_;
};

}  // namespace tw

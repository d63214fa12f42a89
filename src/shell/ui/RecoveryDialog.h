// The dialog that offers unsaved recipes of an earlier run (frmRecovery).
#pragma once

#include <QDialog>

#include "shell/RecoveryModel.h"

class QListWidget;

namespace tw {

class RecoveryDialog final : public QDialog {
    Q_OBJECT
  public:
    RecoveryDialog(RecoveryModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void Press(const QString& button);
    void ShowEntries();

    RecoveryModel& model_;
    QListWidget* list_;
};

}  // namespace tw

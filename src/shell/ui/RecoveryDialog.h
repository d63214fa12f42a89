// The window that offers what an earlier run left unsaved (frmRecovery).
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

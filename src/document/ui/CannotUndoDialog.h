// The dialog that asks before a change that cannot be undone.
#pragma once

#include <QDialog>

#include "platform/DialogModel.h"

namespace tw {

class CannotUndoDialog final : public QDialog {
    Q_OBJECT
  public:
    CannotUndoDialog(DialogModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void Press(const char* button);

    DialogModel& model_;
};

}  // namespace tw

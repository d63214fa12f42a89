// The about window (frmAbout).
#pragma once

#include <QDialog>

#include "platform/DialogModel.h"

namespace tw {

class AboutDialog final : public QDialog {
    Q_OBJECT
  public:
    AboutDialog(DialogModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    DialogModel& model_;
};

}  // namespace tw

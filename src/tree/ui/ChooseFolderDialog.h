// The dialog in which a folder is chosen.
#pragma once

#include <QDialog>

#include "tree/ChooseFolderModel.h"

namespace tw {

class ChooseFolderDialog final : public QDialog {
    Q_OBJECT
  public:
    ChooseFolderDialog(ChooseFolderModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    ChooseFolderModel& model_;
};

}  // namespace tw

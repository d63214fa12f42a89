// The progress window of autosave. It appears without taking the focus, so that an entry in progress is not
// interrupted, and closes when all recipes are saved.
#pragma once

#include <QDialog>

#include "shell/AutoSave.h"

class QLabel;
class QProgressBar;

namespace tw {

class AutoSaveDialog final : public QDialog {
    Q_OBJECT
  public:
    AutoSaveDialog(AutoSaveModel& model, QWidget* parent);
    ~AutoSaveDialog() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void reject() override;

  private:
    void Run();
    void ShowProgress();

    AutoSaveModel& model_;
    QLabel* recipe_;
    QProgressBar* progress_;
};

}  // namespace tw

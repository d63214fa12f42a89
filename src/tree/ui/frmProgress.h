// The window that shows how far an operation on many objects has come.
#pragma once

#include <QDialog>
#include <memory>

#include "tree/ProgressModel.h"

class QLabel;
class QProgressBar;

namespace tw {

class frmProgress final : public QDialog {
    Q_OBJECT
  public:
    frmProgress(ProgressModel& model, QWidget* parent);
    ~frmProgress() override;
    // The window of a ProgressModel. REQUIRES: model is one.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);

  protected:
    void showEvent(QShowEvent* event) override;
    void reject() override;

  private:
    void Run();
    void ShowProgress();

    ProgressModel& model_;
    QLabel* object_;
    QProgressBar* progress_;
};

}  // namespace tw

// The progress of an operation on many objects. A short one shows no window, only the hourglass.
#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include "tree/ProgressModel.h"

class QProgressBar;

namespace tw {

class ElidedLabel;

class ProgressDialog final : public QDialog {
    Q_OBJECT
  public:
    ProgressDialog(ProgressModel& model, QWidget* parent);
    ~ProgressDialog() override;

    // Works, and returns when the work is done or called off. An error that rises from the work goes through.
    int exec() override;

  protected:
    // Calls the work off; the window stays until it has ended.
    void reject() override;
    void showEvent(QShowEvent* event) override;

  private:
    void Fill();
    void ShowProgress();
    void ShowHourglass(bool busy);

    ProgressModel& model_;
    ElidedLabel* object_;
    QProgressBar* progress_;
    QElapsedTimer sinceShown_;
    bool hourglass_ = false;
};

}  // namespace tw

// Shows the progress of an operation on many objects. A short operation shows no window, just the
// wait cursor.
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

    // Runs the work, and returns when it is done or cancelled. Passes on an error that the work raises.
    int exec() override;

  protected:
    // Cancels the work; the window stays open until the work has ended.
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

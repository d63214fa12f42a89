// The progress of an import or export. A short one shows no window, only the hourglass.
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <memory>

#include "shell/CopyProgressModel.h"

class QProgressBar;

namespace tw {

class ElidedLabel;

class frmCopyProgress final : public QDialog {
    Q_OBJECT
  public:
    // So many recipes are copied before a window would be read.
    static constexpr int kWithoutWindow = 20;

    frmCopyProgress(CopyProgressModel& model, QWidget* parent);
    ~frmCopyProgress() override;
    // The window of a CopyProgressModel. REQUIRES: model is one.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);

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

    CopyProgressModel& model_;
    ElidedLabel* recipe_;
    QProgressBar* progress_;
    QElapsedTimer sinceShown_;
    bool hourglass_ = false;
};

}  // namespace tw

// The dialogs frmResizeRecipe, frmChangeOG, frmChangeIBU and frmChangeCO2.
#pragma once

#include <QDialog>

#include "document/ScalingModel.h"

class QGridLayout;
class QLineEdit;
class QVBoxLayout;

namespace tw {

class ScalingDialog final : public QDialog {
    Q_OBJECT
  public:
    ScalingDialog(ScalingModel& model, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void AddFigures(QGridLayout& grid);
    void AddChecks(QVBoxLayout& column);
    void AddButtons(QVBoxLayout& column);
    void Press(const char* button);
    void ShowEntry();
    void GoBack();

    ScalingModel& model_;
    QLineEdit* box_;
    bool refusing_ = false;  // true while leaving the box must not check the entry
};

}  // namespace tw

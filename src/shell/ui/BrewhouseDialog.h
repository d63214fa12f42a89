// The window that asks how one brews (frmBrewhouse).
#pragma once

#include <QDialog>

#include "shell/BrewhouseModel.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLineEdit;

namespace tw {

class BrewhouseDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    BrewhouseDialog(BrewhouseModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void AddHeading(QBoxLayout& column);
    void AddEntries(QBoxLayout& column);
    void AddChecks(QBoxLayout& column);
    void AddButtons(QBoxLayout& column);
    QComboBox* List(const char* name, const std::vector<std::string>& entries);
    QLineEdit* Box(const char* name, const QString& example);
    void Enter(const QString& control, const QString& text);
    void Press(const char* button);
    // Shows the present state of the model.
    void ShowModel();

    BrewhouseModel& model_;
};

}  // namespace tw

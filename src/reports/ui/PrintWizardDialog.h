// The window of the report wizard (frmPrintWizard).
#pragma once

#include <QDialog>

#include "reports/PrintWizardModel.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace tw {

class PrintWizardDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    PrintWizardDialog(PrintWizardModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    QWidget* AddPage();
    void BuildUnits();
    void BuildRecipes();
    void BuildOutput();
    void AddButtons(QBoxLayout& column);
    QPushButton* AddButton(const char* name, const QString& caption, QWidget* parent, QBoxLayout& row);
    void Press(const char* button);
    void Enter(const char* control, const QString& text);
    void ShowModel();
    void FocusPage();

    PrintWizardModel& model_;
    QLabel* heading_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    QComboBox* type_ = nullptr;
    QLineEdit* file_ = nullptr;
    QPushButton *back_ = nullptr, *next_ = nullptr;
};

}  // namespace tw

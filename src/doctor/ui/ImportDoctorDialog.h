// The window that examines files of other programs and imports their recipes (frmImportDoctor).
#pragma once

#include <QDialog>
#include <vector>

#include "doctor/ImportDoctorModel.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace tw {

class DoctorFileTree;
class ElidedLabel;
class FindingTree;

class ImportDoctorDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    ImportDoctorDialog(ImportDoctorModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    // The two lists with their headings.
    QWidget* MakeLists();
    void AddOptions(QBoxLayout& column);
    QCheckBox* MakeBox(const char* name, const QString& text, const QString& tip);
    QBoxLayout* MakeUnits();
    QBoxLayout* MakeFolder();
    void AddButtons(QBoxLayout& column);
    QPushButton* MakeButton(const char* name, const QString& text);
    // Presses a button of the model, and shows or closes what comes of it.
    void Press(const char* button);
    // Shows all that the model says.
    void ShowAll();
    // Shows what depends on the selection and the choices.
    void ShowSelected();

    ImportDoctorModel& model_;
    DoctorFileTree* files_ = nullptr;
    FindingTree* findings_ = nullptr;
    ElidedLabel* selection_ = nullptr;
    ElidedLabel* folder_ = nullptr;
    QComboBox* units_ = nullptr;
    std::vector<QCheckBox*> boxes_;
    std::vector<QPushButton*> buttons_;
};

}  // namespace tw

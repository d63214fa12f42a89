// The hydrometer correction (frmHydrometer): shows a HydrometerModel and passes on what the brewer types.
#pragma once

#include <QDialog>

#include "tools/HydrometerModel.h"

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace tw {

class HydrometerDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    HydrometerDialog(HydrometerModel& model, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QLineEdit* Entry(const char* name, const QString& hint);
    QComboBox* Calibration();
    QLineEdit* Result();
    void AddRow(QGridLayout& rows, const QString& caption, QWidget* control);
    // The box in which the control of that name is typed.
    QLineEdit* EditOf(const QString& name) const;
    void Update();
    void LookComputed();
    // The focus goes back to a refused entry, once the event that took it away is over.
    void GoBackTo(const QString& name);

    HydrometerModel& model_;
    bool refusing_ = false;  // the focus is on its way back; its moves until then are no entry
};

}  // namespace tw

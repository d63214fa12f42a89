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
    // Returns the line edit of the control of that name.
    QLineEdit* EditOf(const QString& name) const;
    void Update();
    void LookComputed();
    // Returns the focus to a refused entry after the event that took it away.
    void GoBackTo(const QString& name);

    HydrometerModel& model_;
    bool refusing_ = false;  // the focus is going back; until then its moves do not commit anything
};

}  // namespace tw

// The window that shows what a recipe carries from another program (frmCarriedData).
#pragma once

#include <QDialog>

#include "doctor/CarriedDataModel.h"

class QBoxLayout;
class QTreeWidget;
class QTreeWidgetItem;

namespace tw {

class ElidedLabel;

class CarriedDataDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    CarriedDataDialog(CarriedDataModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void MakeTree();
    void MakeButtons(QBoxLayout& column);
    void Fill();
    void Follow(const QTreeWidgetItem* item);

    CarriedDataModel& model_;
    ElidedLabel* source_;
    QTreeWidget* tree_;
};

}  // namespace tw

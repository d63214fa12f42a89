// The dialogs with the details of a recipe: frmStrengthDetails, frmFinalVolDetails and frmHopDetails.
#pragma once

#include <QDialog>

#include "document/DetailWindows.h"

class QVBoxLayout;

namespace tw {

class DetailsDialog final : public QDialog {
    Q_OBJECT
  public:
    DetailsDialog(DetailsModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void AddFigures(QVBoxLayout& column);
    void AddBalance(QVBoxLayout& column);

    DetailsModel& model_;
};

}  // namespace tw

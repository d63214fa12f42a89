// The hop utilisation explorer (frmHopUtil): a slider for the gravity, the curves, and the utilisations at
// one boil time.
#pragma once

#include <QDialog>
#include <array>

#include "tools/HopUtilisationModel.h"

class QBoxLayout;
class QLabel;
class QSlider;

namespace tw {

class UtilisationGraphView;

class HopUtilisationDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    HopUtilisationDialog(HopUtilisationModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    QLayout* SliderColumn();
    QLayout* FigureRow();
    void ShowGravity();
    void ShowFigures();

    HopUtilisationModel& model_;
    QLabel* heading_;
    UtilisationGraphView* graph_;
    QSlider* slider_ = nullptr;
    QLabel* time_ = nullptr;
    std::array<QLabel*, kMethods> figures_{};
};

}  // namespace tw

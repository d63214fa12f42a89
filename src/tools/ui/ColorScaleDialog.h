// The colour scales (frmColor): the choice of a scale, the picture, and the figure under its pointer.
#pragma once

#include <QDialog>

#include "tools/ColorScaleModel.h"

class QBoxLayout;
class QLabel;

namespace tw {

class ColorScaleView;
class ColorSwatch;

class ColorScaleDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    ColorScaleDialog(ColorScaleModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    void AddScales(QBoxLayout& column);
    void AddReading(QBoxLayout& column);
    void ShowReading();

    ColorScaleModel& model_;
    ColorScaleView* view_;
    ColorSwatch* swatch_ = nullptr;
    QLabel* reading_ = nullptr;
};

}  // namespace tw

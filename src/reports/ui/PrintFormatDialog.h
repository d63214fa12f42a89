// The window of the format options of a report (frmPrintFmtOptions).
#pragma once

#include <QDialog>

#include "platform/qt/ColorChooser.h"
#include "reports/PrintFormatModel.h"

class QGridLayout;

namespace tw {

class PrintFormatDialog final : public QDialog {
    Q_OBJECT
  public:
    // model and colors must outlive the dialog.
    PrintFormatDialog(PrintFormatModel& model, ColorChooser& colors, QWidget* parent);

  protected:
    void reject() override;

  private:
    void AddWidth(QGridLayout& grid);
    void AddGround(QGridLayout& grid);
    void AddFont(QGridLayout& grid, const char* box, const char* button, const QString& caption);
    void AddSwitch(QGridLayout& grid, const char* name, const QString& caption);
    void Press(const char* button);
    void Enter(const char* control, const QString& text);
    void ShowModel();

    PrintFormatModel& model_;
    ColorChooser& colors_;
};

}  // namespace tw

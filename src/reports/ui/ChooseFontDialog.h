// The window for choosing a font of a report (frmChooseFont).
#pragma once

#include <QDialog>

#include "platform/qt/ColorChooser.h"
#include "reports/ChooseFontModel.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

namespace tw {

class ColorButton;

class ChooseFontDialog final : public QDialog {
    Q_OBJECT
  public:
    // model and colors must outlive the dialog.
    ChooseFontDialog(ChooseFontModel& model, ColorChooser& colors, QWidget* parent);

  protected:
    void reject() override;

  private:
    void AddLists(QGridLayout& grid);
    void AddChecks(QGridLayout& grid);
    void AddColors(QGridLayout& grid);
    void AddSample(QGridLayout& grid);
    void AddList(QComboBox& list, const char* name, const QString& caption, QGridLayout& grid, int row);
    void Enter(const char* control, const QString& text);
    void ChooseColor(ColorButton& button);
    void ShowModel();
    void Press(const char* button);

    ChooseFontModel& model_;
    ColorChooser& colors_;
    QLineEdit* sample_ = nullptr;
    QPushButton* ok_ = nullptr;
};

}  // namespace tw

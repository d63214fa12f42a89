// The unit converter (frmConvertUnits): shows a ConvertUnitsModel and passes on what the brewer types.
#pragma once

#include <QDialog>
#include <array>

#include "tools/ConvertUnitsModel.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace tw {

class ConvertUnitsDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    ConvertUnitsDialog(ConvertUnitsModel& model, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void AddTypes(QGridLayout& rows);
    void AddBoxes(QGridLayout& rows);
    void ChooseType(int index);
    // Shows the labels and boxes of the kind.
    void ShowKind();
    // Shows the texts of the model in all boxes that differ.
    void ShowTexts();
    // Returns the index of a box; -1 for any other object.
    int BoxOf(const QObject* object) const;

    struct Row {
        QLabel* label = nullptr;
        QLineEdit* box = nullptr;
    };

    ConvertUnitsModel& model_;
    QComboBox* types_ = nullptr;
    std::array<Row, ConvertUnitsModel::kBoxes> rows_;
};

}  // namespace tw

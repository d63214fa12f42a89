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
    // Labels and boxes of the kind.
    void ShowKind();
    // The texts of all boxes but the one that the brewer is typing in.
    void ShowTexts();
    // The number of that box; -1 for another object.
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

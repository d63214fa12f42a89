// The dialog that asks what to do with a recipe whose name already exists (frmNameConflict).
#pragma once

#include <QDialog>

#include "shell/NameConflictModel.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace tw {

class NameConflictDialog final : public QDialog {
    Q_OBJECT
  public:
    NameConflictDialog(NameConflictModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    // Adds a button and, next to it, a label that says what it does.
    QPushButton* AddChoice(QGridLayout& grid, const char* button, const QString& caption, const char* label,
                           const QString& text);
    void AddNewName(QGridLayout& grid);
    // Adds the check box that answers for the rest of the recipes.
    void AddForAll(QVBoxLayout& column);
    void Press(const char* button);

    NameConflictModel& model_;
    QLineEdit* newName_;
};

}  // namespace tw

// What the dialogs that pick recipes for an import or export have in common.
#pragma once

#include <QDialog>
#include <initializer_list>

#include "shell/RecipePickModel.h"

class QBoxLayout;
class QPushButton;

namespace tw {

class RecipePickDialog : public QDialog {
    Q_OBJECT
  protected:
    RecipePickDialog(RecipePickModel& model, QWidget* parent);

    // Adds the last row: the options of the derived dialog, then the buttons. Called once, at the end of its
    // constructor.
    void AddLastRow(std::initializer_list<QWidget*> options);

    void reject() override;

  private:
    void ShowButtons();

    RecipePickModel& model_;
    QBoxLayout* column_;
    QPushButton* next_ = nullptr;
};

}  // namespace tw

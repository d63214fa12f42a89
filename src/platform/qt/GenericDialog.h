// The window of a form that has no window class of its own: its controls in the form's order, labelled with
// their names.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "platform/DialogModel.h"

class QFormLayout;

namespace tw {

class GenericDialog final : public QDialog {
    Q_OBJECT
  public:
    explicit GenericDialog(DialogModel& model, QWidget* parent = nullptr);

  protected:
    void reject() override;

  private:
    void AddControl(QFormLayout& form, const DialogControl& control);
    // Presses the first of these buttons that the form has. Closes the window if the model is then closed.
    void Press(const std::vector<std::string>& buttons);
    void ShowControls();

    DialogModel& model_;
};

}  // namespace tw

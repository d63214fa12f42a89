// The one button of a dialog that is only closed.
#pragma once

class QBoxLayout;
class QDialog;
class QPushButton;

namespace tw {

class DialogModel;

// Adds a row with a close button of that control name to column, and returns the button. It presses the
// button of the model and closes the dialog. model and name must outlive the dialog.
QPushButton* AddCloseButton(QDialog& dialog, QBoxLayout& column, DialogModel& model, const char* name);

}  // namespace tw

// Shows modal dialogs: each form by its name in a window of its own; a form without one in a plain list of
// its controls.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/DialogModel.h"
#include "platform/Ports.h"

class QDialog;
class QWidget;

namespace tw {

class QtDialogs final : public DialogPort {
  public:
    using Factory = std::function<std::unique_ptr<QDialog>(DialogModel& model, QWidget* parent)>;

    // Makes the windows of that form by factory from now on.
    void Register(std::string formName, Factory factory);
    // Returns when the window has been closed; the model is closed then, too.
    void ShowModal(DialogModel& dialog) override;
    // The window of a model, not shown yet.
    std::unique_ptr<QDialog> Make(DialogModel& dialog, QWidget* parent) const;

  private:
    std::map<std::string, Factory> factories_;
};

}  // namespace tw

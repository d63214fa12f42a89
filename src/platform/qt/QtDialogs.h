// Shows modal dialogs: each form by its name in a window of its own; a form without one in a plain list of
// its controls. Every window comes up in the size that it was left in, as far as the screen has room for it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "platform/DialogModel.h"
#include "platform/Ports.h"
#include "platform/qt/HelpKey.h"

class QDialog;
class QSize;
class QWidget;

namespace tw {

class QtDialogs final : public DialogPort {
  public:
    // sizes: keeps the windows' sizes, from one run to the next; must outlive the object.
    explicit QtDialogs(SettingsPort& sizes) : sizes_(sizes) {}

    using Factory = std::function<std::unique_ptr<QDialog>(DialogModel& model, QWidget* parent)>;

    // Makes the windows of that form by factory from now on.
    void Register(std::string formName, Factory factory);
    // Makes Windows for the Models of that form; a Window is constructed from the model, services and a
    // parent. REQUIRES: every model of that form is a Model; services outlive the windows.
    template <class Model, class Window, class... Services>
    void RegisterForm(std::string formName, Services&... services) {
        // The one place where a model is taken for what it is.
        Register(std::move(formName), [&services...](DialogModel& model, QWidget* parent) {
            return std::make_unique<Window>(dynamic_cast<Model&>(model), services..., parent);
        });
    }
    // The same for a Model with a form name of its own.
    template <class Model, class Window, class... Services>
    void Register(Services&... services) {
        RegisterForm<Model, Window>(Model::kFormName, services...);
    }
    // What F1 does in every window from now on; nothing before.
    void SetHelp(HelpOpener open) { help_ = std::move(open); }
    // Returns when the window has been closed; the model is closed then, too.
    void ShowModal(DialogModel& dialog) override;
    // The window of a model, not shown yet.
    std::unique_ptr<QDialog> Make(DialogModel& dialog, QWidget* parent) const;

  private:
    // Empty when none was kept.
    QSize KeptSize(const QDialog& window) const;
    // The size in which the window was left, or its first one, within the screen.
    void SetSize(QDialog& window) const;
    void KeepSize(const QDialog& window) const;

    SettingsPort& sizes_;
    std::map<std::string, Factory> factories_;
    HelpOpener help_;
};

}  // namespace tw

// Shows modal dialogs: each form in the window registered under its name, any other form in a generic window
// that lists its controls. A window opens in the size in which the brewer left it, if the screen has room
// for that.
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
    // sizes stores the windows' sizes between runs and must outlive the object.
    explicit QtDialogs(SettingsPort& sizes) : sizes_(sizes) {}

    using Factory = std::function<std::unique_ptr<QDialog>(DialogModel& model, QWidget* parent)>;

    // From now on, creates the windows of that form with factory.
    void Register(std::string formName, Factory factory);
    // Shows that form in a Window, constructed from the model, services and a parent. REQUIRES: every model
    // of that form is a Model; services outlive the windows.
    template <class Model, class Window, class... Services>
    void RegisterForm(std::string formName, Services&... services) {
        // The only place that casts a model to its actual type.
        Register(std::move(formName), [&services...](DialogModel& model, QWidget* parent) {
            return std::make_unique<Window>(dynamic_cast<Model&>(model), services..., parent);
        });
    }
    // RegisterForm for a Model whose form name is Model::kFormName.
    template <class Model, class Window, class... Services>
    void Register(Services&... services) {
        RegisterForm<Model, Window>(Model::kFormName, services...);
    }
    // Sets what F1 does in every window shown from now on; without it F1 does nothing.
    void SetHelp(HelpOpener open) { help_ = std::move(open); }
    // Returns once the window has been closed; the model is then closed, too.
    void ShowModal(DialogModel& dialog) override;
    // Creates the window of a model without showing it.
    std::unique_ptr<QDialog> Make(DialogModel& dialog, QWidget* parent) const;

  private:
    // Returns an empty size if none was stored.
    QSize KeptSize(const QDialog& window) const;
    // Gives the window its stored size, or else its default size, limited to the screen.
    void SetSize(QDialog& window) const;
    void KeepSize(const QDialog& window) const;

    SettingsPort& sizes_;
    std::map<std::string, Factory> factories_;
    HelpOpener help_;
};

}  // namespace tw

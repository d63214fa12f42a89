// A dialog declared as a table. A model derives from FormModel and states its rows once, in its constructor:
//
//     ResizeModel::ResizeModel(std::string current) : FormModel("frmResizeRecipe"),
//     current_(std::move(current)) {
//         AddControls({
//             {"lblCurrent", [this] { return current_; }},  // it only shows
//             TextEntry("txtNewSize", newSize_),
//             CheckBox("chkScaleBoil", scaleBoil_),
//         });
//         AddButtons({
//             {"cmdOK", [this] { Accept(); }, [this] { return !newSize_.empty(); }},
//             {"cmdCancel", [this] { Close(); }},
//         });
//     }
//
// What the console and the generic window ask of a DialogModel follows from the rows. A window of its own
// binds to the model's own functions.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"

namespace tw {

// A control of a form.
struct FormControl {
    std::string name;
    // What it shows. None: the control is left out of what the form shows, but takes its entry.
    std::function<std::string()> show = {};
    // Takes an entry. False for a text that is refused, which leaves everything as it was. None: takes no
    // entry.
    std::function<bool(std::string_view text)> take = {};
    // Whether the form has the control now. None: always.
    std::function<bool()> isThere = {};
};

// A box that takes any text.
FormControl TextEntry(std::string name, std::string& text);
// A check box: takes "yes" and "no".
FormControl CheckBox(std::string name, bool& checked);
// One of several choices of which one holds: takes "yes", which chooses it.
FormControl OptionButton(std::string name, std::function<bool()> isChosen, std::function<void()> choose);

// A button, or a control that is clicked as one.
struct FormButton {
    std::string name;
    std::function<void()> press;
    // None: always enabled.
    std::function<bool()> isEnabled = {};
};

// Buttons by their names; a form has one such list, and so may a part that several forms share.
class FormButtons {
  public:
    // REQUIRES: no button has a name twice.
    void Add(std::vector<FormButton> buttons);
    // False when there is no such button. A disabled one does nothing.
    bool Press(std::string_view name) const;
    // False also for a button that is not there.
    bool IsEnabled(std::string_view name) const;
    // For the form that the part belongs to.
    const std::vector<FormButton>& All() const { return buttons_; }

  private:
    const FormButton* Find(std::string_view name) const;

    std::vector<FormButton> buttons_;
};

class FormModel : public DialogModel {
  public:
    FormModel(const FormModel&) = delete;  // the rows refer to this object
    FormModel& operator=(const FormModel&) = delete;

    // True until the dialog has been accepted, and for good when it was closed in any other way.
    bool Cancelled() const { return !accepted_; }
    // What a control shows; empty for one that shows nothing or is not there.
    std::string Text(std::string_view control) const;

    std::string FormName() const final { return formName_; }
    std::vector<DialogControl> Controls() const final;
    bool SetControl(std::string_view name, std::string_view text) final;
    bool Press(std::string_view button) final { return buttons_.Press(button); }
    // False also for a button that the form does not have.
    bool IsEnabled(std::string_view button) const final { return buttons_.IsEnabled(button); }
    void CloseBox() override { Close(); }
    bool IsOpen() const final { return open_; }

  protected:
    explicit FormModel(std::string formName) : formName_(std::move(formName)) {}

    // The rows in the order of the form, behind those already there. REQUIRES: no control has a name twice.
    void AddControls(std::vector<FormControl> controls);
    void AddButtons(std::vector<FormButton> buttons) { buttons_.Add(std::move(buttons)); }

    // Ends the dialog.
    void Close() { open_ = false; }
    // Ends it as the brewer wanted it; Cancelled is false from now on.
    void Accept();

  private:
    // nullptr for a control that is not there.
    const FormControl* Find(std::string_view control) const;

    std::string formName_;
    std::vector<FormControl> controls_;
    FormButtons buttons_;
    bool accepted_ = false;
    bool open_ = true;
};

}  // namespace tw

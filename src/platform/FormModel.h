// A dialog declared as a table. A model derives from FormModel and lists its rows once, in its constructor:
//
//     ResizeModel::ResizeModel(std::string current) : FormModel("frmResizeRecipe"),
//     current_(std::move(current)) {
//         AddControls({
//             {"lblCurrent", [this] { return current_; }},  // display only
//             TextEntry("txtNewSize", newSize_),
//             CheckBox("chkScaleBoil", scaleBoil_),
//         });
//         AddButtons({
//             {"cmdOK", [this] { Accept(); }, [this] { return !newSize_.empty(); }},
//             {"cmdCancel", [this] { Close(); }},
//         });
//     }
//
// The rows answer everything that the console and the generic window ask of a DialogModel. A window written
// for one model binds to that model's own functions instead.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"

namespace tw {

// One control of a form.
struct FormControl {
    std::string name;
    // Returns what the control shows. Null: Controls() omits the control, but it still accepts an entry.
    std::function<std::string()> show = {};
    // Enters a text. Returns false to refuse the text, which must then leave everything unchanged. Null: the
    // control accepts no entry.
    std::function<bool(std::string_view text)> take = {};
    // True if the form has the control at present. Null: always.
    std::function<bool()> isThere = {};
};

// A text box that accepts any text. text must outlive the row.
FormControl TextEntry(std::string name, std::string& text);
// A check box; accepts "yes" and "no". checked must outlive the row.
FormControl CheckBox(std::string name, bool& checked);
// One of several choices, exactly one of which is set; accepts only "yes", which chooses it.
FormControl OptionButton(std::string name, std::function<bool()> isChosen, std::function<void()> choose);

// A button, or another control that is clicked like one.
struct FormButton {
    std::string name;
    std::function<void()> press;
    // Null: always enabled.
    std::function<bool()> isEnabled = {};
};

// Buttons by name. A form has one such list, and so may a part that several forms share.
class FormButtons {
  public:
    // REQUIRES: no two buttons have the same name.
    void Add(std::vector<FormButton> buttons);
    // Presses a button. False if there is none of that name. Pressing a disabled button does nothing.
    bool Press(std::string_view name) const;
    // False if the button is disabled or missing.
    bool IsEnabled(std::string_view name) const;
    // All buttons, for the form that contains the shared part.
    const std::vector<FormButton>& All() const { return buttons_; }

  private:
    const FormButton* Find(std::string_view name) const;

    std::vector<FormButton> buttons_;
};

class FormModel : public DialogModel {
  public:
    FormModel(const FormModel&) = delete;  // the rows refer to this object
    FormModel& operator=(const FormModel&) = delete;

    // True unless the dialog has been accepted: while it is open, and after it was closed in any other way.
    bool Cancelled() const { return !accepted_; }
    // Returns what a control shows; empty if it shows nothing or is missing.
    std::string Text(std::string_view control) const;

    std::string FormName() const final { return formName_; }
    std::vector<DialogControl> Controls() const final;
    bool SetControl(std::string_view name, std::string_view text) final;
    bool Press(std::string_view button) final { return buttons_.Press(button); }
    // False if the button is disabled, or if the form does not have it.
    bool IsEnabled(std::string_view button) const final { return buttons_.IsEnabled(button); }
    void CloseBox() override { Close(); }
    bool IsOpen() const final { return open_; }

  protected:
    explicit FormModel(std::string formName) : formName_(std::move(formName)) {}

    // Append rows, in the order of the form. REQUIRES: no two controls, and no two buttons, have the
    // same name.
    void AddControls(std::vector<FormControl> controls);
    void AddButtons(std::vector<FormButton> buttons) { buttons_.Add(std::move(buttons)); }

    // Closes the dialog.
    void Close() { open_ = false; }
    // Closes the dialog as accepted: Cancelled() is false from now on.
    void Accept();

  private:
    // Returns nullptr if the control is missing.
    const FormControl* Find(std::string_view control) const;

    std::string formName_;
    std::vector<FormControl> controls_;
    FormButtons buttons_;
    bool accepted_ = false;
    bool open_ = true;
};

}  // namespace tw

// A modal dialog apart from its window: named controls that hold texts, and named buttons. The windows bind
// to a particular model, the console drives any model by the names of its controls.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

struct DialogControl {
    std::string name;
    std::string text;  // what the control shows; "yes" or "no" for a check box
};

// A dialog that only asks, as a box would show it; its buttons are cmdYes and cmdNo.
struct PlainQuestion {
    std::string title, text;
};

class DialogModel {
  public:
    virtual ~DialogModel() = default;

    // The form's name, such as "frmStrengthDetails".
    virtual std::string FormName() const = 0;
    // The controls that show something, in the order of the form.
    virtual std::vector<DialogControl> Controls() const = 0;
    // Enters a text (or "yes"/"no" for a check box). False when the form has no such control that takes an
    // entry.
    virtual bool SetControl(std::string_view name, std::string_view text) = 0;
    // Presses a button by its control name. False when the form has no such button. The dialog may stay open.
    virtual bool Press(std::string_view button) = 0;
    // Whether a press of that button does something now. Press takes a disabled button too, and does nothing.
    virtual bool IsEnabled(std::string_view /*button*/) const { return true; }
    // The window's close box.
    virtual void CloseBox() = 0;
    // Runs once, when the window first comes to the front. A window that works by itself does its work here
    // and is closed afterwards; it takes no entry then.
    virtual void FirstShown() {}
    // For a dialog that a box could ask as well.
    virtual std::optional<PlainQuestion> AsQuestion() const { return std::nullopt; }
    // False once the dialog is done.
    virtual bool IsOpen() const = 0;
};

}  // namespace tw

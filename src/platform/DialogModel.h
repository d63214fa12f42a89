// A modal dialog without its window: named controls that hold texts, and named buttons. Each window binds to
// one kind of model; the console drives any model by the names of its controls.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

struct DialogControl {
    std::string name;
    std::string text;  // the text shown; "yes" or "no" for a check box
};

// A dialog that only asks a question, as a message box would show it; its buttons are cmdYes and cmdNo.
struct PlainQuestion {
    std::string title, text;
};

class DialogModel {
  public:
    virtual ~DialogModel() = default;

    // The name of the form, such as "frmStrengthDetails".
    virtual std::string FormName() const = 0;
    // The controls that show something, in the order in which the form has them.
    virtual std::vector<DialogControl> Controls() const = 0;
    // Enters a text ("yes" or "no" for a check box). False if the form has no control of that name that
    // accepts this text.
    virtual bool SetControl(std::string_view name, std::string_view text) = 0;
    // Presses the button of that name. False if the form has no such button. The dialog may stay open.
    virtual bool Press(std::string_view button) = 0;
    // True if pressing the button would do something now. Pressing a disabled button does nothing.
    virtual bool IsEnabled(std::string_view /*button*/) const { return true; }
    // Does what the close box of the window does.
    virtual void CloseBox() = 0;
    // Called once, when the window is first shown. A dialog that works without input does its work here and
    // is closed afterwards; it accepts no input meanwhile.
    virtual void FirstShown() {}
    // The question, for a dialog that a message box could ask as well; nullopt for any other.
    virtual std::optional<PlainQuestion> AsQuestion() const { return std::nullopt; }
    // False once the dialog has finished.
    virtual bool IsOpen() const = 0;
};

}  // namespace tw

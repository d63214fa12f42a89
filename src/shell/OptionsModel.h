// The options dialog (frmOptions), which edits most values of the section "Settings". The settings change
// only with cmdOK.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"

namespace tw {

class Database;
class SettingsInUse;

// The controls are in the order of the tabs. Lists contain the text of their choice and accept one of their
// entries. Check boxes and option buttons contain "yes" or "no". Color pictures contain a decimal number and
// accept one from 0 to 16777215; 0 (black) is stored as 1, since 0 means no color. UpDown1 accepts "up" or
// "down". An entry moves the focus to its control, so that the field that had it is checked. A disabled
// control accepts entries all the same, so that scripts can name controls in any order. cmdOK keeps the
// dialog open if it refuses the field with the focus. cmdCancel closes it. mnuResetColors resets the four
// pictures to the defaults, as if no color had been chosen. chkUndoScaling and chkKeepTypedUnits, which later
// versions added, are listed only if they are checked when the dialog opens.
class OptionsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmOptions";

    // Fills the controls from the settings, and the list of water profiles from the database. All arguments
    // must outlive the dialog.
    OptionsModel(SettingsInUse& settings, Database& database, MessagePort& messages);

    // Fills cmbWaterProfile with an empty entry and the names in the catalogue. Selects the empty entry if
    // the stored profile no longer exists.
    void PopulateWaterProfiles();

    // Returns the content of a control, in the form described above. REQUIRES: the control exists.
    const std::string& Text(std::string_view name) const { return Find(name).text; }
    // Returns the entries of a list. REQUIRES: the list exists.
    const std::vector<std::string>& Entries(std::string_view list) const { return Find(list).entries; }
    // Returns a colour of the grids as 0xBBGGRR. REQUIRES: the picture exists.
    int Color(std::string_view picture) const;
    // Returns the same colour, or nullopt if the brewer has not chosen one; the grids then use a tint of the
    // desktop's colours.
    std::optional<int> ChosenColor(std::string_view picture) const;
    // True if txtSaveInc and its two labels are enabled: while chkAutoSave is checked.
    bool SaveIncEnabled() const;
    // True if UpDown1 is enabled: txtSaveInc must be enabled and contain a number.
    bool UpDownEnabled() const;

    // The text field that has the focus; empty if none has it.
    const std::string& FocusedField() const { return focused_; }
    // Moves the focus to a text field and remembers its text.
    void EnterField(std::string_view name);
    // Checks the text field with the focus, as Enter does. If its text is refused, shows a message, restores
    // the remembered text and returns false. True if no field has the focus.
    bool CheckField();
    // Checks the field as CheckField does and, if its text is accepted, removes the focus from it.
    bool LeaveField();
    // Presses an arrow of UpDown1: adds by (1 or -1) minutes, or beeps beyond 1 and 60. Does nothing while
    // UpDown1 is disabled.
    void StepSaveInc(int by);

  private:
    enum class Kind { List, Check, Text, Option, Color };
    struct Control {
        Kind kind;
        std::string name;
        std::string text;
        std::vector<std::string> entries = {};
        bool chosen = false;  // true if the brewer chose the colour, false for the default
    };

    void FillDefaultsTab();
    void FillSettingsTab();
    void FillAppearanceTab();
    void Add(Control entry);
    void AddList(std::string_view name, std::vector<std::string> entries, int index);
    void AddCheck(std::string_view name, bool checked);
    void AddLaterCheck(std::string_view name, bool checked, bool usually = false);
    void AddText(std::string_view name, std::string_view text);

    const Control& Find(std::string_view name) const;
    Control& Find(std::string_view name);
    bool Checked(std::string_view name) const { return Text(name) == "yes"; }
    int IndexOf(std::string_view list) const;

    bool PressUpDown(std::string_view direction);
    bool TakeEntry(std::string_view name, std::string_view text);
    bool Enter(Control& control, std::string_view text);
    void ChooseOption(Control& option);
    bool AcceptsText(const Control& field);
    bool AcceptsHopExtraction(std::string_view text);
    bool AcceptsSaveInc(std::string_view text);
    bool Refuse(std::string_view text);

    void Ok();
    void ApplyDefaults();
    void ApplySettings();
    void ApplyAppearance();
    void ResetColors();

    SettingsInUse& settings_;
    Database& database_;
    MessagePort& messages_;
    std::vector<Control> options_;
    std::string focused_;
    std::string remembered_;  // the text of the focused field when it got the focus
};

}  // namespace tw

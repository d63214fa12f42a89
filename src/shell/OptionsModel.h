// The options dialog (frmOptions): edits most values of the section "Settings". Nothing reaches the settings
// before cmdOK.
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

// The controls stand in the order of the tabs. Lists show the text of their choice and take one of their
// entries; check boxes and option buttons show "yes" or "no"; the color pictures show decimal numbers and
// take one from 0 to 16777215, of which 0 (black) is kept as 1, since 0 stands for no color; UpDown1 takes
// "up" or "down". An entry moves the focus to its control, so that the field left behind is checked; a
// disabled control takes its entry all the same, so that a script can name the controls in any order. cmdOK
// stays open when the field with the focus is refused; cmdCancel; mnuResetColors sets the four pictures back
// to their defaults, as if no color had ever been chosen.
class OptionsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmOptions";

    // Fills the controls from the settings, and the list of water profiles from the database. All must
    // outlive the dialog.
    OptionsModel(SettingsInUse& settings, Database& database, MessagePort& messages);

    // Fills cmbWaterProfile: an empty entry, then the names of the catalogue. A stored profile that no longer
    // exists selects nothing.
    void PopulateWaterProfiles();

    // What a control shows, in the form of Controls. REQUIRES: the control exists.
    const std::string& Text(std::string_view name) const { return Find(name).text; }
    // The entries of a list. REQUIRES: the list exists.
    const std::vector<std::string>& Entries(std::string_view list) const { return Find(list).entries; }
    // A colour of the grids: 32 bits in blue-green-red order. REQUIRES: the picture exists.
    int Color(std::string_view picture) const;
    // The same, or nothing while the brewer has chosen none: the grids show a tint of the desktop's colours
    // then.
    std::optional<int> ChosenColor(std::string_view picture) const;
    // txtSaveInc and its two labels: on while chkAutoSave is checked.
    bool SaveIncEnabled() const;
    // UpDown1: needs a number in txtSaveInc too.
    bool UpDownEnabled() const;

    // The text field that has the focus; empty when none has it.
    const std::string& FocusedField() const { return focused_; }
    // A text field gets the focus: it remembers its text.
    void EnterField(std::string_view name);
    // Checks the text field with the focus, as Enter does. A refused text has had its box; the remembered one
    // stands there again, and the focus stays. True also when no field has the focus.
    bool CheckField();
    // The same as the focus goes elsewhere.
    bool LeaveField();
    // An arrow of UpDown1: one minute up or down, or a beep at 1 and 60. Nothing while it is off.
    void StepSaveInc(int by);

  private:
    enum class Kind { List, Check, Text, Option, Color };
    struct Control {
        Kind kind;
        std::string name;
        std::string text;
        std::vector<std::string> entries = {};
        bool chosen = false;  // a colour that is the brewer's, not the default
    };

    void FillDefaultsTab();
    void FillSettingsTab();
    void FillAppearanceTab();
    void Add(Control entry);
    void AddList(std::string_view name, std::vector<std::string> entries, int index);
    void AddCheck(std::string_view name, bool checked);
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

// The dialogs of the changes of a whole recipe: frmResizeRecipe, frmChangeOG, frmChangeIBU and
// frmChangeCO2. Each shows the present figure and accepts the new one.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "values/Reading.h"

namespace tw {

class RecipeDocument;

// The quantities to which a recipe can be scaled.
enum class Scaling { Size, Strength, Bitterness, Carbonation };

// The check boxes of the dialogs, as a window starts with them and as they are remembered.
struct ScalingChoices {
    bool scaleBoilVol = true;
    bool keepBitterness = true;
    bool keepCarbonation = true;
    bool operator==(const ScalingChoices&) const = default;
};

// The controls are the label with the present figure, the entry box, and chkScaleBV and chkPreserveIBU if the
// form has them; setting a check box first leaves the entry box. The buttons are OKButton, which keeps the
// dialog open if the entry is blank or refused, and CancelButton.
class ScalingModel final : public FormModel {
  public:
    // In the order of Scaling.
    static constexpr std::array kFormNames{"frmResizeRecipe", "frmChangeOG", "frmChangeIBU", "frmChangeCO2"};

    // current: the present figure as the recipe shows it. messages must outlive the dialog.
    ScalingModel(Scaling what, std::string current, MessagePort& messages);

    // Sets a check of the new size, called after it has been read: returns the text of a refusal, or
    // an empty one.
    void SetSizeCheck(std::function<std::string(double gallons)> refusal) { refusal_ = std::move(refusal); }

    // Sets the choices of the last time, and whether the recipe has a carbonation that a new size can keep.
    void SetRemembered(const ScalingChoices& choices, bool hasCarbonation);
    // Starts with the remembered choices; called by a window. Without that call all boxes start unchecked, as
    // for a script, and a new size asks separately whether to keep the carbonation.
    void StartWithRemembered();
    // Returns the choices to remember, once OKButton has accepted the entry; nullopt if the dialog did not
    // start with remembered ones.
    std::optional<ScalingChoices> ChoicesToRemember() const;

    Scaling What() const { return what_; }
    const std::string& Current() const { return current_; }
    // The names of the label with the present figure, such as "lblCurSize", and of the entry box.
    std::string_view LabelName() const;
    std::string_view BoxName() const { return BoxOf(what_); }
    // Returns the name of the entry box in the form of that scaling.
    static std::string_view BoxOf(Scaling what);
    // The text in the entry box.
    const std::string& Entry() const { return entry_; }
    // To be called when the entry box loses the focus. If the entry is refused, shows a message, restores the
    // last accepted text and returns false; the focus must then go back to the box. Blanks alone count as an
    // empty entry. An empty box that was left untouched, and a text accepted before, are not checked again.
    bool LeaveBox();

    // The results, once OKButton has accepted the entry.

    // In the unit of its kind: US gallons, specific gravity, IBUs or volumes of CO2.
    double NewValue() const { return value_; }
    const std::string& NewText() const { return goodText_; }
    bool ScaleBoilVol() const { return scaleBoilVol_; }
    bool PreserveIBU() const { return preserveIBU_; }
    // nullopt if that was not chosen: the brewer must be asked.
    std::optional<bool> KeepCarbonation() const { return keepCarbonation_; }

  private:
    // Returns a check box that leaves the entry box before it changes.
    FormControl Switch(std::string_view name, bool& checked);
    FormControl CarbonationSwitch();
    bool Check();
    Reading<double> Read() const;
    Reading<double> ReadSize() const;
    void Ok();

    Scaling what_;
    std::string current_;
    MessagePort& messages_;
    std::function<std::string(double)> refusal_;
    std::string entry_;
    std::string goodText_;
    double value_ = 0;
    bool scaleBoilVol_ = false;
    bool preserveIBU_ = false;
    std::optional<bool> keepCarbonation_;
    ScalingChoices remembered_;
    bool hasCarbonation_ = false;
    bool startedWithRemembered_ = false;
};

// Returns the text of the figure from which a scaling starts; nullopt if the recipe has none.
std::optional<std::string> CurrentFigure(const RecipeDocument& document, Scaling what);
// Scales the recipe as the dialog says. REQUIRES: the dialog was accepted.
void Scale(RecipeDocument& document, const ScalingModel& dialog);

}  // namespace tw

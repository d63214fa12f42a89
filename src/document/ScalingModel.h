// The dialogs of the changes that no undo takes back: frmResizeRecipe, frmChangeOG, frmChangeIBU,
// frmChangeCO2. Each shows the present figure and takes the new one.
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

// What a recipe can be scaled to.
enum class Scaling { Size, Strength, Bitterness, Carbonation };

// The label and the entry box of the form; chkScaleBV and chkPreserveIBU as far as the form has them, which
// leave the entry box first; OKButton, which stays open while the box is empty and for a bad entry;
// CancelButton.
class ScalingModel final : public FormModel {
  public:
    // In the order of Scaling.
    static constexpr std::array kFormNames{"frmResizeRecipe", "frmChangeOG", "frmChangeIBU", "frmChangeCO2"};

    // current: the present figure as the recipe shows it. messages must outlive the dialog.
    ScalingModel(Scaling what, std::string current, MessagePort& messages);

    // What a new size is asked about after it has been read: the text of a refusal, empty for none.
    void SetSizeCheck(std::function<std::string(double gallons)> refusal) { refusal_ = std::move(refusal); }

    Scaling What() const { return what_; }
    const std::string& Current() const { return current_; }
    // The names of the label with the present figure and of the entry box, such as "lblCurSize".
    std::string_view LabelName() const;
    std::string_view BoxName() const { return BoxOf(what_); }
    // The entry box of the form for that scaling.
    static std::string_view BoxOf(Scaling what);
    // What the entry box shows.
    const std::string& Entry() const { return entry_; }
    // The box loses the focus. A bad entry has had its message: the last good text stands there again, and
    // the focus goes back; false then. Blanks alone are an empty box. An empty box that was left untouched,
    // and a text that was found good before, are not looked at again.
    bool LeaveBox();

    // The results, once OKButton has accepted the entry.

    // In the canonical unit of its kind: gallons, specific gravity, IBUs, volumes.
    double NewValue() const { return value_; }
    const std::string& NewText() const { return goodText_; }
    bool ScaleBoilVol() const { return scaleBoilVol_; }
    bool PreserveIBU() const { return preserveIBU_; }

  private:
    // A check box that leaves the entry box as it takes its entry.
    FormControl Switch(std::string_view name, bool& checked);
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
};

// The figure that a scaling starts from, as text; nothing while the recipe has none.
std::optional<std::string> CurrentFigure(const RecipeDocument& document, Scaling what);
// Scales as the dialog says. REQUIRES: it was not cancelled.
void Scale(RecipeDocument& document, const ScalingModel& dialog);

}  // namespace tw

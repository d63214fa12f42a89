#include "document/ScalingModel.h"

#include "document/RecipeDocument.h"
#include "platform/Error.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

struct Form {
    std::string_view label, box;
    bool scalesBoilVol, preservesIBU;
};

// In the order of Scaling.
constexpr std::array<Form, 4> kForms{{{"lblCurSize", "txtNewSize", true, true},
                                      {"lblCurOG", "txtNewOG", false, true},
                                      {"lblCurIBU", "txtNewIBU", false, false},
                                      {"lblCurCO2", "txtNewCO2", false, false}}};

const Form& FormOf(Scaling what) {
    return kForms[static_cast<std::size_t>(what)];
}

// Returns the number if it was understood and is not negative, else the refusal. kind is its name in
// the messages.
Reading<double> NotNegative(std::optional<double> number, const std::string& kind) {
    if (!number) return Refusal{kInvalidEntry, "Please enter a valid " + kind + " value"};
    if (*number < 0) return Refusal{kInvalidEntry, "Please enter a positive " + kind + " value"};
    return *number;
}

}  // namespace

ScalingModel::ScalingModel(Scaling what, std::string current, MessagePort& messages)
    : FormModel(kFormNames[static_cast<std::size_t>(what)]),
      what_(what),
      current_(std::move(current)),
      messages_(messages) {
    const Form& form = FormOf(what);
    AddControls(
        {{std::string(form.label), [this] { return current_; }}, TextEntry(std::string(form.box), entry_)});
    if (form.scalesBoilVol) AddControls({Switch("chkScaleBV", scaleBoilVol_)});
    if (form.preservesIBU) AddControls({Switch("chkPreserveIBU", preserveIBU_)});
    if (what == Scaling::Size) AddControls({CarbonationSwitch()});
    AddButtons({{"OKButton", [this] { Ok(); }}, {"CancelButton", [this] { Close(); }}});
}

FormControl ScalingModel::Switch(std::string_view name, bool& checked) {
    FormControl box = CheckBox(std::string(name), checked);
    box.take = [this, &checked](std::string_view text) {
        if (text != "yes" && text != "no") return false;
        LeaveBox();
        checked = text == "yes";
        return true;
    };
    return box;
}

// The box is not listed, since only a window shows it.
FormControl ScalingModel::CarbonationSwitch() {
    return {"chkKeepCarbonation",
            {},
            [this](std::string_view text) {
                if (text != "yes" && text != "no") return false;
                LeaveBox();
                keepCarbonation_ = text == "yes";
                return true;
            },
            [this] { return hasCarbonation_; }};
}

void ScalingModel::SetRemembered(const ScalingChoices& choices, bool hasCarbonation) {
    remembered_ = choices;
    hasCarbonation_ = hasCarbonation;
}

void ScalingModel::StartWithRemembered() {
    const Form& form = FormOf(what_);
    scaleBoilVol_ = form.scalesBoilVol && remembered_.scaleBoilVol;
    preserveIBU_ = form.preservesIBU && remembered_.keepBitterness;
    if (what_ == Scaling::Size && hasCarbonation_) keepCarbonation_ = remembered_.keepCarbonation;
    startedWithRemembered_ = true;
}

std::optional<ScalingChoices> ScalingModel::ChoicesToRemember() const {
    if (!startedWithRemembered_) return std::nullopt;
    const Form& form = FormOf(what_);
    ScalingChoices choices = remembered_;
    if (form.scalesBoilVol) choices.scaleBoilVol = scaleBoilVol_;
    if (form.preservesIBU) choices.keepBitterness = preserveIBU_;
    choices.keepCarbonation = keepCarbonation_.value_or(choices.keepCarbonation);
    return choices;
}

std::string_view ScalingModel::LabelName() const {
    return FormOf(what_).label;
}

std::string_view ScalingModel::BoxOf(Scaling what) {
    return FormOf(what).box;
}

bool ScalingModel::LeaveBox() {
    if (IsBlank(entry_)) entry_.clear();
    return entry_ == goodText_ || Check();
}

bool ScalingModel::Check() {
    try {
        const Reading<double> value = Read();
        if (value) {
            value_ = *value;
            goodText_ = entry_;
            return true;
        }
        ShowRefusal(messages_, value.Why());
    } catch (const Error& error) {
        messages_.ShowMessage("Error", error.WithNumber());
    }
    entry_ = goodText_;
    return false;
}

Reading<double> ScalingModel::Read() const {
    switch (what_) {
        case Scaling::Size:
            return ReadSize();
        case Scaling::Strength: {
            Reading<double> gravity = ValidateGravity(entry_);
            if (gravity && *gravity < 1)
                return Refusal{kInvalidEntry, "Gravity cannot be less than 1.0 (0 deg. Plato)"};
            return gravity;
        }
        case Scaling::Bitterness:
            return NotNegative(ParseIBU(entry_), "IBU");
        case Scaling::Carbonation:
            break;
    }
    return NotNegative(ParseCO2Volumes(entry_), "carbonation");
}

Reading<double> ScalingModel::ReadSize() const {
    Reading<double> gallons = ValidateVolume(entry_);
    if (!gallons || *gallons <= 0 || !refusal_) return gallons;
    if (std::string refusal = refusal_(*gallons); !refusal.empty())
        return Refusal{kInvalidEntry, std::move(refusal)};
    return gallons;
}

void ScalingModel::Ok() {
    // Blanks alone count as an empty entry.
    if (IsBlank(entry_) || !Check()) return;
    Accept();
}

std::optional<std::string> CurrentFigure(const RecipeDocument& document, Scaling what) {
    const RecipeRecord& r = document.Record();
    if (what == Scaling::Carbonation) {
        if (!document.Scaling().CanScaleCO2()) return std::nullopt;
        return r.txtCO2.Empty() ? "0 volumes" : r.txtCO2.Text();
    }
    const TextBox& box = what == Scaling::Size       ? r.txtTotalVol
                         : what == Scaling::Strength ? r.txtOG
                                                     : r.txtIBU;
    if (box.Empty()) return std::nullopt;
    return box.Text();
}

void Scale(RecipeDocument& document, const ScalingModel& dialog) {
    switch (dialog.What()) {
        case Scaling::Size:
            document.Scaling().ScaleRecipe(dialog.NewValue(), dialog.NewText(), dialog.ScaleBoilVol(),
                                           dialog.PreserveIBU(), dialog.KeepCarbonation());
            break;
        case Scaling::Strength:
            document.Scaling().ScaleOG(dialog.NewValue(), dialog.PreserveIBU());
            break;
        case Scaling::Bitterness:
            document.Scaling().ScaleIBU(dialog.NewValue());
            break;
        case Scaling::Carbonation:
            document.Scaling().ScaleCO2(dialog.NewValue(), Asking::Aloud);
            break;
    }
}

}  // namespace tw

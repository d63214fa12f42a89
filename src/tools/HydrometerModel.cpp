#include "tools/HydrometerModel.h"

#include <algorithm>
#include <cassert>

#include "platform/Error.h"
#include "tools/FlagGuard.h"
#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kResult = "txtCalRead";

}  // namespace

double WaterDensity(double t) {
    return 1.00130346 - 0.000134722124 * t + 2.04052596e-6 * t * t - 2.32820948e-9 * t * t * t;
}

const std::vector<std::string>& HydrometerModel::CalibrationEntries() {
    static const std::vector<std::string> entries{"60.0 F (15.6 C)", "20.0 C (68.0 F)"};
    return entries;
}

const std::string& HydrometerModel::Text(std::string_view name) const {
    const auto found = std::ranges::find(controls_, name, &DialogControl::name);
    assert(found != controls_.end());
    return found->text;
}

bool HydrometerModel::TypeInto(std::string_view name, std::string_view text) {
    const auto found = std::ranges::find(controls_, name, &DialogControl::name);
    if (found == controls_.end() || name == kResult) return false;
    found->text = text;
    return true;
}

std::optional<double> HydrometerModel::Take(std::string_view name, Validator validator,
                                            std::string& refused) {
    const std::string& text = Text(name);
    try {
        const Reading<double> value = validator(text);
        if (value) return IsBlank(text) ? std::nullopt : std::optional(*value);
        ShowRefusal(messages_, value.Why());
    } catch (const Error& error) {
        messages_.ShowMessage("Error", error.WithNumber());
    }
    refused = name;
    return std::nullopt;
}

std::string HydrometerModel::UpdateCorrection() {
    std::string refused;
    if (updating_) return refused;
    const FlagGuard guard(updating_);
    const auto sample = Take("txtActTemp", ValidateTemperature, refused);
    const auto reading = sample ? Take("txtActRead", ValidateGravity, refused) : std::nullopt;
    const auto calibration = reading ? Take("cmbCalTemp", ValidateTemperature, refused) : std::nullopt;
    if (!calibration) return refused;
    try {
        const double corrected = Finite(*reading * WaterDensity(*sample) / WaterDensity(*calibration));
        controls_.back().text = FormatNumber(corrected, "0.##0") + " (" +
                                FormatNumber(Finite(SGToPlato(corrected)), "0.##0") + "° Plato)";
    } catch (const Error& error) {
        messages_.ShowMessage("Error", error.WithNumber());
    }
    return refused;
}

std::vector<DialogControl> HydrometerModel::Controls() const {
    return controls_;
}

bool HydrometerModel::SetControl(std::string_view name, std::string_view text) {
    if (!TypeInto(name, text)) return false;
    UpdateCorrection();
    return true;
}

bool HydrometerModel::Press(std::string_view button) {
    if (button != "cmdEscape") return false;
    open_ = false;
    return true;
}

}  // namespace tw

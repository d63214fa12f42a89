#include "tools/HydrometerModel.h"

#include <algorithm>
#include <cassert>

#include "platform/Error.h"
#include "platform/ScopeGuard.h"
#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kResult = "txtCalRead";

}  // namespace

double WaterDensity(double fahrenheit) {
    const double t = fahrenheit;
    return 1.00130346 - 0.000134722124 * t + 2.04052596e-6 * t * t - 2.32820948e-9 * t * t * t;
}

HydrometerModel::HydrometerModel(MessagePort& messages) : FormModel(kFormName), messages_(messages) {
    AddControls({
        Entry("txtActRead"),
        Entry("txtActTemp"),
        Entry("cmbCalTemp"),
        {std::string(kResult), [this] { return Text(kResult); }},
    });
    AddButtons({{"cmdEscape", [this] { Close(); }}});
}

FormControl HydrometerModel::Entry(const std::string& name) {
    return {name, [this, name] { return Text(name); },
            [this, name](std::string_view text) {
                TypeInto(name, text);
                UpdateCorrection();
                return true;
            }};
}

const std::vector<std::string>& HydrometerModel::CalibrationEntries() {
    static const std::vector<std::string> entries{"60.0 F (15.6 C)", "20.0 C (68.0 F)"};
    return entries;
}

const std::string& HydrometerModel::Text(std::string_view name) const {
    const auto found = std::ranges::find(texts_, name, &DialogControl::name);
    assert(found != texts_.end());
    return found->text;
}

bool HydrometerModel::TypeInto(std::string_view name, std::string_view text) {
    const auto found = std::ranges::find(texts_, name, &DialogControl::name);
    if (found == texts_.end() || name == kResult) return false;
    found->text = text;
    return true;
}

HydrometerModel::Taken HydrometerModel::Take(std::string_view name, Validator validator) {
    const std::string& text = Text(name);
    try {
        const Reading<double> value = validator(text);
        if (value) return {IsBlank(text) ? std::nullopt : std::optional(*value), {}};
        ShowRefusal(messages_, value.Why());
    } catch (const Error& error) {
        messages_.ShowMessage("Error", error.WithNumber());
    }
    return {std::nullopt, std::string(name)};
}

std::string HydrometerModel::UpdateCorrection() {
    if (updating_) return {};
    const ScopedValue updating(updating_, true);
    const Taken sample = Take("txtActTemp", ValidateTemperature);
    if (!sample.number) return sample.refused;
    const Taken reading = Take("txtActRead", ValidateGravity);
    if (!reading.number) return reading.refused;
    const Taken calibration = Take("cmbCalTemp", ValidateTemperature);
    if (!calibration.number) return calibration.refused;
    try {
        const double corrected =
            Finite(*reading.number * WaterDensity(*sample.number) / WaterDensity(*calibration.number));
        texts_.back().text = FormatNumber(corrected, "0.##0") + " (" +
                             FormatNumber(Finite(SGToPlato(corrected)), "0.##0") + "° Plato)";
    } catch (const Error& error) {
        messages_.ShowMessage("Error", error.WithNumber());
    }
    return {};
}

}  // namespace tw

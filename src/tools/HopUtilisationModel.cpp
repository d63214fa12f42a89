#include "tools/HopUtilisationModel.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/Error.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr double kHeaviest = 1.25;

// Returns the number that the whole of text is; nothing for any other text.
std::optional<double> NumberOf(std::string_view text) {
    try {
        return ReadNumber(text);
    } catch (const Error&) {
        return std::nullopt;  // digits beyond a double are no gravity either
    }
}

}  // namespace

HopUtilisationModel::HopUtilisationModel(const std::optional<std::string>& boilGravity)
    : FormModel(kFormName) {
    AddControls({
        {"Slider1", [this] { return std::to_string(position_); },
         [this](std::string_view text) { return EnterPosition(text); }},
        {"lblGraph", [this] { return GraphText(); }},
    });
    AddButtons({{"cmdClose", [this] { Close(); }}});
    const std::optional<double> gravity = boilGravity ? NumberOf(*boilGravity) : std::nullopt;
    // A stronger boil than the slider can show leaves it where it is.
    if (!gravity || *gravity > kHeaviest) return;
    MoveSlider(kSliderEnd - static_cast<int>(std::lround(std::max(*gravity - 1, 0.0) * 1000)));
}

void HopUtilisationModel::MoveSlider(int position) {
    position_ = std::clamp(position, 0, kSliderEnd);
}

double HopUtilisationModel::Gravity() const {
    return 1 + (kSliderEnd - position_) / 1000.0;
}

std::string HopUtilisationModel::GraphText() const {
    return "Hop Utilization for SG = " + FormatNumber(Gravity(), "0.000");
}

void HopUtilisationModel::MoveTo(int minutes) {
    minutes_ = std::clamp(minutes, 0, kGraphMinutes);
}

bool HopUtilisationModel::EnterPosition(std::string_view text) {
    int position = 0;
    const char* const textEnd = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), textEnd, position);
    if (error != std::errc() || end != textEnd || position < 0 || position > kSliderEnd) return false;
    MoveSlider(position);
    return true;
}

}  // namespace tw

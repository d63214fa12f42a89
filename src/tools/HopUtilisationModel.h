// The hop utilisation explorer (frmHopUtil): the utilisation of the three bitterness methods against boil
// time, for the gravity of a slider.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "tools/UtilisationGraph.h"

namespace tw {

// Positions of Slider1, of which the first stands for a specific gravity of 1.250, the last for 1.000.
inline constexpr int kSliderEnd = 250;

// Slider1 takes its position, a whole number from 0 to kSliderEnd; lblGraph; cmdClose.
class HopUtilisationModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmHopUtil";

    // boilGravity: the text of the active document's boil gravity, nothing without a document. A number from
    // 1 to 1.25 sets the slider, one below 1 sets it to 1.000; anything else leaves it at 1.100.
    explicit HopUtilisationModel(const std::optional<std::string>& boilGravity);

    int Position() const { return position_; }
    // Clamped to the slider's ends.
    void MoveSlider(int position);
    // The specific gravity that the slider stands for: 1 + (250 - position) / 1000.
    double Gravity() const;
    // lblGraph: "Hop Utilization for SG = 1.100".
    std::string GraphText() const;
    std::array<Curve, kMethods> Curves() const { return UtilisationCurves(Gravity()); }

    // The boil time that the window reads figures at, whole minutes; 60 at first.
    int Minutes() const { return minutes_; }
    // Clamped to the graph's ends.
    void MoveTo(int minutes);
    // The utilisation at that time, in percent.
    UtilisationFigures Figures() const { return UtilisationAt(Gravity(), minutes_); }

  private:
    bool EnterPosition(std::string_view text);

    int position_ = 150;
    int minutes_ = 60;
};

}  // namespace tw

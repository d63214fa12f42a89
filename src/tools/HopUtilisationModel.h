// The hop utilisation explorer (frmHopUtil): the utilisation by the three bitterness methods against boil
// time, at the gravity of a slider.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "tools/UtilisationGraph.h"

namespace tw {

// The last position of Slider1, for a specific gravity of 1.000. The first, 0, is for 1.250.
inline constexpr int kSliderEnd = 250;

// Controls: Slider1 accepts its position, a whole number from 0 to kSliderEnd; lblGraph; cmdClose.
class HopUtilisationModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmHopUtil";

    // boilGravity is the text of the active document's boil gravity, nothing without a document. A number
    // from 1 to 1.25 sets the slider, one below 1 sets it to 1.000; anything else leaves it at 1.100.
    explicit HopUtilisationModel(const std::optional<std::string>& boilGravity);

    int Position() const { return position_; }
    // Moves the slider to position, clamped to 0 and kSliderEnd.
    void MoveSlider(int position);
    // Returns the specific gravity at the slider: 1 + (250 - position) / 1000.
    double Gravity() const;
    // Returns the text of lblGraph: "Hop Utilization for SG = 1.100".
    std::string GraphText() const;
    std::array<Curve, kMethods> Curves() const { return UtilisationCurves(Gravity()); }

    // Returns the boil time at which the graph is read, in whole minutes; 60 at first.
    int Minutes() const { return minutes_; }
    // Changes that time, clamped to 0 and kGraphMinutes.
    void MoveTo(int minutes);
    // Returns the utilisations at that time, in percent.
    UtilisationFigures Figures() const { return UtilisationAt(Gravity(), minutes_); }

  private:
    bool EnterPosition(std::string_view text);

    int position_ = 150;
    int minutes_ = 60;
};

}  // namespace tw

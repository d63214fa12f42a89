// The three windows with the details of a recipe: frmStrengthDetails, frmFinalVolDetails and
// frmHopDetails. They are display only. A figure that cannot be calculated, for example because of a
// division by zero, is blank.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/RecipeDocument.h"
#include "platform/FormModel.h"

namespace tw {

// A modal dialog with labels and one button, cmdClose.
class DetailsModel final : public FormModel {
  public:
    static constexpr const char* kStrengthForm = "frmStrengthDetails";
    static constexpr const char* kFinalVolForm = "frmFinalVolDetails";
    static constexpr const char* kHopForm = "frmHopDetails";

    // slider: the position of sliderBalance, 0 to 1000; 0 for a window without one.
    DetailsModel(std::string formName, std::vector<DialogControl> labels, int slider = 0);

    int SliderBalance() const { return slider_; }

  private:
    int slider_;
};

// Extracts, attenuations, alcohol, calories and freezing point, by the formulas in calc/Figures.h.
// Attenuation is by definition the share of the original extract that has fermented, calculated from the
// apparent or from the real extract.
DetailsModel StrengthDetails(double originalSG, double finalSG);

struct FinalVolInput {
    double totalVol, dilutions, finalVol;  // US gallons
    double og, fg;                         // specific gravities
};
// How much of the wort is left when the package is filled, and what diluting it with water makes of the beer.
// By the program's own model, gravity points, alcohol and calories are proportional to the share of wort in
// the package.
DetailsModel FinalVolDetails(const FinalVolInput& input);

// The ratio of bitterness units to gravity units (BU:GU; Ray Daniels, Designing Great Beers, 1996), where the
// gravity units are (originalSG - 1) * 1000.
DetailsModel HopDetails(double originalSG, double ibu);
// Returns the position of the balance slider, 0 to 1000, for a BU:GU ratio: a power law of the program's own
// for ratios above 1/8. Up to 1/8 the position is 0, and from about 1.196 on it is 1000.
int BalancePosition(double ratio);

// Return the windows for the present figures of a document.
DetailsModel StrengthDetailsOf(const RecipeDocument& document);
DetailsModel FinalVolDetailsOf(const RecipeDocument& document);
DetailsModel HopDetailsOf(const RecipeDocument& document);

}  // namespace tw

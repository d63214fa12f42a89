// The three detail windows of a recipe as figures alone: frmStrengthDetails, frmFinalVolDetails,
// frmHopDetails. They only show; a figure that would divide by zero stays blank.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/RecipeDocument.h"
#include "platform/FormModel.h"

namespace tw {

// A modal window of labels with one button, cmdClose.
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

// Extracts, attenuations, alcohol, calories and freezing point; the formulas stand in calc/Figures.h.
// Attenuation is by its definition the share of the original extract that has gone, by apparent or by real
// extract.
DetailsModel StrengthDetails(double originalSG, double finalSG);

struct FinalVolInput {
    double totalVol, dilutions, finalVol;  // US gallons
    double og, fg;                         // specific gravities
};
// What is left of the wort when the package is filled and what its dilution with water makes of the beer:
// gravity, alcohol and calories go by the share of the wort in the package, the program's own reckoning.
DetailsModel FinalVolDetails(const FinalVolInput& input);

// The ratio of bitterness units to gravity units (BU:GU; Ray Daniels, Designing Great Beers, 1996), with the
// gravity units (originalSG - 1) * 1000.
DetailsModel HopDetails(double originalSG, double ibu);
// Position of the balance slider, 0 to 1000, for a ratio of bitterness to gravity units: a power law of the
// program's own, above a ratio of 1/8. Below that the position is 0, and from 1.196 on it is 1000.
int BalancePosition(double ratio);

// The windows of one document, with its present figures.
DetailsModel StrengthDetailsOf(const RecipeDocument& document);
DetailsModel FinalVolDetailsOf(const RecipeDocument& document);
DetailsModel HopDetailsOf(const RecipeDocument& document);

}  // namespace tw

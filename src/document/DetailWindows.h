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
    // slider: the position of sliderBalance, 0 to 1000; 0 for a window without one.
    DetailsModel(std::string formName, std::vector<DialogControl> labels, int slider = 0);

    int SliderBalance() const { return slider_; }

  private:
    int slider_;
};

// og, fg: specific gravities.
DetailsModel StrengthDetails(double og, double fg);

struct FinalVolInput {
    double totalVol, dilutions, finalVol;  // gallons
    double og, fg;                         // specific gravities
};
DetailsModel FinalVolDetails(const FinalVolInput& input);

// og: specific gravity; ibu: bitterness.
DetailsModel HopDetails(double og, double ibu);
// Position of the balance slider for a ratio of bitterness to gravity units, 0 to 1000.
int BalancePosition(double ratio);

// The windows of one document, with its present figures.
DetailsModel StrengthDetailsOf(const RecipeDocument& document);
DetailsModel FinalVolDetailsOf(const RecipeDocument& document);
DetailsModel HopDetailsOf(const RecipeDocument& document);

}  // namespace tw

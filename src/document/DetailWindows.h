// The three detail windows of a recipe as figures alone: frmStrengthDetails, frmFinalVolDetails,
// frmHopDetails. They only show; a figure that would divide by zero stays blank.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/RecipeDocument.h"
#include "platform/DialogModel.h"

namespace tw {

// A modal window of labels with one button, cmdClose.
class DetailsModel : public DialogModel {
  public:
    DetailsModel(std::string formName, std::vector<DialogControl> labels)
        : formName_(std::move(formName)), labels_(std::move(labels)) {}

    std::string FormName() const override { return formName_; }
    std::vector<DialogControl> Controls() const override { return labels_; }
    bool SetControl(std::string_view, std::string_view) override { return false; }
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }
    // The text of a label, empty for an unknown one.
    std::string Text(std::string_view label) const;
    // Position of sliderBalance, 0 to 1000; 0 in the other windows.
    int SliderBalance() const { return slider_; }
    void SetSliderBalance(int position) { slider_ = position; }

  private:
    std::string formName_;
    std::vector<DialogControl> labels_;
    int slider_ = 0;
    bool open_ = true;
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

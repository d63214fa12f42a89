// The recipe record: every text box, list, option group and grid of one open recipe, by control name. The
// figures are in the text boxes (text, last committed text, number) and in the cells. An empty text in a
// computed box means that the figure cannot be calculated yet; its number then keeps its last value.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Ions.h"
#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

// The hop forms. A row stores its form as an index into this table. factor multiplies the bitterness of whole
// leaf hops.
struct HopForm {
    std::string_view name;
    double factor;
};
inline constexpr std::array<HopForm, 3> kHopForms{{{"Pellet", 1.15}, {"Plug", 1.1}, {"Leaf", 1.0}}};

// The columns of the grids.
namespace GrainCol {
enum : int { Name, Amount, Ppg, Points, Color, Hcu };
}
namespace HopCol {
enum : int { Variety, AlphaAcid, Form, Sock, Amount, DryHopped, Time, Ibu };
}
namespace PrimingCol {
enum : int { Sugar, Fermentable, Amount, Volumes };
}
namespace PressureCol {
enum : int { Pressure, Volumes };
}
namespace TreatmentCol {
enum : int { Name, Amount, FirstIon };
}
namespace AdjunctCol {
enum : int { Name, Amount, WhenAdded, Time };
}
namespace LogCol {
enum : int { Date, Action, Notes };
}
namespace WaterCol {
enum : int { Label, Profile, FirstIon };
}
namespace WaterRow {
enum : int { Source = 1, Target, Spacer, Needed, Totals };
}

class RecipeRecord {
  public:
    RecipeRecord();
    RecipeRecord(const RecipeRecord&) = delete;
    RecipeRecord& operator=(const RecipeRecord&) = delete;

    // Sets the only observer of the record; nullptr for none. The observer must outlive the record or
    // be replaced.
    void SetObserver(RecordObserver* observer) { link_.observer = observer; }

    // Constant time.
    TextBox& operator[](FieldId id) { return *textBoxes_[static_cast<std::size_t>(id)]; }
    Grid& operator[](GridId id) { return *grids_[static_cast<std::size_t>(id)]; }
    const Grid& operator[](GridId id) const { return *grids_[static_cast<std::size_t>(id)]; }
    // Find a control by its name; nullptr if no control of that kind has this name.
    TextBox* FindTextBox(std::string_view name);
    Grid* FindGrid(std::string_view name);
    Button* FindButton(std::string_view name);
    Label* FindLabel(std::string_view name);
    // Finds the group with that name, or the group with an option of that name; nullptr if there is none.
    OptionGroup* FindOptionGroup(std::string_view name);

    const std::vector<TextBox*>& TextBoxes() const { return textBoxes_; }
    const std::vector<Grid*>& Grids() const { return grids_; }
    const std::vector<Label*>& Labels() const { return labels_; }
    const std::vector<Button*>& Buttons() const { return buttons_; }

    bool Bottled() const { return grpPkgMethod.Selected() == 0; }
    Rgb Swatch() const { return swatch_; }
    void SetSwatch(Rgb color);

  private:
    RecordLink link_;  // declared before the controls, which point to it
    Rgb swatch_;

  public:
    TextBox txtName, txtNumBatches, txtBoilVol, txtTotalVol, txtOG, txtFG, txtABV, txtColor, txtIBU, txtCO2;
    TextBox txtExtract, txtHopExtraction, txtBG, txtTemp, txtDilutions, txtFinalVol, txtNotes;
    ListBox cmbStyle;
    Label lblOGStyle, lblFGStyle, lblABVStyle, lblColorStyle, lblIBUStyle, lblCO2Style;
    OptionGroup grpIBUMethod;  // optTinseth, optRager, optGaretz
    OptionGroup grpPkgMethod;  // optBottle, optKeg
    Button cmdStrengthDetails, cmdFinalVolDetails, cmdIBUDetails, cmdCalcTreatment;
    Grid gridGrain, gridExtract, gridHops, gridWater, gridTreatment, gridPriming, gridPressure, gridAdjuncts,
        gridLog;

  private:
    std::vector<TextBox*> textBoxes_;
    std::vector<Grid*> grids_;
    std::vector<Label*> labels_;
    std::vector<Button*> buttons_;
};

}  // namespace tw

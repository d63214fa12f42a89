// The recipe record: every text box, list, option group and grid of one open recipe under its control name.
// Figures live in the text boxes (text, last committed text, number) and in the cells. An empty computed text
// means that the figure cannot be computed yet; its number then keeps its last value.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Ions.h"
#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

// The constant table of hop forms; a row's form is an index into it.
struct HopForm {
    std::string_view name;
    double factor;
};
inline constexpr std::array<HopForm, 3> kHopForms{{{"Pellet", 1.15}, {"Plug", 1.1}, {"Leaf", 1.0}}};

// Columns of the grids by meaning.
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

    // The one observer of the record, or nullptr.
    void SetObserver(RecordObserver* observer) { link_.observer = observer; }

    // Both in constant time.
    TextBox& operator[](FieldId id) { return *textBoxes_[static_cast<std::size_t>(id)]; }
    Grid& operator[](GridId id) { return *grids_[static_cast<std::size_t>(id)]; }
    // Look-up by control name; nullptr for a name that is not of that kind.
    TextBox* FindTextBox(std::string_view name);
    Grid* FindGrid(std::string_view name);
    Button* FindButton(std::string_view name);
    Label* FindLabel(std::string_view name);
    // The group that holds the option of that name, or that has that name itself.
    OptionGroup* FindOptionGroup(std::string_view name);

    const std::vector<TextBox*>& TextBoxes() const { return textBoxes_; }
    const std::vector<Grid*>& Grids() const { return grids_; }
    const std::vector<Label*>& Labels() const { return labels_; }
    const std::vector<Button*>& Buttons() const { return buttons_; }

    bool Bottled() const { return grpPkgMethod.Selected() == 0; }
    Rgb Swatch() const { return swatch_; }
    void SetSwatch(Rgb color);

  private:
    RecordLink link_;  // before the controls, which refer to it
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

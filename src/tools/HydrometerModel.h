// The hydrometer correction (frmHydrometer): the gravity of a sample whose temperature is not that for which
// the hydrometer is calibrated.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "values/QuantityParsers.h"

namespace tw {

// Returns the correction factor of a temperature, which has no unit. A reading times the factor of the
// sample's temperature, divided by that of the calibration, is the gravity. A cubic fit of the program's own,
// valid from 0 to 212 degrees F; 1.000063 at 60. Nothing is limited outside.
double WaterDensity(double fahrenheit);

// Controls: txtActRead, txtActTemp and cmbCalTemp accept any text, after which the correction runs;
// txtCalRead shows the result.
class HydrometerModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmHydrometer";

    // messages must outlive the dialog.
    explicit HydrometerModel(MessagePort& messages);

    // Returns the entries of cmbCalTemp, which accepts any other text too.
    static const std::vector<std::string>& CalibrationEntries();

    // Returns the text of txtActRead, txtActTemp, cmbCalTemp or txtCalRead. REQUIRES: the control exists.
    const std::string& Text(std::string_view name) const;
    // Changes the text of an entry, for a key; the correction does not run. Returns false for any other
    // control.
    bool TypeInto(std::string_view name, std::string_view text);

    // Runs when an entry loses the focus and when the list's choice changes. Checks the temperature, then the
    // reading, then the calibration, and shows the result if all three are there; otherwise the old one
    // stays. Returns the name of the entry whose text a message box has refused and which gets the focus
    // back; empty if there is none. An arithmetic error has a message box of its own. A call from within this
    // function does nothing.
    std::string UpdateCorrection();

  private:
    FormControl Entry(const std::string& name);
    // The number of an entry, in the unit of its validator; nothing if the correction ends here because the
    // text is blank or refused.
    struct Taken {
        std::optional<double> number;
        std::string refused;  // the entry's name if a box has refused its text
    };
    Taken Take(std::string_view name, Validator validator);

    MessagePort& messages_;
    // The texts by the names of their controls, in the order of the form.
    std::vector<DialogControl> texts_{{"txtActRead", ""},
                                      {"txtActTemp", ""},
                                      {"cmbCalTemp", CalibrationEntries().front()},
                                      {"txtCalRead", ""}};
    bool updating_ = false;
};

}  // namespace tw

// The hydrometer correction (frmHydrometer): the gravity behind a reading that was taken at another
// temperature than the hydrometer was calibrated for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "values/QuantityParsers.h"

namespace tw {

// The factor by which a hydrometer's reading is corrected at a temperature, relative to the factor of the one
// that it is calibrated for: a cubic fit of the program's own, without a unit, for 0 to 212 degrees
// F; 1.000063 at 60. Nothing is limited outside.
double WaterDensity(double fahrenheit);

// txtActRead, txtActTemp and cmbCalTemp take any text and are left then; txtCalRead shows the result.
class HydrometerModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmHydrometer";

    // messages must outlive the dialog.
    explicit HydrometerModel(MessagePort& messages);

    // The entries of cmbCalTemp, which takes any other text too.
    static const std::vector<std::string>& CalibrationEntries();

    // What txtActRead, txtActTemp, cmbCalTemp or txtCalRead shows. REQUIRES: the control exists.
    const std::string& Text(std::string_view name) const;
    // A key changes an entry's text; nothing is worked out before it is left. False for another control.
    bool TypeInto(std::string_view name, std::string_view text);

    // Runs as an entry is left, and as the list changes its choice. Checks the temperature, then the reading,
    // then the calibration, and shows the result when all three are there; otherwise the old one stays. Gives
    // the control that takes the focus back, whose text was refused in a box; empty for none. An arithmetic
    // error has a box of its own. Nothing happens while the operation itself is running.
    std::string UpdateCorrection();

  private:
    FormControl Entry(const std::string& name);
    // The number of an entry, in its validator's unit; nothing when the correction stops here: the text is
    // blank, or refused.
    struct Taken {
        std::optional<double> number;
        std::string refused;  // the entry's name if a box has refused its text
    };
    Taken Take(std::string_view name, Validator validator);

    MessagePort& messages_;
    // Each under its control's name, in the order of the form.
    std::vector<DialogControl> texts_{{"txtActRead", ""},
                                      {"txtActTemp", ""},
                                      {"cmbCalTemp", CalibrationEntries().front()},
                                      {"txtCalRead", ""}};
    bool updating_ = false;
};

}  // namespace tw

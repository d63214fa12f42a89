#include "catalogue/CellReader.h"

#include <string>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

bool ReadGravity(std::string_view text, double& gravity) {
    if (ParseSG(text, gravity)) return true;
    double plato = 0;
    if (!ParsePlato(text, plato)) return false;
    gravity = Finite(PlatoToSG(plato));
    return true;
}

bool Parse(CellCheck check, std::string_view text, double& value) {
    switch (check) {
        case CellCheck::Gravity:
            return ReadGravity(text, value);
        case CellCheck::Share:
            return ParsePercent(text, value);
        case CellCheck::Bitterness:
            return ParseIBU(text, value);
        case CellCheck::Carbonation:
            return ParseCO2Volumes(text, value);
        default:
            return ParseReal(Trim(text), value);
    }
}

bool Check(const RangeRow& row, std::string_view text, double& value, MessagePort& messages) {
    if (row.check == CellCheck::Percent) return ValidatePercent(text, value, &messages);
    if (row.check == CellCheck::Temperature) return ValidateTemperature(text, value, &messages);
    const auto refuse = [&](std::string_view what) {
        messages.ShowMessage(kInvalidEntry,
                             "Please enter a " + std::string(what) + " " + std::string(row.word));
        return false;
    };
    double number = 0;
    if (!Parse(row.check, text, number)) return refuse("valid");
    // As everywhere, a gravity of zero is refused, and no other zero.
    if (number < 0 || (number == 0 && row.check == CellCheck::Gravity)) return refuse("positive");
    value = number;
    return true;
}

}  // namespace

bool ReadCell(const RangeRow& row, std::string_view text, double& value, MessagePort& messages) {
    try {
        return Check(row, text, value, messages);
    } catch (const Error& error) {
        messages.ShowMessage("Error", error.WithNumber());
        return false;
    }
}

}  // namespace tw

#include "catalogue/CellReader.h"

#include <string>

#include "platform/Error.h"
#include "values/Converter.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

std::optional<double> ReadGravity(std::string_view text) {
    if (const auto gravity = ParseSG(text)) return gravity;
    const std::optional<double> plato = ParsePlato(text);
    if (!plato) return std::nullopt;
    return Finite(PlatoToSG(*plato));
}

std::optional<double> Parse(CellCheck check, std::string_view text) {
    switch (check) {
        case CellCheck::Gravity:
            return ReadGravity(text);
        case CellCheck::Share:
            return ParsePercent(text);
        case CellCheck::Bitterness:
            return ParseIBU(text);
        case CellCheck::Carbonation:
            return ParseCO2Volumes(text);
        default:
            return ParseReal(Trim(text));
    }
}

}  // namespace

Reading<double> ReadCell(const RangeRow& row, std::string_view text) {
    if (row.check == CellCheck::Percent) return ValidatePercent(text);
    if (row.check == CellCheck::Temperature) return ValidateTemperature(text);
    const auto refused = [&](std::string_view what) {
        return Refusal{kInvalidEntry, "Please enter a " + std::string(what) + " " + std::string(row.word)};
    };
    const std::optional<double> number = Parse(row.check, text);
    if (!number) return refused("valid");
    // Zero is refused for a gravity only, as everywhere in the program.
    if (*number < 0 || (*number == 0 && row.check == CellCheck::Gravity)) return refused("positive");
    return *number;
}

}  // namespace tw

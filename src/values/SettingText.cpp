#include "values/SettingText.h"

#include <cmath>

#include "platform/Error.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {

std::optional<double> ReadReal(std::string_view text) {
    try {
        return ReadNumber(Trim(text));
    } catch (const Error&) {
        // More digits than a number can hold.
        return std::nullopt;
    }
}

std::optional<bool> ReadFlag(std::string_view text) {
    if (SameName(text, "True")) return true;
    if (SameName(text, "False")) return false;
    const std::optional<double> number = ReadReal(text);
    if (!number) return std::nullopt;
    return *number != 0;
}

std::optional<int> ReadWhole(std::string_view text, int least, int most) {
    const std::optional<double> number = ReadReal(text);
    if (!number) return std::nullopt;
    const double whole = std::round(*number);
    if (whole < least || whole > most) return std::nullopt;
    return static_cast<int>(whole);
}

}  // namespace tw

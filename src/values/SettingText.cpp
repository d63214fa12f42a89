#include "values/SettingText.h"

#include <cmath>

#include "platform/Error.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {

bool ReadReal(std::string_view text, double& value) {
    try {
        return ReadNumber(Trim(text), value);
    } catch (const Error&) {
        // More digits than a number can hold.
        return false;
    }
}

bool ReadFlag(std::string_view text, bool& value) {
    double number = 0;
    if (SameName(text, "True"))
        value = true;
    else if (SameName(text, "False"))
        value = false;
    else if (ReadReal(text, number))
        value = number != 0;
    else
        return false;
    return true;
}

bool ReadWhole(std::string_view text, int least, int most, int& value) {
    double number = 0;
    if (!ReadReal(text, number)) return false;
    number = std::round(number);
    if (number < least || number > most) return false;
    value = static_cast<int>(number);
    return true;
}

}  // namespace tw

// The text forms in which settings are stored.
#pragma once

#include <string_view>

namespace tw {

// "True" or "False" in any case, or a number, of which 0 is false. False for another text; value is untouched
// then.
bool ReadFlag(std::string_view text, bool& value);
// A number from least to most, rounded to a whole one. False for another text; value is untouched then.
bool ReadWhole(std::string_view text, int least, int most, int& value);
// A number. False for another text; value is untouched then.
bool ReadReal(std::string_view text, double& value);

}  // namespace tw

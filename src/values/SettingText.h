// The text forms in which settings are stored.
#pragma once

#include <optional>
#include <string_view>

namespace tw {

// Each gives nothing for another text.

// "True" or "False" in any case, or a number, of which 0 is false.
std::optional<bool> ReadFlag(std::string_view text);
// A number from least to most, rounded to a whole one.
std::optional<int> ReadWhole(std::string_view text, int least, int most);
// A number in any unit: the setting says which.
std::optional<double> ReadReal(std::string_view text);

// Puts what was read into field. False, and field is untouched, when nothing was.
template <class T>
bool TakeInto(T& field, const std::optional<T>& read) {
    if (read) field = *read;
    return read.has_value();
}

}  // namespace tw

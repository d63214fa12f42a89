// The text forms in which settings are stored.
#pragma once

#include <optional>
#include <string_view>

namespace tw {

// Each returns nothing for any other text.

// Reads "True" or "False", case-insensitive, or a number, of which only 0 is false.
std::optional<bool> ReadFlag(std::string_view text);
// Reads a number and rounds it to a whole one, which must be from least to most.
std::optional<int> ReadWhole(std::string_view text, int least, int most);
// Reads a number in any unit; the setting says which.
std::optional<double> ReadReal(std::string_view text);

// Assigns the value read to field. Returns false, with field unchanged, if nothing was read.
template <class T>
bool TakeInto(T& field, const std::optional<T>& read) {
    if (read) field = *read;
    return read.has_value();
}

}  // namespace tw

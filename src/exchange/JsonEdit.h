// Changes of members of JSON objects.
#pragma once

#include <string_view>

#include "values/Json.h"

namespace tw {

// Each REQUIRES that object is an object.

// Returns the first member of that name; nullptr if there is none.
Json* MemberOf(Json& object, std::string_view key);
// Replaces the member, or appends it if there is none.
void SetMember(Json& object, std::string_view key, Json value);
void RemoveMember(Json& object, std::string_view key);

// Returns a number of any unit, rounded to ten significant digits; an integer where it is whole. 0 for what
// is not finite.
Json JsonNumber(double value);
// Returns {"unit": unit, "value": value}.
Json JsonQuantity(double value, std::string_view unit);
// Returns minutes in whole days, whole minutes or else in seconds: times are integers.
Json JsonTime(double minutes);

}  // namespace tw

#include "exchange/JsonEdit.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "exchange/ExchangeText.h"

namespace tw {

Json* MemberOf(Json& object, std::string_view key) {
    const auto found = std::ranges::find(*object.AsObject(), key, &JsonMember::name);
    return found == object.AsObject()->end() ? nullptr : &found->value;
}

void SetMember(Json& object, std::string_view key, Json value) {
    if (Json* const member = MemberOf(object, key))
        *member = std::move(value);
    else
        object.Add(key, std::move(value));
}

void RemoveMember(Json& object, std::string_view key) {
    std::erase_if(*object.AsObject(), [&](const JsonMember& member) { return member.name == key; });
}

Json JsonNumber(double value) {
    constexpr double kMostWhole = 1e15;  // all integers below it are exact
    const double rounded = std::stod(PlainNumber(value));
    if (rounded == std::floor(rounded) && std::abs(rounded) < kMostWhole)
        return Json(static_cast<std::int64_t>(rounded));
    return Json(rounded);
}

Json JsonQuantity(double value, std::string_view unit) {
    Json quantity(Json::Object{});
    quantity.Add("unit", Json(unit));
    quantity.Add("value", JsonNumber(value));
    return quantity;
}

Json JsonTime(double minutes) {
    constexpr double kMinutesPerDay = 24 * 60;
    constexpr double kSecondsPerMinute = 60;
    const auto isWhole = [](double value) { return value == std::floor(value); };
    if (minutes >= kMinutesPerDay && isWhole(minutes / kMinutesPerDay))
        return JsonQuantity(minutes / kMinutesPerDay, "day");
    if (isWhole(minutes)) return JsonQuantity(minutes, "min");
    return JsonQuantity(std::round(minutes * kSecondsPerMinute), "sec");
}

}  // namespace tw

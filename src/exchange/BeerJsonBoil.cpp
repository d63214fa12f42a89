#include "exchange/BeerJsonBoil.h"

#include <optional>
#include <string>
#include <string_view>

#include "exchange/AsciiCase.h"
#include "exchange/ForeignFigure.h"
#include "exchange/JsonEdit.h"

namespace tw {
namespace {

// What a reader can tell the steps by. Nobody has measured these temperatures: wort from the mash is heated
// to the boil, and hops stand in wort that no longer boils.
constexpr double kFirstWortCelsius = 65;
constexpr double kBoilingCelsius = 100;
constexpr double kStandCelsius = 90;
constexpr double kStandEndCelsius = 80;
constexpr double kLeastBoilingCelsius = 95;

Json Step(std::string_view name, double fromCelsius, double toCelsius) {
    Json step(Json::Object{});
    step.Add("name", Json(name));
    step.Add("start_temperature", JsonQuantity(fromCelsius, "C"));
    step.Add("end_temperature", JsonQuantity(toCelsius, "C"));
    return step;
}

std::optional<double> CelsiusOf(const Json& step, std::string_view key) {
    const Json* const quantity = step.Find(key);
    const Json* const number = quantity == nullptr ? nullptr : quantity->Find("value");
    const Json* const unit = quantity == nullptr ? nullptr : quantity->Find("unit");
    if (number == nullptr || !number->AsNumber()) return std::nullopt;
    const bool isFahrenheit = unit != nullptr && unit->AsText() != nullptr && *unit->AsText() == "F";
    constexpr double kFreezing = 32;
    return isFahrenheit ? (*number->AsNumber() - kFreezing) * 5 / 9 : *number->AsNumber();
}

bool NameHas(const Json& step, std::string_view word) {
    const Json* const name = step.Find("name");
    return name != nullptr && name->AsText() != nullptr &&
           UpperAscii(*name->AsText()).find(word) != std::string::npos;
}

// The same as the reading of a file takes for such steps.
bool Heats(const Json& step) {
    const auto from = CelsiusOf(step, "start_temperature");
    const auto to = CelsiusOf(step, "end_temperature");
    if (from && to) return *to > *from;
    return NameHas(step, "FIRST WORT") || NameHas(step, "HEAT") || NameHas(step, "RAMP");
}

bool IsStand(const Json& step) {
    const auto from = CelsiusOf(step, "start_temperature");
    const auto to = CelsiusOf(step, "end_temperature");
    if (Heats(step)) return false;
    if (from || to) return (from && *from < kLeastBoilingCelsius) || (to && *to < kLeastBoilingCelsius);
    return NameHas(step, "WHIRLPOOL") || NameHas(step, "STAND") || NameHas(step, "STEEP");
}

std::int64_t FindStand(const Json::Array& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i)
        if (IsStand(steps[i])) return static_cast<std::int64_t>(i) + 1;
    return 0;
}

// Returns the steps of a recipe, which get an empty list if there are none.
Json::Array& ObtainSteps(Json& recipe) {
    const auto obtain = [](Json& object, std::string_view key, Json empty, auto isRight) -> Json& {
        const Json* const member = MemberOf(object, key);
        if (member == nullptr || !isRight(*member)) SetMember(object, key, std::move(empty));
        return *MemberOf(object, key);
    };
    Json& boil = obtain(recipe, "boil", Json(Json::Object{}),
                        [](const Json& value) { return value.AsObject() != nullptr; });
    return *obtain(boil, "boil_steps", Json(Json::Array{}), [](const Json& value) {
                return value.AsArray() != nullptr;
            }).AsArray();
}

const Json::Array* StepsOf(const Json& recipe) {
    const Json* const boil = recipe.Find("boil");
    const Json* const steps = boil == nullptr ? nullptr : boil->Find("boil_steps");
    return steps == nullptr ? nullptr : steps->AsArray();
}

}  // namespace

JsonBoilPlan PlanBoil(Json& recipe, const JsonBoilNeeds& needs) {
    JsonBoilPlan plan;
    if (!needs.firstWort && !needs.stand) {
        const Json::Array* const steps = StepsOf(recipe);
        plan.stand = steps == nullptr ? 0 : FindStand(*steps);
        return plan;
    }
    Json::Array& steps = ObtainSteps(recipe);
    if (steps.empty()) steps.push_back(Step("Boil", kBoilingCelsius, kBoilingCelsius));
    if (needs.firstWort && !Heats(steps.front())) {
        steps.insert(steps.begin(), Step("First wort", kFirstWortCelsius, kBoilingCelsius));
        plan.isShifted = true;
    }
    plan.stand = FindStand(steps);
    if (needs.stand && plan.stand == 0) {
        steps.push_back(Step("Hop stand", kStandCelsius, kStandEndCelsius));
        plan.stand = static_cast<std::int64_t>(steps.size());
    }
    return plan;
}

}  // namespace tw

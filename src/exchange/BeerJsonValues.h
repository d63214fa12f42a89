// What the facts of a recipe are in BeerJSON: the members of its objects, record by record.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ForeignRecipe.h"
#include "values/Json.h"

namespace tw {

// A sentence for the brewer about a member that says a fact only nearly.
struct JsonRemark {
    std::string_view key;
    FindingCode code;
    std::string text;
};

struct JsonValues {
    Json object = Json(Json::Object{});  // what the facts know
    std::vector<JsonRemark> remarks;
    std::vector<std::string> lost;  // what the format has no field for
};

// The number, from 1, of the step of the boil in which hops stand in hot wort.
using StandStep = std::int64_t;

JsonValues JsonValuesOf(const ForeignFermentable& line, StandStep stand);
JsonValues JsonValuesOf(const ForeignHop& line, StandStep stand);
JsonValues JsonValuesOf(const ForeignYeast& line, StandStep stand);
JsonValues JsonValuesOf(const ForeignMisc& line, StandStep stand);
JsonValues JsonValuesOf(const ForeignWater& line, StandStep stand);
JsonValues JsonValuesOf(const ForeignStyle& style);
// The members of a recipe except for its ingredients, its style and the steps of the boil. The boil is there
// if anything about it is known.
JsonValues JsonValuesOf(const ForeignRecipe& recipe);

}  // namespace tw

// The steps of a boil, by whose numbers BeerJSON says what is added to the first wort and to a hop stand.
#pragma once

#include <cstdint>

#include "values/Json.h"

namespace tw {

struct JsonBoilNeeds {
    bool firstWort = false;  // something is added to the first wort
    bool stand = false;      // and to hot wort behind the boil
};

struct JsonBoilPlan {
    std::int64_t stand = 0;  // the number, from 1, of the step below boiling; 0 if there is none
    bool isShifted = false;  // the step of the first wort was inserted: all others have moved by one
};

// Adds the steps that a recipe needs and does not have, with the boil around them. REQUIRES: recipe is an
// object.
JsonBoilPlan PlanBoil(Json& recipe, const JsonBoilNeeds& needs);

}  // namespace tw

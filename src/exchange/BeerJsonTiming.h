// When BeerJSON adds an ingredient: its timing together with the steps of the boil.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/BeerJsonRecord.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

struct JsonBoilStep {
    std::string name;
    std::optional<double> startCelsius, endCelsius;
};

struct JsonTiming {
    std::optional<ForeignUse> use;
    std::string useWritten;  // the word of the file
    std::optional<double> minutes;
    std::string timesRemark;  // a sentence if the minutes are not all that the file says, or a guess
};

// Reads the field "timing" of a record, and the word "use" that older files have beside it. What is odd about
// them is told. Other conditions than times, a gravity or a pH, stay kept aside.
JsonTiming ReadTiming(BeerJsonRecord& record, const std::vector<JsonBoilStep>& boilSteps,
                      ForeignTelling& telling, const std::string& place, const std::string& path);

}  // namespace tw

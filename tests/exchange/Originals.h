// Recipes of files on their way back, and what was told about them.
#pragma once

#include <string>
#include <vector>

#include "exchange/ExportedRecipe.h"

namespace tw::test {

inline std::vector<LineOrigin> Unchanged(std::size_t count) {
    std::vector<LineOrigin> origins;
    for (std::size_t i = 0; i < count; ++i) origins.push_back({i, true});
    return origins;
}

// A recipe of a file in which nothing has changed.
inline ExportedRecipe Original(const ForeignRecipe& facts) {
    return {facts,
            {},
            Unchanged(facts.fermentables.size()),
            Unchanged(facts.hops.size()),
            Unchanged(facts.yeasts.size()),
            Unchanged(facts.miscs.size()),
            Unchanged(facts.waters.size())};
}

// The findings as "severity code place: text".
inline std::vector<std::string> Told(const Findings& findings) {
    std::vector<std::string> told;
    for (const Finding& each : findings.All())
        told.push_back(std::string(WordOf(each.severity)) + " " + std::string(WordOf(each.code)) + " " +
                       each.place + ": " + each.text);
    return told;
}

// The findings of a code as "recipe|place|text".
inline std::vector<std::string> Told(const Findings& findings, FindingCode code) {
    std::vector<std::string> told;
    for (const Finding& each : findings.All())
        if (each.code == code) told.push_back(each.recipe + "|" + each.place + "|" + each.text);
    return told;
}

}  // namespace tw::test

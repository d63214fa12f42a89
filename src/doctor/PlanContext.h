// What the parts of the planner share while they plan one recipe.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "doctor/AmountTexts.h"
#include "doctor/ImportOptions.h"
#include "doctor/KnownFigures.h"
#include "doctor/RecipePlan.h"
#include "exchange/Finding.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

struct PlanContext {
    const ForeignRecipe& recipe;
    const ImportOptions& options;
    KnownFigures& figures;
    AmountTexts texts;
    RecipePlan& plan;
    Findings& findings;

    void Report(Severity severity, FindingCode code, std::string place, std::string text) {
        findings.Add({severity, code, recipe.name, std::move(place), std::move(text)});
    }
    // Tells that a figure comes from an entry of the catalogue.
    void ReportFigure(const std::string& place, std::string_view what, const std::string& text,
                      const CatalogueMatch& match) {
        Report(Severity::Approximated, FindingCode::CatalogueFigure, place,
               "The file does not know the " + std::string(what) + "; " + text + " is that of " + match.name +
                   " in the catalogue.");
    }
};

// Returns where a line stands for a reader: "Hops 2: Cascade". index counts from 0.
inline std::string PlaceOf(std::string_view list, std::size_t index, std::string_view name) {
    return std::string(list) + " " + std::to_string(index + 1) + ": " + std::string(name);
}

// True if the line belongs to the mashed grains, false if to the extracts and sugars.
bool IsMashed(const ForeignFermentable& line);

// Each adds the lines of one list of the foreign recipe to the plan.
void PlanFermentables(PlanContext& context);
void PlanHops(PlanContext& context);
void PlanMiscs(PlanContext& context);
void PlanWaters(PlanContext& context);
void PlanYeasts(PlanContext& context);
void PlanCarbonation(PlanContext& context);

// Returns when something is added, in the words that the list of adjuncts offers; it has none for the mash.
std::string_view WhenAdded(ForeignUse use);

// True if amounts of malt, or of hops, that are written as kilograms are probably grams.
bool HasMaltSlip(const ForeignRecipe& recipe);
bool HasHopSlip(const ForeignRecipe& recipe);

}  // namespace tw

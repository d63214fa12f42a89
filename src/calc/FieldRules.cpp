#include "calc/FieldRules.h"

#include "calc/RecipeCalculator.h"

namespace tw {
namespace {

using enum FieldTakes;
using Stored = FieldStored;

// Runs a chain that refuses nothing.
template <void (RecipeCalculator::*chain)()>
Commit Run(RecipeCalculator& calculator) {
    (calculator.*chain)();
    return Commit::Accepted();
}

Commit RunTemperature(RecipeCalculator& calculator) {
    return calculator.TempCommitted();
}

using Calc = RecipeCalculator;

constexpr FieldRule kFields[] = {
    {FieldId::Name, "txtName", &RecipeRecord::txtName, FreeText, false, "NAME", Stored::Name},
    {FieldId::NumBatches, "txtNumBatches", &RecipeRecord::txtNumBatches, FreeText, false, "NUMBATCHES",
     Stored::Text},
    {FieldId::BoilVol, "txtBoilVol", &RecipeRecord::txtBoilVol, Gallons, false, "BV", Stored::Quantity,
     Run<&Calc::BoilVolCommitted>},
    {FieldId::TotalVol, "txtTotalVol", &RecipeRecord::txtTotalVol, Gallons, false, "TV", Stored::Quantity,
     Run<&Calc::TotalVolCommitted>},
    {FieldId::OG, "txtOG", &RecipeRecord::txtOG, SpecificGravity, true, "OG"},
    {FieldId::FG, "txtFG", &RecipeRecord::txtFG, SpecificGravity, false, "FG", Stored::Quantity,
     Run<&Calc::FGCommitted>},
    {FieldId::ABV, "txtABV", &RecipeRecord::txtABV, FreeText, true, "ABV", Stored::Text},
    {FieldId::Color, "txtColor", &RecipeRecord::txtColor, FreeText, true, "COLOR", Stored::Text},
    {FieldId::IBU, "txtIBU", &RecipeRecord::txtIBU, FreeText, true, "IBU", Stored::Text},
    {FieldId::CO2, "txtCO2", &RecipeRecord::txtCO2, FreeText, true, "CO2_VOLS", Stored::Text},
    {FieldId::Extract, "txtExtract", &RecipeRecord::txtExtract, Percent, false, "GRAIN_EXTRACT",
     Stored::Quantity, Run<&Calc::ExtractCommitted>},
    {FieldId::HopExtraction, "txtHopExtraction", &RecipeRecord::txtHopExtraction, Multiplier, false,
     "HOP_EXTRACT", Stored::Quantity, Run<&Calc::HopExtractionCommitted>},
    {FieldId::BG, "txtBG", &RecipeRecord::txtBG, SpecificGravity, true, "BG"},
    {FieldId::Temp, "txtTemp", &RecipeRecord::txtTemp, Fahrenheit, false, "TEMPERATURE", Stored::Quantity,
     RunTemperature},
    {FieldId::Dilutions, "txtDilutions", &RecipeRecord::txtDilutions, Gallons, false, "DILUTIONS"},
    {FieldId::FinalVol, "txtFinalVol", &RecipeRecord::txtFinalVol, Gallons, false, "FV", Stored::Quantity,
     Run<&Calc::FinalVolCommitted>},
    {FieldId::Notes, "txtNotes", &RecipeRecord::txtNotes, FreeText, false, "NOTES", Stored::Text},
};

constexpr bool InOrderOfIds() {
    for (std::size_t i = 0; i < std::size(kFields); ++i)
        if (static_cast<std::size_t>(kFields[i].id) != i) return false;
    return true;
}
static_assert(InOrderOfIds(), "RuleOf finds a field's rule by the place of its id");

}  // namespace

std::span<const FieldRule> FieldRules() {
    return kFields;
}

const FieldRule& RuleOf(FieldId id) {
    return kFields[static_cast<std::size_t>(id)];
}

}  // namespace tw

#include "record/FieldRules.h"

#include "record/RecipeCalculator.h"
#include "values/Text.h"

namespace tw {
namespace {

using enum FieldTakes;
using Stored = FieldStored;

// Runs a chain that never refuses the value.
template <void (RecipeCalculator::*chain)()>
Commit Run(RecipeCalculator& calculator) {
    (calculator.*chain)();
    return Commit::Accepted();
}

Commit RunTemperature(RecipeCalculator& calculator) {
    return calculator.TempCommitted();
}

using Calc = RecipeCalculator;

constexpr bool kTyped = false, kComputed = true;
constexpr bool kNotZero = false, kZeroToo = true;

constexpr FieldRule kFieldRules[] = {
    {FieldId::Name, "txtName", &RecipeRecord::txtName, FreeText, "Beer &Name:", "NAME", Stored::Name},
    {FieldId::NumBatches, "txtNumBatches", &RecipeRecord::txtNumBatches, FreeText,
     "Number of &Batches:", "NUMBATCHES", Stored::Text},
    {FieldId::BoilVol, "txtBoilVol", &RecipeRecord::txtBoilVol, Gallons, "Boi&l Volume (gal):", "BV",
     Stored::Quantity, kTyped, kNotZero, Run<&Calc::BoilVolCommitted>},
    {FieldId::TotalVol, "txtTotalVol", &RecipeRecord::txtTotalVol, Gallons, "Total &Volume (gal):", "TV",
     Stored::Quantity, kTyped, kNotZero, Run<&Calc::TotalVolCommitted>},
    {FieldId::OG, "txtOG", &RecipeRecord::txtOG, SpecificGravity, "Original Gravity:", "OG", Stored::Quantity,
     kComputed, kNotZero},
    {FieldId::FG, "txtFG", &RecipeRecord::txtFG, SpecificGravity, "Finished &Gravity:", "FG",
     Stored::Quantity, kTyped, kNotZero, Run<&Calc::FGCommitted>},
    {FieldId::ABV, "txtABV", &RecipeRecord::txtABV, FreeText, "Alcohol Content:", "ABV", Stored::Text,
     kComputed},
    {FieldId::Color, "txtColor", &RecipeRecord::txtColor, FreeText, "Color:", "COLOR", Stored::Text,
     kComputed},
    {FieldId::IBU, "txtIBU", &RecipeRecord::txtIBU, FreeText, "IBUs:", "IBU", Stored::Text, kComputed},
    {FieldId::CO2, "txtCO2", &RecipeRecord::txtCO2, FreeText, "CO2 Amount:", "CO2_VOLS", Stored::Text,
     kComputed},
    {FieldId::Extract, "txtExtract", &RecipeRecord::txtExtract, Percent, "E&xtraction Rate (%):",
     "GRAIN_EXTRACT", Stored::Quantity, kTyped, kZeroToo, Run<&Calc::ExtractCommitted>},
    {FieldId::HopExtraction, "txtHopExtraction", &RecipeRecord::txtHopExtraction, Multiplier,
     "E&xtraction Constant:", "HOP_EXTRACT", Stored::Quantity, kTyped, kZeroToo,
     Run<&Calc::HopExtractionCommitted>},
    {FieldId::BG, "txtBG", &RecipeRecord::txtBG, SpecificGravity, "Boil Gravity:", "BG", Stored::Quantity,
     kComputed, kNotZero},
    {FieldId::Temp, "txtTemp", &RecipeRecord::txtTemp, Fahrenheit, "Tem&perature:", "TEMPERATURE",
     Stored::Quantity, kTyped, kZeroToo, RunTemperature},
    {FieldId::Dilutions, "txtDilutions", &RecipeRecord::txtDilutions, Gallons,
     "&Dilution Additions (gal):", "DILUTIONS", Stored::Quantity},
    {FieldId::FinalVol, "txtFinalVol", &RecipeRecord::txtFinalVol, Gallons, "Final &Volume (gal):", "FV",
     Stored::Quantity, kTyped, kNotZero, Run<&Calc::FinalVolCommitted>},
    {FieldId::Notes, "txtNotes", &RecipeRecord::txtNotes, FreeText, "Notes", "NOTES", Stored::Text},
};

constexpr bool InOrderOfIds() {
    if (std::size(kFieldRules) != kFields) return false;
    for (std::size_t i = 0; i < kFields; ++i)
        if (static_cast<std::size_t>(kFieldRules[i].id) != i) return false;
    return true;
}
static_assert(InOrderOfIds(), "RuleOf finds a field's rule by the place of its id");

}  // namespace

std::span<const FieldRule> FieldRules() {
    return kFieldRules;
}

const FieldRule& RuleOf(FieldId id) {
    return kFieldRules[static_cast<std::size_t>(id)];
}

std::string PlainCaption(const FieldRule& rule) {
    std::string caption(rule.caption.substr(0, rule.caption.find_first_of("(:")));
    std::erase(caption, '&');
    return std::string(Trim(caption));
}

}  // namespace tw

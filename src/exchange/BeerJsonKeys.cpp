#include "exchange/BeerJsonKeys.h"

namespace tw {
namespace {

using enum JsonNeed;

constexpr JsonKey kFileKeys[] = {{"version", Required},
                                 {"fermentables"},
                                 {"miscellaneous_ingredients"},
                                 {"hop_varieties"},
                                 {"cultures"},
                                 {"profiles"},
                                 {"styles"},
                                 {"mashes"},
                                 {"fermentations"},
                                 {"recipes"},
                                 {"equipments"},
                                 {"boil"},
                                 {"packaging"}};
constexpr JsonKey kRecipeKeys[] = {{"name", Required},
                                   {"type", Required},
                                   {"author", Required},
                                   {"efficiency", Required},
                                   {"batch_size", Required},
                                   {"ingredients", Required},
                                   {"coauthor"},
                                   {"created"},
                                   {"style"},
                                   {"mash"},
                                   {"notes"},
                                   {"original_gravity"},
                                   {"final_gravity"},
                                   {"alcohol_by_volume"},
                                   {"ibu_estimate"},
                                   {"color_estimate"},
                                   {"beer_pH"},
                                   {"carbonation"},
                                   {"apparent_attenuation"},
                                   {"fermentation"},
                                   {"packaging"},
                                   {"boil"},
                                   {"taste"},
                                   {"calories_per_pint"}};
constexpr JsonKey kEfficiencyKeys[] = {{"brewhouse", Required}, {"conversion"}, {"lauter"}, {"mash"}};
constexpr JsonKey kIngredientsKeys[] = {{"fermentable_additions", Required},
                                        {"hop_additions"},
                                        {"miscellaneous_additions"},
                                        {"culture_additions"},
                                        {"water_additions"}};
constexpr JsonKey kTasteKeys[] = {{"notes", Required}, {"rating", Required}};
constexpr JsonKey kIbuEstimateKeys[] = {{"method"}, {"value"}};
constexpr JsonKey kFermentableKeys[] = {{"name", Required},
                                        {"type", Required},
                                        {"yield", Required},
                                        {"color", Required},
                                        {"amount", InRecipe},
                                        {"timing"},
                                        {"origin"},
                                        {"producer"},
                                        {"product_id"},
                                        {"grain_group"},
                                        {"notes"},
                                        {"moisture"},
                                        {"alpha_amylase"},
                                        {"diastatic_power"},
                                        {"protein"},
                                        {"kolbach_index"},
                                        {"max_in_batch"},
                                        {"recommend_mash"},
                                        {"inventory"},
                                        {"glassy"},
                                        {"plump"},
                                        {"half"},
                                        {"mealy"},
                                        {"thru"},
                                        {"friability"},
                                        {"di_ph"},
                                        {"viscosity"},
                                        {"dms_p"},
                                        {"fan"},
                                        {"fermentability"},
                                        {"beta_glucan"}};
constexpr JsonKey kYieldKeys[] = {
    {"fine_grind"}, {"coarse_grind"}, {"fine_coarse_difference"}, {"potential"}};
constexpr JsonKey kHopKeys[] = {{"name", Required},
                                {"alpha_acid", Required},
                                {"amount", InRecipe},
                                {"timing", InRecipe},
                                {"producer"},
                                {"product_id"},
                                {"origin"},
                                {"year"},
                                {"form"},
                                {"beta_acid"},
                                {"type"},
                                {"notes"},
                                {"percent_lost"},
                                {"substitutes"},
                                {"oil_content"},
                                {"inventory"}};
constexpr JsonKey kCultureKeys[] = {{"name", Required},
                                    {"type", Required},
                                    {"form", Required},
                                    {"amount", InRecipe},
                                    {"timing"},
                                    {"producer"},
                                    {"product_id"},
                                    {"attenuation"},
                                    {"times_cultured"},
                                    {"cell_count_billions"},
                                    {"temperature_range"},
                                    {"alcohol_tolerance"},
                                    {"flocculation"},
                                    {"attenuation_range"},
                                    {"notes"},
                                    {"best_for"},
                                    {"max_reuse"},
                                    {"pof"},
                                    {"glucoamylase"},
                                    {"inventory"},
                                    {"zymocide"}};
constexpr JsonKey kMiscKeys[] = {{"name", Required}, {"type", Required}, {"amount", InRecipe},
                                 {"timing"},         {"producer"},       {"product_id"},
                                 {"use_for"},        {"notes"},          {"inventory"}};
constexpr JsonKey kWaterKeys[] = {{"name", Required},
                                  {"calcium", Required},
                                  {"bicarbonate", Required},
                                  {"sulfate", Required},
                                  {"chloride", Required},
                                  {"sodium", Required},
                                  {"magnesium", Required},
                                  {"producer"},
                                  {"carbonate"},
                                  {"potassium"},
                                  {"iron"},
                                  {"nitrate"},
                                  {"nitrite"},
                                  {"flouride"},
                                  {"pH"},
                                  {"notes"},
                                  {"amount"}};
constexpr JsonKey kStyleKeys[] = {{"name", Required},
                                  {"category", Required},
                                  {"style_guide", Required},
                                  {"type", Required},
                                  {"category_number"},
                                  {"style_letter"},
                                  {"original_gravity"},
                                  {"final_gravity"},
                                  {"international_bitterness_units"},
                                  {"color"},
                                  {"carbonation"},
                                  {"alcohol_by_volume"},
                                  {"notes"},
                                  {"aroma"},
                                  {"appearance"},
                                  {"flavor"},
                                  {"mouthfeel"},
                                  {"overall_impression"},
                                  {"ingredients"},
                                  {"examples"}};
constexpr JsonKey kBoilKeys[] = {{"boil_time", Required}, {"name"},      {"description"}, {"notes"},
                                 {"pre_boil_size"},       {"boil_steps"}};
constexpr JsonKey kBoilStepKeys[] = {{"name", Required},  {"description"},  {"start_temperature"},
                                     {"end_temperature"}, {"ramp_time"},    {"step_time"},
                                     {"start_gravity"},   {"end_gravity"},  {"start_ph"},
                                     {"end_ph"},          {"chilling_type"}};

constexpr std::string_view kRecipeTypes[] = {"cider", "kombucha", "soda",         "other",    "mead",
                                             "wine",  "extract",  "partial mash", "all grain"};
constexpr std::string_view kFermentableTypes[] = {"dry extract", "extract", "grain", "sugar",
                                                  "fruit",       "juice",   "honey", "other"};
constexpr std::string_view kHopForms[] = {"extract", "leaf", "leaf (wet)", "pellet", "powder", "plug"};
constexpr std::string_view kUses[] = {"add_to_mash", "add_to_boil", "add_to_fermentation", "add_to_package"};

}  // namespace

std::span<const JsonKey> KeysOf(JsonRecord record) {
    switch (record) {
        case JsonRecord::File:
            return kFileKeys;
        case JsonRecord::Recipe:
            return kRecipeKeys;
        case JsonRecord::Efficiency:
            return kEfficiencyKeys;
        case JsonRecord::Ingredients:
            return kIngredientsKeys;
        case JsonRecord::Taste:
            return kTasteKeys;
        case JsonRecord::IbuEstimate:
            return kIbuEstimateKeys;
        case JsonRecord::Fermentable:
            return kFermentableKeys;
        case JsonRecord::Yield:
            return kYieldKeys;
        case JsonRecord::Hop:
            return kHopKeys;
        case JsonRecord::Culture:
            return kCultureKeys;
        case JsonRecord::Misc:
            return kMiscKeys;
        case JsonRecord::Water:
            return kWaterKeys;
        case JsonRecord::Style:
            return kStyleKeys;
        case JsonRecord::Boil:
            return kBoilKeys;
        case JsonRecord::BoilStep:
            return kBoilStepKeys;
    }
    return {};
}

std::span<const std::string_view> JsonRecipeTypes() {
    return kRecipeTypes;
}

std::span<const std::string_view> JsonFermentableTypes() {
    return kFermentableTypes;
}

std::span<const std::string_view> JsonHopForms() {
    return kHopForms;
}

std::span<const std::string_view> JsonUses() {
    return kUses;
}

}  // namespace tw

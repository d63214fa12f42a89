#include "exchange/BeerJsonSchema.h"

#include <algorithm>

namespace tw {
namespace {

using enum JsonHolds;
using enum JsonNeed;

// Units. Where a file states a bare number, the first is meant.
constexpr std::string_view kMassUnits[] = {"kg", "g", "mg", "lb", "oz"};
constexpr std::string_view kVolumeUnits[] = {"l",   "ml",  "tsp",   "tbsp", "floz", "cup",  "pt",  "qt",
                                             "gal", "bbl", "ifloz", "ipt",  "iqt",  "igal", "ibbl"};
constexpr std::string_view kUnitUnits[] = {"each", "1", "unit", "dimensionless", "pkg"};
constexpr std::string_view kPercentUnits[] = {"%"};
constexpr std::string_view kGravityUnits[] = {"sg", "plato", "brix"};
constexpr std::string_view kTimeUnits[] = {"min", "sec", "hr", "day", "week"};
constexpr std::string_view kCelsiusUnits[] = {"C", "F"};
constexpr std::string_view kAcidityUnits[] = {"pH"};
constexpr std::string_view kPressureUnits[] = {"kPa", "psi", "bar"};
constexpr std::string_view kBitternessUnits[] = {"IBUs"};
constexpr std::string_view kConcentrationUnits[] = {"mg/l", "ppm", "ppb"};
constexpr std::string_view kColorUnits[] = {"SRM", "EBC", "Lovi"};
constexpr std::string_view kMaltColorUnits[] = {"Lovi", "SRM", "EBC"};
constexpr std::string_view kSpecificVolumeUnits[] = {"l/kg", "qt/lb",   "gal/lb", "gal/oz",
                                                     "l/g",  "floz/oz", "m^3/kg", "ft^3/lb"};
constexpr std::string_view kMassOrVolumeUnits[] = {"kg",  "g",     "mg",   "lb",  "oz",   "l",   "ml",
                                                   "tsp", "tbsp",  "floz", "cup", "pt",   "qt",  "gal",
                                                   "bbl", "ifloz", "ipt",  "iqt", "igal", "ibbl"};
constexpr std::string_view kAnythingUnits[] = {
    "each", "1",   "unit",  "dimensionless", "pkg",  "kg",   "g",   "mg", "lb",
    "oz",   "l",   "ml",    "tsp",           "tbsp", "floz", "cup", "pt", "qt",
    "gal",  "bbl", "ifloz", "ipt",           "iqt",  "igal", "ibbl"};

// Closed lists. The first word is written where nothing is known.
constexpr std::string_view kRecipeTypeWords[] = {"all grain", "partial mash", "extract", "cider", "kombucha",
                                                 "soda",      "other",        "mead",    "wine"};
constexpr std::string_view kFermentableTypeWords[] = {"grain", "dry extract", "extract", "sugar",
                                                      "fruit", "juice",       "honey",   "other"};
constexpr std::string_view kGrainGroupWords[] = {"base",      "caramel", "flaked", "roasted",
                                                 "specialty", "smoked",  "adjunct"};
constexpr std::string_view kHopFormWords[] = {"pellet", "extract", "leaf", "leaf (wet)", "powder", "plug"};
constexpr std::string_view kUseWords[] = {"add_to_boil", "add_to_mash", "add_to_fermentation",
                                          "add_to_package"};
constexpr std::string_view kCultureTypeWords[] = {
    "ale",        "bacteria",      "brett", "champagne", "kveik",       "lacto", "lager",
    "malolactic", "mixed-culture", "other", "pedio",     "spontaneous", "wine"};
constexpr std::string_view kCultureFormWords[] = {"liquid", "dry", "slant", "culture", "dregs"};
constexpr std::string_view kMiscTypeWords[] = {"other", "spice",  "fining", "water agent",
                                               "herb",  "flavor", "wood"};
constexpr std::string_view kStyleTypeWords[] = {"beer", "cider", "kombucha", "mead", "other", "soda", "wine"};
constexpr std::string_view kIbuMethodWords[] = {"Tinseth", "Rager", "Garetz", "Other"};
constexpr std::string_view kChillingWords[] = {"batch", "inline"};
constexpr std::string_view kMashStepTypeWords[] = {
    "temperature", "infusion", "decoction", "souring mash", "souring wort", "drain mash tun", "sparge"};
constexpr std::string_view kVesselWords[] = {"other", "keg", "bottle", "cask", "tank", "firkin"};
constexpr std::string_view kPositionWords[] = {"body front", "body back", "body wrap around",
                                               "neck front", "neck back", "neck wrap around",
                                               "cap",        "carrier"};
constexpr std::string_view kPictureWords[] = {"png", "svg", "svgz", "ai",  "cdr", "cdx",
                                              "odg", "eps", "pdf",  "jpg", "gif"};
constexpr std::string_view kUnitsWords[] = {"mm", "in"};

constexpr JsonField kEfficiencyFields[] = {{"brewhouse", Quantity, kPercentUnits, nullptr, Required},
                                           {"conversion", Quantity, kPercentUnits},
                                           {"lauter", Quantity, kPercentUnits},
                                           {"mash", Quantity, kPercentUnits}};
constexpr JsonShape kEfficiencyShape = {kEfficiencyFields, true};

constexpr JsonField kTasteFields[] = {{"notes", Text, {}, nullptr, Required},
                                      {"rating", Number, {}, nullptr, Required}};
constexpr JsonShape kTasteShape = {kTasteFields, true};

constexpr JsonField kIbuEstimateFields[] = {{"method", Word, kIbuMethodWords},
                                            {"value", Quantity, kBitternessUnits}};
constexpr JsonShape kIbuEstimateShape = {kIbuEstimateFields, false};

constexpr JsonField kYieldFields[] = {{"fine_grind", Quantity, kPercentUnits},
                                      {"coarse_grind", Quantity, kPercentUnits},
                                      {"fine_coarse_difference", Quantity, kPercentUnits},
                                      {"potential", Quantity, kGravityUnits}};
constexpr JsonShape kYieldShape = {kYieldFields, true, "fine_grind"};

constexpr JsonField kTimingFields[] = {
    {"use", Word, kUseWords},       {"time", Time, kTimeUnits},
    {"duration", Time, kTimeUnits}, {"step", Integer},
    {"continuous", Boolean},        {"specific_gravity", Quantity, kGravityUnits},
    {"pH", Quantity, kAcidityUnits}};
constexpr JsonShape kTimingShape = {kTimingFields, true};

constexpr JsonField kFermentableFields[] = {{"name", Text, {}, nullptr, Required},
                                            {"type", Word, kFermentableTypeWords, nullptr, Required},
                                            {"yield", Object, {}, &kYieldShape, Required},
                                            {"color", Quantity, kMaltColorUnits, nullptr, Required},
                                            {"amount", Quantity, kMassOrVolumeUnits, nullptr, InRecipe},
                                            {"timing", Object, {}, &kTimingShape},
                                            {"grain_group", Word, kGrainGroupWords},
                                            {"origin", Text},
                                            {"producer", Text},
                                            {"product_id", Text},
                                            {"recommend_mash", Anything},
                                            {"notes", Anything},
                                            {"moisture", Anything},
                                            {"alpha_amylase", Anything},
                                            {"diastatic_power", Anything},
                                            {"protein", Anything},
                                            {"kolbach_index", Anything},
                                            {"max_in_batch", Anything},
                                            {"inventory", Anything},
                                            {"glassy", Anything},
                                            {"plump", Anything},
                                            {"half", Anything},
                                            {"mealy", Anything},
                                            {"thru", Anything},
                                            {"friability", Anything},
                                            {"di_ph", Anything},
                                            {"viscosity", Anything},
                                            {"dms_p", Anything},
                                            {"fan", Anything},
                                            {"fermentability", Anything},
                                            {"beta_glucan", Anything}};
constexpr JsonShape kFermentableShape = {kFermentableFields, false};

constexpr JsonField kHopFields[] = {{"name", Text, {}, nullptr, Required},
                                    {"alpha_acid", Quantity, kPercentUnits, nullptr, Required},
                                    {"amount", Quantity, kMassOrVolumeUnits, nullptr, InRecipe},
                                    {"timing", Object, {}, &kTimingShape, InRecipe},
                                    {"beta_acid", Quantity, kPercentUnits},
                                    {"form", Word, kHopFormWords},
                                    {"origin", Text},
                                    {"producer", Text},
                                    {"product_id", Text},
                                    {"year", Text},
                                    {"type", Anything},
                                    {"notes", Anything},
                                    {"percent_lost", Anything},
                                    {"substitutes", Anything},
                                    {"oil_content", Anything},
                                    {"inventory", Anything}};
constexpr JsonShape kHopShape = {kHopFields, false};

constexpr JsonField kCultureFields[] = {{"name", Text, {}, nullptr, Required},
                                        {"type", Word, kCultureTypeWords, nullptr, Required},
                                        {"form", Word, kCultureFormWords, nullptr, Required},
                                        {"amount", Quantity, kAnythingUnits, nullptr, InRecipe},
                                        {"timing", Object, {}, &kTimingShape},
                                        {"attenuation", Quantity, kPercentUnits},
                                        {"cell_count_billions", Integer},
                                        {"times_cultured", Integer},
                                        {"producer", Text},
                                        {"product_id", Text},
                                        {"temperature_range", Anything},
                                        {"alcohol_tolerance", Anything},
                                        {"flocculation", Anything},
                                        {"attenuation_range", Anything},
                                        {"notes", Anything},
                                        {"best_for", Anything},
                                        {"max_reuse", Anything},
                                        {"pof", Anything},
                                        {"glucoamylase", Anything},
                                        {"inventory", Anything},
                                        {"zymocide", Anything}};
constexpr JsonShape kCultureShape = {kCultureFields, false};

constexpr JsonField kMiscFields[] = {{"name", Text, {}, nullptr, Required},
                                     {"type", Word, kMiscTypeWords, nullptr, Required},
                                     {"amount", Quantity, kAnythingUnits, nullptr, InRecipe},
                                     {"timing", Object, {}, &kTimingShape},
                                     {"producer", Text},
                                     {"product_id", Text},
                                     {"use_for", Anything},
                                     {"notes", Anything},
                                     {"inventory", Anything}};
constexpr JsonShape kMiscShape = {kMiscFields, false};

constexpr JsonField kWaterFields[] = {{"name", Text, {}, nullptr, Required},
                                      {"calcium", Quantity, kConcentrationUnits, nullptr, Required},
                                      {"bicarbonate", Quantity, kConcentrationUnits, nullptr, Required},
                                      {"sulfate", Quantity, kConcentrationUnits, nullptr, Required},
                                      {"chloride", Quantity, kConcentrationUnits, nullptr, Required},
                                      {"sodium", Quantity, kConcentrationUnits, nullptr, Required},
                                      {"magnesium", Quantity, kConcentrationUnits, nullptr, Required},
                                      {"amount", Quantity, kVolumeUnits},
                                      {"carbonate", Quantity, kConcentrationUnits},
                                      {"flouride", Quantity, kConcentrationUnits},
                                      {"iron", Quantity, kConcentrationUnits},
                                      {"nitrate", Quantity, kConcentrationUnits},
                                      {"nitrite", Quantity, kConcentrationUnits},
                                      {"potassium", Quantity, kConcentrationUnits},
                                      {"producer", Text},
                                      {"pH", Anything},
                                      {"notes", Anything}};
constexpr JsonShape kWaterShape = {kWaterFields, false};

constexpr JsonField kIngredientsFields[] = {
    {"fermentable_additions", Array, {}, &kFermentableShape, Required},
    {"hop_additions", Array, {}, &kHopShape},
    {"miscellaneous_additions", Array, {}, &kMiscShape},
    {"culture_additions", Array, {}, &kCultureShape},
    {"water_additions", Array, {}, &kWaterShape}};
constexpr JsonShape kIngredientsShape = {kIngredientsFields, true};

constexpr JsonField kStyleFields[] = {{"name", Text, {}, nullptr, Required},
                                      {"category", Text, {}, nullptr, Required},
                                      {"style_guide", Text, {}, nullptr, Required},
                                      {"type", Word, kStyleTypeWords, nullptr, Required},
                                      {"category_number", Integer},
                                      {"style_letter", Letter},
                                      {"original_gravity", Anything},
                                      {"final_gravity", Anything},
                                      {"international_bitterness_units", Anything},
                                      {"color", Anything},
                                      {"carbonation", Anything},
                                      {"alcohol_by_volume", Anything},
                                      {"notes", Anything},
                                      {"aroma", Anything},
                                      {"appearance", Anything},
                                      {"flavor", Anything},
                                      {"mouthfeel", Anything},
                                      {"overall_impression", Anything},
                                      {"ingredients", Anything},
                                      {"examples", Anything}};
constexpr JsonShape kStyleShape = {kStyleFields, false};

constexpr JsonField kBoilStepFields[] = {{"name", Text, {}, nullptr, Required},
                                         {"description", Text},
                                         {"start_temperature", Quantity, kCelsiusUnits},
                                         {"end_temperature", Quantity, kCelsiusUnits},
                                         {"ramp_time", Time, kTimeUnits},
                                         {"step_time", Time, kTimeUnits},
                                         {"start_gravity", Quantity, kGravityUnits},
                                         {"end_gravity", Quantity, kGravityUnits},
                                         {"start_ph", Quantity, kAcidityUnits},
                                         {"end_ph", Quantity, kAcidityUnits},
                                         {"chilling_type", Word, kChillingWords}};
constexpr JsonShape kBoilStepShape = {kBoilStepFields, true};

constexpr JsonField kBoilFields[] = {{"boil_time", Time, kTimeUnits, nullptr, Required},
                                     {"name", Text},
                                     {"description", Text},
                                     {"notes", Text},
                                     {"pre_boil_size", Quantity, kVolumeUnits},
                                     {"boil_steps", Array, {}, &kBoilStepShape}};
constexpr JsonShape kBoilShape = {kBoilFields, true};

constexpr JsonField kMashStepFields[] = {{"name", Text, {}, nullptr, Required},
                                         {"type", Word, kMashStepTypeWords, nullptr, Required},
                                         {"step_temperature", Quantity, kCelsiusUnits, nullptr, Required},
                                         {"step_time", Time, kTimeUnits, nullptr, Required},
                                         {"amount", Quantity, kVolumeUnits},
                                         {"description", Text},
                                         {"end_ph", Quantity, kAcidityUnits},
                                         {"end_temperature", Quantity, kCelsiusUnits},
                                         {"infuse_temperature", Quantity, kCelsiusUnits},
                                         {"ramp_time", Time, kTimeUnits},
                                         {"start_ph", Quantity, kAcidityUnits},
                                         {"water_grain_ratio", Quantity, kSpecificVolumeUnits}};
constexpr JsonShape kMashStepShape = {kMashStepFields, true};

constexpr JsonField kMashFields[] = {{"name", Text, {}, nullptr, Required},
                                     {"grain_temperature", Quantity, kCelsiusUnits, nullptr, Required},
                                     {"mash_steps", FullArray, {}, &kMashStepShape, Required},
                                     {"notes", Text}};
constexpr JsonShape kMashShape = {kMashFields, true};

constexpr JsonField kFermentationStepFields[] = {{"name", Text, {}, nullptr, Required},
                                                 {"description", Text},
                                                 {"start_temperature", Quantity, kCelsiusUnits},
                                                 {"end_temperature", Quantity, kCelsiusUnits},
                                                 {"free_rise", Boolean},
                                                 {"step_time", Time, kTimeUnits},
                                                 {"start_gravity", Quantity, kGravityUnits},
                                                 {"end_gravity", Quantity, kGravityUnits},
                                                 {"start_ph", Quantity, kAcidityUnits},
                                                 {"end_ph", Quantity, kAcidityUnits},
                                                 {"vessel", Text},
                                                 {"vessel_pressure", Quantity, kPressureUnits}};
constexpr JsonShape kFermentationStepShape = {kFermentationStepFields, true};

constexpr JsonField kFermentationFields[] = {
    {"name", Text, {}, nullptr, Required},
    {"fermentation_steps", FullArray, {}, &kFermentationStepShape, Required},
    {"description", Text},
    {"notes", Text}};
constexpr JsonShape kFermentationShape = {kFermentationFields, true};

constexpr JsonField kGraphicFields[] = {{"position", Word, kPositionWords, nullptr, Required},
                                        {"type", Word, kPictureWords, nullptr, Required},
                                        {"base64_data", Text},
                                        {"dpi", Number},
                                        {"height", Number},
                                        {"width", Number},
                                        {"units", Word, kUnitsWords},
                                        {"URLS", Texts}};
constexpr JsonShape kGraphicShape = {kGraphicFields, true};

constexpr JsonField kVesselFields[] = {{"name", Text, {}, nullptr, Required},
                                       {"type", Word, kVesselWords},
                                       {"description", Text},
                                       {"carbonation", Number},
                                       {"package_date", Date},
                                       {"start_gravity", Quantity, kGravityUnits},
                                       {"end_gravity", Quantity, kGravityUnits},
                                       {"start_ph", Quantity, kAcidityUnits},
                                       {"end_ph", Quantity, kAcidityUnits},
                                       {"start_temperature", Quantity, kCelsiusUnits},
                                       {"end_temperature", Quantity, kCelsiusUnits},
                                       {"step_time", Time, kTimeUnits},
                                       {"vessel_quantity", Number},
                                       {"vessel_volume", Quantity, kVolumeUnits},
                                       {"graphics", Array, {}, &kGraphicShape}};
constexpr JsonShape kVesselShape = {kVesselFields, true};

constexpr JsonField kPackagingFields[] = {{"name", Text, {}, nullptr, Required},
                                          {"description", Text},
                                          {"notes", Text},
                                          {"packaged_volume", Quantity, kVolumeUnits},
                                          {"packaging_vessels", Array, {}, &kVesselShape}};
constexpr JsonShape kPackagingShape = {kPackagingFields, true};

constexpr JsonField kRecipeFields[] = {{"name", Text, {}, nullptr, Required},
                                       {"type", Word, kRecipeTypeWords, nullptr, Required},
                                       {"author", Text, {}, nullptr, Required},
                                       {"efficiency", Object, {}, &kEfficiencyShape, Required},
                                       {"batch_size", Quantity, kVolumeUnits, nullptr, Required},
                                       {"ingredients", Object, {}, &kIngredientsShape, Required},
                                       {"coauthor", Text},
                                       {"created", Date},
                                       {"style", Object, {}, &kStyleShape},
                                       {"notes", Text},
                                       {"original_gravity", Quantity, kGravityUnits},
                                       {"final_gravity", Quantity, kGravityUnits},
                                       {"alcohol_by_volume", Quantity, kPercentUnits},
                                       {"ibu_estimate", Object, {}, &kIbuEstimateShape},
                                       {"color_estimate", Quantity, kColorUnits},
                                       {"beer_pH", Quantity, kAcidityUnits},
                                       {"carbonation", Number},
                                       {"apparent_attenuation", Quantity, kPercentUnits},
                                       {"calories_per_pint", Number},
                                       {"taste", Object, {}, &kTasteShape},
                                       {"boil", Object, {}, &kBoilShape},
                                       {"mash", Object, {}, &kMashShape},
                                       {"fermentation", Object, {}, &kFermentationShape},
                                       {"packaging", Object, {}, &kPackagingShape}};
constexpr JsonShape kRecipeShape = {kRecipeFields, true};

constexpr JsonField kFileFields[] = {{"version", Anything, {}, nullptr, Required},
                                     {"fermentables", Anything},
                                     {"miscellaneous_ingredients", Anything},
                                     {"hop_varieties", Anything},
                                     {"cultures", Anything},
                                     {"profiles", Anything},
                                     {"styles", Anything},
                                     {"mashes", Anything},
                                     {"fermentations", Anything},
                                     {"recipes", Anything},
                                     {"equipments", Anything},
                                     {"boil", Anything},
                                     {"packaging", Anything}};
constexpr JsonShape kFileShape = {kFileFields, true};

}  // namespace

const JsonShape& ShapeOf(JsonRecord record) {
    switch (record) {
        case JsonRecord::File:
            return kFileShape;
        case JsonRecord::Recipe:
            return kRecipeShape;
        case JsonRecord::Efficiency:
            return kEfficiencyShape;
        case JsonRecord::Ingredients:
            return kIngredientsShape;
        case JsonRecord::Taste:
            return kTasteShape;
        case JsonRecord::IbuEstimate:
            return kIbuEstimateShape;
        case JsonRecord::Fermentable:
            return kFermentableShape;
        case JsonRecord::Yield:
            return kYieldShape;
        case JsonRecord::Hop:
            return kHopShape;
        case JsonRecord::Culture:
            return kCultureShape;
        case JsonRecord::Misc:
            return kMiscShape;
        case JsonRecord::Water:
            return kWaterShape;
        case JsonRecord::Style:
            return kStyleShape;
        case JsonRecord::Boil:
            return kBoilShape;
        case JsonRecord::BoilStep:
            return kBoilStepShape;
        case JsonRecord::Timing:
            return kTimingShape;
    }
    return kFileShape;
}

const JsonField* FieldOf(const JsonShape& shape, std::string_view key) {
    const auto found = std::ranges::find(shape.fields, key, &JsonField::key);
    return found == shape.fields.end() ? nullptr : &*found;
}

}  // namespace tw

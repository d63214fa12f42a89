#include "exchange/BeerXmlTags.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <vector>

#include "exchange/AsciiCase.h"

namespace tw {
namespace {

using Need = XmlNeed;
using Holds = XmlHolds;

constexpr std::string_view kRecipeTypeWords[] = {"Extract", "Partial Mash", "All Grain"};
constexpr std::string_view kRecipeIbuMethodWords[] = {"Rager", "Tinseth", "Garetz"};
constexpr std::string_view kHopUseWords[] = {"Boil", "Dry Hop", "Mash", "First Wort", "Aroma"};
constexpr std::string_view kHopTypeWords[] = {"Bittering", "Aroma", "Both"};
constexpr std::string_view kHopFormWords[] = {"Pellet", "Plug", "Leaf"};
constexpr std::string_view kFermentableTypeWords[] = {"Grain", "Sugar", "Extract", "Dry Extract", "Adjunct"};
constexpr std::string_view kYeastTypeWords[] = {"Ale", "Lager", "Wheat", "Wine", "Champagne"};
constexpr std::string_view kYeastFormWords[] = {"Liquid", "Dry", "Slant", "Culture"};
constexpr std::string_view kYeastFlocculationWords[] = {"Low", "Medium", "High", "Very High"};
constexpr std::string_view kMiscTypeWords[] = {"Spice", "Fining", "Water Agent", "Herb", "Flavor", "Other"};
constexpr std::string_view kMiscUseWords[] = {"Boil", "Mash", "Primary", "Secondary", "Bottling"};
constexpr std::string_view kStyleTypeWords[] = {"Lager", "Ale", "Mead", "Wheat", "Mixed", "Cider"};
constexpr std::string_view kMashStepTypeWords[] = {"Infusion", "Temperature", "Decoction"};

constexpr XmlField kRecipeFields[] = {{"NAME", Need::Required, Holds::Text},
                                      {"VERSION", Need::Required, Holds::Number},
                                      {"TYPE", Need::Required, Holds::Word, kRecipeTypeWords},
                                      {"STYLE", Need::Required, Holds::Record},
                                      {"BREWER", Need::Required, Holds::Text},
                                      {"BATCH_SIZE", Need::Required, Holds::Number},
                                      {"BOIL_SIZE", Need::Required, Holds::Number},
                                      {"BOIL_TIME", Need::Required, Holds::Number},
                                      {"HOPS", Need::Required, Holds::RecordSet},
                                      {"FERMENTABLES", Need::Required, Holds::RecordSet},
                                      {"MISCS", Need::Required, Holds::RecordSet},
                                      {"YEASTS", Need::Required, Holds::RecordSet},
                                      {"WATERS", Need::Required, Holds::RecordSet},
                                      {"EFFICIENCY", Need::UnlessExtract, Holds::Percent},
                                      {"MASH", Need::UnlessExtract, Holds::Record},
                                      {"ASST_BREWER", Need::Optional, Holds::Text},
                                      {"EQUIPMENT", Need::Optional, Holds::Record},
                                      {"NOTES", Need::Optional, Holds::Text},
                                      {"TASTE_NOTES", Need::Optional, Holds::Text},
                                      {"TASTE_RATING", Need::Optional, Holds::Number},
                                      {"OG", Need::Optional, Holds::Number},
                                      {"FG", Need::Optional, Holds::Number},
                                      {"FERMENTATION_STAGES", Need::Optional, Holds::Number},
                                      {"PRIMARY_AGE", Need::Optional, Holds::Number},
                                      {"PRIMARY_TEMP", Need::Optional, Holds::Number},
                                      {"SECONDARY_AGE", Need::Optional, Holds::Number},
                                      {"SECONDARY_TEMP", Need::Optional, Holds::Number},
                                      {"TERTIARY_AGE", Need::Optional, Holds::Number},
                                      {"TERTIARY_TEMP", Need::Optional, Holds::Number},
                                      {"AGE", Need::Optional, Holds::Number},
                                      {"AGE_TEMP", Need::Optional, Holds::Number},
                                      {"DATE", Need::Optional, Holds::Text},
                                      {"CARBONATION", Need::Optional, Holds::Number},
                                      {"FORCED_CARBONATION", Need::Optional, Holds::Boolean},
                                      {"PRIMING_SUGAR_NAME", Need::Optional, Holds::Text},
                                      {"CARBONATION_TEMP", Need::Optional, Holds::Number},
                                      {"PRIMING_SUGAR_EQUIV", Need::Optional, Holds::Number},
                                      {"KEG_PRIMING_FACTOR", Need::Optional, Holds::Number},
                                      {"EST_OG", Need::Display, Holds::Text},
                                      {"EST_FG", Need::Display, Holds::Text},
                                      {"EST_COLOR", Need::Display, Holds::Text},
                                      {"IBU", Need::Display, Holds::Text},
                                      {"IBU_METHOD", Need::Display, Holds::Word, kRecipeIbuMethodWords},
                                      {"EST_ABV", Need::Display, Holds::Text},
                                      {"ABV", Need::Display, Holds::Text},
                                      {"ACTUAL_EFFICIENCY", Need::Display, Holds::Text},
                                      {"CALORIES", Need::Display, Holds::Text},
                                      {"DISPLAY_BATCH_SIZE", Need::Display, Holds::Text},
                                      {"DISPLAY_BOIL_SIZE", Need::Display, Holds::Text},
                                      {"DISPLAY_OG", Need::Display, Holds::Text},
                                      {"DISPLAY_FG", Need::Display, Holds::Text},
                                      {"DISPLAY_PRIMARY_TEMP", Need::Display, Holds::Text},
                                      {"DISPLAY_SECONDARY_TEMP", Need::Display, Holds::Text},
                                      {"DISPLAY_TERTIARY_TEMP", Need::Display, Holds::Text},
                                      {"DISPLAY_AGE_TEMP", Need::Display, Holds::Text},
                                      {"CARBONATION_USED", Need::Display, Holds::Text},
                                      {"DISPLAY_CARB_TEMP", Need::Display, Holds::Text}};
constexpr XmlField kHopFields[] = {{"NAME", Need::Required, Holds::Text},
                                   {"VERSION", Need::Required, Holds::Number},
                                   {"ALPHA", Need::Required, Holds::Percent},
                                   {"AMOUNT", Need::Required, Holds::Number},
                                   {"USE", Need::Required, Holds::Word, kHopUseWords},
                                   {"TIME", Need::Required, Holds::Number},
                                   {"NOTES", Need::Optional, Holds::Text},
                                   {"TYPE", Need::Optional, Holds::Word, kHopTypeWords},
                                   {"FORM", Need::Optional, Holds::Word, kHopFormWords},
                                   {"BETA", Need::Optional, Holds::Percent},
                                   {"HSI", Need::Optional, Holds::Percent},
                                   {"ORIGIN", Need::Optional, Holds::Text},
                                   {"SUBSTITUTES", Need::Optional, Holds::Text},
                                   {"HUMULENE", Need::Optional, Holds::Percent},
                                   {"CARYOPHYLLENE", Need::Optional, Holds::Percent},
                                   {"COHUMULONE", Need::Optional, Holds::Percent},
                                   {"MYRCENE", Need::Optional, Holds::Percent},
                                   {"DISPLAY_AMOUNT", Need::Display, Holds::Text},
                                   {"INVENTORY", Need::Display, Holds::Text},
                                   {"DISPLAY_TIME", Need::Display, Holds::Text}};
constexpr XmlField kFermentableFields[] = {{"NAME", Need::Required, Holds::Text},
                                           {"VERSION", Need::Required, Holds::Number},
                                           {"TYPE", Need::Required, Holds::Word, kFermentableTypeWords},
                                           {"AMOUNT", Need::Required, Holds::Number},
                                           {"YIELD", Need::Required, Holds::Percent},
                                           {"COLOR", Need::Required, Holds::Number},
                                           {"ADD_AFTER_BOIL", Need::Optional, Holds::Boolean},
                                           {"ORIGIN", Need::Optional, Holds::Text},
                                           {"SUPPLIER", Need::Optional, Holds::Text},
                                           {"NOTES", Need::Optional, Holds::Text},
                                           {"COARSE_FINE_DIFF", Need::Optional, Holds::Percent},
                                           {"MOISTURE", Need::Optional, Holds::Percent},
                                           {"DIASTATIC_POWER", Need::Optional, Holds::Number},
                                           {"PROTEIN", Need::Optional, Holds::Percent},
                                           {"MAX_IN_BATCH", Need::Optional, Holds::Percent},
                                           {"RECOMMEND_MASH", Need::Optional, Holds::Boolean},
                                           {"IBU_GAL_PER_LB", Need::Optional, Holds::Number},
                                           {"DISPLAY_AMOUNT", Need::Display, Holds::Text},
                                           {"POTENTIAL", Need::Display, Holds::Text},
                                           {"INVENTORY", Need::Display, Holds::Text},
                                           {"DISPLAY_COLOR", Need::Display, Holds::Text}};
constexpr XmlField kYeastFields[] = {{"NAME", Need::Required, Holds::Text},
                                     {"VERSION", Need::Required, Holds::Number},
                                     {"TYPE", Need::Required, Holds::Word, kYeastTypeWords},
                                     {"FORM", Need::Required, Holds::Word, kYeastFormWords},
                                     {"AMOUNT", Need::Required, Holds::Number},
                                     {"AMOUNT_IS_WEIGHT", Need::Optional, Holds::Boolean},
                                     {"LABORATORY", Need::Optional, Holds::Text},
                                     {"PRODUCT_ID", Need::Optional, Holds::Text},
                                     {"MIN_TEMPERATURE", Need::Optional, Holds::Number},
                                     {"MAX_TEMPERATURE", Need::Optional, Holds::Number},
                                     {"FLOCCULATION", Need::Optional, Holds::Word, kYeastFlocculationWords},
                                     {"ATTENUATION", Need::Optional, Holds::Percent},
                                     {"NOTES", Need::Optional, Holds::Text},
                                     {"BEST_FOR", Need::Optional, Holds::Text},
                                     {"TIMES_CULTURED", Need::Optional, Holds::Number},
                                     {"MAX_REUSE", Need::Optional, Holds::Number},
                                     {"ADD_TO_SECONDARY", Need::Optional, Holds::Boolean},
                                     {"DISPLAY_AMOUNT", Need::Display, Holds::Text},
                                     {"DISP_MIN_TEMP", Need::Display, Holds::Text},
                                     {"DISP_MAX_TEMP", Need::Display, Holds::Text},
                                     {"INVENTORY", Need::Display, Holds::Text},
                                     {"CULTURE_DATE", Need::Display, Holds::Text}};
constexpr XmlField kMiscFields[] = {{"NAME", Need::Required, Holds::Text},
                                    {"VERSION", Need::Required, Holds::Number},
                                    {"TYPE", Need::Required, Holds::Word, kMiscTypeWords},
                                    {"USE", Need::Required, Holds::Word, kMiscUseWords},
                                    {"TIME", Need::Required, Holds::Number},
                                    {"AMOUNT", Need::Required, Holds::Number},
                                    {"AMOUNT_IS_WEIGHT", Need::Optional, Holds::Boolean},
                                    {"USE_FOR", Need::Optional, Holds::Text},
                                    {"NOTES", Need::Optional, Holds::Text},
                                    {"DISPLAY_AMOUNT", Need::Display, Holds::Text},
                                    {"INVENTORY", Need::Display, Holds::Text},
                                    {"DISPLAY_TIME", Need::Display, Holds::Text}};
constexpr XmlField kWaterFields[] = {
    {"NAME", Need::Required, Holds::Text},          {"VERSION", Need::Required, Holds::Number},
    {"AMOUNT", Need::Required, Holds::Number},      {"CALCIUM", Need::Required, Holds::Number},
    {"BICARBONATE", Need::Required, Holds::Number}, {"SULFATE", Need::Required, Holds::Number},
    {"CHLORIDE", Need::Required, Holds::Number},    {"SODIUM", Need::Required, Holds::Number},
    {"MAGNESIUM", Need::Required, Holds::Number},   {"PH", Need::Optional, Holds::Number},
    {"NOTES", Need::Optional, Holds::Text},         {"DISPLAY_AMOUNT", Need::Display, Holds::Text}};
constexpr XmlField kStyleFields[] = {{"NAME", Need::Required, Holds::Text},
                                     {"CATEGORY", Need::Required, Holds::Text},
                                     {"VERSION", Need::Required, Holds::Number},
                                     {"CATEGORY_NUMBER", Need::Required, Holds::Text},
                                     {"STYLE_LETTER", Need::Required, Holds::Text},
                                     {"STYLE_GUIDE", Need::Required, Holds::Text},
                                     {"TYPE", Need::Required, Holds::Word, kStyleTypeWords},
                                     {"OG_MIN", Need::Required, Holds::Number},
                                     {"OG_MAX", Need::Required, Holds::Number},
                                     {"FG_MIN", Need::Required, Holds::Number},
                                     {"FG_MAX", Need::Required, Holds::Number},
                                     {"IBU_MIN", Need::Required, Holds::Number},
                                     {"IBU_MAX", Need::Required, Holds::Number},
                                     {"COLOR_MIN", Need::Required, Holds::Number},
                                     {"COLOR_MAX", Need::Required, Holds::Number},
                                     {"CARB_MIN", Need::Optional, Holds::Number},
                                     {"CARB_MAX", Need::Optional, Holds::Number},
                                     {"ABV_MIN", Need::Optional, Holds::Percent},
                                     {"ABV_MAX", Need::Optional, Holds::Percent},
                                     {"NOTES", Need::Optional, Holds::Text},
                                     {"PROFILE", Need::Optional, Holds::Text},
                                     {"INGREDIENTS", Need::Optional, Holds::Text},
                                     {"EXAMPLES", Need::Optional, Holds::Text},
                                     {"DISPLAY_OG_MIN", Need::Display, Holds::Text},
                                     {"DISPLAY_OG_MAX", Need::Display, Holds::Text},
                                     {"DISPLAY_FG_MIN", Need::Display, Holds::Text},
                                     {"DISPLAY_FG_MAX", Need::Display, Holds::Text},
                                     {"DISPLAY_COLOR_MIN", Need::Display, Holds::Text},
                                     {"DISPLAY_COLOR_MAX", Need::Display, Holds::Text},
                                     {"OG_RANGE", Need::Display, Holds::Text},
                                     {"FG_RANGE", Need::Display, Holds::Text},
                                     {"IBU_RANGE", Need::Display, Holds::Text},
                                     {"CARB_RANGE", Need::Display, Holds::Text},
                                     {"COLOR_RANGE", Need::Display, Holds::Text},
                                     {"ABV_RANGE", Need::Display, Holds::Text}};
constexpr XmlField kEquipmentFields[] = {{"NAME", Need::Required, Holds::Text},
                                         {"VERSION", Need::Required, Holds::Number},
                                         {"BOIL_SIZE", Need::Required, Holds::Number},
                                         {"BATCH_SIZE", Need::Required, Holds::Number},
                                         {"TUN_VOLUME", Need::Optional, Holds::Number},
                                         {"TUN_WEIGHT", Need::Optional, Holds::Number},
                                         {"TUN_SPECIFIC_HEAT", Need::Optional, Holds::Number},
                                         {"TOP_UP_WATER", Need::Optional, Holds::Number},
                                         {"TRUB_CHILLER_LOSS", Need::Optional, Holds::Number},
                                         {"EVAP_RATE", Need::Optional, Holds::Percent},
                                         {"BOIL_TIME", Need::Optional, Holds::Number},
                                         {"CALC_BOIL_VOLUME", Need::Optional, Holds::Boolean},
                                         {"LAUTER_DEADSPACE", Need::Optional, Holds::Number},
                                         {"TOP_UP_KETTLE", Need::Optional, Holds::Number},
                                         {"HOP_UTILIZATION", Need::Optional, Holds::Percent},
                                         {"NOTES", Need::Optional, Holds::Text},
                                         {"DISPLAY_BOIL_SIZE", Need::Display, Holds::Text},
                                         {"DISPLAY_BATCH_SIZE", Need::Display, Holds::Text},
                                         {"DISPLAY_TUN_VOLUME", Need::Display, Holds::Text},
                                         {"DISPLAY_TUN_WEIGHT", Need::Display, Holds::Text},
                                         {"DISPLAY_TOP_UP_WATER", Need::Display, Holds::Text},
                                         {"DISPLAY_TRUB_CHILLER_LOSS", Need::Display, Holds::Text},
                                         {"DISPLAY_LAUTER_DEADSPACE", Need::Display, Holds::Text},
                                         {"DISPLAY_TOP_UP_KETTLE", Need::Display, Holds::Text}};
constexpr XmlField kMashFields[] = {{"NAME", Need::Required, Holds::Text},
                                    {"VERSION", Need::Required, Holds::Number},
                                    {"GRAIN_TEMP", Need::Required, Holds::Number},
                                    {"MASH_STEPS", Need::Required, Holds::RecordSet},
                                    {"NOTES", Need::Optional, Holds::Text},
                                    {"TUN_TEMP", Need::Optional, Holds::Number},
                                    {"SPARGE_TEMP", Need::Optional, Holds::Number},
                                    {"PH", Need::Optional, Holds::Number},
                                    {"TUN_WEIGHT", Need::Optional, Holds::Number},
                                    {"TUN_SPECIFIC_HEAT", Need::Optional, Holds::Number},
                                    {"EQUIP_ADJUST", Need::Optional, Holds::Boolean},
                                    {"DISPLAY_GRAIN_TEMP", Need::Display, Holds::Text},
                                    {"DISPLAY_TUN_TEMP", Need::Display, Holds::Text},
                                    {"DISPLAY_SPARGE_TEMP", Need::Display, Holds::Text},
                                    {"DISPLAY_TUN_WEIGHT", Need::Display, Holds::Text}};
constexpr XmlField kMashStepFields[] = {{"NAME", Need::Required, Holds::Text},
                                        {"VERSION", Need::Required, Holds::Number},
                                        {"TYPE", Need::Required, Holds::Word, kMashStepTypeWords},
                                        {"STEP_TEMP", Need::Required, Holds::Number},
                                        {"STEP_TIME", Need::Required, Holds::Number},
                                        {"INFUSE_AMOUNT", Need::WhenInfusion, Holds::Number},
                                        {"RAMP_TIME", Need::Optional, Holds::Number},
                                        {"END_TEMP", Need::Optional, Holds::Number},
                                        {"DESCRIPTION", Need::Display, Holds::Text},
                                        {"WATER_GRAIN_RATIO", Need::Display, Holds::Text},
                                        {"DECOCTION_AMT", Need::Display, Holds::Text},
                                        {"INFUSE_TEMP", Need::Display, Holds::Text},
                                        {"DISPLAY_STEP_TEMP", Need::Display, Holds::Text},
                                        {"DISPLAY_INFUSE_AMT", Need::Display, Holds::Text}};

constexpr std::array<XmlRecordRule, kXmlRecords> kRules = {{
    {XmlRecord::Recipe, "RECIPE", "RECIPES", kRecipeFields},
    {XmlRecord::Hop, "HOP", "HOPS", kHopFields},
    {XmlRecord::Fermentable, "FERMENTABLE", "FERMENTABLES", kFermentableFields},
    {XmlRecord::Yeast, "YEAST", "YEASTS", kYeastFields},
    {XmlRecord::Misc, "MISC", "MISCS", kMiscFields},
    {XmlRecord::Water, "WATER", "WATERS", kWaterFields},
    {XmlRecord::Style, "STYLE", "STYLES", kStyleFields},
    {XmlRecord::Equipment, "EQUIPMENT", "EQUIPMENTS", kEquipmentFields},
    {XmlRecord::Mash, "MASH", "MASHS", kMashFields},
    {XmlRecord::MashStep, "MASH_STEP", "MASH_STEPS", kMashStepFields},
}};

// Every tag in upper case with the tags of the elements in which it may stand. An empty one is the top.
using Parents = std::unordered_map<std::string_view, std::vector<std::string_view>>;

Parents MakeParents() {
    Parents parents;
    for (const XmlRecordRule& rule : kRules) {
        for (const XmlField& field : rule.fields) parents[field.tag].push_back(rule.tag);
        parents[rule.tag].push_back(rule.setTag);
        parents[rule.tag].emplace_back();
        parents[rule.setTag].emplace_back();
    }
    return parents;
}

const Parents& AllParents() {
    static const Parents parents = MakeParents();
    return parents;
}

// Returns nullptr if the tag is none.
const std::vector<std::string_view>* ParentsOf(std::string_view tag) {
    const auto found = AllParents().find(UpperAscii(tag));
    return found == AllParents().end() ? nullptr : &found->second;
}

}  // namespace

std::span<const XmlRecordRule, kXmlRecords> XmlRecordRules() {
    return kRules;
}

const XmlRecordRule& RuleOf(XmlRecord record) {
    return kRules[static_cast<std::size_t>(record)];
}

const XmlRecordRule* RecordOfTag(std::string_view tag) {
    const auto* const found =
        std::ranges::find_if(kRules, [&](const XmlRecordRule& rule) { return EqualAscii(rule.tag, tag); });
    return found == kRules.end() ? nullptr : found;
}

const XmlRecordRule* RecordOfSet(std::string_view setTag) {
    const auto* const found = std::ranges::find_if(
        kRules, [&](const XmlRecordRule& rule) { return EqualAscii(rule.setTag, setTag); });
    return found == kRules.end() ? nullptr : found;
}

const XmlField* FieldOf(XmlRecord record, std::string_view tag) {
    const std::span<const XmlField> fields = RuleOf(record).fields;
    const auto found =
        std::ranges::find_if(fields, [&](const XmlField& field) { return EqualAscii(field.tag, tag); });
    return found == fields.end() ? nullptr : &*found;
}

bool IsXmlTag(std::string_view tag) {
    return ParentsOf(tag) != nullptr;
}

bool MayStandIn(std::string_view tag, std::string_view parent) {
    const auto* const parents = ParentsOf(tag);
    return parents != nullptr &&
           std::ranges::any_of(*parents, [&](std::string_view each) { return EqualAscii(each, parent); });
}

}  // namespace tw

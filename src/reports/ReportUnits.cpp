#include "reports/ReportUnits.h"

#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/SettingText.h"
#include "values/Text.h"

namespace tw {
namespace {

// Relative to water.
constexpr double kAlcoholDensity = 0.794;

using Option = ReportUnitGroup::Option;
constexpr Option kVolumes[] = {
    {"optVolAsIs", "As Is"}, {"optVolGallons", "Gallons"}, {"optVolLiters", "Liters"}};
constexpr Option kGrainWeights[] = {
    {"optGrAsIs", "As Is"}, {"optGrPounds", "Pounds"}, {"optGrKGs", "Kilograms"}};
constexpr Option kHopWeights[] = {
    {"optHopAsIs", "As Is"}, {"optHopOunces", "Ounces"}, {"optHopGrams", "Grams"}};
constexpr Option kGravities[] = {{"optSGSG", "Specific Gravity"}, {"optSGPlato", "Degrees Plato"}};
constexpr Option kAlcohols[] = {{"optAlcBV", "By Volume"}, {"optAlcBW", "By Weight"}};

constexpr ReportUnitGroup kGroups[] = {{"Volume", kVolumes},
                                       {"Grain/Extract Weight", kGrainWeights},
                                       {"Hop Weight", kHopWeights},
                                       {"Gravity", kGravities},
                                       {"Alcohol", kAlcohols}};

struct Place {
    std::size_t group;
    std::size_t option;  // in its group
};
// Returns the place of the option of that name; nullopt for an unknown one.
std::optional<Place> Find(std::string_view option) {
    for (std::size_t group = 0; group < std::size(kGroups); ++group)
        for (std::size_t i = 0; i < kGroups[group].options.size(); ++i)
            if (kGroups[group].options[i].name == option) return Place{group, i};
    return std::nullopt;
}

}  // namespace

std::span<const ReportUnitGroup> ReportUnitGroups() {
    return kGroups;
}

ReportUnits::ReportUnits() : chosen_(std::size(kGroups), 0) {}

bool ReportUnits::Knows(std::string_view option) const {
    return Find(option).has_value();
}

bool ReportUnits::Choose(std::string_view option) {
    const std::optional<Place> place = Find(option);
    if (place) chosen_[place->group] = place->option;
    return place.has_value();
}

bool ReportUnits::IsChosen(std::string_view option) const {
    const std::optional<Place> place = Find(option);
    return place && chosen_[place->group] == place->option;
}

std::string ReportUnits::Gravity(std::optional<double> gravity) const {
    if (!gravity) return {};
    if (IsChosen("optSGSG")) return FormatNumber(*gravity, "0.000");
    return FormatNumber(SGToPlato(*gravity), "0.000") + "° Plato";
}

std::string ReportUnits::Alcohol(const std::optional<std::string>& abv,
                                 std::optional<double> finalGravity) const {
    if (!abv) return {};
    if (IsChosen("optAlcBV")) return std::string(Trim(*abv));
    if (!finalGravity) return {};
    const std::optional<double> percent = ReadReal(std::string_view(*abv).substr(0, abv->find('%')));
    if (!percent || *finalGravity == 0) return "?";
    return FormatNumber(*percent * kAlcoholDensity / *finalGravity, "0.0") + "% abw";
}

std::string ReportUnits::Volume(const std::optional<std::string>& text, std::optional<double> gallons) const {
    if (IsChosen("optVolAsIs")) return text.value_or(std::string());
    if (!gallons) return {};
    if (IsChosen("optVolGallons")) return FormatNumber(*gallons, "0.00") + " Gallons";
    return FormatNumber(*gallons * kLitersPerGallon, "0.00") + " Liters";
}

}  // namespace tw

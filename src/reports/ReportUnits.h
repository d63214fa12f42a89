// The units of a report file: the options on the first page of the report wizard.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// One group of option buttons.
struct ReportUnitGroup {
    std::string_view caption;
    struct Option {
        std::string_view name;
        std::string_view caption;
    };
    std::span<const Option> options;
};

// The groups for volume, grain and extract weight, hop weight, gravity and alcohol. The weights are offered
// and kept on purpose, although nothing reads them: a report does not list ingredients.
std::span<const ReportUnitGroup> ReportUnitGroups();

class ReportUnits {
  public:
    // Chooses the first option of every group.
    ReportUnits();

    bool Knows(std::string_view option) const;
    // Chooses that option in its group. Returns false if it is unknown.
    bool Choose(std::string_view option);
    // True if that option is chosen; false if it is unknown.
    bool IsChosen(std::string_view option) const;

    // These return texts of a report, empty if the value is absent.
    //
    // Returns gravity (SG) with three decimals, as SG or converted to degrees Plato.
    std::string Gravity(std::optional<double> gravity) const;
    // Returns the stored text, trimmed, or converted to percent by weight: the number before its "%" times
    // 0.794 (the density of alcohol) divided by finalGravity (SG). Returns "?" if that cannot be calculated.
    std::string Alcohol(const std::optional<std::string>& abv, std::optional<double> finalGravity) const;
    // Returns text as typed, or gallons (US) as gallons or liters with two decimals.
    std::string Volume(const std::optional<std::string>& text, std::optional<double> gallons) const;

  private:
    std::vector<std::size_t> chosen_;  // by group
};

}  // namespace tw

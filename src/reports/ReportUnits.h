// The units that a report file is written in: the options of the first page of the report wizard.
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

// Volume, grain and extract weight, hop weight, gravity, alcohol. The weights are offered and kept, but
// nothing reads them, since a report has no lines of ingredients: intended.
std::span<const ReportUnitGroup> ReportUnitGroups();

class ReportUnits {
  public:
    // Every group on its first option.
    ReportUnits();

    bool Knows(std::string_view option) const;
    // Sets the option of that name in its group. False for an unknown one.
    bool Choose(std::string_view option);
    // False for an option that is not set, and for an unknown one.
    bool IsChosen(std::string_view option) const;

    // Texts of a report, empty for what is absent.
    //
    // A specific gravity with three decimals, or degrees Plato.
    std::string Gravity(std::optional<double> gravity) const;
    // The stored text, trimmed; or by weight: the number before its "%" times 0.794 (the density of alcohol)
    // over the final gravity. "?" when that cannot be worked out.
    std::string Alcohol(const std::optional<std::string>& abv, std::optional<double> finalGravity) const;
    // As typed, or from gallons in gallons or liters.
    std::string Volume(const std::optional<std::string>& text, std::optional<double> gallons) const;

  private:
    std::vector<std::size_t> chosen_;  // by group
};

}  // namespace tw

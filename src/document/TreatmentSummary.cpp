#include "document/TreatmentSummary.h"

#include <cmath>
#include <string_view>
#include <vector>

#include "record/CellRules.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr double kClosePercent = 3;
constexpr double kCloseSteps = 0.5;  // ppm

// Returns "sulfate" for the header "Sulfate (SO4)".
std::string NameOf(const Grid& water, int col) {
    const std::string_view header = RuleOf(water, col).header;
    return Lower(Trim(header.substr(0, header.find('('))));
}

// Returns how far the treated water misses the target of one ion: "sulfate 8 % short". Empty if it is
// reached.
std::string MissOf(const Grid& water, int col) {
    const double target = water.Number(WaterRow::Target, col);
    const double reached = water.Number(WaterRow::Source, col) + water.Number(WaterRow::Totals, col);
    const double miss = reached - target;
    if (std::abs(miss) < kCloseSteps) return {};
    const std::string_view side = miss < 0 ? " short" : " over";
    if (target <= 0) return NameOf(water, col) + " " + FormatNumber(miss, "0 ppm").append(side);
    const double percent = FormatQuantity(std::abs(miss) / target, 2).value * 100;
    if (percent <= kClosePercent) return {};
    return NameOf(water, col) + " " + FormatNumber(percent, "0") + " %" + std::string(side);
}

// Returns the volume as typed, with its unit even if that was left out, and without a full stop.
std::string VolumeOf(const TextBox& box) {
    std::string text(Trim(box.Text()));
    if (!text.empty() && text.back() >= '0' && text.back() <= '9') text += " gal";
    while (text.ends_with('.')) text.pop_back();
    return text;
}

}  // namespace

std::string TreatmentSummary(const RecipeRecord& record) {
    const Grid& water = record.gridWater;
    bool hasTarget = false;
    std::vector<std::string> misses;
    for (int col = WaterCol::FirstIon; col < water.Cols(); ++col) {
        hasTarget |= water.Number(WaterRow::Target, col) > 0;
        if (std::string miss = MissOf(water, col); !miss.empty()) misses.push_back(std::move(miss));
    }
    std::string summary = record.gridTreatment.DataRows() > 0 ? "Salts" : "No salts";
    summary += " for " + VolumeOf(record.txtTotalVol) + ". ";
    if (!hasTarget) return summary + "No target water is given";
    const auto ions = static_cast<std::size_t>(water.Cols() - WaterCol::FirstIon);
    if (misses.size() < ions) summary += misses.empty() ? "All ions within 3 %" : "All other ions within 3 %";
    for (std::string& miss : misses) {
        if (summary.ends_with(". "))
            miss.front() = Upper(miss.substr(0, 1)).front();
        else
            summary += ", ";
        summary += miss;
    }
    return summary;
}

}  // namespace tw

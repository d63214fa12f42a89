// Bitterness of a recipe.
#include "calc/Hops.h"
#include "platform/Error.h"
#include "record/RecipeCalculator.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr double kHopSockFactor = 0.9;

// Returns the factor of the row's hop form and hop sock. A form beyond the table counts as whole leaf.
double FormFactor(const Grid& grid, int row) {
    const auto index = static_cast<std::size_t>(grid.Number(row, HopCol::Form));
    const double factor = index < kHopForms.size() ? kHopForms[index].factor : 1.0;
    return grid.Checked(row, HopCol::Sock) ? factor * kHopSockFactor : factor;
}

}  // namespace

void RecipeCalculator::CalcHopIBU(Grid& grid, int row, bool skipTotal) {
    using Kind = CellValue::Kind;
    const CellValue amount = grid.At(row, HopCol::Amount).value;
    const bool isIbu = amount.kind == Kind::BitternessUnits;
    const bool isAau = amount.kind == Kind::AlphaAcidUnits;
    // Without a boil gravity an IBU row is blank, too, although its number does not depend on it. This is
    // kept on purpose, so that the results of recipes stay the same.
    const bool unknown = grid.Checked(row, HopCol::DryHopped) || grid.Empty(row, HopCol::Amount) ||
                         r_.txtBG.Empty() || r_.txtTotalVol.Empty() ||
                         (!isIbu && !isAau && grid.Empty(row, HopCol::AlphaAcid)) ||
                         (!isIbu && grid.Empty(row, HopCol::Time));
    if (unknown) {
        grid.Clear(row, HopCol::Ibu);
    } else if (isIbu) {
        grid.SetComputed(row, HopCol::Ibu, amount.number);
    } else {
        const double alphaAcid =
            isAau ? amount.number / 100 : amount.number * grid.Number(row, HopCol::AlphaAcid) / 100;
        grid.SetComputed(row, HopCol::Ibu, HopRowBitterness(row, alphaAcid));
    }
    if (!skipTotal) TotalIBU(grid);
}

// Returns the IBUs that a weight of alpha acid would give as the hops of that row.
double RecipeCalculator::HopRowBitterness(int row, double alphaAcidOunces) const {
    const Grid& hops = r_.gridHops;
    return HopBitterness(static_cast<IbuMethod>(r_.grpIBUMethod.Selected()),
                         {alphaAcidOunces, FormFactor(hops, row), hops.Number(row, HopCol::Time)},
                         {r_.txtBG.Value(), r_.txtTotalVol.Value(), r_.txtHopExtraction.Value()});
}

std::optional<double> RecipeCalculator::HopOunces(int row) const {
    const Grid& hops = r_.gridHops;
    const CellValue amount = hops.At(row, HopCol::Amount).value;
    if (amount.kind == CellValue::Kind::Number) return amount.number;
    const double alphaAcid = hops.Number(row, HopCol::AlphaAcid);
    if (amount.kind == CellValue::Kind::None || alphaAcid <= 0) return std::nullopt;
    if (amount.kind == CellValue::Kind::AlphaAcidUnits) return amount.number / alphaAcid;
    const bool unknown = hops.Checked(row, HopCol::DryHopped) || hops.Empty(row, HopCol::Time) ||
                         r_.txtBG.Empty() || r_.txtTotalVol.Empty();
    if (unknown) return std::nullopt;
    try {
        const double perOunce = HopRowBitterness(row, alphaAcid / 100);
        return perOunce > 0 ? std::optional(amount.number / perOunce) : std::nullopt;
    } catch (const Error&) {
        return std::nullopt;
    }
}

void RecipeCalculator::TotalIBU(Grid& grid) {
    TotalColumn(grid, HopCol::Ibu);
}

void RecipeCalculator::RecalcHops() {
    for (int row = Grid::FixedRows(); row < r_.gridHops.EndOfData(); ++row)
        CalcHopIBU(r_.gridHops, row, true);
    TotalIBU(r_.gridHops);
    ShowIBU();
}

void RecipeCalculator::ShowIBU() {
    const Grid& hops = r_.gridHops;
    const bool known = !hops.Empty(hops.TotalsRow(), HopCol::Ibu);
    r_.cmdIBUDetails.SetEnabled(known);
    if (known) {
        r_.txtIBU.SetValue(hops.Number(hops.TotalsRow(), HopCol::Ibu));
        r_.txtIBU.SetText(FormatNumber(r_.txtIBU.Value(), "0"));
    } else {
        r_.txtIBU.SetText("");
    }
    commands_.EnableChangeBitterness(!r_.txtIBU.Empty());
}

void RecipeCalculator::ShowGridTotal(Grid& grid) {
    if (grid.Id() == GridId::Hops) {
        ShowHopTotal();
        return;
    }
    double sum = 0;
    bool counted = false;
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) {
        if (grid.Empty(row, GrainCol::Amount)) continue;
        sum += grid.Number(row, GrainCol::Amount);
        counted = true;
    }
    const RoundedQuantity rounded = FormatQuantity(Finite(sum), 0);
    grid.SetText(grid.TotalsRow(), GrainCol::Amount, counted ? rounded.text + " lbs." : "");
    grid.SetValue(grid.TotalsRow(), GrainCol::Amount, counted ? CellValue::Of(rounded.value) : CellValue{});
}

void RecipeCalculator::ShowHopTotal() {
    using Kind = CellValue::Kind;
    Grid& hops = r_.gridHops;
    double ounces = 0, aaus = 0;
    bool anyOunces = false, anyAaus = false;
    for (int row = Grid::FixedRows(); row < hops.EndOfData(); ++row) {
        if (hops.Empty(row, HopCol::Amount)) continue;
        const CellValue amount = hops.At(row, HopCol::Amount).value;
        // Rows in IBUs may be combined with either unit and are not counted.
        if (amount.kind == Kind::BitternessUnits) continue;
        const bool isAau = amount.kind == Kind::AlphaAcidUnits;
        (isAau ? anyAaus : anyOunces) = true;
        (isAau ? aaus : ounces) += amount.number;
    }
    std::string text;
    CellValue value;
    if (anyOunces != anyAaus) {
        const RoundedQuantity total = FormatQuantity(Finite(anyAaus ? aaus : ounces), 0);
        text = total.text + (anyAaus ? " AAUs" : " oz.");
        value = {anyAaus ? Kind::AlphaAcidUnits : Kind::Number, total.value};
    }
    hops.SetText(hops.TotalsRow(), HopCol::Amount, text);
    hops.SetValue(hops.TotalsRow(), HopCol::Amount, value);
}

}  // namespace tw

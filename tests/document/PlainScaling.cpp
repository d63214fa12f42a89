// Scaling of the plain recipe, each kind as one list of steps.
#include <tuple>

#include "PlainArithmetic.h"
#include "PlainRecipe.h"
#include "platform/Error.h"

namespace tw::test {

template <class Change>
PlainRecipe::Outcome PlainRecipe::TryForGood(Change change) {
    const auto before = std::make_tuple(boxes, rows, totals, residual, buttons, commands);
    const std::string texts = AllTexts();
    try {
        // An operation that stops on the way keeps what it has done so far.
        const bool ended = change();
        if (ended || AllTexts() != texts) changed = true;
        return ended ? Outcome::Done : Outcome::Refused;
    } catch (const Fault&) {
    } catch (const Error&) {
    }
    std::tie(boxes, rows, totals, residual, buttons, commands) = before;
    return Outcome::Raised;
}

std::string PlainRecipe::AllTexts() const {
    std::string texts;
    for (const auto& [name, box] : boxes) texts += box.text + "\n";
    for (const auto& [name, lines] : rows)
        for (const PlainRow& row : lines)
            for (const PlainCell& cell : row) texts += cell.text + "\n";
    return texts;
}

void PlainRecipe::Amount(PlainCell& cell, double number, int decimals, const std::string& unit) {
    const RoundedQuantity rounded = FormatQuantity(Sound(number), decimals);
    cell.number = rounded.value;
    cell.text = rounded.text + unit;
}

void PlainRecipe::Amounts(const std::string& grid, double factor) {
    const std::size_t col = grid == "gridHops" ? 4 : 1;
    for (PlainRow& row : rows[grid]) {
        PlainCell& cell = row[col];
        if (cell.text.empty()) continue;
        if (grid == "gridTreatment")
            Amount(cell, cell.number * factor, 3, " grams");
        else if (grid != "gridHops")
            Amount(cell, cell.number * factor, 0, " lbs.");
        else
            Amount(cell, cell.number * factor, 0,
                   cell.kind == 'A' ? " AAUs" : (cell.kind == 'I' ? " IBUs" : " oz."));
    }
    if (grid != "gridTreatment") AmountTotal(grid);
}

void PlainRecipe::AllFermentables() {
    for (const char* grid : {"gridGrain", "gridExtract"}) {
        for (int row = 0; row < static_cast<int>(rows[grid].size()); ++row) Hcu(grid, row, false);
        Sum(grid, 5);
        for (int row = 0; row < static_cast<int>(rows[grid].size()); ++row) Points(grid, row, false);
        Sum(grid, 3);
    }
    OriginalGravity();
    Color();
}

bool PlainRecipe::KeepIbu(double old) {
    const double now = boxes["txtIBU"].number;
    if (now == old) return true;
    if (now == 0) return false;
    Amounts("gridHops", Over(old, now));
    AllIbus();
    return true;
}

PlainRecipe::Outcome PlainRecipe::Resize(double size, const std::string& text, bool boil, bool keepIbu,
                                         bool carbonate) {
    return TryForGood([&] {
        const double oldSize = boxes["txtTotalVol"].number;
        if (oldSize == 0) return false;
        const PlainBox& oldFinal = boxes["txtFinalVol"];
        if (!oldFinal.text.empty() && oldFinal.number != oldSize) {
            if (FormatQuantity(Sound(size + oldSize - oldFinal.number), 0).value <= 0) return false;
        }
        const double factor = Over(size, oldSize);
        const double oldIbu = boxes["txtIBU"].number;
        double volumes = 0;
        if (!boxes["txtCO2"].text.empty())
            volumes = packaging == 1 ? rows["gridPressure"][0][1].number : totals["gridPriming"][3].number;
        if (boil && !boxes["txtBoilVol"].text.empty()) {
            PlainBox& box = boxes["txtBoilVol"];
            const RoundedQuantity rounded = FormatQuantity(Sound(box.number * factor), 0);
            box.number = rounded.value;
            box.text = rounded.text + " gal.";
        }
        PlainBox& final = boxes["txtFinalVol"];
        if (!final.text.empty() && final.number == oldSize) {
            final = {text, size};
        } else if (!final.text.empty()) {
            const RoundedQuantity rounded = FormatQuantity(Sound(size + oldSize - final.number), 0);
            final.number = rounded.value;
            final.text = rounded.text + " gal.";
        }
        boxes["txtTotalVol"] = {text, size};
        for (const char* grid : {"gridGrain", "gridExtract", "gridHops", "gridTreatment"})
            Amounts(grid, factor);
        bool carbonated = false;
        if (volumes > 0) {
            AllPriming();
            carbonated = carbonate && CarbonateNow(volumes);
        }
        AllFermentables();
        for (int row = 0; row < static_cast<int>(rows["gridTreatment"].size()); ++row) Treatment(row);
        TreatmentTotals();
        AllPriming();
        return !keepIbu || KeepIbu(oldIbu) || carbonated;
    });
}

PlainRecipe::Outcome PlainRecipe::ChangeOG(double og, bool keepIbu) {
    return TryForGood([&] {
        const double old = boxes["txtOG"].number;
        if (old == 1) return false;
        const double factor = Over(og - 1, old - 1);
        const double oldIbu = boxes["txtIBU"].number;
        Amounts("gridGrain", factor);
        Amounts("gridExtract", factor);
        AllFermentables();
        return !keepIbu || KeepIbu(oldIbu);
    });
}

PlainRecipe::Outcome PlainRecipe::ChangeIBU(double ibu) {
    return TryForGood([&] {
        const double old = boxes["txtIBU"].number;
        if (old == 0) return false;
        Amounts("gridHops", Over(ibu, old));
        AllIbus();
        return true;
    });
}

PlainRecipe::Outcome PlainRecipe::ChangeCO2(double volumes) {
    return TryForGood([&] { return CarbonateNow(volumes); });
}

bool PlainRecipe::CarbonateNow(double v) {
    const double t = boxes["txtTemp"].number;
    if (packaging == 1) {
        const double p = Sound(-16.6999 - 0.0101059 * t + 0.00116512 * (t * t) + 0.173354 * t * v +
                               4.24267 * v - 0.0684226 * (v * v));
        if (p < 0) return false;
        const RoundedQuantity rounded = FormatQuantity(p, 0);
        if (!KegVolumes(rounded.value)) return false;
        PlainCell& cell = rows["gridPressure"][0][0];
        cell.text = rounded.text + " psi";
        cell.number = rounded.value;
        KegVolumes(std::nullopt);
        ShowCO2();
        return true;
    }
    const double left = residual.number;
    if (v < left) return false;
    const PlainCell& total = totals["gridPriming"][3];
    const double given = (total.text.empty() ? 0 : total.number) - left;
    PlainRows& sugars = rows["gridPriming"];
    const auto fill = [&](std::size_t row, double ounces) {
        Amount(sugars[row][2], ounces, 0, " oz.");
        Priming(static_cast<int>(row));
        PrimingTotal();
        CarbonationCommand();
    };
    if (given > 0) {
        const double factor = Over(v - left, given);
        for (std::size_t row = 0; row < sugars.size(); ++row)
            if (!sugars[row][2].text.empty() && sugars[row][2].number > 0)
                fill(row, sugars[row][2].number * factor);
        return true;
    }
    for (std::size_t row = 0; row < sugars.size(); ++row) {
        const PlainCell& fermentable = sugars[row][1];
        if (fermentable.text.empty() || !(fermentable.number > 0)) continue;
        const PlainBox& final = boxes["txtFinalVol"];
        const double volume =
            final.number > 0 && !final.text.empty() ? final.number : boxes["txtTotalVol"].number;
        fill(row, Over((v - left) / 0.27027 * 0.133 * volume * 100, fermentable.number));
        return true;
    }
    return false;
}

}  // namespace tw::test

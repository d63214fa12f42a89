// The figures of the plain calculation: gravity, colour, hops, carbonation, water.
#include <cmath>

#include "PlainArithmetic.h"
#include "values/Converter.h"
#include "values/Text.h"

namespace tw::test {
namespace {

constexpr double kFormFactors[] = {1.15, 1.1, 1.0};

// The piecewise linear tables, given by their points.
double Rager(double t) {
    if (t < 9) return t * 0.05 / 9;
    if (t < 19) return 0.05 + (t - 9) * (0.12 - 0.05) / 10;
    if (t < 29) return 0.12 + (t - 19) * (0.15 - 0.12) / 10;
    if (t < 44) return 0.15 + (t - 29) * (0.19 - 0.15) / 15;
    if (t < 59) return 0.19 + (t - 44) * (0.22 - 0.19) / 15;
    if (t < 74) return 0.22 + (t - 59) * (0.24 - 0.22) / 15;
    if (t < 89) return 0.24 + (t - 74) * (0.27 - 0.24) / 15;
    return t == 89 || t >= 90 ? 0.27 : 0;
}
double Garetz(double t) {
    const double minutes[] = {5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 60, 70, 80, 90};
    const double values[] = {0, 0.01, 0.02, 0.05, 0.08, 0.11, 0.14, 0.16, 0.18, 0.19, 0.20, 0.21, 0.22, 0.23};
    if (t <= 5) return 0;
    if (t >= 90) return 0.23;
    int i = 0;
    while (t >= minutes[i + 1]) ++i;
    return values[i] + (t - minutes[i]) * (values[i + 1] - values[i]) / (minutes[i + 1] - minutes[i]);
}

double WithoutGas(double t) {
    const double square = t * t;
    return -16.6999 - 0.0101059 * t + 0.00116512 * square;
}

}  // namespace

// Gravity and colour.

void PlainRecipe::Points(const std::string& grid, int row, bool total) {
    PlainRow& line = rows[grid][static_cast<std::size_t>(row)];
    if (line[1].Empty() || line[2].Empty() || boxes["txtTotalVol"].text.empty()) {
        Blank(line[3]);
    } else {
        double efficiency = 1;
        if (grid == "gridGrain") {
            if (boxes["txtExtract"].text.empty()) {
                Blank(line[3]);
                return;
            }
            efficiency = boxes["txtExtract"].number / 100;
        }
        SetNumber(line[3], Over(line[1].number * line[2].number * efficiency, boxes["txtTotalVol"].number));
    }
    if (total) Sum(grid, 3);
}

void PlainRecipe::Hcu(const std::string& grid, int row, bool total) {
    PlainRow& line = rows[grid][static_cast<std::size_t>(row)];
    if (line[1].Empty() || line[4].Empty() || boxes["txtTotalVol"].text.empty())
        Blank(line[5]);
    else
        SetNumber(line[5], Over(line[1].number * line[4].number, boxes["txtTotalVol"].number));
    if (total) Sum(grid, 5);
}

void PlainRecipe::Sum(const std::string& grid, int col) {
    double sum = 0;
    bool any = false;
    for (const PlainRow& line : rows[grid])
        if (const PlainCell& cell = line[static_cast<std::size_t>(col)]; !cell.Empty()) {
            sum += cell.number;
            any = true;
        }
    PlainCell& total = totals[grid][static_cast<std::size_t>(col)];
    if (any)
        SetNumber(total, sum);
    else
        Blank(total);
}

void PlainRecipe::AmountTotal(const std::string& grid) {
    double sum[2] = {0, 0};
    bool any[2] = {false, false};
    const std::size_t col = grid == "gridHops" ? 4 : 1;
    for (const PlainRow& line : rows[grid]) {
        if (line[col].Empty() || line[col].kind == 'I') continue;
        const int which = line[col].kind == 'A' ? 1 : 0;
        sum[which] += line[col].number;
        any[which] = true;
    }
    PlainCell& total = totals[grid][col];
    Blank(total);
    if (any[0] == any[1]) return;
    const RoundedQuantity shown = FormatQuantity(Sound(any[0] ? sum[0] : sum[1]), 0);
    total.text = shown.text + (grid != "gridHops" ? " lbs." : any[0] ? " oz." : " AAUs");
}

void PlainRecipe::OriginalGravity() {
    const PlainCell& grain = totals["gridGrain"][3];
    const PlainCell& extract = totals["gridExtract"][3];
    PlainBox& og = boxes["txtOG"];
    if (grain.Empty() && extract.Empty()) {
        og.text.clear();
    } else {
        og.number = Sound(1 + (grain.number + extract.number) / 1000);
        og.text = FormatNumber(og.number, "0.##0");
    }
    commands["EnableChangeStrength"] = !og.text.empty();
    BoilGravity();
    Alcohol();
    AllIbus();
}

void PlainRecipe::BoilGravity() {
    PlainBox& bg = boxes["txtBG"];
    const PlainBox& total = boxes["txtTotalVol"];
    const PlainBox& boil = boxes["txtBoilVol"];
    const PlainBox& og = boxes["txtOG"];
    bg.text.clear();
    if (boil.text.empty() || total.text.empty() || og.text.empty()) return;
    bg.number = 1 + Over((og.number - 1) * total.number, boil.number);
    bg.text = FormatNumber(bg.number, "0.##0");
}

void PlainRecipe::Alcohol() {
    const PlainBox& og = boxes["txtOG"];
    const PlainBox& fg = boxes["txtFG"];
    const bool known = !og.text.empty() && !fg.text.empty();
    buttons["cmdStrengthDetails"] = buttons["cmdFinalVolDetails"] = known;
    boxes["txtABV"].text.clear();
    if (!known) return;
    const double oe = SGToPlato(og.number), ax = SGToPlato(fg.number);
    const double q = 0.22 + 0.001 * oe;
    const double re = Over(q * oe + ax, 1 + q);
    const double abw = Over(oe - re, 2.0665 - 0.010655 * oe);
    boxes["txtABV"].text = FormatNumber(Sound(abw * fg.number / 0.794) / 100, "0.0% abv");
}

void PlainRecipe::Color() {
    const PlainCell& grain = totals["gridGrain"][5];
    const PlainCell& extract = totals["gridExtract"][5];
    boxes["txtColor"].text.clear();
    if (grain.Empty() && extract.Empty()) return;
    const double hcu = Sound(grain.number + extract.number);
    const double srm = 1.4922 * std::pow(hcu, 0.6859);
    boxes["txtColor"].text =
        (srm > 50 ? ">50" : FormatNumber(srm, "0")) + " SRM (" + FormatNumber(hcu, "0") + " HCU)";
}

// Hops.

void PlainRecipe::Ibu(int row) {
    PlainRow& line = rows["gridHops"][static_cast<std::size_t>(row)];
    const PlainCell& amount = line[4];
    const bool blank = line[5].checked || amount.Empty() || boxes["txtBG"].text.empty() ||
                       boxes["txtTotalVol"].text.empty() || (amount.kind == ' ' && line[1].Empty()) ||
                       (amount.kind != 'I' && line[6].Empty());
    if (blank) {
        Blank(line[7]);
        return;
    }
    if (amount.kind == 'I') {
        SetNumber(line[7], amount.number);
        return;
    }
    const double acid = amount.kind == 'A' ? amount.number / 100 : amount.number * line[1].number / 100;
    double factor = kFormFactors[static_cast<int>(line[2].number)];
    if (line[3].checked) factor = factor * 0.9;
    const double volume = boxes["txtTotalVol"].number, bg = boxes["txtBG"].number, t = line[6].number;
    const double extraction = boxes["txtHopExtraction"].number;
    if (method == 0) {
        const double c = Over(acid * 7490, volume);
        const double b = 1.65 * std::pow(0.000125, bg - 1);
        const double time = (1 - std::exp(-0.04 * t)) / 4.15;
        SetNumber(line[7], factor * extraction * c * b * time);
    } else {
        const double adjustment = bg > 1.05 ? 1 + (bg - 1.05) / 0.2 : 1;
        const double u = method == 1 ? Rager(t) : Garetz(t);
        SetNumber(line[7], Over(u * acid * 7489 * factor * extraction, adjustment * volume));
    }
}

void PlainRecipe::AllIbus() {
    for (int row = 0; row < static_cast<int>(rows["gridHops"].size()); ++row) Ibu(row);
    Sum("gridHops", 7);
    ShowIbu();
}

void PlainRecipe::ShowIbu() {
    const PlainCell& total = totals["gridHops"][7];
    PlainBox& ibu = boxes["txtIBU"];
    ibu.text.clear();
    if (!total.Empty()) {
        ibu.number = total.number;
        ibu.text = FormatNumber(total.number, "0");
    }
    buttons["cmdIBUDetails"] = commands["EnableChangeBitterness"] = !total.Empty();
}

// Carbonation.

void PlainRecipe::Priming(int row) {
    PlainRow& line = rows["gridPriming"][static_cast<std::size_t>(row)];
    const PlainBox& final = boxes["txtFinalVol"];
    const PlainBox& total = boxes["txtTotalVol"];
    if (line[1].Empty() || line[2].Empty() || (final.text.empty() && total.text.empty())) {
        Blank(line[3]);
        return;
    }
    const double volume = final.text.empty() ? total.number : final.number;
    SetNumber(line[3], Over(line[2].number * (line[1].number / 100) * 0.27027, volume * 0.133));
}

void PlainRecipe::PrimingTotal() {
    PlainCell& total = totals["gridPriming"][3];
    if (residual.Empty()) {
        Blank(total);
    } else {
        double sum = 0;
        for (const PlainRow& line : rows["gridPriming"])
            if (!line[3].Empty()) sum += line[3].number;
        SetNumber(total, sum + residual.number);
    }
    ShowCO2();
}

void PlainRecipe::AllPriming() {
    for (int row = 0; row < static_cast<int>(rows["gridPriming"].size()); ++row) Priming(row);
    PrimingTotal();
}

void PlainRecipe::ShowCO2() {
    const PlainCell& cell = packaging == 0 ? totals["gridPriming"][3] : rows["gridPressure"][0][1];
    boxes["txtCO2"].text = cell.Empty() ? "" : FormatNumber(cell.number, "0.00 volumes");
}

bool PlainRecipe::KegVolumes(std::optional<double> pressure) {
    PlainRow& keg = rows["gridPressure"][0];
    if (!pressure && (keg[0].Empty() || boxes["txtTemp"].text.empty())) {
        Blank(keg[1]);
        return true;
    }
    const double t = boxes["txtTemp"].number, p = pressure ? *pressure : keg[0].number;
    const double a = -0.0684226, b = 0.173354 * t + 4.24267, c = WithoutGas(t) - p;
    const double d = b * b - 4 * a * c;
    if (d < 0) return false;
    double v = (-b + std::sqrt(d)) / (2 * a);
    if (v < 0) v = (-b - std::sqrt(d)) / (2 * a);
    if (v < 0) return false;
    if (!pressure) SetNumber(keg[1], v);
    return true;
}

bool PlainRecipe::Carbonation() {
    if (boxes["txtTemp"].text.empty()) {
        Blank(rows["gridPressure"][0][1]);
        Blank(residual);
    } else {
        if (!KegVolumes(std::nullopt)) return false;
        const double t = boxes["txtTemp"].number;
        const double square = t * t;
        SetNumber(residual, 3.0378 - 0.050062 * t + 0.00026555 * square);
    }
    PrimingTotal();
    return true;
}

void PlainRecipe::CarbonationCommand() {
    bool sugar = false;
    for (const PlainRow& line : rows["gridPriming"])
        sugar = sugar || (!line[1].Empty() && line[1].number > 0);
    const bool warm = !boxes["txtTemp"].text.empty();
    const bool volume = !boxes["txtFinalVol"].text.empty() || !boxes["txtTotalVol"].text.empty();
    commands["EnableChangeCarbonation"] = warm && (packaging == 1 || (volume && sugar));
}

// Water.

void PlainRecipe::Treatment(int row) {
    PlainRow& line = rows["gridTreatment"][static_cast<std::size_t>(row)];
    const bool blank = Trim(line[1].text).empty() || Trim(boxes["txtTotalVol"].text).empty();
    for (std::size_t col = 2; col < 8; ++col) {
        line[col].text.clear();
        if (blank) continue;
        const double ppm = Over(line[1].number * line[col].number, boxes["txtTotalVol"].number);
        line[col].text = FormatQuantity(ppm, 0).text;
    }
}

void PlainRecipe::TreatmentTotals() {
    const bool blank = Trim(boxes["txtTotalVol"].text).empty();
    for (std::size_t col = 2; col < 8; ++col) {
        double total = 0;
        if (!blank)
            for (const PlainRow& line : rows["gridTreatment"])
                if (!line[col].Empty())
                    total += Over(line[1].number * line[col].number, boxes["txtTotalVol"].number);
        PlainCell& cell = rows["gridWater"][4][col];
        const RoundedQuantity rounded = FormatQuantity(Sound(total), 0);
        cell.text = rounded.text;
        cell.number = rounded.value;
        MarkTotal(static_cast<int>(col));
    }
}

void PlainRecipe::Needed() {
    PlainRows& water = rows["gridWater"];
    for (std::size_t col = 2; col < 8; ++col) {
        const RoundedQuantity d = FormatQuantity(Sound(water[1][col].number - water[0][col].number), 0);
        water[3][col].text = d.text;
        water[3][col].number = d.value;
        MarkTotal(static_cast<int>(col));
    }
}

void PlainRecipe::MarkTotal(int col) {
    PlainRows& water = rows["gridWater"];
    const auto at = static_cast<std::size_t>(col);
    const double need = water[3][at].number;
    const double miss = std::fabs(need - water[4][at].number);
    // In ten-thousandths, so that exactly 2.5 and exactly 3% are included.
    const long double parts = std::round(static_cast<long double>(miss) * 10000);
    water[4][at].bold = parts <= 25000 || parts <= std::round(static_cast<long double>(need) * 300);
}

}  // namespace tw::test

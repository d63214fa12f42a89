#include "document/DetailWindows.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "calc/Figures.h"
#include "calc/Hops.h"
#include "values/Converter.h"
#include "values/NumberText.h"

namespace tw {
namespace {

// An extract, in degrees Plato, below this counts as 0: SGToPlato(1) is zero except for rounding errors.
constexpr double kNoExtract = 1e-9;

// Returns the text of a figure; empty if calculating it raises Error.
std::string Show(const std::function<std::string()>& figure) {
    try {
        return figure();
    } catch (const Error&) {
        return "";
    }
}

std::string PlatoWithGravity(double plato, double gravity) {
    return FormatNumber(plato, "0.##0") + "° Plato (" + FormatNumber(gravity, "0.##0") + ")";
}

std::string Gallons(double gallons) {
    return FormatNumber(gallons, "0.#0") + " gal.";
}

// Returns the attenuation, in percent of the original extract. Both extracts are in degrees Plato.
std::string Attenuation(double original, double left) {
    const double whole = std::abs(original) < kNoExtract ? 0 : original;
    return FormatNumber(Divide((original - left) * 100, whole), "0.#0") + "%";
}

// A linear fit of the program's own: 0.42 degrees C below 0 per percent of alcohol by weight, plus 0.04
// degrees C per degree Plato of original extract. Valid for beers; nothing is limited.
std::string FreezingPoint(const AlcoholFigures& f) {
    const double fahrenheit = 32 - (f.byWeight * 0.42 + f.originalExtract * 0.04) * 1.8;
    return FormatNumber(fahrenheit, "0.0° F") + " (" + FormatNumber((fahrenheit - 32) * 5 / 9, "0.0° C") +
           ")";
}

}  // namespace

DetailsModel::DetailsModel(std::string formName, std::vector<DialogControl> labels, int slider)
    : FormModel(std::move(formName)), slider_(slider) {
    for (DialogControl& label : labels)
        AddControls({{std::move(label.name), [text = std::move(label.text)] { return text; }}});
    AddButtons({{"cmdClose", [this] { Close(); }}});
}

DetailsModel StrengthDetails(double originalSG, double finalSG) {
    const auto alcohol = [=] { return ComputeAlcohol(originalSG, finalSG); };
    std::vector<DialogControl> labels{
        {"lblOE", Show([&] { return PlatoWithGravity(alcohol().originalExtract, originalSG); })},
        {"lblAE", Show([&] { return PlatoWithGravity(alcohol().apparentExtract, finalSG); })},
        {"lblRE", Show([&] {
             const double re = alcohol().realExtract;
             return PlatoWithGravity(re, Finite(PlatoToSG(re)));
         })},
        {"lblAA", Show([&] { return Attenuation(alcohol().originalExtract, alcohol().apparentExtract); })},
        {"lblRA", Show([&] { return Attenuation(alcohol().originalExtract, alcohol().realExtract); })},
        {"lblAW", Show([&] { return FormatNumber(alcohol().byWeight, "0.0") + "%"; })},
        {"lblAV", Show([&] { return FormatNumber(alcohol().byVolume, "0.0") + "%"; })},
        {"lblCC", Show([&] {
             return FormatNumber(CaloriesPer12FlOz(alcohol().realExtract, alcohol().byWeight, finalSG),
                                 "0 per 12 fl.oz.");
         })},
        {"lblFP", Show([&] { return FreezingPoint(alcohol()); })}};
    return {DetailsModel::kStrengthForm, std::move(labels)};
}

DetailsModel FinalVolDetails(const FinalVolInput& in) {
    // The wort that goes into the package, in US gallons; the rest is lost.
    const double wort = std::min(in.finalVol - in.dilutions, in.totalVol);
    const auto share = [=] { return Divide(wort, wort + in.dilutions); };
    const auto dilutedGravity = [=] { return 1 + Divide((in.fg - 1) * wort, wort + in.dilutions); };
    const auto alcohol = [=] { return ComputeAlcohol(in.og, in.fg); };
    std::vector<DialogControl> labels{
        {"lblTotalVol", Gallons(in.totalVol)},
        {"lblXferLosses", Gallons(in.totalVol - wort)},
        {"lblDilution", Gallons(in.dilutions)},
        {"lblFinalVolume", Gallons(in.finalVol)},
        {"lblNumberBottles", FormatNumber(in.finalVol * kFluidOuncesPerGallon / 12, "0.0")},
        {"lblOG", Show([&] { return PlatoWithGravity(Finite(SGToPlato(in.og)), in.og); })},
        {"lblFG", Show([&] { return PlatoWithGravity(Finite(SGToPlato(in.fg)), in.fg); })},
        {"lblDG",
         Show([&] { return PlatoWithGravity(Finite(SGToPlato(dilutedGravity())), dilutedGravity()); })},
        {"lblAlcohol", Show([&] {
             const double byVolume = alcohol().byVolume * share();
             const double byWeight = Divide(byVolume * 0.794, dilutedGravity());
             return FormatNumber(byVolume, "0.0") + "% abv (" + FormatNumber(byWeight, "0.0") + "% abw)";
         })},
        {"lblCalories", Show([&] {
             return FormatNumber(
                 CaloriesPer12FlOz(alcohol().realExtract, alcohol().byWeight, in.fg) * share(),
                 "0 per 12 fl.oz.");
         })}};
    return {DetailsModel::kFinalVolForm, std::move(labels)};
}

int BalancePosition(double ratio) {
    const double above = std::max(ratio - 1.0 / 8, 0.0);
    return static_cast<int>(std::min(std::pow(above * 0.93366, 0.66047), 1.0) * 1000);
}

DetailsModel HopDetails(double originalSG, double ibu) {
    const double gravityUnits = (originalSG - 1) * 1000;
    int slider = 0;
    std::vector<DialogControl> labels{{"lblBU", FormatNumber(ibu, "0.0")},
                                      {"lblGU", FormatNumber(gravityUnits, "0.0")},
                                      {"lblRatio", Show([&] {
                                           const double ratio = BitternessPerGravity(ibu, originalSG);
                                           slider = BalancePosition(ratio);
                                           return FormatNumber(ratio, "0.##0");
                                       })}};
    return {DetailsModel::kHopForm, std::move(labels), slider};
}

DetailsModel StrengthDetailsOf(const RecipeDocument& document) {
    const RecipeRecord& r = document.Record();
    return StrengthDetails(r.txtOG.Value(), r.txtFG.Value());
}

DetailsModel FinalVolDetailsOf(const RecipeDocument& document) {
    const RecipeRecord& r = document.Record();
    const double totalVol = r.txtTotalVol.Value();
    return FinalVolDetails({totalVol, r.txtDilutions.Committed().empty() ? 0 : r.txtDilutions.Value(),
                            r.txtFinalVol.Committed().empty() ? totalVol : r.txtFinalVol.Value(),
                            r.txtOG.Value(), r.txtFG.Value()});
}

DetailsModel HopDetailsOf(const RecipeDocument& document) {
    const RecipeRecord& r = document.Record();
    return HopDetails(r.txtOG.Value(), r.txtIBU.Value());
}

}  // namespace tw

// The planning of yeasts, other ingredients, waters and carbonation.
#include <algorithm>
#include <array>
#include <cmath>

#include "calc/Figures.h"
#include "doctor/ExactUnits.h"
#include "doctor/PlanContext.h"
#include "document/RowFiller.h"
#include "exchange/AsciiCase.h"
#include "record/RecipeRecord.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

// True for what changes the water, by the word that both formats have for it.
bool IsWaterAgent(const ForeignMisc& misc) {
    return UpperAscii(misc.type).find("WATER") != std::string::npos;
}

// Returns the text behind the name of a pitched yeast: what the file says besides, separated by commas.
std::string Description(const PlanContext& c, const ForeignYeast& yeast) {
    const std::string amount =
        yeast.amount && yeast.amount->value > 0 ? c.texts.Any(*yeast.amount, Weighed::Other) : std::string();
    std::string text;
    for (const std::string& part : {yeast.laboratory, yeast.productId, amount, yeast.form})
        if (!part.empty()) text.append(text.empty() ? "" : ", ").append(part);
    return text;
}

using Ion = std::optional<double> ForeignWater::*;
// In the order of the columns: calcium, carbonate, chloride, magnesium, sodium, sulfate. The catalogue's
// carbonate column counts bicarbonate.
constexpr std::array<Ion, kIons> kIonsOfWater = {&ForeignWater::calcium,  &ForeignWater::bicarbonate,
                                                 &ForeignWater::chloride, &ForeignWater::magnesium,
                                                 &ForeignWater::sodium,   &ForeignWater::sulfate};

// Returns one ion of the waters together, by their amounts; if one states none, or all of
// them 0, they count alike.
std::optional<double> Mixed(const std::vector<ForeignWater>& waters, Ion ion) {
    const bool weighed =
        std::ranges::all_of(waters, [](const ForeignWater& w) { return w.litres.has_value(); }) &&
        std::ranges::any_of(waters, [](const ForeignWater& w) { return w.litres.value_or(0) > 0; });
    double sum = 0, weights = 0;
    for (const ForeignWater& water : waters) {
        const double weight = weighed ? *water.litres : 1;
        if (weight == 0) continue;
        if (!(water.*ion)) return std::nullopt;
        sum += weight * *(water.*ion);
        weights += weight;
    }
    return sum / weights;
}

std::string MixName(const std::vector<ForeignWater>& waters) {
    std::string name;
    for (const ForeignWater& water : waters) name.append(name.empty() ? "" : " + ").append(water.name);
    return name;
}

}  // namespace

void PlanYeasts(PlanContext& c) {
    for (std::size_t i = 0; i < c.recipe.yeasts.size(); ++i) {
        const ForeignYeast& yeast = c.recipe.yeasts[i];
        const std::string place = PlaceOf("Yeasts", i, yeast.name);
        const auto match =
            c.figures.Match(CatalogueKind::Yeast, {yeast.name, {}, yeast.laboratory, yeast.productId});
        // " - " ends the name, as the finished gravity is looked up by it.
        std::string notes = match ? match->name : ReplaceAll(yeast.name, " - ", ", ");
        if (match && !match->IsOwnName())
            c.Report(Severity::Note, FindingCode::CatalogueFigure, place,
                     "It was read as " + match->name + " of the catalogue.");
        const std::string description = Description(c, yeast);
        if (!description.empty()) notes.append(" - ").append(description);
        c.plan.lines.push_back({GridId::Log,
                                place,
                                {{LogCol::Action, std::string(kPitchedYeast)}, {LogCol::Notes, notes}},
                                false,
                                {{ForeignLine::Kind::Yeast, i}}});
        if (yeast.attenuation && *yeast.attenuation > 0) c.plan.attenuation = yeast.attenuation;
    }
    if (!Trim(c.recipe.tasteNotes).empty())
        c.plan.lines.push_back({GridId::Log,
                                "Taste notes",
                                {{LogCol::Action, "Tasted"}, {LogCol::Notes, c.recipe.tasteNotes}},
                                false,
                                {}});
}

void PlanMiscs(PlanContext& c) {
    for (std::size_t i = 0; i < c.recipe.miscs.size(); ++i) {
        const ForeignMisc& misc = c.recipe.miscs[i];
        const std::string place = PlaceOf("Other ingredients", i, misc.name);
        const bool weighed = misc.amount && misc.amount->of == ForeignAmount::Of::Mass;
        const auto salt =
            IsWaterAgent(misc) && weighed ? c.figures.Match(CatalogueKind::Salt, {misc.name}) : std::nullopt;
        PlannedLine line{
            salt ? GridId::Treatment : GridId::Adjuncts, place, {}, false, {{ForeignLine::Kind::Misc, i}}};
        if (salt) {
            // The ions follow from the catalogue, so that the entry's own name must stand there.
            line.cells = {{TreatmentCol::Name, salt->name},
                          {TreatmentCol::Amount, c.texts.Weight(*misc.amount, Weighed::Salt)}};
            if (!salt->IsOwnName())
                c.Report(Severity::Note, FindingCode::CatalogueFigure, place,
                         "It was read as " + salt->name + " of the catalogue.");
        } else {
            line.cells = {
                {AdjunctCol::Name, misc.name},
                {AdjunctCol::Amount, misc.amount ? c.texts.Any(*misc.amount, Weighed::Other) : ""},
                {AdjunctCol::WhenAdded, misc.use ? std::string(WhenAdded(*misc.use)) : misc.useWritten},
                {AdjunctCol::Time, misc.minutes && *misc.minutes > 0 ? TimeText(*misc.minutes) : ""}};
        }
        c.plan.lines.push_back(std::move(line));
    }
}

void PlanWaters(PlanContext& c) {
    const std::vector<ForeignWater>& waters = c.recipe.waters;
    if (waters.empty()) return;
    PlannedLine line{GridId::Water, PlaceOf("Waters", 0, waters.front().name), {}, false, {}};
    for (std::size_t i = 0; i < waters.size(); ++i) line.from.push_back({ForeignLine::Kind::Water, i});
    line.cells.push_back({WaterCol::Profile, MixName(waters)});
    for (int ion = 0; ion < kIons; ++ion) {
        const auto amount = Mixed(waters, kIonsOfWater[static_cast<std::size_t>(ion)]);
        line.cells.push_back({WaterCol::FirstIon + ion, amount ? FewestDecimals(*amount) : ""});
    }
    if (waters.size() > 1)
        c.Report(Severity::Approximated, FindingCode::WaterMix, line.place,
                 "The recipe has " + std::to_string(waters.size()) +
                     " waters; their mixture by amount is the source water.");
    c.plan.lines.push_back(std::move(line));
}

void PlanCarbonation(PlanContext& c) {
    const ForeignRecipe& recipe = c.recipe;
    if (!recipe.carbonation && !recipe.forced) return;
    const bool keg = recipe.forced.value_or(false);
    c.plan.bottled = !keg;
    if (!recipe.carbonation) return;
    constexpr double kUsualCelsius = 20, kUsualKegCelsius = 4, kFreezing = 32, kDegrees = 1.8;
    const double celsius = recipe.carbonationCelsius.value_or(keg ? kUsualKegCelsius : kUsualCelsius);
    const double fahrenheit = celsius * kDegrees + kFreezing;
    if (!recipe.carbonationCelsius)
        c.Report(Severity::Approximated, FindingCode::Priming, "Carbonation",
                 "The file does not know the temperature of the beer; " + c.texts.Temperature(celsius) +
                     " was assumed.");
    c.plan.fields.push_back({FieldId::Temp, c.texts.Temperature(celsius)});
    if (keg) {
        const double psi = KegPressure(fahrenheit, *recipe.carbonation);
        if (psi >= 0)
            c.plan.lines.push_back({GridId::Pressure,
                                    "Carbonation",
                                    {{PressureCol::Pressure, FewestDecimals(psi) + " psi"}},
                                    false,
                                    {}});
        return;
    }
    const double volumes = *recipe.carbonation - ResidualCO2(fahrenheit);
    if (volumes <= 0 || !recipe.batchSize) return;
    const std::string sought = recipe.primingSugar.empty() ? "Corn Sugar (Dextrose)" : recipe.primingSugar;
    const auto sugar = c.figures.Sugar({sought});
    if (!sugar || !sugar->figures.fermentable) {
        c.Report(Severity::NotCarried, FindingCode::Priming, "Carbonation",
                 "The catalogue does not know the priming sugar '" + sought + "'; no amount was calculated.");
        return;
    }
    const double ounces =
        PrimingOunces(volumes, *sugar->figures.fermentable, recipe.batchSize->value / kLitresPerGallon);
    const std::string text =
        c.texts.Weight({ForeignAmount::Of::Mass, ounces * kKilogramsPerOunce, {}}, Weighed::PrimingSugar);
    c.Report(Severity::Approximated, FindingCode::Priming, "Carbonation",
             text + " of " + sugar->match.name + " give the " + FewestDecimals(*recipe.carbonation) +
                 " volumes of the file.");
    c.plan.lines.push_back(
        {GridId::Priming,
         "Carbonation",
         {{PrimingCol::Sugar,
           sugar->match.IsOwnName() || recipe.primingSugar.empty() ? sugar->match.name : recipe.primingSugar},
          {PrimingCol::Fermentable, NumberText(*sugar->figures.fermentable)},
          {PrimingCol::Amount, text}},
         false,
         {}});
}

}  // namespace tw

#include "doctor/RecipePlanner.h"

#include "doctor/PlainText.h"
#include "doctor/PlanContext.h"
#include "exchange/ForeignPlace.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns how the file calls the style: by its name, else by guide and number, "BJCP 2015 18B"; empty if it
// does neither.
std::string WordsFor(const ForeignStyle& style) {
    const std::string name(Trim(style.name));
    const std::string number = style.categoryNumber + style.letter;
    if (!name.empty() || number.empty()) return name;
    return std::string(Trim(style.guide + " " + number));
}

void PlanStyle(PlanContext& c) {
    const std::string words = c.recipe.style ? WordsFor(*c.recipe.style) : std::string();
    if (words.empty()) return;
    const ForeignStyle& style = *c.recipe.style;
    const auto match = c.figures.Match(CatalogueKind::Style,
                                       {style.name, {}, style.guide, style.categoryNumber + style.letter});
    if (match) {
        c.plan.style = match->name;
        if (!match->IsOwnName())
            c.Report(Severity::Note, FindingCode::CatalogueFigure, "Style",
                     "The style '" + words + "' was read as " + match->name + ".");
        return;
    }
    c.Report(Severity::NotCarried, FindingCode::StyleUnknown, "Style",
             "The catalogue does not know the style '" + words + "'; the recipe has no style.");
}

// Returns the boil volume, or what is nearest to it; nullptr if the file has none.
const ForeignAmount* BoilSize(PlanContext& c) {
    const ForeignRecipe& recipe = c.recipe;
    if (recipe.boilSize) return &*recipe.boilSize;
    const ForeignAmount* const other = recipe.equipmentBoilSize ? &*recipe.equipmentBoilSize
                                       : recipe.batchSize       ? &*recipe.batchSize
                                                                : nullptr;
    if (other)
        c.Report(Severity::Approximated, FindingCode::Missing, "Boil size",
                 "The file does not know the size of the boil; that of the " +
                     std::string(recipe.equipmentBoilSize ? "equipment" : "batch") + " was taken.");
    return other;
}

void PlanFields(PlanContext& c) {
    const ForeignRecipe& recipe = c.recipe;
    constexpr double kFull = 100;
    std::string kept;
    const auto add = [&](FieldId field, bool stated, const std::string& text, std::string_view what) {
        if (stated)
            c.plan.fields.push_back({field, text});
        else
            kept.append(kept.empty() ? "" : ", ").append(what);
    };
    add(FieldId::TotalVol, recipe.batchSize.has_value(),
        recipe.batchSize ? c.texts.Volume(*recipe.batchSize) : "", "batch size");
    const ForeignAmount* const boil = BoilSize(c);
    add(FieldId::BoilVol, boil != nullptr, boil ? c.texts.Volume(*boil) : "", "boil size");
    add(FieldId::Extract, recipe.efficiency.has_value(), FewestDecimals(recipe.efficiency.value_or(0)) + "%",
        "efficiency");
    add(FieldId::HopExtraction, recipe.hopUtilization.has_value(),
        FewestDecimals(recipe.hopUtilization.value_or(0) / kFull), "hop utilization");
    if (!kept.empty())
        c.Report(Severity::Note, FindingCode::Missing, "Recipe",
                 "The file does not state: " + kept + ". What a new recipe has was kept.");
}

std::optional<IbuMethod> MethodOf(const ForeignRecipe& recipe) {
    if (!recipe.ibuMethod) return std::nullopt;
    switch (*recipe.ibuMethod) {
        case ForeignIbuMethod::Tinseth:
            return IbuMethod::Tinseth;
        case ForeignIbuMethod::Rager:
            return IbuMethod::Rager;
        case ForeignIbuMethod::Garetz:
            break;
    }
    return IbuMethod::Garetz;
}

// Returns what is understood but has no field in a recipe here, and what is not even understood.
std::vector<std::string> KeptAside(const ForeignRecipe& recipe) {
    std::vector<std::string> kept;
    if (!recipe.brewer.empty()) kept.emplace_back("brewer");
    if (!recipe.assistant.empty()) kept.emplace_back("assistant brewer");
    if (!recipe.date.empty()) kept.emplace_back("date");
    if (recipe.tasteRating) kept.emplace_back("taste rating");
    kept.insert(kept.end(), recipe.keptAside.begin(), recipe.keptAside.end());
    return kept;
}

void ReportKeptAside(PlanContext& c) {
    const std::vector<std::string> kept = KeptAside(c.recipe);
    if (kept.empty()) return;
    constexpr std::size_t kNamed = 12;
    std::string names;
    for (std::size_t i = 0; i < kept.size() && i < kNamed; ++i)
        names.append(names.empty() ? "" : ", ").append(kept[i]);
    if (kept.size() > kNamed) names += " and " + std::to_string(kept.size() - kNamed) + " more";
    c.Report(Severity::NotCarried, FindingCode::Carried, "Recipe",
             "These have no place in a recipe here and are kept beside it: " + names + ".");
}

}  // namespace

RecipePlan RecipePlanner::Plan(const ForeignRecipe& recipe, const ImportOptions& options,
                               Findings& findings) {
    RecipePlan plan;
    PlanContext c{recipe, options, figures_, AmountTexts(options.units, recipe), plan, findings};
    plan.name = RecipeName(recipe.name);
    plan.ibuMethod = MethodOf(recipe);
    plan.catalogueAttenuation = options.catalogueFigures;
    plan.attenuation = recipe.attenuation;
    PlanStyle(c);
    PlanFields(c);
    PlanCarbonation(c);
    PlanFermentables(c);
    PlanHops(c);
    PlanMiscs(c);
    PlanWaters(c);
    PlanYeasts(c);
    if (recipe.stated.fg) plan.finishedGravity = GravityText(*recipe.stated.fg);
    if (std::string notes = PlainText(recipe.notes); !notes.empty())
        plan.fields.push_back({FieldId::Notes, std::move(notes)});
    ReportKeptAside(c);
    return plan;
}

}  // namespace tw

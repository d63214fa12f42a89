#include "doctor/RecipeDoctor.h"

#include <algorithm>

#include "doctor/CalculatedFigures.h"
#include "doctor/RecipeTypist.h"
#include "document/RowFiller.h"

namespace tw {
namespace {

// The remedies of the options that are offered.
ImportOptions Helping(const ImportOptions& options, const RemediesOffered& offered) {
    ImportOptions helping = options;
    helping.grams = options.grams && offered.grams;
    helping.gravity = options.gravity && offered.gravity;
    helping.bitterness = options.bitterness && offered.bitterness;
    helping.ebc = options.ebc && offered.ebc;
    return helping;
}

ImportOptions WithoutRemedies(ImportOptions options) {
    options.grams = options.gravity = options.bitterness = options.ebc = false;
    return options;
}

void SetField(RecipePlan& plan, FieldId field, const std::string& text) {
    const auto planned = std::ranges::find(plan.fields, field, &PlannedField::field);
    if (planned == plan.fields.end())
        plan.fields.push_back({field, text});
    else
        planned->text = text;
}

}  // namespace

RecipeDoctor::RecipeDoctor(Database& database, Platform& platform, const ColorTable& colors,
                           RecipeDefaults defaults)
    : database_(database),
      platform_(platform),
      colors_(colors),
      host_(std::move(defaults)),
      figures_(database),
      catalogue_(database) {}

ExaminedRecipe RecipeDoctor::Examine(const ForeignRecipe& recipe, const ImportOptions& options) {
    ExaminedRecipe examined;
    const ImportOptions plain = WithoutRemedies(options);
    Attempt(recipe, plain, examined);
    const RemediesOffered offered = examined.offered;
    const ImportOptions helping = Helping(options, offered);
    if (helping == plain) return examined;
    Attempt(recipe, helping, examined);
    // What was offered stays so, so that the brewer can take it back.
    examined.offered = offered;
    return examined;
}

void RecipeDoctor::Attempt(const ForeignRecipe& recipe, const ImportOptions& options,
                           ExaminedRecipe& examined) {
    Findings findings;
    examined.plan = RecipePlanner(figures_).Plan(recipe, options, findings);
    Findings typing;
    Type(examined, typing);
    // The bitterness depends on the gravity, so that comes first.
    const auto meet = [&](FieldId field, const std::optional<std::string>& text) {
        if (!text) return;
        SetField(examined.plan, field, *text);
        typing = {};
        Type(examined, typing);
    };
    if (options.gravity && recipe.stated.og)
        meet(FieldId::Extract, ExtractionFor(examined.document->Record(), *recipe.stated.og));
    if (options.bitterness && recipe.stated.ibu)
        meet(FieldId::HopExtraction, HopConstantFor(examined.document->Record(), *recipe.stated.ibu));
    for (const Finding& finding : typing.All()) findings.Add(finding);
    CheckAmounts(recipe, findings);
    const TypedFigures figures = FiguresOf(recipe, examined);
    examined.calculated = figures.calculated;
    examined.offered = CheckFigures(recipe, figures, findings);
    examined.findings = findings.All();
}

void RecipeDoctor::Type(ExaminedRecipe& examined, Findings& findings) {
    examined.document = std::make_unique<RecipeDocument>(host_, platform_, database_, colors_, 0);
    RecipeTypist(*examined.document, findings).Type(examined.plan);
}

TypedFigures RecipeDoctor::FiguresOf(const ForeignRecipe& recipe, const ExaminedRecipe& examined) {
    const RecipeRecord& record = examined.document->Record();
    const StatedFigures& stated = recipe.stated;
    TypedFigures figures{CalculatedFigures(record), BitternessWithoutForm(record), examined.plan.attenuation,
                         stated.og && ExtractionFor(record, *stated.og),
                         stated.ibu && HopConstantFor(record, *stated.ibu)};
    if (figures.attenuation || recipe.yeasts.empty()) return figures;
    if (const auto yeast = catalogue_.Yeast(examined.document->Yeast().Name()))
        figures.attenuation = yeast->attenuation;
    return figures;
}

}  // namespace tw

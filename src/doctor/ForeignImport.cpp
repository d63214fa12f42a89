#include "doctor/ForeignImport.h"

#include "doctor/CatalogueAdditions.h"
#include "store/CarriedData.h"
#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {
namespace {

std::string_view FormatWord(ExchangeFormat format) {
    return format == ExchangeFormat::BeerXml ? kCarriedBeerXml : kCarriedBeerJson;
}

}  // namespace

std::optional<std::string> ForeignImport::NameFor(std::string name) {
    while (!name.empty() && names_.Find(name)) {
        const ConflictAnswer answer = host_.ResolveConflict(name, names_.FreeName(name));
        switch (answer.response) {
            case ConflictResponse::Overwrite:
                return name;
            case ConflictResponse::Abort:
                return std::nullopt;
            case ConflictResponse::Skip:
                return std::string();
            case ConflictResponse::Rename:
                name = Trim(answer.newName);
                break;
        }
    }
    return name;
}

void ForeignImport::Store(const ForeignFile& file, std::string_view source, const ForeignRecipe& recipe,
                          RecipeDocument& document, const std::string& name, std::int64_t folderId) {
    Database& database = doctor_.Store();
    if (const auto old = names_.Find(name)) DeleteRecipeRows(database, *old, RecipeEnd::Overwritten);
    document.Storage().SaveUnder(name, folderId, Asking::Quietly);
    const std::optional<std::int64_t> id = RecipeId(database, name);
    if (!id) return;
    names_.Put(name, *id);
    if (!recipe.fragment.empty())
        CarriedData(database).Keep(*id, FormatWord(file.format), source, catalogue_.clock.Now(),
                                   recipe.fragment);
}

void ForeignImport::Extend(const ForeignFile& file, const ImportOptions& options, Findings& findings) {
    CatalogueAdditions additions(catalogue_, doctor_.Figures());
    int added = 0;
    if (options.addStyles) added += additions.AddStyles(file, findings);
    if (options.addIngredients) added += additions.AddIngredients(file, findings);
    if (added > 0) doctor_.Figures().Forget();
}

void ForeignImport::Undo(UnitOfWork& unit) {
    unit.Abandon();
    // What was added to the catalogue is gone, too.
    doctor_.Figures().Forget();
}

int ForeignImport::Run(const ForeignFile& file, std::string_view source, const ForeignChoice& choice,
                       Findings& findings) {
    Database& database = doctor_.Store();
    names_.Read(database);
    UnitOfWork unit(database);
    int imported = 0, number = 0;
    const auto total = static_cast<int>(choice.recipes.size());
    try {
        Extend(file, choice.options, findings);
        for (const std::size_t index : choice.recipes) {
            const ForeignRecipe& recipe = file.recipes[index];
            const ExaminedRecipe examined = doctor_.Examine(recipe, choice.options);
            const bool goOn = host_.Continue(examined.plan.name, number++, total);
            const auto name = goOn ? NameFor(examined.plan.name) : std::nullopt;
            if (!name) {
                Undo(unit);
                return 0;
            }
            for (const Finding& finding : examined.findings) findings.Add(finding);
            if (name->empty()) continue;
            Store(file, source, recipe, *examined.document, *name, choice.folderId);
            ++imported;
        }
        unit.Commit();
    } catch (...) {
        Undo(unit);
        throw;
    }
    return imported;
}

}  // namespace tw

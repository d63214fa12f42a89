#include <cmath>
#include <optional>

#include "doctor/PlanContext.h"
#include "doctor/RecipePlanner.h"
#include "exchange/ForeignUnits.h"
#include "record/RecipeRecord.h"
#include "values/NumberText.h"

namespace tw {
namespace {

using Type = ForeignFermentable::Type;

// Returns the kilograms of one litre; nullopt for an ingredient of unknown density. Malt extract and honey
// are sold at about 80 degrees Brix, juice has about 12.
std::optional<double> DensityOf(std::optional<Type> type) {
    constexpr double kSyrup = 1.42, kJuice = 1.05;
    switch (type.value_or(Type::Grain)) {
        case Type::Extract:
        case Type::Honey:
        case Type::Sugar:
            return kSyrup;
        case Type::Juice:
        case Type::Fruit:
            return kJuice;
        default:
            return std::nullopt;
    }
}

std::string AmountText(PlanContext& c, const ForeignFermentable& line, const std::string& place) {
    if (!line.amount) return {};
    ForeignAmount amount = *line.amount;
    if (amount.of == ForeignAmount::Of::Pieces) {
        c.Report(Severity::Suspicious, FindingCode::AmountUnit, place,
                 "The amount is given in pieces, not as a weight; it was left out.");
        return {};
    }
    if (amount.of == ForeignAmount::Of::Volume) {
        const std::optional<double> density = DensityOf(line.type);
        amount = {ForeignAmount::Of::Mass, amount.value * density.value_or(1), {}};
        c.Report(Severity::Approximated, FindingCode::AmountUnit, place,
                 "The amount is given as a volume; it was read as " + FewestDecimals(density.value_or(1)) +
                     " kg a liter.");
    }
    if (c.options.grams && HasMaltSlip(c.recipe)) {
        amount.value /= 1000;
        amount.written.clear();
    }
    return c.texts.Weight(amount, Weighed::Malt);
}

// Returns the points that yield and potential state; nullopt if the file has neither.
std::optional<double> StatedPoints(PlanContext& c, const ForeignFermentable& line, const std::string& place) {
    constexpr double kApart = 2, kFull = 100;
    if (!line.yield && !line.potential) return std::nullopt;
    const double byYield = line.yield.value_or(0) / kFull * kPointsOfFullYield;
    const double byPotential = (line.potential.value_or(1) - 1) * 1000;
    if (!line.yield) return byPotential;
    if (!line.potential || std::abs(byYield - byPotential) < kApart) return byYield;
    const bool potentialWins = *line.yield == kFull;
    const double used = potentialWins ? byPotential : byYield;
    c.Report(Severity::Suspicious, FindingCode::YieldPotential, place,
             "The yield of " + FewestDecimals(*line.yield) + "% means " + FewestDecimals(byYield) +
                 " points, the potential " + FewestDecimals(byPotential) + "; " + FewestDecimals(used) +
                 " was taken.");
    return used;
}

std::optional<double> StatedColor(const PlanContext& c, const ForeignFermentable& line) {
    if (!line.lovibond || !c.options.ebc) return line.lovibond;
    return LovibondOfSrm(*line.lovibond / kEbcPerSrm);
}

// Returns the text of a figure: as stated, else that of the catalogue; empty if neither has one.
std::string FigureText(PlanContext& c, const std::string& place, std::string_view what,
                       std::optional<double> stated, const CatalogueMatch* match,
                       std::optional<double> inCatalogue) {
    if (stated) return FewestDecimals(*stated);
    if (!match || !inCatalogue || !c.options.catalogueFigures) {
        c.Report(Severity::Suspicious, FindingCode::NoFigure, place,
                 "Neither the file nor the catalogue knows the " + std::string(what) + "; it stays empty.");
        return {};
    }
    std::string text = NumberText(*inCatalogue);
    c.ReportFigure(place, what, text, *match);
    return text;
}

}  // namespace

bool IsMashed(const ForeignFermentable& line) {
    switch (line.type.value_or(Type::Grain)) {
        case Type::Grain:
            return true;
        case Type::Adjunct:
        case Type::Other:
            return line.recommendMash.value_or(true);
        default:
            return false;
    }
}

void PlanFermentables(PlanContext& c) {
    for (std::size_t i = 0; i < c.recipe.fermentables.size(); ++i) {
        const ForeignFermentable& line = c.recipe.fermentables[i];
        const std::string place = PlaceOf("Fermentables", i, line.name);
        const bool mashed = IsMashed(line);
        const auto known = c.figures.Fermentable(mashed ? CatalogueKind::Grain : CatalogueKind::Extract,
                                                 {line.name, line.origin, line.supplier, line.productId});
        const CatalogueMatch* const match = known ? &known->match : nullptr;
        const FermentableFigures figures = known ? known->figures : FermentableFigures{};
        PlannedLine planned{mashed ? GridId::Grain : GridId::Extract,
                            place,
                            {},
                            false,
                            {{ForeignLine::Kind::Fermentable, i}}};
        planned.cells = {
            {GrainCol::Name, match && match->IsOwnName() ? match->name : line.name},
            {GrainCol::Amount, AmountText(c, line, place)},
            {GrainCol::Ppg, FigureText(c, place, "yield", StatedPoints(c, line, place), match, figures.ppg)},
            {GrainCol::Color, FigureText(c, place, "color", StatedColor(c, line), match, figures.lovibond)}};
        if (line.afterBoil)
            c.Report(Severity::Approximated, FindingCode::LateExtract, place,
                     "It is added after the boil; here it counts for the gravity of the boil, too.");
        c.plan.lines.push_back(std::move(planned));
    }
}

}  // namespace tw

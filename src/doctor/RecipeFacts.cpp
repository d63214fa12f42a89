#include "doctor/RecipeFacts.h"

#include <algorithm>
#include <array>

#include "doctor/CalculatedFigures.h"
#include "doctor/ExactUnits.h"
#include "doctor/PlanContext.h"
#include "doctor/RecipePlanner.h"
#include "document/RowFiller.h"
#include "exchange/AsciiCase.h"
#include "values/Text.h"

namespace tw {
namespace {

// Words in the names of sugars, and of dry extracts, which share a grid with liquid ones.
constexpr std::array<std::string_view, 17> kSugarWords = {
    "SUGAR",      "HONEY", "DEXTROSE",     "SUCROSE",      "GLUCOSE", "LACTOSE",
    "MOLASSES",   "CANDI", "TREACLE",      "JUICE",        "NECTAR",  "INVERT",
    "CORN SYRUP", "MAPLE", "GOLDEN SYRUP", "MALTODEXTRIN", "PANELA"};

bool HasAny(std::string_view name, std::span<const std::string_view> words) {
    const std::string upper = UpperAscii(name);
    return std::ranges::any_of(words,
                               [&](std::string_view word) { return upper.find(word) != std::string::npos; });
}

ForeignFermentable::Type ExtractType(std::string_view name) {
    constexpr std::array<std::string_view, 3> kDryWords = {"DRY", "DRIED", "DME"};
    if (HasAny(name, kSugarWords)) return ForeignFermentable::Type::Sugar;
    return HasAny(name, kDryWords) ? ForeignFermentable::Type::DryExtract : ForeignFermentable::Type::Extract;
}

// Returns the amount of a cell: as its text says, else by the number behind it, in units of that many
// kilograms.
std::optional<ForeignAmount> WeightOf(const Grid& grid, int row, int col, double unit) {
    const std::string& text = grid.Text(row, col);
    if (text.empty()) return std::nullopt;
    const double kilograms = KilogramsIn(text).value_or(grid.Number(row, col) * unit);
    return ForeignAmount{ForeignAmount::Of::Mass, kilograms, std::string(Trim(text))};
}

std::optional<double> NumberOf(const Grid& grid, int row, int col) {
    if (grid.Empty(row, col)) return std::nullopt;
    return grid.Number(row, col);
}

std::optional<ForeignAmount> VolumeOf(const TextBox& box) {
    if (box.Empty()) return std::nullopt;
    return ForeignAmount{ForeignAmount::Of::Volume,
                         LitresIn(box.Text()).value_or(box.Value() * kLitresPerGallon),
                         std::string(Trim(box.Text()))};
}

ForeignHop::Form FormOf(const Grid& hops, int row) {
    switch (static_cast<int>(hops.Number(row, HopCol::Form))) {
        case 0:
            return ForeignHop::Form::Pellet;
        case 1:
            return ForeignHop::Form::Plug;
        default:
            return ForeignHop::Form::Leaf;
    }
}

bool IsDry(ForeignUse use) {
    return use == ForeignUse::Primary || use == ForeignUse::Secondary || use == ForeignUse::Package;
}

// Returns when something is added by the words of the list, the nearest for other words.
std::optional<ForeignUse> UseOf(std::string_view whenAdded) {
    for (const ForeignUse use : {ForeignUse::Mash, ForeignUse::Boil, ForeignUse::Whirlpool,
                                 ForeignUse::Primary, ForeignUse::Secondary, ForeignUse::Package})
        if (SameName(WhenAdded(use), whenAdded)) return use;
    const std::string upper = UpperAscii(whenAdded);
    const auto has = [&](std::string_view word) { return upper.find(word) != std::string::npos; };
    if (has("MASH")) return ForeignUse::Mash;
    if (has("FERMENT")) return ForeignUse::Primary;
    if (has("BOTTL") || has("KEG")) return ForeignUse::Package;
    return Trim(whenAdded).empty() ? std::nullopt : std::optional(ForeignUse::Boil);
}

ForeignRange RangeOf(const FigureRange& range) {
    return {range.low, range.high};
}

}  // namespace

void RecipeFacts::Report(FindingCode code, std::string place, std::string text) const {
    findings_.Add({Severity::Approximated, code, document_.Caption(), std::move(place), std::move(text)});
}

ForeignFermentable RecipeFacts::Fermentable(const Grid& grid, int row, ForeignFermentable base) const {
    constexpr double kFull = 100;
    base.name = grid.Text(row, GrainCol::Name);
    const bool mashed = grid.Id() == GridId::Grain;
    if (!base.type) base.type = mashed ? ForeignFermentable::Type::Grain : ExtractType(base.name);
    base.amount = WeightOf(grid, row, GrainCol::Amount, kKilogramsPerPound);
    const std::optional<double> points = NumberOf(grid, row, GrainCol::Ppg);
    base.yield = points ? std::optional(*points / kPointsOfFullYield * kFull) : std::nullopt;
    base.potential = points ? std::optional(1 + *points / 1000) : std::nullopt;
    base.lovibond = NumberOf(grid, row, GrainCol::Color);
    return base;
}

ForeignHop RecipeFacts::Hop(int row, ForeignHop base) const {
    const Grid& hops = R().gridHops;
    base.name = hops.Text(row, HopCol::Variety);
    const std::string place = PlaceOf("Hops", static_cast<std::size_t>(row - Grid::FixedRows()), base.name);
    base.alpha = NumberOf(hops, row, HopCol::AlphaAcid);
    base.form = FormOf(hops, row);
    base.amount = WeightOf(hops, row, HopCol::Amount, kKilogramsPerOunce);
    const CellValue::Kind kind = hops.At(row, HopCol::Amount).value.kind;
    if (kind == CellValue::Kind::AlphaAcidUnits || kind == CellValue::Kind::BitternessUnits) {
        const std::optional<double> ounces = document_.Calculator().HopOunces(row);
        base.amount = ForeignAmount{ForeignAmount::Of::Mass, ounces.value_or(0) * kKilogramsPerOunce, {}};
        Report(FindingCode::AmountUnit, place,
               "The amount '" + hops.Text(row, HopCol::Amount) + "' is written as its weight.");
    }
    if (hops.Checked(row, HopCol::Sock))
        Report(FindingCode::Form, place, "No other program knows hop socks; the factor of 0.9 is lost.");
    const std::optional<double> minutes = MinutesIn(hops.Text(row, HopCol::Time));
    const bool dry = hops.Checked(row, HopCol::DryHopped);
    // A hop that is not boiled keeps the use and the time of its own file.
    const bool stands = base.use && !IsDry(*base.use) && *base.use != ForeignUse::Boil && !dry;
    if (stands && (*base.use == ForeignUse::FirstWort || minutes.value_or(0) == 0)) return base;
    if (!base.use || IsDry(*base.use) != dry || stands)
        base.use = dry ? ForeignUse::Primary : ForeignUse::Boil;
    base.minutes = minutes;
    return base;
}

ForeignMisc RecipeFacts::Adjunct(int row, ForeignMisc base) const {
    const Grid& grid = R().gridAdjuncts;
    base.name = grid.Text(row, AdjunctCol::Name);
    if (base.type.empty()) base.type = "Other";
    base.amount = AmountIn(grid.Text(row, AdjunctCol::Amount));
    const std::string& text = grid.Text(row, AdjunctCol::Amount);
    if (!base.amount && !Trim(text).empty())
        Report(FindingCode::AmountUnit,
               PlaceOf("Other adjuncts", static_cast<std::size_t>(row - 1), base.name),
               "The amount '" + text + "' is no quantity; it is left out.");
    base.use = UseOf(grid.Text(row, AdjunctCol::WhenAdded));
    base.useWritten = grid.Text(row, AdjunctCol::WhenAdded);
    base.minutes = MinutesIn(grid.Text(row, AdjunctCol::Time));
    return base;
}

ForeignMisc RecipeFacts::Salt(int row, ForeignMisc base) const {
    constexpr double kKilogramsPerGram = 0.001;
    const Grid& grid = R().gridTreatment;
    base.name = grid.Text(row, TreatmentCol::Name);
    base.type = "Water Agent";
    if (!base.use) base.use = ForeignUse::Mash;
    base.amount = WeightOf(grid, row, TreatmentCol::Amount, kKilogramsPerGram);
    return base;
}

ForeignYeast RecipeFacts::Yeast(int logRow, ForeignYeast base) const {
    const std::string name(PitchedYeastName(R().gridLog.Text(logRow, LogCol::Notes)));
    base.name = name;
    if (const CatalogueFacts* const known = figures_.Facts(CatalogueKind::Yeast, name)) {
        base.laboratory = known->source;
        base.productId = known->code;
        if (base.form.empty()) base.form = known->form;
    }
    if (const auto figures = catalogue_.Yeast(name); figures && !base.attenuation)
        base.attenuation = figures->attenuation;
    return base;
}

ForeignWater RecipeFacts::SourceWater(ForeignWater base) const {
    const Grid& grid = R().gridWater;
    base.name = grid.Text(WaterRow::Source, WaterCol::Profile);
    const auto ion = [&](int index) { return NumberOf(grid, WaterRow::Source, WaterCol::FirstIon + index); };
    int index = 0;
    for (auto* const field :
         {&base.calcium, &base.bicarbonate, &base.chloride, &base.magnesium, &base.sodium, &base.sulfate})
        *field = ion(index++);
    if (const auto volume = VolumeOf(R().txtTotalVol); !base.litres && volume) base.litres = volume->value;
    return base;
}

std::optional<ForeignStyle> RecipeFacts::Style() const {
    const auto figures = catalogue_.Style(document_.StyleID());
    if (!figures) return std::nullopt;
    ForeignStyle style;
    style.name = document_.BeerStyle();
    if (const CatalogueFacts* const known = figures_.Facts(CatalogueKind::Style, style.name)) {
        const std::size_t letter = known->code.find_first_not_of("0123456789");
        style.categoryNumber = known->code.substr(0, letter);
        if (letter != std::string::npos) style.letter = known->code.substr(letter);
        style.guide = known->source;
    }
    style.og = RangeOf(figures->og);
    style.fg = RangeOf(figures->fg);
    style.ibu = RangeOf(figures->ibu);
    style.srm = RangeOf(figures->color);
    style.volumes = RangeOf(figures->co2);
    style.abv = RangeOf(figures->abv);
    return style;
}

// The profile of the style comes back with the style.
bool RecipeFacts::HasOwnTargetWater() const {
    const Grid& water = R().gridWater;
    const std::string& profile = water.Text(WaterRow::Target, WaterCol::Profile);
    if (Trim(profile).empty()) {
        for (int ion = 0; ion < kIons; ++ion)
            if (!water.Empty(WaterRow::Target, WaterCol::FirstIon + ion)) return true;
        return false;
    }
    const auto style = catalogue_.Style(document_.StyleID());
    return !style || !style->waterProfile || !SameName(profile, Trim(*style->waterProfile));
}

bool RecipeFacts::HasSecondSugar() const {
    const Grid& priming = R().gridPriming;
    for (int row = Grid::FixedRows() + 1; R().Bottled() && row < priming.EndOfData(); ++row)
        if (!IsBlankRow(priming, row)) return true;
    return false;
}

void RecipeFacts::ReportWithoutPlace() const {
    const RecipeRecord& r = R();
    std::string lost;
    const auto add = [&](bool there, std::string_view words) {
        if (there) lost.append(lost.empty() ? "" : ", ").append(words);
    };
    add(!r.txtNumBatches.Empty(), "number of batches");
    add(HasOwnTargetWater(), "target water");
    add(!r.txtDilutions.Empty(), "dilutions");
    add(!r.txtFinalVol.Empty(), "final volume");
    add(HasSecondSugar(), "second priming sugar");
    if (lost.empty()) return;
    findings_.Add({Severity::NotCarried,
                   FindingCode::Carried,
                   document_.Caption(),
                   {},
                   "Other programs have no place for: " + lost + "."});
}

ForeignRecipe RecipeFacts::Fields() const {
    constexpr double kFull = 100;
    const RecipeRecord& r = R();
    ForeignRecipe facts;
    facts.name = std::string(Trim(r.txtName.Text()));
    facts.batchSize = VolumeOf(r.txtTotalVol);
    facts.boilSize = VolumeOf(r.txtBoilVol);
    if (!r.txtExtract.Empty()) facts.efficiency = r.txtExtract.Value();
    if (r.txtHopExtraction.Value() != 1) facts.hopUtilization = r.txtHopExtraction.Value() * kFull;
    facts.stated = CalculatedFigures(r);
    constexpr std::array kMethods = {ForeignIbuMethod::Tinseth, ForeignIbuMethod::Rager,
                                     ForeignIbuMethod::Garetz};
    const auto method = static_cast<std::size_t>(r.grpIBUMethod.Selected());
    if (method < kMethods.size()) facts.ibuMethod = kMethods[method];
    facts.style = Style();
    facts.notes = r.txtNotes.Text();
    if (!r.txtCO2.Empty()) facts.carbonation = document_.Calculator().CO2Volumes();
    facts.forced = !r.Bottled();
    constexpr double kFreezing = 32, kDegrees = 1.8;
    if (!r.txtTemp.Empty()) facts.carbonationCelsius = (r.txtTemp.Value() - kFreezing) / kDegrees;
    if (r.Bottled()) facts.primingSugar = r.gridPriming.Text(Grid::FixedRows(), PrimingCol::Sugar);
    return facts;
}

}  // namespace tw

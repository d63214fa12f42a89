#include "document/MissingFigures.h"

#include <optional>
#include <utility>

#include "document/RowFiller.h"
#include "record/CellRules.h"
#include "values/Text.h"

namespace tw {
namespace {

// A cell without which a row gives nothing to a figure of the recipe.
struct Need {
    GridId grid = GridId::Grain;
    int nameCol = 0;
    int amountCol = 0;
    int neededCol = 0;
    std::optional<FieldId> figure;  // nullopt for the salts, which no figure counts
    const char* lack = nullptr;
};

// In the order in which they are told: a row says only the first that it lacks.
constexpr Need kNeeds[] = {
    {GridId::Grain, GrainCol::Name, GrainCol::Amount, GrainCol::Ppg, FieldId::OG,
     "gives no gravity until you enter its PPG"},
    {GridId::Grain, GrainCol::Name, GrainCol::Amount, GrainCol::Color, FieldId::Color,
     "gives no color until you enter its degrees Lovibond"},
    {GridId::Extract, GrainCol::Name, GrainCol::Amount, GrainCol::Ppg, FieldId::OG,
     "gives no gravity until you enter its PPG"},
    {GridId::Extract, GrainCol::Name, GrainCol::Amount, GrainCol::Color, FieldId::Color,
     "gives no color until you enter its degrees Lovibond"},
    {GridId::Hops, HopCol::Variety, HopCol::Amount, HopCol::AlphaAcid, FieldId::IBU,
     "gives no bitterness until you enter its alpha acid"},
    {GridId::Priming, PrimingCol::Sugar, PrimingCol::Amount, PrimingCol::Fermentable, FieldId::CO2,
     "gives no carbonation until you enter how much of it ferments"},
    {GridId::Treatment, TreatmentCol::Name, TreatmentCol::Amount, TreatmentCol::FirstIon, std::nullopt,
     "changes no water until it is in the catalogue"},
};

// Bitterness typed as AAUs or IBUs needs no alpha acid, and a dry hop gives none.
bool DoesWithout(const Need& need, const Grid& grid, int row) {
    if (need.grid != GridId::Hops) return false;
    const CellValue::Kind kind = grid.At(row, HopCol::Amount).value.kind;
    return grid.Checked(row, HopCol::DryHopped) || kind == CellValue::Kind::AlphaAcidUnits ||
           kind == CellValue::Kind::BitternessUnits;
}

bool Lacks(const Need& need, const Grid& grid, int row) {
    return need.grid == grid.Id() && !IsBlank(grid.Text(row, need.nameCol)) &&
           IsBlank(grid.Text(row, need.neededCol)) && !DoesWithout(need, grid, row);
}

// A cell whose text is also a figure of its row in the catalogue.
struct Known {
    GridId grid;
    int col;
    std::string_view column;  // as in DraftFigure
};

constexpr Known kKnown[] = {
    {GridId::Grain, GrainCol::Ppg, "PPG"},         {GridId::Grain, GrainCol::Color, "COLOR"},
    {GridId::Extract, GrainCol::Ppg, "PPG"},       {GridId::Extract, GrainCol::Color, "COLOR"},
    {GridId::Hops, HopCol::AlphaAcid, "AA"},       {GridId::Priming, PrimingCol::Fermentable, "FERMENT"},
    {GridId::Water, WaterCol::FirstIon, "CA"},     {GridId::Water, WaterCol::FirstIon + 1, "CO3"},
    {GridId::Water, WaterCol::FirstIon + 2, "CL"}, {GridId::Water, WaterCol::FirstIon + 3, "MG"},
    {GridId::Water, WaterCol::FirstIon + 4, "NA"}, {GridId::Water, WaterCol::FirstIon + 5, "SO4"},
};

// The name of a catalogue row in a row of a grid.
struct RowName {
    CatalogueKind kind;
    std::string name;
};

std::optional<RowName> NameIn(const Grid& grid, int row) {
    if (!grid.IsDataRow(row)) return std::nullopt;
    for (int col = 0; col < grid.Cols(); ++col) {
        const CellNames names = RuleOf(grid, col).names;
        const auto kind = CatalogueOf(names);
        if (!kind || (names == CellNames::PitchedYeast && !PitchesYeast(grid, row))) continue;
        const std::string& text = grid.Text(row, col);
        std::string name(names == CellNames::PitchedYeast ? PitchedYeastName(text) : Trim(text));
        if (name.empty()) return std::nullopt;
        return RowName{*kind, std::move(name)};
    }
    return std::nullopt;
}

constexpr const char* kNoFinishedGravity = "gives no finished gravity; enter it on the General tab";

}  // namespace

bool MissingFigures::Knows(const Grid& grid, int row) const {
    const auto name = NameIn(grid, row);
    return name && catalogue_.Knows(name->kind, name->name);
}

std::optional<CatalogueDraft> MissingFigures::DraftOf(const Grid& grid, int row) const {
    auto name = NameIn(grid, row);
    if (!name || catalogue_.Knows(name->kind, name->name)) return std::nullopt;
    CatalogueDraft draft{name->kind, std::move(name->name), {}};
    for (const Known& known : kKnown)
        if (known.grid == grid.Id() && !IsBlank(grid.Text(row, known.col)))
            draft.figures.push_back({known.column, grid.Text(row, known.col)});
    return draft;
}

std::string MissingFigures::ReasonOf(const Grid& grid, int row) const {
    if (!grid.IsDataRow(row)) return {};
    const char* lack = nullptr;
    for (const Need& need : kNeeds)
        if (lack == nullptr && Lacks(need, grid, row)) lack = need.lack;
    if (grid.Id() == GridId::Log && IsBlank(record_.txtFG.Text()) && DraftOf(grid, row))
        lack = kNoFinishedGravity;
    if (lack == nullptr) return {};
    return std::string(Knows(grid, row) ? "No figure in the catalogue: " : "Not in the catalogue: ") + lack;
}

std::vector<std::string> MissingFigures::ReasonsOf(FieldId figure) const {
    std::vector<std::string> reasons;
    const FieldId summed = figure == FieldId::ABV ? FieldId::OG : figure;
    for (const Need& need : kNeeds) {
        if (need.figure != summed) continue;
        const Grid& grid = record_[need.grid];
        for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row)
            if (Lacks(need, grid, row) && grid.Number(row, need.amountCol) != 0)
                reasons.push_back(std::string(Trim(grid.Text(row, need.nameCol))) + " " + need.lack);
    }
    const bool needsFinished = figure == FieldId::ABV || figure == FieldId::FG;
    if (needsFinished && IsBlank(record_.txtFG.Text()) && !IsBlank(record_.txtOG.Text()))
        reasons.emplace_back(PitchingRow(record_.gridLog)
                                 ? "The finished gravity is missing: enter it, or choose the yeast again"
                                 : "The finished gravity is missing: enter it, or choose a yeast");
    return reasons;
}

}  // namespace tw

#include "doctor/RecipeExporter.h"

#include <algorithm>
#include <array>

#include "doctor/PlanContext.h"
#include "doctor/RecipeComparison.h"
#include "doctor/RecipePlanner.h"
#include "document/RowFiller.h"
#include "exchange/ForeignFileReader.h"
#include "store/CarriedData.h"
#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {
namespace {

// Returns the text of a file that contains only that fragment.
std::string FileOf(const CarriedFragment& fragment) {
    if (fragment.format == kCarriedBeerXml) return fragment.content;
    return R"({"beerjson":{"version":2.06,"recipes":[)" + fragment.content + "]}}";
}

const std::string* PlannedText(const RecipePlan& plan, FieldId field) {
    const auto planned = std::ranges::find(plan.fields, field, &PlannedField::field);
    return planned == plan.fields.end() ? nullptr : &planned->text;
}

bool SameText(std::string_view a, std::string_view b) {
    return Trim(a) == Trim(b);
}

// Puts one recipe together: what was there before, and what has changed.
class ExportAssembly {
  public:
    ExportAssembly(const RecipeDocument& document, const RecipeFacts& rows, const ForeignRecipe* original,
                   const RecipePlan* plan, Findings& findings)
        : document_(document), rows_(rows), plan_(plan), findings_(findings) {
        if (original) {
            base_ = *original;
            out_.facts = *original;
            out_.facts.fermentables.clear();
            out_.facts.hops.clear();
            out_.facts.yeasts.clear();
            out_.facts.miscs.clear();
            out_.facts.waters.clear();
        }
    }

    ExportedRecipe Assemble() {
        const RecipePlan none;
        const RecipeComparison compared = Compare(document_.Record(), plan_ ? *plan_ : none);
        for (const ComparedRow& row : compared.rows) Add(row);
        linesChanged_ = compared.Unchanged() != compared.rows.size() || !compared.gone.empty();
        Fields();
        return std::move(out_);
    }

  private:
    using Kind = ForeignLine::Kind;

    const RecipeRecord& R() const { return document_.Record(); }

    void Add(const ComparedRow& row) {
        if (row.unchanged && row.line) return Keep(*row.line);
        const ForeignLine* const from =
            row.line && !row.line->from.empty() ? &row.line->from.front() : nullptr;
        switch (row.grid->Id()) {
            case GridId::Grain:
            case GridId::Extract:
                return Put(
                    out_.facts.fermentables, out_.fermentables,
                    rows_.Fermentable(*row.grid, row.row, Base(base_.fermentables, from, Kind::Fermentable)),
                    from);
            case GridId::Hops:
                return Put(out_.facts.hops, out_.hops, rows_.Hop(row.row, Base(base_.hops, from, Kind::Hop)),
                           from);
            case GridId::Treatment:
                return Put(out_.facts.miscs, out_.miscs,
                           rows_.Salt(row.row, Base(base_.miscs, from, Kind::Misc)), from);
            case GridId::Adjuncts:
                return Put(out_.facts.miscs, out_.miscs,
                           rows_.Adjunct(row.row, Base(base_.miscs, from, Kind::Misc)),
                           from && from->kind == Kind::Misc ? from : nullptr);
            case GridId::Water:
                return AddWater(row);
            case GridId::Log:
                return AddLog(row, from);
            default:
                return;
        }
    }

    // Returns the original line, or an empty one.
    template <class Line>
    static Line Base(const std::vector<Line>& lines, const ForeignLine* from, Kind kind) {
        return from && from->kind == kind && from->index < lines.size() ? lines[from->index] : Line();
    }

    template <class Line>
    static void Put(std::vector<Line>& lines, std::vector<LineOrigin>& origins, Line line,
                    const ForeignLine* from, bool unchanged = false) {
        lines.push_back(std::move(line));
        origins.push_back({from ? std::optional(from->index) : std::nullopt, unchanged});
    }

    // Returns a line of the original with the amount as it was typed here, for a format that has units; the
    // original may have shown none.
    template <class Line>
    static Line Shown(Line line, const PlannedLine& planned) {
        // In every other grid of lines it is the second column.
        int col = GrainCol::Amount;
        if (planned.grid == GridId::Hops) col = HopCol::Amount;
        const auto amount = std::ranges::find(planned.cells, col, &PlannedCell::col);
        if (line.amount && line.amount->written.empty() && amount != planned.cells.end())
            line.amount->written = amount->text;
        return line;
    }

    // The lines go back as they came.
    void Keep(const PlannedLine& line) {
        for (const ForeignLine& from : line.from) {
            switch (from.kind) {
                case Kind::Fermentable:
                    Put(out_.facts.fermentables, out_.fermentables,
                        Shown(base_.fermentables[from.index], line), &from, true);
                    break;
                case Kind::Hop:
                    Put(out_.facts.hops, out_.hops, Shown(base_.hops[from.index], line), &from, true);
                    break;
                case Kind::Yeast:
                    Put(out_.facts.yeasts, out_.yeasts, base_.yeasts[from.index], &from, true);
                    break;
                case Kind::Misc:
                    Put(out_.facts.miscs, out_.miscs, Shown(base_.miscs[from.index], line), &from, true);
                    break;
                case Kind::Water:
                    Put(out_.facts.waters, out_.waters, base_.waters[from.index], &from, true);
                    break;
            }
        }
    }

    // A mixture that the brewer has changed is one water of its own.
    void AddWater(const ComparedRow& row) {
        const bool one = row.line && row.line->from.size() == 1;
        const ForeignLine* const from = one ? &row.line->from.front() : nullptr;
        Put(out_.facts.waters, out_.waters, rows_.SourceWater(Base(base_.waters, from, Kind::Water)), from);
    }

    void AddLog(const ComparedRow& row, const ForeignLine* from) {
        const Grid& log = *row.grid;
        if (PitchesYeast(log, row.row))
            return Put(out_.facts.yeasts, out_.yeasts,
                       rows_.Yeast(row.row, Base(base_.yeasts, from, Kind::Yeast)), from);
        if (SameName(log.Text(row.row, LogCol::Action), "Tasted")) {
            out_.facts.tasteNotes = log.Text(row.row, LogCol::Notes);
            out_.changed.insert(ExportedField::TasteNotes);
            return;
        }
        findings_.Add(
            {Severity::NotCarried, FindingCode::Carried, document_.Caption(),
             PlaceOf("Brew log", static_cast<std::size_t>(row.row - 1), log.Text(row.row, LogCol::Action)),
             "Other programs have no place for this entry of the brew log."});
    }

    void Fields() {
        ForeignRecipe now = rows_.Fields();
        if (!plan_) {
            TakeLines(now);
            out_.facts = std::move(now);
            out_.facts.type = TypeOf();
            out_.facts.boilMinutes = LongestBoil();
            return;
        }
        ShowVolume(out_.facts.batchSize, now.batchSize);
        ShowVolume(out_.facts.boilSize, now.boilSize);
        Take(ExportedField::Name, SameText(plan_->name, now.name), &ForeignRecipe::name, now);
        Take(ExportedField::BatchSize, Unchanged(FieldId::TotalVol), &ForeignRecipe::batchSize, now);
        Take(ExportedField::BoilSize, Unchanged(FieldId::BoilVol), &ForeignRecipe::boilSize, now);
        Take(ExportedField::Efficiency, Unchanged(FieldId::Extract), &ForeignRecipe::efficiency, now);
        const bool usual = !PlannedText(*plan_, FieldId::HopExtraction) && R().txtHopExtraction.Value() == 1;
        Take(ExportedField::HopUtilization, usual || Unchanged(FieldId::HopExtraction),
             &ForeignRecipe::hopUtilization, now);
        Take(ExportedField::Notes, Unchanged(FieldId::Notes), &ForeignRecipe::notes, now);
        Take(ExportedField::Style, plan_->style.value_or("(None)") == document_.BeerStyle(),
             &ForeignRecipe::style, now);
        Carbonation(now);
        Figures(now);
    }

    static void ShowVolume(std::optional<ForeignAmount>& original,
                           const std::optional<ForeignAmount>& typed) {
        if (original && typed && original->written.empty()) original->written = typed->written;
    }

    // Moves the lines that have been put together to recipe.
    void TakeLines(ForeignRecipe& recipe) {
        recipe.fermentables = std::move(out_.facts.fermentables);
        recipe.hops = std::move(out_.facts.hops);
        recipe.yeasts = std::move(out_.facts.yeasts);
        recipe.miscs = std::move(out_.facts.miscs);
        recipe.waters = std::move(out_.facts.waters);
        recipe.tasteNotes = std::move(out_.facts.tasteNotes);
    }

    ForeignRecipe::Type TypeOf() const {
        using Type = ForeignFermentable::Type;
        const auto& lines = out_.facts.fermentables;
        const bool mashes =
            std::ranges::any_of(lines, [](const auto& line) { return line.type == Type::Grain; });
        const bool extracts = std::ranges::any_of(lines, [](const auto& line) {
            return line.type == Type::Extract || line.type == Type::DryExtract;
        });
        if (!mashes && extracts) return ForeignRecipe::Type::Extract;
        return extracts ? ForeignRecipe::Type::PartialMash : ForeignRecipe::Type::AllGrain;
    }

    // The boil lasts as long as the first hop in it; a recipe without boiled hops does not tell.
    std::optional<double> LongestBoil() const {
        std::optional<double> longest;
        for (const ForeignHop& hop : out_.facts.hops)
            if (hop.use == ForeignUse::Boil && hop.minutes)
                longest = std::max(longest.value_or(0), *hop.minutes);
        return longest;
    }

    bool Unchanged(FieldId field) const {
        const std::string* const planned = PlannedText(*plan_, field);
        const std::string& text = const_cast<RecipeRecord&>(R())[field].Text();
        return SameText(planned ? *planned : std::string(), text);
    }

    template <class Field>
    void Take(ExportedField field, bool unchanged, Field ForeignRecipe::*member, ForeignRecipe& now) {
        if (unchanged) return;
        out_.facts.*member = std::move(now.*member);
        out_.changed.insert(field);
        fieldsChanged_ = true;
    }

    void Carbonation(ForeignRecipe& now) {
        const auto same = [&](const PlannedLine& line) {
            if (line.grid != GridId::Priming && line.grid != GridId::Pressure) return true;
            return std::ranges::all_of(line.cells, [&](const PlannedCell& cell) {
                return SameText(R()[line.grid].Text(Grid::FixedRows(), cell.col), cell.text);
            });
        };
        const bool unchanged = std::ranges::all_of(plan_->lines, same) && Unchanged(FieldId::Temp) &&
                               plan_->bottled.value_or(R().Bottled()) == R().Bottled() &&
                               (base_.carbonation || !now.carbonation);
        if (unchanged) return;
        out_.facts.carbonation = now.carbonation;
        out_.facts.forced = now.forced;
        out_.facts.carbonationCelsius = now.carbonationCelsius;
        out_.facts.primingSugar = now.primingSugar;
        out_.changed.insert(ExportedField::Carbonation);
    }

    // The figures that the other program has calculated stand only for what it knew.
    void Figures(const ForeignRecipe& now) {
        const bool finished =
            !plan_->finishedGravity.empty() && !SameText(plan_->finishedGravity, R().txtFG.Text());
        if (!linesChanged_ && !fieldsChanged_ && !finished) return;
        out_.facts.stated = now.stated;
        out_.facts.ibuMethod = now.ibuMethod;
        for (const ExportedField field :
             {ExportedField::OriginalGravity, ExportedField::FinalGravity, ExportedField::Alcohol,
              ExportedField::Bitterness, ExportedField::Color})
            out_.changed.insert(field);
    }

    const RecipeDocument& document_;
    const RecipeFacts& rows_;
    const RecipePlan* plan_;
    Findings& findings_;
    ForeignRecipe base_;
    ExportedRecipe out_;
    bool linesChanged_ = false;
    bool fieldsChanged_ = false;
};

}  // namespace

RecipeExporter::RecipeExporter(Database& database, Platform& platform, const ColorTable& colors,
                               ImportUnits units)
    : database_(database),
      platform_(platform),
      colors_(colors),
      units_(units),
      host_(RecipeDefaults{}),
      figures_(database) {}

RecipePlan RecipeExporter::PlanOf(const ForeignRecipe& recipe, ImportUnits units) {
    ImportOptions options;
    options.units = units;
    Findings ignored;
    return RecipePlanner(figures_).Plan(recipe, options, ignored);
}

std::optional<RecipeExporter::Original> RecipeExporter::OriginalOf(const RecipeDocument& document,
                                                                   std::int64_t id) {
    const std::vector<CarriedFragment> carried = CarriedData(database_).Of(id);
    if (carried.empty()) return std::nullopt;
    std::optional<ForeignFile> file = ReadForeignFile(FileOf(carried.front()));
    if (!file || file->recipes.empty()) return std::nullopt;
    Original original{std::move(file->recipes.front()), file->format, {}};
    original.recipe.fragment = carried.front().content;
    // The setting may have been another one when the recipe was imported.
    std::size_t best = 0;
    for (const ImportUnits units : {units_, ImportUnits::AsInFile, ImportUnits::US, ImportUnits::Metric}) {
        RecipePlan plan = PlanOf(original.recipe, units);
        const RecipeComparison compared = Compare(document.Record(), plan);
        const std::size_t unchanged = compared.Unchanged();
        if (unchanged < best || (unchanged == best && best > 0)) continue;
        best = unchanged;
        original.plan = std::move(plan);
        if (unchanged == compared.rows.size()) break;
    }
    if (original.plan.name.empty()) original.plan = PlanOf(original.recipe, units_);
    return original;
}

ExportedRecipe RecipeExporter::Prepare(const std::string& name, ExchangeFormat format, Findings& findings) {
    RecipeDocument document(host_, platform_, database_, colors_, 0);
    document.Storage().Open(name);
    const std::optional<std::int64_t> id = RecipeId(database_, name);
    const std::optional<Original> original = id ? OriginalOf(document, *id) : std::nullopt;
    const RecipeFacts rows(document, database_, figures_, findings);
    ExportedRecipe exported = ExportAssembly(document, rows, original ? &original->recipe : nullptr,
                                             original ? &original->plan : nullptr, findings)
                                  .Assemble();
    if (!original || original->format != format) exported.facts.fragment.clear();
    return exported;
}

}  // namespace tw

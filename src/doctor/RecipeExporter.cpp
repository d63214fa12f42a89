#include "doctor/RecipeExporter.h"

#include <algorithm>
#include <array>

#include "doctor/PlanContext.h"
#include "doctor/RecipeComparison.h"
#include "doctor/RecipePlanner.h"
#include "document/RowFiller.h"
#include "exchange/ForeignFileReader.h"
#include "record/FieldRules.h"
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

const std::string& TextOf(const RecipeRecord& record, FieldId field) {
    return (record.*RuleOf(field).box).Text();
}

// True if the row of priming or pressure still is as planned; true for any other line.
bool SaysTheSameCarbonation(const RecipeRecord& record, const PlannedLine& line) {
    if (line.grid != GridId::Priming && line.grid != GridId::Pressure) return true;
    return std::ranges::all_of(line.cells, [&](const PlannedCell& cell) {
        return SameText(record[line.grid].Text(Grid::FixedRows(), cell.col), cell.text);
    });
}

// Returns how many rows and fields of the recipe are not as planned.
std::size_t Differences(const RecipeRecord& record, const RecipePlan& plan) {
    const RecipeComparison compared = Compare(record, plan);
    std::size_t count = compared.rows.size() - compared.Unchanged();
    for (const PlannedField& field : plan.fields)
        if (!SameText(field.text, TextOf(record, field.field))) ++count;
    for (const PlannedLine& line : plan.lines)
        if (!SaysTheSameCarbonation(record, line)) ++count;
    return count;
}

// The lines of one kind. They come by grids, but a file lists them in one order: lines of different grids are
// put as in the original, a new one behind the line that precedes it in its grid.
template <class Line>
class ExportedLines {
  public:
    // To be called before the rows of each grid.
    void BeginGrid() { reached_ = 0; }
    void Put(Line line, const ForeignLine* from, bool unchanged) {
        if (from) reached_ = std::max(reached_, from->index + 1);
        entries_.push_back(
            {reached_, std::move(line), {from ? std::optional(from->index) : std::nullopt, unchanged}});
    }
    void MoveTo(std::vector<Line>& lines, std::vector<LineOrigin>& origins) {
        std::ranges::stable_sort(entries_, {}, &Entry::place);
        for (Entry& entry : entries_) {
            lines.push_back(std::move(entry.line));
            origins.push_back(entry.origin);
        }
    }

  private:
    struct Entry {
        std::size_t place = 0;  // 1 for the first line of the original
        Line line;
        LineOrigin origin;
    };
    std::vector<Entry> entries_;
    std::size_t reached_ = 0;
};

// Puts one recipe together: what was there before, and what has changed.
class ExportAssembly {
  public:
    // defaults are those of a new recipe.
    ExportAssembly(const RecipeDocument& document, const RecipeFacts& rows, const ForeignRecipe* original,
                   const RecipePlan* plan, RecipeDefaults defaults, Findings& findings)
        : document_(document), rows_(rows), plan_(plan), defaults_(std::move(defaults)), findings_(findings) {
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
        const Grid* grid = nullptr;
        for (const ComparedRow& row : compared.rows) {
            if (std::exchange(grid, row.grid) != row.grid) BeginGrid();
            Add(row);
        }
        MoveLines();
        linesChanged_ = compared.Unchanged() != compared.rows.size() || !compared.gone.empty();
        Fields();
        return std::move(out_);
    }

  private:
    using Kind = ForeignLine::Kind;

    const RecipeRecord& R() const { return document_.Record(); }

    void BeginGrid() {
        fermentables_.BeginGrid();
        hops_.BeginGrid();
        yeasts_.BeginGrid();
        miscs_.BeginGrid();
        waters_.BeginGrid();
    }

    void MoveLines() {
        fermentables_.MoveTo(out_.facts.fermentables, out_.fermentables);
        hops_.MoveTo(out_.facts.hops, out_.hops);
        yeasts_.MoveTo(out_.facts.yeasts, out_.yeasts);
        miscs_.MoveTo(out_.facts.miscs, out_.miscs);
        waters_.MoveTo(out_.facts.waters, out_.waters);
    }

    void Add(const ComparedRow& row) {
        if (row.unchanged && row.line) return Keep(*row.line);
        const ForeignLine* const from =
            row.line && !row.line->from.empty() ? &row.line->from.front() : nullptr;
        switch (row.grid->Id()) {
            case GridId::Grain:
            case GridId::Extract: {
                const ForeignFermentable base = Base(base_.fermentables, from, Kind::Fermentable);
                return fermentables_.Put(rows_.Fermentable(*row.grid, row.row, base), from, false);
            }
            case GridId::Hops:
                return hops_.Put(rows_.Hop(row.row, Base(base_.hops, from, Kind::Hop)), from, false);
            case GridId::Treatment:
                return miscs_.Put(rows_.Salt(row.row, Base(base_.miscs, from, Kind::Misc)), from, false);
            case GridId::Adjuncts:
                return miscs_.Put(rows_.Adjunct(row.row, Base(base_.miscs, from, Kind::Misc)),
                                  from && from->kind == Kind::Misc ? from : nullptr, false);
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
                    fermentables_.Put(Shown(base_.fermentables[from.index], line), &from, true);
                    break;
                case Kind::Hop:
                    hops_.Put(Shown(base_.hops[from.index], line), &from, true);
                    break;
                case Kind::Yeast:
                    yeasts_.Put(base_.yeasts[from.index], &from, true);
                    break;
                case Kind::Misc:
                    miscs_.Put(Shown(base_.miscs[from.index], line), &from, true);
                    break;
                case Kind::Water:
                    waters_.Put(base_.waters[from.index], &from, true);
                    break;
            }
        }
    }

    // A mixture that the brewer has changed is one water of its own.
    void AddWater(const ComparedRow& row) {
        const bool one = row.line && row.line->from.size() == 1;
        const ForeignLine* const from = one ? &row.line->from.front() : nullptr;
        waters_.Put(rows_.SourceWater(Base(base_.waters, from, Kind::Water)), from, false);
    }

    void AddLog(const ComparedRow& row, const ForeignLine* from) {
        const Grid& log = *row.grid;
        if (PitchesYeast(log, row.row))
            return yeasts_.Put(rows_.Yeast(row.row, Base(base_.yeasts, from, Kind::Yeast)), from, false);
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
        if (!SameText(plan_->name, now.name)) Take(ExportedField::Name, &ForeignRecipe::name, now);
        TakeField(ExportedField::BatchSize, FieldId::TotalVol, &ForeignRecipe::batchSize, now);
        TakeField(ExportedField::BoilSize, FieldId::BoilVol, &ForeignRecipe::boilSize, now);
        TakeField(ExportedField::Efficiency, FieldId::Extract, &ForeignRecipe::efficiency, now);
        if (PlannedText(*plan_, FieldId::HopExtraction) || R().txtHopExtraction.Value() != 1)
            TakeField(ExportedField::HopUtilization, FieldId::HopExtraction, &ForeignRecipe::hopUtilization,
                      now);
        if (!Unchanged(FieldId::Notes)) Take(ExportedField::Notes, &ForeignRecipe::notes, now);
        // A style that the catalogue did not know when the recipe came stays the one of the file.
        if (now.style && plan_->style != document_.BeerStyle())
            Take(ExportedField::Style, &ForeignRecipe::style, now);
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
        return SameText(planned ? *planned : std::string(), TextOf(R(), field));
    }

    template <class Member>
    void Take(ExportedField field, Member ForeignRecipe::*member, ForeignRecipe& now) {
        out_.facts.*member = std::move(now.*member);
        out_.changed.insert(field);
    }

    // What the file does not state is written as it is here, but only an edit makes its figures obsolete.
    template <class Member>
    void TakeField(ExportedField field, FieldId id, Member ForeignRecipe::*member, ForeignRecipe& now) {
        if (Unchanged(id)) return;
        Take(field, member, now);
        figuresChanged_ |= PlannedText(*plan_, id) || !SameText(TextOf(R(), id), DefaultOf(id));
    }

    const std::string& DefaultOf(FieldId field) const {
        static const std::string kNone;
        switch (field) {
            case FieldId::TotalVol:
                return defaults_.totalVol;
            case FieldId::BoilVol:
                return defaults_.boilVol;
            case FieldId::Extract:
                return defaults_.grainExtraction;
            case FieldId::HopExtraction:
                return defaults_.hopExtraction;
            default:
                return kNone;
        }
    }

    void Carbonation(ForeignRecipe& now) {
        const auto same = [&](const PlannedLine& line) { return SaysTheSameCarbonation(R(), line); };
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
        if (!linesChanged_ && !figuresChanged_ && !finished) return;
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
    RecipeDefaults defaults_;
    Findings& findings_;
    ForeignRecipe base_;
    ExportedRecipe out_;
    ExportedLines<ForeignFermentable> fermentables_;
    ExportedLines<ForeignHop> hops_;
    ExportedLines<ForeignYeast> yeasts_;
    ExportedLines<ForeignMisc> miscs_;
    ExportedLines<ForeignWater> waters_;
    bool linesChanged_ = false;
    bool figuresChanged_ = false;
};

}  // namespace

RecipeExporter::RecipeExporter(Database& database, Platform& platform, const ColorTable& colors,
                               ImportUnits units, RecipeDefaults defaults)
    : database_(database),
      platform_(platform),
      colors_(colors),
      units_(units),
      host_(std::move(defaults)),
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
    std::vector<ImportUnits> possible = {units_};
    for (const ImportUnits units : {ImportUnits::AsInFile, ImportUnits::US, ImportUnits::Metric})
        if (units != units_) possible.push_back(units);
    std::optional<std::size_t> fewest;
    for (const ImportUnits units : possible) {
        RecipePlan plan = PlanOf(original.recipe, units);
        const std::size_t differences = Differences(document.Record(), plan);
        if (fewest && differences >= *fewest) continue;
        fewest = differences;
        original.plan = std::move(plan);
        if (differences == 0) break;
    }
    return original;
}

ExportedRecipe RecipeExporter::Prepare(const std::string& name, ExchangeFormat format, Findings& findings) {
    RecipeDocument document(host_, platform_, database_, colors_, 0);
    document.Storage().Open(name);
    const std::optional<std::int64_t> id = RecipeId(database_, name);
    const std::optional<Original> original = id ? OriginalOf(document, *id) : std::nullopt;
    const RecipeFacts rows(document, database_, figures_, findings);
    rows.ReportWithoutPlace();
    ExportedRecipe exported = ExportAssembly(document, rows, original ? &original->recipe : nullptr,
                                             original ? &original->plan : nullptr, host_.Defaults(), findings)
                                  .Assemble();
    if (!original || original->format != format) exported.facts.fragment.clear();
    return exported;
}

}  // namespace tw

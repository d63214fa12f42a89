#include "doctor/CatalogueAdditions.h"

#include <algorithm>
#include <functional>
#include <set>

#include "doctor/AmountTexts.h"
#include "doctor/PlainText.h"
#include "doctor/RecipePlanner.h"
#include "tree/FolderKind.h"
#include "values/Text.h"

namespace tw {
namespace {

using Fill = std::function<void(CatalogueEditor&)>;
using Figure = std::optional<double>;

// Types both ends of the range whose column for the low end is that.
void TypeRange(CatalogueEditor& editor, std::string_view low, const Figure& from, const Figure& to,
               std::string_view unit = {}) {
    const auto rows = editor.Form().rows;
    const auto found = std::ranges::find(rows, low, &RangeRow::low);
    if (found == rows.end()) return;
    const int row = static_cast<int>(found - rows.begin());
    const auto text = [&](double figure) { return FewestDecimals(figure).append(unit); };
    if (from) editor.TypeCell(row, 0, text(*from));
    if (to && !found->high.empty()) editor.TypeCell(row, 1, text(*to));
}

bool HasRange(const ForeignStyle& style) {
    return std::ranges::any_of(
        std::initializer_list<const ForeignRange*>{&style.og, &style.fg, &style.ibu, &style.srm,
                                                   &style.volumes, &style.abv},
        [](const ForeignRange* range) { return range->low || range->high; });
}

bool IsExtract(const ForeignFermentable& line) {
    using Type = ForeignFermentable::Type;
    switch (line.type.value_or(Type::Grain)) {
        case Type::Grain:
            return false;
        case Type::Adjunct:
        case Type::Other:
            return !line.recommendMash.value_or(true);
        default:
            return true;
    }
}

void Describe(CatalogueEditor& editor, const std::string& notes) {
    editor.SetControl("txtDesc", PlainText(notes));
}

Fill Filling(const ForeignFermentable& line) {
    return [&line](CatalogueEditor& editor) {
        constexpr double kFull = 100;
        const Figure points = line.yield       ? Figure(*line.yield / kFull * kPointsOfFullYield)
                              : line.potential ? Figure((*line.potential - 1) * 1000)
                                               : std::nullopt;
        TypeRange(editor, "PPG_LO", points, points);
        TypeRange(editor, "COLOR_LO", line.lovibond, line.lovibond);
        Describe(editor, line.notes);
    };
}

Fill Filling(const ForeignHop& hop) {
    return [&hop](CatalogueEditor& editor) {
        TypeRange(editor, "AA_LO", hop.alpha, hop.alpha);
        Describe(editor, hop.notes);
    };
}

Fill Filling(const ForeignYeast& yeast) {
    return [&yeast](CatalogueEditor& editor) {
        TypeRange(editor, "AA_LO", yeast.attenuation, yeast.attenuation);
        TypeRange(editor, "TEMP_LO", yeast.minCelsius, yeast.maxCelsius, " C");
        editor.SetControl("Combo1", yeast.type);
        editor.SetControl("Combo2", yeast.flocculation);
        Describe(editor, yeast.notes);
    };
}

Fill Filling(const ForeignWater& water) {
    return [&water](CatalogueEditor& editor) {
        TypeRange(editor, "CA", water.calcium, std::nullopt);
        TypeRange(editor, "CO3", water.bicarbonate, std::nullopt);
        TypeRange(editor, "CL", water.chloride, std::nullopt);
        TypeRange(editor, "MG", water.magnesium, std::nullopt);
        TypeRange(editor, "NA", water.sodium, std::nullopt);
        TypeRange(editor, "SO4", water.sulfate, std::nullopt);
        Describe(editor, water.notes);
    };
}

}  // namespace

Answer CatalogueAdditions::Refusals::Ask(std::string_view, std::string_view text, Question kind) {
    last = text;
    return ClosingAnswer(kind);
}

CatalogueAdditions::CatalogueAdditions(const CatalogueContext& context, KnownFigures& figures)
    : context_{context.database, context.tree, context.objects, refusals_, context.dialogs, context.clock},
      figures_(figures) {}

bool CatalogueAdditions::Knows(CatalogueKind kind, const NameSought& sought) {
    return Trim(sought.name).empty() || figures_.Match(kind, sought).has_value();
}

std::vector<const ForeignStyle*> CatalogueAdditions::NewStyles(const ForeignFile& file) {
    std::vector<const ForeignStyle*> styles;
    std::set<std::string> seen;
    const auto add = [&](const ForeignStyle& style) {
        if (HasRange(style) && seen.insert(Upper(Trim(style.name))).second &&
            !Knows(CatalogueKind::Style, {style.name, {}, style.guide, style.categoryNumber + style.letter}))
            styles.push_back(&style);
    };
    for (const ForeignStyle& style : file.styles) add(style);
    for (const ForeignRecipe& recipe : file.recipes)
        if (recipe.style) add(*recipe.style);
    return styles;
}

template <class Entry>
void CatalogueAdditions::ForEachNew(const ForeignFile& file, Entry entry) {
    std::set<std::pair<CatalogueKind, std::string>> seen;
    const auto offer = [&](CatalogueKind kind, const NameSought& sought, const auto& line) {
        if (seen.emplace(kind, Upper(Trim(sought.name))).second && !Knows(kind, sought))
            entry(kind, std::string(Trim(sought.name)), Filling(line));
    };
    for (const ForeignFermentable& line : file.fermentables)
        offer(IsExtract(line) ? CatalogueKind::Extract : CatalogueKind::Grain,
              {line.name, line.origin, line.supplier, line.productId}, line);
    for (const ForeignHop& hop : file.hops)
        offer(CatalogueKind::Hop, {hop.name, hop.origin, hop.supplier, hop.productId}, hop);
    for (const ForeignYeast& yeast : file.yeasts)
        offer(CatalogueKind::Yeast, {yeast.name, {}, yeast.laboratory, yeast.productId}, yeast);
    for (const ForeignWater& water : file.waters) offer(CatalogueKind::Water, {water.name}, water);
}

std::vector<std::string> CatalogueAdditions::NewIngredients(const ForeignFile& file) {
    std::vector<std::string> names;
    ForEachNew(file, [&](CatalogueKind, std::string name, const Fill&) { names.push_back(std::move(name)); });
    return names;
}

bool CatalogueAdditions::Save(CatalogueEditor& editor, const std::string& name, Findings& findings) {
    refusals_.last.clear();
    const bool saved = editor.SaveOrRaise();
    const std::string kind(WordOf(editor.Form().catalogue));
    findings.Add({saved ? Severity::Note : Severity::Refused,
                  FindingCode::NewEntry,
                  {},
                  "Catalogue",
                  saved ? "The " + kind + " '" + name + "' was added."
                        : "The " + kind + " '" + name + "' was not added: " + refusals_.last});
    return saved;
}

std::int64_t CatalogueAdditions::ImportedFolderId() {
    const Recordset rows = context_.database.OpenRecordset("SELECT ID FROM FOLDERS WHERE " +
                                                               FolderCondition(FolderKind::Styles) +
                                                               " AND PARENT_ID = 0 AND NAME = ?",
                                                           {kImportedFolder});
    if (!rows.AtEnd()) return rows.Fields(0).Integer();
    const std::int64_t id = context_.objects.CreateStyleFolder(0, kImportedFolder, Asking::Quietly);
    if (id < 0) throw Error("Catalogue", "The folder 'Imported' cannot be created.", 0);
    return id;
}

int CatalogueAdditions::AddStyles(const ForeignFile& file, Findings& findings) {
    const std::vector<const ForeignStyle*> styles = NewStyles(file);
    if (styles.empty()) return 0;
    const std::string folder = std::to_string(ImportedFolderId());
    int added = 0;
    for (const ForeignStyle* const style : styles) {
        const auto editor = MakeEditor(CatalogueKind::Style, context_);
        const std::string name(Trim(style->name));
        editor->SetControl("Text1", name);
        editor->SetControl("FolderID", folder);
        editor->SetControl("Combo1", style->type);
        Describe(*editor, style->notes);
        TypeRange(*editor, "OG_LO", style->og.low, style->og.high);
        TypeRange(*editor, "FG_LO", style->fg.low, style->fg.high);
        TypeRange(*editor, "ABV_LO", style->abv.low, style->abv.high);
        TypeRange(*editor, "COLOR_LO", style->srm.low, style->srm.high);
        TypeRange(*editor, "IBU_LO", style->ibu.low, style->ibu.high);
        TypeRange(*editor, "CO2_LO", style->volumes.low, style->volumes.high);
        if (Save(*editor, name, findings)) ++added;
    }
    return added;
}

int CatalogueAdditions::AddIngredients(const ForeignFile& file, Findings& findings) {
    int added = 0;
    ForEachNew(file, [&](CatalogueKind kind, const std::string& name, const Fill& fill) {
        const auto editor = MakeEditor(kind, context_);
        editor->SetControl("Text1", name);
        fill(*editor);
        if (Save(*editor, name, findings)) ++added;
    });
    return added;
}

}  // namespace tw

#include "store/CatalogueSheets.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "store/CatalogueKind.h"
#include "values/Text.h"

namespace tw {

namespace {

using Words = std::span<const std::string_view>;

constexpr std::array<std::string_view, 2> kKinds = {"grain", "extract"};
constexpr std::array<std::string_view, 4> kFlocculations = {"Low", "Medium", "High", "Very High"};
constexpr std::array<std::string_view, 3> kGuides = {"Beer 2021", "Mead 2015", "Cider 2025"};
constexpr std::array<std::string_view, 3> kHopForms = {"Pellet or leaf", "Cryo", "LUPOMAX"};
constexpr std::array<std::string_view, 2> kYeastForms = {"Dry", "Liquid"};
// Whether a row is based on published figures or only on another collection's data.
constexpr std::array<std::string_view, 2> kBases = {"published", "secondary"};
constexpr std::array<std::string_view, 2> kFates = {kGone, kMoved};

constexpr CatalogueColumn Text(std::string_view header) {
    return {.header = header};
}
constexpr CatalogueColumn Required(std::string_view header) {
    return {.header = header, .required = true};
}
constexpr CatalogueColumn Word(std::string_view header, Words words, bool required) {
    return {.header = header, .kind = CatalogueColumn::Kind::Word, .required = required, .words = words};
}
// A column of words; a name may occur once for each word.
constexpr CatalogueColumn PartingWord(std::string_view header, Words words) {
    CatalogueColumn column = Word(header, words, true);
    column.partsNames = true;
    return column;
}
constexpr CatalogueColumn Number(std::string_view header, double least, double most, bool required = false) {
    return {.header = header,
            .kind = CatalogueColumn::Kind::Number,
            .required = required,
            .least = least,
            .most = most};
}
constexpr CatalogueColumn Percent(std::string_view header) {
    return Number(header, 0, 100);
}
constexpr CatalogueColumn Ion(std::string_view header) {
    return Number(header, 0, 10000, true);
}

// The bounds of the numbers are wide: they only catch a misplaced decimal point or a wrong unit, such as
// degrees Celsius. Units: ppg in points per pound per US gallon, colour of grains in degrees Lovibond and of
// styles in SRM, temp in degrees Fahrenheit, og and fg in specific gravity, co2 in volumes, ions in PPM
// (waters) or in PPM that one gram adds to one US gallon (salts).
constexpr std::array kGrainTypeColumns = {Required("name"), Word("kind", kKinds, true)};
constexpr std::array kGrainColumns = {Required("name"),
                                      Word("kind", kKinds, true),
                                      Required("type"),
                                      Number("ppg_lo", 0, 50),
                                      Number("ppg_hi", 0, 50),
                                      Number("color_lo", 0, 1000),
                                      Number("color_hi", 0, 1000),
                                      Text("description"),
                                      Word("basis", kBases, false)};
constexpr std::array kHopColumns = {
    Required("name"),    Text("usage"),       Text("origin"),      Word("form", kHopForms, false),
    Percent("alpha_lo"), Percent("alpha_hi"), Text("description"), Word("basis", kBases, false)};
// Strains for low-alcohol beer attenuate little: 10 percent is plausible, less is not.
constexpr double kLeastAttenuation = 10;
constexpr std::array kYeastColumns = {Required("name"),
                                      Text("laboratory"),
                                      Text("product_code"),
                                      Word("form", kYeastForms, false),
                                      Word("type", kYeastTypes, false),
                                      Word("flocculation", kFlocculations, false),
                                      Number("attenuation_lo", kLeastAttenuation, 100),
                                      Number("attenuation_hi", kLeastAttenuation, 100),
                                      Number("temp_lo", 32, 212),
                                      Number("temp_hi", 32, 212),
                                      Text("short_description"),
                                      Text("description"),
                                      Word("basis", kBases, false)};
// Used for both water profiles and salts.
constexpr std::array kIonColumns = {Required("name"), Ion("ca"), Ion("co3"), Ion("cl"),
                                    Ion("mg"),        Ion("na"), Ion("so4"), Text("description")};
constexpr std::array kSugarColumns = {Required("name"), Percent("fermentable_lo"), Percent("fermentable_hi"),
                                      Text("description")};
constexpr std::array kStyleColumns = {Required("name"),
                                      Text("code"),
                                      Word("guide", kGuides, false),
                                      Required("folder"),
                                      Word("type", kYeastTypes, false),
                                      Text("water_profile"),
                                      Number("og_lo", 0.9, 1.3),
                                      Number("og_hi", 0.9, 1.3),
                                      Number("fg_lo", 0.9, 1.3),
                                      Number("fg_hi", 0.9, 1.3),
                                      Percent("abv_lo"),
                                      Percent("abv_hi"),
                                      Number("color_lo", 0, 100),
                                      Number("color_hi", 0, 100),
                                      Number("ibu_lo", 0, 200),
                                      Number("ibu_hi", 0, 200),
                                      Number("co2_lo", 0, 10),
                                      Number("co2_hi", 0, 10),
                                      Text("description")};
constexpr std::array kAliasColumns = {Required("alias"), PartingWord("kind", kNameKinds), Required("name")};
constexpr std::array kFormerColumns = {Required("name"), PartingWord("kind", kNameKinds),
                                       Word("fate", kFates, true), Text("folder")};

void CheckGrainTypes(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    if (!catalogue.grainTypes.readable) return;
    std::map<std::string, std::string> kindOfType;
    for (const CatalogueRow& row : catalogue.grainTypes.rows) kindOfType[row.Text("name")] = row.Text("kind");
    for (const CatalogueRow& row : catalogue.grains.rows) {
        const std::string& kind = row.Text("kind");
        const std::string& type = row.Text("type");
        const auto known = kindOfType.find(type);
        if (type.empty()) continue;
        if (known == kindOfType.end()) {
            problems.push_back(
                {catalogue.grains.file, row.line, "type \"" + type + "\" is not in grain_types.tsv"});
        } else if (known->second != kind) {
            problems.push_back(
                {catalogue.grains.file, row.line,
                 "type \"" + type + "\" is of kind \"" + known->second + "\", not \"" + kind + "\""});
        }
    }
}

void CheckWaterProfiles(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    if (!catalogue.waters.readable) return;
    std::set<std::string> names;
    for (const CatalogueRow& row : catalogue.waters.rows) names.insert(row.Text("name"));
    for (const CatalogueRow& row : catalogue.styles.rows) {
        const std::string& profile = row.Text("water_profile");
        if (profile.empty() || names.contains(profile)) continue;
        problems.push_back({catalogue.styles.file, row.line,
                            "water_profile \"" + profile + "\" is not in water_profiles.tsv"});
    }
}

// A brew log entry consists of the yeast's name, " - " and further text, and the name is cut off at " -
// " again.
void CheckYeastNames(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    for (const CatalogueRow& row : catalogue.yeast.rows) {
        const std::string& name = row.Text("name");
        if (name.find(" - ") == std::string::npos) continue;
        problems.push_back({catalogue.yeast.file, row.line, "name \"" + name + "\" holds \" - \""});
    }
}

// The program treats two spellings of a folder's name as the same folder, so one of them is a mistake.
void CheckFolders(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    std::map<std::string, std::string> spelling;
    for (const CatalogueRow& row : catalogue.styles.rows) {
        const std::string& folder = row.Text("folder");
        const auto known = spelling.emplace(Upper(folder), folder).first;
        if (known->second == folder) continue;
        problems.push_back({catalogue.styles.file, row.line,
                            "folder \"" + folder + "\" is written \"" + known->second + "\" further up"});
    }
}

const CatalogueSheet& SheetOf(const CatalogueSheets& catalogue, std::string_view table) {
    if (table == "GRAINS") return catalogue.grains;
    if (table == "HOPS") return catalogue.hops;
    if (table == "YEAST") return catalogue.yeast;
    if (table == "STYLES") return catalogue.styles;
    if (table == "SALTS") return catalogue.salts;
    return table == "SUGARS" ? catalogue.sugars : catalogue.waters;
}

using NamesOfTables = std::map<std::string_view, std::set<std::string>>;

// An alias that is also the name of a row would never be looked up.
void CheckAliases(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    NamesOfTables exact, upper;
    for (const std::string_view word : kNameKinds) {
        const std::string_view table = TableOfNameKind(word);
        for (const CatalogueRow& row : SheetOf(catalogue, table).rows) {
            exact[table].insert(row.Text("name"));
            upper[table].insert(Upper(row.Text("name")));
        }
    }
    for (const CatalogueRow& row : catalogue.aliases.rows) {
        const std::string_view table = TableOfNameKind(row.Text("kind"));
        if (table.empty() || !SheetOf(catalogue, table).readable) continue;
        const std::string& file = catalogue.aliases.file;
        if (upper[table].contains(Upper(row.Text("alias"))))
            problems.push_back({file, row.line, "alias \"" + row.Text("alias") + "\" is the name of a row"});
        if (!exact[table].contains(row.Text("name")))
            problems.push_back(
                {file, row.line,
                 "name \"" + row.Text("name") + "\" is no " + row.Text("kind") + " of the catalogue"});
    }
}

void CheckFormer(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    for (const CatalogueRow& row : catalogue.former.rows) {
        const std::string_view table = TableOfNameKind(row.Text("kind"));
        if (table.empty() || !SheetOf(catalogue, table).readable) continue;
        const std::string& name = row.Text("name");
        const bool present =
            std::ranges::any_of(SheetOf(catalogue, table).rows,
                                [&](const CatalogueRow& other) { return other.Text("name") == name; });
        const bool moved = row.Text("fate") == kMoved;
        std::string fault;
        if (present != moved)
            fault = "is " + std::string(present ? "" : "not ") + "in the catalogue";
        else if (moved && (table != "STYLES" || row.Text("folder").empty()))
            fault = "must be a style and have the folder where it was";
        if (!fault.empty())
            problems.push_back(
                {catalogue.former.file, row.line, row.Text("fate") + " \"" + name + "\" " + fault});
    }
}

}  // namespace

std::string_view TableOfNameKind(std::string_view word) {
    const auto* const found = std::ranges::find(kCatalogueWords, word, &CatalogueRowWords::sheetWord);
    return found == kCatalogueWords.end() ? std::string_view() : found->table;
}

CatalogueSheets ReadCatalogue(const std::string& folder, CatalogueProblems& problems) {
    auto file = kCatalogueFiles.begin();
    const auto read = [&](std::span<const CatalogueColumn> columns) {
        return ReadCatalogueFile(folder + "/" + *file++, columns, problems);
    };
    CatalogueSheets catalogue;
    catalogue.grainTypes = read(kGrainTypeColumns);
    catalogue.grains = read(kGrainColumns);
    catalogue.hops = read(kHopColumns);
    catalogue.yeast = read(kYeastColumns);
    catalogue.waters = read(kIonColumns);
    catalogue.salts = read(kIonColumns);
    catalogue.sugars = read(kSugarColumns);
    catalogue.styles = read(kStyleColumns);
    catalogue.aliases = read(kAliasColumns);
    catalogue.former = read(kFormerColumns);
    CheckGrainTypes(catalogue, problems);
    CheckYeastNames(catalogue, problems);
    CheckWaterProfiles(catalogue, problems);
    CheckFolders(catalogue, problems);
    CheckAliases(catalogue, problems);
    CheckFormer(catalogue, problems);
    return catalogue;
}

}  // namespace tw

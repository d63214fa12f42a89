#include "store/CatalogueSheets.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "values/Text.h"

namespace tw {

namespace {

using Words = std::span<const std::string_view>;

constexpr std::array<std::string_view, 2> kKinds = {"grain", "extract"};
constexpr std::array<std::string_view, 4> kFlocculations = {"Low", "Medium", "High", "Very High"};

constexpr CatalogueColumn Text(std::string_view header) {
    return {.header = header};
}
constexpr CatalogueColumn Required(std::string_view header) {
    return {.header = header, .required = true};
}
constexpr CatalogueColumn Word(std::string_view header, Words words, bool required) {
    return {.header = header, .kind = CatalogueColumn::Kind::Word, .required = required, .words = words};
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

// The bounds of the numbers are wide; they catch a misplaced decimal point or a unit mixed up, such as
// degrees Celsius.
constexpr std::array kGrainTypeColumns = {Required("name"), Word("kind", kKinds, true)};
constexpr std::array kGrainColumns = {Required("name"),
                                      Word("kind", kKinds, true),
                                      Required("type"),
                                      Number("ppg_lo", 0, 50),
                                      Number("ppg_hi", 0, 50),
                                      Number("color_lo", 0, 1000),
                                      Number("color_hi", 0, 1000),
                                      Text("description")};
constexpr std::array kHopColumns = {Required("name"), Text("usage"), Percent("alpha_lo"), Percent("alpha_hi"),
                                    Text("description")};
constexpr std::array kYeastColumns = {
    Required("name"),           Word("type", kYeastTypes, false), Word("flocculation", kFlocculations, false),
    Percent("attenuation_lo"),  Percent("attenuation_hi"),        Number("temp_lo", 32, 212),
    Number("temp_hi", 32, 212), Text("short_description"),        Text("description")};
// Water profiles and salts alike.
constexpr std::array kIonColumns = {Required("name"), Ion("ca"), Ion("co3"), Ion("cl"),
                                    Ion("mg"),        Ion("na"), Ion("so4"), Text("description")};
constexpr std::array kSugarColumns = {Required("name"), Percent("fermentable_lo"), Percent("fermentable_hi"),
                                      Text("description")};
constexpr std::array kStyleColumns = {
    Required("name"),          Required("folder"),         Word("type", kYeastTypes, false),
    Text("water_profile"),     Number("og_lo", 0.9, 1.3),  Number("og_hi", 0.9, 1.3),
    Number("fg_lo", 0.9, 1.3), Number("fg_hi", 0.9, 1.3),  Percent("abv_lo"),
    Percent("abv_hi"),         Number("color_lo", 0, 100), Number("color_hi", 0, 100),
    Number("ibu_lo", 0, 200),  Number("ibu_hi", 0, 200),   Number("co2_lo", 0, 10),
    Number("co2_hi", 0, 10),   Text("description")};

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

// A brew log entry holds a yeast's name with " - " and more behind it, and is cut there again.
void CheckYeastNames(const CatalogueSheets& catalogue, CatalogueProblems& problems) {
    for (const CatalogueRow& row : catalogue.yeast.rows) {
        const std::string& name = row.Text("name");
        if (name.find(" - ") == std::string::npos) continue;
        problems.push_back({catalogue.yeast.file, row.line, "name \"" + name + "\" holds \" - \""});
    }
}

// Two spellings of a folder's name are the same folder to the program, so one of them is a slip.
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

}  // namespace

CatalogueSheets ReadCatalogue(const std::string& folder, CatalogueProblems& problems) {
    const auto read = [&](std::string_view file, std::span<const CatalogueColumn> columns) {
        return ReadCatalogueFile(folder + "/" + std::string(file), columns, problems);
    };
    CatalogueSheets catalogue;
    catalogue.grainTypes = read("grain_types.tsv", kGrainTypeColumns);
    catalogue.grains = read("grains.tsv", kGrainColumns);
    catalogue.hops = read("hops.tsv", kHopColumns);
    catalogue.yeast = read("yeast.tsv", kYeastColumns);
    catalogue.waters = read("water_profiles.tsv", kIonColumns);
    catalogue.salts = read("salts.tsv", kIonColumns);
    catalogue.sugars = read("sugars.tsv", kSugarColumns);
    catalogue.styles = read("styles.tsv", kStyleColumns);
    CheckGrainTypes(catalogue, problems);
    CheckYeastNames(catalogue, problems);
    CheckWaterProfiles(catalogue, problems);
    CheckFolders(catalogue, problems);
    return catalogue;
}

}  // namespace tw

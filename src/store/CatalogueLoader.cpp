#include "store/CatalogueLoader.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {

namespace {

using Words = std::span<const std::string_view>;

constexpr std::array<std::string_view, 2> kKinds = {"grain", "extract"};
// The place of a word is its code in the TYPE columns.
constexpr std::array<std::string_view, 5> kTypes = {"Ale", "Lager", "Wheat", "Lactic", "Wine/Mead/Cider"};
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
    Required("name"),           Word("type", kTypes, false), Word("flocculation", kFlocculations, false),
    Percent("attenuation_lo"),  Percent("attenuation_hi"),   Number("temp_lo", 32, 212),
    Number("temp_hi", 32, 212), Text("short_description"),   Text("description")};
// Water profiles and salts alike.
constexpr std::array kIonColumns = {Required("name"), Ion("ca"), Ion("co3"), Ion("cl"),
                                    Ion("mg"),        Ion("na"), Ion("so4"), Text("description")};
constexpr std::array kSugarColumns = {Required("name"), Percent("fermentable_lo"), Percent("fermentable_hi"),
                                      Text("description")};
constexpr std::array kStyleColumns = {
    Required("name"),          Required("folder"),         Word("type", kTypes, false),
    Text("water_profile"),     Number("og_lo", 0.9, 1.3),  Number("og_hi", 0.9, 1.3),
    Number("fg_lo", 0.9, 1.3), Number("fg_hi", 0.9, 1.3),  Percent("abv_lo"),
    Percent("abv_hi"),         Number("color_lo", 0, 100), Number("color_hi", 0, 100),
    Number("ibu_lo", 0, 200),  Number("ibu_hi", 0, 200),   Number("co2_lo", 0, 10),
    Number("co2_hi", 0, 10),   Text("description")};

// The sheets of one folder.
struct Catalogue {
    CatalogueSheet grainTypes, grains, hops, yeast, waters, salts, sugars, styles;
};

void CheckGrainTypes(const Catalogue& catalogue, CatalogueProblems& problems) {
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

void CheckWaterProfiles(const Catalogue& catalogue, CatalogueProblems& problems) {
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
void CheckYeastNames(const Catalogue& catalogue, CatalogueProblems& problems) {
    for (const CatalogueRow& row : catalogue.yeast.rows) {
        const std::string& name = row.Text("name");
        if (name.find(" - ") == std::string::npos) continue;
        problems.push_back({catalogue.yeast.file, row.line, "name \"" + name + "\" holds \" - \""});
    }
}

// Two spellings of a folder's name are the same folder to the program, so one of them is a slip.
void CheckFolders(const Catalogue& catalogue, CatalogueProblems& problems) {
    std::map<std::string, std::string> spelling;
    for (const CatalogueRow& row : catalogue.styles.rows) {
        const std::string& folder = row.Text("folder");
        const auto known = spelling.emplace(Upper(folder), folder).first;
        if (known->second == folder) continue;
        problems.push_back({catalogue.styles.file, row.line,
                            "folder \"" + folder + "\" is written \"" + known->second + "\" further up"});
    }
}

Catalogue ReadCatalogue(const std::string& folder, CatalogueProblems& problems) {
    const auto read = [&](std::string_view file, std::span<const CatalogueColumn> columns) {
        return ReadCatalogueFile(folder + "/" + std::string(file), columns, problems);
    };
    Catalogue catalogue;
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

// The columns and values of one INSERT, in step.
class Insert {
  public:
    explicit Insert(std::string_view table) : table_(table) {}

    Insert& Sql(std::string_view column, std::string_view value) {
        if (!columns_.empty()) columns_ += ", ";
        columns_ += column;
        if (!values_.empty()) values_ += ", ";
        values_ += value;
        return *this;
    }
    Insert& Text(std::string_view column, const std::string& text) { return Sql(column, SqlText(text)); }
    Insert& Number(std::string_view column, const std::optional<double>& number) {
        return Sql(column, number ? NumberText(*number) : "NULL");
    }
    // The two columns and the two headers are those with "_LO" and "_HI", "_lo" and "_hi" behind the given
    // words.
    Insert& Range(const std::string& column, const CatalogueRow& row, const std::string& header) {
        Number(column + "_LO", row.Number(header + "_lo"));
        return Number(column + "_HI", row.Number(header + "_hi"));
    }
    Insert& Type(const std::string& word) {
        const auto found = std::ranges::find(kTypes, word);
        return Sql("TYPE", found == kTypes.end() ? "NULL" : std::to_string(found - kTypes.begin()));
    }
    void Run(Database& database) const {
        database.Execute("INSERT INTO " + table_ + " (" + columns_ + ") VALUES (" + values_ + ")");
    }

  private:
    std::string table_;
    std::string columns_;
    std::string values_;
};

std::string_view SqlBool(bool value) {
    return value ? "TRUE" : "FALSE";
}

// The first column of the first row that sql selects.
std::string SelectId(Database& database, const std::string& sql) {
    return database.OpenRecordset(sql).Fields(0).Text();
}

void WriteGrains(const Catalogue& catalogue, Database& database) {
    std::map<std::string, std::string> idOfType;
    for (const CatalogueRow& row : catalogue.grainTypes.rows) {
        const std::string& name = row.Text("name");
        const std::string isGrain(SqlBool(row.Text("kind") == "grain"));
        Insert("GRAIN_TYPES").Text("NAME", name).Sql("GRAIN", isGrain).Run(database);
        idOfType[name] = SelectId(
            database, "SELECT ID FROM GRAIN_TYPES WHERE NAME = " + SqlText(name) + " AND GRAIN = " + isGrain);
    }
    for (const CatalogueRow& row : catalogue.grains.rows) {
        Insert("GRAINS")
            .Sql("GRAIN", SqlBool(row.Text("kind") == "grain"))
            .Text("NAME", row.Text("name"))
            .Sql("GRAIN_TYPE", idOfType.at(row.Text("type")))
            .Text("DESCR", row.Text("description"))
            .Range("PPG", row, "ppg")
            .Range("COLOR", row, "color")
            .Run(database);
    }
}

void WriteHops(const CatalogueSheet& hops, Database& database) {
    for (const CatalogueRow& row : hops.rows) {
        Insert("HOPS")
            .Text("NAME", row.Text("name"))
            .Text("USAGE", row.Text("usage"))
            .Text("DESCR", row.Text("description"))
            .Range("AA", row, "alpha")
            .Run(database);
    }
}

void WriteYeast(const CatalogueSheet& yeast, Database& database) {
    for (const CatalogueRow& row : yeast.rows) {
        Insert("YEAST")
            .Text("NAME", row.Text("name"))
            .Text("DESCR", row.Text("short_description"))
            .Text("FLOC", row.Text("flocculation"))
            .Text("FULL_DESCR", row.Text("description"))
            .Type(row.Text("type"))
            .Range("AA", row, "attenuation")
            .Range("TEMP", row, "temp")
            .Run(database);
    }
}

void WriteIons(std::string_view table, const CatalogueSheet& sheet, Database& database) {
    for (const CatalogueRow& row : sheet.rows) {
        Insert(table)
            .Text("NAME", row.Text("name"))
            .Text("DESCR", row.Text("description"))
            .Number("CA", row.Number("ca"))
            .Number("CO3", row.Number("co3"))
            .Number("CL", row.Number("cl"))
            .Number("MG", row.Number("mg"))
            .Number("NA", row.Number("na"))
            .Number("SO4", row.Number("so4"))
            .Run(database);
    }
}

void WriteSugars(const CatalogueSheet& sugars, Database& database) {
    for (const CatalogueRow& row : sugars.rows) {
        Insert("SUGARS")
            .Text("NAME", row.Text("name"))
            .Text("DESCR", row.Text("description"))
            .Range("FERMENT", row, "fermentable")
            .Run(database);
    }
}

// The ID of the style folder of that name under the root; makes the folder when there is none yet.
std::string StyleFolderId(const std::string& name, const std::string& when, Database& database) {
    const std::string sql =
        "SELECT ID FROM FOLDERS WHERE STYLE AND PARENT_ID = 0 AND NAME = " + SqlText(name);
    if (database.OpenRecordset(sql).AtEnd()) {
        Insert("FOLDERS")
            .Sql("PARENT_ID", "0")
            .Text("NAME", name)
            .Sql("STYLE", "TRUE")
            .Sql("CREATED_WHEN", when)
            .Sql("MODIFIED_WHEN", when)
            .Run(database);
    }
    return SelectId(database, sql);
}

void WriteStyles(const CatalogueSheet& styles, Database& database, const DateTime& created) {
    const std::string when = SqlText(DateText(created));
    for (const CatalogueRow& row : styles.rows) {
        const std::string& profile = row.Text("water_profile");
        Insert("STYLES")
            .Text("NAME", row.Text("name"))
            .Sql("FOLDER_ID", StyleFolderId(row.Text("folder"), when, database))
            .Sql("CREATED_WHEN", when)
            .Sql("MODIFIED_WHEN", when)
            .Text("DESCR", row.Text("description"))
            .Type(row.Text("type"))
            .Sql("WATER_PROFILE", profile.empty() ? "NULL" : SqlText(profile))
            .Range("OG", row, "og")
            .Range("FG", row, "fg")
            .Range("ABV", row, "abv")
            .Range("COLOR", row, "color")
            .Range("IBU", row, "ibu")
            .Range("CO2", row, "co2")
            .Run(database);
    }
}

}  // namespace

CatalogueProblems LoadCatalogue(const std::string& folder, Database& database, const DateTime& created) {
    CatalogueProblems problems;
    const Catalogue catalogue = ReadCatalogue(folder, problems);
    if (!problems.empty()) return problems;
    UnitOfWork unit(database);
    WriteGrains(catalogue, database);
    WriteHops(catalogue.hops, database);
    WriteYeast(catalogue.yeast, database);
    WriteIons("WATER_PROFILES", catalogue.waters, database);
    WriteIons("SALTS", catalogue.salts, database);
    WriteSugars(catalogue.sugars, database);
    WriteStyles(catalogue.styles, database, created);
    unit.Commit();
    return problems;
}

}  // namespace tw

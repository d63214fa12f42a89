#include "StoreSupport.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

#include "store/Schema.h"
#include "values/NumberText.h"

namespace tw::test {
namespace {

void Add(std::string& out, std::string_view name, const StoredText& text) {
    out.append(name).append("=").append(text ? "'" + *text + "'" : "NULL").append("; ");
}

void Add(std::string& out, std::string_view name, const std::optional<double>& number) {
    out.append(name).append("=").append(number ? NumberText(*number) : "NULL").append("; ");
}

void Add(std::string& out, std::string_view name, const StoredQuantity& quantity) {
    Add(out, name, quantity.text);
    Add(out, name, quantity.data);
}

std::optional<double> AsNumber(const std::optional<std::int64_t>& whole) {
    if (!whole) return std::nullopt;
    return static_cast<double>(*whole);
}

std::optional<double> AsNumber(const std::optional<bool>& value) {
    if (!value) return std::nullopt;
    return *value ? 1 : 0;
}

void AddWater(std::string& out, const StoredWater& water) {
    Add(out, "profile", water.profile);
    for (const StoredText& ion : water.ions) Add(out, "ion", ion);
}

void AddLines(std::string& out, const StoredRecipe& r) {
    for (const auto* list : {&r.grains, &r.extracts})
        for (const StoredGrain& line : *list) {
            out += "\ngrain " + std::to_string(line.rowId) + ": ";
            Add(out, "name", line.name);
            for (const StoredQuantity* q : {&line.amount, &line.ppg, &line.color}) Add(out, "q", *q);
        }
    for (const StoredHop& line : r.hops) {
        out += "\nhop " + std::to_string(line.rowId) + ": ";
        Add(out, "name", line.name);
        Add(out, "form", AsNumber(line.form));
        Add(out, "sock", AsNumber(line.sock));
        Add(out, "dry", AsNumber(line.dry));
        for (const StoredQuantity* q : {&line.amount, &line.aa, &line.duration}) Add(out, "q", *q);
    }
    for (const StoredSalt& line : r.salts) {
        out += "\nsalt " + std::to_string(line.rowId) + ": ";
        Add(out, "name", line.name);
        Add(out, "amount", line.amount);
        for (const std::optional<double>& ion : line.ions) Add(out, "ion", ion);
    }
    for (const StoredSugar& line : r.sugars) {
        out += "\nsugar " + std::to_string(line.rowId) + ": ";
        Add(out, "name", line.name);
        Add(out, "ferment", line.ferment);
        Add(out, "amount", line.amount);
    }
    for (const StoredAdjunct& line : r.adjuncts) {
        out += "\nadjunct " + std::to_string(line.rowId) + ": ";
        for (const StoredText* text : {&line.name, &line.amount, &line.duration, &line.when})
            Add(out, "t", *text);
    }
    for (const StoredLogLine& line : r.log) {
        out += "\nlog " + std::to_string(line.rowId) + ": ";
        for (const StoredText* text : {&line.date, &line.action, &line.notes}) Add(out, "t", *text);
    }
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tunwright_store_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code failure;
    std::filesystem::remove_all(path_, failure);
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void WriteFile(const std::string& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

void MakeMainDatabase(const std::string& path) {
    CreateSchema(*Database::CreateDatabase(path, ""));
}

Rows Select(Database& database, std::string_view sql) {
    Rows all;
    for (Recordset rows = database.OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
        std::vector<std::string> cells;
        for (int i = 0; i < rows.FieldCount(); ++i) {
            const Field field = rows.Fields(i);
            cells.push_back(field.IsNull() ? "NULL" : field.Text());
        }
        all.push_back(cells);
    }
    return all;
}

std::string Cell(Database& database, std::string_view sql) {
    const Rows rows = Select(database, sql);
    return rows.empty() ? "no row" : rows.front().front();
}

StoredRecipe FullRecipe(const std::string& name, int linesPerTable) {
    StoredRecipe r;
    r.name = name;
    r.styleId = 7;
    r.folderId = 3;
    r.createdWhen = DateTime{2024, 1, 31, 12, 0, 5};
    r.modifiedWhen = DateTime{2024, 2, 29, 18, 30, 59};
    r.bv = {"7 gal", 7};
    r.tv = {"5 1/2 gal", 5.5};
    r.dilutions = {"1 qt", 0.25};
    r.fv = {"5 gal", 5};
    r.bg = {"1.041", 1.041234567890123};
    r.og = {"1.050", 1.05};
    r.fg = {"1.012", 1.012};
    r.abv = "5.2% abv";
    r.color = "9 SRM (14 HCU)";
    r.ibu = "34";
    r.co2Vols = "2.45 volumes";
    r.notes = "007";
    r.numBatches = "1.050";
    r.grainExtract = {"72%", 72};
    r.ibuMethod = 2;
    r.hopExtract = {"1.0", 1};
    r.bottled = true;
    r.kegPsi = {"12 psi", 12};
    r.kegVols = "2.5";
    r.temperature = {"68 F", 68};
    r.source = {"Home", {"40", "120.5", "20", "8", "15", "30"}};
    r.target = {"Burton", {"268", "200", std::nullopt, "62", "0", "638"}};
    // By descending row, as a recipe is read.
    for (int i = linesPerTable - 1; i >= 0; --i) {
        const std::string n = std::to_string(i);
        r.grains.push_back({i, "Pale malt " + n, {"8 lb 4 oz", 8.25}, {"36.5", 36.5}, {"2.2", 2.2}});
        r.extracts.push_back({i, "Light extract " + n, {"1 lb", 1}, {"44", 44}, {"5", 5}});
        r.hops.push_back(
            {i, "Goldings " + n, 2, true, false, {"1 1/2 oz", 1.5}, {"5.2%", 5.2}, {"60 min", 60}});
        r.salts.push_back({i, "Gypsum " + n, {"3.125 grams", 3.125}, {61.5, 0, 0.1, 2, 3, 147.4}});
        r.sugars.push_back({i, "Corn sugar " + n, {"100%", 100}, {"4 oz", 4}});
        r.adjuncts.push_back({i, "Irish moss " + n, "1 tsp", "15 min", "Boil"});
        r.log.push_back({i, "02/28/2024", "Pitched Yeast", "London ale " + n});
    }
    return r;
}

std::string Describe(const StoredRecipe& r) {
    std::string out;
    Add(out, "name", r.name);
    Add(out, "style", AsNumber(r.styleId));
    Add(out, "folder", AsNumber(r.folderId));
    Add(out, "created", r.createdWhen ? StoredText(DateText(*r.createdWhen)) : std::nullopt);
    Add(out, "modified", StoredText(DateText(r.modifiedWhen)));
    for (const StoredQuantity* q : {&r.bv, &r.tv, &r.dilutions, &r.fv, &r.bg, &r.og, &r.fg, &r.grainExtract,
                                    &r.hopExtract, &r.kegPsi, &r.temperature})
        Add(out, "q", *q);
    for (const StoredText* t : {&r.abv, &r.color, &r.ibu, &r.co2Vols, &r.notes, &r.numBatches, &r.kegVols})
        Add(out, "t", *t);
    Add(out, "method", AsNumber(r.ibuMethod));
    Add(out, "bottled", AsNumber(r.bottled));
    AddWater(out, r.source);
    AddWater(out, r.target);
    AddLines(out, r);
    return out;
}

std::string Dump(Database& database) {
    std::string all;
    for (const TableSchema& table : MainSchema()) {
        all += std::string(table.name) + "\n";
        for (const auto& row : Select(database, "SELECT * FROM " + std::string(table.name))) {
            for (const std::string& cell : row) all += cell + "\t";
            all += "\n";
        }
    }
    return all;
}

}  // namespace tw::test

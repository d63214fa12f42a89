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

void Add(std::string& out, std::string_view name, const std::optional<std::string>& text) {
    out.append(name).append("=").append(text ? "'" + *text + "'" : "NULL").append("; ");
}

void Add(std::string& out, std::string_view name, const std::optional<double>& number) {
    out.append(name).append("=").append(number ? NumberText(*number) : "NULL").append("; ");
}

void Add(std::string& out, std::string_view name, const StoredValue& value) {
    Add(out, name, value.text);
    Add(out, name, value.number);
}

template <class T>
std::optional<double> AsNumber(const std::optional<T>& value) {
    if (!value) return std::nullopt;
    return static_cast<double>(*value);
}

// Returns a line with a value for each stored column, in the order of the grid's columns.
StoredLine LineOf(GridId grid, int rowId, const std::vector<StoredValue>& values) {
    StoredLine line = EmptyLine(grid, rowId);
    std::size_t next = 0;
    for (std::size_t col = 0; col < line.cells.size(); ++col)
        if (RuleOf(grid).columns[col].stored != CellStored::No) line.cells[col] = values.at(next++);
    return line;
}

StoredValue Text(const std::string& text) {
    return {text, {}};
}

StoredValue Number(double number) {
    return {{}, number};
}

std::vector<StoredValue> Water(const std::string& profile, const std::vector<std::string>& ions) {
    std::vector<StoredValue> values{Text(profile)};
    for (const std::string& ion : ions) values.push_back(ion.empty() ? StoredValue{} : Text(ion));
    return values;
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
    r[FieldId::BoilVol] = {"7 gal", 7};
    r[FieldId::TotalVol] = {"5 1/2 gal", 5.5};
    r[FieldId::Dilutions] = {"1 qt", 0.25};
    r[FieldId::FinalVol] = {"5 gal", 5};
    r[FieldId::BG] = {"1.041", 1.041234567890123};
    r[FieldId::OG] = {"1.050", 1.05};
    r[FieldId::FG] = {"1.012", 1.012};
    r[FieldId::ABV] = Text("5.2% abv");
    r[FieldId::Color] = Text("9 SRM (14 HCU)");
    r[FieldId::IBU] = Text("34");
    r[FieldId::CO2] = Text("2.45 volumes");
    r[FieldId::Notes] = Text("007");
    r[FieldId::NumBatches] = Text("1.050");
    r[FieldId::Extract] = {"72%", 72};
    r.ibuMethod = 2;
    r[FieldId::HopExtraction] = {"1.0", 1};
    r.bottled = true;
    r[FieldId::Temp] = {"68 F", 68};
    r[GridId::Pressure] = {LineOf(GridId::Pressure, 0, {{"12 psi", 12}, Text("2.5")})};
    r[GridId::Water] = {LineOf(GridId::Water, 0, Water("Home", {"40", "120.5", "20", "8", "15", "30"})),
                        LineOf(GridId::Water, 1, Water("Burton", {"268", "200", "", "62", "0", "638"}))};
    // In descending order of rows, as a recipe is read.
    for (int i = linesPerTable - 1; i >= 0; --i) {
        const std::string n = std::to_string(i);
        const auto add = [&](GridId grid, const std::vector<StoredValue>& values) {
            r[grid].push_back(LineOf(grid, i, values));
        };
        add(GridId::Grain, {Text("Pale malt " + n), {"8 lb 4 oz", 8.25}, {"36.5", 36.5}, {"2.2", 2.2}});
        add(GridId::Extract, {Text("Light extract " + n), {"1 lb", 1}, {"44", 44}, {"5", 5}});
        add(GridId::Hops, {Text("Goldings " + n),
                           {"5.2%", 5.2},
                           Number(2),
                           Number(1),
                           {"1 1/2 oz", 1.5},
                           Number(0),
                           {"60 min", 60}});
        add(GridId::Treatment, {Text("Gypsum " + n),
                                {"3.125 grams", 3.125},
                                Number(61.5),
                                Number(0),
                                Number(0.1),
                                Number(2),
                                Number(3),
                                Number(147.4)});
        add(GridId::Priming, {Text("Corn sugar " + n), {"100%", 100}, {"4 oz", 4}});
        add(GridId::Adjuncts, {Text("Irish moss " + n), Text("1 tsp"), Text("Boil"), Text("15 min")});
        add(GridId::Log, {Text("02/28/2024"), Text("Pitched Yeast"), Text("London ale " + n)});
    }
    return r;
}

std::string Describe(const StoredRecipe& r) {
    std::string out;
    Add(out, "name", std::optional(r.name));
    Add(out, "style", AsNumber(r.styleId));
    Add(out, "folder", AsNumber(r.folderId));
    Add(out, "created", r.createdWhen ? std::optional(DateText(*r.createdWhen)) : std::nullopt);
    Add(out, "modified", std::optional(DateText(r.modifiedWhen)));
    Add(out, "method", AsNumber(r.ibuMethod));
    Add(out, "bottled", AsNumber(r.bottled));
    for (const FieldRule& rule : FieldRules()) Add(out, rule.name, r[rule.id]);
    for (const GridRule& rule : GridRules())
        for (const StoredLine& line : r[rule.id]) {
            out.append("\n").append(rule.name).append(" " + std::to_string(line.rowId) + ": ");
            for (std::size_t col = 0; col < line.cells.size(); ++col)
                Add(out, rule.columns[col].header, line.cells[col]);
        }
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

#include "store/CatalogueNames.h"

#include <initializer_list>

#include "values/Text.h"

namespace tw {

namespace {

constexpr const char* kTables =
    "CREATE TABLE IF NOT EXISTS CATALOGUE_FACTS (SHEET TEXT NOT NULL, NAME TEXT NOT NULL,"
    " CODE TEXT COLLATE NOCASE, SOURCE TEXT, FORM TEXT, PRIMARY KEY (SHEET, NAME)) WITHOUT ROWID;"
    "CREATE INDEX IF NOT EXISTS CATALOGUE_FACTS_CODE ON CATALOGUE_FACTS (SHEET, CODE);"
    "CREATE TABLE IF NOT EXISTS CATALOGUE_ALIASES (SHEET TEXT NOT NULL, ALIAS_KEY TEXT NOT NULL,"
    " ALIAS TEXT NOT NULL, NAME TEXT NOT NULL, PRIMARY KEY (SHEET, ALIAS_KEY)) WITHOUT ROWID;";

void Insert(Database& database, std::string_view table, std::initializer_list<std::string_view> texts) {
    std::string sql("INSERT INTO ");
    sql.append(table).append(" VALUES (");
    const char* separator = "";
    for (const std::string_view text : texts) {
        sql.append(separator);
        AppendSqlText(sql, text);
        separator = ", ";
    }
    database.Execute(sql.append(")"));
}

// The headers of the three columns of facts; an empty one stands for a fact that the sheet does not hold.
void WriteFacts(Database& database, std::string_view table, const CatalogueSheet& sheet,
                std::string_view code, std::string_view source, std::string_view form) {
    const auto cell = [](const CatalogueRow& row, std::string_view header) {
        return header.empty() ? std::string_view() : std::string_view(row.Text(header));
    };
    for (const CatalogueRow& row : sheet.rows)
        Insert(database, "CATALOGUE_FACTS (SHEET, NAME, CODE, SOURCE, FORM)",
               {table, row.Text("name"), cell(row, code), cell(row, source), cell(row, form)});
}

std::string_view ConditionOf(CatalogueKind kind) {
    if (kind == CatalogueKind::Grain) return " AND GRAIN";
    return kind == CatalogueKind::Extract ? " AND NOT GRAIN" : "";
}

}  // namespace

bool CatalogueNames::HasTables() const {
    return !database_
                .OpenRecordset(
                    "SELECT name FROM sqlite_schema WHERE type = 'table' AND name = 'CATALOGUE_ALIASES'")
                .AtEnd();
}

std::optional<std::string> CatalogueNames::NamedRow(CatalogueKind kind, std::string_view name) const {
    std::string sql("SELECT NAME FROM ");
    sql.append(TableOf(kind)).append(" WHERE NAME = ").append(SqlText(name)).append(ConditionOf(kind));
    const Recordset row = database_.OpenRecordset(sql);
    if (row.AtEnd()) return std::nullopt;
    return row.Fields(0).Text();
}

std::optional<std::string> CatalogueNames::RowOf(CatalogueKind kind, std::string_view typed) const {
    if (auto row = NamedRow(kind, typed)) return row;
    const std::string_view name = Trim(typed);
    if (name.empty() || !HasTables()) return std::nullopt;
    const std::string sheet = " WHERE SHEET = " + SqlText(TableOf(kind));
    const std::string key = SqlText(Upper(name));
    const Recordset alias =
        database_.OpenRecordset("SELECT NAME FROM CATALOGUE_ALIASES" + sheet + " AND ALIAS_KEY = " + key);
    if (!alias.AtEnd()) return NamedRow(kind, alias.Fields(0).Text());
    // Some codes stand for several styles.
    std::optional<std::string> only;
    for (Recordset coded =
             database_.OpenRecordset("SELECT NAME FROM CATALOGUE_FACTS" + sheet + " AND CODE = " + key);
         !coded.AtEnd(); coded.MoveNext()) {
        auto row = NamedRow(kind, coded.Fields(0).Text());
        if (row && only) return std::nullopt;
        if (row) only = std::move(row);
    }
    return only;
}

std::map<std::string, CatalogueFacts> CatalogueNames::FactsOf(CatalogueKind kind) const {
    std::map<std::string, CatalogueFacts> facts;
    if (!HasTables()) return facts;
    const std::string sheet = " WHERE SHEET = " + SqlText(TableOf(kind));
    for (Recordset rows =
             database_.OpenRecordset("SELECT NAME, CODE, SOURCE, FORM FROM CATALOGUE_FACTS" + sheet);
         !rows.AtEnd(); rows.MoveNext())
        facts[Upper(rows.Fields(0).Text())] = {
            rows.Fields(1).Text(), rows.Fields(2).Text(), rows.Fields(3).Text(), {}};
    for (Recordset rows = database_.OpenRecordset("SELECT NAME, ALIAS FROM CATALOGUE_ALIASES" + sheet);
         !rows.AtEnd(); rows.MoveNext())
        facts[Upper(rows.Fields(0).Text())].aliases.push_back(rows.Fields(1).Text());
    return facts;
}

std::vector<std::string> CatalogueNames::SourcesOf(CatalogueKind kind) const {
    std::vector<std::string> sources;
    if (!HasTables()) return sources;
    for (Recordset rows = database_.OpenRecordset(
             "SELECT DISTINCT SOURCE FROM CATALOGUE_FACTS WHERE SHEET = " + SqlText(TableOf(kind)) +
             " AND SOURCE <> '' ORDER BY 1");
         !rows.AtEnd(); rows.MoveNext())
        sources.push_back(rows.Fields(0).Text());
    return sources;
}

void WriteCatalogueNames(const CatalogueSheets& catalogue, Database& database) {
    database.ExecuteNative(kTables);
    database.Execute("DELETE FROM CATALOGUE_FACTS");
    database.Execute("DELETE FROM CATALOGUE_ALIASES");
    WriteFacts(database, "STYLES", catalogue.styles, "code", "guide", "");
    WriteFacts(database, "HOPS", catalogue.hops, "", "origin", "form");
    WriteFacts(database, "YEAST", catalogue.yeast, "product_code", "laboratory", "form");
    for (const CatalogueRow& row : catalogue.aliases.rows)
        Insert(database, "CATALOGUE_ALIASES (SHEET, ALIAS_KEY, ALIAS, NAME)",
               {TableOfNameKind(row.Text("kind")), Upper(row.Text("alias")), row.Text("alias"),
                row.Text("name")});
}

}  // namespace tw

#include "store/CatalogueNames.h"

#include "values/Text.h"

namespace tw {

namespace {

constexpr const char* kTables =
    "CREATE TABLE IF NOT EXISTS CATALOGUE_FACTS (SHEET TEXT NOT NULL, NAME TEXT NOT NULL,"
    " CODE TEXT COLLATE NOCASE, SOURCE TEXT, FORM TEXT, PRIMARY KEY (SHEET, NAME)) WITHOUT ROWID;"
    "CREATE INDEX IF NOT EXISTS CATALOGUE_FACTS_CODE ON CATALOGUE_FACTS (SHEET, CODE);"
    "CREATE TABLE IF NOT EXISTS CATALOGUE_ALIASES (SHEET TEXT NOT NULL, ALIAS_KEY TEXT NOT NULL,"
    " ALIAS TEXT NOT NULL, NAME TEXT NOT NULL, PRIMARY KEY (SHEET, ALIAS_KEY)) WITHOUT ROWID;";

// Inserts the facts of one sheet. code, source and form are the headers of its columns; an empty header means
// that the sheet has no such column.
void WriteFacts(Database& database, std::string_view table, const CatalogueSheet& sheet,
                std::string_view code, std::string_view source, std::string_view form) {
    const auto cell = [](const CatalogueRow& row, std::string_view header) {
        return header.empty() ? std::string_view() : std::string_view(row.Text(header));
    };
    for (const CatalogueRow& row : sheet.rows)
        database.Execute(
            "INSERT INTO CATALOGUE_FACTS (SHEET, NAME, CODE, SOURCE, FORM) VALUES (?, ?, ?, ?, ?)",
            {table, row.Text("name"), cell(row, code), cell(row, source), cell(row, form)});
}

}  // namespace

std::vector<std::string> CatalogueFacts::OtherNames() const {
    std::vector<std::string> names = aliases;
    if (!code.empty()) names.push_back(code);
    return names;
}

bool CatalogueNames::HasTables() const {
    return !database_
                .OpenRecordset(
                    "SELECT name FROM sqlite_schema WHERE type = 'table' AND name = 'CATALOGUE_ALIASES'")
                .AtEnd();
}

std::optional<std::string> CatalogueNames::NamedRow(CatalogueKind kind, std::string_view name) const {
    std::string sql("SELECT NAME FROM ");
    sql.append(TableOf(kind)).append(" WHERE NAME = ?").append(WordsOf(kind).condition);
    const Recordset row = database_.OpenRecordset(sql, {name});
    if (row.AtEnd()) return std::nullopt;
    return row.Fields(0).Text();
}

std::optional<std::string> CatalogueNames::RowOf(CatalogueKind kind, std::string_view typed) const {
    if (auto row = NamedRow(kind, typed)) return row;
    const std::string_view name = Trim(typed);
    if (name.empty() || !HasTables()) return std::nullopt;
    const SqlValues sheetAndKey = {TableOf(kind), Upper(name)};
    const Recordset alias = database_.OpenRecordset(
        "SELECT NAME FROM CATALOGUE_ALIASES WHERE SHEET = ? AND ALIAS_KEY = ?", sheetAndKey);
    if (!alias.AtEnd()) return NamedRow(kind, alias.Fields(0).Text());
    // Several styles may share a code, which then identifies none of them.
    std::optional<std::string> only;
    for (Recordset coded = database_.OpenRecordset(
             "SELECT NAME FROM CATALOGUE_FACTS WHERE SHEET = ? AND CODE = ?", sheetAndKey);
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
    const SqlValues sheet = {TableOf(kind)};
    for (Recordset rows = database_.OpenRecordset(
             "SELECT NAME, CODE, SOURCE, FORM FROM CATALOGUE_FACTS WHERE SHEET = ?", sheet);
         !rows.AtEnd(); rows.MoveNext())
        facts[Upper(rows.Fields(0).Text())] = {
            rows.Fields(1).Text(), rows.Fields(2).Text(), rows.Fields(3).Text(), {}};
    for (Recordset rows =
             database_.OpenRecordset("SELECT NAME, ALIAS FROM CATALOGUE_ALIASES WHERE SHEET = ?", sheet);
         !rows.AtEnd(); rows.MoveNext())
        facts[Upper(rows.Fields(0).Text())].aliases.push_back(rows.Fields(1).Text());
    return facts;
}

NameList CatalogueNames::NamesOf(CatalogueKind kind) const {
    std::string sql("SELECT NAME FROM ");
    sql.append(TableOf(kind)).append(" WHERE NAME IS NOT NULL").append(WordsOf(kind).condition);
    std::vector<std::string> names;
    for (Recordset rows = database_.OpenRecordset(sql + " ORDER BY 1"); !rows.AtEnd(); rows.MoveNext())
        names.push_back(rows.Fields(0).Text());
    return WithOtherNames(kind, names);
}

NameList CatalogueNames::WithOtherNames(CatalogueKind kind, std::span<const std::string> names) const {
    const auto facts = FactsOf(kind);
    NameList list;
    for (const std::string& name : names) {
        const auto known = facts.find(Upper(name));
        list.Add(name, known == facts.end() ? std::vector<std::string>() : known->second.OtherNames());
    }
    return list;
}

std::vector<std::string> CatalogueNames::SourcesOf(CatalogueKind kind) const {
    std::vector<std::string> sources;
    if (!HasTables()) return sources;
    for (Recordset rows = database_.OpenRecordset(
             "SELECT DISTINCT SOURCE FROM CATALOGUE_FACTS WHERE SHEET = ? AND SOURCE <> '' ORDER BY 1",
             {TableOf(kind)});
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
        database.Execute("INSERT INTO CATALOGUE_ALIASES (SHEET, ALIAS_KEY, ALIAS, NAME) VALUES (?, ?, ?, ?)",
                         {TableOfNameKind(row.Text("kind")), Upper(row.Text("alias")), row.Text("alias"),
                          row.Text("name")});
}

}  // namespace tw

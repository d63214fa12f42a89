#include "store/CatalogueEntries.h"

#include <algorithm>
#include <cassert>

#include "values/NumberText.h"

namespace tw {

namespace {

constexpr std::string_view kTypeOfGrain = "GRAIN_TYPE";

std::string NumberLiteral(const std::optional<double>& number) {
    return number ? NumberText(*number) : "NULL";
}

std::string BoolLiteral(bool value) {
    return value ? "TRUE" : "FALSE";
}

std::string TypeLiteral(const std::string& word) {
    const auto found = std::ranges::find(kYeastTypes, word);
    return found == kYeastTypes.end() ? "NULL" : std::to_string(found - kYeastTypes.begin());
}

// Builds the entry of one row of a sheet.
class EntryMaker {
  public:
    EntryMaker(std::string_view table, const CatalogueRow& row) : row_(row) {
        entry_.table = table;
        entry_.name = row.Text("name");
        Literal("NAME", SqlText(entry_.name));
    }
    EntryMaker& Literal(std::string column, std::string literal) {
        entry_.values.emplace_back(std::move(column), std::move(literal));
        return *this;
    }
    EntryMaker& Text(std::string column, std::string_view header) {
        return Literal(std::move(column), SqlText(row_.Text(header)));
    }
    EntryMaker& Number(std::string column, std::string_view header) {
        return Literal(std::move(column), NumberLiteral(row_.Number(header)));
    }
    // The two columns and the two headers are those with "_LO" and "_HI", "_lo" and "_hi" behind the given
    // words.
    EntryMaker& Range(const std::string& column, const std::string& header) {
        Number(column + "_LO", header + "_lo");
        return Number(column + "_HI", header + "_hi");
    }
    EntryMaker& InFolder(std::string_view header) {
        entry_.folder = row_.Text(header);
        return *this;
    }
    CatalogueEntry Done() { return std::move(entry_); }

  private:
    const CatalogueRow& row_;
    CatalogueEntry entry_;
};

CatalogueEntry GrainEntry(const CatalogueRow& row) {
    return EntryMaker("GRAINS", row)
        .Literal("GRAIN", BoolLiteral(row.Text("kind") == "grain"))
        .Text(std::string(kTypeOfGrain), "type")
        .Text("DESCR", "description")
        .Range("PPG", "ppg")
        .Range("COLOR", "color")
        .Done();
}

CatalogueEntry HopEntry(const CatalogueRow& row) {
    return EntryMaker("HOPS", row)
        .Text("USAGE", "usage")
        .Text("DESCR", "description")
        .Range("AA", "alpha")
        .Done();
}

CatalogueEntry YeastEntry(const CatalogueRow& row) {
    return EntryMaker("YEAST", row)
        .Text("DESCR", "short_description")
        .Text("FLOC", "flocculation")
        .Text("FULL_DESCR", "description")
        .Literal("TYPE", TypeLiteral(row.Text("type")))
        .Range("AA", "attenuation")
        .Range("TEMP", "temp")
        .Done();
}

CatalogueEntry IonEntry(std::string_view table, const CatalogueRow& row) {
    EntryMaker maker(table, row);
    maker.Text("DESCR", "description");
    constexpr std::pair<const char*, const char*> kIons[] = {{"CA", "ca"}, {"CO3", "co3"}, {"CL", "cl"},
                                                             {"MG", "mg"}, {"NA", "na"},   {"SO4", "so4"}};
    for (const auto& [column, header] : kIons) maker.Number(column, header);
    return maker.Done();
}

CatalogueEntry SugarEntry(const CatalogueRow& row) {
    return EntryMaker("SUGARS", row).Text("DESCR", "description").Range("FERMENT", "fermentable").Done();
}

CatalogueEntry StyleEntry(const CatalogueRow& row) {
    const std::string& profile = row.Text("water_profile");
    return EntryMaker("STYLES", row)
        .Text("DESCR", "description")
        .Literal("TYPE", TypeLiteral(row.Text("type")))
        .Literal("WATER_PROFILE", profile.empty() ? "NULL" : SqlText(profile))
        .Range("OG", "og")
        .Range("FG", "fg")
        .Range("ABV", "abv")
        .Range("COLOR", "color")
        .Range("IBU", "ibu")
        .Range("CO2", "co2")
        .InFolder("folder")
        .Done();
}

std::optional<std::string> FoundTypeId(Database& database, const std::string& name,
                                       const std::string& isGrain) {
    const Recordset found =
        database.OpenRecordset("SELECT ID FROM GRAIN_TYPES WHERE NAME = " + name + " AND GRAIN = " + isGrain);
    if (found.AtEnd()) return std::nullopt;
    return found.Fields(0).Text();
}

// The value to write for a column: the ID where the entry names the type of a grain.
std::string WrittenValue(Database& database, const CatalogueEntry& entry, const std::string& column,
                         const std::string& literal) {
    if (column != kTypeOfGrain) return literal;
    return GrainTypeId(database, literal, entry.Literal("GRAIN"));
}

// The ID of the type of a grain; "0" for a row of another table and for a grain without one.
std::string TypeOfRow(Database& database, std::string_view table, const std::string& id) {
    if (table != "GRAINS") return "0";
    return std::to_string(
        database.OpenRecordset("SELECT GRAIN_TYPE FROM GRAINS WHERE ID = " + id).Fields(0).Integer());
}

void DropUnusedType(Database& database, const std::string& id) {
    const Recordset grains =
        database.OpenRecordset("SELECT COUNT(GRAIN_TYPE) FROM GRAINS WHERE GRAIN_TYPE = " + id);
    if (grains.Fields(0).Integer() < 1) database.Execute("DELETE FROM GRAIN_TYPES WHERE ID = " + id);
}

}  // namespace

const std::string& CatalogueEntry::Literal(std::string_view column) const {
    const auto found = std::ranges::find_if(values, [&](const auto& value) { return value.first == column; });
    assert(found != values.end());
    return found->second;
}

std::vector<CatalogueEntry> EntriesOf(const CatalogueSheets& catalogue) {
    std::vector<CatalogueEntry> entries;
    const auto add = [&](const CatalogueSheet& sheet, auto entryOf) {
        for (const CatalogueRow& row : sheet.rows) entries.push_back(entryOf(row));
    };
    add(catalogue.grains, GrainEntry);
    add(catalogue.hops, HopEntry);
    add(catalogue.yeast, YeastEntry);
    add(catalogue.waters, [](const CatalogueRow& row) { return IonEntry("WATER_PROFILES", row); });
    add(catalogue.salts, [](const CatalogueRow& row) { return IonEntry("SALTS", row); });
    add(catalogue.sugars, SugarEntry);
    add(catalogue.styles, StyleEntry);
    return entries;
}

std::string LiteralOf(Database& database, const Recordset& records, std::string_view column) {
    const Field field = records.Fields(column);
    if (field.IsNull()) return "NULL";
    if (column == kTypeOfGrain) {
        const Recordset type =
            database.OpenRecordset("SELECT NAME FROM GRAIN_TYPES WHERE ID = " + field.Text());
        return type.AtEnd() ? "NULL" : SqlText(type.Fields(0).Text());
    }
    const Value value = field.Value();
    if (const auto* text = std::get_if<std::string>(&value)) return SqlText(*text);
    if (const auto* number = std::get_if<double>(&value)) return NumberText(*number);
    return BoolLiteral(field.Boolean());
}

std::string GrainTypeId(Database& database, const std::string& name, const std::string& isGrain) {
    if (const auto id = FoundTypeId(database, name, isGrain)) return *id;
    database.Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES (" + name + ", " + isGrain + ")");
    return FoundTypeId(database, name, isGrain).value_or("NULL");
}

void InsertEntry(Database& database, const CatalogueEntry& entry, const std::string& folderId,
                 const std::string& when) {
    std::string columns;
    std::string literals;
    const auto add = [&](const std::string& column, const std::string& literal) {
        columns += (columns.empty() ? "" : ", ") + column;
        literals += (literals.empty() ? "" : ", ") + literal;
    };
    for (const auto& [column, literal] : entry.values)
        add(column, WrittenValue(database, entry, column, literal));
    if (!entry.folder.empty()) {
        add("FOLDER_ID", folderId);
        add("CREATED_WHEN", when);
        add("MODIFIED_WHEN", when);
    }
    database.Execute("INSERT INTO " + std::string(entry.table) + " (" + columns + ") VALUES (" + literals +
                     ")");
}

void UpdateEntry(Database& database, const CatalogueEntry& entry, const std::string& id,
                 const std::string& when) {
    const std::string table(entry.table);
    const std::string oldType = TypeOfRow(database, entry.table, id);
    std::string changes;
    for (const auto& [column, literal] : entry.values) {
        changes +=
            (changes.empty() ? "" : ", ") + column + " = " + WrittenValue(database, entry, column, literal);
    }
    if (!entry.folder.empty()) changes += ", MODIFIED_WHEN = " + when;
    database.Execute("UPDATE " + table + " SET " + changes + " WHERE ID = " + id);
    if (oldType != "0") DropUnusedType(database, oldType);
}

void DeleteEntry(Database& database, std::string_view table, const std::string& id) {
    const std::string oldType = TypeOfRow(database, table, id);
    database.Execute("DELETE FROM " + std::string(table) + " WHERE ID = " + id);
    if (oldType != "0") DropUnusedType(database, oldType);
}

}  // namespace tw

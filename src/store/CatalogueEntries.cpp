#include "store/CatalogueEntries.h"

#include <algorithm>
#include <cassert>
#include <optional>

namespace tw {

namespace {

constexpr std::string_view kTypeOfGrain = "GRAIN_TYPE";

std::optional<std::int64_t> TypeOf(const std::string& word) {
    const auto found = std::ranges::find(kYeastTypes, word);
    if (found == kYeastTypes.end()) return std::nullopt;
    return found - kYeastTypes.begin();
}

// Builds the entry of one row of a sheet.
class EntryMaker {
  public:
    EntryMaker(std::string_view table, const CatalogueRow& row) : row_(row) {
        entry_.table = table;
        entry_.name = row.Text("name");
        Value("NAME", entry_.name);
    }
    EntryMaker& Value(std::string column, SqlValue value) {
        entry_.values.emplace_back(std::move(column), std::move(value));
        return *this;
    }
    EntryMaker& Text(std::string column, std::string_view header) {
        return Value(std::move(column), row_.Text(header));
    }
    EntryMaker& Number(std::string column, std::string_view header) {
        return Value(std::move(column), row_.Number(header));
    }
    // Adds two columns: column and header are extended by "_LO" and "_lo", and by "_HI" and "_hi".
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
        .Value("GRAIN", row.Text("kind") == "grain")
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
        .Value("TYPE", TypeOf(row.Text("type")))
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
        .Value("TYPE", TypeOf(row.Text("type")))
        .Value("WATER_PROFILE", profile.empty() ? SqlValue(Null()) : SqlValue(profile))
        .Range("OG", "og")
        .Range("FG", "fg")
        .Range("ABV", "abv")
        .Range("COLOR", "color")
        .Range("IBU", "ibu")
        .Range("CO2", "co2")
        .InFolder("folder")
        .Done();
}

std::optional<std::int64_t> FoundTypeId(Database& database, const SqlValue& name, const SqlValue& isGrain) {
    const Recordset found =
        database.OpenRecordset("SELECT ID FROM GRAIN_TYPES WHERE NAME = ? AND GRAIN = ?", {name, isGrain});
    if (found.AtEnd()) return std::nullopt;
    return found.Fields(0).Integer();
}

// Returns the value to write for a column: for GRAIN_TYPE, the ID of the type that the entry names.
SqlValue WrittenValue(Database& database, const CatalogueEntry& entry, const std::string& column,
                      const SqlValue& value) {
    if (column != kTypeOfGrain) return value;
    return GrainTypeId(database, value, entry.ValueOf("GRAIN"));
}

// Returns the ID of a grain's type; 0 for a grain without a type and for a row of another table.
std::int64_t TypeOfRow(Database& database, std::string_view table, const SqlValue& id) {
    if (table != "GRAINS") return 0;
    return database.OpenRecordset("SELECT GRAIN_TYPE FROM GRAINS WHERE ID = ?", {id}).Fields(0).Integer();
}

void DropUnusedType(Database& database, std::int64_t id) {
    if (id == 0) return;
    const Recordset grains =
        database.OpenRecordset("SELECT COUNT(GRAIN_TYPE) FROM GRAINS WHERE GRAIN_TYPE = ?", {id});
    if (grains.Fields(0).Integer() < 1) database.Execute("DELETE FROM GRAIN_TYPES WHERE ID = ?", {id});
}

}  // namespace

const SqlValue& CatalogueEntry::ValueOf(std::string_view column) const {
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

SqlValue ValueOf(Database& database, const Recordset& records, std::string_view column) {
    const Field field = records.Fields(column);
    if (field.IsNull()) return Null();
    if (column == kTypeOfGrain) {
        const Recordset type =
            database.OpenRecordset("SELECT NAME FROM GRAIN_TYPES WHERE ID = ?", {field.Text()});
        if (type.AtEnd()) return Null();
        return type.Fields(0).Text();
    }
    const Value value = field.Value();
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return field.Boolean();
}

SqlValue GrainTypeId(Database& database, const SqlValue& name, const SqlValue& isGrain) {
    if (const auto id = FoundTypeId(database, name, isGrain)) return *id;
    database.Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES (?, ?)", {name, isGrain});
    return FoundTypeId(database, name, isGrain);
}

void InsertEntry(Database& database, const CatalogueEntry& entry, const SqlValue& folderId,
                 const SqlValue& when) {
    std::string columns;
    std::string places;
    SqlValues values;
    const auto add = [&](const std::string& column, SqlValue value) {
        columns += (columns.empty() ? "" : ", ") + column;
        places += places.empty() ? "?" : ", ?";
        values.push_back(std::move(value));
    };
    for (const auto& [column, value] : entry.values)
        add(column, WrittenValue(database, entry, column, value));
    if (!entry.folder.empty()) {
        add("FOLDER_ID", folderId);
        add("CREATED_WHEN", when);
        add("MODIFIED_WHEN", when);
    }
    database.Execute("INSERT INTO " + std::string(entry.table) + " (" + columns + ") VALUES (" + places + ")",
                     values);
}

void UpdateEntry(Database& database, const CatalogueEntry& entry, const SqlValue& id, const SqlValue& when) {
    const std::int64_t oldType = TypeOfRow(database, entry.table, id);
    std::string changes;
    SqlValues values;
    for (const auto& [column, value] : entry.values) {
        changes += (changes.empty() ? "" : ", ") + column + " = ?";
        values.push_back(WrittenValue(database, entry, column, value));
    }
    if (!entry.folder.empty()) {
        changes += ", MODIFIED_WHEN = ?";
        values.push_back(when);
    }
    values.push_back(id);
    database.Execute("UPDATE " + std::string(entry.table) + " SET " + changes + " WHERE ID = ?", values);
    DropUnusedType(database, oldType);
}

void DeleteEntry(Database& database, std::string_view table, const SqlValue& id) {
    const std::int64_t oldType = TypeOfRow(database, table, id);
    database.Execute("DELETE FROM " + std::string(table) + " WHERE ID = ?", {id});
    DropUnusedType(database, oldType);
}

}  // namespace tw

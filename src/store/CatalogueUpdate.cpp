#include "store/CatalogueUpdate.h"

#include <charconv>
#include <cstdint>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "store/CatalogueEntries.h"
#include "values/Text.h"

namespace tw {

namespace {

constexpr std::string_view kBaseTable = "CATALOGUE_BASE";
constexpr std::string_view kFolders = "FOLDERS";
constexpr std::string_view kRelease = "CATALOGUE";
constexpr const char* kFiles[] = {"grain_types.tsv",    "grains.tsv", "hops.tsv",   "yeast.tsv",
                                  "water_profiles.tsv", "salts.tsv",  "sugars.tsv", "styles.tsv"};

// Which state of the files came into a database.
struct Release {
    int version = 0;
    std::string digest;

    std::string Text() const { return std::to_string(version) + " " + digest; }
    static Release FromText(std::string_view text) {
        Release release;
        const char* end = text.data() + text.size();
        const char* next = std::from_chars(text.data(), end, release.version).ptr;
        release.digest = Trim(std::string_view(next, static_cast<std::size_t>(end - next)));
        return release;
    }
};

std::optional<std::string> ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// The 64-bit FNV-1a hash of all bytes of the files tells one state of them from another.
std::optional<Release> ReleaseOf(const std::string& folder) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char* name : kFiles) {
        const auto bytes = ReadFile(folder + "/" + name);
        if (!bytes) return std::nullopt;
        for (const char byte : *bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    const auto version = ReadFile(folder + "/version.txt");
    if (!version) return std::nullopt;
    Release release = Release::FromText(*version);
    char digits[16];
    release.digest.assign(digits, std::to_chars(digits, digits + sizeof digits, hash, 16).ptr);
    return release;
}

bool HasDeliveries(Database& database) {
    return !database
                .OpenRecordset("SELECT name FROM sqlite_schema WHERE type = 'table' AND name = " +
                               SqlText(kBaseTable))
                .AtEnd();
}

// The release that came last; nothing when none is remembered, as after a first look that was broken off.
std::optional<Release> LastRelease(Database& database) {
    if (!HasDeliveries(database)) return std::nullopt;
    const Recordset row = database.OpenRecordset("SELECT CONTENT FROM " + std::string(kBaseTable) +
                                                 " WHERE SHEET = " + SqlText(kRelease));
    if (row.AtEnd()) return std::nullopt;
    return Release::FromText(row.Fields(0).Text());
}

void MakeDeliveries(Database& database) {
    database.ExecuteNative("CREATE TABLE IF NOT EXISTS " + std::string(kBaseTable) +
                           " (SHEET TEXT NOT NULL, NAME TEXT NOT NULL, CONTENT TEXT,"
                           " PRIMARY KEY (SHEET, NAME)) WITHOUT ROWID");
}

// What was delivered, held in memory beside the table.
class Deliveries {
  public:
    explicit Deliveries(Database& database) : database_(database) {
        Recordset rows =
            database.OpenRecordset("SELECT SHEET, NAME, CONTENT FROM " + std::string(kBaseTable));
        for (; !rows.AtEnd(); rows.MoveNext())
            contents_[{rows.Fields(0).Text(), rows.Fields(1).Text()}] = rows.Fields(2).Text();
    }
    // Nothing for what was never delivered.
    const std::string* Find(std::string_view sheet, const std::string& name) const {
        const auto found = contents_.find({std::string(sheet), name});
        return found == contents_.end() ? nullptr : &found->second;
    }
    void Remember(std::string_view sheet, const std::string& name, const std::string& content) {
        const std::string* known = Find(sheet, name);
        if (known && *known == content) return;
        database_.Execute(known ? "UPDATE " + std::string(kBaseTable) + " SET CONTENT = " + SqlText(content) +
                                      " WHERE SHEET = " + SqlText(sheet) + " AND NAME = " + SqlText(name)
                                : "INSERT INTO " + std::string(kBaseTable) +
                                      " (SHEET, NAME, CONTENT) VALUES (" + SqlText(sheet) + ", " +
                                      SqlText(name) + ", " + SqlText(content) + ")");
        contents_[{std::string(sheet), name}] = content;
    }

  private:
    Database& database_;
    std::map<std::pair<std::string, std::string>, std::string> contents_;
};

// A line "COLUMN=literal" for each value.
std::string ContentOf(const CatalogueEntry& entry) {
    std::string content;
    for (const auto& [column, literal] : entry.values) content += column + "=" + literal + "\n";
    return content;
}

// Whether the row holds what content says, column by column; a column that content does not know counts as
// unchanged.
bool StandsAs(Database& database, const Recordset& row, std::string_view content) {
    while (!content.empty()) {
        const std::size_t end = content.find('\n');
        const std::string_view line = content.substr(0, end);
        const std::size_t equals = line.find('=');
        if (LiteralOf(database, row, line.substr(0, equals)) != line.substr(equals + 1)) return false;
        content.remove_prefix(end + 1);
    }
    return true;
}

// One run over the catalogue.
class Update {
  public:
    Update(Database& database, const std::optional<DateTime>& now)
        : database_(database), deliveries_(database), when_(now ? SqlText(DateText(*now)) : "NULL") {}

    void Take(const CatalogueEntry& entry) {
        const std::string content = ContentOf(entry);
        const std::string* delivered = deliveries_.Find(entry.table, entry.name);
        if (delivered && *delivered == content) return;
        const Recordset row = database_.OpenRecordset("SELECT * FROM " + std::string(entry.table) +
                                                      " WHERE NAME = " + SqlText(entry.name));
        if (!delivered && row.AtEnd()) {
            InsertEntry(database_, entry, entry.folder.empty() ? "" : FolderId(entry.folder), when_);
            changed_ = true;
        } else if (delivered && !row.AtEnd() && StandsAs(database_, row, *delivered)) {
            UpdateEntry(database_, entry, row.Fields("ID").Text(), when_);
            changed_ = true;
        }
        deliveries_.Remember(entry.table, entry.name, content);
    }
    // Counts the entry as delivered, whatever the database holds.
    void Adopt(const CatalogueEntry& entry) {
        deliveries_.Remember(entry.table, entry.name, ContentOf(entry));
        if (entry.folder.empty() || deliveries_.Find(kFolders, entry.folder)) return;
        deliveries_.Remember(kFolders, entry.folder, FoundFolder(entry.folder).value_or("0"));
    }
    void Remember(const Release& release) { deliveries_.Remember(kRelease, "", release.Text()); }
    bool Changed() const { return changed_; }

  private:
    std::optional<std::string> FirstId(const std::string& sql) {
        const Recordset found = database_.OpenRecordset(sql);
        if (found.AtEnd()) return std::nullopt;
        return found.Fields(0).Text();
    }
    std::optional<std::string> FoundFolder(const std::string& name) {
        return FirstId("SELECT ID FROM FOLDERS WHERE STYLE AND PARENT_ID = 0 AND NAME = " + SqlText(name));
    }
    // The folder delivered under that name; a new one is made for a name that never was, and one that its
    // brewer removed does not come back.
    std::string FolderId(const std::string& name) {
        if (const std::string* id = deliveries_.Find(kFolders, name))
            return FirstId("SELECT ID FROM FOLDERS WHERE STYLE AND ID = " + *id).value_or("0");
        std::optional<std::string> id = FoundFolder(name);
        if (!id) {
            database_.Execute(
                "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN, MODIFIED_WHEN) VALUES (0, " +
                SqlText(name) + ", TRUE, " + when_ + ", " + when_ + ")");
            id = FoundFolder(name);
        }
        deliveries_.Remember(kFolders, name, id.value_or("0"));
        return id.value_or("0");
    }

    Database& database_;
    Deliveries deliveries_;
    std::string when_;
    bool changed_ = false;
};

// The first databases came with this date on every style and style folder, which the explorer showed as a
// day on which something had happened.
void ForgetMadeUpDates(Database& database) {
    const std::string madeUp = SqlText("01/01/2024 00:00:00");
    for (const std::string column : {"CREATED_WHEN", "MODIFIED_WHEN"}) {
        database.Execute("UPDATE FOLDERS SET " + column + " = NULL WHERE STYLE AND " + column + " = " +
                         madeUp);
        database.Execute("UPDATE STYLES SET " + column + " = NULL WHERE " + column + " = " + madeUp);
    }
}

// Whether the files of that release have anything to bring.
bool IsNews(const Release& last, const Release& release) {
    return release.version > last.version ||
           (release.version == last.version && release.digest != last.digest);
}

}  // namespace

bool UpdateCatalogue(const std::string& folder, Database& database, const DateTime& now) {
    const std::optional<Release> release = ReleaseOf(folder);
    if (!release) return false;
    const std::optional<Release> last = LastRelease(database);
    if (last && !IsNews(*last, *release)) return false;
    CatalogueProblems problems;
    const CatalogueSheets catalogue = ReadCatalogue(folder, problems);
    if (!problems.empty()) return false;
    UnitOfWork unit(database);
    MakeDeliveries(database);
    ForgetMadeUpDates(database);
    Update update(database, now);
    for (const CatalogueEntry& entry : EntriesOf(catalogue)) last ? update.Take(entry) : update.Adopt(entry);
    update.Remember(*release);
    unit.Commit();
    return update.Changed();
}

void DeliverCatalogue(const std::string& folder, const CatalogueSheets& catalogue, Database& database,
                      const std::optional<DateTime>& created) {
    UnitOfWork unit(database);
    MakeDeliveries(database);
    // The types come first, so that the lists show them in the order of their file.
    for (const CatalogueRow& row : catalogue.grainTypes.rows) {
        GrainTypeId(database, SqlText(row.Text("name")), row.Text("kind") == "grain" ? "TRUE" : "FALSE");
    }
    Update update(database, created);
    for (const CatalogueEntry& entry : EntriesOf(catalogue)) update.Take(entry);
    if (const auto release = ReleaseOf(folder)) update.Remember(*release);
    unit.Commit();
}

}  // namespace tw

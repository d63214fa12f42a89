#include "store/CatalogueUpdate.h"

#include <charconv>
#include <cstdint>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>

#include "store/CatalogueDeliveries.h"
#include "store/CatalogueEntries.h"
#include "store/CatalogueNames.h"
#include "values/Hash.h"
#include "values/Text.h"

namespace tw {

namespace {

constexpr std::string_view kRelease = "CATALOGUE";
constexpr std::string_view kStyles = "STYLES";

// Identifies a state of the catalogue files.
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

// Returns the release of the files in folder; nullopt if one of them is missing. Its digest is a hash over
// all bytes of the sheets.
std::optional<Release> ReleaseOf(const std::string& folder) {
    std::uint64_t hash = kEmptyHash64;
    for (const char* name : kCatalogueFiles) {
        const auto bytes = ReadFile(folder + "/" + name);
        if (!bytes) return std::nullopt;
        hash = Hash64(*bytes, hash);
    }
    const auto version = ReadFile(folder + "/version.txt");
    if (!version) return std::nullopt;
    Release release = Release::FromText(*version);
    char digits[16];
    release.digest.assign(digits, std::to_chars(digits, digits + sizeof digits, hash, 16).ptr);
    return release;
}

// Returns the release delivered last; nullopt if none is remembered, for example because the first
// update failed.
std::optional<Release> LastRelease(Database& database) {
    if (!Deliveries::AreIn(database)) return std::nullopt;
    const Recordset row = database.OpenRecordset(
        "SELECT CONTENT FROM " + std::string(kDeliveryTable) + " WHERE SHEET = ?", {kRelease});
    if (row.AtEnd()) return std::nullopt;
    return Release::FromText(row.Fields(0).Text());
}

// Applies one catalogue to a database.
class Update {
  public:
    // REQUIRES: catalogue outlives this object.
    Update(Database& database, const CatalogueSheets& catalogue, const std::optional<DateTime>& now)
        : database_(database),
          deliveries_(database),
          former_(catalogue.former),
          when_(now ? SqlValue(DateText(*now)) : SqlValue(Null())) {}

    void Take(const CatalogueEntry& entry) {
        const std::string content = ContentOf(entry);
        const std::string* delivered = deliveries_.Find(entry.table, entry.name);
        if (delivered && *delivered == content) return;
        const Recordset row = RowOf(entry.table, entry.name);
        if (!delivered && row.AtEnd()) {
            InsertEntry(database_, entry, entry.folder.empty() ? "" : FolderId(entry.folder), when_);
            changed_ = true;
        } else if (delivered && !row.AtEnd() && StandsAs(database_, row, *delivered)) {
            Correct(entry, row, *delivered, content);
        }
        deliveries_.Remember(entry.table, entry.name, content);
    }
    // Deletes a row if it is still as it was delivered and, being a style, not used by a recipe.
    void Withdraw(std::string_view table, const std::string& name) {
        const std::string* delivered = deliveries_.Find(table, name);
        if (!delivered) return;
        const Recordset row = RowOf(table, name);
        if (row.AtEnd() || !StandsAs(database_, row, *delivered)) return;
        const std::string id = row.Fields("ID").Text();
        if (table == kStyles && FirstId("SELECT ID FROM RECIPES WHERE STYLE_ID = ?", {id})) return;
        DeleteEntry(database_, table, id);
        deliveries_.Forget(table, name);
        changed_ = true;
    }
    // Deletes the delivered folders that are not in folders (those of this release), provided that they are
    // empty and still as they were delivered.
    void WithdrawFolders(const std::set<std::string>& folders) {
        for (const std::string& name : deliveries_.NamesOf(kDeliveredFolders)) {
            const std::optional<std::string> id =
                folders.contains(name) ? std::nullopt : StandingFolder(name);
            if (!id || FirstId("SELECT ID FROM STYLES WHERE FOLDER_ID = ?", {*id}) ||
                FirstId("SELECT ID FROM FOLDERS WHERE PARENT_ID = ?", {*id}))
                continue;
            database_.Execute("DELETE FROM FOLDERS WHERE ID = ?", {*id});
            deliveries_.Forget(kDeliveredFolders, name);
            changed_ = true;
        }
    }
    // Marks the entry as delivered, whatever the database contains.
    void Adopt(const CatalogueEntry& entry) {
        deliveries_.Remember(entry.table, entry.name, ContentOf(entry));
        if (entry.folder.empty() || deliveries_.Find(kDeliveredFolders, entry.folder)) return;
        deliveries_.Remember(kDeliveredFolders, entry.folder, FoundFolder(entry.folder).value_or("0"));
    }
    void Remember(const Release& release) { deliveries_.Remember(kRelease, "", release.Text()); }
    bool Changed() const { return changed_; }

  private:
    Recordset RowOf(std::string_view table, const std::string& name) {
        return database_.OpenRecordset("SELECT * FROM " + std::string(table) + " WHERE NAME = ?", {name});
    }
    // Updates a row that is still as it was delivered. A style that is also still in the folder it was
    // delivered to moves to its new folder.
    void Correct(const CatalogueEntry& entry, const Recordset& row, const std::string& delivered,
                 const std::string& content) {
        const std::string id = row.Fields("ID").Text();
        std::string folder = FolderOf(delivered);
        if (folder.empty()) folder = FormerFolder(entry);
        const std::optional<std::string> from =
            folder.empty() || folder == entry.folder ? std::nullopt : StandingFolder(folder);
        if (from && row.Fields("FOLDER_ID").Text() == *from) {
            database_.Execute("UPDATE STYLES SET FOLDER_ID = ?, MODIFIED_WHEN = ? WHERE ID = ?",
                              {FolderId(entry.folder), when_, id});
            changed_ = true;
        }
        if (ValuesOf(delivered) == ValuesOf(content)) return;
        UpdateEntry(database_, entry, id, when_);
        changed_ = true;
    }
    // Returns the folder to which the first release, which did not remember it, delivered a style that has
    // moved since.
    std::string FormerFolder(const CatalogueEntry& entry) const {
        if (entry.table != kStyles) return {};
        for (const CatalogueRow& row : former_.rows)
            if (row.Text("name") == entry.name && TableOfNameKind(row.Text("kind")) == kStyles)
                return row.Text("folder");
        return {};
    }
    // Returns the ID of the folder delivered under that name if it still has this name and is still directly
    // below the root.
    std::optional<std::string> StandingFolder(const std::string& name) {
        const std::string* id = deliveries_.Find(kDeliveredFolders, name);
        if (!id) return std::nullopt;
        return FirstId("SELECT ID FROM FOLDERS WHERE STYLE AND PARENT_ID = 0 AND ID = ? AND NAME = ?",
                       {*id, name});
    }
    std::optional<std::string> FirstId(std::string_view sql, const SqlValues& values) {
        const Recordset found = database_.OpenRecordset(sql, values);
        if (found.AtEnd()) return std::nullopt;
        return found.Fields(0).Text();
    }
    std::optional<std::string> FoundFolder(const std::string& name) {
        return FirstId("SELECT ID FROM FOLDERS WHERE STYLE AND PARENT_ID = 0 AND NAME = ?", {name});
    }
    // Returns the ID of the folder delivered under that name, creating the folder if the name was never
    // delivered. A folder that the brewer deleted is not created again; the root takes its place.
    std::string FolderId(const std::string& name) {
        if (const std::string* id = deliveries_.Find(kDeliveredFolders, name))
            return FirstId("SELECT ID FROM FOLDERS WHERE STYLE AND ID = ?", {*id}).value_or("0");
        std::optional<std::string> id = FoundFolder(name);
        if (!id) {
            database_.Execute(
                "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN, MODIFIED_WHEN) "
                "VALUES (0, ?, TRUE, ?, ?)",
                {name, when_, when_});
            id = FoundFolder(name);
        }
        deliveries_.Remember(kDeliveredFolders, name, id.value_or("0"));
        return id.value_or("0");
    }

    Database& database_;
    Deliveries deliveries_;
    const CatalogueSheet& former_;
    SqlValue when_;
    bool changed_ = false;
};

// The first databases had this date on every style and style folder, and the explorer showed it as if
// something had happened on that day.
void ForgetMadeUpDates(Database& database) {
    const SqlValues madeUp = {"01/01/2024 00:00:00"};
    for (const std::string column : {"CREATED_WHEN", "MODIFIED_WHEN"}) {
        database.Execute("UPDATE FOLDERS SET " + column + " = NULL WHERE STYLE AND " + column + " = ?",
                         madeUp);
        database.Execute("UPDATE STYLES SET " + column + " = NULL WHERE " + column + " = ?", madeUp);
    }
}

// True if a release is newer than the last one, or a different state of the same version.
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
    Deliveries::MakeTable(database);
    ForgetMadeUpDates(database);
    Update update(database, catalogue, now);
    std::set<std::string> folders;
    for (const CatalogueEntry& entry : EntriesOf(catalogue)) {
        last ? update.Take(entry) : update.Adopt(entry);
        folders.insert(entry.folder);
    }
    if (last) {
        for (const CatalogueRow& row : catalogue.former.rows)
            if (row.Text("fate") == kGone)
                update.Withdraw(TableOfNameKind(row.Text("kind")), row.Text("name"));
        update.WithdrawFolders(folders);
    }
    WriteCatalogueNames(catalogue, database);
    update.Remember(*release);
    unit.Commit();
    return update.Changed();
}

void DeliverCatalogue(const std::string& folder, const CatalogueSheets& catalogue, Database& database,
                      const std::optional<DateTime>& created) {
    UnitOfWork unit(database);
    Deliveries::MakeTable(database);
    // The types are inserted first, so that lists show them in the order of their file.
    for (const CatalogueRow& row : catalogue.grainTypes.rows) {
        GrainTypeId(database, row.Text("name"), row.Text("kind") == "grain");
    }
    Update update(database, catalogue, created);
    for (const CatalogueEntry& entry : EntriesOf(catalogue)) update.Take(entry);
    WriteCatalogueNames(catalogue, database);
    if (const auto release = ReleaseOf(folder)) update.Remember(*release);
    unit.Commit();
}

}  // namespace tw

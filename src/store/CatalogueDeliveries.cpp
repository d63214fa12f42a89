#include "store/CatalogueDeliveries.h"

#include "values/Split.h"

namespace tw {

namespace {

// Unlike the other lines, not the name of a column: the column with a style's folder is FOLDER_ID.
constexpr std::string_view kFolderLine = "FOLDER=";

}  // namespace

bool Deliveries::AreIn(Database& database) {
    return !database
                .OpenRecordset("SELECT name FROM sqlite_schema WHERE type = 'table' AND name = ?",
                               {kDeliveryTable})
                .AtEnd();
}

void Deliveries::MakeTable(Database& database) {
    database.ExecuteNative("CREATE TABLE IF NOT EXISTS " + std::string(kDeliveryTable) +
                           " (SHEET TEXT NOT NULL, NAME TEXT NOT NULL, CONTENT TEXT,"
                           " PRIMARY KEY (SHEET, NAME)) WITHOUT ROWID");
}

Deliveries::Deliveries(Database& database) : database_(database) {
    Recordset rows =
        database.OpenRecordset("SELECT SHEET, NAME, CONTENT FROM " + std::string(kDeliveryTable));
    for (; !rows.AtEnd(); rows.MoveNext())
        contents_[{rows.Fields(0).Text(), rows.Fields(1).Text()}] = rows.Fields(2).Text();
}

const std::string* Deliveries::Find(std::string_view sheet, const std::string& name) const {
    const auto found = contents_.find({std::string(sheet), name});
    return found == contents_.end() ? nullptr : &found->second;
}

void Deliveries::Remember(std::string_view sheet, const std::string& name, const std::string& content) {
    const std::string table(kDeliveryTable);
    const std::string* known = Find(sheet, name);
    if (known && *known == content) return;
    if (known)
        database_.Execute("UPDATE " + table + " SET CONTENT = ? WHERE SHEET = ? AND NAME = ?",
                          {content, sheet, name});
    else
        database_.Execute("INSERT INTO " + table + " (SHEET, NAME, CONTENT) VALUES (?, ?, ?)",
                          {sheet, name, content});
    contents_[{std::string(sheet), name}] = content;
}

void Deliveries::Forget(std::string_view sheet, const std::string& name) {
    database_.Execute("DELETE FROM " + std::string(kDeliveryTable) + " WHERE SHEET = ? AND NAME = ?",
                      {sheet, name});
    contents_.erase({std::string(sheet), name});
}

std::vector<std::string> Deliveries::NamesOf(std::string_view sheet) const {
    std::vector<std::string> names;
    for (const auto& [key, content] : contents_)
        if (key.first == sheet) names.push_back(key.second);
    return names;
}

std::string ContentOf(const CatalogueEntry& entry) {
    std::string content;
    for (const auto& [column, value] : entry.values) content.append(column + "=" + value.Literal() + "\n");
    if (!entry.folder.empty()) content.append(kFolderLine).append(entry.folder).append("\n");
    return content;
}

std::string_view ValuesOf(std::string_view content) {
    // A value may contain any text, so only the last line can be that of the folder.
    const std::size_t end =
        content.empty() ? std::string_view::npos : content.rfind('\n', content.size() - 2);
    const std::size_t last = end == std::string_view::npos ? 0 : end + 1;
    return content.substr(last).starts_with(kFolderLine) ? content.substr(0, last) : content;
}

std::string FolderOf(std::string_view content) {
    std::string_view line = content.substr(ValuesOf(content).size());
    if (line.empty()) return {};
    line.remove_prefix(kFolderLine.size());
    line.remove_suffix(1);
    return std::string(line);
}

bool StandsAs(Database& database, const Recordset& row, std::string_view content) {
    content = ValuesOf(content);
    while (!content.empty()) {
        std::string_view literal = CutPart(content, '\n');
        const std::string_view column = CutPart(literal, '=');
        if (ValueOf(database, row, column).Literal() != literal) return false;
    }
    return true;
}

}  // namespace tw

// What releases of the program have delivered to a database. The table CATALOGUE_BASE remembers each
// catalogue row as it was delivered (SHEET is the row's table, NAME its name, CONTENT its values) and
// each style folder (CONTENT is its ID). The row with SHEET "CATALOGUE" holds the version and digest
// of the files delivered last.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/CatalogueEntries.h"
#include "store/Database.h"

namespace tw {

inline constexpr std::string_view kDeliveryTable = "CATALOGUE_BASE";
inline constexpr std::string_view kDeliveredFolders = "FOLDERS";

// The rows of CATALOGUE_BASE, cached in memory.
class Deliveries {
  public:
    // True if the database has the table CATALOGUE_BASE, which early releases did not create.
    static bool AreIn(Database& database);
    static void MakeTable(Database& database);

    // REQUIRES: the table exists; database outlives this object.
    explicit Deliveries(Database& database);

    // Returns what was delivered under that name, or nullptr. Valid until Remember or Forget is called for
    // that row.
    const std::string* Find(std::string_view sheet, const std::string& name) const;
    void Remember(std::string_view sheet, const std::string& name, const std::string& content);
    // Deletes the memory of a delivery, so that the row may be delivered again.
    void Forget(std::string_view sheet, const std::string& name);
    // Returns the names of all rows delivered for a sheet.
    std::vector<std::string> NamesOf(std::string_view sheet) const;

  private:
    Database& database_;
    std::map<std::pair<std::string, std::string>, std::string> contents_;
};

// Returns the CONTENT of a row: a line "COLUMN=literal" for each value and, for a style, a last line with the
// name of its folder.
std::string ContentOf(const CatalogueEntry& entry);
// Returns the folder named in a content; empty if there is none, as in contents that the first release wrote.
std::string FolderOf(std::string_view content);
// Returns the lines of the values, without that of the folder.
std::string_view ValuesOf(std::string_view content);
// True if the row still has the values of content, column by column. A column missing from content counts
// as unchanged.
bool StandsAs(Database& database, const Recordset& row, std::string_view content);

}  // namespace tw

// What the product has delivered to a database: the table CATALOGUE_BASE, which remembers each row as it came
// (SHEET the table, NAME the row's name, CONTENT its values), the style folders (CONTENT the ID), and in the
// row of SHEET "CATALOGUE" which version and content of the files came last.
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

// The table, held in memory too.
class Deliveries {
  public:
    // False for a database that no release with a memory of deliveries has seen.
    static bool AreIn(Database& database);
    static void MakeTable(Database& database);

    // REQUIRES: there is the table; database lives for as long.
    explicit Deliveries(Database& database);

    // Nothing for what was never delivered. Valid until that is remembered anew or forgotten.
    const std::string* Find(std::string_view sheet, const std::string& name) const;
    void Remember(std::string_view sheet, const std::string& name, const std::string& content);
    // What was forgotten may be delivered again.
    void Forget(std::string_view sheet, const std::string& name);
    // The names delivered of a sheet.
    std::vector<std::string> NamesOf(std::string_view sheet) const;

  private:
    Database& database_;
    std::map<std::pair<std::string, std::string>, std::string> contents_;
};

// What is remembered of a row: a line "COLUMN=literal" for each value, and for a style a last line with the
// name of its folder.
std::string ContentOf(const CatalogueEntry& entry);
// The folder that a content names; empty for one without, as the first release remembered them.
std::string FolderOf(std::string_view content);
// The lines of the values alone.
std::string_view ValuesOf(std::string_view content);
// Whether the row holds the values of content, column by column; a column that content does not know counts
// as unchanged.
bool StandsAs(Database& database, const Recordset& row, std::string_view content);

}  // namespace tw

// Copies chosen recipes between the main database and an exchange file, row by row. The fields of the source
// determine which columns are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/Database.h"

namespace tw {

// What to do with a recipe whose name exists in the destination.
enum class ConflictResponse : int { Overwrite = 1, Abort = 3, Skip = 4, Rename = 5 };

struct ConflictAnswer {
    ConflictResponse response = ConflictResponse::Abort;
    std::string newName;  // for Rename
};

// The code that started the copying.
class CopyHost {
  public:
    virtual ~CopyHost() = default;
    // Called before each recipe with its index, from 0, and the total number of recipes. Returns false
    // to stop.
    virtual bool Continue(const std::string& name, int number, int total) = 0;
    // freeName is a similar name that the destination does not have.
    virtual ConflictAnswer ResolveConflict(const std::string& name, const std::string& freeName) = 0;
    // Called if a recipe cannot be copied; text says why. Returns true to continue with the next recipe,
    // false to stop.
    virtual bool ContinueAfter(const std::string& text) = 0;
    // Receives details that matter only for finding faults.
    virtual void DebugText(const std::string& /*text*/) {}
};

struct StyleNotImported {
    std::string recipe, style;
    bool operator==(const StyleNotImported&) const = default;
};

// At most one entry per recipe.
using StylesNotImported = std::vector<StyleNotImported>;

// The recipes of a database by name, trimmed and in upper case. Read once, because a query for
// UCASE(TRIM(NAME)) would read the whole table for each recipe copied.
class RecipeNames {
  public:
    // Reads all names, replacing earlier ones. Rows without a name or ID are skipped. Raises the
    // store's error.
    void Read(Database& database);
    // Returns the ID of the recipe of that name, the lowest ID of several; nullopt if there is none.
    std::optional<std::int64_t> Find(std::string_view name) const;
    void Put(std::string_view name, std::int64_t id);
    // Returns a name that is not among them: the name with the first free number, "Mild (2)" for "Mild" and
    // "Mild (3)" for "Mild (2)". A number of more than two digits, such as a year, belongs to the name.
    std::string FreeName(std::string_view name) const;

  private:
    std::unordered_map<std::string, std::int64_t> ids_;
};

// Each run is one unit of work in the destination. Errors are passed on; what was copied before stays,
// including a part of the recipe copied last, but a recipe that was to be overwritten is then unchanged. Rows
// of RECIPE_SUGARS are deliberately not copied, so that an exchange works as it always has. Neither the tree
// nor open documents are notified.
class RecipeCopier {
  public:
    // main, file and host must outlive the copier.
    RecipeCopier(Database& main, Database& file, CopyHost& host) : main_(main), file_(file), host_(host) {}

    // Both functions return the number of recipes that were copied.
    //
    // Copies from the main database to the file, replacing style IDs by style names.
    int ExportRecipes(std::span<const std::string> names);
    // Copies from the file into that folder of the main database. A recipe whose style the main database does
    // not have gets no style and an entry in stylesNotImported, which is cleared first.
    int ImportRecipes(std::span<const std::string> names, std::int64_t destFolderId,
                      StylesNotImported& stylesNotImported);

  private:
    enum class Step { Next, Stop };

    Database& Source() { return isImport_ ? file_ : main_; }
    Database& Dest() { return isImport_ ? main_ : file_; }
    int CopyRecipes(std::span<const std::string> names);
    Step CopyRecipe(const std::string& name);
    // Returns the name to copy under, empty to leave the recipe out; nullopt to stop the run.
    std::optional<std::string> ResolveName(std::string newName);
    // Puts the source's row, with its lines, in the place of the old one if there is one. In the main
    // database, tells the followers of both recipes.
    Step CopyRows(std::int64_t sourceId, std::optional<std::int64_t> oldId, const std::string& newName);
    // Returns the newest row of exactly that name in the destination; nullopt if there is none.
    std::optional<std::int64_t> NewestInDest(const std::string& name);
    void InsertRecipe(const Recordset& source, const std::string& newName);
    void InsertLine(const std::string& table, const Recordset& source, std::int64_t newId);
    // Returns the ID of a style in the main database. If it is missing, returns 0 and adds an entry
    // to stylesNotImported.
    std::int64_t StyleIdOf(const std::string& style, const std::string& recipe);
    void CopyLines(const std::string& table, std::optional<std::int64_t> oldId, std::int64_t sourceId,
                   std::int64_t newId);

    Database& main_;
    Database& file_;
    CopyHost& host_;
    RecipeNames sourceNames_, destNames_;
    bool isImport_ = false;
    int copied_ = 0;  // recipes of the present run
    std::int64_t destFolderId_ = 0;
    StylesNotImported* stylesNotImported_ = nullptr;
};

// Returns "1 recipe" or "3 recipes", for what is said after a copy.
inline std::string CountOfRecipes(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " recipe" : " recipes");
}

}  // namespace tw

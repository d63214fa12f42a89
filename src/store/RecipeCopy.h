// Copies chosen recipes between the main database and an exchange file, row by row, driven by the fields that
// the source reports.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/Database.h"

namespace tw {

// What to do with a recipe whose name the destination holds.
enum class ConflictResponse : int { Overwrite = 1, Abort = 3, Skip = 4, Rename = 5 };

struct ConflictAnswer {
    ConflictResponse response = ConflictResponse::Abort;
    std::string newName;  // for Rename
};

// Whoever started the copying.
class CopyHost {
  public:
    virtual ~CopyHost() = default;
    // Before each recipe: its number from 0, and how many there are. False stops the run.
    virtual bool Continue(const std::string& name, int number, int total) = 0;
    virtual ConflictAnswer ResolveConflict(const std::string& name) = 0;
    // A recipe cannot be copied, as text says. True goes on to the next one, false stops the run.
    virtual bool ContinueAfter(const std::string& text) = 0;
    // What only somebody who looks for a fault wants to see.
    virtual void DebugText(const std::string& /*text*/) {}
};

struct StyleNotImported {
    std::string recipe, style;
    bool operator==(const StyleNotImported&) const = default;
};

// By recipe: one entry each.
using StylesNotImported = std::vector<StyleNotImported>;

// The recipes of a database by their names, trimmed and in upper case, read once: asking the table for
// UCASE(TRIM(NAME)) would read all of it for each recipe that is copied.
class RecipeNames {
  public:
    // Reads them anew. A row without a name or an ID is none. Raises the store's error.
    void Read(Database& database);
    // ID of the recipe of that name, the oldest of several; nothing for none.
    std::optional<std::int64_t> Find(std::string_view name) const;
    void Put(std::string_view name, std::int64_t id);

  private:
    std::unordered_map<std::string, std::int64_t> ids_;
};

// Each run is one unit on the disk of the destination. An error rises; what was copied before stays, also the
// part of a recipe that was copied last. One that was to take the place of another leaves that one as it was.
// Lines of RECIPE_SUGARS do not travel: intended. Neither the tree nor open documents are told.
class RecipeCopier {
  public:
    // REQUIRES: all of them live for as long.
    RecipeCopier(Database& main, Database& file, CopyHost& host) : main_(main), file_(file), host_(host) {}

    // Out of the main database, with the names of the styles.
    void ExportRecipes(std::span<const std::string> names);
    // Into that folder of the main database. A style that it does not know gives no style and an entry in
    // stylesNotImported, which is emptied first.
    void ImportRecipes(std::span<const std::string> names, std::int64_t destFolderId,
                       StylesNotImported& stylesNotImported);

  private:
    enum class Step { Next, Stop };

    Database& Source() { return isImport_ ? file_ : main_; }
    Database& Dest() { return isImport_ ? main_ : file_; }
    void CopyRecipes(std::span<const std::string> names);
    Step CopyRecipe(const std::string& name);
    // The name to copy under; empty to leave the recipe out. False stops the run.
    bool ResolveName(std::string& newName);
    // Puts the source's row, with its lines, in the place of the old one if there is one.
    Step CopyRows(std::int64_t sourceId, std::optional<std::int64_t> oldId, const std::string& newName);
    // The newest row of just that name in the destination; nothing when there is none.
    std::optional<std::int64_t> NewestInDest(const std::string& name);
    void InsertRecipe(const Recordset& source, const std::string& newName);
    void InsertLine(const std::string& table, const Recordset& source, std::int64_t newId);
    // STYLE_ID for a name that the main database knows; 0, and an entry, for any other.
    std::int64_t StyleIdOf(const std::string& style, const std::string& recipe);
    void CopyLines(const std::string& table, std::optional<std::int64_t> oldId, std::int64_t sourceId,
                   std::int64_t newId);

    Database& main_;
    Database& file_;
    CopyHost& host_;
    RecipeNames sourceNames_, destNames_;
    bool isImport_ = false;
    std::int64_t destFolderId_ = 0;
    StylesNotImported* stylesNotImported_ = nullptr;
};

}  // namespace tw

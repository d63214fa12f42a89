// The recovery files, which hold unsaved recipes outside the database, one per changed document. The
// program that has the database open exclusively owns the files in its folder; no other running instance
// touches them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "document/RecipeSnapshot.h"
#include "platform/DateTime.h"

namespace tw {

struct LostRecipe {
    std::string file;   // the file's path
    DateTime keptWhen;  // local time at which it was written
    RecipeSnapshot snapshot;
};

struct FoundRecipes {
    std::vector<LostRecipe> lost;       // oldest first
    std::vector<std::string> putAside;  // files that could not be read, by their new paths
};

class Recovery {
  public:
    // Uses the files of that database, below root. Their folder is named after the path of the database and
    // created when there is something to keep. The folder also records databaseId, so that a database finds
    // its files again after it was moved; an empty id records none.
    Recovery(const std::string& root, const std::string& databasePath, std::string databaseId);
    // Returns the folder below root for the recipes of that database. It does not depend on the path by which
    // the database is opened.
    static std::string FolderOf(std::string_view root, const std::string& databasePath);

    // Returns what an earlier run has left. Includes files from before the database was moved: they are taken
    // over if they record the same id and no database is left at the old path; the files of a copy that still
    // exists are left alone. A file of an unknown format or with damaged content is renamed, so that it is
    // reported only once. The files of this run's documents are not included.
    FoundRecipes Find();
    // Renames the file so that Find ignores it. Returns the new path, or the old one if that failed.
    std::string PutAside(const std::string& file) const;
    void Discard(const std::string& file) const;

    // Writes the document's recovery file, as a new file that then replaces the old one, so that one of them
    // is always complete. False if that failed; the old file remains.
    bool Keep(const std::string& key, const RecipeSnapshot& snapshot);
    // Deletes the document's file, if it has one.
    void Forget(const std::string& key);
    // Makes the document use that file from now on.
    void Adopt(const std::string& key, const std::string& file) { files_[key] = file; }

  private:
    std::string NewFile() const;
    // Writes the owner file, which records the database to which the folder belongs.
    void MarkFolder();
    // True if another folder contains the files of this database from before it was moved.
    bool IsOfThis(const std::string& folder) const;
    void TakeFilesFrom(const std::string& folder);

    std::string root_, databasePath_, databaseId_;
    std::string folder_;
    bool marked_ = false;                       // true once this run has written the owner file
    std::map<std::string, std::string> files_;  // the files of this run's documents, by document key
};

}  // namespace tw

// The files that hold unsaved recipes, outside the database, one for each changed document. Whoever has the
// database open exclusively owns the files of its folder; no other running program touches them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "document/RecipeSnapshot.h"
#include "platform/DateTime.h"

namespace tw {

struct LostRecipe {
    std::string file;   // its path
    DateTime keptWhen;  // the local time at which it was written
    RecipeSnapshot snapshot;
};

struct FoundRecipes {
    std::vector<LostRecipe> lost;       // oldest first
    std::vector<std::string> putAside;  // paths of files that could not be read and have got another name
};

class Recovery {
  public:
    // The files of that database, below root. Its folder goes by its path and is made when there is something
    // to keep; it says the database's id, so that a database that was moved finds its files again. An empty
    // id is none.
    Recovery(const std::string& root, const std::string& databasePath, std::string databaseId);
    // The folder below root for the recipes of that database, the same by whatever path the database is
    // opened.
    static std::string FolderOf(std::string_view root, const std::string& databasePath);

    // What an earlier run has left, also while the database lay elsewhere: the files of the same id come
    // along when nothing is left where it lay. A copy that is still there keeps its own. A file of another or
    // a damaged form is renamed, so that it is found just once. Files of this run's documents are not among
    // them.
    FoundRecipes Find();
    // Gives the file a name that Find passes over; the new path, or the old one when that failed.
    std::string PutAside(const std::string& file) const;
    void Discard(const std::string& file) const;

    // Writes the document's file anew, beside the old one first, so that one of the two is always whole.
    // False when that failed; the old file stays.
    bool Keep(const std::string& key, const RecipeSnapshot& snapshot);
    // Removes the document's file, if it has one.
    void Forget(const std::string& key);
    // The document writes to that file from now on.
    void Adopt(const std::string& key, const std::string& file) { files_[key] = file; }

  private:
    std::string NewFile() const;
    // Says in the folder whose it is.
    void MarkFolder();
    // Whether the files in another folder are those of this database from the time before it was moved.
    bool IsOfThis(const std::string& folder) const;
    void TakeFilesFrom(const std::string& folder);

    std::string root_, databasePath_, databaseId_;
    std::string folder_;
    bool marked_ = false;                       // by this run
    std::map<std::string, std::string> files_;  // of this run's documents, by key
};

}  // namespace tw

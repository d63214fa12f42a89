// Import and export of recipe files: the files, the dialogs in their order, the messages.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/OwnFiles.h"
#include "platform/Ports.h"
#include "platform/TargetFile.h"
#include "store/Database.h"
#include "store/RecipeCopy.h"
#include "tree/DB_IO.h"
#include "tree/TWTree.h"

namespace tw {

class ExchangeCopy;
class ProgressModel;

// A store's error is shown in a box titled "Error"; what was copied before it stays. A file that is no
// database is told as such. Nothing of that rises.
class RecipeExchange {
  public:
    // rebuildTree brings the global tree in line with the database. REQUIRES: all of them live for as long.
    RecipeExchange(Platform& platform, Database& main, DB_IO& objects, const TWTree& tree, OwnFiles& own,
                   std::function<void()> rebuildTree)
        : platform_(platform),
          main_(main),
          objects_(objects),
          tree_(tree),
          own_(own),
          rebuildTree_(std::move(rebuildTree)) {}

    // With all dialogs. One that is cancelled ends it silently.
    void Export();
    void Import();
    // With the dialogs behind that of the file.
    void ImportFile(const std::string& path);

    // With what the dialogs ask for given. append adds to a file that exists; it is replaced otherwise.
    void ExportTo(const std::string& path, bool append, std::span<const std::string> names);
    // All recipes of the file without names.
    void ImportFrom(const std::string& path, std::int64_t folderId,
                    const std::optional<std::vector<std::string>>& names);

  private:
    class Host;
    // What to import, and where to.
    struct Choice {
        std::vector<std::string> names;
        std::int64_t folderId = 0;
    };
    // Nothing when it is called off.
    using Chooser = std::function<std::optional<Choice>(const TWTree& tree)>;

    // nullptr when it has been told that the file is none.
    std::unique_ptr<Database> Open(const std::string& path);
    // What an export may write. Raises the error of a file that it may not.
    TargetFile Target(const std::string& path) const;
    // old is the file that is added to, nullptr for a new one.
    void CopyOut(const std::string& path, std::unique_ptr<Database> old, std::span<const std::string> names,
                 ProgressModel& progress);
    static void SaveWhatCame(UnitOfWork& unit, const ExchangeCopy& file, const TargetFile& target);
    void ImportChosen(const std::string& path, const Chooser& choose);
    std::optional<Choice> AskWhatToImport(const TWTree& tree);
    void CopyIn(Database& file, const Choice& choice, ProgressModel& progress);
    void CopyWatched(Database& file, const Choice& choice, ProgressModel& progress,
                     StylesNotImported& stylesNotImported);
    // Runs it; an error is shown and gives false.
    bool Trap(const std::function<void()>& operation);

    Platform& platform_;
    Database& main_;
    DB_IO& objects_;
    const TWTree& tree_;
    OwnFiles& own_;
    std::function<void()> rebuildTree_;
};

}  // namespace tw

// Import and export of recipe files: reading and writing them, the sequence of dialogs, the messages.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
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

// Errors are not raised but shown in a box titled "Error"; recipes copied before the error are kept. A file
// that is not a database is reported in other words.
class RecipeExchange {
  public:
    struct Hooks {
        // Brings the program's tree in line with the database.
        std::function<void()> rebuildTree;
        // Told how many recipes were exported or imported, unless none was.
        std::function<void(const std::string& text)> sayBriefly;
    };
    // REQUIRES: all arguments outlive the object.
    RecipeExchange(Platform& platform, Database& main, DB_IO& objects, const TWTree& tree, OwnFiles& own,
                   Hooks hooks)
        : platform_(platform),
          main_(main),
          objects_(objects),
          tree_(tree),
          own_(own),
          hooks_(std::move(hooks)) {}

    // With all dialogs; cancelling one ends the operation without a message.
    void Export();
    // Asks for a file to import. Returns nullopt if the brewer cancels.
    std::optional<std::string> AskForFile();
    // Imports from path, with the dialogs that follow that of the file.
    void ImportFile(const std::string& path);

    // Exports without dialogs. If append is true, adds to an existing file, else replaces it.
    void ExportTo(const std::string& path, bool append, std::span<const std::string> names);
    // Imports without dialogs; without names, all recipes of the file.
    void ImportFrom(const std::string& path, std::int64_t folderId,
                    const std::optional<std::vector<std::string>>& names);

  private:
    // What to import, and into which folder.
    struct Choice {
        std::vector<std::string> names;
        std::int64_t folderId = 0;
    };
    // Returns nullopt if the brewer cancels.
    using Chooser = std::function<std::optional<Choice>(const TWTree& tree)>;

    // Returns nullptr, after a message, if the file is not a database.
    std::unique_ptr<Database> Open(const std::string& path);
    // Returns the file that an export is to write. Raises Error if it must not be written.
    TargetFile Target(const std::string& path) const;
    // Returns the number of recipes written. old is the file to add to; nullptr for a new one.
    int CopyOut(const std::string& path, std::unique_ptr<Database> old, std::span<const std::string> names,
                ProgressModel& progress);
    static void SaveWhatCame(UnitOfWork& unit, const ExchangeCopy& file, const TargetFile& target);
    void ImportChosen(const std::string& path, const Chooser& choose);
    std::optional<Choice> AskWhatToImport(const TWTree& tree);
    // Both return the number of recipes imported, 0 after an error.
    int CopyIn(Database& file, const Choice& choice, ProgressModel& progress);
    int CopyWatched(Database& file, const Choice& choice, ProgressModel& progress,
                    StylesNotImported& stylesNotImported);
    // Says, unless count is 0, what has been done to so many recipes.
    void SayWhatCame(std::string_view done, int count, const std::string& where = {});
    // Runs operation. If it raises an error, shows it and returns false.
    bool Trap(const std::function<void()>& operation);

    Platform& platform_;
    Database& main_;
    DB_IO& objects_;
    const TWTree& tree_;
    OwnFiles& own_;
    Hooks hooks_;
};

}  // namespace tw

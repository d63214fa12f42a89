#include "shell/RecipeExchange.h"

#include <filesystem>
#include <iostream>
#include <sqlite3.h>

#include "platform/FileDialogModel.h"
#include "shell/ImportExportModel.h"
#include "shell/NameConflictModel.h"
#include "shell/StylesNotImportedModel.h"
#include "store/ExchangeFile.h"
#include "store/RecipeCopy.h"
#include "tree/ChooseFolderModel.h"
#include "tree/NodeKey.h"
#include "tree/ProgressModel.h"
#include "tree/TWNodes.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

bool FileExists(const std::string& path) {
    std::error_code failure;
    return fs::exists(path, failure);
}

[[noreturn]] void Refuse(const std::string& path, const std::string& what, int number) {
    throw Error("Database", "'" + path + "' " + what, number);
}

// Looked at by its bits: an administrator's process may write a file that its owner has locked against
// changes.
void CheckWritable(const std::string& path) {
    constexpr fs::perms kWriteBits =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (!failure && (status.permissions() & kWriteBits) == fs::perms::none)
        Refuse(path, "is write-protected.", SQLITE_READONLY);
}

FileDialogModel::Options FileDialog(FileDialogModel::Kind kind, std::string title, bool askToReplace) {
    return {kind, std::move(title), "TWR", "Tunwright Recipes (*.TWR)", "*.TWR", askToReplace};
}

std::vector<std::string> AllRecipesOf(const TWTree& tree) {
    std::vector<std::string> names;
    TWNode* const all = tree.Nodes(kAllRecipesKey);
    if (all == nullptr || !all->HasChildren()) return names;
    for (std::size_t i = 0; i < all->Children().Count(); ++i)
        names.emplace_back(all->Children().Item(i).Name());
    return names;
}

}  // namespace

// Asks by the dialogs, behind which the progress stands still.
class RecipeExchange::Host final : public CopyHost {
  public:
    Host(Platform& platform, ProgressModel& progress, bool isImport)
        : platform_(platform), progress_(progress), isImport_(isImport) {}

    bool Continue(const std::string& name, int number, int total) override {
        return progress_.Show(name, number, total);
    }

    ConflictAnswer ResolveConflict(const std::string& name) override {
        NameConflictModel dialog(name, isImport_, platform_.messages);
        progress_.SetBusy(false);
        platform_.dialogs.ShowModal(dialog);
        progress_.SetBusy(true);
        return dialog.Result();
    }

    bool ContinueAfter(const std::string& text) override {
        progress_.SetBusy(false);
        const bool goOn = platform_.messages.Ask("Error", text, Question::OkCancel) == Answer::Ok;
        progress_.SetBusy(true);
        return goOn;
    }

    void DebugText(const std::string& text) override { std::clog << text << '\n'; }

  private:
    Platform& platform_;
    ProgressModel& progress_;
    bool isImport_;
};

bool RecipeExchange::Trap(const std::function<void()>& operation) {
    try {
        operation();
        return true;
    } catch (const Error& error) {
        platform_.messages.ShowMessage("Error", error.Description());
        return false;
    }
}

std::unique_ptr<Database> RecipeExchange::Open(const std::string& path) {
    try {
        return Database::OpenDatabase(path, false);
    } catch (const Error&) {
        platform_.messages.ShowMessage(
            "Error", "File not recognized.\r\n\"" + path + "\" is not valid Tunwright Recipe file");
        return nullptr;
    }
}

std::unique_ptr<Database> RecipeExchange::CreateNew(const std::string& path) {
    std::error_code failure;
    // An open file can be deleted here; the brewer's recipes must not go that way.
    if (fs::equivalent(path, main_.Path(), failure))
        Refuse(path, "is the database of the recipes themselves.", SQLITE_BUSY);
    if (!fs::is_directory(path, failure) && !fs::remove(path, failure) && failure)
        Refuse(path, "cannot be replaced: " + failure.message() + ".", SQLITE_CANTOPEN);
    // What an interrupted run has left of the old file would be rolled back into the new one.
    fs::remove(path + "-journal", failure);
    return Database::CreateDatabase(path, kExchangeLocale);
}

void RecipeExchange::Export() {
    ImportExportModel recipes(tree_, false);
    platform_.dialogs.ShowModal(recipes);
    if (recipes.Cancelled()) return;
    FileDialogModel file(FileDialog(FileDialogModel::Kind::Save, recipes.Caption(), !recipes.Append()),
                         platform_.messages);
    platform_.dialogs.ShowModal(file);
    if (!file.Cancelled()) ExportTo(file.FileName(), recipes.Append(), recipes.Recipes().Selection());
}

void RecipeExchange::Import() {
    FileDialogModel file(FileDialog(FileDialogModel::Kind::Open, "Import Recipes", false),
                         platform_.messages);
    platform_.dialogs.ShowModal(file);
    if (!file.Cancelled()) ImportFile(file.FileName());
}

void RecipeExchange::ImportFile(const std::string& path) {
    ImportChosen(path, [this](const TWTree& tree) { return AskWhatToImport(tree); });
}

std::optional<RecipeExchange::Choice> RecipeExchange::AskWhatToImport(const TWTree& tree) {
    ImportExportModel recipes(tree, true);
    platform_.dialogs.ShowModal(recipes);
    if (recipes.Cancelled()) return std::nullopt;
    ChooseFolderModel folder(tree_, objects_);
    platform_.dialogs.ShowModal(folder);
    if (folder.Cancelled()) return std::nullopt;
    return Choice{recipes.Recipes().Selection(), folder.FolderID()};
}

void RecipeExchange::ExportTo(const std::string& path, bool append, std::span<const std::string> names) {
    std::unique_ptr<Database> file;
    const bool isNew = !append || !FileExists(path);
    if (!isNew && !(file = Open(path))) return;
    ProgressModel progress("Exporting Recipes", [&](ProgressModel& shown) {
        Trap([&] {
            if (isNew)
                file = CreateNew(path);
            else
                CheckWritable(path);
            UnitOfWork unit(*file);
            if (isNew) CreateExchangeTables(main_, *file);
            Host host(platform_, shown, false);
            RecipeCopier(main_, objects_, *file, host).ExportRecipes(names);
            unit.Commit();
        });
    });
    platform_.dialogs.ShowModal(progress);
}

void RecipeExchange::ImportFrom(const std::string& path, std::int64_t folderId,
                                const std::optional<std::vector<std::string>>& names) {
    ImportChosen(path, [&](const TWTree& tree) {
        return Choice{names ? *names : AllRecipesOf(tree), folderId};
    });
}

void RecipeExchange::ImportChosen(const std::string& path, const Chooser& choose) {
    const std::unique_ptr<Database> file = Open(path);
    if (!file) return;
    std::optional<Choice> choice;
    Trap([&] {
        TWTree tree(&main_);
        tree.InitFromDatabase(*file);
        choice = choose(tree);
    });
    if (!choice) return;
    ProgressModel progress("Importing Recipes", [&](ProgressModel& shown) { CopyIn(*file, *choice, shown); });
    platform_.dialogs.ShowModal(progress);
}

void RecipeExchange::CopyIn(Database& file, const Choice& choice, ProgressModel& progress) {
    StylesNotImported unknown;
    const bool copied = Trap([&] {
        Host host(platform_, progress, true);
        RecipeCopier(main_, objects_, file, host).ImportRecipes(choice.names, choice.folderId, unknown);
    });
    if (copied && !unknown.empty()) {
        StylesNotImportedModel dialog(std::move(unknown));
        progress.SetBusy(false);
        platform_.dialogs.ShowModal(dialog);
        progress.SetBusy(true);
    }
    // After an error too, so that the tree shows what has been copied before it.
    Trap(rebuildTree_);
}

}  // namespace tw

#include "shell/RecipeExchange.h"

#include <filesystem>

#include "platform/FileDialogModel.h"
#include "platform/ScopeGuard.h"
#include "shell/CopyDialogs.h"
#include "shell/ImportExportModel.h"
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
        return Database::OpenForeign(path);
    } catch (const Error&) {
        platform_.messages.ShowMessage(
            "Error", "File not recognized.\r\n\"" + path + "\" is not valid Tunwright Recipe file");
        return nullptr;
    }
}

TargetFile RecipeExchange::Target(const std::string& path) const {
    TargetFile target(path, own_);
    std::error_code failure;
    if (!fs::is_directory(fs::path(target.Path()).parent_path(), failure))
        Refuse(path, "cannot be opened: unable to open database file.", Database::kCannotOpenNumber);
    return target;
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

std::optional<std::string> RecipeExchange::AskForFile() {
    FileDialogModel file(FileDialog(FileDialogModel::Kind::Open, "Import Recipes", false),
                         platform_.messages);
    platform_.dialogs.ShowModal(file);
    if (file.Cancelled()) return std::nullopt;
    return file.FileName();
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
    std::unique_ptr<Database> old;
    if (append && FileExists(path) && !(old = Open(path))) return;
    int exported = 0;
    ProgressModel progress("Exporting Recipes", [&](ProgressModel& shown) {
        Trap([&] { exported = CopyOut(path, std::move(old), names, shown); });
    });
    platform_.dialogs.ShowModal(progress);
    SayWhatCame("Exported", exported, " to " + fs::path(path).filename().string());
}

int RecipeExchange::CopyOut(const std::string& path, std::unique_ptr<Database> old,
                            std::span<const std::string> names, ProgressModel& progress) {
    const TargetFile target = Target(path);
    const bool isNew = old == nullptr;
    ExchangeCopy file = isNew ? ExchangeCopy(main_) : ExchangeCopy(std::move(old));
    UnitOfWork unit(file.Contents());
    CopyDialogs host(platform_, progress, false);
    int exported = 0;
    try {
        exported = RecipeCopier(main_, file.Contents(), host).ExportRecipes(names);
    } catch (const Error&) {
        // A new file is written completely or not at all; an existing one keeps what was added before
        // the error.
        if (!isNew) SaveWhatCame(unit, file, target);
        throw;
    }
    unit.Commit();
    file.Save(target);
    return exported;
}

void RecipeExchange::SaveWhatCame(UnitOfWork& unit, const ExchangeCopy& file, const TargetFile& target) {
    try {
        unit.Commit();
        file.Save(target);
    } catch (const Error&) {
        // Only the first error is reported.
    }
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
    const FileInUse reading(own_, path, "is being imported");
    std::optional<Choice> choice;
    Trap([&] {
        TWTree tree(&main_);
        tree.InitFromDatabase(*file);
        choice = choose(tree);
    });
    if (!choice) return;
    int imported = 0;
    ProgressModel progress("Importing Recipes",
                           [&](ProgressModel& shown) { imported = CopyIn(*file, *choice, shown); });
    platform_.dialogs.ShowModal(progress);
    SayWhatCame("Imported", imported);
}

// Updates the progress window while the file is being read. Cancelling interrupts the search for recipes at
// once; later it takes effect after the current recipe, so that none is imported in part.
int RecipeExchange::CopyWatched(Database& file, const Choice& choice, ProgressModel& progress,
                                StylesNotImported& stylesNotImported) {
    CopyDialogs host(platform_, progress, true);
    const ScopeGuard end([&file] { file.SetWatch({}); });
    const int total = static_cast<int>(choice.names.size());
    file.SetWatch([&] { return progress.Show(progress.Name(), progress.Done(), total) || host.HasBegun(); });
    try {
        return RecipeCopier(main_, file, host)
            .ImportRecipes(choice.names, choice.folderId, stylesNotImported);
    } catch (const Error& error) {
        const bool calledOff = error.Number() == Database::kInterruptedNumber && progress.IsCancelled();
        if (!calledOff) throw;
        return 0;
    }
}

int RecipeExchange::CopyIn(Database& file, const Choice& choice, ProgressModel& progress) {
    StylesNotImported unknown;
    int imported = 0;
    const bool copied = Trap([&] { imported = CopyWatched(file, choice, progress, unknown); });
    if (copied && !unknown.empty()) {
        StylesNotImportedModel dialog(std::move(unknown));
        const auto pause = Pause(progress);
        platform_.dialogs.ShowModal(dialog);
    }
    // Even after an error, so that the tree shows what has been copied before it.
    Trap(hooks_.rebuildTree);
    return imported;
}

void RecipeExchange::SayWhatCame(std::string_view done, int count, const std::string& where) {
    if (count == 0) return;
    hooks_.sayBriefly(std::string(done) + " " + CountOfRecipes(static_cast<std::size_t>(count)) + where);
}

}  // namespace tw

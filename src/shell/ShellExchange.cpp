// Recipe files: what the shell does around an import or export.
#include <utility>

#include "shell/RecipeExchange.h"
#include "shell/Shell.h"

namespace tw {

void Shell::Exchange(const std::function<void(RecipeExchange&)>& operation) {
    if (exchanging_) return;
    const auto rebuildTree = [this] {
        struct Notice {
            Shell& shell;
            ~Notice() { shell.UpdateNotice(); }
        };
        const Notice notice{*this};
        tree_->Reload();
        CheckEnableDelete();
        // The empty main window tells what can be done next.
        if (view_ && !active_) view_->DocumentActivated(nullptr);
    };
    RecipeExchange files(platform_, *database_, *objects_, *tree_, own_, rebuildTree);
    struct End {
        bool& exchanging;
        ~End() { exchanging = false; }
    };
    exchanging_ = true;
    const End end{exchanging_};
    operation(files);
}

void Shell::ImportFile(const std::string& path) {
    Exchange([&](RecipeExchange& files) { files.ImportFile(path); });
}

void Shell::ImportRecipes(const std::string& path, std::int64_t folderId,
                          const std::optional<std::vector<std::string>>& names) {
    Exchange([&](RecipeExchange& files) { files.ImportFrom(path, folderId, names); });
}

void Shell::ExportRecipes(const std::string& path, bool append, const std::vector<std::string>& names) {
    Exchange([&](RecipeExchange& files) { files.ExportTo(path, append, names); });
}

}  // namespace tw

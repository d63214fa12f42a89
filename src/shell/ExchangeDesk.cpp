#include "shell/ExchangeDesk.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/ErrorBox.h"
#include "platform/ScopeGuard.h"
#include "shell/CopyDialogs.h"
#include "shell/ImportPath.h"
#include "shell/RecipeExchange.h"
#include "tree/ProgressModel.h"

namespace tw {

void ExchangeDesk::RebuildTree() {
    const ScopeGuard update([this] { notice_.Update(); });
    data_.tree.Reload();
    states_.CheckEnableDelete();
    states_.CheckEnableCarried();
    // The empty main window suggests what to do next, which may have changed.
    if (documents_.Active() == nullptr) view_->DocumentActivated(nullptr);
}

void ExchangeDesk::Run(const std::function<void(RecipeExchange&)>& operation) {
    if (running_) return;
    RecipeExchange files(
        data_.platform, *data_.database, data_.objects, data_.tree, own_,
        {[this] { RebuildTree(); }, [this](const std::string& text) { view_->SayBriefly(text); }});
    const ScopedValue running(running_, true);
    operation(files);
}

void ExchangeDesk::Import() {
    std::optional<std::string> path;
    Run([&](RecipeExchange& files) { path = files.AskForFile(); });
    if (path) ImportFile(*path);
}

void ExchangeDesk::Export() {
    Run([](RecipeExchange& files) { files.Export(); });
}

void ExchangeDesk::ImportFile(const std::string& path) {
    if (DoctorDesk::Takes(path)) return ShowDoctor({path});
    Run([&](RecipeExchange& files) { files.ImportFile(path); });
}

DoctorDialogs ExchangeDesk::Doctoring() {
    return {data_,
            doctor_,
            own_,
            {[this] { RebuildTree(); }, [this](const std::string& text) { view_->SayBriefly(text); }}};
}

void ExchangeDesk::ImportForeign() {
    if (running_) return;
    const ScopedValue running(running_, true);
    Doctoring().AskAndShow();
}

void ExchangeDesk::ExportOther() {
    if (running_) return;
    const ScopedValue running(running_, true);
    Doctoring().Export();
}

void ExchangeDesk::ShowDoctor(const std::vector<std::string>& paths) {
    if (running_) return;
    const ScopedValue running(running_, true);
    Doctoring().Show(paths);
}

void ExchangeDesk::ImportRecipes(const std::string& path, std::int64_t folderId,
                                 const std::optional<std::vector<std::string>>& names) {
    Run([&](RecipeExchange& files) {
        if (DoctorDesk::Takes(path))
            ImportForeign(path, folderId, names);
        else
            files.ImportFrom(path, folderId, names);
    });
}

void ExchangeDesk::ImportForeign(const std::string& path, std::int64_t folderId,
                                 const std::optional<std::vector<std::string>>& names) {
    ProgressModel progress("Importing Recipes", [&](ProgressModel& shown) {
        CopyDialogs host(data_.platform, shown, true);
        try {
            doctor_.Import(path, folderId, names, host);
        } catch (const Error& error) {
            data_.platform.messages.ShowMessage("Error", error.Description());
        }
    });
    data_.platform.dialogs.ShowModal(progress);
    RebuildTree();
}

void ExchangeDesk::ExportRecipes(const std::string& path, bool append,
                                 const std::vector<std::string>& names) {
    Run([&](RecipeExchange& files) { files.ExportTo(path, append, names); });
}

void ExchangeDesk::ImportFromPaths(const std::vector<std::string>& paths) {
    std::vector<std::string> foreign;
    std::ranges::copy_if(paths, std::back_inserter(foreign), &DoctorDesk::Takes);
    for (const std::string& path : paths) {
        if (!foreign.empty() && path == foreign.front())
            RunShowingErrors(data_.platform.messages, [&] { ShowDoctor(std::exchange(foreign, {})); });
        else if (!DoctorDesk::Takes(path))
            ImportFromPath(path);
    }
}

void ExchangeDesk::ImportFromPath(std::string_view path) {
    RunShowingErrors(data_.platform.messages, [&] {
        const std::string asGiven(path);
        if (IsFile(asGiven)) return ImportFile(asGiven);
        // A path without a leading quote is ignored if there is no such file; scripts rely on that.
        if (!path.starts_with('"')) return;
        const std::string file(Unquoted(path));
        if (IsFile(file)) return ImportFile(file);
        data_.platform.messages.ShowMessage(
            "Invalid Import File",
            "An error occurred trying to import a file:\r\n  " + file + "\r\nThis file could not be found.");
    });
}

}  // namespace tw

#include "shell/DoctorDialogs.h"

#include <filesystem>
#include <optional>

#include "doctor/ExportFindingsModel.h"
#include "platform/FileDialogModel.h"
#include "shell/CopyDialogs.h"
#include "shell/ExportOtherModel.h"

namespace tw {

void DoctorDialogs::AskAndShow() {
    FileDialogModel files(ImportDoctorModel::FilesToAskFor(), data_.platform.messages);
    data_.platform.dialogs.ShowModal(files);
    if (!files.Cancelled()) Show(files.FileNames());
}

void DoctorDialogs::Show(const std::vector<std::string>& paths) {
    RecipeDoctor doctor = desk_.Doctor();
    ImportDoctorModel dialog(doctor, data_.Access(), own_, *this, desk_.Options());
    dialog.AddFiles(paths);
    data_.platform.dialogs.ShowModal(dialog);
}

std::unique_ptr<CopyHost> DoctorDialogs::Copying(ProgressModel& progress) {
    auto host = std::make_unique<CopyDialogs>(data_.platform, progress, true);
    host->OfferAll();
    return host;
}

void DoctorDialogs::Imported(int recipes, ImportUnits units) {
    desk_.KeepUnits(units);
    hooks_.rebuildTree();
    if (recipes > 0) Say("Imported", static_cast<std::size_t>(recipes));
}

void DoctorDialogs::Export() {
    Platform& platform = data_.platform;
    ExportOtherModel recipes(data_.tree);
    platform.dialogs.ShowModal(recipes);
    if (recipes.Cancelled()) return;
    FileDialogModel file(recipes.FileDialog(), platform.messages);
    platform.dialogs.ShowModal(file);
    if (file.Cancelled()) return;
    const std::vector<std::string>& names = recipes.Recipes().Selection();
    std::optional<Findings> findings;
    try {
        findings = desk_.Export(recipes.Format(), file.FileName(), names);
    } catch (const Error& error) {
        return platform.messages.ShowMessage("Error", error.Description());
    }
    if (!findings) return;
    const std::string name = std::filesystem::path(file.FileName()).filename().string();
    Say("Exported", names.size(), " to " + name);
    if (findings->IsEmpty()) return;
    ExportFindingsModel dialog(name, *findings);
    platform.dialogs.ShowModal(dialog);
}

void DoctorDialogs::Say(std::string_view done, std::size_t recipes, const std::string& where) const {
    hooks_.sayBriefly(std::string(done) + " " + CountOfRecipes(recipes) + where);
}

}  // namespace tw

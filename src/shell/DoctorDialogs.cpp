#include "shell/DoctorDialogs.h"

#include "platform/FileDialogModel.h"
#include "shell/CopyDialogs.h"

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
    if (recipes > 0)
        hooks_.sayBriefly("Imported " + std::to_string(recipes) + (recipes == 1 ? " recipe" : " recipes"));
}

}  // namespace tw

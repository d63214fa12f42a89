// Shows the dialogs that import recipes of other programs and export recipes for them, with the program's
// tree, settings and status bar behind them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "doctor/ImportDoctorModel.h"
#include "platform/OwnFiles.h"
#include "shell/DoctorDesk.h"
#include "shell/OpenedDatabase.h"

namespace tw {

class DoctorDialogs final : private ImportDoctorHost {
  public:
    struct Hooks {
        // Brings the program's tree in line with the database.
        std::function<void()> rebuildTree;
        // Told how many recipes were imported or exported, unless none was.
        std::function<void(const std::string& text)> sayBriefly;
    };
    // REQUIRES: all arguments outlive the object.
    DoctorDialogs(OpenedDatabase& data, DoctorDesk& desk, OwnFiles& own, Hooks hooks)
        : data_(data), desk_(desk), own_(own), hooks_(std::move(hooks)) {}

    // All return once the last dialog has been closed, and show errors.

    // Asks for files to import first; cancelling that ends the import.
    void AskAndShow();
    // Shows the window that imports from these files.
    void Show(const std::vector<std::string>& paths);
    // Asks for recipes, format and file, exports, and shows what the format cannot say.
    void Export();

  private:
    // ImportDoctorHost
    std::unique_ptr<CopyHost> Copying(ProgressModel& progress) override;
    void Imported(int recipes, ImportUnits units) override;

    // Says what has been done to so many recipes, at least one.
    void Say(std::string_view done, std::size_t recipes, const std::string& where = {}) const;

    OpenedDatabase& data_;
    DoctorDesk& desk_;
    OwnFiles& own_;
    Hooks hooks_;
};

}  // namespace tw

// Shows the window that imports recipes of other programs, with the program's tree, settings and status bar
// behind it.
#pragma once

#include <functional>
#include <memory>
#include <string>
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
        // Told how many recipes were imported, unless none was.
        std::function<void(const std::string& text)> sayBriefly;
    };
    // REQUIRES: all arguments outlive the object.
    DoctorDialogs(OpenedDatabase& data, DoctorDesk& desk, OwnFiles& own, Hooks hooks)
        : data_(data), desk_(desk), own_(own), hooks_(std::move(hooks)) {}

    // Asks for files first; cancelling that ends the import.
    void AskAndShow();
    // Returns once the window has been closed. Errors are shown.
    void Show(const std::vector<std::string>& paths);

  private:
    // ImportDoctorHost
    std::unique_ptr<CopyHost> Copying(ProgressModel& progress) override;
    void Imported(int recipes, ImportUnits units) override;

    OpenedDatabase& data_;
    DoctorDesk& desk_;
    OwnFiles& own_;
    Hooks hooks_;
};

}  // namespace tw

// The common dialog that asks for the name of a file to open or to save. The windows show the desktop's own
// file dialog instead, whose checks then replace the ones made here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"

namespace tw {

// FileName is the control for the name. cmdOK leaves the dialog open if the name is blank or a folder, if a
// file to open is missing, or if the brewer answers No when asked to replace an existing file.
class FileDialogModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "CommonDialog";

    enum class Kind { Open, Save };
    struct Options {
        Kind kind = Kind::Open;
        std::string title;
        std::string extension;     // without a dot; added to a name that has none
        std::string filterName;    // "Tunwright Recipes (*.TWR)"; ";;" before another one
        std::string filter;        // "*.TWR"
        bool askToReplace = true;  // when saving: asks before an existing file is chosen
        bool several = false;      // when opening: the desktop's dialog takes more than one file
    };

    // messages must outlive the dialog.
    FileDialogModel(Options options, MessagePort& messages);

    const Options& Settings() const { return options_; }
    // The name chosen, with its extension; the first of several. Empty until the dialog has been accepted.
    std::string FileName() const { return fileNames_.empty() ? std::string() : fileNames_.front(); }
    const std::vector<std::string>& FileNames() const { return fileNames_; }
    // Accepts names that the desktop's dialog has checked, and closes the dialog.
    void Take(std::vector<std::string> fileNames);

  private:
    void Ok();
    std::string WithExtension() const;
    bool Accepts(const std::string& fileName);

    Options options_;
    MessagePort& messages_;
    std::string text_;
    std::vector<std::string> fileNames_;
};

}  // namespace tw

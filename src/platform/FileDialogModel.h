// The common dialog that asks for the name of a file to open or to save. The windows show the desktop's own
// file dialog instead, whose checks then replace the ones made here.
#pragma once

#include <string>
#include <string_view>

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
        std::string filterName;    // "Tunwright Recipes (*.TWR)"
        std::string filter;        // "*.TWR"
        bool askToReplace = true;  // when saving: asks before an existing file is chosen
    };

    // messages must outlive the dialog.
    FileDialogModel(Options options, MessagePort& messages);

    const Options& Settings() const { return options_; }
    // The name chosen, with its extension; empty until the dialog has been accepted.
    const std::string& FileName() const { return fileName_; }
    // Accepts a name that the desktop's dialog has checked, and closes the dialog.
    void Take(std::string_view fileName);

  private:
    void Ok();
    std::string WithExtension() const;
    bool Accepts(const std::string& fileName);

    Options options_;
    MessagePort& messages_;
    std::string text_;
    std::string fileName_;
};

}  // namespace tw

// The common dialog that asks for the name of a file, to open or to save. The windows show the desktop's own;
// its checks then take the place of those here.
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "platform/Ports.h"

namespace tw {

// FileName takes the name; cmdOK stays open for a blank name, for a folder, for a missing file to open and
// for one that is not to be replaced.
class FileDialogModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "CommonDialog";

    enum class Kind { Open, Save };
    struct Options {
        Kind kind = Kind::Open;
        std::string title;
        std::string extension;     // without a dot; given to a name without one
        std::string filterName;    // "Tunwright Recipes (*.TWR)"
        std::string filter;        // "*.TWR"
        bool askToReplace = true;  // Save: asks before it takes a file that exists
    };

    // messages must outlive the dialog.
    FileDialogModel(Options options, MessagePort& messages);

    const Options& Settings() const { return options_; }
    // The name taken, with its extension.
    const std::string& FileName() const { return fileName_; }
    // Takes a name that the desktop's dialog has checked, and closes.
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

// The common dialog that asks for the name of a file, to open or to save. The windows show the desktop's own;
// its checks then take the place of those here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"

namespace tw {

class FileDialogModel final : public DialogModel {
  public:
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
    FileDialogModel(Options options, MessagePort& messages)
        : options_(std::move(options)), messages_(messages) {}

    const Options& Settings() const { return options_; }
    // True until a name has been taken.
    bool Cancelled() const { return cancelled_; }
    // The name taken, with its extension.
    const std::string& FileName() const { return fileName_; }
    // Takes a name that the desktop's dialog has checked, and closes.
    void Accept(std::string_view fileName);

    std::string FormName() const override { return "CommonDialog"; }
    // FileName, empty at first.
    std::vector<DialogControl> Controls() const override;
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK and cmdCancel. cmdOK stays open for a blank name, for a folder, for a missing file to open and
    // for one that is not to be replaced.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    std::string WithExtension() const;
    bool Accepts(const std::string& fileName);

    Options options_;
    MessagePort& messages_;
    std::string text_;
    std::string fileName_;
    bool cancelled_ = true;
    bool open_ = true;
};

}  // namespace tw

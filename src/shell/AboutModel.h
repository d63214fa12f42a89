// The about window (frmAbout): labels and one button.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"

namespace tw {

class AboutModel final : public DialogModel {
  public:
    std::string FormName() const override { return "frmAbout"; }
    // lblTitle, the program's title, and lblVersion, "Version major.minor.revision".
    std::vector<DialogControl> Controls() const override;
    // Nothing can be entered: always false.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK closes the window.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    bool open_ = true;
};

}  // namespace tw

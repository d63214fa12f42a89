// What may be done where there is no printer (frmNoPrinter).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"

namespace tw {

class NoPrinterModel final : public DialogModel {
  public:
    static constexpr std::string_view kTitle = "Print";
    static constexpr std::string_view kText =
        "There is no printer on this computer.\r\nYou can look at the pages, or save them as a PDF file.";
    enum class Choice { Cancel, Preview, Pdf };

    // Cancel until a button says otherwise.
    Choice Chosen() const { return chosen_; }

    std::string FormName() const override { return "frmNoPrinter"; }
    std::vector<DialogControl> Controls() const override { return {}; }
    bool SetControl(std::string_view, std::string_view) override { return false; }
    // cmdPreview, cmdPDF and cmdCancel; each closes the window.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    Choice chosen_ = Choice::Cancel;
    bool open_ = true;
};

}  // namespace tw

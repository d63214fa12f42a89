// The choices offered when the computer has no printer (frmNoPrinter).
#pragma once

#include <string_view>

#include "platform/FormModel.h"

namespace tw {

// Buttons: cmdPreview, cmdPDF and cmdCancel. Each closes the window.
class NoPrinterModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmNoPrinter";

    static constexpr std::string_view kTitle = "Print";
    static constexpr std::string_view kText =
        "There is no printer on this computer.\r\nYou can look at the pages, or save them as a PDF file.";
    enum class Choice { Cancel, Preview, Pdf };

    NoPrinterModel();

    // Cancel unless cmdPreview or cmdPDF was pressed.
    Choice Chosen() const { return chosen_; }

  private:
    void Choose(Choice choice);

    Choice chosen_ = Choice::Cancel;
};

}  // namespace tw

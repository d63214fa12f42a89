// The format options of one type of report (frmPrintFmtOptions).
#pragma once

#include <string_view>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "platform/SettingsStore.h"
#include "reports/ReportOptions.h"

namespace tw {

// Text: txtCols (the width, which accepts any text and is not checked here), chkOne, chkTwo. HTML: pbBGColor
// (a colour 0xBBGGRR as a decimal number); pbTitles, pbLabels and pbText, which show the name and size of a
// font; chkOne. Rich text: the three fonts and chkOne. cmdTitles, cmdLabels and cmdText open the font dialog;
// cmdOK stores the options, cmdCancel discards them.
class PrintFormatModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmPrintFmtOptions";

    // Creates the controls of that type of report and loads its stored options. store and dialogs must
    // outlive the dialog.
    PrintFormatModel(ReportType mode, const SettingsStore& store, DialogPort& dialogs);

    ReportType Mode() const { return mode_; }
    // Returns "Text File Options", "HTML File Options" or "Rich-Text File Options".
    std::string_view Title() const;
    const ReportOptions& Options() const { return options_; }
    // Returns the caption of chkOne, which depends on the type.
    std::string_view OneCaption() const;

  private:
    void AddFonts();
    void ChooseFont(ReportFont& font);
    void Ok();

    ReportType mode_;
    const SettingsStore& store_;
    DialogPort& dialogs_;
    ReportOptions options_;
};

}  // namespace tw

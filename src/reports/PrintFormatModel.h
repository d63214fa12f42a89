// The options of how a report of one type looks (frmPrintFmtOptions).
#pragma once

#include <string_view>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "platform/SettingsStore.h"
#include "reports/ReportOptions.h"

namespace tw {

// Text: txtCols, which takes any text: a width that is none is not checked here; chkOne, chkTwo. HTML:
// pbBGColor, a decimal number; pbTitles, pbLabels and pbText, which show the name and size of a font; chkOne.
// Rich text: the fonts and chkOne. cmdTitles, cmdLabels and cmdText open the font dialog; cmdOK stores the
// options, cmdCancel does not.
class PrintFormatModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmPrintFmtOptions";

    // Arranges itself for that type and loads its stored options. store and dialogs must outlive the dialog.
    PrintFormatModel(ReportType mode, const SettingsStore& store, DialogPort& dialogs);

    ReportType Mode() const { return mode_; }
    // "Text File Options", "HTML File Options", "Rich-Text File Options".
    std::string_view Title() const;
    const ReportOptions& Options() const { return options_; }
    // What chkOne means in this mode.
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

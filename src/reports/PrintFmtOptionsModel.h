// The options of how a report of one type looks (frmPrintFmtOptions).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"
#include "platform/SettingsStore.h"
#include "reports/ReportOptions.h"

namespace tw {

class PrintFmtOptionsModel final : public DialogModel {
  public:
    // Arranges itself for that type and loads its stored options. store and dialogs must outlive the dialog.
    PrintFmtOptionsModel(ReportType mode, const SettingsStore& store, DialogPort& dialogs);

    ReportType Mode() const { return mode_; }
    // "Text File Options", "HTML File Options", "Rich-Text File Options".
    std::string_view Title() const;
    const ReportOptions& Options() const { return options_; }
    // What chkOne means in this mode.
    std::string_view OneCaption() const;

    std::string FormName() const override { return "frmPrintFmtOptions"; }
    // Text: txtCols, chkOne, chkTwo. HTML: pbBGColor, pbTitles, pbLabels, pbText, chkOne. Rich text:
    // pbTitles, pbLabels, pbText, chkOne. The ground is a decimal number, a font shows its name and size.
    std::vector<DialogControl> Controls() const override;
    // txtCols takes any text: a width that is none is not checked here.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdTitles, cmdLabels, cmdText open the font dialog; cmdOK stores the options, cmdCancel does not.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    bool* Switch(std::string_view name);
    void ChooseFont(ReportFont& font);

    ReportType mode_;
    const SettingsStore& store_;
    DialogPort& dialogs_;
    ReportOptions options_;
    bool open_ = true;
};

}  // namespace tw

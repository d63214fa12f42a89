// The font dialog of report options (frmChooseFont).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "reports/ReportOptions.h"

namespace tw {

class ChooseFontModel final : public DialogModel {
  public:
    // Starts on that font. bgColor is the ground of the sample; showFontBColor offers the colour behind the
    // text too.
    ChooseFontModel(const ReportFont& font, int bgColor, bool showFontBColor);

    // What the controls say. A size that is no number above 0 leaves the one before it.
    const ReportFont& FontFace() const { return font_; }
    int BGColor() const { return bgColor_; }
    bool ShowFontBColor() const { return showFontBColor_; }
    // True unless cmdOK has closed the dialog.
    bool Cancelled() const { return cancelled_; }
    // The sizes that cmbFontSize offers.
    static std::vector<std::string> Sizes();
    // Off while the name is blank or the size no number above 0.
    bool CanAccept() const;

    std::string FormName() const override { return "frmChooseFont"; }
    // cmbFontName, cmbFontSize, chkBold, chkItalic, chkUnderline, chkStrikethru, picFontColor, picFontBColor
    // where it is offered, txtSample. Colours are decimal numbers.
    std::vector<DialogControl> Controls() const override;
    // Name, size and sample take any text, the colours a number from 0 to 16777215.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK, cmdCancel.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    ReportFont font_;
    std::string size_;  // as typed
    std::string sample_ = "AaBbYyZz";
    int bgColor_;
    bool showFontBColor_;
    bool cancelled_ = true;
    bool open_ = true;
};

}  // namespace tw

// The font dialog of report options (frmChooseFont).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "reports/ReportOptions.h"

namespace tw {

// cmbFontName, cmbFontSize and txtSample take any text; chkBold, chkItalic, chkUnderline, chkStrikethru;
// picFontColor, and picFontBColor where it is offered, take a colour as a decimal number from 0 to 16777215;
// cmdOK, cmdCancel.
class ChooseFontModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmChooseFont";

    // Starts on that font. bgColor is the ground of the sample; showFontBColor offers the colour behind the
    // text too.
    ChooseFontModel(const ReportFont& font, int bgColor, bool showFontBColor);

    // What the controls say. A size that is no number above 0 leaves the one before it.
    const ReportFont& FontFace() const { return font_; }
    int BGColor() const { return bgColor_; }
    bool ShowFontBColor() const { return showFontBColor_; }
    // The sizes that cmbFontSize offers.
    static std::vector<std::string> Sizes();
    // cmdOK is off while the name is blank or the size no number above 0.
    bool CanAccept() const;

  private:
    FormControl ColorBox(std::string name, int& color);
    bool EnterSize(std::string_view text);

    ReportFont font_;
    std::string size_;  // as typed
    std::string sample_ = "AaBbYyZz";
    int bgColor_;
    bool showFontBColor_;
};

}  // namespace tw

// The font dialog of report options (frmChooseFont).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "reports/ReportOptions.h"

namespace tw {

// cmbFontName, cmbFontSize and txtSample accept any text. chkBold, chkItalic, chkUnderline and chkStrikethru
// are check boxes. picFontColor, and picFontBColor if it is offered, accept a colour 0xBBGGRR as a decimal
// number from 0 to 16777215. Buttons: cmdOK, cmdCancel.
class ChooseFontModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmChooseFont";

    // Starts with font. bgColor is the background of the sample, as 0xBBGGRR. showFontBColor offers the
    // colour behind the text as well.
    ChooseFontModel(const ReportFont& font, int bgColor, bool showFontBColor);

    // The font as entered so far. A size that is not a number above 0 leaves the last valid size.
    const ReportFont& FontFace() const { return font_; }
    int BGColor() const { return bgColor_; }
    bool ShowFontBColor() const { return showFontBColor_; }
    // Returns the sizes that cmbFontSize offers, in points.
    static std::vector<std::string> Sizes();
    // True if cmdOK is enabled: the font name is not blank and the size is a number above 0.
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

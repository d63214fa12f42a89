// Lists the recipes that were imported without their style (frmStylesNotImported).
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "store/RecipeCopy.h"

namespace tw {

// grdEffected contains its rows, headers first, each followed by a line feed, with cells separated by tabs.
// cmdOK closes the dialog.
class StylesNotImportedModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmStylesNotImported";

    // "Effected" is not to be corrected: scripts rely on these texts.
    static constexpr std::string_view kHeaders[] = {"Effected Recipe", "Unrecognized Style"};

    explicit StylesNotImportedModel(StylesNotImported styles);

    const StylesNotImported& Styles() const { return styles_; }

  private:
    std::string Rows() const;

    StylesNotImported styles_;
};

}  // namespace tw

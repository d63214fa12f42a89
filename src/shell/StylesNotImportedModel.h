// Tells which recipes have come in without their style (frmStylesNotImported).
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "store/RecipeCopy.h"

namespace tw {

// grdEffected: its rows, the headers first, each ended by a line feed, cells separated by a tab; cmdOK.
class StylesNotImportedModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmStylesNotImported";

    // "Effected" is to be kept as it stands.
    static constexpr std::string_view kHeaders[] = {"Effected Recipe", "Unrecognized Style"};

    explicit StylesNotImportedModel(StylesNotImported styles);

    const StylesNotImported& Styles() const { return styles_; }

  private:
    std::string Rows() const;

    StylesNotImported styles_;
};

}  // namespace tw

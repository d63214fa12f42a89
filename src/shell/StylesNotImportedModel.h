// Tells which recipes have come in without their style (frmStylesNotImported).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "store/RecipeCopy.h"

namespace tw {

class StylesNotImportedModel final : public DialogModel {
  public:
    // "Effected" is to be kept as it stands.
    static constexpr std::string_view kHeaders[] = {"Effected Recipe", "Unrecognized Style"};

    explicit StylesNotImportedModel(StylesNotImported styles) : styles_(std::move(styles)) {}

    const StylesNotImported& Styles() const { return styles_; }

    std::string FormName() const override { return "frmStylesNotImported"; }
    // grdEffected: its rows, the headers first, each ended by a line feed, cells separated by a tab.
    std::vector<DialogControl> Controls() const override;
    bool SetControl(std::string_view, std::string_view) override { return false; }
    // cmdOK.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    StylesNotImported styles_;
    bool open_ = true;
};

}  // namespace tw

// The about window (frmAbout).
#pragma once

#include "platform/FormModel.h"

namespace tw {

// The controls are lblTitle, the program's title; lblVersion, "Version major.minor.revision"; and cmdOK,
// which closes the window.
class AboutModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmAbout";

    AboutModel();
};

}  // namespace tw

// The about window (frmAbout).
#pragma once

#include "platform/FormModel.h"

namespace tw {

// lblTitle, the program's title; lblVersion, "Version major.minor.revision"; cmdOK, which closes the window.
class AboutModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmAbout";

    AboutModel();
};

}  // namespace tw

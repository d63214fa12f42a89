#include "shell/AboutModel.h"

#include "shell/Version.h"

namespace tw {

std::vector<DialogControl> AboutModel::Controls() const {
    return {{"lblTitle", std::string(kProgramTitle)},
            {"lblVersion", "Version " + std::string(kProgramVersion)}};
}

bool AboutModel::SetControl(std::string_view /*name*/, std::string_view /*text*/) {
    return false;
}

bool AboutModel::Press(std::string_view button) {
    if (button != "cmdOK") return false;
    open_ = false;
    return true;
}

}  // namespace tw

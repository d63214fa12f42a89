#include "shell/AboutModel.h"

#include "shell/Version.h"

namespace tw {

AboutModel::AboutModel() : FormModel(kFormName) {
    AddControls({{"lblTitle", [] { return std::string(kProgramTitle); }},
                 {"lblVersion", [] { return "Version " + std::string(kProgramVersion); }}});
    AddButtons({{"cmdOK", [this] { Close(); }}});
}

}  // namespace tw

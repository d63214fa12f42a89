#include "shell/StylesNotImportedModel.h"

namespace tw {

std::vector<DialogControl> StylesNotImportedModel::Controls() const {
    std::string rows = std::string(kHeaders[0]) + "\t" + std::string(kHeaders[1]) + "\n";
    for (const StyleNotImported& row : styles_) rows += row.recipe + "\t" + row.style + "\n";
    return {{"grdEffected", rows}};
}

bool StylesNotImportedModel::Press(std::string_view button) {
    if (button != "cmdOK") return false;
    CloseBox();
    return true;
}

}  // namespace tw

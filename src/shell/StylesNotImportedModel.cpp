#include "shell/StylesNotImportedModel.h"

namespace tw {

StylesNotImportedModel::StylesNotImportedModel(StylesNotImported styles)
    : FormModel(kFormName), styles_(std::move(styles)) {
    AddControls({{"grdEffected", [this] { return Rows(); }}});
    AddButtons({{"cmdOK", [this] { Close(); }}});
}

std::string StylesNotImportedModel::Rows() const {
    std::string rows = std::string(kHeaders[0]) + "\t" + std::string(kHeaders[1]) + "\n";
    for (const StyleNotImported& row : styles_) rows += row.recipe + "\t" + row.style + "\n";
    return rows;
}

}  // namespace tw

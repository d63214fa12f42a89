#include "shell/ImportExportModel.h"

#include <utility>

namespace tw {

ImportExportModel::ImportExportModel(const TWTree& tree, bool isImport)
    : RecipePickModel(kFormName, tree,
                      isImport ? Texts{"Import Recipes", "Import", "Import File"}
                               : Texts{"Export Recipes", "Export", {}}),
      isImport_(isImport),
      append_(!isImport) {
    FormControl append = CheckBox("chkAppend", append_);
    if (isImport) append.take = {};
    AddControls({std::move(append)});
}

}  // namespace tw

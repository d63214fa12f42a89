// The dialog that selects recipes to import or export (frmImportExport).
#pragma once

#include "shell/RecipePickModel.h"

namespace tw {

// chkAppend accepts entries only for an export.
class ImportExportModel final : public RecipePickModel {
  public:
    static constexpr const char* kFormName = "frmImportExport";

    // Offers the recipes of tree, which is that of the main database for an export and that of a recipe file
    // for an import. REQUIRES: tree outlives the object.
    ImportExportModel(const TWTree& tree, bool isImport);

    bool IsImport() const { return isImport_; }
    // The state of chkAppend, used only for an export: true if recipes are to be added to an existing file.
    bool Append() const { return append_; }
    void SetAppend(bool append) { append_ = append; }

  private:
    bool isImport_;
    bool append_;
};

}  // namespace tw

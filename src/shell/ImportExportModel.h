// The dialog that selects recipes to import or export (frmImportExport).
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "tree/RecipeChooser.h"

namespace tw {

// treeRecipes contains and accepts the key of an entry. lstRecipes contains the names of the picked recipes,
// each followed by a line feed, and accepts one of them. chkAppend accepts entries only for an export.
// cmdNext is disabled while nothing is picked. The other buttons are cmdCancel and those of the chooser.
class ImportExportModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmImportExport";

    // Offers the recipes of tree, which is that of the main database for an export and that of a recipe file
    // for an import. In the tree the brewer picks its folders, or all recipes of the file. REQUIRES: tree
    // outlives the object.
    ImportExportModel(const TWTree& tree, bool isImport);

    bool IsImport() const { return isImport_; }
    // "Import Recipes" or "Export Recipes".
    std::string Caption() const { return isImport_ ? "Import Recipes" : "Export Recipes"; }
    RecipeChooser& Recipes() { return recipes_; }
    const RecipeChooser& Recipes() const { return recipes_; }
    // The state of chkAppend, used only for an export: true if recipes are to be added to an existing file.
    bool Append() const { return append_; }
    void SetAppend(bool append) { append_ = append; }
    // True if something is picked, as cmdNext requires.
    bool NextEnabled() const { return recipes_.SelectionCount() > 0; }

  private:
    std::string PickedNames() const;
    bool ChoosePicked(std::string_view name);

    bool isImport_;
    RecipeChooser recipes_;
    bool append_;
};

}  // namespace tw

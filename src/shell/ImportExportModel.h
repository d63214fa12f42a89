// The dialog in which the recipes to import or export are picked (frmImportExport).
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "tree/RecipeChooser.h"

namespace tw {

// treeRecipes shows and takes the key of an entry; lstRecipes shows the names picked, each ended by a line
// feed, and takes one of them; chkAppend, which takes an entry in an export alone; cmdNext, which is off
// while nothing is picked; cmdCancel; the buttons of the chooser.
class ImportExportModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmImportExport";

    // Picks from the recipes of that tree: of the main database for an export, of a recipe file for an
    // import. Its folders, or all recipes of the file, are chosen in it. REQUIRES: the tree lives for as
    // long.
    ImportExportModel(const TWTree& tree, bool isImport);

    bool IsImport() const { return isImport_; }
    // "Import Recipes" or "Export Recipes".
    std::string Caption() const { return isImport_ ? "Import Recipes" : "Export Recipes"; }
    RecipeChooser& Recipes() { return recipes_; }
    const RecipeChooser& Recipes() const { return recipes_; }
    // chkAppend, of an export alone: whether the recipes go into a file that exists beside those in it.
    bool Append() const { return append_; }
    void SetAppend(bool append) { append_ = append; }
    // True while something is picked, which cmdNext needs.
    bool NextEnabled() const { return recipes_.SelectionCount() > 0; }

  private:
    std::string PickedNames() const;
    bool ChoosePicked(std::string_view name);

    bool isImport_;
    RecipeChooser recipes_;
    bool append_;
};

}  // namespace tw

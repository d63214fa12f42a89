// The dialog in which the recipes to import or export are picked (frmImportExport).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "tree/RecipeChooser.h"

namespace tw {

class ImportExportModel final : public DialogModel {
  public:
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
    // cmdNext is off while nothing is picked.
    bool NextEnabled() const { return recipes_.SelectionCount() > 0; }

    // Until cmdNext.
    bool Cancelled() const { return cancelled_; }

    std::string FormName() const override { return "frmImportExport"; }
    // treeRecipes shows the key of the chosen entry, lstRecipes the names picked, each ended by a line feed;
    // chkAppend.
    std::vector<DialogControl> Controls() const override;
    // treeRecipes takes the key of an entry, lstRecipes a name that is picked, chkAppend "yes" or "no".
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdNext, cmdCancel and the buttons of the chooser. One that is off does nothing.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    bool ChoosePicked(std::string_view name);

    bool isImport_;
    RecipeChooser recipes_;
    bool append_;
    bool cancelled_ = true;
    bool open_ = true;
};

}  // namespace tw

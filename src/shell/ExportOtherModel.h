// The dialog that selects recipes and a format to export for other brewing programs (frmExportOther).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/ForeignRecipe.h"
#include "platform/FileDialogModel.h"
#include "platform/FormModel.h"
#include "tree/RecipeChooser.h"
#include "tree/TWTree.h"

namespace tw {

// treeRecipes contains and accepts the key of an entry. cmbFormat contains the name of a format and accepts
// one. cmdNext is disabled while nothing is picked. The other buttons are cmdCancel and those of the chooser.
class ExportOtherModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmExportOther";

    // REQUIRES: tree outlives the object.
    explicit ExportOtherModel(const TWTree& tree);

    std::string Caption() const { return "Export for Other Programs"; }
    RecipeChooser& Recipes() { return recipes_; }
    // Returns the names of the formats in their list.
    static std::vector<std::string> Formats();
    ExchangeFormat Format() const { return format_; }
    int FormatIndex() const { return static_cast<int>(format_); }
    // REQUIRES: index is that of a format.
    void SetFormat(int index) { format_ = static_cast<ExchangeFormat>(index); }
    bool NextEnabled() const { return recipes_.SelectionCount() > 0; }
    // Returns the dialog that asks for the file.
    FileDialogModel::Options FileDialog() const;

  private:
    RecipeChooser recipes_;
    ExchangeFormat format_ = ExchangeFormat::BeerXml;
};

}  // namespace tw

// The dialog that selects recipes and a format to export for other brewing programs (frmExportOther).
#pragma once

#include <string>
#include <vector>

#include "exchange/ForeignRecipe.h"
#include "platform/FileDialogModel.h"
#include "shell/RecipePickModel.h"

namespace tw {

// cmbFormat contains the name of a format and accepts one.
class ExportOtherModel final : public RecipePickModel {
  public:
    static constexpr const char* kFormName = "frmExportOther";

    // REQUIRES: tree outlives the object.
    explicit ExportOtherModel(const TWTree& tree);

    // Returns the names of the formats in their list.
    static std::vector<std::string> Formats();
    ExchangeFormat Format() const { return format_; }
    int FormatIndex() const { return static_cast<int>(format_); }
    // REQUIRES: index is that of a format.
    void SetFormat(int index) { format_ = static_cast<ExchangeFormat>(index); }
    // Returns the dialog that asks for the file.
    FileDialogModel::Options FileDialog() const;

  private:
    ExchangeFormat format_ = ExchangeFormat::BeerXml;
};

}  // namespace tw

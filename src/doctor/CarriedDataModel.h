// The window that shows what a recipe carries from another program (frmCarriedData), and can drop it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "doctor/CarriedFields.h"
#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "store/CarriedData.h"

namespace tw {

// treeFields contains the line of the selected field and accepts a line or a name, which selects the first
// field with it. lblSource says where the selected field came from, or that nothing is carried. treeFields,
// pressed, copies the selected field with all below it; cmdDrop asks and drops everything.
class CarriedDataModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmCarriedData";

    // Reads what the recipe of that id carries, and selects the first field. Raises the store's errors.
    // database, messages and clipboard must outlive the object.
    CarriedDataModel(Database& database, std::int64_t recipeId, std::string recipe, MessagePort& messages,
                     ClipboardPort& clipboard);

    const std::string& Recipe() const { return recipe_; }
    const std::vector<CarriedField>& Fields() const { return fields_; }
    // Returns the index of the selected field; CarriedField::kTop if there are no fields.
    int Selected() const { return selected_; }
    // REQUIRES: index is that of a field.
    void Select(int index) { selected_ = index; }

    // Returns the text of lblSource, with the date of the import as dateText writes it.
    std::string SourceText(const std::function<std::string(const DateTime&)>& dateText) const;
    // Puts the lines of the selected field and of all below it on the clipboard.
    void CopySelected();

  private:
    const CarriedField* SelectedField() const;
    bool SelectNamed(std::string_view text);
    void Drop();

    CarriedData carried_;
    std::int64_t recipeId_;
    std::string recipe_;
    MessagePort& messages_;
    ClipboardPort& clipboard_;
    std::vector<CarriedFragment> fragments_;
    std::vector<CarriedField> fields_;
    int selected_ = CarriedField::kTop;
};

}  // namespace tw

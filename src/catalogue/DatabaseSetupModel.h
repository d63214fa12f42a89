// The dialog that maintains the catalogues (frmDBSetup).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "platform/FormModel.h"
#include "tree/ListTable.h"
#include "tree/lvFiller.h"

namespace tw {

// Combo1 accepts one of its entries. lvItems contains the text of the selected row; pressing it is a double
// click, which enters a folder or edits any other row. txtFilter accepts the words to filter by. The buttons
// are cmdNew, cmdEdit, cmdDelete and cmdClose. Raises the store's errors.
class DatabaseSetupModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmDBSetup";

    // Starts with the styles. The objects of context must outlive the dialog.
    explicit DatabaseSetupModel(const CatalogueContext& context);

    // The entries of Combo1, in the order of kSetupOrder.
    static const std::vector<std::string>& Entries();
    CatalogueKind Chosen() const { return catalogue_; }
    // Shows another catalogue with its first row selected; the styles start in their root folder.
    void Choose(CatalogueKind catalogue);
    ListTable& Items() { return items_; }
    // Shows only the rows that contain these words; for styles, those of all folders, until text is
    // blank again.
    void SetFilter(std::string_view text);
    // Selects the row of that name; a style in its folder, whichever that is. False if there is no such row.
    bool ShowName(std::string_view name);

    // Returns the names of the guides to which the codes of the styles refer; empty without codes, and for
    // other catalogues.
    std::string Guides() const;

    // True if a row other than a folder is selected.
    bool EditEnabled() const;
    bool DeleteEnabled() const { return EditEnabled(); }

  private:
    void DeclareForm();
    bool ChooseNamed(std::string_view entry);
    void OpenRow();
    std::string SelectedName() const;
    bool FolderSelected() const;
    void Refill();
    void AddRowUp();
    void EnterFolder();
    void OpenEditor(const std::string& name);
    // Shows the row that an editor has saved under that name.
    void ShowSaved(const std::string& name);
    void Delete();
    void DeleteRow(const std::string& name);
    void TakeOutSelectedRow();

    CatalogueContext context_;
    lvFiller filler_;
    ListTable items_;
    CatalogueKind catalogue_ = CatalogueKind::Style;
    std::int64_t folderId_ = 0;  // the folder whose styles are shown
};

}  // namespace tw

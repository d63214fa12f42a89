// The window from which the catalogues are maintained (frmDBSetup).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "platform/FormModel.h"
#include "tree/ListTable.h"
#include "tree/lvFiller.h"

namespace tw {

// Combo1 takes one of its entries; lvItems shows and takes the text of the selected row, and a press on it is
// a double click, which enters a folder and edits anything else; txtFilter takes the words to filter by;
// cmdNew, cmdEdit, cmdDelete, cmdClose. Errors of the store rise.
class DatabaseSetupModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmDBSetup";

    // Starts with the styles. context must outlive the dialog.
    explicit DatabaseSetupModel(const CatalogueContext& context);

    // The entries of Combo1, in the order of the catalogues.
    static const std::vector<std::string>& Entries();
    CatalogueKind Chosen() const { return catalogue_; }
    // Shows another catalogue, on its first row; the styles from their root.
    void Choose(CatalogueKind catalogue);
    ListTable& Items() { return items_; }
    // Shows only the rows that hold these words; of the styles those of all folders, until the text is blank.
    void SetFilter(std::string_view text);
    // Selects the row of that name; of a style in its folder, wherever that is. False without such a row.
    bool ShowName(std::string_view name);

    // The guides that the codes of the styles are from; empty without codes and for other catalogues.
    std::string Guides() const;

    // Both are on while a row is selected that is no folder.
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
    // Shows what an editor has saved, on that name.
    void ShowSaved(const std::string& name);
    void Delete();
    void DeleteRow(const std::string& name);
    void TakeOutSelectedRow();

    CatalogueContext context_;
    lvFiller filler_;
    ListTable items_;
    CatalogueKind catalogue_ = CatalogueKind::Style;
    std::int64_t folderId_ = 0;  // whose styles are shown
};

}  // namespace tw

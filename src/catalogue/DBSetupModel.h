// The window from which the catalogues are maintained (frmDBSetup).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "platform/DialogModel.h"
#include "tree/ListTable.h"
#include "tree/lvFiller.h"

namespace tw {

class DBSetupModel final : public DialogModel {
  public:
    // Starts with the styles. context must outlive the dialog.
    explicit DBSetupModel(const CatalogueContext& context);

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

    std::string FormName() const override { return "frmDBSetup"; }
    // Combo1; lvItems with the text of the selected row.
    std::vector<DialogControl> Controls() const override;
    // Combo1 takes one of its entries, lvItems the text of a row, txtFilter the words to filter by.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdNew, cmdEdit, cmdDelete, cmdClose; lvItems is a double click on the selected row: it enters a folder
    // and edits anything else. One that is off does nothing. Errors of the store rise.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
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
    bool open_ = true;
};

}  // namespace tw

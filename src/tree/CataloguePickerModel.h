// The dialog that picks one row of a catalogue (frmLvShow).
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "store/CatalogueKind.h"
#include "tree/ListTable.h"
#include "tree/TreeItems.h"
#include "tree/lvFiller.h"

namespace tw {

// lvItems contains and accepts the text of the selected row. treeFolders, which only styles have, contains
// and accepts the key of the folder. The buttons are cmdOK and cmdView, which are disabled while no row is
// selected, and cmdCancel.
class CataloguePickerModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmLvShow";

    // Shows the selected row of the list in a read-only editor, which may change the selection.
    using Viewer = std::function<void(CatalogueKind type, ListTable& items)>;

    // name is the name whose row, or the nearest one, is selected first; it may also be one of a row's other
    // names. REQUIRES: database and tree outlive the dialog.
    CataloguePickerModel(CatalogueKind type, Database& database, const TWTree& tree, std::string_view name);

    // Sets what cmdView does; without a viewer it is disabled.
    void SetViewer(Viewer viewer) { viewer_ = std::move(viewer); }

    CatalogueKind Type() const { return type_; }
    // Returns a title such as "Select Style".
    std::string Title() const;
    ListTable& Items() { return items_; }
    // The guides to which the codes of the styles refer; empty without codes, and for other lists.
    const std::string& Guides() const { return guides_; }
    // True if there is treeFolders, as in the style picker only.
    bool HasFolders() const { return type_ == CatalogueKind::Style; }
    TreeItems& Folders() { return folders_; }
    // Shows the styles of that folder and selects the one nearest to the name. False if there is no
    // such folder.
    bool ChooseFolder(std::string_view key);
    bool OkEnabled() const { return items_.Selected() != ListTable::kNoRow; }
    bool ViewEnabled() const { return viewer_ && OkEnabled(); }

    // The text for the document: the name of the chosen row; for a yeast with a description, both with " - "
    // between them.
    const std::string& Answer() const { return answer_; }

  private:
    void Fill(std::int64_t folderId);
    void TakeRow();

    CatalogueKind type_;
    lvFiller filler_;
    std::string name_;
    std::string guides_;
    ListTable items_;
    TreeItems folders_;
    Viewer viewer_;
    std::string answer_;
};

}  // namespace tw

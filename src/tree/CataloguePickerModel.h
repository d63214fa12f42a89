// The picker of one row of a catalogue (frmLvShow).
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

// lvItems shows and takes the text of the chosen row, treeFolders, where it is there, the key of the folder;
// cmdOK and cmdView, which are off while the list has no chosen row; cmdCancel.
class CataloguePickerModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmLvShow";

    // Shows the chosen row of the list to be read; the list's selection may be another afterwards.
    using Viewer = std::function<void(CatalogueKind type, ListTable& items)>;

    // name: what the search starts on; another name of a row stands for that row. REQUIRES: both live for as
    // long as the dialog.
    CataloguePickerModel(CatalogueKind type, Database& database, const TWTree& tree, std::string_view name);

    // What cmdView does; it stays off without one.
    void SetViewer(Viewer viewer) { viewer_ = std::move(viewer); }

    CatalogueKind Type() const { return type_; }
    // "Select Style".
    std::string Title() const;
    ListTable& Items() { return items_; }
    // The guides that the codes of the styles are from; empty without codes and for other lists.
    const std::string& Guides() const { return guides_; }
    // treeFolders, which the style picker alone has.
    bool HasFolders() const { return type_ == CatalogueKind::Style; }
    TreeItems& Folders() { return folders_; }
    // The list follows, on the row nearest to the name. False for no such folder.
    bool ChooseFolder(std::string_view key);
    bool OkEnabled() const { return items_.Selected() != ListTable::kNoRow; }
    bool ViewEnabled() const { return viewer_ && OkEnabled(); }

    // What the document is to be told: the row's text; of a yeast that, " - " and its description.
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

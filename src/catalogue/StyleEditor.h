// The editor of styles (frmStyle): with a folder, and in step with the tree and the open documents.
#pragma once

#include "catalogue/CatalogueEditor.h"
#include "tree/FolderChooser.h"

namespace tw {

class StyleEditor final : public CatalogueEditor {
  public:
    explicit StyleEditor(const CatalogueContext& context);

    // STYLES.ID of the style that was saved last, 0 before.
    std::int64_t ID() const { return id_; }
    // The folder of a new style. REQUIRES: no style has been read.
    void StartInFolder(std::int64_t folderId) { folders_.SetFolderID(folderId); }

    FolderChooser* Folders() override { return &folders_; }
    void SetReadOnly() override;

  private:
    void ClearOwn() override;
    void ReadOwn(const Recordset& row) override;
    bool Write(const std::string& name) override;
    void InsertStyle(const std::string& name, const std::string& now);
    bool UpdateStyle(const std::string& name, const std::string& now);

    FolderChooser folders_;
    std::int64_t loadedFolder_ = 0;
    std::int64_t id_ = 0;
};

}  // namespace tw

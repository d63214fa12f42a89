// The editor of styles (frmStyle). It has a folder, and notifies the tree and the open documents.
#pragma once

#include "catalogue/CatalogueEditor.h"
#include "tree/FolderChooser.h"

namespace tw {

class StyleEditor final : public CatalogueEditor {
  public:
    explicit StyleEditor(const CatalogueContext& context);

    // STYLES.ID of the style saved last; 0 before the first save.
    std::int64_t ID() const { return id_; }
    // Sets the folder of a new style. REQUIRES: no style has been loaded.
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

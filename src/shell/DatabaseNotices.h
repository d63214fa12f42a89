// Forwards each notice of the database: to the recent list first, then to every open document, in the order
// in which they were opened.
#pragma once

#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/OpenSaveModel.h"
#include "shell/RecentList.h"
#include "tree/DB_IO.h"

namespace tw {

class DatabaseNotices final : public ObjectListener {
  public:
    // browse is the last state of the open and save dialog. All arguments must outlive the object.
    DatabaseNotices(DocumentManager& documents, RecentList& recent, OpenSaveFields& browse,
                    CommandStates& states)
        : documents_(documents), recent_(recent), browse_(browse), states_(states) {}

    void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) override;
    void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) override;
    void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) override;
    void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) override;
    void NotifyRecipeDeleted(const std::string& name) override;
    void NotifyRecipeFolderDeleted(std::int64_t folderId) override;
    void NotifyStyleDeleted(std::int64_t styleId) override;
    void NotifyStyleStored() override { documents_.CatalogueChanged(); }
    void DeletionEnded() override;

  private:
    DocumentManager& documents_;
    RecentList& recent_;
    OpenSaveFields& browse_;
    CommandStates& states_;
};

}  // namespace tw

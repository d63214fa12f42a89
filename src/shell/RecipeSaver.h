// How open recipes are saved and closed. Every error of a save is shown here.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "shell/DocumentManager.h"
#include "shell/OpenSaveModel.h"
#include "shell/OpenedDatabase.h"
#include "tree/DB_IO.h"

namespace tw {

class RecipeSaver {
  public:
    // notices hears when a save that failed may have taken recipes away, browse is what the dialog showed
    // last. All must outlive the object.
    RecipeSaver(OpenedDatabase& data, DocumentManager& documents, ObjectListener& notices,
                OpenSaveFields& browse)
        : data_(data), documents_(documents), notices_(notices), browse_(browse) {}

    // These three give whether the recipe was saved. An error is shown in a box titled "Error". Quietly asks
    // nothing: a document that was never saved, or whose edited name is another recipe's, is passed over.
    bool Save(RecipeDocument& document, Asking asking = Asking::Aloud);
    // Asks for the name and the folder.
    bool SaveAs(RecipeDocument& document);
    // SaveAs with the answer of the dialog given.
    bool SaveUnder(RecipeDocument& document, std::string_view name, std::int64_t folderId,
                   Asking asking = Asking::Aloud);
    // Each in the order of their opening. One that cannot be saved does not keep the others from it.
    void SaveAll();

    // Asks about unsaved changes, then closes. False when called off.
    bool Close(RecipeDocument& document);
    // A document that refuses leaves the others unasked; false then.
    bool CloseAll();

  private:
    // Runs a save; an error in it is shown and counts as not saved.
    bool Try(const std::function<bool()>& save);
    // Shows what a save has left in the database when it could not write all of it.
    void FollowUnfinished(const RecipeDocument& document, bool saved);

    OpenedDatabase& data_;
    DocumentManager& documents_;
    ObjectListener& notices_;
    OpenSaveFields& browse_;
};

}  // namespace tw

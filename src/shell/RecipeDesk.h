// How recipes are opened and deleted: new ones, by name, and in the windows in which they are looked for.
#pragma once

#include <string_view>

#include "document/DocumentHost.h"
#include "shell/CatalogueDesk.h"
#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/OpenSaveModel.h"
#include "shell/OpenedDatabase.h"

namespace tw {

class RecipeDesk {
  public:
    // host is what the documents ask of the program, browse what the open and save dialog and the explorer
    // showed last. All must outlive the object.
    RecipeDesk(OpenedDatabase& data, DocumentManager& documents, DocumentHost& host, CommandStates& states,
               CatalogueDesk& catalogue, OpenSaveFields& browse, ViewSlot& view);

    // A new document, or for a name that is not blank one filled from the stored recipe of that name; it
    // becomes the active one. A recipe that cannot be read raises and leaves no document behind. REQUIRES:
    // the database holds the recipe.
    RecipeDocument& Create(std::string_view name);
    // Opens the recipe, or focuses its open window with a beep when one has exactly that name; a name in
    // another case opens a second window, on purpose.
    void Load(std::string_view name);
    // What choosing a name does, as in the recent list: a box when there is no such recipe, otherwise Load of
    // the trimmed name.
    void OpenByName(std::string_view name);

    void ShowOpenDialog();
    void ShowDeleteDialog();
    void ShowExplorer();

  private:
    // Recipes may have gone, or the first one come.
    void FollowRecipes();

    OpenedDatabase& data_;
    DocumentManager& documents_;
    DocumentHost& host_;
    CommandStates& states_;
    CatalogueDesk& catalogue_;
    OpenSaveFields& browse_;
    ViewSlot& view_;
};

}  // namespace tw

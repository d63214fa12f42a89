// Opens and deletes recipes: new ones, by name, and through the dialogs that list them.
#pragma once

#include <functional>
#include <string_view>

#include "document/DocumentHost.h"
#include "document/TypingUnits.h"
#include "shell/CatalogueDesk.h"
#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/OpenSaveModel.h"
#include "shell/OpenedDatabase.h"

namespace tw {

class RecipeDesk {
  public:
    // host serves the documents; browse is the last state of the open and save dialog and of the explorer.
    // All arguments must outlive the object.
    RecipeDesk(OpenedDatabase& data, DocumentManager& documents, DocumentHost& host, CommandStates& states,
               CatalogueDesk& catalogue, OpenSaveFields& browse, ViewSlot& view);

    // Opens a document and makes it the active one: a blank one if name is blank, else one with the stored
    // recipe of that name. Raises the error of a recipe that cannot be read, and leaves no document behind.
    // REQUIRES: the database contains the recipe.
    RecipeDocument& Create(std::string_view name);
    // Opens a new document with the sample recipe and makes it the active one. Raises the store's errors and
    // leaves no document behind.
    void OpenSample(TypingUnits units);
    // Opens the recipe, or activates its window and beeps if a document of exactly that name is open. A name
    // that differs in case opens a second window, on purpose, as DocumentManager::Find compares exactly.
    void Load(std::string_view name);
    // Opens the recipe whose name has been chosen, as in the recent list: trims the name and calls Load, or
    // shows a message if there is no such recipe.
    void OpenByName(std::string_view name);

    void ShowOpenDialog();
    void ShowDeleteDialog();
    void ShowExplorer();

  private:
    // Fills a new document. If that raises an error, removes the document and passes the error on.
    void FillOrRemove(RecipeDocument& document, const std::function<void()>& fill);
    // Updates what depends on whether there are any recipes.
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

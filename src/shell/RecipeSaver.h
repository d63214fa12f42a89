// Saves and closes open recipes. Every error of a save is shown here.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "shell/DocumentManager.h"
#include "shell/OpenSaveModel.h"
#include "shell/OpenedDatabase.h"
#include "shell/ShellView.h"
#include "tree/DB_IO.h"

namespace tw {

class RecipeSaver {
  public:
    // notices is notified when a failed save may have deleted recipes; browse is the last state of the open
    // and save dialog. All arguments must outlive the object.
    RecipeSaver(OpenedDatabase& data, DocumentManager& documents, ObjectListener& notices, ViewSlot& view,
                OpenSaveFields& browse)
        : data_(data), documents_(documents), notices_(notices), view_(view), browse_(browse) {}

    // Save, SaveAs and SaveUnder return true if the recipe was saved, and show an error in a box titled
    // "Error". Asking::Quietly asks nothing and skips a document that was never saved, or that was given the
    // name of another recipe.
    bool Save(RecipeDocument& document, Asking asking = Asking::Aloud);
    // Asks for the name and the folder.
    bool SaveAs(RecipeDocument& document);
    // Saves as SaveAs does, with the dialog's answer given.
    bool SaveUnder(RecipeDocument& document, std::string_view name, std::int64_t folderId,
                   Asking asking = Asking::Aloud);
    // Saves the documents in the order in which they were opened. One that cannot be saved does not keep the
    // others from being saved.
    void SaveAll();

    // Asks about unsaved changes, then closes the document. False if the document stays open.
    bool Close(RecipeDocument& document);
    // Closes the documents until one stays open; then returns false without asking about the others.
    bool CloseAll();

  private:
    // Runs a save. If it raises an error, shows it and returns false.
    bool Try(const std::function<bool()>& save);
    // Tells the brewer that the document was saved, unless the save was not asked for, or updates the tree if
    // it could not write everything. Does nothing after a save that failed.
    void Follow(const RecipeDocument& document, bool saved, Asking asking);

    OpenedDatabase& data_;
    DocumentManager& documents_;
    ObjectListener& notices_;
    ViewSlot& view_;
    OpenSaveFields& browse_;
};

}  // namespace tw

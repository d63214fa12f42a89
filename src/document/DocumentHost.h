// What a recipe document asks of the program around it.
#pragma once

#include <string>
#include <string_view>

#include "record/RecipeCalculator.h"
#include "store/CatalogueKind.h"

namespace tw {

class RecipeDocument;

// The defaults of a new recipe and of its new rows, as typed in the settings.
struct RecipeDefaults {
    std::string grainExtraction;
    std::string hopExtraction;
    std::string waterProfile;
    std::string boilVol;
    std::string totalVol;
    int ibuMethod = 0;
    int packaging = 0;
    int hopForm = 0;
    bool hopSocks = true;
};

// The main window's commands that documents steer. Each does nothing when there is no change.
class DocumentCommands : public RecipeCommands {
  public:
    virtual void EnableSave(bool enabled) = 0;
    virtual void EnableInsert(bool enabled) = 0;
    virtual void EnableDelete(bool enabled) = 0;
    virtual void EnableCopyPaste(bool enableCopy, bool enableCutPaste) = 0;
    virtual void EnableUndo(bool enabled, std::string_view description) = 0;
    virtual void EnableRedo(bool enabled, std::string_view description) = 0;
    // Save All is on exactly while some document is changed.
    virtual void CheckEnableSaveAll() = 0;
    // The commands that need a recipe in the database.
    virtual void CheckEnableDelete() = 0;
};

class DocumentHost {
  public:
    virtual ~DocumentHost() = default;
    virtual DocumentCommands& Commands() = 0;
    // Only the active document steers the commands.
    virtual bool IsActive(const RecipeDocument& document) const = 0;
    virtual RecipeDefaults Defaults() const = 0;
    // New rows go behind the last data row.
    virtual bool AppendRows() const = 0;
    // A copy of whole columns takes their headers along.
    virtual bool CopyHeaders() const = 0;
    // A paste may repeat or cut a block to fill a selection of another shape.
    virtual bool PasteMismatchSize() const = 0;
    // The limit of iterations for the treatment calculation.
    virtual int LPMaxIter() const = 0;
    // Whether a change that cannot be undone is asked about; and the brewer wants that no more.
    virtual bool AskBeforeNonUndoableChange() const = 0;
    virtual void StopAskingBeforeNonUndoableChange() = 0;
    // Deletes a stored recipe; the notices to open documents run inside.
    virtual void DeleteRecipe(std::string_view name) = 0;
    // A recipe of that name has just been written by a save.
    virtual void RecipeStored(std::string_view name) = 0;
    virtual void AddToMRU(std::string_view name) = 0;
    // The brewer wants to choose from a catalogue, starting on name: what is chosen goes to the document's
    // TakeChoice.
    virtual void PickFromCatalogue(RecipeDocument&, CatalogueKind, const std::string& /*name*/) {}
    // An edit of the recipe; it is changed.
    virtual void DocumentEdited(const RecipeDocument&) {}
    // The document's caption or changed state is another one.
    virtual void DocumentRenamed(const RecipeDocument& document) = 0;
};

}  // namespace tw

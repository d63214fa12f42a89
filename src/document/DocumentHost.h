// What a recipe document needs from the program around it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "record/RecipeCalculator.h"
#include "store/CatalogueDraft.h"
#include "store/CatalogueKind.h"
#include "store/RecipeFollower.h"

namespace tw {

class RecipeDocument;

// The defaults of a new recipe and of its new rows, as entered in the settings. Each text is read as if typed
// into its box or cell; ibuMethod and packaging are indexes of option buttons, hopForm of kHopForms.
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

// How the settings want a whole recipe to be scaled.
struct ScalingPreferences {
    bool undoable = false;        // scaling is one step of the history, and nothing is asked before it
    bool keepTypedUnits = false;  // amounts keep the units in which they were typed
};

// The main window's commands whose state depends on documents. A call that changes no state does nothing.
class DocumentCommands : public RecipeCommands {
  public:
    virtual void EnableSave(bool enabled) = 0;
    virtual void EnableInsert(bool enabled) = 0;
    virtual void EnableDelete(bool enabled) = 0;
    virtual void EnableCopyPaste(bool enableCopy, bool enableCutPaste) = 0;
    virtual void EnableUndo(bool enabled, std::string_view description) = 0;
    virtual void EnableRedo(bool enabled, std::string_view description) = 0;
    // Enables Save All if any document is changed, else disables it.
    virtual void CheckEnableSaveAll() = 0;
    // Enables the commands that need a stored recipe if the database contains one, else disables them.
    virtual void CheckEnableDelete() = 0;
};

class DocumentHost {
  public:
    virtual ~DocumentHost() = default;
    virtual DocumentCommands& Commands() = 0;
    // True for the active document, the only one that may enable or disable the commands.
    virtual bool IsActive(const RecipeDocument& document) const = 0;
    virtual RecipeDefaults Defaults() const = 0;
    // True if new rows are added after the last data row, false if they are inserted at the current row.
    virtual bool AppendRows() const = 0;
    // True if a copied block that spans all columns of a grid starts with their headers.
    virtual bool CopyHeaders() const = 0;
    // True if a paste may repeat a block or cut it off to fill a selection of another shape.
    virtual bool PasteMismatchSize() const = 0;
    // The maximum number of iterations of the water treatment calculation.
    virtual int LPMaxIter() const = 0;
    // True if the brewer must confirm a change that cannot be undone; StopAskingBeforeNonUndoableChange turns
    // that off.
    virtual bool AskBeforeNonUndoableChange() const = 0;
    virtual void StopAskingBeforeNonUndoableChange() = 0;
    virtual ScalingPreferences Scaling() const { return {}; }
    // Deletes a stored recipe and returns its id; nullopt if there is none. The open documents are notified
    // before this returns; why is passed on to what follows the recipe.
    virtual std::optional<std::int64_t> DeleteRecipe(std::string_view name,
                                                     RecipeEnd why = RecipeEnd::Deleted) = 0;
    // Called by a save that has just written the recipe of that name.
    virtual void RecipeStored(std::string_view name) = 0;
    virtual void AddToMRU(std::string_view name) = 0;
    // Lets the brewer choose from a catalogue, starting at name. The choice goes to the
    // document's CataloguePicks::Take.
    virtual void PickFromCatalogue(RecipeDocument&, CatalogueKind, const std::string& /*name*/) {}
    // Lets the brewer complete a row and add it to the catalogue. The name added then goes to the document's
    // CataloguePicks::TakeAdded.
    virtual void AddToCatalogue(RecipeDocument&, const CatalogueDraft&) {}
    // Shows good news about a recipe for a few seconds, if there is a window.
    virtual void SayBriefly(const std::string& /*text*/) {}
    // The recipe has been edited and is marked as changed.
    virtual void DocumentEdited(const RecipeDocument&) {}
    // The caption or the modified flag has changed.
    virtual void DocumentRenamed(const RecipeDocument& document) = 0;
};

}  // namespace tw

// What the parts of one open recipe share: the record and its figures, the history, the place in the
// database, and the connection to the program around it. It does not depend on the parts.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "document/DocumentHost.h"
#include "document/DocumentView.h"
#include "document/EditRecorder.h"
#include "platform/DateTime.h"
#include "platform/Ports.h"
#include "record/RecipeCalculator.h"
#include "record/RecipeRecord.h"
#include "store/Database.h"
#include "values/Reading.h"

namespace tw {

class RecipeDocument;

// Where a recipe is stored in the database.
struct RecipePlace {
    std::string origName;  // the stored recipe's name, trimmed; empty if the recipe is not stored
    // The id of the row that was read or written last, even if an error then ended the save; nullopt if there
    // was none. After a save that failed, the row may be gone, but what hangs on the recipe still hangs on
    // this id.
    std::optional<std::int64_t> id;
    std::int64_t folderId = -1;  // -1 for none, 0 for the top level
    std::optional<DateTime> createdWhen;
};

// Undoes a step of the history without recording that.
class StepReplay {
  public:
    virtual ~StepReplay() = default;
    // An arithmetic fault ends this early, but is not raised.
    virtual void TakeBack(const EditTracker& step) = 0;
};

class OpenRecipe {
  public:
    // document identifies this recipe to the host. All references must outlive the recipe.
    OpenRecipe(RecipeDocument& document, DocumentHost& host, Platform& platform, Database& database,
               const ColorTable& colors);
    OpenRecipe(const OpenRecipe&) = delete;
    OpenRecipe& operator=(const OpenRecipe&) = delete;

    // True for the active document, the only one that may enable or disable the main window's commands.
    bool IsActive() const { return host.IsActive(document_); }
    bool Changed() const { return changed_; }
    // Marks the recipe as changed, after an edit by the brewer. Does nothing while the recipe is
    // being filled.
    void MarkChanged();
    void ClearChanged();
    // True once the recipe has been filled: from then on, a change of the record counts as an edit.
    bool Filled() const { return filled_; }
    // Returns the previous value.
    bool SetFilled(bool filled);
    // Notifies the host that the caption or the modified flag has changed.
    void Renamed() { host.DocumentRenamed(document_); }
    // Lets the brewer choose from a catalogue, starting at name.
    void PickFromCatalogue(CatalogueKind list, const std::string& name) {
        host.PickFromCatalogue(document_, list, name);
    }
    // Lets the brewer add a row to the catalogue.
    void AddToCatalogue(const CatalogueDraft& draft) { host.AddToCatalogue(document_, draft); }
    // Updates the undo and redo commands from the history, if the recipe is the active one.
    void RefreshUndoCommands();

    // All message boxes of the recipe's parts are shown by these functions. A refusal without a text
    // shows none.
    void Tell(const Refusal& refusal) { ShowRefusal(platform.messages, refusal); }
    void Tell(std::string_view title, std::string_view text) { platform.messages.ShowMessage(title, text); }
    bool AnswersYes(std::string_view title, std::string_view text, Question kind) {
        return platform.messages.Ask(title, text, kind) == Answer::Yes;
    }

    DocumentHost& host;
    Platform& platform;
    Database& database;
    RecipeRecord record;
    // Passes the calls on while the document is the active one.
    class ActiveCommands final : public RecipeCommands {
      public:
        explicit ActiveCommands(OpenRecipe& recipe) : recipe_(recipe) {}
        void EnableResizeRecipe(bool enabled) override;
        void EnableChangeStrength(bool enabled) override;
        void EnableChangeBitterness(bool enabled) override;
        void EnableChangeCarbonation(bool enabled) override;

      private:
        OpenRecipe& recipe_;
    };
    ActiveCommands commands{*this};
    RecipeCalculator calculator;
    EditRecorder recorder;
    RecipePlace place;
    DocumentView* view = nullptr;  // nullptr without a window
    StepReplay* replay = nullptr;  // set once all parts exist

  private:
    RecipeDocument& document_;
    bool changed_ = false;
    bool filled_ = false;
};

// Makes everything that is recorded during a scope one step of the history. If the scope ends without Keep,
// as it does with an error, all of that is undone, and what could be redone before can be redone again. Does
// nothing while tracking is off, or inside another step, which decides instead.
class OneStep {
  public:
    OneStep(OpenRecipe& recipe, ChangeType type);
    ~OneStep();
    OneStep(const OneStep&) = delete;
    OneStep& operator=(const OneStep&) = delete;

    // Keeps what was recorded. If nothing was, there is no step, and what could be redone stays.
    void Keep();

  private:
    OpenRecipe& recipe_;
    bool open_;
    bool changedBefore_ = false;
    std::size_t positionBefore_ = 0;
    std::vector<EditTracker> redo_;
};

}  // namespace tw

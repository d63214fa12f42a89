// What the parts of one open recipe share: the record and its figures, the history, the place in the
// database, and the way to the program around it. It knows none of the parts.
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

// Where a recipe stands in the database.
struct RecipePlace {
    std::string origName;        // the stored recipe's name, trimmed; empty for one that was never saved
    std::int64_t folderId = -1;  // -1 for none, 0 for the top
    std::optional<DateTime> createdWhen;
};

// Takes a step of the history back without recording it.
class StepReplay {
  public:
    virtual ~StepReplay() = default;
    // An arithmetic fault on the way leaves its figure as it is.
    virtual void TakeBack(const EditTracker& step) = 0;
};

class OpenRecipe {
  public:
    // document is what the host knows this recipe by. All references must outlive the recipe.
    OpenRecipe(RecipeDocument& document, DocumentHost& host, Platform& platform, Database& database,
               const ColorTable& colors);
    OpenRecipe(const OpenRecipe&) = delete;
    OpenRecipe& operator=(const OpenRecipe&) = delete;

    // Only the active document steers the commands of the main window.
    bool IsActive() const { return host.IsActive(document_); }
    bool Changed() const { return changed_; }
    // The brewer has edited the recipe. Nothing while it is being filled.
    void MarkChanged();
    void ClearChanged();
    // Filled: what happens to the record from now on counts as an edit.
    bool Filled() const { return filled_; }
    // Gives what it was before.
    bool SetFilled(bool filled);
    // The caption has changed.
    void Renamed() { host.DocumentRenamed(document_); }
    // The brewer wants to choose from a catalogue, starting on name.
    void PickFromCatalogue(CatalogueKind list, const std::string& name) {
        host.PickFromCatalogue(document_, list, name);
    }
    // Sets the commands of undo and redo by the history.
    void RefreshUndoCommands();

    // The one place from which a recipe's message boxes are shown. Nothing for a refusal without a text.
    void Tell(const Refusal& refusal) { ShowRefusal(platform.messages, refusal); }
    void Tell(std::string_view title, std::string_view text) { platform.messages.ShowMessage(title, text); }
    bool AnswersYes(std::string_view title, std::string_view text, Question kind) {
        return platform.messages.Ask(title, text, kind) == Answer::Yes;
    }

    DocumentHost& host;
    Platform& platform;
    Database& database;
    RecipeRecord record;
    // Passes the commands on while the document is the active one.
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
    StepReplay* replay = nullptr;  // set once all parts stand

  private:
    RecipeDocument& document_;
    bool changed_ = false;
    bool filled_ = false;
};

// One step of the history for the time of a scope: what is recorded in it hangs together. Left without Keep,
// as an error does, everything in it is taken back, and what could be redone can be redone again. Inside
// another step, and while nothing is recorded, it does nothing: the outer step decides.
class OneStep {
  public:
    OneStep(OpenRecipe& recipe, ChangeType type);
    ~OneStep();
    OneStep(const OneStep&) = delete;
    OneStep& operator=(const OneStep&) = delete;

    // Everything has gone well. Without an edit there is no step, and nothing that could be redone is lost.
    void Keep();

  private:
    OpenRecipe& recipe_;
    bool open_;
    bool changedBefore_ = false;
    std::size_t positionBefore_ = 0;
    std::vector<EditTracker> redo_;
};

}  // namespace tw

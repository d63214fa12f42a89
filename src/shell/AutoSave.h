// Saves the open recipes by itself every few minutes: the count of the minutes, and the progress window
// (frmAutoSave) that runs the saves.
#pragma once

#include <functional>
#include <string>

#include "platform/FormModel.h"

namespace tw {

class DocumentManager;
class RecipeDocument;

// One tick of the autosave timer is one minute.
inline constexpr int kAutoSaveTickMilliseconds = 60000;

// Whole minutes since the last autosave, with a document open.
class AutoSaveMinutes {
  public:
    void Reset() { minutes_ = 0; }
    // One minute has gone; true when every minutes or more are full, also when every has shrunk below the
    // count. Without a document the count starts again.
    bool Tick(bool anyDocument, int every);
    int Count() const { return minutes_; }

  private:
    int minutes_ = 0;
};

// The progress window: as soon as it is shown it saves each document silently, in the order of their opening,
// changed or not, and closes. A document that has never been saved is passed over and counts in the progress.
// lblRecipe, the name of the recipe being saved; ProgressBar1, the number of documents done.
class AutoSaveModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmAutoSave";

    // save saves a document silently and shows its own errors. Both must outlive the object.
    AutoSaveModel(const DocumentManager& documents, std::function<void(RecipeDocument&)> save);
    // Called after each change of what the window shows: it paints, and lets waiting events run.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    // The run cannot be stopped; before it the close box closes the window.
    void CloseBox() override;
    // Saves and closes. An error in one save has had its box and does not keep the others from theirs.
    void FirstShown() override;

    const std::string& RecipeName() const { return recipeName_; }
    int Done() const { return done_; }
    int Total() const { return total_; }

  private:
    void SaveOne(const std::string& key);
    void Show() const;

    const DocumentManager& documents_;
    std::function<void(RecipeDocument&)> save_;
    std::function<void()> observer_;
    std::string recipeName_;
    int done_ = 0;
    int total_ = 0;
    bool running_ = false;
};

}  // namespace tw

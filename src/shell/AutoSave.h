// Autosave of the open recipes every few minutes: the counter of minutes, and the progress window
// (frmAutoSave) that runs the saves.
#pragma once

#include <functional>
#include <string>

#include "platform/FormModel.h"

namespace tw {

class DocumentManager;
class RecipeDocument;

// The interval of the autosave timer, one minute.
inline constexpr int kAutoSaveTickMilliseconds = 60000;

// Counts the minutes since the last autosave during which a document was open.
class AutoSaveMinutes {
  public:
    void Reset() { minutes_ = 0; }
    // Counts one minute. True if the count has reached every, in minutes, even if every has become smaller
    // than the count. Without a document the count restarts from 0, and the result is false.
    bool Tick(bool anyDocument, int every);
    int Count() const { return minutes_; }

  private:
    int minutes_ = 0;
};

// The progress window. As soon as it is shown, it saves each document quietly in the order in which they were
// opened, changed or not, and closes. A document that has never been saved is skipped but counts as progress.
// lblRecipe contains the name of the recipe being saved, ProgressBar1 the number of documents done.
class AutoSaveModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmAutoSave";

    // save saves a document without asking and shows its own errors. documents, and whatever save refers to,
    // must outlive the object.
    AutoSaveModel(const DocumentManager& documents, std::function<void(RecipeDocument&)> save);
    // Sets a callback that runs after each change of the displayed values: it paints the window and processes
    // waiting events.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    // Closes the window before the run has started; the run itself cannot be stopped.
    void CloseBox() override;
    // Saves all documents and closes the window. save has shown the error of a failed save, which does not
    // keep the other documents from being saved.
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

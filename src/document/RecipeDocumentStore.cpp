// The way of a recipe into the database and back. A recipe is not updated in place: every save deletes its
// row and writes a new one, so its id changes each time and its name is what identifies it.
#include "document/RecipeDocument.h"
#include "document/UnusableNumbers.h"
#include "values/Text.h"

namespace tw {
namespace {

// Sets a flag for the time of a scope, also when an error ends it.
class ScopedFlag {
  public:
    ScopedFlag(bool& flag, bool during) : flag_(flag), before_(flag) { flag = during; }
    ~ScopedFlag() { flag_ = before_; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
    bool before_;
};

}  // namespace

bool RecipeDocument::AskOverwrite() {
    const std::string name(Trim(BeerName()));
    return platform_.messages.Ask("Overwrite existing recipe?",
                                  "Another recipe named '" + name + "' already exists.\r\nOverwrite it?",
                                  Question::YesNo) == Answer::Yes;
}

void RecipeDocument::DeleteOwnRow() {
    const ScopedFlag guard(savingOver_, true);
    host_.DeleteRecipe(std::string(origName_));
}

void RecipeDocument::Save(bool saveAs, bool silent, bool& ok) {
    const std::string name(Trim(BeerName()));
    const bool sameName = SameName(name, origName_);
    const bool replacesOther = !sameName && RecipeExists(database_, name);
    if ((replacesOther || (saveAs && sameName)) && !silent && !AskOverwrite()) {
        ok = false;
        return;
    }
    ok = true;
    UnitOfWork unit(database_);
    if (replacesOther) host_.DeleteRecipe(name);
    // Saving under another name makes a copy and leaves the old recipe; a plain save under an edited name
    // renames it, and nothing is left under the old one.
    if ((saveAs && sameName) || (!saveAs && !origName_.empty())) DeleteOwnRow();
    const DateTime now = platform_.clock.Now();
    if (!createdWhen_) createdWhen_ = now;
    StoredRecipe stored = ToStored();
    stored.modifiedWhen = now;
    if (!InsertRecipe(database_, stored)) {
        unit.Commit();
        platform_.messages.ShowMessage("UNKNOWN ERROR", "Error saving recipe to database!");
        return;
    }
    host_.RecipeStored(name);
    unit.Commit();
    origName_ = name;
    for (TextBox* box : {&record_.txtName, &record_.txtNumBatches, &record_.txtNotes})
        box->SetCommitted(box->Text());
    ClearChanged();
    // Nothing before a save can be undone.
    recorder_.Clear();
    host_.AddToMRU(name);
}

void RecipeDocument::SaveRecipeAs(std::string_view name, std::int64_t folderId, bool silent, bool& ok) {
    const std::string oldName = BeerName();
    const std::int64_t oldFolder = folderId_;
    const std::optional<DateTime> oldCreated = createdWhen_;
    const bool wasChanged = changed_;
    SetText(record_.txtName, name);
    folderId_ = folderId;
    createdWhen_ = platform_.clock.Now();
    Save(true, silent, ok);
    if (ok) return;
    // The brewer called it off: nothing has changed.
    SetText(record_.txtName, oldName);
    folderId_ = oldFolder;
    createdWhen_ = oldCreated;
    if (!wasChanged) ClearChanged();
}

void RecipeDocument::OpenRecipe(std::string_view name) {
    const std::optional<StoredRecipe> stored = ReadRecipe(database_, name);
    if (!stored)
        throw Error("RecipeDocument.OpenRecipe", "Recipe '" + std::string(name) + "' no longer exists!", 5);
    CheckHopForms(*stored);
    std::vector<std::string> failed;
    {
        const ScopedFlag loading(loaded_, false);
        recorder_.SetTracking(false);
        FillFields(*stored);
        FillWaterAndKeg(*stored);
        failed = FillGrids(*stored);
    }
    recorder_.SetTracking(true);
    recorder_.Clear();
    origName_ = Trim(BeerName());
    ClearChanged();
    if (IsActive()) Activate();
    host_.AddToMRU(origName_);
    if (!failed.empty()) TellUnusableNumbers(failed);
}

// Once, when all is in its place. Where every single number could be used, the figures that they break
// together are named instead.
void RecipeDocument::TellUnusableNumbers(const std::vector<std::string>& figures) {
    const std::vector<std::string> fields = UnusableNumbers(record_);
    platform_.messages.ShowMessage("Error",
                                   UnusableNumbersText(origName_, fields.empty() ? figures : fields));
}

}  // namespace tw

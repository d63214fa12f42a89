// One open recipe. A window displays its record and calls the parts when the brewer does something; it holds
// no data itself. The document owns the parts and knows the recipe's identity: its key, its caption and its
// place in the database.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "document/CatalogueLookup.h"
#include "document/CataloguePicks.h"
#include "document/EditCommands.h"
#include "document/EditReplay.h"
#include "document/MissingFigures.h"
#include "document/OpenRecipe.h"
#include "document/PitchedYeast.h"
#include "document/RecipeCells.h"
#include "document/RecipeFields.h"
#include "document/RecipeFocus.h"
#include "document/RecipeLines.h"
#include "document/RecipeNotices.h"
#include "document/RecipeOptions.h"
#include "document/RecipeScaling.h"
#include "document/RecipeStorage.h"
#include "document/RecipeStyle.h"
#include "document/WaterTreatment.h"

namespace tw {

class RecipeDocument {
  public:
    // The name of its window.
    static constexpr const char* kFormName = "frmDocument";

    // Creates a new recipe with the defaults of the settings, unchanged. All references must outlive the
    // document. number is shown in the caption of a document without a name; 0 means no number.
    RecipeDocument(DocumentHost& host, Platform& platform, Database& database, const ColorTable& colors,
                   int number);
    RecipeDocument(const RecipeDocument&) = delete;
    RecipeDocument& operator=(const RecipeDocument&) = delete;

    RecipeRecord& Record() { return recipe_.record; }
    const RecipeRecord& Record() const { return recipe_.record; }
    const UndoStack& History() const { return recipe_.recorder.Stack(); }
    void SetView(DocumentView* view) { recipe_.view = view; }

    // The recipe's identity.
    const std::string& Key() const { return key_; }
    void SetKey(std::string key) { key_ = std::move(key); }
    const std::string& OrigName() const { return recipe_.place.origName; }
    const std::string& BeerName() const { return recipe_.record.txtName.Text(); }
    const std::string& BeerStyle() const { return recipe_.record.cmbStyle.Text(); }
    std::int64_t FolderID() const { return recipe_.place.folderId; }
    void SetFolderID(std::int64_t id) { recipe_.place.folderId = id; }
    std::int64_t StyleID() const { return style_.Id(); }
    bool Changed() const { return recipe_.Changed(); }
    const RecipeCalculator& Calculator() const { return recipe_.calculator; }
    // Returns the window's caption: the trimmed name, else "Untitled {number}", or "Untitled" without
    // a number.
    std::string Caption() const;

    // Runs fill, whose changes of the recipe are not edits: afterwards it is unchanged, without a history.
    // Passes on what fill raises.
    void FillFrom(const std::function<void()>& fill);

    // The parts, which do what the brewer asks for.
    RecipeFields& Fields() { return fields_; }
    RecipeFocus& Focus() { return focus_; }
    const RecipeFocus& Focus() const { return focus_; }
    RecipeOptions& Options() { return options_; }
    RecipeCells& Cells() { return cells_; }
    const RecipeCells& Cells() const { return cells_; }
    RecipeLines& Lines() { return lines_; }
    const RecipeLines& Lines() const { return lines_; }
    RecipeStyle& Style() { return style_; }
    const RecipeStyle& Style() const { return style_; }
    const MissingFigures& Missing() const { return missing_; }
    PitchedYeast& Yeast() { return yeast_; }
    const PitchedYeast& Yeast() const { return yeast_; }
    CataloguePicks& Picks() { return picks_; }
    const CataloguePicks& Picks() const { return picks_; }
    EditCommands& Edit() { return edit_; }
    EditReplay& Replay() { return replay_; }
    RecipeScaling& Scaling() { return scaling_; }
    const RecipeScaling& Scaling() const { return scaling_; }
    WaterTreatment& Water() { return water_; }
    RecipeStorage& Storage() { return storage_; }
    const RecipeStorage& Storage() const { return storage_; }
    RecipeNotices& Notices() { return notices_; }

  private:
    void ApplyDefaults();

    OpenRecipe recipe_;
    CatalogueLookup catalogue_;
    RecipeFields fields_;
    RecipeFocus focus_;
    RecipeOptions options_;
    RecipeCells cells_;
    RecipeLines lines_;
    RecipeStyle style_;
    MissingFigures missing_;
    PitchedYeast yeast_;
    CataloguePicks picks_;
    EditCommands edit_;
    RecipeScaling scaling_;
    EditReplay replay_;
    WaterTreatment water_;
    RecipeStorage storage_;
    RecipeNotices notices_;
    std::string key_;
    int number_;
};

}  // namespace tw

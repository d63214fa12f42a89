// What the program does on behalf of its open recipes.
#pragma once

#include "document/DocumentHost.h"
#include "shell/CatalogueDesk.h"
#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/OpenedDatabase.h"
#include "shell/RecentList.h"
#include "shell/SettingsInUse.h"
#include "shell/UnsavedWork.h"

namespace tw {

class RecipeServices final : public DocumentHost {
  public:
    // The parts to which requests are forwarded. All must outlive the object.
    struct Parts {
        SettingsInUse& settings;
        DocumentManager& documents;
        CommandStates& states;
        RecentList& recent;
        UnsavedWork& unsaved;
        ViewSlot& view;
        OpenedDatabase& data;
        CatalogueDesk& catalogue;
    };
    explicit RecipeServices(const Parts& parts) : to_(parts) {}

    DocumentCommands& Commands() override { return to_.states; }
    bool IsActive(const RecipeDocument& document) const override {
        return to_.documents.Active() == &document;
    }
    RecipeDefaults Defaults() const override { return to_.settings.Defaults(); }
    bool AppendRows() const override { return to_.settings.AppendRows(); }
    bool CopyHeaders() const override { return Values().copyHeaders; }
    bool PasteMismatchSize() const override { return Values().pasteMismatchSize; }
    int LPMaxIter() const override { return Values().lpMaxIter; }
    bool AskBeforeNonUndoableChange() const override { return Values().askBeforeNonUndoableChange; }
    void StopAskingBeforeNonUndoableChange() override { Values().askBeforeNonUndoableChange = false; }
    ScalingPreferences Scaling() const override { return {Values().undoScaling, Values().keepTypedUnits}; }
    std::optional<std::int64_t> DeleteRecipe(std::string_view name,
                                             RecipeEnd why = RecipeEnd::Deleted) override;
    void RecipeStored(std::string_view name) override;
    void AddToMRU(std::string_view name) override { to_.recent.Add(name); }
    void PickFromCatalogue(RecipeDocument& document, CatalogueKind list, const std::string& name) override {
        to_.catalogue.Pick(document, list, name);
    }
    void AddToCatalogue(RecipeDocument& document, const CatalogueDraft& draft) override {
        to_.catalogue.Add(document, draft);
    }
    void SayBriefly(const std::string& text) override { to_.view->SayBriefly(text); }
    void DocumentEdited(const RecipeDocument& document) override { to_.unsaved.Edited(document); }
    void DocumentRenamed(const RecipeDocument& document) override;

  private:
    Settings& Values() const { return to_.settings.Values(); }

    Parts to_;
};

}  // namespace tw

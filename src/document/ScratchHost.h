// The program around a document that has no window and that the brewer never sees: it is filled, looked at
// or saved, and thrown away.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "document/DocumentHost.h"

namespace tw {

class ScratchHost : public DocumentHost, private DocumentCommands {
  public:
    explicit ScratchHost(RecipeDefaults defaults) : defaults_(std::move(defaults)) {}

    DocumentCommands& Commands() override { return *this; }
    bool IsActive(const RecipeDocument&) const override { return false; }
    RecipeDefaults Defaults() const override { return defaults_; }
    bool AppendRows() const override { return true; }
    bool CopyHeaders() const override { return false; }
    bool PasteMismatchSize() const override { return false; }
    int LPMaxIter() const override { return 0; }
    bool AskBeforeNonUndoableChange() const override { return false; }
    void StopAskingBeforeNonUndoableChange() override {}
    // Nothing is deleted: such a document is saved only under a name that is free.
    std::optional<std::int64_t> DeleteRecipe(std::string_view, RecipeEnd) override { return std::nullopt; }
    void RecipeStored(std::string_view) override {}
    void AddToMRU(std::string_view) override {}
    void DocumentRenamed(const RecipeDocument&) override {}

  private:
    void EnableResizeRecipe(bool) override {}
    void EnableChangeStrength(bool) override {}
    void EnableChangeBitterness(bool) override {}
    void EnableChangeCarbonation(bool) override {}
    void EnableSave(bool) override {}
    void EnableInsert(bool) override {}
    void EnableDelete(bool) override {}
    void EnableCopyPaste(bool, bool) override {}
    void EnableUndo(bool, std::string_view) override {}
    void EnableRedo(bool, std::string_view) override {}
    void CheckEnableSaveAll() override {}
    void CheckEnableDelete() override {}

    RecipeDefaults defaults_;
};

}  // namespace tw

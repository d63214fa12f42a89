// The host of recipe documents in tests: records the calls of a document in order, keeps the state of the
// commands that documents control, and passes the notices of the store on to its documents as the shell does.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/DocumentHost.h"
#include "document/RecipeDocument.h"
#include "support/NoMessages.h"
#include "tree/DB_IO.h"

namespace tw::test {

class RecordingHost : public DocumentHost, public DocumentCommands, private ObjectListener {
  public:
    RecordingHost(Database& database, ClockPort& clock) : io_(database, tree_, messages_, clock, *this) {}

    // Set by the test.
    RecipeDefaults defaults;
    bool appendRows = false;
    bool copyHeaders = false, pasteMismatchSize = false, askBefore = true;
    ScalingPreferences scaling;
    int lpMaxIter = 1000;
    std::string picks;                       // what the brewer chooses from a catalogue; empty to cancel
    const RecipeDocument* active = nullptr;  // the active document
    std::vector<RecipeDocument*> documents;  // those that receive the notices

    // Read by the test: every call, such as "EnableSave on" or "AddToMRU Stout", and the
    // state of each command.
    std::vector<std::string> log;
    std::map<std::string, bool, std::less<>> commands;
    std::string undoName, redoName;  // the names in the menu after Undo and Redo
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    bool IsOn(std::string_view command) const {
        const auto found = commands.find(command);
        return found != commands.end() && found->second;
    }

    DocumentCommands& Commands() override { return *this; }
    bool IsActive(const RecipeDocument& document) const override { return &document == active; }
    RecipeDefaults Defaults() const override { return defaults; }
    bool AppendRows() const override { return appendRows; }
    bool CopyHeaders() const override { return copyHeaders; }
    bool PasteMismatchSize() const override { return pasteMismatchSize; }
    int LPMaxIter() const override { return lpMaxIter; }
    bool AskBeforeNonUndoableChange() const override { return askBefore; }
    void StopAskingBeforeNonUndoableChange() override { askBefore = false; }
    ScalingPreferences Scaling() const override { return scaling; }
    std::optional<std::int64_t> DeleteRecipe(std::string_view name,
                                             RecipeEnd why = RecipeEnd::Deleted) override {
        log.emplace_back("DeleteRecipe " + std::string(name));
        return io_.DeleteRecipeByName(name, why);
    }
    void RecipeStored(std::string_view name) override {
        log.emplace_back("RecipeStored " + std::string(name));
        io_.AddRecipeNodesByName(name);
    }
    void AddToMRU(std::string_view name) override { log.emplace_back("AddToMRU " + std::string(name)); }
    void PickFromCatalogue(RecipeDocument& document, CatalogueKind list, const std::string& name) override {
        log.emplace_back("Pick " + std::to_string(static_cast<int>(list)) + " '" + name + "'");
        if (!picks.empty()) document.Picks().Take(list, picks);
    }
    void SayBriefly(const std::string& text) override { log.push_back("news: " + text); }
    void DocumentRenamed(const RecipeDocument& document) override {
        log.emplace_back("DocumentRenamed " + document.Caption());
    }

    void EnableResizeRecipe(bool on) override { Set("EnableResizeRecipe", on); }
    void EnableChangeStrength(bool on) override { Set("EnableChangeStrength", on); }
    void EnableChangeBitterness(bool on) override { Set("EnableChangeBitterness", on); }
    void EnableChangeCarbonation(bool on) override { Set("EnableChangeCarbonation", on); }
    void EnableSave(bool on) override { Set("EnableSave", on); }
    void EnableInsert(bool on) override { Set("EnableInsert", on); }
    void EnableDelete(bool on) override { Set("EnableDelete", on); }
    void EnableCopyPaste(bool copy, bool cutPaste) override {
        Set("EnableCopy", copy);
        Set("EnableCutPaste", cutPaste);
    }
    void EnableUndo(bool on, std::string_view description) override {
        Set("EnableUndo", on);
        undoName = description;
    }
    void EnableRedo(bool on, std::string_view description) override {
        Set("EnableRedo", on);
        redoName = description;
    }
    void CheckEnableSaveAll() override { log.emplace_back("CheckEnableSaveAll"); }
    void CheckEnableDelete() override { log.emplace_back("CheckEnableDelete"); }

  private:
    void Set(const std::string& command, bool on) {
        log.push_back(command + (on ? " on" : " off"));
        commands[command] = on;
    }
    void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyRecipeMoved(name, folderId);
    }
    void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyRecipeNewStyle(name, styleId);
    }
    void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyRecipeRenamed(oldName, newName);
    }
    void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyStyleRenamed(styleId, newName);
    }
    void NotifyRecipeDeleted(const std::string& name) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyRecipeDeleted(name);
    }
    void NotifyRecipeFolderDeleted(std::int64_t folderId) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyRecipeFolderDeleted(folderId);
    }
    void NotifyStyleDeleted(std::int64_t styleId) override {
        for (RecipeDocument* document : documents) document->Notices().NotifyStyleDeleted(styleId);
    }

    TWTree shown_;  // empty
    TreeObjects tree_{shown_};
    NoMessages messages_;
    DB_IO io_;
};

// Writes every change of a record, such as "txtOG=1.050" or "gridGrain 1,3=23.04", into a log.
class ChangeRecorder : public RecordObserver {
  public:
    explicit ChangeRecorder(std::vector<std::string>& log) : log_(log) {}

    void TextBoxChanged(const TextBox& box) override { log_.push_back(box.Name() + "=" + box.Text()); }
    void LabelChanged(const Label& label) override { log_.push_back(label.Name() + "=" + label.Text()); }
    void ButtonChanged(const Button& button) override {
        log_.push_back(button.Name() + (button.Enabled() ? " on" : " off"));
    }
    void ListChanged(const ListBox& list) override { log_.push_back(list.Name() + "=" + list.Text()); }
    void OptionChanged(const OptionGroup& group) override { log_.push_back(group.Value() + " chosen"); }
    void SwatchChanged(Rgb) override { log_.emplace_back("swatch"); }
    void CellChanged(const Grid& grid, int row, int col) override {
        log_.push_back(grid.Name() + " " + std::to_string(row) + "," + std::to_string(col) + "=" +
                       grid.Text(row, col));
    }
    void RowInserted(const Grid& grid, int row) override {
        log_.push_back(grid.Name() + " row " + std::to_string(row) + " in");
    }
    void RowRemoved(const Grid& grid, int row) override {
        log_.push_back(grid.Name() + " row " + std::to_string(row) + " out");
    }

  private:
    std::vector<std::string>& log_;
};

}  // namespace tw::test

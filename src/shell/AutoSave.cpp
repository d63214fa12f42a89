#include "shell/AutoSave.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/ScopeGuard.h"
#include "shell/DocumentManager.h"

namespace tw {

bool AutoSaveMinutes::Tick(bool anyDocument, int every) {
    if (!anyDocument) {
        Reset();
        return false;
    }
    ++minutes_;
    return minutes_ >= every;
}

AutoSaveModel::AutoSaveModel(const DocumentManager& documents, std::function<void(RecipeDocument&)> save)
    : FormModel(kFormName), documents_(documents), save_(std::move(save)) {
    AddControls({{"lblRecipe", [this] { return recipeName_; }},
                 {"ProgressBar1", [this] { return std::to_string(done_); }}});
}

void AutoSaveModel::CloseBox() {
    if (!running_) Close();
}

void AutoSaveModel::FirstShown() {
    if (!IsOpen() || running_) return;
    const ScopedValue running(running_, true);
    // Events processed during the run may close a document, so documents are remembered by key.
    std::vector<std::string> keys;
    for (const auto& document : documents_.All()) keys.push_back(document->Key());
    total_ = static_cast<int>(keys.size());
    for (const std::string& key : keys) SaveOne(key);
    Close();
}

void AutoSaveModel::SaveOne(const std::string& key) {
    const auto& documents = documents_.All();
    const auto named = [&](const auto& document) { return document->Key() == key; };
    auto found = std::ranges::find_if(documents, named);
    if (found != documents.end()) {
        recipeName_ = (*found)->BeerName();
        Show();
        found = std::ranges::find_if(documents, named);
        if (found != documents.end()) save_(**found);
    }
    ++done_;
    Show();
}

void AutoSaveModel::Show() const {
    if (observer_) observer_();
}

}  // namespace tw

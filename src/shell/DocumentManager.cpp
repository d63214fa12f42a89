#include "shell/DocumentManager.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tw {

DocumentManager::DocumentManager(Platform& platform, const ColorTable& colors, CommandStates& states,
                                 ViewSlot& view, std::function<void(const RecipeDocument&)> removed)
    : platform_(platform), colors_(colors), states_(states), view_(view), removed_(std::move(removed)) {}

RecipeDocument* DocumentManager::Find(std::string_view origName) const {
    const auto found = std::ranges::find_if(
        documents_, [&](const auto& document) { return document->OrigName() == origName; });
    return found == documents_.end() ? nullptr : found->get();
}

bool DocumentManager::AnyChanged() const {
    return std::ranges::any_of(documents_, [](const auto& document) { return document->Changed(); });
}

RecipeDocument& DocumentManager::Create(DocumentHost& host, Database& database) {
    // Every window has a number, so untitled recipes skip the numbers of windows that show stored ones.
    ++windowCounter_;
    documents_.push_back(
        std::make_unique<RecipeDocument>(host, platform_, database, colors_, windowCounter_));
    RecipeDocument& document = *documents_.back();
    document.SetKey(std::to_string(nextDocKey_++));
    states_.EnableForDocument();
    view_->DocumentOpened(document);
    Activate(document);
    return document;
}

void DocumentManager::Activate(RecipeDocument& document) {
    if (active_ != &document) {
        active_ = &document;
        std::erase(useOrder_, &document);
        useOrder_.push_back(&document);
        document.Focus().Activate();
        states_.CheckEnableCarried();
    }
    view_->DocumentActivated(&document);
}

void DocumentManager::Remove(RecipeDocument& document) {
    view_->DocumentClosing(document);
    std::erase(useOrder_, &document);
    removed_(document);
    const bool wasActive = active_ == &document;
    if (wasActive) active_ = nullptr;
    std::erase_if(documents_, [&](const auto& open) { return open.get() == &document; });
    if (documents_.empty()) {
        states_.DisableAll();
        view_->DocumentActivated(nullptr);
    } else if (wasActive) {
        Activate(*useOrder_.back());
    } else {
        states_.CheckEnableSaveAll();
    }
}

void DocumentManager::CatalogueChanged() {
    for (const auto& document : documents_) document->Notices().DBChanged();
}

}  // namespace tw

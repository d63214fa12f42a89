// The open documents: their order, which one is active, and how they come and go.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "calc/BeerColor.h"
#include "document/RecipeDocument.h"
#include "shell/CommandStates.h"
#include "shell/ShellView.h"

namespace tw {

class DocumentManager {
  public:
    // removed is told of each document that goes, while it still exists. All must outlive the object.
    DocumentManager(Platform& platform, const ColorTable& colors, CommandStates& states, ViewSlot& view,
                    std::function<void(const RecipeDocument&)> removed);

    // In the order of their opening.
    const std::vector<std::unique_ptr<RecipeDocument>>& All() const { return documents_; }
    // nullptr without a document.
    RecipeDocument* Active() const { return active_; }
    // The first one that was opened under exactly that name, or has been saved under it; nullptr without one.
    RecipeDocument* Find(std::string_view origName) const;
    bool AnyChanged() const;

    // A new blank document in a window; it becomes the active one. REQUIRES: host and database outlive it.
    RecipeDocument& Create(DocumentHost& host, Database& database);
    // Makes it the active one, and shows its window.
    void Activate(RecipeDocument& document);
    // Removes the document without a question and destroys it. The document used before it becomes active;
    // with the last one the document commands are disabled.
    void Remove(RecipeDocument& document);

    // A notice may end in a document that opens or closes others, so that the collection is looked at anew
    // each time.
    template <class Notice>
    void ForEach(Notice notice) {
        for (std::size_t i = 0; i < documents_.size(); ++i) notice(*documents_[i]);
    }
    // Styles or ingredients have changed: the documents read their lists again.
    void CatalogueChanged();

  private:
    Platform& platform_;
    const ColorTable& colors_;
    CommandStates& states_;
    ViewSlot& view_;
    std::function<void(const RecipeDocument&)> removed_;
    std::vector<std::unique_ptr<RecipeDocument>> documents_;
    std::vector<RecipeDocument*> useOrder_;  // least recently active first
    RecipeDocument* active_ = nullptr;
    int windowCounter_ = 0;
    int nextDocKey_ = 0;
};

}  // namespace tw

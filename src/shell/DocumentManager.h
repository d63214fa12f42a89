// The open documents: their order, the active one, and how they are opened and closed.
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
    // removed is called with each document that is being removed, while it still exists. All arguments must
    // outlive the object.
    DocumentManager(Platform& platform, const ColorTable& colors, CommandStates& states, ViewSlot& view,
                    std::function<void(const RecipeDocument&)> removed);

    // Returns the documents in the order in which they were opened.
    const std::vector<std::unique_ptr<RecipeDocument>>& All() const { return documents_; }
    // Returns nullptr if no document is open.
    RecipeDocument* Active() const { return active_; }
    // Returns the first document that was opened or last saved under exactly that name, or nullptr.
    RecipeDocument* Find(std::string_view origName) const;
    bool AnyChanged() const;

    // Opens a new blank document in a window and makes it the active one. REQUIRES: host and database
    // outlive it.
    RecipeDocument& Create(DocumentHost& host, Database& database);
    // Makes the document the active one and shows its window.
    void Activate(RecipeDocument& document);
    // Closes and destroys the document without asking. If it was active, the most recently active of the
    // others becomes active; after the last one, the document commands are disabled.
    void Remove(RecipeDocument& document);

    // Calls notice for every document. Iterates by index, as notice may open or close documents.
    template <class Notice>
    void ForEach(Notice notice) {
        std::size_t i = 0;
        while (i < documents_.size()) notice(*documents_[i++]);
    }
    // Styles or ingredients have changed: makes the documents read their lists again.
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

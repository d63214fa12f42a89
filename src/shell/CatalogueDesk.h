// Opens the dialogs of the catalogue: database setup, the style editor, and the pickers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/CatalogueContext.h"
#include "platform/Ports.h"
#include "shell/DocumentManager.h"
#include "shell/OpenedDatabase.h"
#include "store/CatalogueDraft.h"
#include "store/CatalogueKind.h"
#include "tree/ListTable.h"

namespace tw {

class CatalogueDesk {
  public:
    // All arguments must outlive the object.
    CatalogueDesk(OpenedDatabase& data, DocumentManager& documents) : data_(data), documents_(documents) {}

    // Returns what the dialogs of the catalogue need.
    CatalogueContext Context();
    void ShowSetup();
    // Shows the editor of the style of that name or, if name is blank, of a new style in that folder. Returns
    // the name under which the style was saved, or nullopt if it was not.
    std::optional<std::string> EditStyle(std::string_view name, std::int64_t folderId);
    // Lets the brewer choose from a catalogue, with the row of that name selected first, and passes the
    // choice to the document.
    void Pick(RecipeDocument& document, CatalogueKind list, const std::string& name);
    // Shows the editor of a new catalogue row with what is known of it. If it is saved, passes its name to
    // the document.
    void Add(RecipeDocument& document, const CatalogueDraft& draft);

  private:
    // Shows the selected row of a picker's list in a read-only editor, whose navigator reaches the other
    // rows; the style editor has no navigator.
    void ViewRow(CatalogueKind type, ListTable& items);

    OpenedDatabase& data_;
    DocumentManager& documents_;
};

}  // namespace tw

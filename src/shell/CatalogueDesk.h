// The windows of the catalogue: database setup, the editor of a style, and the pickers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/CatalogueContext.h"
#include "platform/Ports.h"
#include "shell/DocumentManager.h"
#include "shell/OpenedDatabase.h"
#include "store/CatalogueKind.h"
#include "tree/ListTable.h"

namespace tw {

class CatalogueDesk {
  public:
    // All must outlive the object.
    CatalogueDesk(OpenedDatabase& data, DocumentManager& documents) : data_(data), documents_(documents) {}

    // What the windows of the catalogue stand on.
    CatalogueContext Context();
    void ShowSetup();
    // Shows the editor of the style of that name, or for a blank name that of a new style in the folder. The
    // name under which it was saved, nothing when it was not.
    std::optional<std::string> EditStyle(std::string_view name, std::int64_t folderId);
    // Lets the brewer choose from a catalogue, starting on name; the document takes what was chosen.
    void Pick(RecipeDocument& document, CatalogueKind list, const std::string& name);

  private:
    // Shows the selected row of a picker's list, and those around it, to be read.
    void ViewRow(CatalogueKind type, ListTable& items);

    OpenedDatabase& data_;
    DocumentManager& documents_;
};

}  // namespace tw

// Stores the recipes of one foreign file: each as a silent save stores it, with what it carries, and all of
// them as one unit on the disk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "doctor/RecipeDoctor.h"
#include "exchange/ForeignRecipe.h"
#include "platform/Ports.h"
#include "store/RecipeCopy.h"

namespace tw {

// What to import of a file.
struct ForeignChoice {
    std::vector<std::size_t> recipes;  // their indexes, in the order of the import
    std::int64_t folderId = 0;
    ImportOptions options;
};

class ForeignImport {
  public:
    // host decides about names that exist and may stop the import. REQUIRES: all arguments outlive
    // this object.
    ForeignImport(RecipeDoctor& doctor, const CatalogueContext& catalogue, CopyHost& host)
        : doctor_(doctor), catalogue_(catalogue), host_(host) {}

    // Imports the recipes chosen, and adds new styles and ingredients to the catalogue if the options say so.
    // Returns the number of recipes imported; source is the name of the file. Adds the findings
    // of their examination. If the host stops the import, or an error is raised, nothing of the file is
    // stored. Neither the tree nor open documents are notified. Raises the store's errors.
    int Run(const ForeignFile& file, std::string_view source, const ForeignChoice& choice,
            Findings& findings);

  private:
    // Returns the name to import under, empty to leave the recipe out; nullopt to stop.
    std::optional<std::string> NameFor(std::string name);
    void Extend(const ForeignFile& file, const ImportOptions& options, Findings& findings);
    // Undoes everything that the import has written.
    void Undo(UnitOfWork& unit);
    void Store(const ForeignFile& file, std::string_view source, const ForeignRecipe& recipe,
               RecipeDocument& document, const std::string& name, std::int64_t folderId);

    RecipeDoctor& doctor_;
    CatalogueContext catalogue_;
    CopyHost& host_;
    RecipeNames names_;
};

}  // namespace tw

// Imports what is chosen of several files of other programs, each as one unit on the disk.
#pragma once

#include <cstdint>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "doctor/DoctorFiles.h"
#include "doctor/FindingList.h"
#include "doctor/ImportOptions.h"
#include "doctor/RecipeDoctor.h"
#include "platform/Ports.h"
#include "store/RecipeCopy.h"

namespace tw {

// What an import has done.
struct ImportOutcome {
    int imported = 0;  // recipes
    // True if something that was listed to be imported was not: a file that was refused or that failed, a
    // recipe that the brewer skipped, an entry that the catalogue refused, or whatever was left when the
    // import was cancelled.
    bool leftOut = false;
    std::vector<FindingLine> lines;  // what was imported and what was not, in the order of the files
};

class DoctorImport {
  public:
    // host decides about names that exist and may cancel the import. REQUIRES: all arguments outlive this
    // object.
    DoctorImport(RecipeDoctor& doctor, const CatalogueContext& catalogue, CopyHost& host)
        : doctor_(doctor), catalogue_(catalogue), host_(host) {}

    // True if there is something that an import with these options would bring: a recipe, or an entry for
    // the catalogue.
    static bool HasWork(const DoctorFiles& files, const ImportOptions& options);

    // Imports the chosen recipes of the files into a folder. Recipes that were imported are no longer chosen
    // then. After an error, nothing of that file is stored and the next file follows; once the host cancels,
    // the files before stay imported.
    ImportOutcome Run(DoctorFiles& files, std::int64_t folderId, const ImportOptions& options);

  private:
    RecipeDoctor& doctor_;
    CatalogueContext catalogue_;
    CopyHost& host_;
};

}  // namespace tw

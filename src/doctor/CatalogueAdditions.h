// Adds to the catalogue what foreign files describe and it does not have: styles, and the entries of their
// libraries. Each goes through the editor of its list, by whose rules it is checked and written. An entry
// that exists is never changed.
#pragma once

#include <string>
#include <vector>

#include "catalogue/CatalogueContext.h"
#include "catalogue/CatalogueEditor.h"
#include "doctor/KnownFigures.h"
#include "exchange/Finding.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

// The style folder in which imported styles are put, directly below the root.
inline constexpr std::string_view kImportedFolder = "Imported";

class CatalogueAdditions {
  public:
    // REQUIRES: the objects of context and figures outlive this object.
    CatalogueAdditions(const CatalogueContext& context, KnownFigures& figures);

    // Return what the files have and the catalogue does not: styles with at least one range, of recipes and
    // of the library; the names of ingredients and waters of the library, each once.
    std::vector<const ForeignStyle*> NewStyles(const ForeignFile& file);
    std::vector<std::string> NewIngredients(const ForeignFile& file);

    // Both add what NewStyles and NewIngredients find, with a finding for each entry: that it was added, or
    // why its editor refused it. Return the number added. Raise the store's errors.
    int AddStyles(const ForeignFile& file, Findings& findings);
    int AddIngredients(const ForeignFile& file, Findings& findings);

  private:
    // Keeps the last message of an editor.
    class Refusals final : public MessagePort {
      public:
        void ShowMessage(std::string_view, std::string_view text) override { last = text; }
        Answer Ask(std::string_view, std::string_view text, Question kind) override;
        void Beep() override {}
        std::string last;
    };
    // Calls entry for each ingredient that the catalogue does not have: with its list, its name, and a
    // function that fills the editor.
    template <class Entry>
    void ForEachNew(const ForeignFile& file, Entry entry);
    bool Knows(CatalogueKind kind, const NameSought& sought);
    bool Save(CatalogueEditor& editor, const std::string& name, Findings& findings);
    std::int64_t ImportedFolderId();

    Refusals refusals_;
    CatalogueContext context_;
    KnownFigures& figures_;
};

}  // namespace tw

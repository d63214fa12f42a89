// What the catalogue knows about the ingredients of foreign recipes. Each answer is read once and kept, since
// the recipes of one brewer use the same ingredients again and again.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <unordered_map>

#include "doctor/NameMatcher.h"
#include "document/CatalogueLookup.h"
#include "store/CatalogueNames.h"

namespace tw {

template <class Figures>
struct Known {
    CatalogueMatch match;
    Figures figures;
};

class KnownFigures {
  public:
    // REQUIRES: database outlives this object. All functions raise the store's errors.
    explicit KnownFigures(Database& database)
        : database_(database), matcher_(database), catalogue_(database) {}

    // Each returns nullopt if the catalogue has no such entry. REQUIRES for Fermentable: kind is Grain or
    // Extract.
    std::optional<Known<FermentableFigures>> Fermentable(CatalogueKind kind, const NameSought& sought);
    std::optional<Known<HopFigures>> Hop(const NameSought& sought);
    std::optional<Known<SugarFigures>> Sugar(const NameSought& sought);
    // Returns what is known about the entry of that name besides its columns; nullptr if there is nothing.
    const CatalogueFacts* Facts(CatalogueKind kind, std::string_view name);
    std::optional<CatalogueMatch> Match(CatalogueKind kind, const NameSought& sought) {
        return matcher_.Find(kind, sought);
    }

    // Forgets all answers, after the catalogue has changed.
    void Forget();

  private:
    Database& database_;
    NameMatcher matcher_;
    CatalogueLookup catalogue_;
    std::unordered_map<std::string, FermentableFigures> grains_, extracts_;
    std::unordered_map<std::string, HopFigures> hops_;
    std::unordered_map<std::string, SugarFigures> sugars_;
    std::map<CatalogueKind, std::map<std::string, CatalogueFacts>> facts_;
};

}  // namespace tw

// What the catalogue knows about the ingredients of foreign recipes. Each answer is read once and kept, since
// the recipes of one brewer use the same ingredients again and again.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "doctor/NameMatcher.h"
#include "document/CatalogueLookup.h"

namespace tw {

template <class Figures>
struct Known {
    CatalogueMatch match;
    Figures figures;
};

class KnownFigures {
  public:
    // REQUIRES: database outlives this object. All functions raise the store's errors.
    explicit KnownFigures(Database& database) : matcher_(database), catalogue_(database) {}

    // Each returns nullopt if the catalogue has no such entry. REQUIRES for Fermentable: kind is Grain or
    // Extract.
    std::optional<Known<FermentableFigures>> Fermentable(CatalogueKind kind, const NameSought& sought);
    std::optional<Known<HopFigures>> Hop(const NameSought& sought);
    std::optional<Known<SugarFigures>> Sugar(const NameSought& sought);
    std::optional<CatalogueMatch> Match(CatalogueKind kind, const NameSought& sought) {
        return matcher_.Find(kind, sought);
    }

  private:
    NameMatcher matcher_;
    CatalogueLookup catalogue_;
    std::unordered_map<std::string, FermentableFigures> grains_, extracts_;
    std::unordered_map<std::string, HopFigures> hops_;
    std::unordered_map<std::string, SugarFigures> sugars_;
};

}  // namespace tw
